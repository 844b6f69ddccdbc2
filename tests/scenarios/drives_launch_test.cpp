#include "scenarios/drives_collection.h"
#include "text/command_line.h"

namespace kivu::scenarios {
namespace {

using DrivesLaunch = DrivesScenario;

constexpr const char* master = "Config/Kivu_Master.uaecfg";

TEST_F(DrivesLaunch, SelectingTheEmulatorMakesItsMasterConfiguration) {
    EXPECT_FALSE(tree.Exists(master));
    Start();
    EXPECT_EQ(Get("MasterConfigName"), tree.Path(master));
    EXPECT_EQ(tree.Read(master).size(), 231U);
    EXPECT_EQ(Call("GetMasterConfig"), tree.Path(master));
}

TEST_F(DrivesLaunch, ProfileWithoutAMasterConfigurationHasNeitherFile) {
    WriteProfile({{"WinUAE_UseMasterConfig", "0"}});
    Start();
    ShowFiles();
    Do("dblclick", list, 0);
    EXPECT_FALSE(tree.Exists(master));
    EXPECT_FALSE(tree.Exists("Config/Amiga/Kivu_StartScript.uaecfg"));
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
}

TEST_F(DrivesLaunch, EachLaunchWritesWhatLiesInTheDrives) {
    tree.Write(master, "use_gui = no\r\n");
    Start();
    ShowFiles();
    Do("dblclick", list, 1);
    std::string expected = "\r\nuse_gui = no\r\n";
    for (int disk = 1; disk <= 3; ++disk) {
        expected += FloppyLine(
            disk - 1, "Käfer König (1990)(Maker)(Disk " + std::to_string(disk) + " of 3).adf");
    }
    EXPECT_EQ(StartConfiguration(), expected);
    EXPECT_EQ(Get("CURRENT_PROGRAM_STARTED"),
              "Käfer König (1990)(Maker)(Disk 2 of 3)\rKäfer König (1990)(Maker)\r"
              "Käfer König (1990)(Maker)\rKäfer König (1990)(Maker)");
    const std::string startFile = tree.Read("Config/Amiga/Kivu_tmp.bat");
    EXPECT_NE(startFile.find("'-f' '" + tree.Path("Config/Amiga/Kivu_StartScript.uaecfg") + "'"),
              std::string::npos)
        << startFile;
}

TEST_F(DrivesLaunch, FullscreenAndRomStandBetweenMasterAndDrives) {
    WriteProfile({{"FullScreen", "1"}, {"KickstartRom", "/Roms/Kick 1.3 für alle.rom"}});
    tree.Write("Roms/Kick 1.3 für alle.rom", "x");
    tree.Write(master, "a=1\n");
    Start();
    ShowFiles();
    Do("dblclick", list, 5);
    EXPECT_EQ(StartConfiguration(),
              "\r\na=1\r\ngfx_fullscreen_amiga=True\r\ngfx_fullscreen=True\r\n"
              "kickstart_rom_file=" +
                  files.EncodeText(tree.Path("Roms/Kick 1.3 für alle.rom")) + "\r\n" +
                  FloppyLine(0, "Solo Flight (1992)(Other Maker).adf"));
}

TEST_F(DrivesLaunch, WindowsEmulatorReadsPathsOfItsOwnWorld) {
    WriteProfile({{"EmulatorPath", "/Emu/winuae.exe"}, {"KickstartRom", "/Roms/kick.rom"}});
    tree.Write("Roms/kick.rom", "x");
    tree.Write(master, "");
    Start();
    ShowFiles();
    Do("dblclick", list, 5);
    const std::string windows = text::ToWinePath(tree.Root());
    EXPECT_EQ(StartConfiguration(), "\r\nkickstart_rom_file=" + windows +
                                        "\\Roms\\kick.rom\r\nfloppy0=\"" + windows +
                                        "\\Roms\\Amiga\\Solo Flight (1992)(Other Maker).adf\"\r\n");
}

TEST_F(DrivesLaunch, UntickedBoxLeavesItsDiskInTheConfiguration) {
    Start();
    ShowFiles();
    Do("select", list, 3);
    Do("click", "Form1.Check_Dfx(1)");
    ASSERT_EQ(Ticks(), Json({1, 0, 0, 0, 0}));
    Call("LaunchBtn_Click");
    EXPECT_NE(StartConfiguration().find(FloppyLine(1, "Moon Miner (1991)(Disk 2 of 2).adf")),
              std::string::npos);
}

TEST_F(DrivesLaunch, RowsChosenByHandReachNoDrive) {
    WriteProfile({{"SmartRomSelection", "0"}});
    tree.Write(master, "a=1\r\n");
    Start();
    ShowFiles();
    Do("select", list, 3);
    Do("select", list, 4, "ctrl");
    Call("LaunchBtn_Click");
    EXPECT_EQ(StartConfiguration(), "\r\na=1\r\n");
}

TEST_F(DrivesLaunch, MissingGameWritesNoConfiguration) {
    Start();
    ShowFiles();
    std::filesystem::remove(tree.Path("Roms/Amiga/Solo Flight (1992)(Other Maker).adf"));
    Do("dblclick", list, 5);
    EXPECT_FALSE(tree.Exists("Config/Amiga/Kivu_StartScript.uaecfg"));
}

TEST_F(DrivesLaunch, ConfigurationThatIsADirectoryDoesNotStopTheLaunch) {
    tree.MakeDirectory("Config/Amiga/Kivu_StartScript.uaecfg");
    Start();
    ShowFiles();
    Do("dblclick", list, 5);
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
}

TEST_F(DrivesLaunch, DrivesAreKeptAcrossALaunch) {
    Start();
    ShowFiles();
    Do("dblclick", list, 3);
    Do("process", "add", "uae", 77);
    Do("tick", "Form1.EmuActiveTimer");
    Do("process", "remove", 77);
    Do("tick", "Form1.EmuActiveTimer", 5);
    EXPECT_EQ(Disks()[0], "Moon Miner (1991)(Disk 1 of 2).adf");
    EXPECT_EQ(Disks()[1], "Moon Miner (1991)(Disk 2 of 2).adf");
}

}  // namespace
}  // namespace kivu::scenarios
