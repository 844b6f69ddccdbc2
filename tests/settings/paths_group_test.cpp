#include "settings/paths_group.h"

#include "paths_room.h"

namespace kivu::settings {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using Answer = platform::Answer;

// --- The program's field.

TEST_F(Paths, OpeningFindsNoFaultAndNotesTheText) {
    EXPECT_FALSE(Fault(SettingsForm::faultyEmulator));
    EXPECT_FALSE(Fault(SettingsForm::faultyRomPath));
    EXPECT_EQ(window.ExeAtFocus, "D:\\Emu\\winuae.exe");
    EXPECT_TRUE(window.WinUAEBtn.Visible());
    Leave();
    EXPECT_THAT(TakeBoxes(), IsEmpty());
    EXPECT_FALSE(window.SaveBtn.Enabled());
}

TEST_F(Paths, TheFirstKeyThatBreaksTheNameWipesWinUaesFields) {
    window.TxtKickstartRomFile.SetText("D:\\kick.rom");
    window.IntelligenteRomauswahl.SetValue(1);
    window.UseMasterConfig.SetValue(1);
    window.FullscreenCheck.SetValue(1);
    ASSERT_EQ(window.UAEMasterConfigLaunchParameter.Text(), "-f");
    window.txtWinUAEExe.SetSelection(16, 0);
    input.Stroke(forms::KeyOf('x'));
    EXPECT_EQ(window.txtWinUAEExe.Text(), "D:\\Emu\\winuae.exxe");
    EXPECT_FALSE(window.WinUAEBtn.Visible());
    EXPECT_EQ(window.TxtKickstartRomFile.Text(), "");
    EXPECT_EQ(window.IntelligenteRomauswahl.Value(), 0);
    EXPECT_EQ(window.UseMasterConfig.Value(), 0);
    EXPECT_EQ(window.UAEMasterConfigLaunchParameter.Text(), "");
    EXPECT_EQ(window.FullscreenCheck.Value(), 0);
    EXPECT_TRUE(window.SaveBtn.Enabled());
    EXPECT_TRUE(Fault(SettingsForm::faultyEmulator));
}

TEST_F(Paths, AFaultyProgramIsEmptyMissingOrADirectory) {
    files.AddFile("C:\\Kivu\\sub\\own.exe", "MZ");
    const auto isFaulty = [&](const char* text) {
        window.txtWinUAEExe.SetText(text);
        return Fault(SettingsForm::faultyEmulator);
    };
    for (const char* text : {"", "D:\\Emu", "D:\\Emu\\", "D:\\Emu\\none.exe", "D:\\Emu\\*.exe",
                             "\"D:\\Emu\\winuae.exe\"", "winuae.exe"})
        EXPECT_TRUE(isFaulty(text)) << text;
    for (const char* text : {"D:\\Emu\\winuae.exe", "d:\\emu\\WINUAE.EXE", "sub\\own.exe"})
        EXPECT_FALSE(isFaulty(text)) << text;
}

TEST_F(PosixPaths, ABareNameIsFoundWhereTheStartFindsIt) {
    window.txtWinUAEExe.SetText("stella");
    EXPECT_FALSE(Fault(SettingsForm::faultyEmulator));
    window.txtWinUAEExe.SetText("stellar");
    EXPECT_TRUE(Fault(SettingsForm::faultyEmulator));
}

TEST_F(Paths, WinUaesOtherProgramsKeepItsFields) {
    for (const char* name : {"D:\\Emu\\WINUAE.EXE", "D:\\winuae64.exe", "D:\\amiberry"}) {
        window.txtWinUAEExe.SetText(name);
        window.UseMasterConfig.SetValue(1);
        window.txtWinUAEExe.SetText(std::string(name) + " ");
        window.txtWinUAEExe.SetText(name);
        EXPECT_TRUE(window.WinUAEBtn.Visible()) << name;
    }
}

// --- The directory of the games.

TEST_F(Paths, TheGamesOfAnotherProgramAreGuessedWhereTheDirectoryIsOfNoUse) {
    files.AddFile("E:\\Emu\\thing.exe", "MZ");
    files.AddFile("E:\\Emu\\Disks\\a.adf", "x");
    files.AddDirectory("E:\\Emu\\Roms\\empty");
    EnterProgram("E:\\Emu\\thing.exe");
    EXPECT_EQ(window.TxtRomPath.Text(), "D:\\Games\\");
    window.TxtRomPath.SetText("D:\\none\\");
    EnterProgram("E:\\Emu\\THING.exe");
    EXPECT_EQ(window.TxtRomPath.Text(), "E:\\Emu\\Disks\\");
    EXPECT_FALSE(Fault(SettingsForm::faultyRomPath));
}

TEST_F(Paths, ADirectoryThatIsNotThereNowStaysWhereNothingWasTyped) {
    window.TxtRomPath.SetText("F:\\Games\\");
    ASSERT_TRUE(Fault(SettingsForm::faultyRomPath));
    window.txtWinUAEExe.SetFocus();
    Leave();
    EXPECT_EQ(window.TxtRomPath.Text(), "F:\\Games\\");
    // One that nobody has chosen does not.
    window.TxtRomPath.SetText("");
    window.txtWinUAEExe.SetFocus();
    Leave();
    EXPECT_EQ(window.TxtRomPath.Text(), "D:\\Emu\\");
}

TEST_F(Paths, TheLaunchersOwnDirectoryGivesWayToTheProgramsAndAnyOtherStays) {
    files.AddFile("E:\\Emu\\thing.exe", "MZ");
    files.AddFile("C:\\Kivu\\Kivu.exe", "MZ");
    window.TxtRomPath.SetText("C:\\Kivu");
    EnterProgram("E:\\Emu\\thing.exe");
    EXPECT_EQ(window.TxtRomPath.Text(), "C:\\Kivu");
    window.TxtRomPath.SetText("C:\\Kivu\\");
    EnterProgram("E:\\Emu\\THING.exe");
    EXPECT_EQ(window.TxtRomPath.Text(), "E:\\Emu\\");
}

TEST_F(PosixPaths, NobodysGamesLieBesideASystemsPrograms) {
    files.AddFile("/opt/kivu/Kivu", "ELF");
    window.TxtRomPath.SetText("/opt/kivu/");
    EnterProgram("/usr/games/stella2");
    EXPECT_EQ(window.TxtRomPath.Text(), "/opt/kivu/");
    window.TxtRomPath.SetText("/none");
    EnterProgram("/usr/games/stella3");
    EXPECT_EQ(window.TxtRomPath.Text(), "/none");
    EnterProgram("stella");
    EXPECT_EQ(window.TxtRomPath.Text(), "/none");
    EnterProgram("");
    EXPECT_EQ(window.TxtRomPath.Text(), "/none");
}

TEST_F(Paths, AnyEntryMakesADirectoryUsable) {
    files.AddDirectory("D:\\Nested\\only");
    files.AddDirectory("D:\\Empty");
    files.AddDirectory("D:\\Locked\\a");
    files.SetUnreadable("D:\\Locked");
    files.AddFile("C:\\Kivu\\Games\\a", "");
    const auto isFaulty = [&](const char* text) {
        window.TxtRomPath.SetText(text);
        return Fault(SettingsForm::faultyRomPath);
    };
    for (const char* text : {"D:\\Nested", "D:\\Nested\\", "D:\\Games", "D:\\", "Games"})
        EXPECT_FALSE(isFaulty(text)) << text;
    for (const char* text : {"", "D:\\Empty", "D:\\None", "D:\\Games\\a.adf", "D:\\Locked"})
        EXPECT_TRUE(isFaulty(text)) << text;
    EXPECT_TRUE(window.SaveBtn.Enabled());
}

// A large directory costs one look for each key, and nobody lists it.
struct LargeDisk : testing::MemoryFileSystem {
    LargeDisk() : MemoryFileSystem('/') {}
    std::optional<bool> HasEntries(const std::string& path) const override {
        looks.push_back(path);
        return IsDirectory(path);
    }
    std::optional<std::vector<Entry>> ListDirectory(const std::string& path) const override {
        ++listings;
        return MemoryFileSystem::ListDirectory(path);
    }
    mutable std::vector<std::string> looks;
    mutable int listings = 0;
};

TEST(TypedRomPath, AsksForOneEntryAtEachKey) {
    LargeDisk disk;
    disk.AddDirectory("/games");
    SettingsRoom room('/', 2, &disk);
    room.Open("", "");
    disk.looks.clear();
    disk.listings = 0;
    room.input.Type(room.window.TxtRomPath, "/games/");
    EXPECT_THAT(disk.looks,
                ElementsAre("/", "/g/", "/ga/", "/gam/", "/game/", "/games/", "/games/"));
    EXPECT_EQ(disk.listings, 0);
    EXPECT_FALSE(room.Fault(SettingsForm::faultyRomPath));
}

TEST(TypedRomPath, AsksAServerWhenTheFieldIsLeft) {
    struct Shares : testing::MemoryFileSystem {
        Shares() : MemoryFileSystem('\\') {}
        std::optional<bool> HasEntries(const std::string& path) const override {
            looks.push_back(path);
            return path.starts_with("\\\\");
        }
        bool FileExists(const std::string& path) const override {
            if (path.starts_with("\\\\")) asked.push_back(path);
            return MemoryFileSystem::FileExists(path);
        }
        mutable std::vector<std::string> looks, asked;
    } disk;
    SettingsRoom room('\\', 2, &disk);
    room.Open("C:\\none.exe", "C:\\");
    disk.looks.clear();
    room.window.TxtRomPath.SetFocus();
    room.window.TxtRomPath.SetText("");
    room.input.Type(room.window.TxtRomPath, "\\\\s\\games");
    EXPECT_TRUE(room.Fault(SettingsForm::faultyRomPath));
    EXPECT_THAT(disk.looks, ElementsAre("C:\\Kivu\\"));  // of the first sign alone
    room.Leave();
    EXPECT_EQ(disk.looks.back(), "\\\\s\\games\\");
    EXPECT_FALSE(room.Fault(SettingsForm::faultyRomPath));
    room.window.txtWinUAEExe.SetFocus();
    room.window.txtWinUAEExe.SetText("");
    room.input.Type(room.window.txtWinUAEExe, "\\\\s\\emu.exe");
    EXPECT_THAT(disk.asked, IsEmpty());
    room.Leave();
    EXPECT_FALSE(disk.asked.empty());
}

TEST_F(Paths, BrowseDirTakesWhatWasChosen) {
    fileDialogs.answers = {"", "E:\\New\\"};
    window.BrowseDir.Click();
    EXPECT_EQ(window.TxtRomPath.Text(), "D:\\Games\\");
    EXPECT_FALSE(window.SaveBtn.Enabled());
    window.FehlerIcon[SettingsForm::faultyRomPath].Click();
    EXPECT_EQ(window.TxtRomPath.Text(), "E:\\New\\");
    EXPECT_TRUE(window.SaveBtn.Enabled());
    const ScriptedFileDialogs::Asked asked{"directory", "D:\\Games\\", "ROM Verzeichnis wählen",
                                           ""};
    EXPECT_THAT(fileDialogs.asked, ElementsAre(asked, asked));
}

// --- Looking for the program, and starting it.

TEST_F(Paths, BrowsingAsksTwiceAndThenOffersAStart) {
    files.AddFile("D:\\x\\snes9x.exe", "MZ");
    fileDialogs.answers = {"D:\\x\\snes9x.exe"};
    const std::string row = std::string("SNES (Super Nintendo Entertainment System) ") + knownText;
    window.Command2.Click();
    EXPECT_THAT(fileDialogs.asked,
                ElementsAre(ScriptedFileDialogs::Asked{"open", "D:\\Emu\\winuae.exe",
                                                       "Emulator Exe wählen", "*.exe"}));
    const auto shown = host.dialogs.shown;
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(Pair("set defaults?", row), Pair("set defaults?", row),
                            Pair("snes9x.exe starten?", "Emulator zum Einstellen jetzt starten?")));
    EXPECT_EQ(shown.back().buttons, platform::Buttons::YesNo);
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_EQ(window.txtWinUAEExe.Text(), "D:\\x\\snes9x.exe");
}

