// The configuration files of whole launches on Windows, byte by byte.

#include <gtest/gtest.h>

#include "launch/uae_configuration.h"
#include "launch_room.h"
#include "testing/md5.h"

namespace kivu::launch {
namespace {

using kivu::testing::Md5;

// RFC 1321, appendix A.5.
TEST(Md5, GivesTheSumsOfItsDefinition) {
    EXPECT_EQ(Md5::Of(""), "d41d8cd98f00b204e9800998ecf8427e");
    EXPECT_EQ(Md5::Of("abc"), "900150983cd24fb0d6963f7d28e17f72");
    EXPECT_EQ(Md5::Of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"),
              "d174ab98d277d9f5a5611c2c9f419d9f");
    std::string digits;
    for (int i = 0; i < 8; ++i)
        digits += "1234567890";
    EXPECT_EQ(Md5::Of(digits), "57edf4a22be3c955ac49da2e2107b67a");
}

struct TurricanLaunch : ::testing::Test, LaunchRoom {
    TurricanLaunch() : LaunchRoom('\\', "C:\\Kivu\\", "Amiga 500") {
        Emulator("C:\\Program Files\\WinUAE\\winuae.exe");
        Profile("WinUAE_ConfigParameter= -f \r\nWinUAE_UseMasterConfig=1\r\n");
        form.MasterConfigName = form.ConfigPath + "Kivu_Master.uaecfg";
        uae.GetMasterConfig();
        form.FullscreenCheck.SetValue(1);
        form.TxtKickstartRomFile.SetText("C:\\Amiga Roms\\kick 1.3.rom");
        for (std::size_t disk = 0; disk < 3; ++disk) {
            form.DiskSlots[disk] = DiskOf(static_cast<int>(disk) + 1);
            files.AddFile(form.DiskSlots[disk], "x");
        }
    }
    static std::string DiskOf(int number) {
        return "D:\\Amiga Games\\Turrican (1990)(Rainbow)(Disk " + std::to_string(number) +
               " of 3).adf";
    }
    void GiveShortNames() {
        for (int disk = 1; disk <= 3; ++disk) {
            files.SetShortName(DiskOf(disk),
                               "D:\\AMIGAG~1\\TURRIC~" + std::to_string(disk) + ".ADF");
        }
    }
    std::string Configuration() { return files.BytesOf(form.StartScriptName); }
    static std::string WholeText(const std::string& floppies) {
        return "\r\nfastmem_size=2\r\nchipmem_size=4\r\ngfx_width=720\r\ngfx_height=568\r\n\r\n"
               "floppy_speed=800\r\nuse_gui = no\r\nautoconfig = no\r\ncpu_type = 6800\r\n"
               "cpu_speed = Real\r\nsound_output = exact\r\nsound_channels = stereo\r\n"
               "sound_bits = 16\r\nbogomem_size = 1\r\ngfx_fullscreen_amiga=True\r\n"
               "gfx_fullscreen=True\r\nkickstart_rom_file=C:\\Amiga Roms\\kick 1.3.rom\r\n" +
               floppies;
    }
    static constexpr const char* started =
        "Turrican (1990)(Rainbow)(Disk 1 of 3)\rTurrican (1990)(Rainbow)\r"
        "Turrican (1990)(Rainbow)\rTurrican (1990)(Rainbow)";
};

TEST_F(TurricanLaunch, MasterIsMadeAsItIsKnown) {
    const std::string master = files.BytesOf("C:\\Kivu\\Config\\Kivu_Master.uaecfg");
    EXPECT_EQ(master, DefaultMasterConfiguration());
    EXPECT_EQ(master.size(), 231U);
    EXPECT_EQ(Md5::Of(master), "9b2daab0324d8a54ad5dfc951a6f454c");
}

TEST_F(TurricanLaunch, DisksStandByTheirShortNamesWithoutQuotes) {
    GiveShortNames();
    launch.StartGame(DiskOf(1));
    EXPECT_EQ(Configuration(), WholeText("floppy0=D:\\AMIGAG~1\\TURRIC~1.ADF\r\n"
                                         "floppy1=D:\\AMIGAG~1\\TURRIC~2.ADF\r\n"
                                         "floppy2=D:\\AMIGAG~1\\TURRIC~3.ADF\r\n"));
    EXPECT_EQ(Configuration().size(), 430U);
    EXPECT_EQ(Md5::Of(Configuration()), "67232ebe6bcf180d7e92030176348fde");
    EXPECT_EQ(form.CURRENT_PROGRAM_STARTED, started);
}

TEST_F(TurricanLaunch, DisksWithoutShortNamesStandInQuotes) {
    launch.StartGame(DiskOf(1));
    EXPECT_EQ(Configuration(), WholeText("floppy0=\"" + DiskOf(1) + "\"\r\nfloppy1=\"" + DiskOf(2) +
                                         "\"\r\nfloppy2=\"" + DiskOf(3) + "\"\r\n"));
    EXPECT_EQ(Configuration().size(), 532U);
    EXPECT_EQ(Md5::Of(Configuration()), "e597fefb3c9d1f5d460047fd1075b01b");
    EXPECT_EQ(form.CURRENT_PROGRAM_STARTED, started);
}

TEST_F(TurricanLaunch, SecondLaunchWritesTheSameFileAndNamesItsDisksAnew) {
    GiveShortNames();
    launch.StartGame(DiskOf(1));
    launch.StartGame(DiskOf(2));
    EXPECT_EQ(Md5::Of(Configuration()), "67232ebe6bcf180d7e92030176348fde");
    EXPECT_EQ(form.CURRENT_PROGRAM_STARTED,
              "Turrican (1990)(Rainbow)(Disk 2 of 3)\rTurrican (1990)(Rainbow)\r"
              "Turrican (1990)(Rainbow)\rTurrican (1990)(Rainbow)");
}

TEST_F(TurricanLaunch, LongTitlesOfDisksAreCutAndThatOfTheGameIsNot) {
    form.DiskSlots = {};
    form.DiskSlots[1] = "D:\\A Title of More than Thirty Characters (1990)(Maker)(Disk 2).adf";
    launch.StartGame("D:\\Amiga Games\\Turrican (1990)(Rainbow)(Disk 1 of 3).adf");
    EXPECT_EQ(form.CURRENT_PROGRAM_STARTED,
              "Turrican (1990)(Rainbow)(Disk 1 of 3)\rA Title of More than Thirty C");
}

TEST_F(TurricanLaunch, FileThatCannotBeReadOrWrittenLeavesTheLaunchItsWay) {
    files.SetUnreadable(form.MasterConfigName);
    files.AddDirectory(form.StartScriptName);
    launch.StartGame(DiskOf(1));
    EXPECT_EQ(host.starter.runs.size(), 1U);
    EXPECT_TRUE(form.GameIsRunning);
    EXPECT_EQ(form.CURRENT_PROGRAM_STARTED, started);
}

TEST_F(TurricanLaunch, AnyNumberButOneMeansNoConfiguration) {
    for (const char* value : {"0", "2", "-1", "x"}) {
        Profile(std::string("WinUAE_UseMasterConfig=") + value + "\r\n");
        launch.StartGame(DiskOf(1));
        EXPECT_EQ(Configuration(), "(no file)") << value;
        EXPECT_EQ(form.CURRENT_PROGRAM_STARTED, "Turrican (1990)(Rainbow)(Disk 1 of 3)");
    }
}

}  // namespace
}  // namespace kivu::launch
