#include "settings/master_text.h"

#include <gtest/gtest.h>

#include "launch/uae_configuration.h"
#include "testing/faulty_file_system.h"
#include "testing/md5.h"
#include "testing/memory_file_system.h"

namespace kivu::settings {
namespace {

using kivu::testing::Md5;
using Step = MasterText::Step;

constexpr const char* master = "/k/Config/Kivu_Master.uaecfg";
constexpr const char* other = "/uae/other.uae";

struct Master : ::testing::Test {
    Master() { disk.AddDirectory("/k/Config"); }
    std::string Load(std::string_view bytes) {
        disk.AddFile(master, bytes);
        return text.Load(master);
    }
    std::optional<std::string> Import(std::string_view bytes) {
        disk.AddFile(other, bytes);
        return text.Import(other);
    }
    std::string OnDisk() const { return disk.BytesOf(master); }

    testing::MemoryFileSystem disk{'/'};
    testing::FaultyFileSystem files{disk};
    MasterText text{files};
};

TEST(AllowedValue, LeavesOutWhatEachLaunchWritesItself) {
    for (const char* line : {"", "   ", "floppy1=D:\\b.adf", "floppy2=", ";floppy1=",
                             "kickstart_rom_file=D:\\kick13.rom", "x floppy2=y"})
        EXPECT_FALSE(ImportOfConfigStringAllowedValue(line)) << line;
    for (const char* line :
         {"floppy0=D:\\a.adf", "floppy3=D:\\d.adf", "Floppy1=x", "floppy1type=0", "floppy1 =x",
          "kickstart_rom_file_id=D52B52FD", "  use_gui = no", "; sample", "\t"})
        EXPECT_TRUE(ImportOfConfigStringAllowedValue(line)) << line;
}

TEST_F(Master, TheDefaultLosesItsEmptyLineAndGainsOne) {
    const std::string bytes = launch::DefaultMasterConfiguration();
    ASSERT_EQ(bytes.size(), 231U);
    const std::string shown = Load(bytes);
    EXPECT_EQ(shown.size(), 229U);
    EXPECT_EQ(Md5::Of(shown), "ee4ad06ec82e9684987c084ba9ed86c6");
    ASSERT_FALSE(text.Write(shown));
    EXPECT_EQ(OnDisk().size(), 231U);
    EXPECT_EQ(Md5::Of(OnDisk()), "b8b95985ca33188f9ed5b9f1a5271c6c");
    EXPECT_EQ(text.Load(master), shown);
}

TEST_F(Master, AnImportTakesTheAllowedLines) {
    disk.AddFile(master, "");
    text.Load(master);
    const auto shown = Import(
        "; sample\r\nconfig_description=A500\r\n  use_gui = no\r\nfloppy0=D:\\a.adf\r\n"
        "floppy1=D:\\b.adf\r\n;floppy1=\r\nfloppy1type=0\r\nFloppy1=x\r\nfloppy2=\r\n"
        "floppy3=D:\\d.adf\r\nkickstart_rom_file=D:\\kick13.rom\r\n"
        "kickstart_rom_file_id=D52B52FD\r\n   \r\n\r\nchipmem_size=1\r\nnr_floppies=2\r\n");
    ASSERT_TRUE(shown);
    EXPECT_EQ(*shown,
              "; sample\r\nconfig_description=A500\r\n  use_gui = no\r\nfloppy0=D:\\a.adf\r\n"
              "floppy1type=0\r\nFloppy1=x\r\nfloppy3=D:\\d.adf\r\n"
              "kickstart_rom_file_id=D52B52FD\r\nchipmem_size=1\r\nnr_floppies=2\r\n");
    EXPECT_EQ(shown->size(), 176U);
    EXPECT_EQ(Md5::Of(*shown), "5f389fe47c6bdfdb30def18929850313");
    EXPECT_EQ(OnDisk(), "");
    EXPECT_EQ(text.StepFor(*shown), Step::write);
    ASSERT_FALSE(text.Write(*shown));
    EXPECT_EQ(OnDisk().size(), 178U);
    EXPECT_EQ(Md5::Of(OnDisk()), "8b3b253c19df199606acae085b590cb1");
}

TEST_F(Master, LinesMayEndInALineFeedAloneAndTheLastInNothing) {
    EXPECT_EQ(Load("a=1\nb=2\r\n\nc=3"), "a=1\r\nb=2\r\nc=3\r\n");
    EXPECT_EQ(Load(""), "");
}

TEST_F(Master, AnImportThatCannotBeReadKeepsTheText) {
    const std::string shown = Load("a=1\r\n");
    EXPECT_EQ(text.Import("/uae/missing.uae"), std::nullopt);
    EXPECT_EQ(Import(std::string("a\0b=1", 5)), std::nullopt);
    EXPECT_EQ(Import(std::string(largestConfiguration + 1, 'a')), std::nullopt);
    EXPECT_TRUE(Import(std::string(largestConfiguration, 'a')));
    disk.AddFile(other, "b=2");
    disk.SetUnreadable(other);
    EXPECT_EQ(text.Import(other), std::nullopt);
    disk.AddDirectory("/uae/dir.uae");
    EXPECT_EQ(text.Import("/uae/dir.uae"), std::nullopt);
    EXPECT_EQ(text.StepFor(shown), Step::write);
}

TEST_F(Master, UntouchedLinesKeepTheirBytes) {
    // Neither is UTF-8, and both are shown alike.
    const std::string shown = Load(
        "name=Gr\xFC\xDF"
        "e\r\na=1\r\nx=\x80\r\n");
    EXPECT_EQ(shown, "name=Grüße\r\na=1\r\nx=€\r\n");
    EXPECT_EQ(text.BytesFor(shown),
              "name=Gr\xFC\xDF"
              "e\r\na=1\r\nx=\x80\r\n\r\n");
    EXPECT_EQ(text.BytesFor("x=€\r\nname=Grüßen\r\nx=€\r\n"),
              "x=\x80\r\nname=Grüßen\r\nx=\x80\r\n\r\n");
}

TEST_F(Master, LinesThatAreShownAlikeKeepTheirOwnBytesInTurn) {
    const std::string shown = Load("x=\x80\r\nx=€\r\n");
    EXPECT_EQ(shown, "x=€\r\nx=€\r\n");
    EXPECT_EQ(text.BytesFor(shown), "x=\x80\r\nx=€\r\n\r\n");
    EXPECT_EQ(text.BytesFor(shown + "x=€"), "x=\x80\r\nx=€\r\nx=€\r\n");
}

TEST_F(Master, TheTextIsWrittenAsItStandsWithOneMoreLineEnd) {
    Load("a=1\r\n");
    EXPECT_EQ(text.BytesFor(""), "\r\n");
    EXPECT_EQ(text.BytesFor("a"), "a\r\n");
    EXPECT_EQ(text.BytesFor("a\r\n"), "a\r\n\r\n");
    EXPECT_EQ(text.BytesFor("a\n\nb"), "a\r\n\r\nb\r\n");
    // Lines that are left out at the next loading are written all the same.
    EXPECT_EQ(text.BytesFor("floppy1=x"), "floppy1=x\r\n");
}

TEST_F(Master, IsWrittenInWindowsCodePageThere) {
    testing::MemoryFileSystem drive('\\');
    drive.AddFile("C:\\m.uaecfg", "a=\x81\xFC\r\n");
    MasterText onWindows{drive};
    const std::string shown = onWindows.Load("C:\\m.uaecfg");
    EXPECT_EQ(onWindows.BytesFor(shown), "a=\x81\xFC\r\n\r\n");
    EXPECT_EQ(onWindows.BytesFor("b=ü"), "b=\xFC\r\n");
}

// --- What a save does.

TEST_F(Master, ASaveWritesAnUntouchedTextAsWell) {
    const std::string shown = Load("a=1\r\nfloppy1=x\r\n");
    EXPECT_EQ(text.StepFor(shown), Step::write);
    EXPECT_EQ(text.StepFor("a=2\r\n"), Step::write);
    EXPECT_EQ(text.StepFor(""), Step::write);
}

TEST_F(Master, WhatTheDefaultsOfAnotherEmulatorEmptiedIsLeftAlone) {
    const std::string shown = Load("a=1\r\n");
    text.EmptiedByDefaults();
    EXPECT_EQ(text.StepFor(""), Step::leave);
    EXPECT_EQ(text.StepFor("b=1"), Step::ask);
    // Even where another program has written it meanwhile.
    disk.AddFile(master, "new");
    EXPECT_EQ(text.StepFor(""), Step::leave);
    text.Load(master);
    EXPECT_EQ(text.StepFor(""), Step::write);
    text.EmptiedByDefaults();
    ASSERT_TRUE(Import(""));
    EXPECT_EQ(text.StepFor(""), Step::write);
}

TEST_F(Master, AnEmptyFileNeedsNoQuestionBehindTheDefaults) {
    Load("\r\n");
    text.EmptiedByDefaults();
    EXPECT_EQ(text.StepFor("b=1"), Step::write);
    disk.Remove(master);
    text.Load(master);
    text.EmptiedByDefaults();
    EXPECT_EQ(text.StepFor("b=1"), Step::write);
}

TEST_F(Master, WhatAnotherProgramWroteIsTakenOverOrAskedAbout) {
    const std::string shown = Load("a=1\r\n");
    disk.AddFile(master, "a=2\r\n");
    EXPECT_EQ(text.StepFor(shown), Step::reload);
    EXPECT_EQ(text.StepFor("mine"), Step::ask);
    EXPECT_EQ(text.Load(master), "a=2\r\n");
    EXPECT_EQ(text.StepFor("a=2\r\n"), Step::write);
    disk.Remove(master);
    EXPECT_EQ(text.StepFor("a=2\r\n"), Step::reload);
    EXPECT_EQ(text.StepFor("mine"), Step::ask);
}

TEST_F(Master, ItsOwnWriteIsNoChangeByAnother) {
    Load("a=1\r\n");
    ASSERT_FALSE(text.Write("b=1"));
    EXPECT_EQ(text.StepFor("b=1"), Step::write);
    disk.AddFile(master, "c=1");
    EXPECT_EQ(text.StepFor("b=1"), Step::reload);
}

TEST_F(Master, AMissingFileIsMadeByItsDefaultUnlessThereIsText) {
    EXPECT_EQ(text.Load(master), "");
    EXPECT_EQ(text.StepFor(""), Step::leave);
    EXPECT_EQ(text.StepFor("a=1"), Step::write);
    // The launcher makes it before an import.
    disk.AddFile(master, launch::DefaultMasterConfiguration());
    EXPECT_EQ(text.StepFor("a=1"), Step::ask);
    text.FileMade();
    EXPECT_EQ(text.StepFor("a=1"), Step::write);
    // An empty box has said nothing about the default.
    EXPECT_EQ(text.StepFor(""), Step::reload);
    ASSERT_FALSE(text.Write(""));
    EXPECT_EQ(text.StepFor(""), Step::write);
}

TEST_F(Master, TextTypedBeforeThereWasAFileAsksBeforeItReplacesOne) {
    EXPECT_EQ(text.Load(""), "");
    text.SetPath(master);
    EXPECT_EQ(text.StepFor("a=1"), Step::write);
    disk.AddFile(master, "b=1");
    EXPECT_EQ(text.StepFor("a=1"), Step::ask);
    EXPECT_EQ(text.StepFor(""), Step::reload);
    ASSERT_FALSE(text.Write("a=1"));
    EXPECT_EQ(OnDisk(), "a=1\r\n");
}

TEST_F(Master, AFileThatCannotBeShownIsNotOverwrittenUnasked) {
    for (const std::string& bytes :
         {std::string("a\0b", 3), std::string(largestConfiguration + 1, 'x')}) {
        EXPECT_EQ(Load(bytes), "");
        EXPECT_EQ(text.StepFor(""), Step::leave);
        EXPECT_EQ(text.StepFor("a=1"), Step::ask);
    }
    disk.Remove(master);
    disk.AddDirectory(master);
    EXPECT_EQ(text.Load(master), "");
    EXPECT_EQ(text.StepFor(""), Step::leave);
    EXPECT_EQ(text.StepFor("a=1"), Step::ask);
    EXPECT_TRUE(text.Write("a=1"));
}

TEST_F(Master, AFailedWriteLeavesTheOldFileAndIsTriedAgain) {
    Load("a=1\r\n");
    for (const auto step :
         {testing::FaultyFileSystem::Step::Write, testing::FaultyFileSystem::Step::Flush,
          testing::FaultyFileSystem::Step::Rename}) {
        files.FailOnce(step, 1, std::errc::no_space_on_device);
        EXPECT_EQ(text.Write("b=1"), std::errc::no_space_on_device);
        EXPECT_EQ(OnDisk(), "a=1\r\n");
        EXPECT_EQ(text.StepFor("b=1"), Step::write);
    }
    EXPECT_FALSE(text.Write("b=1"));
    EXPECT_EQ(OnDisk(), "b=1\r\n");
}

}  // namespace
}  // namespace kivu::settings