TEST_F(Paths, BrowsingForNothingNewAsksNothing) {
    fileDialogs.answers = {"", "D:\\Emu\\winuae.exe"};
    window.Command2.Click();
    window.FehlerIcon[SettingsForm::faultyEmulator].Click();
    EXPECT_EQ(fileDialogs.asked.size(), 2U);
    EXPECT_THAT(TakeBoxes(), IsEmpty());
    EXPECT_FALSE(window.SaveBtn.Enabled());
}

TEST_F(Paths, BrowsingMayEndInAStart) {
    files.AddFile("D:\\x\\snes9x.exe", "MZ");
    fileDialogs.answers = {"D:\\x\\snes9x.exe"};
    Answers({Answer::Yes, Answer::No, Answer::Yes});
    window.Command2.Click();
    ASSERT_EQ(host.starter.runs.size(), 1U);
    EXPECT_EQ(host.starter.runs[0].request.command, "D:\\x\\snes9x.exe");
    EXPECT_EQ(window.DirBefehleTxt.Text(), "*.smc, *.zip");
}

TEST_F(Paths, LaunchButtonStartsTheProgramAndLooksWhetherItRuns) {
    bool busy = false, enabled = true;
    host.clock.onRest = [&] {
        busy = form.Busy;
        enabled = window.LaunchButton.Enabled();
    };
    input.Click(window.LaunchButton);
    ASSERT_EQ(host.starter.runs.size(), 1U);
    const auto& request = host.starter.runs[0].request;
    EXPECT_EQ(request.command, "D:\\Emu\\winuae.exe");
    EXPECT_THAT(request.words, ElementsAre("D:\\Emu\\winuae.exe"));
    EXPECT_EQ(request.directory, "D:\\Emu");
    EXPECT_EQ(request.style, platform::WindowStyle::Normal);
    EXPECT_TRUE(request.watched);
    EXPECT_TRUE(busy);
    EXPECT_FALSE(enabled);
    EXPECT_EQ(form.CurrentRunninApplication, "winuae.exe");
    EXPECT_EQ(running.looks, 1);
    EXPECT_TRUE(form.EmuActiveTimer.Enabled());
    EXPECT_EQ(files.CurrentDirectory(), "C:\\Kivu");
    EXPECT_TRUE(window.LaunchButton.Enabled());
    EXPECT_TRUE(window.LaunchButton.HasFocus());
    EXPECT_TRUE(window.NewEmuBtn.Enabled());
    EXPECT_FALSE(window.SaveBtn.Enabled());
}

