#include "settings/known_emulators.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <map>

#include "settings_board.h"

namespace kivu::settings {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

const std::map<Field, std::string>& Names() {
    static const std::map<Field, std::string> names{
        {Field::UseMasterConfig, "UseMasterConfig"},
        {Field::AutoMoundDeamonTools, "AutoMoundDeamonTools"},
        {Field::FullscreenCheck, "FullscreenCheck"},
        {Field::UAEMasterConfigLaunchParameter, "UAEMasterConfigLaunchParameter"},
        {Field::UAELaunchParaneter, "UAELaunchParaneter"},
        {Field::UseAnfz, "UseAnfz"},
        {Field::UAELaunchParameterAddPath, "UAELaunchParameterAddPath"},
        {Field::DirBefehleTxt, "DirBefehleTxt"},
        {Field::IntelligenteRomauswahl, "IntelligenteRomauswahl"},
        {Field::TxtMasterConfig, "TxtMasterConfig"},
        {Field::SecondsTimerTxt, "SecondsTimerTxt"},
        {Field::ParameterWithoutPath, "ParameterWithoutPath"},
    };
    return names;
}

using Lines = std::vector<std::string>;

Lines Written(const Assignments& assignments) {
    Lines lines;
    for (const Assignment& one : assignments)
        lines.push_back(Names().at(one.field) + "=" + std::string(one.value));
    return lines;
}

// The table, written down a second time.
struct Told {
    std::vector<std::string_view> matches;
    std::string_view display;
    Lines row;
};

const std::vector<Told>& ToldRows() {
    static const std::vector<Told> rows{
        {{"akiko.exe"},
         "WinUAE (Amiga CDTV - CD32) ",
         {"DirBefehleTxt=*.cue", "AutoMoundDeamonTools=1", "DirBefehleTxt=*.cue"}},
        {{"winuae.exe"},
         "WinUAE (Amiga 500) ",
         {"UseMasterConfig=1", "SecondsTimerTxt=5", "UAEMasterConfigLaunchParameter=-f",
          "DirBefehleTxt=*.adf"}},
        {{"snes9x.exe", "bsnes.exe", "zsnesw.exe", "snes9k.exe"},
         "SNES (Super Nintendo Entertainment System) ",
         {"UAELaunchParameterAddPath=1", "DirBefehleTxt=*.smc, *.zip"}},
        {{"dolphin.exe", "dolphinil.exe", "dolwin.exe"},
         "Gamecube / WII (Nintendo) ",
         {"UAELaunchParameterAddPath=1", "UAELaunchParaneter=/e ",
          "DirBefehleTxt=*.elf, *.dol, *.gcm, *.iso, *.wad*, *.bin, *.img, *.nrg, *.mds",
          "UseAnfz=1"}},
        {{"chankast"},
         "Chankast - Dreamcast Emulator ",
         {"AutoMoundDeamonTools=1", "UAELaunchParameterAddPath=1", "UAELaunchParaneter=/e ",
          "DirBefehleTxt=*.cdi, *.iso, *.bin, *.mds, *.elf, *.dol, *.gcm, *.wad*, *.img, *.nrg",
          "UseAnfz=1"}},
        {{"stella.exe", "good2600.exe"},
         "Atari 2600 Emulator ",
         {"UAELaunchParameterAddPath=1", "DirBefehleTxt=*.bin, *.zip", "UseAnfz=1"}},
        {{"prosystem.exe", "good7800.exe"},
         "Atari 7800 Emulator ",
         {"UAELaunchParameterAddPath=1", "DirBefehleTxt=*.a78, *.zip", "UseAnfz=1"}},
        {{"kat5200.exe", "good5200.exe"},
         "Atari 5200 Emulator ",
         {"UAELaunchParameterAddPath=1", "DirBefehleTxt=*.a52, *.zip", "UseAnfz=1"}},
        {{"good2600.exe"},
         "Atari 2600 -  Emulator ",
         {"UAELaunchParameterAddPath=1", "DirBefehleTxt=*.zip, *.a26, *.bin", "UseAnfz=1"}},
        {{"demul.exe"},
         "DeMul - Dreamcast Emulator ",
         {"DirBefehleTxt=*.cdi, *.iso, *.bin, *.mds, *.elf, *.dol, *.gcm, *.wad*, *.img, *.nrg",
          "UseAnfz=1", "AutoMoundDeamonTools=1"}},
        {{"Steem.exe"}, "AtariST Emulator ", {"DirBefehleTxt=*.stx, *.bin, *.zip", "UseAnfz=1"}},
        {{"blueMSX.exe"}, "MSX Emulator ", {"DirBefehleTxt=*.dsk, *.rom", "UseAnfz=1"}},
        {{"pcsx2.exe"},
         "Playstation 2 Emulator ",
         {"UAELaunchParameterAddPath=1", "UAELaunchParaneter=--usecd --nogui --skipbios",
          "DirBefehleTxt=*.bin, *.img, *.iso, *.nrg,  *.ccd, *.ecm", "UseAnfz=1",
          "AutoMoundDeamonTools=1"}},
        {{"nulldc"},
         "NullDC - Dreamcast Emulator ",
         {"UAELaunchParameterAddPath=1", "UAELaunchParaneter= -config ImageReader:DefaultImage=",
          "DirBefehleTxt=*.cdi, *.iso, *.bin, *.mds, *.elf, *.dol, *.gcm, *.wad*, *.img, *.nrg",
          "UseAnfz=1"}},
        {{"pce.exe", "goodpce.exe"},
         "PC Engine ",
         {"UAELaunchParameterAddPath=1", "DirBefehleTxt=*.pce"}},
        {{"mekaw.exe", "dega.exe"},
         "Sega Master System ",
         {"UAELaunchParameterAddPath=1", "DirBefehleTxt=*.sms, *.sg"}},
        {{"yabause.exe", "ssf.exe"}, "Sega Saturn ", {"DirBefehleTxt=*.iso, *.bin, *.mds, *.nrg"}},
        {{"nebula.exe"}, "nebula.exe (Neo-Geo) ", {"DirBefehleTxt=*.zip"}},
        {{"t2k.exe"},
         "Atari Jaguar ",
         {"UAELaunchParameterAddPath=1", "UAELaunchParaneter=",
          "DirBefehleTxt=*.jag, *.rom, *.bin,*.zip", "ParameterWithoutPath=1"}},
        {{"\\pt.exe", "\\t2k.exe"}, "Atari Jaguar ", {"DirBefehleTxt=*.rom,*.jag,*.zip,*.bin"}},
        {{"handy.exe"}, "Handy - Lynx", {"DirBefehleTxt=*.lnx, *.zip"}},
        {{"epsxe.exe"},
         "ePSXe (Playstation 1) ",
         {"UAELaunchParaneter= -nogui -loadbin ",
          "DirBefehleTxt=*.bin, *.img, *.iso, *.nrg, *.mds, *.ccd"}},
        {{"project64.exe"}, "Project64 (Nintendo 64)", {"DirBefehleTxt=*.zip, *.7z, *.*64"}},
        {{"mame.exe", "mame32.exe"},
         "Mame (Multi-Acarde-Machine-Emulator)",
         {"UAELaunchParameterAddPath=1", "UAELaunchParaneter=-cheat -skip_gameinfo",
          "DirBefehleTxt=*.zip"}},
        {{"x64.exe", "x128.exe"},
         "X64 / X128 ",
         {"UAELaunchParameterAddPath=1", "UAELaunchParaneter= -fullscreen -autostart ",
          "DirBefehleTxt=*.zip, *.*64", "SecondsTimerTxt=1"}},
        {{"fusion.exe", "gens.exe"},
         "Fusion Sega Emulator ",
         {"UAELaunchParameterAddPath=1",
          "DirBefehleTxt=*.bin,*.zip,*.smd,*.sms,*.que,*.iso,*32x,*.mds,*.nrg"}},
    };
    return rows;
}

// The number of the row, from 1 on; 0 for none.
int RowOf(std::string_view path) {
    const KnownEmulator* found = FindKnownEmulator(path);
    return found == nullptr ? 0 : static_cast<int>(found - KnownEmulators().data()) + 1;
}

TEST(KnownEmulators, AreTheToldOnesInTheToldOrder) {
    ASSERT_EQ(KnownEmulators().size(), 26U);
    ASSERT_EQ(ToldRows().size(), 26U);
    for (std::size_t i = 0; i < ToldRows().size(); ++i) {
        const KnownEmulator& emulator = KnownEmulators()[i];
        EXPECT_EQ(emulator.matches, ToldRows()[i].matches) << i + 1;
        EXPECT_EQ(emulator.display, ToldRows()[i].display);
        EXPECT_EQ(Written(emulator.row), ToldRows()[i].row) << i + 1;
    }
}

TEST(KnownEmulators, HaveFortyOneMatchesAndTwentyThreeRowsThatCanBeMet) {
    std::size_t matches = 0;
    std::vector<int> neverMet;
    for (std::size_t i = 0; i < KnownEmulators().size(); ++i) {
        matches += KnownEmulators()[i].matches.size();
        if (!CanBeMet(KnownEmulators()[i])) neverMet.push_back(static_cast<int>(i) + 1);
    }
    EXPECT_EQ(matches, 41U);
    EXPECT_THAT(neverMet, ElementsAre(9, 11, 12));
}

TEST(KnownEmulators, DefaultsComeInTheirOrder) {
    EXPECT_THAT(Written(EmulatorDefaults()),
                ElementsAre("UseMasterConfig=0", "AutoMoundDeamonTools=0", "FullscreenCheck=0",
                            "UAEMasterConfigLaunchParameter=", "UAELaunchParaneter=", "UseAnfz=0",
                            "UAELaunchParameterAddPath=0", "DirBefehleTxt=*.*",
                            "IntelligenteRomauswahl=0", "TxtMasterConfig=", "UseAnfz=0"));
}

TEST(KnownEmulators, ARowComesBehindTheDefaults) {
    for (const KnownEmulator& emulator : KnownEmulators()) {
        Lines expected = Written(emulator.beforeDefaults);
        for (const std::string& line : Written(EmulatorDefaults()))
            expected.push_back(line);
        for (const std::string& line : Written(emulator.row))
            expected.push_back(line);
        EXPECT_THAT(Written(AssignmentsOf(emulator)), ElementsAreArray(expected));
    }
}

TEST(KnownEmulators, TheSaturnsMountIsLostToTheDefaults) {
    const KnownEmulator* saturn = FindKnownEmulator("D:\\yabause.exe");
    ASSERT_NE(saturn, nullptr);
    EXPECT_THAT(Written(saturn->beforeDefaults), ElementsAre("AutoMoundDeamonTools=1"));
    SettingsBoard board;
    board.Make(AssignmentsOf(*saturn));
    EXPECT_EQ(board.values.AutoMoundDeamonTools, 0);
    EXPECT_EQ(board.values.DirBefehleTxt, "*.iso, *.bin, *.mds, *.nrg");
}

TEST(KnownEmulators, AreMetInAnyCaseAnywhereInThePath) {
    EXPECT_EQ(RowOf("C:\\Emu\\WINUAE.EXE"), 2);
    EXPECT_EQ(RowOf("D:\\mame.exe.old\\foo.exe"), 24);
    EXPECT_EQ(RowOf("D:\\Chankast_Alpha25\\run.bat"), 5);
    EXPECT_EQ(RowOf("D:\\nullDC_104\\x.exe"), 14);
    EXPECT_EQ(RowOf("snes9x-x64.exe"), 25);
    EXPECT_EQ(RowOf("pcsx2x64.exe"), 25);
    EXPECT_EQ(RowOf(""), 0);
    EXPECT_EQ(RowOf("C:\\Emu\\x64sc.exe"), 0);
}

TEST(KnownEmulators, ALaterRowIsNeverLookedAt) {
    EXPECT_EQ(RowOf("D:\\good2600.exe"), 6);
    EXPECT_EQ(RowOf("D:\\Jaguar\\t2k.exe"), 19);
    EXPECT_EQ(RowOf("D:\\winuae.exe\\mame.exe"), 2);
}

TEST(KnownEmulators, CapitalsInAMatchAreNeverMet) {
    for (const char* path : {"D:\\x\\Steem.exe", "D:\\x\\steem.exe", "D:\\blueMSX.exe"})
        EXPECT_EQ(RowOf(path), 0) << path;
}

TEST(KnownEmulators, ASeparatorInAMatchBelongsToIt) {
    EXPECT_EQ(RowOf("D:\\Jaguar\\pt.exe"), 20);
    EXPECT_EQ(RowOf("D:\\Jaguar\\opt.exe"), 0);
    EXPECT_EQ(RowOf("pt.exe"), 0);
    EXPECT_EQ(RowOf("/games/jaguar/PT.exe"), 20);
    EXPECT_EQ(RowOf("/games/jaguar/opt.exe"), 0);
}

TEST(KnownEmulators, WinUaesWiderSisterIsMetByItsFileNameAlone) {
    EXPECT_EQ(RowOf("C:\\Emu\\WinUAE64.exe"), 2);
    EXPECT_EQ(RowOf("/home/u/winuae64.exe"), 2);
    EXPECT_EQ(RowOf("C:\\winuae64.exe.old\\foo.exe"), 0);
    EXPECT_EQ(RowOf("C:\\notwinuae64.exe"), 0);
}

TEST(KnownEmulators, EveryCheckBoxIsGivenZeroOrOne) {
    const auto isRight = [](const Assignment& one) {
        return !IsCheckBox(one.field) || one.value == "0" || one.value == "1";
    };
    for (const KnownEmulator& emulator : KnownEmulators()) {
        const Assignments all = AssignmentsOf(emulator);
        EXPECT_TRUE(std::all_of(all.begin(), all.end(), isRight)) << emulator.display;
    }
    EXPECT_FALSE(IsCheckBox(Field::DirBefehleTxt));
    EXPECT_FALSE(IsCheckBox(Field::SecondsTimerTxt));
    EXPECT_TRUE(IsCheckBox(Field::UseAnfz));
}

}  // namespace
}  // namespace kivu::settings
