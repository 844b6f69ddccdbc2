#include "settings/paths_group.h"

#include <gmock/gmock.h>

#include "settings_room.h"

namespace kivu::settings {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using Answer = platform::Answer;

constexpr const char* knownText = "found!\r\rSet the default launch - parameter for this program?";
constexpr const char* unknownText =
    "Unknown Emulator. You have to set the launch parameter manually.\r\r"
    "Set parameter back to default now?";

struct Paths : ::testing::Test, SettingsRoom {
    Paths() {
        files.AddFile("D:\\Emu\\winuae.exe", "MZ");
        files.AddFile("D:\\Games\\a.adf", "x");
        Open("D:\\Emu\\winuae.exe", "D:\\Games\\");
    }
};

struct PosixPaths : ::testing::Test, SettingsRoom {
    PosixPaths() : SettingsRoom('/') {
        files.AddFile("/usr/games/stella", "ELF");
        files.AddFile("/games/a.bin", "x");
        host.starter.path["stella"] = "/usr/games/stella";
        host.starter.searched = {"/usr/games", "/usr/games/"};
        files.home = "/home/me";
        Open("/usr/games/stella", "/games/");
    }
};

// --- The program's field.

TEST_F(Paths, OpeningFindsNoFaultAndNotesTheText) {
    EXPECT_FALSE(Fault(SettingsForm::faultyEmulator));
    EXPECT_FALSE(Fault(SettingsForm::faultyRomPath));
    EXPECT_EQ(window.ExeAtFocus, "D:\\Emu\\winuae.exe");
    EXPECT_TRUE(window.WinUAEBtn.Visible());
    Leave();
    EXPECT_THAT(TakeBoxes(), IsEmpty());
    EXPECT_FALSE(window.SaveBtn.Enabled());
}

TEST_F(Paths, TheFirstKeyThatBreaksTheNameWipesWinUaesFields) {
    window.TxtKickstartRomFile.SetText("D:\\kick.rom");
    window.IntelligenteRomauswahl.SetValue(1);
    window.UseMasterConfig.SetValue(1);
    window.FullscreenCheck.SetValue(1);
    ASSERT_EQ(window.UAEMasterConfigLaunchParameter.Text(), "-f");
    window.txtWinUAEExe.SetSelection(16, 0);
    input.Stroke(forms::KeyOf('x'));
    EXPECT_EQ(window.txtWinUAEExe.Text(), "D:\\Emu\\winuae.exxe");
    EXPECT_FALSE(window.WinUAEBtn.Visible());
    EXPECT_EQ(window.TxtKickstartRomFile.Text(), "");
    EXPECT_EQ(window.IntelligenteRomauswahl.Value(), 0);
    EXPECT_EQ(window.UseMasterConfig.Value(), 0);
    EXPECT_EQ(window.UAEMasterConfigLaunchParameter.Text(), "");
    EXPECT_EQ(window.FullscreenCheck.Value(), 0);
    EXPECT_TRUE(window.SaveBtn.Enabled());
    EXPECT_TRUE(Fault(SettingsForm::faultyEmulator));
}

TEST_F(Paths, AFaultyProgramIsEmptyMissingOrADirectory) {
    files.AddFile("C:\\Kivu\\sub\\own.exe", "MZ");
    const auto isFaulty = [&](const char* text) {
        window.txtWinUAEExe.SetText(text);
        return Fault(SettingsForm::faultyEmulator);
    };
    for (const char* text : {"", "D:\\Emu", "D:\\Emu\\", "D:\\Emu\\none.exe", "D:\\Emu\\*.exe",
                             "\"D:\\Emu\\winuae.exe\"", "winuae.exe"})
        EXPECT_TRUE(isFaulty(text)) << text;
    for (const char* text : {"D:\\Emu\\winuae.exe", "d:\\emu\\WINUAE.EXE", "sub\\own.exe"})
        EXPECT_FALSE(isFaulty(text)) << text;
}

TEST_F(PosixPaths, ABareNameIsFoundWhereTheStartFindsIt) {
    window.txtWinUAEExe.SetText("stella");
    EXPECT_FALSE(Fault(SettingsForm::faultyEmulator));
    window.txtWinUAEExe.SetText("stellar");
    EXPECT_TRUE(Fault(SettingsForm::faultyEmulator));
}

TEST_F(Paths, WinUaesOtherProgramsKeepItsFields) {
    for (const char* name : {"D:\\Emu\\WINUAE.EXE", "D:\\winuae64.exe", "D:\\amiberry"}) {
        window.txtWinUAEExe.SetText(name);
        window.UseMasterConfig.SetValue(1);
        window.txtWinUAEExe.SetText(std::string(name) + " ");
        window.txtWinUAEExe.SetText(name);
        EXPECT_TRUE(window.WinUAEBtn.Visible()) << name;
    }
}

// --- Leaving it.

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

// --- The directory of the games.

TEST_F(Paths, TheGamesOfAnotherProgramAreGuessedWhereTheDirectoryIsOfNoUse) {
    files.AddFile("E:\\Emu\\thing.exe", "MZ");
    files.AddFile("E:\\Emu\\Disks\\a.adf", "x");
    files.AddDirectory("E:\\Emu\\Roms\\empty");
    EnterProgram("E:\\Emu\\thing.exe");
    EXPECT_EQ(window.TxtRomPath.Text(), "D:\\Games\\");
    window.TxtRomPath.SetText("D:\\none\\");
    window.txtWinUAEExe.SetFocus();
    Leave();
    EXPECT_EQ(window.TxtRomPath.Text(), "E:\\Emu\\Disks\\");
    EXPECT_FALSE(Fault(SettingsForm::faultyRomPath));
}

TEST_F(Paths, TheLaunchersOwnDirectoryGivesWayToTheProgramsAndAnyOtherStays) {
    files.AddFile("E:\\Emu\\thing.exe", "MZ");
    files.AddFile("C:\\Kivu\\Kivu.exe", "MZ");
    window.TxtRomPath.SetText("C:\\Kivu");
    EnterProgram("E:\\Emu\\thing.exe");
    EXPECT_EQ(window.TxtRomPath.Text(), "C:\\Kivu");
    window.TxtRomPath.SetText("C:\\Kivu\\");
    EnterProgram("E:\\Emu\\THING.exe");
    EXPECT_EQ(window.TxtRomPath.Text(), "E:\\Emu\\");
}

TEST_F(PosixPaths, NobodysGamesLieBesideASystemsPrograms) {
    files.AddFile("/opt/kivu/Kivu", "ELF");
    window.TxtRomPath.SetText("/opt/kivu/");
    EnterProgram("/usr/games/stella2");
    EXPECT_EQ(window.TxtRomPath.Text(), "/opt/kivu/");
    window.TxtRomPath.SetText("/none");
    EnterProgram("/usr/games/stella3");
    EXPECT_EQ(window.TxtRomPath.Text(), "/none");
    EnterProgram("stella");
    EXPECT_EQ(window.TxtRomPath.Text(), "/none");
    EnterProgram("");
    EXPECT_EQ(window.TxtRomPath.Text(), "/none");
}

TEST_F(Paths, AnyEntryMakesADirectoryUsable) {
    files.AddDirectory("D:\\Nested\\only");
    files.AddDirectory("D:\\Empty");
    files.AddDirectory("D:\\Locked\\a");
    files.SetUnreadable("D:\\Locked");
    files.AddFile("C:\\Kivu\\Games\\a", "");
    const auto isFaulty = [&](const char* text) {
        window.TxtRomPath.SetText(text);
        return Fault(SettingsForm::faultyRomPath);
    };
    for (const char* text : {"D:\\Nested", "D:\\Nested\\", "D:\\Games", "D:\\", "Games"})
        EXPECT_FALSE(isFaulty(text)) << text;
    for (const char* text : {"", "D:\\Empty", "D:\\None", "D:\\Games\\a.adf", "D:\\Locked"})
        EXPECT_TRUE(isFaulty(text)) << text;
    EXPECT_TRUE(window.SaveBtn.Enabled());
}

// A large directory costs one look for each key, and nobody lists it.
struct LargeDisk : testing::MemoryFileSystem {
    LargeDisk() : MemoryFileSystem('/') {}
    std::optional<bool> HasEntries(const std::string& path) const override {
        looks.push_back(path);
        return IsDirectory(path);
    }
    std::optional<std::vector<Entry>> ListDirectory(const std::string& path) const override {
        ++listings;
        return MemoryFileSystem::ListDirectory(path);
    }
    mutable std::vector<std::string> looks;
    mutable int listings = 0;
};

TEST(TypedRomPath, AsksForOneEntryAtEachKey) {
    LargeDisk disk;
    disk.AddDirectory("/games");
    SettingsRoom room('/', 2, &disk);
    room.Open("", "");
    disk.looks.clear();
    disk.listings = 0;
    room.input.Type(room.window.TxtRomPath, "/games/");
    EXPECT_THAT(disk.looks,
                ElementsAre("/", "/g/", "/ga/", "/gam/", "/game/", "/games/", "/games/"));
    EXPECT_EQ(disk.listings, 0);
    EXPECT_FALSE(room.Fault(SettingsForm::faultyRomPath));
}

TEST(TypedRomPath, AsksAServerWhenTheFieldIsLeft) {
    struct Shares : testing::MemoryFileSystem {
        Shares() : MemoryFileSystem('\\') {}
        std::optional<bool> HasEntries(const std::string& path) const override {
            looks.push_back(path);
            return path.starts_with("\\\\");
        }
        bool FileExists(const std::string& path) const override {
            if (path.starts_with("\\\\")) asked.push_back(path);
            return MemoryFileSystem::FileExists(path);
        }
        mutable std::vector<std::string> looks, asked;
    } disk;
    SettingsRoom room('\\', 2, &disk);
    room.Open("C:\\none.exe", "C:\\");
    disk.looks.clear();
    room.window.TxtRomPath.SetFocus();
    room.window.TxtRomPath.SetText("");
    room.input.Type(room.window.TxtRomPath, "\\\\s\\games");
    EXPECT_TRUE(room.Fault(SettingsForm::faultyRomPath));
    EXPECT_THAT(disk.looks, ElementsAre("C:\\Kivu\\"));  // of the first sign alone
    room.Leave();
    EXPECT_EQ(disk.looks.back(), "\\\\s\\games\\");
    EXPECT_FALSE(room.Fault(SettingsForm::faultyRomPath));
    room.window.txtWinUAEExe.SetFocus();
    room.window.txtWinUAEExe.SetText("");
    room.input.Type(room.window.txtWinUAEExe, "\\\\s\\emu.exe");
    EXPECT_THAT(disk.asked, IsEmpty());
    room.Leave();
    EXPECT_FALSE(disk.asked.empty());
}

TEST_F(Paths, BrowseDirTakesWhatWasChosen) {
    fileDialogs.answers = {"", "E:\\New\\"};
    window.BrowseDir.Click();
    EXPECT_EQ(window.TxtRomPath.Text(), "D:\\Games\\");
    EXPECT_FALSE(window.SaveBtn.Enabled());
    window.FehlerIcon[SettingsForm::faultyRomPath].Click();
    EXPECT_EQ(window.TxtRomPath.Text(), "E:\\New\\");
    EXPECT_TRUE(window.SaveBtn.Enabled());
    const ScriptedFileDialogs::Asked asked{"directory", "D:\\Games\\", "ROM Verzeichnis wählen",
                                           ""};
    EXPECT_THAT(fileDialogs.asked, ElementsAre(asked, asked));
}

// --- Looking for the program, and starting it.

TEST_F(Paths, BrowsingAsksTwiceAndThenOffersAStart) {
    files.AddFile("D:\\x\\snes9x.exe", "MZ");
    fileDialogs.answers = {"D:\\x\\snes9x.exe"};
    const std::string row = std::string("SNES (Super Nintendo Entertainment System) ") + knownText;
    window.Command2.Click();
    EXPECT_THAT(fileDialogs.asked,
                ElementsAre(ScriptedFileDialogs::Asked{"open", "D:\\Emu\\winuae.exe",
                                                       "Emulator Exe wählen", "*.exe"}));
    const auto shown = host.dialogs.shown;
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(Pair("set defaults?", row), Pair("set defaults?", row),
                            Pair("snes9x.exe starten?", "Emulator zum Einstellen jetzt starten?")));
    EXPECT_EQ(shown.back().buttons, platform::Buttons::YesNo);
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_EQ(window.txtWinUAEExe.Text(), "D:\\x\\snes9x.exe");
}