TEST_F(Paths, AnEmulatorThatIsSlowToComeUpLeavesTheWindowInFront) {
    running.onLook = [this] { form.SetTopmost(true); };
    window.LaunchButton.Click();
    EXPECT_FALSE(form.IsTopmost());
}

TEST_F(Paths, LaunchButtonSaysNothingOfAMissingProgram) {
    window.txtWinUAEExe.SetText("D:\\none.exe");
    window.LaunchButton.Click();
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_THAT(TakeBoxes(), IsEmpty());
    EXPECT_EQ(running.looks, 0);
    EXPECT_FALSE(form.EmuActiveTimer.Enabled());
    EXPECT_TRUE(window.LaunchButton.Enabled());
}

TEST_F(Paths, LaunchButtonRestsWhileSomethingIsUnderWay) {
    form.Busy = true;
    window.LaunchButton.Click();
    EXPECT_THAT(host.starter.runs, IsEmpty());
}

TEST_F(PosixPaths, LaunchButtonFindsABareName) {
    window.txtWinUAEExe.SetText("stella");
    window.LaunchButton.Click();
    ASSERT_EQ(host.starter.runs.size(), 1U);
    EXPECT_THAT(host.starter.runs[0].request.words, ElementsAre("/usr/games/stella"));
    EXPECT_EQ(form.CurrentRunninApplication, "stella");
}

}  // namespace
}  // namespace kivu::settings
