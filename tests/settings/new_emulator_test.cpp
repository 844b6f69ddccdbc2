#include "settings/new_emulator.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "testing/faulty_file_system.h"
#include "testing/memory_file_system.h"

namespace kivu::settings {
namespace {

struct NewEmulator : ::testing::Test {
    NewEmulator() {
        files.AddDirectory("/k/Config/Amiga 500");
        files.AddFile("/k/Config/Kivu.ini", "");
    }
    std::optional<NameFault> Fault(const std::string& name) {
        return FaultOfName(files, "/k/Config/", name);
    }
    testing::MemoryFileSystem files{'/'};
};

TEST_F(NewEmulator, TakesUsualNames) {
    for (const char* name : {"C64", "Super Nintendo", "Märchen", "$&;", "a.b", "console", "COM",
                             "COM0", "COM10", "LPT", "NULL", "Amiga", "日本"})
        EXPECT_EQ(Fault(name), std::nullopt) << name;
}

TEST_F(NewEmulator, RefusesWhatNoFileSystemHoldsEverywhere) {
    for (const char* name : {"a\\b", "a/b", "a:b", "a*", "a?", "a\"b", "<a", "a>", "a|b", "a\nb",
                             "a\tb", "a\x7F", "a\xC2\x85", "'\"$&;"})
        EXPECT_EQ(Fault(name), NameFault::character) << name;
    EXPECT_EQ(Fault(std::string("a\0b", 3)), NameFault::character);
}

TEST_F(NewEmulator, RefusesPointsAtTheEnds) {
    for (const char* name : {".", "..", ".a", "a.", "..a"})
        EXPECT_EQ(Fault(name), NameFault::point) << name;
}

TEST_F(NewEmulator, RefusesTheDevicesOfWindows) {
    for (const char* name : {"CON", "con", "PRN", "Aux", "NUL", "NUL.txt", "nul .txt", "COM1",
                             "com9.x.y", "LPT1", "lpt9"})
        EXPECT_EQ(Fault(name), NameFault::device) << name;
}

TEST_F(NewEmulator, RefusesNamesThatMeanSomethingElse) {
    EXPECT_EQ(Fault("-ALL-"), NameFault::reserved);
    EXPECT_EQ(Fault("No Emulator found"), NameFault::reserved);
    EXPECT_EQ(Fault("-ALL"), std::nullopt);
}

TEST_F(NewEmulator, CountsCharacters) {
    EXPECT_EQ(Fault(std::string(80, 'a')), std::nullopt);
    EXPECT_EQ(Fault(std::string(81, 'a')), NameFault::tooLong);
    std::string umlauts;
    for (int i = 0; i < 80; ++i)
        umlauts += "ä";
    EXPECT_EQ(Fault(umlauts), std::nullopt);
    EXPECT_EQ(Fault(umlauts + "ä"), NameFault::tooLong);
    EXPECT_EQ(Fault(std::string(300, 'a')), NameFault::tooLong);
}

TEST_F(NewEmulator, RefusesWhatTheCodePageDoesNotHold) {
    testing::MemoryFileSystem drive('\\');
    drive.AddDirectory("C:\\Kivu\\Config");
    EXPECT_EQ(FaultOfName(drive, "C:\\Kivu\\Config\\", "日本"), NameFault::unstorable);
    EXPECT_EQ(FaultOfName(drive, "C:\\Kivu\\Config\\", "Märchen"), std::nullopt);
}

TEST_F(NewEmulator, RefusesATakenNameInAnyCase) {
    EXPECT_EQ(Fault("Amiga 500"), NameFault::taken);
    EXPECT_EQ(Fault("AMIGA 500"), NameFault::taken);
    EXPECT_EQ(Fault("kivu.ini"), NameFault::taken);
    files.AddDirectory("/k/Config/Märchen");
    EXPECT_EQ(Fault("MÄRCHEN"), NameFault::taken);
}

TEST_F(NewEmulator, ItsNameHasNoBlanksAroundIt) {
    EXPECT_EQ(EmulatorName("  Amiga 500 "), "Amiga 500");
    EXPECT_EQ(EmulatorName("   "), "");
    EXPECT_EQ(EmulatorName(""), "");
}

TEST_F(NewEmulator, IsADirectory) {
    EXPECT_FALSE(MakeEmulator(files, "/k/Config/", "C64"));
    EXPECT_TRUE(files.IsDirectory("/k/Config/C64"));
    EXPECT_EQ(Fault("c64"), NameFault::taken);
    testing::FaultyFileSystem faulty{files};
    faulty.MakeReadOnly();
    EXPECT_EQ(MakeEmulator(faulty, "/k/Config/", "Next"), std::errc::read_only_file_system);
    EXPECT_FALSE(files.IsDirectory("/k/Config/Next"));
}

TEST_F(NewEmulator, SaysWhyInBothLanguages) {
    core::ProgramState german;
    core::ProgramState english;
    english.CurrentLanguage = 2;
    EXPECT_EQ(NewEmulatorPrompt(german), "Name des neuen Emulators:");
    EXPECT_EQ(NewEmulatorPrompt(english), "Name of the new emulator:");
    std::vector<std::string> reasons;
    for (const NameFault fault :
         {NameFault::tooLong, NameFault::character, NameFault::point, NameFault::device,
          NameFault::reserved, NameFault::unstorable, NameFault::taken}) {
        for (const core::ProgramState& program : {german, english}) {
            const Box box = FaultBox(fault, "X1", program);
            EXPECT_EQ(box.text.substr(0, 4), "X1\r\r");
            EXPECT_EQ(std::count(reasons.begin(), reasons.end(), box.text), 0) << box.text;
            reasons.push_back(box.text);
        }
    }
    EXPECT_EQ(FaultBox(NameFault::tooLong, std::string(5000, 'a'), english).text.substr(0, 85),
              std::string(80, 'a') + "...\r\r");
    const Box failed =
        NotMadeBox("/k/Config/X", std::make_error_code(std::errc::permission_denied), english);
    EXPECT_EQ(failed.icon, platform::Icon::Error);
    EXPECT_NE(failed.text.find("/k/Config/X"), std::string::npos);
}

TEST(RowAfterInsert, MovesWithTheRowsBehindTheNewOne) {
    EXPECT_EQ(RowAfterInsert(3, 2), 4);
    EXPECT_EQ(RowAfterInsert(3, 3), 4);
    EXPECT_EQ(RowAfterInsert(3, 4), 3);
    EXPECT_EQ(RowAfterInsert(0, 0), 1);
    EXPECT_EQ(RowAfterInsert(-1, 0), -1);
    EXPECT_EQ(RowAfterInsert(3, -1), 3);
}

}  // namespace
}  // namespace kivu::settings
