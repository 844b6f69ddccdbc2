#include "settings/detection.h"

#include <gmock/gmock.h>

#include "settings_board.h"
#include "testing/memory_file_system.h"

namespace kivu::settings {
namespace {

using platform::Buttons;
using platform::Icon;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

core::ProgramState Speaking(int language) {
    core::ProgramState program;
    program.CurrentLanguage = language;
    return program;
}

const core::ProgramState german = Speaking(1);
const core::ProgramState english = Speaking(2);

// Where the path is the only file, or there is none.
Detection Windows(const std::string& path, const core::ProgramState& program = english,
                  bool exists = false) {
    return DetectEmulator(path, program, false, [&](const std::string&) { return exists; });
}
Detection Linux(const std::string& path, const core::ProgramState& program = english,
                bool exists = false) {
    return DetectEmulator(path, program, true, [&](const std::string&) { return exists; });
}

constexpr const char* half = "found!\r\rSet the default launch - parameter for this program?";

TEST(Detection, AsksAboutAKnownProgramInBothLanguages) {
    EXPECT_EQ(Windows("C:\\Emu\\WINUAE.EXE").question,
              (Box{"WinUAE (Amiga 500) found!\r\rSet the default launch - parameter for this "
                   "program?",
                   "set defaults?", Buttons::YesNo, Icon::Question}));
    EXPECT_EQ(Windows("C:\\Emu\\WINUAE.EXE", german).question,
              (Box{"WinUAE (Amiga 500) wurde gefunden!\r\rSollen die Standard Launch parameter "
                   "gesetzt werden?",
                   "Standard setzen?", Buttons::YesNo, Icon::Question}));
}

TEST(Detection, ANameWithoutABlankRunsIntoTheNextWord) {
    EXPECT_EQ(Windows("handy.exe").question->text, std::string("Handy - Lynx") + half);
    EXPECT_EQ(Windows("handy.exe", german).question->text.substr(0, 27),
              "Handy - Lynxwurde gefunden!");
}

TEST(Detection, TheC64HasATitleOfItsOwn) {
    EXPECT_EQ(Windows("x64.exe").question->title, "C-64 / 128  set defaults?");
    EXPECT_EQ(Windows("x128.exe", german).question->title, "C-64 / 128  Standard setzen?");
    EXPECT_EQ(Windows("snes9x.exe").question->title, "set defaults?");
}

TEST(Detection, AsksAboutAProgramThatNobodyKnowsWhereItExists) {
    for (const char* path : {"D:\\x\\Steem.exe", "D:\\x\\x64sc.exe"}) {
        const Detection detection = Windows(path, english, true);
        EXPECT_EQ(detection.question,
                  (Box{"Unknown Emulator. You have to set the launch parameter manually.\r\r"
                       "Set parameter back to default now?",
                       "Unknown Emulator", Buttons::YesNo, Icon::Question}));
        EXPECT_EQ(detection.onYes, EmulatorDefaults());
        EXPECT_EQ(detection.path, path);
    }
    EXPECT_EQ(Windows("D:\\foo.exe", german, true).question,
              (Box{"Emulator nicht bekannt, die Start-Parameter müssen ggf. von Hand eingestellt "
                   "werden.\r\rSollen die Standard Parameter zurück gesetzt werden?",
                   "Emulator nicht bekannt", Buttons::YesNo, Icon::Question}));
}

TEST(Detection, AMissingProgramThatNobodyKnowsIsTakenUpWithoutABox) {
    const Detection detection = Windows("D:\\foo.exe");
    EXPECT_FALSE(detection.warning);
    EXPECT_FALSE(detection.question);
    EXPECT_THAT(detection.first, ElementsAre(Assignment{Field::SecondsTimerTxt, "0"}));
    EXPECT_THAT(detection.onYes, IsEmpty());
    EXPECT_EQ(detection.path, "D:\\foo.exe");
}

TEST(Detection, AnEmptyPathTakesTheSecondsAwayAndNothingElse) {
    const Detection detection = Windows("", english, true);
    EXPECT_THAT(detection.first, ElementsAre(Assignment{Field::SecondsTimerTxt, "0"}));
    EXPECT_FALSE(detection.warning);
    EXPECT_FALSE(detection.question);
    EXPECT_EQ(detection.path, "");
}

TEST(Detection, AKnownProgramNeedNotExist) {
    const Detection detection = Windows("D:\\gens.exe");
    ASSERT_TRUE(detection.question);
    EXPECT_EQ(detection.onYes, AssignmentsOf(*FindKnownEmulator("gens.exe")));
}

TEST(Detection, ANoKeepsTheFieldsButForTheSeconds) {
    SettingsBoard board;
    board.values.SecondsTimerTxt = "7";
    board.values.UAELaunchParaneter = "-mine";
    board.values.DirBefehleTxt = "*.mine";
    SettingsValues expected = board.values;
    expected.SecondsTimerTxt = "0";
    expected.txtWinUAEExe = "D:\\gens.exe";
    board.Take(Windows("D:\\gens.exe"), false);
    EXPECT_EQ(board.values, expected);
}

TEST(Detection, ePsxeLeavesThePathOff) {
    SettingsBoard board;
    board.values.UAELaunchParameterAddPath = 1;
    board.values.UseAnfz = 1;
    board.Take(Windows("D:\\epsxe.exe"));
    EXPECT_EQ(board.values.UAELaunchParameterAddPath, 0);
    EXPECT_EQ(board.values.UseAnfz, 0);
    EXPECT_EQ(board.values.UAELaunchParaneter, " -nogui -loadbin ");
}

TEST(Detection, AnEarlierJaguarLeavesThePathOffWhateverComesNext) {
    SettingsBoard board;
    board.Take(Windows("D:\\t2k.exe"));
    EXPECT_EQ(board.values.ParameterWithoutPath, 1);
    board.Take(Windows("D:\\gens.exe"));
    EXPECT_EQ(board.values.ParameterWithoutPath, 1);
    board.Take(Linux("/usr/games/stella"));
    EXPECT_EQ(board.values.ParameterWithoutPath, 0);
}

TEST(Detection, WarnsOfMameWithAWindowBeforeItAsks) {
    const Detection detection = Windows("D:\\MAME32.exe");
    EXPECT_EQ(
        detection.warning,
        (Box{"This is NOT the Command line Version of Mame!\rCopy the Command line Version "
             "into your Mame - directory and choose the 'mame.exe'.",
             "Caution: This is not the command line version of Mame!", Buttons::Ok, Icon::Error}));
    EXPECT_EQ(detection.question->text, std::string("Mame (Multi-Acarde-Machine-Emulator)") + half);
    EXPECT_FALSE(Windows("D:\\mame.exe").warning);
    EXPECT_FALSE(Windows("D:\\mame32.exe.old\\akiko.exe").warning);
}

TEST(Detection, WarnsInGermanWhereThereIsNoLanguageButAsksInEnglish) {
    const Detection detection = Windows("D:\\mame32.exe", Speaking(0));
    EXPECT_EQ(detection.warning,
              (Box{"Dies ist NICHT die Command-Line Version von Mame!\rSie sollten die "
                   "Command-Line Version benutzen. Fall noch nicht vorhanden, einfach ins "
                   "Mame-Verzeichnis kopieren (nichts überschreiben!) und anschl. die 'Mame.exe' "
                   "auswählen.",
                   "Achtung: Keine Command Line-Version of Mame!", Buttons::Ok, Icon::Error}));
    EXPECT_EQ(detection.question->title, "set defaults?");
    EXPECT_EQ(Windows("D:\\mame32.exe", german).warning, detection.warning);
}

TEST(Detection, AsksAboutALinuxProgramByItsNameInTheTable) {
    EXPECT_EQ(Linux("/usr/bin/dosbox").question->text, std::string("dosbox ") + half);
    EXPECT_EQ(Linux("/usr/bin/dosbox-x").question->text, std::string("dosbox-x ") + half);
    EXPECT_EQ(Linux("/opt/Flycast-v2.AppImage", german).question->text.substr(0, 23),
              "flycast wurde gefunden!");
    EXPECT_EQ(Linux("/usr/bin/dosbox").question->title, "set defaults?");
}

TEST(Detection, AsksAboutALinuxProgramOnItsOwnHostOnly) {
    EXPECT_FALSE(Windows("C:\\msys\\bin\\dosbox").question);
    EXPECT_EQ(Windows("C:\\msys\\bin\\dosbox", english, true).question->title, "Unknown Emulator");
}

TEST(Detection, TheToldTableComesFirstAndWindowsProgramsAreNoLinuxOnes) {
    EXPECT_EQ(Linux("/games/x64.exe").question->title, "C-64 / 128  set defaults?");
    EXPECT_EQ(Linux("/opt/nulldc/mame").question->text.substr(0, 6), "NullDC");
    // A wrapper for Windows.
    for (const char* path : {"/games/stella-6.exe", "/games/hatari-2.bat", "/games/mame-0.cmd"})
        EXPECT_FALSE(Linux(path).question) << path;
}

TEST(Detection, RetroArchAloneIsUnknown) {
    EXPECT_EQ(Linux("/usr/bin/retroarch", english, true).question->title, "Unknown Emulator");
}

// --- Directories.

struct Guess : ::testing::Test {
    std::optional<std::string> Of(const std::string& exe) {
        return GuessRomPath(exe, windows, nullptr);
    }
    testing::MemoryFileSystem windows{'\\'};
    testing::MemoryFileSystem posix{'/'};
};

TEST_F(Guess, TakesTheFirstFolderThatHoldsFiles) {
    windows.AddFile("D:\\Emu\\e.exe", "MZ");
    windows.AddFile("D:\\Emu\\Disks\\a.adf", "x");
    windows.AddFile("D:\\Emu\\Games\\a.adf", "x");
    windows.AddDirectory("D:\\Emu\\Roms");
    EXPECT_EQ(Of("D:\\Emu\\e.exe"), "D:\\Emu\\Disks\\");
    windows.AddFile("D:\\Emu\\Rom\\a.adf", "x");
    EXPECT_EQ(Of("D:\\Emu\\e.exe"), "D:\\Emu\\Rom\\");
    windows.AddFile("D:\\Emu\\Roms\\a.adf", "x");
    EXPECT_EQ(Of("D:\\Emu\\e.exe"), "D:\\Emu\\Roms\\");
}

TEST_F(Guess, PassesAFolderOfFoldersOver) {
    windows.AddFile("D:\\Emu\\e.exe", "MZ");
    windows.AddFile("D:\\Emu\\Roms\\A\\a.adf", "x");
    EXPECT_EQ(Of("D:\\Emu\\e.exe"), "D:\\Emu\\");
}

TEST_F(Guess, IsTheProgramsDirectoryWithoutAnyFolder) {
    EXPECT_EQ(Of("D:\\Gone\\e.exe"), "D:\\Gone\\");
    EXPECT_EQ(Of("D:\\e.exe"), "D:\\");
}

TEST_F(Guess, AProgramWithoutADirectoryHasNone) {
    EXPECT_EQ(Of(""), std::nullopt);
    EXPECT_EQ(Of("e.exe"), std::nullopt);
    EXPECT_EQ(GuessRomPath("dosbox", posix, nullptr), std::nullopt);
}

TEST_F(Guess, TakesNamesInAnyCase) {
    posix.AddFile("/opt/emu/e", "x");
    posix.AddFile("/opt/emu/ROMS/a.adf", "x");
    EXPECT_EQ(GuessRomPath("/opt/emu/e", posix, nullptr), "/opt/emu/ROMS/");
    posix.AddFile("/opt/emu/rom/a.adf", "x");
    EXPECT_EQ(GuessRomPath("/opt/emu/e", posix, nullptr), "/opt/emu/ROMS/");
    // The usual spelling is the one that is meant.
    posix.AddDirectory("/opt/emu/Roms");
    EXPECT_EQ(GuessRomPath("/opt/emu/e", posix, nullptr), "/opt/emu/rom/");
    // A file of that name is no folder.
    posix.Remove("/opt/emu/ROMS");
    posix.Remove("/opt/emu/rom");
    posix.AddFile("/opt/emu/games", "x");
    EXPECT_EQ(GuessRomPath("/opt/emu/e", posix, nullptr), "/opt/emu/");
}

TEST_F(Guess, NeverIsADirectoryOfPrograms) {
    posix.AddFile("/usr/games/stella", "x");
    const auto isSearchPath = [](const std::string& path) {
        return path == "/usr/games/" || path == "/usr/games";
    };
    EXPECT_EQ(GuessRomPath("/usr/games/stella", posix, isSearchPath), std::nullopt);
    EXPECT_EQ(GuessRomPath("/opt/emu/stella", posix, isSearchPath), "/opt/emu/");
    EXPECT_EQ(RomPathBesideProgram("/k/", "/k/", "/usr/games/stella", posix, isSearchPath),
              std::nullopt);
}

TEST_F(Guess, AFolderThatCannotBeReadHoldsNothing) {
    posix.AddFile("/opt/emu/roms/a.adf", "x");
    posix.SetUnreadable("/opt/emu/roms");
    EXPECT_EQ(GuessRomPath("/opt/emu/e", posix, nullptr), "/opt/emu/");
    posix.SetUnreadable("/opt/emu");
    EXPECT_EQ(GuessRomPath("/opt/emu/e", posix, nullptr), "/opt/emu/");
}

TEST_F(Guess, TheLaunchersOwnDirectoryGivesWayToTheProgramsDirectory) {
    windows.AddFile("D:\\Emu\\e.exe", "MZ");
    EXPECT_EQ(RomPathBesideProgram("C:\\Kivu\\", "C:\\Kivu\\", "D:\\Emu\\e.exe", windows, nullptr),
              "D:\\Emu\\");
    // Exactly that text.
    for (const char* other : {"C:\\Kivu", "c:\\kivu\\", "", "C:\\Roms\\"}) {
        EXPECT_EQ(RomPathBesideProgram(other, "C:\\Kivu\\", "D:\\Emu\\e.exe", windows, nullptr),
                  std::nullopt)
            << other;
    }
    EXPECT_EQ(RomPathBesideProgram("/k/", "/k/", "dosbox", posix, nullptr), std::nullopt);
}

}  // namespace
}  // namespace kivu::settings
