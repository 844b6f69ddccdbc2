#include "settings/linux_emulators.h"

#include <algorithm>

#include "text/paths.h"
#include "text/text.h"

namespace kivu::settings {

namespace {

using enum Field;

constexpr std::string_view amiberry = "amiberry";

// The game's path, quoted, behind the parameter.
Assignments Row(std::string_view parameter, std::string_view masks) {
    return {{UAELaunchParameterAddPath, "1"},
            {UAELaunchParaneter, parameter},
            {DirBefehleTxt, masks},
            {UseAnfz, "1"}};
}

bool IsVersionBehind(std::string_view rest) {
    if (rest.size() < 2 || (rest[0] != '-' && rest[0] != '_')) return false;
    return rest[1] == 'v' || (rest[1] >= '0' && rest[1] <= '9');
}

}  // namespace

const std::vector<LinuxEmulator>& LinuxEmulators() {
    static const std::vector<LinuxEmulator> rows{
        {{{"dosbox"}, {"dosbox-x", "", "com.dosbox_x.DOSBox-X"}},
         Row("-exit", "*.exe, *.com, *.bat")},
        // Takes WinUAE's configurations, and so has its row.
        {{{amiberry, "", "com.blitterstudio.amiberry"}}, FindKnownEmulator("winuae.exe")->row},
        {{{"fs-uae", "", "net.fsuae.FS-UAE"}},
         Row("--fullscreen", "*.adf, *.ipf, *.dms, *.fs-uae")},
        {{{"x64sc"}, {"x64"}, {"x128"}, {"xvic"}},
         Row("-autostart", "*.d64, *.g64, *.t64, *.tap, *.prg, *.crt")},
        {{{"hatari", "", "org.tuxfamily.hatari"}},
         Row("--confirm-quit 0 -f --disk-a", "*.st, *.msa, *.stx, *.zip")},
        {{{"stella", "", "io.github.stella_emu.Stella"}},
         Row("-fullscreen 1", "*.a26, *.bin, *.zip")},
        {{{"atari800"}}, Row("-fullscreen", "*.atr, *.xex, *.car")},
        {{{"mednafen"}}, Row("-video.fs 1", "*.nes, *.pce, *.lnx, *.sms, *.cue, *.zip")},
        {{{"nestopia", "", "ca._0ldsk00l.Nestopia"}}, Row("-f", "*.nes, *.fds, *.zip")},
        {{{"fceux"}}, Row("--fullscreen 1", "*.nes, *.fds, *.zip")},
        {{{"snes9x-gtk", "", "com.snes9x.Snes9x"}}, Row("", "*.sfc, *.smc, *.zip")},
        {{{"mgba-qt", "", "io.mgba.mGBA"}, {"mgba"}}, Row("-f", "*.gba, *.gb, *.gbc, *.zip")},
        {{{"desmume", "", "org.desmume.DeSmuME"}, {"melonds", "melonDS", "net.kuribo64.melonDS"}},
         Row("", "*.nds")},
        {{{"mupen64plus"}}, Row("--fullscreen", "*.n64, *.z64, *.v64")},
        {{{"dolphin-emu", "", "org.DolphinEmu.dolphin-emu"}},
         Row("-b -e", "*.iso, *.gcm, *.rvz, *.wbfs, *.dol")},
        {{{"blastem", "", "com.retrodev.blastem"}}, Row("-f", "*.md, *.gen, *.bin, *.zip")},
        {{{"yabause-qt"}}, Row("-a -f -i", "*.cue, *.iso")},
        {{{"flycast", "", "org.flycast.Flycast"}}, Row("", "*.gdi, *.cdi, *.chd, *.cue")},
        {{{"pcsxr"}}, Row("-nogui -cdfile", "*.cue, *.bin, *.img, *.iso")},
        {{{"duckstation-qt", "", "org.duckstation.DuckStation"}},
         Row("-batch -fullscreen --", "*.cue, *.chd, *.pbp")},
        {{{"pcsx2-qt", "", "net.pcsx2.PCSX2"}},
         Row("-batch -fullscreen --", "*.iso, *.chd, *.cso")},
        {{{"ppssppsdl", "PPSSPPSDL", "org.ppsspp.PPSSPP"}, {"ppssppqt", "PPSSPPQt"}},
         Row("--fullscreen", "*.iso, *.cso, *.pbp")},
        // Only the name of the file counts; MAME looks for it in its own search path.
        {{{"mame", "", "org.mamedev.MAME"}}, Row("-skip_gameinfo", "*.zip, *.7z")},
        {{{"openmsx", "", "org.openmsx.openMSX"}}, Row("", "*.rom, *.dsk, *.cas")},
        // Games are files, empty ones too, that bear the name of a target.
        {{{"scummvm", "", "org.scummvm.ScummVM"}},
         {{UAELaunchParameterAddPath, "1"},
          {UAELaunchParaneter, "-f"},
          {DirBefehleTxt, "*.*"},
          {ParameterWithoutPath, "1"}}},
    };
    return rows;
}

const std::vector<RetroArchCore>& RetroArchCores() {
    static const std::vector<RetroArchCore> cores{
        {"snes9x", Row("-f -L snes9x", "*.sfc, *.smc, *.zip")},
        {"genesis_plus_gx", Row("-f -L genesis_plus_gx", "*.md, *.gen, *.sms, *.gg, *.zip")},
        {"nestopia", Row("-f -L nestopia", "*.nes, *.fds, *.zip")},
        {"mgba", Row("-f -L mgba", "*.gba, *.gb, *.gbc, *.zip")},
        {"pcsx_rearmed", Row("-f -L pcsx_rearmed", "*.cue, *.chd, *.pbp")},
        {"fbneo", Row("-f -L fbneo", "*.zip, *.7z")},
        {"puae", Row("-f -L puae", "*.adf, *.ipf, *.dms, *.zip")},
        {"vice_x64", Row("-f -L vice_x64", "*.d64, *.t64, *.prg, *.crt")},
    };
    return cores;
}

bool IsFileOf(std::string_view path, std::string_view name) {
    constexpr std::string_view appImage = ".appimage";
    const std::string file = text::ToLower(text::FileNameView(path));
    std::string_view stem = file;
    if (stem.ends_with(appImage)) stem.remove_suffix(appImage.size());
    return stem.starts_with(name) &&
           (stem.size() == name.size() || IsVersionBehind(stem.substr(name.size())));
}

LinuxMatch FindLinuxEmulator(std::string_view path) {
    for (const LinuxEmulator& emulator : LinuxEmulators()) {
        for (const LinuxName& name : emulator.names) {
            const bool exported =
                !name.flatpak.empty() && text::EqualsNoCase(text::FileNameView(path), name.flatpak);
            if (exported || IsFileOf(path, name.name)) return {&emulator, name.name};
        }
    }
    return {};
}

// A told row may have left the path off, which the defaults do not put back.
Assignments LinuxAssignments(const Assignments& row) {
    Assignments all = EmulatorDefaults();
    all.push_back({ParameterWithoutPath, "0"});
    all.insert(all.end(), row.begin(), row.end());
    return all;
}

bool CountsAsWinUAE(std::string_view path) {
    const std::string lower = text::ToLower(path);
    return lower.find("winuae.exe") != std::string::npos ||
           text::FileNameView(lower) == "winuae64.exe" || FindLinuxEmulator(path).name == amiberry;
}

}  // namespace kivu::settings
