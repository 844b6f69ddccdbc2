// Every combination of what a start configuration is made of, written to a disk and read back by a
// reader that knows nothing of the launcher.

#include <gtest/gtest.h>

#include "core/form1.h"
#include "launch/uae_files.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"
#include "uae_reader.h"

namespace kivu::launch {
namespace {

// A path as the window holds it, and the bytes that the emulator is to read for it.
struct Path {
    const char* text;
    const char* bytes;
};

struct World {
    const char* name;
    char separator;
    bool windowsPaths;  // the emulator is a Windows program on a POSIX host
    bool shortNames;
    Path roms[3];
    Path disks[5];
};

constexpr World worlds[] = {
    {"Windows",
     '\\',
     false,
     false,
     {{"", ""},
      {"C:\\Amiga Roms\\kick 1.3.rom", "C:\\Amiga Roms\\kick 1.3.rom"},
      {"  C:\\K\u00e4fer\\\u00fc.rom ",
       "C:\\K\xe4"
       "fer\\\xfc.rom"}},
     {{"D:\\a.adf", "D:\\a.adf"},
      {"D:\\Amiga Games\\b (Disk 2).adf", "D:\\Amiga Games\\b (Disk 2).adf"},
      {"D:\\\u00c4rger und Spa\u00df\\c.adf", "D:\\\xc4rger und Spa\xdf\\c.adf"},
      {"D:\\\u00d6l.adf", "D:\\\xd6l.adf"},
      {"\\\\server\\my share\\e.adf", "\\\\server\\my share\\e.adf"}}},
    {"Windows with short names",
     '\\',
     false,
     true,
     {{"", ""},
      {"C:\\Amiga Roms\\kick 1.3.rom", "C:\\Amiga Roms\\kick 1.3.rom"},
      {"C:\\K\u00e4fer\\\u00fc.rom",
       "C:\\K\xe4"
       "fer\\\xfc.rom"}},
     {{"D:\\Amiga Games\\a.adf", "D:\\SHORT~0\\X.ADF"},
      {"D:\\Amiga Games\\b (Disk 2).adf", "D:\\SHORT~1\\X.ADF"},
      {"D:\\\u00c4rger und Spa\u00df\\c.adf", "D:\\SHORT~2\\X.ADF"},
      {"D:\\\u00d6l.adf", "D:\\SHORT~3\\X.ADF"},
      {"\\\\server\\my share\\e.adf", "D:\\SHORT~4\\X.ADF"}}},
    {"POSIX",
     '/',
     false,
     false,
     {{"", ""},
      {"/roms/Amiga Roms/kick 1.3.rom", "/roms/Amiga Roms/kick 1.3.rom"},
      {" /home/j\u00f6rg/K\u00e4fer/\u00fc.rom  ", "/home/j\u00f6rg/K\u00e4fer/\u00fc.rom"}},
     {{"/a.adf", "/a.adf"},
      {"/Amiga Games/b (Disk 2).adf", "/Amiga Games/b (Disk 2).adf"},
      {"/home/j\u00f6rg/\u00c4rger und Spa\u00df/c.adf",
       "/home/j\u00f6rg/\u00c4rger und Spa\u00df/c.adf"},
      {"/\u00d6l.adf", "/\u00d6l.adf"},
      {"/it's $HOME; x/e=f.adf", "/it's $HOME; x/e=f.adf"}}},
    {"Windows program on POSIX",
     '/',
     true,
     false,
     {{"", ""},
      {"/roms/Amiga Roms/kick 1.3.rom", "Z:\\roms\\Amiga Roms\\kick 1.3.rom"},
      {" /home/j\u00f6rg/K\u00e4fer/\u00fc.rom  ", "Z:\\home\\j\u00f6rg\\K\u00e4fer\\\u00fc.rom"}},
     {{"/a.adf", "Z:\\a.adf"},
      {"/Amiga Games/b (Disk 2).adf", "Z:\\Amiga Games\\b (Disk 2).adf"},
      {"/home/j\u00f6rg/\u00c4rger und Spa\u00df/c.adf",
       "Z:\\home\\j\u00f6rg\\\u00c4rger und Spa\u00df\\c.adf"},
      {"/\u00d6l.adf", "Z:\\\u00d6l.adf"},
      {"/it's $HOME; x/e=f.adf", "Z:\\it's $HOME; x\\e=f.adf"}}},
};

enum class MasterFile { noPath, missing, directory, unreadable, empty, plain, rom, comment, full };

struct Master {
    MasterFile file;
    const char* bytes;
    const char* ownRom;  // what it names itself as its ROM, null for none
    bool namesRom;       // in whatever line
};

constexpr Master masters[] = {
    {MasterFile::noPath, "", nullptr, false},
    {MasterFile::missing, "", nullptr, false},
    {MasterFile::directory, "", nullptr, false},
    {MasterFile::unreadable, "kickstart_rom_file=never read\r\n", nullptr, false},
    {MasterFile::empty, "", nullptr, false},
    {MasterFile::plain,
     "gfx_width=720\r\n; Gr\xfc\xdf"
     "e\r\ngfx_fullscreen=False\r\n",
     nullptr, false},
    {MasterFile::rom, "a=1\r\nkickstart_rom_file=C:\\my own.rom\r\nb=2\r\n", "C:\\my own.rom",
     true},
    {MasterFile::comment, "; kickstart_rom_file=\r\nb=2", nullptr, true},
    {MasterFile::full, "floppy0=C:\\of the master.adf\r\nfloppy4=\r\nkickstart_rom=1\n", nullptr,
     false},
};

struct Case {
    const World& world;
    const Master& master;
    int fullscreen;
    const Path& rom;
    unsigned drives;  // bit by bit
};

class Room {
 public:
    explicit Room(const Case& made) : made(made), files(made.world.separator) {
        const std::string root = made.world.separator == '/' ? "/k/" : "C:\\K\u00e4se und Brot\\";
        files.AddDirectory(root);
        form.StartScriptName = root + "Kivu_StartScript.uaecfg";
        PutMaster(root + "Kivu_Master.uaecfg");
        form.FullscreenCheck.SetValue(made.fullscreen);
        form.TxtKickstartRomFile.SetText(made.rom.text);
        for (std::size_t drive = 0; drive < 5; ++drive) {
            if ((made.drives >> drive & 1) == 0) continue;
            const Path& disk = made.world.disks[drive];
            form.DiskSlots[drive] = disk.text;
            if (made.world.shortNames) files.SetShortName(disk.text, disk.bytes);
        }
        form.DiskSlots[5] = "never written";
        uae.hooks.Add_CURRENT_PROGRAM_STARTED = [this](std::string&) { ++named; };
    }

