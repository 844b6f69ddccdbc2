#include "launch/uae_files.h"

#include <gmock/gmock.h>

#include "core/form1.h"
#include "launch/uae_configuration.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::launch {
namespace {

using ::testing::ElementsAre;

struct Room {
    explicit Room(char separator) : files(separator) {
        const std::string root = separator == '/' ? "/k/Config/" : "C:\\Kivu\\Config\\";
        files.AddDirectory(root);
        form.MasterConfigName = root + "Kivu_Master.uaecfg";
        form.StartScriptName = root + "Kivu_StartScript.uaecfg";
        uae.hooks.Add_CURRENT_PROGRAM_STARTED = [this](std::string& name) {
            started.push_back(name);
            name = "changed";
        };
    }
    std::string Written(bool windowsPaths = false) {
        uae.WriteStartConfiguration(windowsPaths);
        return files.BytesOf(form.StartScriptName);
    }

    kivu::testing::MemoryFileSystem files;
    core::Form1 form{forms::Toolkit{}};
    kivu::testing::ScriptedLog log;
    UaeFiles uae{form, files, log};
    std::vector<std::string> started;
};

struct LinuxRoom : ::testing::Test, Room {
    LinuxRoom() : Room('/') {}
};

struct WindowsRoom : ::testing::Test, Room {
    WindowsRoom() : Room('\\') {
        form.FullscreenCheck.SetValue(1);
        form.TxtKickstartRomFile.SetText("C:\\Amiga Roms\\kick 1.3.rom");
        for (std::size_t disk = 0; disk < 3; ++disk) {
            form.DiskSlots[disk] = "D:\\Amiga Games\\Turrican (1990)(Rainbow)(Disk " +
                                   std::to_string(disk + 1) + " of 3).adf";
            files.AddFile(form.DiskSlots[disk], "x");
        }
        uae.GetMasterConfig();
    }
};

constexpr const char* masterLines =
    "\r\nfastmem_size=2\r\nchipmem_size=4\r\ngfx_width=720\r\ngfx_height=568\r\n\r\n"
    "floppy_speed=800\r\nuse_gui = no\r\nautoconfig = no\r\ncpu_type = 6800\r\ncpu_speed = Real\r\n"
    "sound_output = exact\r\nsound_channels = stereo\r\nsound_bits = 16\r\nbogomem_size = 1\r\n"
    "gfx_fullscreen_amiga=True\r\ngfx_fullscreen=True\r\n"
    "kickstart_rom_file=C:\\Amiga Roms\\kick 1.3.rom\r\n";

TEST_F(WindowsRoom, DisksStandByTheirShortNamesWithoutQuotes) {
    for (int disk = 1; disk <= 3; ++disk) {
        const std::string number = std::to_string(disk);
        files.SetShortName(form.DiskSlots[static_cast<std::size_t>(disk - 1)],
                           "D:\\AMIGAG~1\\TURRIC~" + number + ".ADF");
    }
    const std::string bytes = Written();
    EXPECT_EQ(bytes, std::string(masterLines) +
                         "floppy0=D:\\AMIGAG~1\\TURRIC~1.ADF\r\n"
                         "floppy1=D:\\AMIGAG~1\\TURRIC~2.ADF\r\n"
                         "floppy2=D:\\AMIGAG~1\\TURRIC~3.ADF\r\n");
    EXPECT_EQ(bytes.size(), 430U);
}

TEST_F(WindowsRoom, DisksWithoutShortNamesStandInQuotes) {
    const std::string bytes = Written();
    std::string expected = masterLines;
    for (const char* number : {"1", "2", "3"}) {
        const int drive = *number - '1';
        expected += "floppy" + std::to_string(drive) +
                    "=\"D:\\Amiga Games\\Turrican (1990)(Rainbow)(Disk " + number +
                    " of 3).adf\"\r\n";
    }
    EXPECT_EQ(bytes, expected);
    EXPECT_EQ(bytes.size(), 532U);
}

TEST_F(WindowsRoom, UmlautsStandInTheSystemsCodePage) {
    form.TxtKickstartRomFile.SetText("C:\\Käse\\kick.rom");
    form.DiskSlots = {"D:\\Ärger.adf", "", "", "", "", ""};
    files.AddFile("D:\\Ärger.adf", "x");
    EXPECT_THAT(Written(), ::testing::EndsWith("kickstart_rom_file=C:\\K\xE4"
                                               "se\\kick.rom\r\n"
                                               "floppy0=D:\\\xC4"
                                               "rger.adf\r\n"));
}

TEST_F(LinuxRoom, MissingMasterIsMadeOnce) {
    EXPECT_EQ(uae.GetMasterConfig(), form.MasterConfigName);
    EXPECT_EQ(files.BytesOf(form.MasterConfigName), DefaultMasterConfiguration());
    files.AddFile(form.MasterConfigName, "mine\n");
    EXPECT_EQ(uae.GetMasterConfig(), form.MasterConfigName);
    EXPECT_EQ(files.BytesOf(form.MasterConfigName), "mine\n");
}

TEST_F(LinuxRoom, EmptyMasterOfTheUserStaysEmpty) {
    files.AddFile(form.MasterConfigName, "");
    uae.GetMasterConfig();
    EXPECT_EQ(files.BytesOf(form.MasterConfigName), "");
    EXPECT_EQ(Written(), "\r\n");
}

TEST_F(LinuxRoom, WithoutAPathThereIsNoMaster) {
    form.MasterConfigName.clear();
    EXPECT_EQ(uae.GetMasterConfig(), "");
    EXPECT_EQ(Written(), "\r\n");
}

TEST_F(LinuxRoom, MasterThatCannotBeMadeIsPassedOver) {
    files.FailChanges(std::errc::no_space_on_device);
    EXPECT_EQ(uae.GetMasterConfig(), form.MasterConfigName);
    EXPECT_EQ(files.BytesOf(form.MasterConfigName), "(no file)");
}

TEST_F(LinuxRoom, MasterThatIsADirectoryOrUnreadableIsPassedOver) {
    files.AddDirectory(form.MasterConfigName);
    EXPECT_EQ(uae.GetMasterConfig(), form.MasterConfigName);
    EXPECT_EQ(Written(), "\r\n");
    files.Remove(form.MasterConfigName);
    files.AddFile(form.MasterConfigName, "a=1\r\n");
    files.SetUnreadable(form.MasterConfigName);
    EXPECT_EQ(Written(), "\r\n");
}

TEST_F(LinuxRoom, ConfigurationThatCannotBeWrittenLeavesTheOldOne) {
    files.AddFile(form.StartScriptName, "old");
    form.DiskSlots[0] = "/games/a.adf";
    files.FailChanges(std::errc::no_space_on_device);
    EXPECT_EQ(Written(), "old");
    EXPECT_THAT(started, ElementsAre("/games/a.adf"));
}

TEST_F(LinuxRoom, EachLaunchReplacesTheConfiguration) {
    form.DiskSlots[0] = "/games/a.adf";
    EXPECT_EQ(Written(), "\r\nfloppy0=/games/a.adf\r\n");
    form.DiskSlots[0].clear();
    EXPECT_EQ(Written(), "\r\n");
}

TEST_F(LinuxRoom, OnlyATickedFullscreenCounts) {
    form.FullscreenCheck.SetValue(2);
    EXPECT_EQ(Written(), "\r\n");
    form.FullscreenCheck.SetValue(1);
    EXPECT_EQ(Written(), "\r\ngfx_fullscreen_amiga=True\r\ngfx_fullscreen=True\r\n");
}

TEST_F(LinuxRoom, GapsStayEmptyAndTheSixthSlotIsNeverWritten) {
    form.DiskSlots = {"", "/b.adf", "", "/d.adf", "", "/f.adf"};
    EXPECT_EQ(Written(), "\r\nfloppy1=/b.adf\r\nfloppy3=/d.adf\r\n");
    EXPECT_THAT(started, ElementsAre("/b.adf", "/d.adf"));
    EXPECT_EQ(form.DiskSlots[1], "/b.adf");
}

TEST_F(LinuxRoom, OnlyTheEmptyTextMeansThatThereIsNoRom) {
    for (const bool windowsPaths : {false, true}) {
        form.TxtKickstartRomFile.SetText("");
        EXPECT_EQ(Written(windowsPaths), "\r\n");
        form.TxtKickstartRomFile.SetText("   ");
        EXPECT_EQ(Written(windowsPaths), "\r\nkickstart_rom_file=\r\n");
    }
}

TEST_F(LinuxRoom, NativeEmulatorTakesPlainPaths) {
    form.TxtKickstartRomFile.SetText("/home/jörg/Amiga Roms/kick 1.3.rom");
    form.DiskSlots[0] = "/home/jörg/Käfer König.adf";
    EXPECT_EQ(Written(),
              "\r\nkickstart_rom_file=/home/jörg/Amiga Roms/kick 1.3.rom\r\n"
              "floppy0=\"/home/jörg/Käfer König.adf\"\r\n");
}

TEST_F(LinuxRoom, WindowsEmulatorTakesPathsOfItsOwnWorld) {
    form.TxtKickstartRomFile.SetText(" /home/jörg/Amiga Roms/kick 1.3.rom ");
    form.DiskSlots[0] = "/home/jörg/Käfer König.adf";
    form.DiskSlots[1] = "/x/a.adf";
    EXPECT_EQ(Written(true),
              "\r\nkickstart_rom_file=Z:\\home\\jörg\\Amiga Roms\\kick 1.3.rom\r\n"
              "floppy0=\"Z:\\home\\jörg\\Käfer König.adf\"\r\nfloppy1=Z:\\x\\a.adf\r\n");
}

}  // namespace
}  // namespace kivu::launch
