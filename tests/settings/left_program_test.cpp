// What leaving the field of the program asks and fills.

#include "paths_room.h"

namespace kivu::settings {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using Answer = platform::Answer;

TEST_F(Paths, LeavingAsksAboutAnotherTextAlone) {
    files.AddFile("D:\\Emu\\handy.exe", "MZ");
    EnterProgram("D:\\Emu\\handy.exe");
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(Pair("set defaults?", std::string("Handy - Lynx") + knownText)));
    EXPECT_EQ(window.DirBefehleTxt.Text(), "");  // the box has been answered with No
    EXPECT_EQ(window.SecondsTimerTxt.Text(), "0");
    EXPECT_TRUE(window.SaveBtn.Enabled());
    window.txtWinUAEExe.SetFocus();
    Leave();
    EXPECT_THAT(TakeBoxes(), IsEmpty());
}

TEST_F(Paths, AnAcceptedRowFillsTheControlsWithTheirHandlers) {
    Answers({Answer::Yes});
    window.ParameterWithoutPath.SetValue(1);
    EnterProgram("D:\\x\\dolphin.exe");
    EXPECT_EQ(window.UAELaunchParameterAddPath.Value(), 1);
    EXPECT_EQ(window.UseAnfz.Value(), 1);
    EXPECT_TRUE(window.UseAnfz.Visible());
    EXPECT_EQ(window.UAELaunchParaneter.Text(), "/e ");
    EXPECT_EQ(window.DirBefehleTxt.Text(),
              "*.elf, *.dol, *.gcm, *.iso, *.wad*, *.bin, *.img, *.nrg, *.mds");
    // What an earlier row has left there stays.
    EXPECT_EQ(window.ParameterWithoutPath.Value(), 1);
}

TEST_F(Paths, TheSaturnRowMountsNothing) {
    window.AutoMoundDeamonTools.SetValue(1);
    Answers({Answer::Yes});
    EnterProgram("D:\\x\\yabause.exe");
    EXPECT_EQ(window.AutoMoundDeamonTools.Value(), 0);
    EXPECT_FALSE(window.DeamonButton.Visible());
    EXPECT_EQ(window.DirBefehleTxt.Text(), "*.iso, *.bin, *.mds, *.nrg");
}

TEST_F(Paths, WinUaesRowTurnsItsTemplateOn) {
    EnterProgram("D:\\x\\stella.exe");
    TakeBoxes();
    window.TxtMasterConfig.SetText("a=1\r\n");
    Answers({Answer::Yes});
    EnterProgram("D:\\Emu\\WINUAE.EXE");
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(Pair("set defaults?", std::string("WinUAE (Amiga 500) ") + knownText)));
    EXPECT_EQ(window.UseMasterConfig.Value(), 1);
    EXPECT_TRUE(window.TxtMasterConfig.Enabled());
    EXPECT_EQ(window.UAEMasterConfigLaunchParameter.Text(), "-f");
    EXPECT_EQ(window.SecondsTimerTxt.Text(), "5");
    EXPECT_EQ(window.DirBefehleTxt.Text(), "*.adf");
    EXPECT_EQ(window.TxtMasterConfig.Text(), "");
    EXPECT_TRUE(window.WinUAEBtn.Visible());
}

TEST_F(Paths, AnUnknownProgramThatIsThereIsAskedAbout) {
    files.AddFile("D:\\x\\Steem.exe", "MZ");
    window.DirBefehleTxt.SetText("*.st");
    EnterProgram("D:\\x\\Steem.exe");
    EXPECT_THAT(TakeBoxes(), ElementsAre(Pair("Unknown Emulator", unknownText)));
    EXPECT_EQ(window.DirBefehleTxt.Text(), "*.st");
    files.AddFile("D:\\x\\x64sc.exe", "MZ");
    Answers({Answer::Yes});
    EnterProgram("D:\\x\\x64sc.exe");
    EXPECT_THAT(TakeBoxes(), ElementsAre(Pair("Unknown Emulator", unknownText)));
    EXPECT_EQ(window.DirBefehleTxt.Text(), "*.*");
}

TEST_F(Paths, AMissingProgramThatNobodyKnowsIsTakenQuietly) {
    EnterProgram("D:\\x\\foo.exe");
    EXPECT_THAT(TakeBoxes(), IsEmpty());
    EXPECT_EQ(window.SecondsTimerTxt.Text(), "0");
    EXPECT_TRUE(window.SaveBtn.Enabled());
}

TEST_F(Paths, AnEmptyPathSetsTheSecondsAlone) {
    EnterProgram("");
    EXPECT_THAT(TakeBoxes(), IsEmpty());
    EXPECT_EQ(window.SecondsTimerTxt.Text(), "0");
    EXPECT_EQ(window.txtWinUAEExe.Text(), "");
    EXPECT_EQ(window.TxtRomPath.Text(), "D:\\Games\\");
}

TEST_F(Paths, TheCommodoresRowHasATitleOfItsOwn) {
    for (const char* name : {"x64.exe", "snes9x-x64.exe", "pcsx2x64.exe"})
        EnterProgram(std::string("D:\\x\\") + name);
    for (const auto& [title, text] : TakeBoxes()) {
        EXPECT_EQ(title, "C-64 / 128  set defaults?");
        EXPECT_EQ(text, std::string("X64 / X128 ") + knownText);
    }
}