TEST_F(Paths, BrowsingForNothingNewAsksNothing) {
    fileDialogs.answers = {"", "D:\\Emu\\winuae.exe"};
    window.Command2.Click();
    window.FehlerIcon[SettingsForm::faultyEmulator].Click();
    EXPECT_EQ(fileDialogs.asked.size(), 2U);
    EXPECT_THAT(TakeBoxes(), IsEmpty());
    EXPECT_FALSE(window.SaveBtn.Enabled());
}

TEST_F(Paths, BrowsingMayEndInAStart) {
    files.AddFile("D:\\x\\snes9x.exe", "MZ");
    fileDialogs.answers = {"D:\\x\\snes9x.exe"};
    Answers({Answer::Yes, Answer::No, Answer::Yes});
    window.Command2.Click();
    ASSERT_EQ(host.starter.runs.size(), 1U);
    EXPECT_EQ(host.starter.runs[0].request.command, "D:\\x\\snes9x.exe");
    EXPECT_EQ(window.DirBefehleTxt.Text(), "*.smc, *.zip");
}

TEST_F(Paths, LaunchButtonStartsTheProgramAndLooksWhetherItRuns) {
    bool busy = false, enabled = true;
    host.clock.onRest = [&] {
        busy = form.Busy;
        enabled = window.LaunchButton.Enabled();
    };
    input.Click(window.LaunchButton);
    ASSERT_EQ(host.starter.runs.size(), 1U);
    const auto& request = host.starter.runs[0].request;
    EXPECT_EQ(request.command, "D:\\Emu\\winuae.exe");
    EXPECT_THAT(request.words, ElementsAre("D:\\Emu\\winuae.exe"));
    EXPECT_EQ(request.directory, "D:\\Emu");
    EXPECT_EQ(request.style, platform::WindowStyle::Normal);
    EXPECT_TRUE(request.watched);
    EXPECT_TRUE(busy);
    EXPECT_FALSE(enabled);
    EXPECT_EQ(form.CurrentRunninApplication, "winuae.exe");
    EXPECT_EQ(running.looks, 1);
    EXPECT_TRUE(form.EmuActiveTimer.Enabled());
    EXPECT_EQ(files.CurrentDirectory(), "C:\\Kivu");
    EXPECT_TRUE(window.LaunchButton.Enabled());
    EXPECT_TRUE(window.LaunchButton.HasFocus());
    EXPECT_FALSE(window.NewEmuBtn.Enabled());
    EXPECT_FALSE(window.SaveBtn.Enabled());
}

