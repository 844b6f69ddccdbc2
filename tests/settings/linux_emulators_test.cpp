#include "settings/linux_emulators.h"

#include <gmock/gmock.h>
#include <set>

#include "settings_board.h"

namespace kivu::settings {
namespace {

using ::testing::ElementsAre;

std::string NameOf(std::string_view path) {
    return std::string(FindLinuxEmulator(path).name);
}

// What the profile holds once a program has been accepted.
SettingsValues Accepted(std::string_view path) {
    SettingsBoard board;
    board.values.ParameterWithoutPath = 1;
    board.values.SecondsTimerTxt = "0";
    board.Make(LinuxAssignments(FindLinuxEmulator(path).emulator->row));
    return board.values;
}

struct ToldRow {
    std::vector<std::string_view> names;
    std::string_view parameter, masks;
};

// All that pass the game's path in quotes.
const std::vector<ToldRow>& ToldRows() {
    static const std::vector<ToldRow> rows{
        {{"dosbox", "dosbox-x"}, "-exit", "*.exe, *.com, *.bat"},
        {{"fs-uae"}, "--fullscreen", "*.adf, *.ipf, *.dms, *.fs-uae"},
        {{"x64sc", "x64", "x128", "xvic"},
         "-autostart",
         "*.d64, *.g64, *.t64, *.tap, *.prg, *.crt"},
        {{"hatari"}, "--confirm-quit 0 -f --disk-a", "*.st, *.msa, *.stx, *.zip"},
        {{"stella"}, "-fullscreen 1", "*.a26, *.bin, *.zip"},
        {{"atari800"}, "-fullscreen", "*.atr, *.xex, *.car"},
        {{"mednafen"}, "-video.fs 1", "*.nes, *.pce, *.lnx, *.sms, *.cue, *.zip"},
        {{"nestopia"}, "-f", "*.nes, *.fds, *.zip"},
        {{"fceux"}, "--fullscreen 1", "*.nes, *.fds, *.zip"},
        {{"snes9x-gtk"}, "", "*.sfc, *.smc, *.zip"},
        {{"mgba-qt", "mgba"}, "-f", "*.gba, *.gb, *.gbc, *.zip"},
        {{"desmume", "melonds"}, "", "*.nds"},
        {{"mupen64plus"}, "--fullscreen", "*.n64, *.z64, *.v64"},
        {{"dolphin-emu"}, "-b -e", "*.iso, *.gcm, *.rvz, *.wbfs, *.dol"},
        {{"blastem"}, "-f", "*.md, *.gen, *.bin, *.zip"},
        {{"yabause-qt"}, "-a -f -i", "*.cue, *.iso"},
        {{"flycast"}, "", "*.gdi, *.cdi, *.chd, *.cue"},
        {{"pcsxr"}, "-nogui -cdfile", "*.cue, *.bin, *.img, *.iso"},
        {{"duckstation-qt"}, "-batch -fullscreen --", "*.cue, *.chd, *.pbp"},
        {{"pcsx2-qt"}, "-batch -fullscreen --", "*.iso, *.chd, *.cso"},
        {{"ppssppsdl", "ppssppqt"}, "--fullscreen", "*.iso, *.cso, *.pbp"},
        {{"mame"}, "-skip_gameinfo", "*.zip, *.7z"},
        {{"openmsx"}, "", "*.rom, *.dsk, *.cas"},
    };
    return rows;
}

TEST(LinuxEmulators, FillTheProfileAsTheirTableSays) {
    std::size_t names = 0;
    for (const ToldRow& row : ToldRows()) {
        for (const std::string_view name : row.names) {
            ++names;
            const std::string path = "/usr/games/" + std::string(name);
            ASSERT_EQ(NameOf(path), name);
            SettingsValues expected;
            expected.UAELaunchParameterAddPath = 1;
            expected.UseAnfz = 1;
            expected.UAELaunchParaneter = row.parameter;
            expected.DirBefehleTxt = row.masks;
            expected.SecondsTimerTxt = "0";
            EXPECT_EQ(Accepted(path), expected) << name;
        }
    }
    std::size_t all = 0;
    for (const LinuxEmulator& emulator : LinuxEmulators())
        all += emulator.names.size();
    // The two that are special.
    EXPECT_EQ(all, names + 2);
}

TEST(LinuxEmulators, AmiberryTakesWinUaesConfiguration) {
    const SettingsValues values = Accepted("/usr/bin/amiberry");
    EXPECT_EQ(values.UseMasterConfig, 1);
    EXPECT_EQ(values.UAEMasterConfigLaunchParameter, "-f");
    EXPECT_EQ(values.DirBefehleTxt, "*.adf");
    EXPECT_EQ(values.SecondsTimerTxt, "5");
    EXPECT_EQ(values.UAELaunchParameterAddPath, 0);
    EXPECT_EQ(values.ParameterWithoutPath, 0);
}

TEST(LinuxEmulators, ScummVmIsGivenTheNameAlone) {
    const SettingsValues values = Accepted("/usr/games/scummvm");
    EXPECT_EQ(values.UAELaunchParameterAddPath, 1);
    EXPECT_EQ(values.ParameterWithoutPath, 1);
    EXPECT_EQ(values.UseAnfz, 0);
    EXPECT_EQ(values.UAELaunchParaneter, "-f");
    EXPECT_EQ(values.DirBefehleTxt, "*.*");
}

TEST(LinuxEmulators, AreKnownByTheirFileAndNotByTheirDirectory) {
    EXPECT_EQ(NameOf("/usr/bin/dolphin"), "");
    EXPECT_EQ(NameOf("/opt/stella/run"), "");
    EXPECT_EQ(NameOf("/opt/mame/mame"), "mame");
    EXPECT_EQ(NameOf("mednafen"), "mednafen");
    EXPECT_EQ(NameOf("mednaffe"), "");
    EXPECT_EQ(NameOf(""), "");
    EXPECT_EQ(NameOf("/usr/games/"), "");
}

TEST(LinuxEmulators, AreKnownWithAVersionBehindTheirName) {
    EXPECT_EQ(NameOf("/opt/stella_7.0"), "stella");
    EXPECT_EQ(NameOf("/opt/flycast-v2.3"), "flycast");
    EXPECT_EQ(NameOf("/opt/mame-0.271"), "mame");
    EXPECT_EQ(NameOf("/opt/mame0271"), "");
    EXPECT_EQ(NameOf("/opt/mame-"), "");
    EXPECT_EQ(NameOf("/opt/mame-tools"), "");
    EXPECT_EQ(NameOf("/opt/dosbox-x"), "dosbox-x");
    EXPECT_EQ(NameOf("/opt/dosbox-x_2024"), "dosbox-x");
    EXPECT_EQ(NameOf("/opt/dosbox-staging"), "");
    EXPECT_EQ(NameOf("/opt/x64"), "x64");
    EXPECT_EQ(NameOf("/opt/x64dbg"), "");
}

TEST(LinuxEmulators, AreKnownAsAppImageInAnyCase) {
    EXPECT_EQ(NameOf("/home/u/Amiberry.AppImage"), "amiberry");
    EXPECT_EQ(NameOf("/home/u/PPSSPPSDL-v1.17.1.AppImage"), "ppssppsdl");
    EXPECT_EQ(NameOf("/home/u/melonDS"), "melonds");
    EXPECT_EQ(NameOf("/home/u/.AppImage"), "");
}

TEST(LinuxEmulators, AreKnownByWhatFlatpakExports) {
    const std::string exports = "/var/lib/flatpak/exports/bin/";
    EXPECT_EQ(NameOf(exports + "net.fsuae.FS-UAE"), "fs-uae");
    EXPECT_EQ(NameOf(exports + "org.scummvm.ScummVM"), "scummvm");
    EXPECT_EQ(NameOf(exports + "org.libretro.RetroArch"), "");
    std::set<std::string_view> seen;
    for (const LinuxEmulator& emulator : LinuxEmulators()) {
        for (const LinuxName& name : emulator.names) {
            if (name.flatpak.empty()) continue;
            EXPECT_EQ(NameOf(exports + std::string(name.flatpak)), name.name);
            EXPECT_TRUE(seen.insert(name.flatpak).second) << name.flatpak;
        }
    }
}

TEST(LinuxEmulators, RetroArchIsNoneOfThemUntilItsCoreIsChosen) {
    EXPECT_EQ(NameOf("/usr/bin/retroarch"), "");
    std::vector<std::string> parameters;
    for (const RetroArchCore& core : RetroArchCores()) {
        SettingsBoard board;
        board.Make(LinuxAssignments(core.row));
        EXPECT_EQ(board.values.UAELaunchParaneter, "-f -L " + std::string(core.core));
        EXPECT_EQ(board.values.UAELaunchParameterAddPath, 1);
        EXPECT_EQ(board.values.UseAnfz, 1);
        parameters.push_back(std::string(core.core) + " " + board.values.DirBefehleTxt);
    }
    EXPECT_THAT(
        parameters,
        ElementsAre("snes9x *.sfc, *.smc, *.zip", "genesis_plus_gx *.md, *.gen, *.sms, *.gg, *.zip",
                    "nestopia *.nes, *.fds, *.zip", "mgba *.gba, *.gb, *.gbc, *.zip",
                    "pcsx_rearmed *.cue, *.chd, *.pbp", "fbneo *.zip, *.7z",
                    "puae *.adf, *.ipf, *.dms, *.zip", "vice_x64 *.d64, *.t64, *.prg, *.crt"));
}

TEST(LinuxEmulators, ProgramsWithWinUaesConfigurationKeepItsFields) {
    for (const char* path :
         {"C:\\Emu\\WinUAE.exe", "D:\\winuae.exe.old\\foo.exe", "/home/u/WinUAE64.EXE",
          "C:\\Emu\\winuae64.exe", "/usr/bin/amiberry", "/opt/Amiberry-v5.7.4.AppImage", "amiberry",
          "/var/lib/flatpak/exports/bin/com.blitterstudio.amiberry"}) {
        EXPECT_TRUE(CountsAsWinUAE(path)) << path;
    }
    for (const char* path : {"", "C:\\Emu\\winuae", "C:\\winuae64.exe.old\\foo.exe",
                             "/opt/amiberry/run", "/usr/bin/fs-uae", "C:\\akiko.exe"}) {
        EXPECT_FALSE(CountsAsWinUAE(path)) << path;
    }
}

}  // namespace
}  // namespace kivu::settings
