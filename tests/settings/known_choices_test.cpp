#include "settings/known_choices.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <set>

#include "settings/linux_emulators.h"
#include "settings_board.h"

namespace kivu::settings {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> Rows(const std::vector<KnownChoice>& choices) {
    std::vector<std::string> rows;
    for (const KnownChoice& choice : choices)
        rows.push_back(choice.text);
    return rows;
}

std::vector<KnownChoice> Choices(bool posix, const std::set<std::string>& inPath = {}) {
    return KnownChoices(posix, [&](const std::string& name) { return inPath.contains(name); });
}

const KnownChoice& Find(const std::vector<KnownChoice>& choices, const std::string& text) {
    return *std::find_if(choices.begin(), choices.end(),
                         [&](const KnownChoice& choice) { return choice.text == text; });
}

TEST(KnownChoices, AreTheRowsThatCanBeMetOnWindows) {
    EXPECT_THAT(
        Rows(Choices(false)),
        ElementsAre("WinUAE (Amiga CDTV - CD32)", "WinUAE (Amiga 500)",
                    "SNES (Super Nintendo Entertainment System)", "Gamecube / WII (Nintendo)",
                    "Chankast - Dreamcast Emulator", "Atari 2600 Emulator", "Atari 7800 Emulator",
                    "Atari 5200 Emulator", "DeMul - Dreamcast Emulator", "Playstation 2 Emulator",
                    "NullDC - Dreamcast Emulator", "PC Engine", "Sega Master System", "Sega Saturn",
                    "nebula.exe (Neo-Geo)", "Atari Jaguar", "Atari Jaguar", "Handy - Lynx",
                    "ePSXe (Playstation 1)", "Project64 (Nintendo 64)",
                    "Mame (Multi-Acarde-Machine-Emulator)", "X64 / X128", "Fusion Sega Emulator"));
}

TEST(KnownChoices, OnLinuxItsProgramsComeFirstThenRetroArchThenWindows) {
    const auto rows = Rows(Choices(true));
    ASSERT_EQ(rows.size(), 32U + 8U + 23U);
    EXPECT_EQ(rows[0], "dosbox");
    EXPECT_EQ(rows[1], "dosbox-x");
    EXPECT_EQ(rows[31], "scummvm");
    EXPECT_EQ(rows[32], "retroarch: snes9x");
    EXPECT_EQ(rows[39], "retroarch: vice_x64");
    EXPECT_EQ(rows[40], "WinUAE (Amiga CDTV - CD32) (Windows, Wine)");
    EXPECT_EQ(rows.back(), "Fusion Sega Emulator (Windows, Wine)");
}

TEST(KnownChoices, WhatIsInstalledComesFirst) {
    const auto rows = Rows(Choices(true, {"stella", "mame", "x128", "org.libretro.RetroArch"}));
    EXPECT_EQ(rows[0], "x128");
    EXPECT_EQ(rows[1], "stella");
    EXPECT_EQ(rows[2], "mame");
    EXPECT_EQ(rows[3], "retroarch: snes9x");
    EXPECT_EQ(rows[10], "retroarch: vice_x64");
    EXPECT_EQ(rows[11], "dosbox");
}

TEST(KnownChoices, GiveAnEmptyPathTheNameThatTheSearchPathKnows) {
    const auto none = Choices(true);
    EXPECT_EQ(Find(none, "stella").program, "stella");
    EXPECT_EQ(Find(none, "melonds").program, "melonDS");
    EXPECT_EQ(Find(none, "ppssppsdl").program, "PPSSPPSDL");
    EXPECT_EQ(Find(none, "retroarch: mgba").program, "retroarch");
    EXPECT_EQ(Find(none, "PC Engine (Windows, Wine)").program, "");
    const auto exported = Choices(true, {"io.github.stella_emu.Stella", "org.libretro.RetroArch"});
    EXPECT_EQ(Find(exported, "stella").program, "io.github.stella_emu.Stella");
    EXPECT_EQ(Find(exported, "retroarch: mgba").program, "org.libretro.RetroArch");
    const auto both = Choices(true, {"io.github.stella_emu.Stella", "stella"});
    EXPECT_EQ(Find(both, "stella").program, "stella");
}

TEST(KnownChoices, EachNameIsOneThatDetectionKnows) {
    for (const KnownChoice& choice : Choices(true)) {
        if (choice.program.empty() || choice.program == "retroarch") continue;
        EXPECT_EQ(FindLinuxEmulator(choice.program).name, choice.text);
    }
}

TEST(KnownChoices, AskAsDetectionDoesAndApply) {
    core::ProgramState program;
    program.CurrentLanguage = 2;
    const auto choices = Choices(true);
    const Detection detection = Choose(Find(choices, "retroarch: puae"), false, program);
    EXPECT_EQ(detection.question->text,
              "retroarch: puae found!\r\rSet the default launch - parameter for this program?");
    EXPECT_EQ(detection.question->title, "set defaults?");
    SettingsBoard board;
    board.values.SecondsTimerTxt = "4";
    board.values.ParameterWithoutPath = 1;
    board.Take(detection);
    EXPECT_EQ(board.values.txtWinUAEExe, "retroarch");
    EXPECT_EQ(board.values.UAELaunchParaneter, "-f -L puae");
    EXPECT_EQ(board.values.SecondsTimerTxt, "0");
    EXPECT_EQ(board.values.ParameterWithoutPath, 0);

    const auto& windows = Find(choices, "X64 / X128 (Windows, Wine)");
    const Detection x64 = Choose(windows, true, program);
    EXPECT_EQ(x64.question->title, "C-64 / 128  set defaults?");
    EXPECT_EQ(x64.question->text,
              "X64 / X128 found!\r\rSet the default launch - parameter for this program?");
    board.Take(x64);
    EXPECT_EQ(board.values.SecondsTimerTxt, "1");
    EXPECT_EQ(board.values.txtWinUAEExe, "retroarch");
}

TEST(KnownChoices, ANoChangesNothing) {
    const auto choices = Choices(true);
    SettingsBoard board;
    board.values.SecondsTimerTxt = "4";
    const SettingsValues before = board.values;
    board.Take(Choose(Find(choices, "stella"), false, core::ProgramState{}), false);
    EXPECT_EQ(board.values, before);
}

TEST(KnownChoices, AmiberryKeepsWhatItIsGivenWithItsName) {
    const auto choices = Choices(true);
    SettingsBoard board;
    board.Take(Choose(Find(choices, "amiberry"), false, core::ProgramState{}));
    EXPECT_EQ(board.values.txtWinUAEExe, "amiberry");
    EXPECT_EQ(board.values.UseMasterConfig, 1);
    board.PathChanged();  // as at each opening
    EXPECT_EQ(board.values.UseMasterConfig, 1);
    EXPECT_EQ(board.values.UAEMasterConfigLaunchParameter, "-f");
}

}  // namespace
}  // namespace kivu::settings