    std::string Written() {
        uae.WriteStartConfiguration(made.world.windowsPaths);
        return files.BytesOf(form.StartScriptName);
    }
    int named = 0;

 private:
    void PutMaster(const std::string& path) {
        if (made.master.file == MasterFile::noPath) return;
        form.MasterConfigName = path;
        if (made.master.file == MasterFile::missing) return;
        if (made.master.file == MasterFile::directory) {
            files.AddDirectory(path);
            return;
        }
        files.AddFile(path, made.master.bytes);
        if (made.master.file == MasterFile::unreadable) files.SetUnreadable(path);
    }

    const Case& made;
    kivu::testing::MemoryFileSystem files;
    core::Form1 form{forms::Toolkit{}};
    kivu::testing::ScriptedLog log;
    UaeFiles uae{form, files, log};
};

std::string MasterBytes(const Master& master) {
    return master.file == MasterFile::unreadable ? "" : master.bytes;
}

// The master's lines stand at the top, in their order and byte by byte.
std::size_t CheckMasterLines(const Case& made, const UaeReader& read) {
    std::istringstream stream(MasterBytes(made.master));
    std::size_t at = 0;
    const bool empty = read.lines.size() == 1;
    EXPECT_EQ(read.lines.front(), "");
    for (std::string line; std::getline(stream, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        ++at;
        EXPECT_TRUE(at < read.lines.size() && read.lines[at] == line) << line;
    }
    return empty ? 0 : at + 1;
}

void CheckDrives(const Case& made, const UaeReader& read) {
    for (std::size_t drive = 0; drive < 5; ++drive) {
        const std::string key = "floppy" + std::to_string(drive);
        const bool filled = (made.drives >> drive & 1) != 0;
        const int ofMaster = UaeReader::CountIn(MasterBytes(made.master), key);
        EXPECT_EQ(read.Count(key), ofMaster + (filled ? 1 : 0));
        if (filled) {
            EXPECT_EQ(read.Value(key), made.world.disks[drive].bytes);
        }
    }
    EXPECT_EQ(read.Count("floppy5"), 0);
}

void Check(const Case& made) {
    Room room(made);
    const UaeReader read(room.Written());
    ASSERT_FALSE(read.lines.empty());
    std::size_t own = 0;
    own += made.fullscreen == 1 ? 2U : 0U;
    const bool romAdded = *made.rom.text != '\0' && !made.master.namesRom;
    own += romAdded ? 1U : 0U;
    int drives = 0;
    for (unsigned bits = made.drives; bits != 0; bits >>= 1)
        drives += static_cast<int>(bits & 1);
    EXPECT_EQ(room.named, drives);
    const std::size_t ofMaster = CheckMasterLines(made, read);
    const std::size_t lines = std::max<std::size_t>(ofMaster, 1) + own + drives;
    EXPECT_EQ(read.lines.size(), lines);
    if (made.fullscreen == 1) {
        EXPECT_EQ(read.Value("gfx_fullscreen"), "True");
        EXPECT_EQ(read.Value("gfx_fullscreen_amiga"), "True");
    }
    EXPECT_EQ(read.Value("kickstart_rom_file").value_or("-"), romAdded ? made.rom.bytes
                                                              : made.master.ownRom
                                                                  ? made.master.ownRom
                                                                  : "-");
    CheckDrives(made, read);
}

TEST(StartConfigurationOnDisk, ReadsBackRightForEveryCombination) {
    for (const World& world : worlds) {
        for (const Master& master : masters) {
            for (const int fullscreen : {0, 1, 2}) {
                for (const Path& rom : world.roms) {
                    for (unsigned drives = 0; drives < 32; ++drives) {
                        SCOPED_TRACE(std::string(world.name) + ", master " +
                                     std::to_string(static_cast<int>(master.file)) +
                                     ", fullscreen " + std::to_string(fullscreen) + ", ROM " +
                                     rom.text + ", drives " + std::to_string(drives));
                        Check({world, master, fullscreen, rom, drives});
                        if (::testing::Test::HasFailure()) return;
                    }
                }
            }
        }
    }
}

}  // namespace
}  // namespace kivu::launch