TEST_F(Paths, Mame32IsWarnedOfBeforeTheQuestion) {
    EnterProgram("D:\\x\\Mame32.exe");
    const auto shown = host.dialogs.shown;
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0].title, "Caution: This is not the command line version of Mame!");
    EXPECT_EQ(shown[0].buttons, platform::Buttons::Ok);
    EXPECT_EQ(shown[0].icon, platform::Icon::Error);
    EXPECT_EQ(shown[1].text, std::string("Mame (Multi-Acarde-Machine-Emulator)") + knownText);
    EXPECT_EQ(shown[1].icon, platform::Icon::Question);
    EXPECT_EQ(shown[1].buttons, platform::Buttons::YesNo);
}

struct GermanPaths : ::testing::Test, SettingsRoom {
    GermanPaths() : SettingsRoom('\\', 1) { Open("", "D:\\Games\\"); }
};

TEST_F(GermanPaths, AsksInGerman) {
    EnterProgram("C:\\Emu\\WINUAE.EXE");
    files.AddFile("D:\\x\\Steem.exe", "MZ");
    EnterProgram("D:\\x\\Steem.exe");
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(Pair("Standard setzen?",
                                 "WinUAE (Amiga 500) wurde gefunden!\r\r"
                                 "Sollen die Standard Launch parameter gesetzt werden?"),
                            Pair("Emulator nicht bekannt",
                                 "Emulator nicht bekannt, die Start-Parameter müssen ggf. von Hand "
                                 "eingestellt werden.\r\r"
                                 "Sollen die Standard Parameter zurück gesetzt werden?")));
}

TEST_F(PosixPaths, ALinuxProgramIsKnownByItsFilesName) {
    files.AddFile("/usr/games/dosbox", "ELF");
    files.AddFile("/usr/bin/dolphin", "ELF");
    window.ParameterWithoutPath.SetValue(1);
    Answers({Answer::Yes});
    EnterProgram("/usr/games/dosbox");
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(Pair("set defaults?", std::string("dosbox ") + knownText)));
    EXPECT_EQ(window.UAELaunchParaneter.Text(), "-exit");
    EXPECT_EQ(window.ParameterWithoutPath.Value(), 0);
    EXPECT_EQ(window.UAELaunchParameterAddPath.Value(), 1);
    EnterProgram("/usr/bin/dolphin");
    EXPECT_THAT(TakeBoxes(), ElementsAre(Pair("Unknown Emulator", unknownText)));
}

TEST_F(PosixPaths, WhatWasTypedOrPastedIsResolvedOnLeaving) {
    files.AddFile("/home/me/emu/thing", "ELF");
    EnterProgram("  '/nowhere' ");
    EXPECT_EQ(window.txtWinUAEExe.Text(), "'/nowhere'");
    TakeBoxes();
    EnterProgram(" \"~/emu/thing\" ");
    EXPECT_EQ(window.txtWinUAEExe.Text(), "/home/me/emu/thing");
    EXPECT_THAT(TakeBoxes(), ElementsAre(Pair("Unknown Emulator", unknownText)));
    EXPECT_FALSE(Fault(SettingsForm::faultyEmulator));
    // The old path in quotes is the old path.
    EnterProgram("\"/home/me/emu/thing\"");
    EXPECT_EQ(window.txtWinUAEExe.Text(), "/home/me/emu/thing");
    EXPECT_THAT(TakeBoxes(), IsEmpty());
    files.AddDirectory("/home/me/roms");
    Enter(window.TxtRomPath, "~/roms");
    EXPECT_EQ(window.TxtRomPath.Text(), "/home/me/roms");
}

TEST_F(PosixPaths, ANameWithBlanksOrQuotesAtItsEndsStays) {
    files.AddFile("/e/odd \"emu\" ", "ELF");
    files.AddFile("\"/e\"/x", "ELF");
    EnterProgram("/e/odd \"emu\" ");
    EXPECT_EQ(window.txtWinUAEExe.Text(), "/e/odd \"emu\" ");
    files.AddFile("/my roms /x", "");
    Enter(window.TxtRomPath, "/my roms ");
    EXPECT_EQ(window.TxtRomPath.Text(), "/my roms ");
    EXPECT_FALSE(Fault(SettingsForm::faultyRomPath));
}

TEST_F(PosixPaths, SignsOfTheShellAreLettersOfAPath) {
    const std::string odd = "/e/'\"$&;`x`";
    files.AddFile(odd, "ELF");
    Answers({Answer::No});
    EnterProgram(odd);
    EXPECT_EQ(window.txtWinUAEExe.Text(), odd);
    EXPECT_FALSE(Fault(SettingsForm::faultyEmulator));
    window.LaunchButton.Click();
    ASSERT_EQ(host.starter.runs.size(), 1U);
    EXPECT_THAT(host.starter.runs[0].request.words, ElementsAre(odd));
}

}  // namespace
}  // namespace kivu::settings
