#include <gtest/gtest.h>

#include "support/file_dialog_room.h"

namespace kivu::support {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A Windows disk, whose current directory is "C:\".
class FileDialogTest : public ::testing::Test, public FileDialogRoom {
 protected:
    FileDialogTest() : FileDialogRoom('\\') {
        for (const char* path : {"C:\\Emu\\a.exe", "C:\\Emu\\b.exe", "C:\\Emu\\readme.txt",
                                 "C:\\Emu\\Sub\\c.exe", "C:\\Emu\\Roms\\d.adf", "D:\\Games\\e.adf"})
            disk.AddFile(path, "x");
        disk.drives = {"C:\\", "D:\\", "E:\\"};
    }
};

constexpr const char* exeCaption = "Emulator Exe wählen";

TEST_F(FileDialogTest, ChosenRowComesBehindItsDirectory) {
    EXPECT_EQ(Open("C:\\Emu", exeCaption, "*.exe",
                   [](FilesForm& form) {
                       EXPECT_EQ(form.Caption(), "Emulator Exe wählen    (\"*.exe\")");
                       EXPECT_EQ(form.TitleLabel.Caption(), form.Caption());
                       EXPECT_EQ(form.Mode, "File");
                       EXPECT_EQ(form.KomplettPfadText.Text(), "C:\\Emu\\*.exe");
                       EXPECT_EQ(form.FileName.Text(), "");
                       EXPECT_EQ(form.File1.Pattern(), "*.exe");
                       EXPECT_THAT(Rows(form.File1), ElementsAre("a.exe", "b.exe"));
                       EXPECT_EQ(form.Drive1.Drive(), "C:\\");
                       Click(form.File1, 0);
                       EXPECT_EQ(form.FileName.Text(), "a.exe");
                       EXPECT_EQ(form.KomplettPfadText.Text(), "C:\\Emu\\a.exe");
                       Click(form.Ok);
                   }),
              "C:\\Emu\\a.exe");
}

TEST_F(FileDialogTest, BlanksTakeTheRowThatIsChosen) {
    EXPECT_EQ(Open("C:\\Emu", "", "",
                   [](FilesForm& form) {
                       Click(form.File1, 0);
                       Type(form.FileName, "   ");
                       Click(form.Ok);
                   }),
              "C:\\Emu\\a.exe");
}

TEST_F(FileDialogTest, DoubleClickOnAFileIsOk) {
    EXPECT_EQ(Open("C:\\Emu", "", "", [](FilesForm& form) { DoubleClick(form.File1, 1); }),
              "C:\\Emu\\b.exe");
}

TEST_F(FileDialogTest, CaptionsOfItsOwn) {
    Open("C:\\Emu", "", "", [](FilesForm& form) { EXPECT_EQ(form.Caption(), "Open File"); });
    Open("C:\\Emu", "", "*.adf",
         [](FilesForm& form) { EXPECT_EQ(form.Caption(), "Open File    (\"*.adf\")"); });
    Save("C:\\Emu", "", "", [](FilesForm& form) { EXPECT_EQ(form.Caption(), "Save File as"); });
    Directory("C:\\Emu", "", [](FilesForm& form) { EXPECT_EQ(form.Caption(), "Open Directory"); });
    Directory("C:\\Emu", "ROM Verzeichnis wählen",
              [](FilesForm& form) { EXPECT_EQ(form.Caption(), "ROM Verzeichnis wählen"); });
}

TEST_F(FileDialogTest, EmptyPathBeginsInTheCurrentDirectory) {
    ASSERT_FALSE(disk.ChangeDirectory("D:\\Games"));
    EXPECT_EQ(Open("", "", "*.adf",
                   [](FilesForm& form) {
                       EXPECT_EQ(form.Dir1.Path(), "D:\\Games");
                       EXPECT_EQ(form.Drive1.Drive(), "D:\\");
                       EXPECT_EQ(form.KomplettPfadText.Text(), "D:\\Games\\*.adf");
                       DoubleClick(form.File1, 0);
                   }),
              "D:\\Games\\e.adf");
    EXPECT_EQ(Directory("", "", [](FilesForm& form) { Click(form.OkBtn2); }), "D:\\Games\\");
}

TEST_F(FileDialogTest, SlashesAreKeptAsTheyAreGiven) {
    EXPECT_EQ(Open("C:/Emu", "", "*.exe",
                   [](FilesForm& form) {
                       EXPECT_EQ(form.KomplettPfadText.Text(), "C:/Emu/*.exe");
                       EXPECT_EQ(form.Drive1.Drive(), "C:\\");
                       DoubleClick(form.File1, 0);
                   }),
              "C:/Emu/a.exe");
}

TEST_F(FileDialogTest, CancelGivesTheEmptyText) {
    const std::vector<Hands> ways{
        [](FilesForm& form) { Click(form.Abbruch); },
        [](FilesForm& form) { Strike(form, "Escape"); },
        [](FilesForm& form) { form.SetVisible(false); },
        [](FilesForm& form) { EXPECT_TRUE(form.Close()); },
        [](FilesForm& form) { form.Unload(); },
    };
    for (const Hands& way : ways) {
        EXPECT_EQ(Open("C:\\Emu", "", "",
                       [&](FilesForm& form) {
                           Click(form.File1, 0);
                           way(form);
                       }),
                  "");
    }
    EXPECT_EQ(Directory("C:\\Emu", "", [](FilesForm& form) { Click(form.AbbruchBtn2); }), "");
    EXPECT_EQ(Directory("C:\\Emu", "", [](FilesForm& form) { Strike(form, "Escape"); }), "");
}

TEST_F(FileDialogTest, EachOpeningStartsFresh) {
    Open("C:\\Emu", "", "*.exe", [](FilesForm& form) {
        Click(form.File1, 0);
        Click(form.Ok);
    });
    hands = nullptr;
    EXPECT_EQ(dialogs.FileOpenDialog("", "", "", &owner), "");
    Open("", "", "", [](FilesForm& form) {
        EXPECT_EQ(form.FileName.Text(), "");
        EXPECT_EQ(form.Mask, "");
        EXPECT_EQ(form.Dir1.Path(), "C:\\");
        EXPECT_FALSE(form.EnableTimer.Enabled());
        EXPECT_EQ(form.EnableTimer.Interval(), 1000);
    });
    EXPECT_EQ(opened, 3);
    EXPECT_EQ(windows.Find("Files"), nullptr);
}

TEST_F(FileDialogTest, SecondOneWhileTheFirstIsOpenIsCancelledAtOnce) {
    EXPECT_EQ(Open("C:\\Emu", "", "*.exe",
                   [&](FilesForm& form) {
                       EXPECT_EQ(dialogs.FileOpenDialog("D:\\Games", "", "", &owner), "");
                       EXPECT_EQ(dialogs.FileDirSelectDialog("D:\\Games", "", &form), "");
                       EXPECT_TRUE(form.Visible());
                       EXPECT_EQ(form.Dir1.Path(), "C:\\Emu");
                       EXPECT_EQ(form.Mode, "File");
                       DoubleClick(form.File1, 0);
                   }),
              "C:\\Emu\\a.exe");
    EXPECT_EQ(opened, 1);
}

TEST_F(FileDialogTest, OneNameIsMaskAndNameAndStaysOutOfTheCaption) {
    disk.AddFile("C:\\Emu\\Deamon.exe", "x");
    EXPECT_EQ(Open("C:\\Emu", "Deamon-Tool", "deamon.exe",
                   [](FilesForm& form) {
                       EXPECT_EQ(form.Caption(), "Deamon-Tool");
                       EXPECT_EQ(form.File1.Pattern(), "deamon.exe");
                       EXPECT_THAT(Rows(form.File1), ElementsAre("Deamon.exe"));
                       EXPECT_EQ(form.FileName.Text(), "deamon.exe");
                       EXPECT_EQ(form.FileName.SelLength(), 10);
                       EXPECT_EQ(form.KomplettPfadText.Text(), "C:\\Emu\\deamon.exe");
                       Click(form.Ok);
                   }),
              "C:\\Emu\\deamon.exe");
}

TEST_F(FileDialogTest, TypedMaskIsShownAndNeverComesBack) {
    EXPECT_EQ(Open("C:\\Emu", "", "*.exe",
                   [](FilesForm& form) {
                       Type(form.FileName, "*.TXT");
                       Click(form.Ok);
                       EXPECT_TRUE(form.Visible());
                       EXPECT_EQ(form.File1.Pattern(), "*.TXT");
                       EXPECT_THAT(Rows(form.File1), ElementsAre("readme.txt"));
                       EXPECT_EQ(form.FileName.Text(), "");
                       Type(form.FileName, "Roms\\?.adf");
                       Strike(form, "Enter");
                       EXPECT_EQ(form.Dir1.Path(), "C:\\Emu\\Roms");
                       EXPECT_THAT(Rows(form.File1), ElementsAre("d.adf"));
                       DoubleClick(form.File1, 0);
                   }),
              "C:\\Emu\\Roms\\d.adf");
}

TEST_F(FileDialogTest, TypedNameNeedNotBeThereYet) {
    EXPECT_EQ(Open("C:\\Emu", "", "",
                   [](FilesForm& form) {
                       Type(form.FileName, " new.exe ");
                       Strike(form, "Enter");
                   }),
              "C:\\Emu\\new.exe");
    EXPECT_EQ(Save("C:\\Emu", "", "",
                   [](FilesForm& form) {
                       Type(form.FileName, "new.uae");
                       Click(form.Ok);
                   }),
              "C:\\Emu\\new.uae");
    EXPECT_EQ(Save("C:\\Emu", "", "save.uae", [](FilesForm& form) { Click(form.Ok); }),
              "C:\\Emu\\save.uae");
}

TEST_F(FileDialogTest, SavesUnderTheTypedNameAlone) {
    EXPECT_EQ(Save("C:\\Emu", "", "",
                   [](FilesForm& form) {
                       EXPECT_EQ(form.Mode, "SaveFile");
                       Click(form.File1, 0);
                       Click(form.Dir1, 1);
                       Strike(form, "Enter");
                       EXPECT_EQ(form.FileName.Text(), "a.exe");
                       Click(form.Ok);
                   }),
              "C:\\Emu\\Sub\\a.exe");
}

TEST_F(FileDialogTest, WholePathAndQuotesMeanThemselves) {
    const std::vector<std::pair<const char*, const char*>> table{
        {"D:\\Games\\e.adf", "D:\\Games\\e.adf"},
        {"\"D:\\My Games\\x.adf\"", "D:\\My Games\\x.adf"},
        {"Sub\\c.exe", "C:\\Emu\\Sub\\c.exe"},
        {"\\\\nas\\roms\\x.adf", "\\\\nas\\roms\\x.adf"},
        {"..\\x", "C:\\x"},
    };
    for (const auto& [typed, result] : table) {
        EXPECT_EQ(Open("C:\\Emu", "", "",
                       [&](FilesForm& form) {
                           Type(form.FileName, typed);
                           EXPECT_EQ(form.KomplettPfadText.Text(), result);
                           Click(form.Ok);
                       }),
                  result);
    }
}

TEST_F(FileDialogTest, TypedDirectoryIsGoneInto) {
    EXPECT_EQ(Open("C:\\Emu", "", "",
                   [](FilesForm& form) {
                       Type(form.FileName, "Sub");
                       Click(form.Ok);
                       EXPECT_EQ(form.Dir1.Path(), "C:\\Emu\\Sub");
                       EXPECT_EQ(form.FileName.Text(), "");
                       Type(form.FileName, "..");
                       Strike(form, "Enter");
                       EXPECT_EQ(form.Dir1.Path(), "C:\\Emu");
                       Type(form.FileName, "D:\\Games");
                       Strike(form, "Enter");
                       EXPECT_EQ(form.Drive1.Drive(), "D:\\");
                       DoubleClick(form.File1, 0);
                   }),
              "D:\\Games\\e.adf");
}

TEST_F(FileDialogTest, DirectoryComesWithItsSeparator) {
    EXPECT_EQ(Directory("C:\\Emu", "",
                        [](FilesForm& form) {
                            EXPECT_EQ(form.Mode, "Dir");
                            EXPECT_TRUE(form.Frame2.Visible());
                            EXPECT_FALSE(form.Frame1.Visible());
                            EXPECT_FALSE(form.File1.IsReachable());
                            EXPECT_EQ(form.KomplettPfadText.Text(), "C:\\Emu\\");
                            EXPECT_EQ(form.Dir1.ListIndex(), -1);
                            Click(form.OkBtn2);
                        }),
              "C:\\Emu\\");
    EXPECT_EQ(Directory("C:\\", "", [](FilesForm& form) { Strike(form, "Enter"); }), "");
    EXPECT_EQ(Directory("C:\\", "", [](FilesForm& form) { Click(form.OkBtn2); }), "C:\\");
}

TEST_F(FileDialogTest, ChosenDirectoryComesFirst) {
    EXPECT_EQ(Directory("C:\\Emu", "",
                        [](FilesForm& form) {
                            Click(form.Dir1, 1);
                            EXPECT_EQ(form.KomplettPfadText.Text(), "C:\\Emu\\Sub\\");
                            Click(form.OkBtn2);
                        }),
              "C:\\Emu\\Sub\\");
    EXPECT_EQ(Directory("C:\\Emu", "",
                        [](FilesForm& form) {
                            Strike(form, "Down");
                            Strike(form, "Enter");
                            EXPECT_EQ(form.Dir1.Path(), "C:\\Emu\\Roms");
                            Click(form.OkBtn2);
                        }),
              "C:\\Emu\\Roms\\");
}

TEST_F(FileDialogTest, ShareIsKeptThoughItCannotBeReached) {
    EXPECT_EQ(Directory("\\\\nas\\roms", "",
                        [](FilesForm& form) {
                            EXPECT_EQ(form.KomplettPfadText.Text(), "\\\\nas\\roms\\");
                            Click(form.OkBtn2);
                        }),
              "\\\\nas\\roms\\");
    EXPECT_EQ(Directory("C:\\Emu", "",
                        [](FilesForm& form) {
                            Type(form.KomplettPfadText, "//nas/roms");
                            Strike(form, "Tab");
                            EXPECT_EQ(form.KomplettPfadText.Text(), "//nas/roms");
                            Click(form.OkBtn2);
                        }),
              "//nas/roms/");
    EXPECT_EQ(Directory("C:\\Emu", "",
                        [](FilesForm& form) {
                            Type(form.KomplettPfadText, "\\\\nas\\roms");
                            Click(form.Drive1, 1);
                            Click(form.OkBtn2);
                        }),
              "D:\\");
}

TEST_F(FileDialogTest, ShareThatAnswersIsLookedInto) {
    disk.AddFile("\\\\nas\\roms\\a.adf", "x");
    for (const char* given : {"\\\\nas\\roms", "\\\\nas\\roms\\", "\\\\nas\\roms\\gone"}) {
        EXPECT_EQ(Open(given, "", "*.adf",
                       [](FilesForm& form) {
                           EXPECT_EQ(form.NetworkPath, "");
                           DoubleClick(form.File1, 0);
                       }),
                  "\\\\nas\\roms\\a.adf");
    }
    EXPECT_EQ(Open("\\\\nas\\roms\\a.adf", "", "", [](FilesForm& form) { Click(form.Ok); }),
              "\\\\nas\\roms\\a.adf");
}

TEST_F(FileDialogTest, ShareThatDoesNotAnswerIsAskedForLittle) {
    int asked = 0;
    disk.beforeRead = [&](const std::string& path) { asked += path.starts_with("\\\\") ? 1 : 0; };
    Directory("\\\\nas\\a\\b\\c\\d\\e", "", nullptr);
    EXPECT_LE(asked, 2);
}

}  // namespace
}  // namespace kivu::support
