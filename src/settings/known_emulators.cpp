#include "settings/known_emulators.h"

#include <algorithm>

#include "text/paths.h"
#include "text/text.h"

namespace kivu::settings {

namespace {

using enum Field;

constexpr Assignment path{UAELaunchParameterAddPath, "1"};
constexpr Assignment quotes{UseAnfz, "1"};
constexpr Assignment mount{AutoMoundDeamonTools, "1"};

constexpr Assignment Masks(std::string_view masks) {
    return {DirBefehleTxt, masks};
}

constexpr Assignment Parameter(std::string_view parameter) {
    return {UAELaunchParaneter, parameter};
}

constexpr Assignment dreamcastMasks =
    Masks("*.cdi, *.iso, *.bin, *.mds, *.elf, *.dol, *.gcm, *.wad*, *.img, *.nrg");

bool IsMetBy(const KnownEmulator& emulator, std::string_view lower, std::string_view windowsForm) {
    const auto isIn = [&](std::string_view match) {
        const bool separated = match.find('\\') != std::string_view::npos;
        return (separated ? windowsForm : lower).find(match) != std::string_view::npos;
    };
    return std::any_of(emulator.matches.begin(), emulator.matches.end(), isIn) ||
           (!emulator.fileName.empty() && text::FileNameView(lower) == emulator.fileName);
}

}  // namespace

bool IsCheckBox(Field field) {
    switch (field) {
        case UAEMasterConfigLaunchParameter:
        case UAELaunchParaneter:
        case DirBefehleTxt:
        case TxtMasterConfig:
        case SecondsTimerTxt:
            return false;
        default:
            return true;
    }
}

// Quotes stand there twice, and ParameterWithoutPath not at all: a value that an earlier row has
// left in it stays.
const Assignments& EmulatorDefaults() {
    static const Assignments defaults{
        {UseMasterConfig, "0"},
        {AutoMoundDeamonTools, "0"},
        {FullscreenCheck, "0"},
        {UAEMasterConfigLaunchParameter, ""},
        {UAELaunchParaneter, ""},
        {UseAnfz, "0"},
        {UAELaunchParameterAddPath, "0"},
        {DirBefehleTxt, "*.*"},
        {IntelligenteRomauswahl, "0"},
        {TxtMasterConfig, ""},
        {UseAnfz, "0"},
    };
    return defaults;
}

// Odd blanks, missing stars and misspellings are those that profiles have been filled with all the
// time. Quotes come behind the path, whose handler clears them.
const std::vector<KnownEmulator>& KnownEmulators() {
    static const std::vector<KnownEmulator> rows{
        {{"akiko.exe"}, "WinUAE (Amiga CDTV - CD32) ", {Masks("*.cue"), mount, Masks("*.cue")}},
        {{"winuae.exe"},
         "WinUAE (Amiga 500) ",
         {{UseMasterConfig, "1"},
          {SecondsTimerTxt, "5"},
          {UAEMasterConfigLaunchParameter, "-f"},
          Masks("*.adf")},
         {},
         {},
         "winuae64.exe"},
        {{"snes9x.exe", "bsnes.exe", "zsnesw.exe", "snes9k.exe"},
         "SNES (Super Nintendo Entertainment System) ",
         {path, Masks("*.smc, *.zip")}},
        {{"dolphin.exe", "dolphinil.exe", "dolwin.exe"},
         "Gamecube / WII (Nintendo) ",
         {path, Parameter("/e "),
          Masks("*.elf, *.dol, *.gcm, *.iso, *.wad*, *.bin, *.img, *.nrg, *.mds"), quotes}},
        {{"chankast"},
         "Chankast - Dreamcast Emulator ",
         {mount, path, Parameter("/e "), dreamcastMasks, quotes}},
        {{"stella.exe", "good2600.exe"},
         "Atari 2600 Emulator ",
         {path, Masks("*.bin, *.zip"), quotes}},
        {{"prosystem.exe", "good7800.exe"},
         "Atari 7800 Emulator ",
         {path, Masks("*.a78, *.zip"), quotes}},
        {{"kat5200.exe", "good5200.exe"},
         "Atari 5200 Emulator ",
         {path, Masks("*.a52, *.zip"), quotes}},
        {{"good2600.exe"}, "Atari 2600 -  Emulator ", {path, Masks("*.zip, *.a26, *.bin"), quotes}},
        {{"demul.exe"}, "DeMul - Dreamcast Emulator ", {dreamcastMasks, quotes, mount}},
        {{"Steem.exe"}, "AtariST Emulator ", {Masks("*.stx, *.bin, *.zip"), quotes}},
        {{"blueMSX.exe"}, "MSX Emulator ", {Masks("*.dsk, *.rom"), quotes}},
        {{"pcsx2.exe"},
         "Playstation 2 Emulator ",
         {path, Parameter("--usecd --nogui --skipbios"),
          Masks("*.bin, *.img, *.iso, *.nrg,  *.ccd, *.ecm"), quotes, mount}},
        {{"nulldc"},
         "NullDC - Dreamcast Emulator ",
         {path, Parameter(" -config ImageReader:DefaultImage="), dreamcastMasks, quotes}},
        {{"pce.exe", "goodpce.exe"}, "PC Engine ", {path, Masks("*.pce")}},
        {{"mekaw.exe", "dega.exe"}, "Sega Master System ", {path, Masks("*.sms, *.sg")}},
        {{"yabause.exe", "ssf.exe"},
         "Sega Saturn ",
         {Masks("*.iso, *.bin, *.mds, *.nrg")},
         {mount}},
        {{"nebula.exe"}, "nebula.exe (Neo-Geo) ", {Masks("*.zip")}},
        {{"t2k.exe"},
         "Atari Jaguar ",
         {path, Parameter(""), Masks("*.jag, *.rom, *.bin,*.zip"), {ParameterWithoutPath, "1"}}},
        {{"\\pt.exe", "\\t2k.exe"}, "Atari Jaguar ", {Masks("*.rom,*.jag,*.zip,*.bin")}},
        {{"handy.exe"}, "Handy - Lynx", {Masks("*.lnx, *.zip")}},
        {{"epsxe.exe"},
         "ePSXe (Playstation 1) ",
         {Parameter(" -nogui -loadbin "), Masks("*.bin, *.img, *.iso, *.nrg, *.mds, *.ccd")}},
        {{"project64.exe"}, "Project64 (Nintendo 64)", {Masks("*.zip, *.7z, *.*64")}},
        {{"mame.exe", "mame32.exe"},
         "Mame (Multi-Acarde-Machine-Emulator)",
         {path, Parameter("-cheat -skip_gameinfo"), Masks("*.zip")}},
        {{"x64.exe", "x128.exe"},
         "X64 / X128 ",
         {path,
          Parameter(" -fullscreen -autostart "),
          Masks("*.zip, *.*64"),
          {SecondsTimerTxt, "1"}},
         {},
         "C-64 / 128  "},
        {{"fusion.exe", "gens.exe"},
         "Fusion Sega Emulator ",
         {path, Masks("*.bin,*.zip,*.smd,*.sms,*.que,*.iso,*32x,*.mds,*.nrg")}},
    };
    return rows;
}

const KnownEmulator* FindKnownEmulator(std::string_view path) {
    const std::string lower = text::ToLower(path);
    std::string windowsForm = lower;
    if (path.starts_with('/')) std::replace(windowsForm.begin(), windowsForm.end(), '/', '\\');
    for (const KnownEmulator& emulator : KnownEmulators()) {
        if (IsMetBy(emulator, lower, windowsForm)) return &emulator;
    }
    return nullptr;
}

bool CanBeMet(const KnownEmulator& emulator) {
    return std::any_of(
        emulator.matches.begin(), emulator.matches.end(),
        [&](std::string_view match) { return FindKnownEmulator(match) == &emulator; });
}

Assignments AssignmentsOf(const KnownEmulator& emulator) {
    Assignments all = emulator.beforeDefaults;
    all.insert(all.end(), EmulatorDefaults().begin(), EmulatorDefaults().end());
    all.insert(all.end(), emulator.row.begin(), emulator.row.end());
    return all;
}

}  // namespace kivu::settings