TEST_F(Paths, AnEmulatorThatIsSlowToComeUpLeavesTheWindowInFront) {
    running.onLook = [this] { form.SetTopmost(true); };
    window.LaunchButton.Click();
    EXPECT_FALSE(form.IsTopmost());
}

TEST_F(Paths, LaunchButtonSaysNothingOfAMissingProgram) {
    window.txtWinUAEExe.SetText("D:\\none.exe");
    window.LaunchButton.Click();
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_THAT(TakeBoxes(), IsEmpty());
    EXPECT_EQ(running.looks, 0);
    EXPECT_FALSE(form.EmuActiveTimer.Enabled());
    EXPECT_TRUE(window.LaunchButton.Enabled());
}

TEST_F(Paths, LaunchButtonRestsWhileSomethingIsUnderWay) {
    form.Busy = true;
    window.LaunchButton.Click();
    EXPECT_THAT(host.starter.runs, IsEmpty());
}

TEST_F(PosixPaths, LaunchButtonFindsABareName) {
    window.txtWinUAEExe.SetText("stella");
    window.LaunchButton.Click();
    ASSERT_EQ(host.starter.runs.size(), 1U);
    EXPECT_THAT(host.starter.runs[0].request.words, ElementsAre("/usr/games/stella"));
    EXPECT_EQ(form.CurrentRunninApplication, "stella");
}

}  // namespace
}  // namespace kivu::settings
