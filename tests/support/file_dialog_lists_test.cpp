#include <gtest/gtest.h>

#include "support/file_dialog_room.h"

namespace kivu::support {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

// A POSIX disk, whose current directory is "/".
class FileDialogListsTest : public ::testing::Test, public FileDialogRoom {
 protected:
    FileDialogListsTest() : FileDialogRoom('/') {
        for (const char* path :
             {"/roms/a.adf", "/roms/B.adf", "/roms/note.txt", "/roms/sub/c.adf", "/roms/ügo/x.adf",
              "/home/me/d.adf", "/home/me/games/e.adf", "/media/stick/f.adf", "/usr/bin/amiga"})
            disk.AddFile(path, "x");
        disk.home = "/home/me";
        disk.drives = {"/", "/home/me", "/media/stick"};
    }
};

TEST_F(FileDialogListsTest, DirectoryIsEnteredByDoubleClickAndByEnter) {
    Open("/roms", "", "*.adf", [](FilesForm& form) {
        EXPECT_THAT(Rows(form.Dir1), ElementsAre("/roms/sub", "/roms/ügo"));
        Click(form.Dir1, 0);
        EXPECT_EQ(form.Dir1.Path(), "/roms");
        DoubleClick(form.Dir1, 0);
        EXPECT_EQ(form.Dir1.Path(), "/roms/sub");
        EXPECT_EQ(form.KomplettPfadText.Text(), "/roms/sub/*.adf");
        EXPECT_THAT(Rows(form.File1), ElementsAre("c.adf"));
        Click(form.UpBtn);
        EXPECT_EQ(form.Dir1.Path(), "/roms");
        form.Dir1.SetFocus();
        Strike(form, "End");
        Strike(form, "Enter");
        EXPECT_TRUE(form.Visible());
        EXPECT_EQ(form.Dir1.Path(), "/roms/ügo");
        Strike(form, "Backspace");
        EXPECT_EQ(form.Dir1.Path(), "/roms");
        form.File1.SetFocus();
        Strike(form, "Backspace");
        EXPECT_EQ(form.Dir1.Path(), "/");
        Click(form.UpBtn);
        EXPECT_EQ(form.Dir1.Path(), "/");
    });
}

TEST_F(FileDialogListsTest, DriveIsTheLongestThatBeginsThePath) {
    Open("/home/me/games", "", "", [](FilesForm& form) {
        EXPECT_EQ(form.Drive1.Drive(), "/home/me");
        Click(form.Drive1, 2);
        EXPECT_EQ(form.Dir1.Path(), "/media/stick");
        Click(form.Drive1, 0);
        EXPECT_EQ(form.Dir1.Path(), "/");
        Type(form.KomplettPfadText, "/home/me/games");
        Strike(form, "Enter");
        EXPECT_EQ(form.Drive1.Drive(), "/home/me");
        EXPECT_EQ(form.Dir1.Path(), "/home/me/games");
        // The drive itself, once more.
        Click(form.Drive1, 1);
        EXPECT_EQ(form.Dir1.Path(), "/home/me");
    });
}

TEST_F(FileDialogListsTest, DriveThatCannotBeEnteredIsNotChosen) {
    disk.drives.push_back("/mnt/cd");
    Open("/roms", "", "", [](FilesForm& form) {
        Click(form.Drive1, 3);
        EXPECT_EQ(form.Drive1.Drive(), "/");
        EXPECT_EQ(form.Dir1.Path(), "/roms");
    });
}

TEST_F(FileDialogListsTest, EnterOnADriveGoesOnToItsDirectories) {
    Open("/roms", "", "", [](FilesForm& form) {
        form.Drive1.SetFocus();
        Strike(form, "Down");
        EXPECT_EQ(form.Dir1.Path(), "/home/me");
        Strike(form, "Enter");
        EXPECT_TRUE(form.Visible());
        EXPECT_TRUE(form.Dir1.HasFocus());
    });
}

TEST_F(FileDialogListsTest, PathThatIsGoneLeadsToItsNearestParent) {
    for (const char* gone : {"/roms/no/such/place", "/roms/no/", "/roms//no", "/roms/a.adf/x"}) {
        Open(gone, "", "", [](FilesForm& form) { EXPECT_EQ(form.Dir1.Path(), "/roms"); });
    }
    Open("/nowhere", "", "", [](FilesForm& form) { EXPECT_EQ(form.Dir1.Path(), "/"); });
}

TEST_F(FileDialogListsTest, PathOfAFileBeginsWithThatFile) {
    EXPECT_EQ(Open("/roms/B.adf", "", "*.adf",
                   [](FilesForm& form) {
                       EXPECT_EQ(form.FileName.Text(), "");
                       EXPECT_EQ(form.File1.List(form.File1.ListIndex()), "B.adf");
                       Click(form.Ok);
                   }),
              "/roms/B.adf");
    EXPECT_EQ(Open("/roms/note.txt", "", "",
                   [](FilesForm& form) {
                       EXPECT_EQ(form.FileName.Text(), "note.txt");
                       Click(form.Ok);
                   }),
              "/roms/note.txt");
    Open("/roms/note.txt", "", "*.adf",
         [](FilesForm& form) { EXPECT_EQ(form.File1.ListIndex(), -1); });
}

TEST_F(FileDialogListsTest, CurrentDirectoryStaysWhatItIs) {
    ASSERT_FALSE(disk.ChangeDirectory("/home/me"));
    Open("/roms", "", "", [](FilesForm& form) {
        DoubleClick(form.Dir1, 0);
        Click(form.Drive1, 2);
        Click(form.Ok);
    });
    EXPECT_EQ(disk.CurrentDirectory(), "/home/me");
    EXPECT_THAT(disk.changes, IsEmpty());
}

TEST_F(FileDialogListsTest, TypedPathMovesTheLists) {
    Open("/roms", "", "*.adf", [](FilesForm& form) {
        const auto type = [&](const char* text) {
            Type(form.KomplettPfadText, text);
            Strike(form, "Tab");
        };
        type("/home/me/games/");
        EXPECT_EQ(form.Dir1.Path(), "/home/me/games");
        EXPECT_EQ(form.KomplettPfadText.Text(), "/home/me/games/*.adf");
        type("~");
        EXPECT_EQ(form.Dir1.Path(), "/home/me");
        type("\"/roms/sub\"");
        EXPECT_EQ(form.Dir1.Path(), "/roms/sub");
        type("..");
        EXPECT_EQ(form.Dir1.Path(), "/roms");
        type("/roms/*.txt");
        EXPECT_THAT(Rows(form.File1), ElementsAre("note.txt"));
        type("/home/me/d.adf");
        EXPECT_EQ(form.FileName.Text(), "d.adf");
        EXPECT_EQ(form.KomplettPfadText.Text(), "/home/me/d.adf");
        // Nothing is there: the text goes back to where the lists are.
        for (const char* nothing : {"/nowhere/x", "/home/me/none.adf", ""}) {
            type(nothing);
            EXPECT_EQ(form.Dir1.Path(), "/home/me");
            EXPECT_EQ(form.KomplettPfadText.Text(), "/home/me/d.adf");
        }
    });
}

TEST_F(FileDialogListsTest, TwoSlashesAreAPlainPath) {
    disk.AddFile("/x/y.adf", "x");
    Open("/roms", "", "", [](FilesForm& form) {
        Type(form.KomplettPfadText, "//x");
        Strike(form, "Enter");
        EXPECT_EQ(form.NetworkPath, "");
        EXPECT_THAT(Rows(form.File1), ElementsAre("y.adf"));
        EXPECT_EQ(form.Drive1.Drive(), "/");
    });
}

TEST_F(FileDialogListsTest, ProgramsAreShownWhateverTheirEnding) {
    EXPECT_EQ(Open("/usr/bin", "Emulator Exe wählen", "*.exe",
                   [](FilesForm& form) {
                       EXPECT_EQ(form.Caption(), "Emulator Exe wählen    (\"*.exe\")");
                       EXPECT_EQ(form.File1.Pattern(), "*.*");
                       DoubleClick(form.File1, 0);
                   }),
              "/usr/bin/amiga");
}

TEST_F(FileDialogListsTest, ShortWays) {
    disk.AddDirectory("/home/me/Desktop");
    Open("/roms", "", "", [&](FilesForm& form) {
        Click(form.Command1);
        EXPECT_EQ(form.Dir1.Path(), "/home/me/Desktop");
        Click(form.StartmenuBtn);
        EXPECT_EQ(form.Dir1.Path(), "/usr/bin");
        disk.AddDirectory("/usr/games");
        Click(form.StartmenuBtn);
        EXPECT_EQ(form.Dir1.Path(), "/usr/games");
        // As the user's desktop calls it.
        disk.AddFile("/home/me/.config/user-dirs.dirs",
                     "# XDG_DESKTOP_DIR=\"$HOME/No\"\nXDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n");
        disk.AddDirectory("/home/me/Schreibtisch");
        Click(form.Command1);
        EXPECT_EQ(form.Dir1.Path(), "/home/me/Schreibtisch");
        disk.Remove("/home/me/Schreibtisch");
        disk.Remove("/home/me/Desktop");
        Click(form.Command1);
        EXPECT_EQ(form.Dir1.Path(), "/home/me");
    });
}

TEST_F(FileDialogListsTest, DirectoryThatGoesWhileItIsShown) {
    EXPECT_EQ(Open("/roms/sub", "", "",
                   [&](FilesForm& form) {
                       disk.Remove("/roms/sub");
                       Click(form.UpBtn);
                       EXPECT_EQ(form.Dir1.Path(), "/roms");
                       EXPECT_THAT(Rows(form.Dir1), ElementsAre("/roms/ügo"));
                       // One that goes while its row stands there.
                       disk.Remove("/roms/ügo");
                       DoubleClick(form.Dir1, 0);
                       EXPECT_THAT(Rows(form.Dir1), IsEmpty());
                       EXPECT_EQ(form.Dir1.Path(), "/roms");
                       disk.Remove("/roms");
                       Click(form.UpBtn);
                       EXPECT_EQ(form.Dir1.Path(), "/");
                   }),
              "");
}

TEST_F(FileDialogListsTest, AllAboveGoesWhileARowIsEntered) {
    disk.AddFile("/deep/er/est/x", "x");
    Open("/deep/er", "", "", [&](FilesForm& form) {
        Click(form.Dir1, 0);
        disk.Remove("/deep");
        Strike(form, "Enter");
        EXPECT_EQ(form.Dir1.Path(), "/");
        EXPECT_THAT(Rows(form.Dir1), Not(Contains("/deep")));
    });
}

TEST_F(FileDialogListsTest, FilesOfADirectoryThatWentAreNoResult) {
    EXPECT_EQ(Open("/roms", "", "",
                   [&](FilesForm& form) {
                       Click(form.File1, 0);
                       form.FileName.SetText("");
                       int reads = 0;
                       disk.beforeRead = [&](const std::string& path) {
                           // Between the directories and the files of it.
                           if (path == "/home/me" && ++reads == 2) disk.Remove("/home/me");
                       };
                       Click(form.Drive1, 1);
                       disk.beforeRead = nullptr;
                       EXPECT_EQ(form.Dir1.Path(), "/home/me");
                       Click(form.Ok);
                       EXPECT_TRUE(form.Visible());
                   }),
              "");
}

TEST_F(FileDialogListsTest, UnreadableDirectoryIsNotEntered) {
    disk.SetUnreadable("/roms/sub");
    Open("/roms", "", "", [&](FilesForm& form) {
        DoubleClick(form.Dir1, 0);
        EXPECT_EQ(form.Dir1.Path(), "/roms");
        EXPECT_EQ(form.Dir1.ListCount(), 2);
        Type(form.KomplettPfadText, "/roms/sub");
        Strike(form, "Enter");
        EXPECT_EQ(form.KomplettPfadText.Text(), "/roms/");
    });
    Open("/roms/sub", "", "", [](FilesForm& form) { EXPECT_EQ(form.Dir1.Path(), "/roms"); });
    disk.SetUnreadable("/");
    Open("/roms/sub/x", "", "", [](FilesForm& form) {
        EXPECT_EQ(form.Dir1.Path(), "/roms");
        Click(form.UpBtn);
        EXPECT_EQ(form.Dir1.Path(), "/roms");
    });
}

TEST_F(FileDialogListsTest, LinksThatRunInACircleCanBeGoneThrough) {
    disk.AddLink("/roms/sub/back", "/roms");
    disk.AddLink("/roms/self", "/roms/self");
    Open("/roms", "", "", [](FilesForm& form) {
        EXPECT_EQ(form.Dir1.ListCount(), 2);
        for (const char* path : {"/roms/sub", "/roms/sub/back", "/roms/sub/back/sub"}) {
            DoubleClick(form.Dir1, 0);
            EXPECT_EQ(form.Dir1.Path(), path);
        }
    });
}

TEST_F(FileDialogListsTest, OddNamesComeBackAsTheyAre) {
    for (const std::string name : {" blank .adf ", "Übel.adf", "\xe4\xff.adf", "what?*.adf",
                                   "\"q\"", "~", "back\\slash", "tab\t", "-x"}) {
        disk.AddFile("/odd/" + name, "x");
        EXPECT_EQ(Open("/odd", "", "",
                       [](FilesForm& form) {
                           ASSERT_EQ(form.File1.ListCount(), 1);
                           DoubleClick(form.File1, 0);
                       }),
                  "/odd/" + name);
        disk.Remove("/odd/" + name);
        disk.AddFile("/odd/" + name + "/x", "x");
        EXPECT_EQ(Directory("/odd", "",
                            [](FilesForm& form) {
                                DoubleClick(form.Dir1, 0);
                                Click(form.OkBtn2);
                            }),
                  "/odd/" + name + "/");
        disk.Remove("/odd/" + name);
    }
}

TEST_F(FileDialogListsTest, NameFromARowGoesWithItsDirectoryAndATypedOneStays) {
    Open("/roms", "", "", [](FilesForm& form) {
        Click(form.File1, 0);
        Click(form.Drive1, 1);
        EXPECT_EQ(form.FileName.Text(), "");
        Type(form.FileName, "mine.adf");
        Click(form.Drive1, 0);
        EXPECT_EQ(form.FileName.Text(), "mine.adf");
        EXPECT_EQ(form.KomplettPfadText.Text(), "/mine.adf");
    });
}

TEST_F(FileDialogListsTest, LetterJumpsToTheNextRowThatBeginsWithIt) {
    disk.AddDirectory("/roms/Super");
    disk.AddDirectory("/roms/Über");
    Open("/roms", "", "", [](FilesForm& form) {
        forms::UserInput(form).Type(form.Dir1, "s");
        EXPECT_EQ(form.Dir1.Name(form.Dir1.ListIndex()), "Super");
        forms::UserInput(form).Type(form.Dir1, "S");
        EXPECT_EQ(form.Dir1.Name(form.Dir1.ListIndex()), "sub");
        forms::UserInput(form).Type(form.Dir1, "ü");
        EXPECT_EQ(form.Dir1.Name(form.Dir1.ListIndex()), "Über");
        forms::UserInput(form).Type(form.Dir1, "x");
        EXPECT_EQ(form.Dir1.Name(form.Dir1.ListIndex()), "Über");
        forms::UserInput(form).Type(form.File1, "b");
        EXPECT_EQ(form.FileName.Text(), "B.adf");
    });
}

TEST_F(FileDialogListsTest, ArrowsInTheNameGoThroughTheFiles) {
    EXPECT_EQ(Open("/roms", "", "*.adf",
                   [](FilesForm& form) {
                       EXPECT_TRUE(form.FileName.HasFocus());
                       Strike(form, "Down");
                       EXPECT_EQ(form.FileName.Text(), "B.adf");
                       Strike(form, "Down");
                       Strike(form, "Down");
                       EXPECT_EQ(form.FileName.Text(), "a.adf");
                       Strike(form, "Up");
                       Strike(form, "Up");
                       EXPECT_EQ(form.FileName.Text(), "B.adf");
                       Strike(form, "Enter");
                   }),
              "/roms/B.adf");
}

}  // namespace
}  // namespace kivu::support
