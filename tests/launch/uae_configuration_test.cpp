#include "launch/uae_configuration.h"

#include <gmock/gmock.h>
#include <optional>

#include "uae_reader.h"

namespace kivu::launch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Master {
    const char* name;
    const char* bytes;
    const char* rom;  // what an emulator reads as its ROM from the master, null for none
    bool namesRom;    // in whatever line
};

constexpr Master masters[] = {
    {"none", "", nullptr, false},
    {"plain", "gfx_width=720\r\nuse_gui = no\r\n", nullptr, false},
    {"with a ROM", "use_gui = no\r\nkickstart_rom_file=C:\\a b.rom\r\n", "C:\\a b.rom", true},
    {"with a ROM in a comment", "; kickstart_rom_file=\r\nuse_gui = no\r\n", nullptr, true},
    {"with a ROM key in capitals", "KICKSTART_ROM_FILE=x\r\n", nullptr, false},
    {"without an end", "gfx_width=720\nuse_gui = no", nullptr, false},
};

constexpr const char* roms[] = {"", "C:\\Amiga Roms\\kick 1.3.rom",
                                "/home/jörg/Käfer roms/kick.rom"};

constexpr const char* disks[] = {"D:\\a.adf", "\"D:\\Amiga Games\\b (Disk 2).adf\"",
                                 "\"/home/jörg/Spiele für Amiga/Ärger.adf\"", "/x/d.adf",
                                 "Z:\\x\\e.adf"};

std::string Unquoted(const std::string& text) {
    return text.front() == '"' ? text.substr(1, text.size() - 2) : text;
}

void CheckCombination(const Master& master, bool fullscreen, const char* rom, unsigned filled) {
    UaeStart start;
    start.master = master.bytes;
    start.fullscreen = fullscreen;
    if (*rom != 0) start.rom = rom;
    for (std::size_t drive = 0; drive < 5; ++drive) {
        if (filled >> drive & 1) start.floppies[drive] = disks[drive];
    }
    const UaeReader read(StartConfiguration(start));
    ASSERT_FALSE(read.lines.empty());
    EXPECT_EQ(read.lines.front(), "");
    const std::optional<std::string> wide =
        fullscreen ? std::optional<std::string>("True") : std::nullopt;
    EXPECT_EQ(read.Value("gfx_fullscreen"), wide);
    EXPECT_EQ(read.Value("gfx_fullscreen_amiga"), wide);
    const bool added = *rom != 0 && !master.namesRom;
    if (added) {
        EXPECT_EQ(read.Value("kickstart_rom_file"), rom);
    } else {
        EXPECT_EQ(read.Value("kickstart_rom_file").value_or("-"), master.rom ? master.rom : "-");
    }
    for (std::size_t drive = 0; drive < 5; ++drive) {
        const std::string key = "floppy" + std::to_string(drive);
        EXPECT_EQ(read.Value(key).value_or("-"),
                  filled >> drive & 1 ? Unquoted(disks[drive]) : "-");
        EXPECT_LE(read.Count(key), 1);
    }
    EXPECT_EQ(read.Value("floppy5"), std::nullopt);
    if (std::string(master.bytes).find("use_gui") != std::string::npos) {
        EXPECT_EQ(read.Value("use_gui"), "no");
    }
}

TEST(StartConfiguration, ReadsBackRightForEveryCombination) {
    for (const Master& master : masters) {
        for (const bool fullscreen : {false, true}) {
            for (const char* rom : roms) {
                for (unsigned filled = 0; filled < 32; ++filled) {
                    SCOPED_TRACE(std::string(master.name) + ", ROM " + rom + ", drives " +
                                 std::to_string(filled));
                    CheckCombination(master, fullscreen, rom, filled);
                }
            }
        }
    }
}

TEST(StartConfiguration, SaysNothingByOneLineBreak) {
    EXPECT_EQ(StartConfiguration({}), "\r\n");
}

TEST(StartConfiguration, KeepsTheMastersLinesInTheirOrderBehindAnEmptyOne) {
    UaeStart start;
    start.master = "a=1\r\n\r\n; remark \xff\xe4 \r\nb = 2";
    EXPECT_EQ(StartConfiguration(start), "\r\na=1\r\n\r\n; remark \xff\xe4 \r\nb = 2\r\n");
}

TEST(StartConfiguration, PutsItsOwnLinesBehindThoseOfTheMaster) {
    UaeStart start;
    start.master = "gfx_fullscreen=False\r\n";
    start.fullscreen = true;
    start.rom = "k.rom";
    start.floppies[1] = "b.adf";
    start.floppies[0] = "a.adf";
    EXPECT_EQ(StartConfiguration(start),
              "\r\ngfx_fullscreen=False\r\ngfx_fullscreen_amiga=True\r\ngfx_fullscreen=True\r\n"
              "kickstart_rom_file=k.rom\r\nfloppy0=a.adf\r\nfloppy1=b.adf\r\n");
}

TEST(StartConfiguration, RomOfBlanksIsALineWithoutAPath) {
    UaeStart start;
    start.rom = "  ";
    EXPECT_EQ(StartConfiguration(start), "\r\nkickstart_rom_file=\r\n");
}

TEST(StartConfiguration, TrimsTheRomAndOnlyIt) {
    UaeStart start;
    start.rom = "  C:\\a b.rom ";
    start.floppies[4] = " e.adf";
    EXPECT_EQ(StartConfiguration(start),
              "\r\nkickstart_rom_file=C:\\a b.rom\r\nfloppy4= e.adf\r\n");
}

TEST(StartConfiguration, LeavesOutPathsThatWouldBecomeLinesOfTheirOwn) {
    UaeStart start;
    start.rom = "a.rom\r\nuse_gui=yes";
    start.floppies[0] = "a.adf\nfloppy1=b.adf";
    start.floppies[1] = std::string("a\0.adf", 6);
    start.floppies[2] = "c.adf";
    EXPECT_EQ(StartConfiguration(start), "\r\nfloppy2=c.adf\r\n");
}

TEST(StartConfiguration, DropsAnEditorsMarkInFrontOfTheMaster) {
    UaeStart start;
    start.master = "\xEF\xBB\xBFgfx_width=720\r\n";
    EXPECT_EQ(StartConfiguration(start), "\r\ngfx_width=720\r\n");
}

TEST(DefaultMasterConfiguration, HasFourteenLinesWithTheirOwnBlanks) {
    const std::string text = DefaultMasterConfiguration();
    EXPECT_EQ(text.size(), 231U);
    EXPECT_THAT(UaeReader(text).lines,
                ElementsAre("fastmem_size=2", "chipmem_size=4", "gfx_width=720", "gfx_height=568",
                            "", "floppy_speed=800", "use_gui = no", "autoconfig = no",
                            "cpu_type = 6800", "cpu_speed = Real", "sound_output = exact",
                            "sound_channels = stereo", "sound_bits = 16", "bogomem_size = 1"));
}

}  // namespace
}  // namespace kivu::launch
