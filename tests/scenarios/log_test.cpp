#include "scenarios/launches.h"

namespace kivu::scenarios {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

using Lines = std::vector<std::string>;

// What stands in the log after it.
class Log : public Launch {
 protected:
    Lines Told() { return Do("log")["value"].get<Lines>(); }
    void Emulator(const char* program, const char* master) {
        tree.AddEmulator("Alpha", {{"RomPath", "/Roms/Alpha"},
                                   {"EmulatorPath", program},
                                   {"RomCount", "3"},
                                   {"WinUAE_UseMasterConfig", master},
                                   {"EmulatorParameterAddDiskPath", "1"}});
    }
    void Tick(int count = 1) { Do("tick", "Form1.EmuActiveTimer", count); }
    std::string NotWritten(const std::string& file) { return "not written: " + tree.Path(file); }
    // The names that need an own disk have been read by then.
    void StartAndForget() {
        Start();
        Told();
    }
};

TEST_F(Log, AStartWithoutFailuresTellsNothing) {
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 1);
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    Do("click", "Form1.LoadBtn");
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(Log, ALaunchTellsTheGameTheEmulatorTheStartAndItsEnd) {
    Start();
    LaunchBee();
    const std::string emulator = tree.Path("Emu/alpha");
    const Lines launch = Told();
    ASSERT_EQ(launch.size(), 3U);
    EXPECT_EQ(launch[0], "launch: " + Bee());
    EXPECT_THAT(launch[1], AllOf(StartsWith("emulator: " + emulator + " "), HasSubstr(Short(Bee())),
                                 EndsWith("; watched as: alpha")));
    EXPECT_EQ(launch[2], "started: " + tree.Path("Config/Alpha/Kivu_tmp.bat") + "; in " +
                             tree.Path("Emu") + "; minimized, watched");
    EmulatorComesUp();
    Tick(4);
    EXPECT_THAT(Told(), ElementsAre("came up: alpha"));
    EmulatorGoes();
    Tick();
    EXPECT_THAT(Told(), ElementsAre("ended: alpha"));
    // And once more, with the same name.
    LaunchBee();
    EmulatorComesUp();
    Tick();
    EmulatorGoes();
    Tick(2);
    EXPECT_EQ(Told().size(), 5U);
}

TEST_F(Log, AnEmulatorThatNeverComesUpIsToldAfterTheGrace) {
    Start();
    LaunchBee();
    Told();
    Tick(2);
    EXPECT_THAT(Told(), IsEmpty());
    Tick();
    EXPECT_THAT(Told(), ElementsAre("never came up: alpha"));
    // The look that a change of emulator takes finds nothing that has been started.
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(Log, AKillIsToldAndThenTheEnd) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Tick(4);
    Told();
    Do("click", "Form1.AppRunningPicture");
    EXPECT_THAT(Told(), ElementsAre("killed: alpha, process 4711"));
    Tick();
    EXPECT_THAT(Told(), ElementsAre("ended: alpha"));
}

TEST_F(Log, AnEmulatorOfAnEarlierSessionIsToldWhenItIsKilled) {
    Start();
    EmulatorComesUp();
    Do("answer", "Yes");
    Call("LoadingBtn_Click");
    const Lines told = Told();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_THAT(told[0], AllOf(StartsWith("killed: "), EndsWith("alpha, process 4711")));
}

TEST_F(Log, AStartThatFailsIsToldWithItsReason) {
    Start();
    Host().starter.result = std::make_error_code(std::errc::permission_denied);
    LaunchBee();
    EXPECT_THAT(Told().back(), StartsWith("not started, "));
}

TEST_F(Log, AMissingEmulatorAndAMissingGameAreTold) {
    Emulator("/Emu/gone", "0");
    StartAndForget();
    LaunchBee();
    EXPECT_THAT(Told(), Contains("no emulator at: " + tree.Path("Emu/gone")));
    Tick(3);
    Told();
    std::filesystem::remove(tree.Path("Roms/Alpha/Bee (1991)(Maker).adf"));
    LaunchBee();
    EXPECT_THAT(Told(), ElementsAre("not launched, no such file: " + Bee()));
}

TEST_F(Log, SettingUpAnEmulatorIsTold) {
    Start();
    Call("StartEmulator", "Beta", false);
    const std::string emulator = tree.Path("Emu/beta");
    EXPECT_THAT(Told(), ElementsAre("set-up of Beta: " + emulator + "; watched as: beta",
                                    "started: " + emulator + "; in " + tree.Path("Emu") +
                                        "; normal, watched"));
    Tick();
    EXPECT_THAT(Told(), ElementsAre("never came up: beta"));
    std::filesystem::remove(tree.Path("Emu/beta"));
    Call("StartEmulator", "Beta", false);
    EXPECT_THAT(Told(), ElementsAre("set-up of Beta: no emulator at: " + emulator));
}

TEST_F(Log, WhatAFullDiskDoesNotTakeIsToldOnce) {
    Emulator("/Emu/alpha", "1");
    StartAndForget();
    std::filesystem::remove(tree.Path("Config/Kivu_Master.uaecfg"));
    files.FillDisk();
    for (int time = 0; time < 2; ++time) {
        Do("click", "Form1.LoadBtn");
        Do("click", "Form1.Label3");
        Do("select", "Form1.UAE_Short", 1);
        Do("click", "Form1.AddToFavorit");
        Call("GetMasterConfig");
        LaunchBee();
        Tick(3);
    }
    Do("click", "Form1.ExitBtn");
    const Lines told = Told();
    for (const char* file : {"Config/Alpha/Kivu.ini", "Config/Alpha/Kivu_Cache.txt",
                             "Config/Alpha/Favoriten.ini", "Config/Kivu_Master.uaecfg",
                             "Config/Alpha/Kivu_StartScript.uaecfg", "Config/Alpha/Kivu_tmp.bat"}) {
        EXPECT_THAT(told, Contains(StartsWith(NotWritten(file) + ": ")).Times(1)) << file;
    }
}

TEST_F(Log, WhatIsThereAndCannotBeReadIsTold) {
    const char* const lists[] = {"Config/Alpha/Kivu.ini", "Config/Alpha/Favoriten.ini"};
    for (const char* file : lists) {
        std::filesystem::remove(tree.Path(file));
        tree.MakeDirectory(file);
    }
    files.OnlyFor("Kivu_Cache.txt");
    files.FailFrom(testing::FaultyFileSystem::Step::Read, 1, std::errc::permission_denied);
    Start();
    const Lines told = Told();
    for (const char* file : lists) {
        EXPECT_THAT(told,
                    Contains("not read: " + tree.Path(file) + ": it is a directory").Times(1));
    }
    EXPECT_THAT(told,
                Contains("not read: " + tree.Path("Config/Alpha/Kivu_Cache.txt") + ": no access"));
}

TEST_F(Log, AScanTellsWhatItCannotEnter) {
    tree.Write("Roms/Alpha/Sub/Dog (1993)(Maker).adf");
    StartAndForget();
    files.OnlyFor(testing::HostPath("/Roms/Alpha/Sub"));
    files.FailFrom(testing::FaultyFileSystem::Step::List, 1, std::errc::permission_denied);
    Do("click", "Form1.LoadBtn");
    EXPECT_THAT(Told(),
                ElementsAre(AllOf(StartsWith("directory not read: " + tree.Path("Roms/Alpha/Sub")),
                                  EndsWith(": no access"))));
}

TEST_F(Log, AHandedOverFileIsTold) {
    StartAndForget();
    Do("summon", Bee());
    EXPECT_THAT(Told(), AllOf(Contains("handed over: " + Bee()), Contains("launch: " + Bee())));
    Do("summon", Bee());
    EXPECT_THAT(Told(), ElementsAre("not started, no time for it, handed over: " + Bee()));
    Do("summon", "relative");
    EXPECT_THAT(Told(), ElementsAre("refused, handed over: relative"));
    Do("summon");
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(Log, ALaterInstanceTellsWhatItHandsOver) {
    options.commandLine = Bee();
    prepare = [](driver::Session& session) { session.Host().instance.earlierRuns = true; };
    Start();
    EXPECT_THAT(Told(), ElementsAre("handed over to the instance that runs: " + Bee()));
}

TEST_F(Log, AHostileNameForgesNoLine) {
    StartAndForget();
    const std::string name = "/x\r\n2026-11-22 03:12:41.123 [1] killed: kivu\x1B[2J";
    Do("summon", name);
    const Lines told = Told();
    EXPECT_THAT(told, Contains("not launched, no such file: /x<0D><0A>2026-11-22 03:12:41.123 [1] "
                               "killed: kivu<1B>[2J"));
    for (const std::string& line : told)
        EXPECT_THAT(line, Not(StartsWith("2026")));
}

TEST_F(Log, ALostProcessListIsTold) {
    Start();
    LaunchBee();
    Told();
    Host().processes.unreadable = true;
    Tick(3);
    EXPECT_THAT(Told(), ElementsAre("process list not read", "never came up: alpha"));
}

}  // namespace
}  // namespace kivu::scenarios
