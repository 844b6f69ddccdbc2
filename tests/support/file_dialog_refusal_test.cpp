#include <gtest/gtest.h>

#include "support/file_dialog_room.h"

namespace kivu::support {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What the dialog does not answer, and tells by a beep.
class Refusals : public ::testing::Test, public FileDialogRoom {
 protected:
    using FileDialogRoom::FileDialogRoom;
    // Exactly one beep, and the window is still there.
    void ExpectRefused(const FilesForm& form) {
        EXPECT_TRUE(form.Visible());
        EXPECT_EQ(beeper.count, 1);
        beeper.count = 0;
    }
    void ExpectTaken(const FilesForm& form) {
        EXPECT_TRUE(form.Visible());
        EXPECT_EQ(beeper.count, 0);
    }
};

class FileDialogRefusal : public Refusals {
 protected:
    FileDialogRefusal() : Refusals('/') {
        for (const char* path : {"/roms/a.adf", "/roms/sub/c.adf", "/home/me/d.adf"})
            disk.AddFile(path, "x");
        disk.home = "/home/me";
        disk.drives = {"/", "/home/me"};
    }
};

TEST_F(FileDialogRefusal, DirectoryAloneIsNoFile) {
    const Hands hands = [&](FilesForm& form) {
        Click(form.Ok);
        ExpectRefused(form);
        EXPECT_TRUE(form.FileName.HasFocus());
        Strike(form, "Enter");
        ExpectRefused(form);
        for (const char* nothing : {"  ", "\"\"", "\" \"", "no/", "*/x", "none/*.adf"}) {
            Type(form.FileName, nothing);
            Click(form.Ok);
            ExpectRefused(form);
            EXPECT_EQ(form.Dir1.Path(), "/roms");
        }
    };
    EXPECT_EQ(Open("/roms", "", "", hands), "");
    EXPECT_EQ(Open("/roms", "", "*.adf", hands), "");
    EXPECT_EQ(Save("/roms", "", "", hands), "");
}

TEST_F(FileDialogRefusal, RowIsNoNameToSaveUnder) {
    EXPECT_EQ(Save("/roms", "", "",
                   [&](FilesForm& form) {
                       Click(form.File1, 0);
                       Type(form.FileName, "  ");
                       Click(form.Ok);
                       ExpectRefused(form);
                   }),
              "");
}

TEST_F(FileDialogRefusal, OkEntersTheDirectoryThatIsChosenWhileAFileIsAskedFor) {
    EXPECT_EQ(Open("/roms", "", "*.adf",
                   [&](FilesForm& form) {
                       Click(form.Dir1, 0);
                       Click(form.Ok);
                       ExpectTaken(form);
                       EXPECT_EQ(form.Dir1.Path(), "/roms/sub");
                       DoubleClick(form.File1, 0);
                   }),
              "/roms/sub/c.adf");
}

TEST_F(FileDialogRefusal, DirectoryThatCannotBeReadIsNoFile) {
    disk.SetUnreadable("/roms/sub");
    EXPECT_EQ(Open("/roms", "", "",
                   [&](FilesForm& form) {
                       Type(form.FileName, "sub");
                       Click(form.Ok);
                       ExpectRefused(form);
                       DoubleClick(form.Dir1, 0);
                       ExpectRefused(form);
                   }),
              "");
}

TEST_F(FileDialogRefusal, PathThatLeadsNowhereIsNotAnsweredByTheOneBefore) {
    EXPECT_EQ(Directory("/roms", "",
                        [&](FilesForm& form) {
                            Type(form.KomplettPfadText, "/rosm");
                            Click(form.OkBtn2);
                            ExpectRefused(form);
                            EXPECT_TRUE(form.KomplettPfadText.HasFocus());
                            EXPECT_EQ(form.KomplettPfadText.Text(), "/roms/");
                            Click(form.OkBtn2);
                        }),
              "/roms/");
    EXPECT_EQ(beeper.count, 0);
    // Enter tells it at once.
    EXPECT_EQ(Directory("/roms", "",
                        [&](FilesForm& form) {
                            Type(form.KomplettPfadText, "/rosm");
                            Strike(form, "Enter");
                            ExpectRefused(form);
                            Click(form.OkBtn2);
                        }),
              "/roms/");
    // What is chosen afterwards is meant.
    EXPECT_EQ(Open("/roms", "", "",
                   [&](FilesForm& form) {
                       Type(form.KomplettPfadText, "/roms/b.adf");
                       Click(form.File1, 0);
                       Click(form.Ok);
                   }),
              "/roms/a.adf");
    EXPECT_EQ(Directory("/roms", "",
                        [&](FilesForm& form) {
                            Type(form.KomplettPfadText, "/rosm");
                            Click(form.AbbruchBtn2);
                        }),
              "");
    EXPECT_EQ(beeper.count, 0);
}

TEST_F(FileDialogRefusal, DirectoryThatWentIsNotAnswered) {
    EXPECT_EQ(Directory("/roms/sub", "",
                        [&](FilesForm& form) {
                            disk.Remove("/roms/sub");
                            Click(form.OkBtn2);
                            ExpectRefused(form);
                            EXPECT_EQ(form.KomplettPfadText.Text(), "/roms/");
                            Click(form.OkBtn2);
                        }),
              "/roms/");
    disk.AddDirectory("/roms/row");
    EXPECT_EQ(Directory("/roms", "",
                        [&](FilesForm& form) {
                            Click(form.Dir1, 0);
                            disk.Remove("/roms/row");
                            Click(form.OkBtn2);
                            ExpectRefused(form);
                            EXPECT_THAT(Rows(form.Dir1), IsEmpty());
                            EXPECT_EQ(form.KomplettPfadText.Text(), "/roms/");
                        }),
              "");
}

TEST_F(FileDialogRefusal, SignsOfAMaskInADirectorysNameAreNoMask) {
    disk.AddDirectory("/what?/is*");
    EXPECT_EQ(Open("/what?", "", "",
                   [&](FilesForm& form) {
                       Type(form.FileName, "new.adf");
                       EXPECT_EQ(form.KomplettPfadText.Text(), "/what?/new.adf");
                       Click(form.Ok);
                   }),
              "/what?/new.adf");
    EXPECT_EQ(Open("/roms", "", "",
                   [&](FilesForm& form) {
                       Type(form.FileName, "/what?/is*/new.adf");
                       Click(form.Ok);
                   }),
              "/what?/is*/new.adf");
}

TEST_F(FileDialogRefusal, FullPathTellsTheRowAsItIs) {
    for (const std::string name : {" blank .adf ", "what?*.adf", "\"q\"", "~"}) {
        disk.AddFile("/odd/" + name, "x");
        Open("/odd", "", "", [&](FilesForm& form) {
            Click(form.File1, 0);
            EXPECT_EQ(form.KomplettPfadText.Text(), "/odd/" + name);
        });
        disk.Remove("/odd/" + name);
    }
    // A directory's, too.
    disk.AddDirectory("/odd/two\\\\/x");
    Open("/odd/two\\\\/", "", "",
         [](FilesForm& form) { EXPECT_EQ(form.Dir1.Path(), "/odd/two\\\\"); });
    // Also where its name is not filled in.
    Open("/roms/a.adf", "", "*.adf", [](FilesForm& form) {
        EXPECT_EQ(form.FileName.Text(), "");
        EXPECT_EQ(form.KomplettPfadText.Text(), "/roms/a.adf");
    });
}

TEST_F(FileDialogRefusal, SeparatorsAloneLeadToTheRoot) {
    for (const char* root : {"/", "//", "///"}) {
        EXPECT_EQ(Open("/roms", "", "",
                       [&](FilesForm& form) {
                           Type(form.FileName, root);
                           Click(form.Ok);
                           ExpectTaken(form);
                           EXPECT_EQ(form.Dir1.Path(), "/");
                           EXPECT_EQ(form.FileName.Text(), "");
                       }),
                  "");
    }
}

TEST_F(FileDialogRefusal, WithoutACurrentDirectoryItBeginsAtHome) {
    disk.AddDirectory("/gone");
    ASSERT_FALSE(disk.ChangeDirectory("/gone"));
    disk.Remove("/gone");
    disk.SetUnreadable("/");
    Open("", "", "", [](FilesForm& form) {
        EXPECT_EQ(form.Dir1.Path(), "/home/me");
        EXPECT_EQ(form.Drive1.Drive(), "/home/me");
        EXPECT_THAT(Rows(form.File1), ElementsAre("d.adf"));
    });
}

TEST_F(FileDialogRefusal, WithoutAHomeTheDesktopIsNotLookedForBelowTheCurrentDirectory) {
    disk.AddDirectory("/roms/Desktop");
    ASSERT_FALSE(disk.ChangeDirectory("/roms"));
    disk.home.clear();
    Open("/roms", "", "", [&](FilesForm& form) {
        Click(form.Command1);
        ExpectRefused(form);
        EXPECT_EQ(form.Dir1.Path(), "/roms");
    });
}

// The same on a disk with drives and shares.
class FileDialogRefusalOnDrives : public Refusals {
 protected:
    FileDialogRefusalOnDrives() : Refusals('\\') {
        for (const char* path : {"C:\\Emu\\a.exe", "C:\\Emu\\Sub\\c.exe", "E:\\Games\\e.adf",
                                 "\\\\nas\\roms\\x.adf", "\\\\nas\\roms\\y.txt"})
            disk.AddFile(path, "x");
        disk.home = "C:\\Emu";
        disk.drives = {"C:\\", "E:\\"};
    }
    void PullOut() {
        disk.Remove("E:\\");
        disk.drives = {"C:\\"};
    }
};

TEST_F(FileDialogRefusalOnDrives, DriveThatHasGoneGoesFromTheList) {
    Open("C:\\Emu", "", "", [&](FilesForm& form) {
        PullOut();
        Click(form.Drive1, 1);
        ExpectRefused(form);
        EXPECT_EQ(form.Dir1.Path(), "C:\\Emu");
        EXPECT_EQ(form.Drive1.Drive(), "C:\\");
        EXPECT_THAT(Rows(form.Drive1), ElementsAre("C:\\"));
        Type(form.FileName, "E:");
        Click(form.Ok);
        ExpectRefused(form);
    });
}

TEST_F(FileDialogRefusalOnDrives, DriveThatGoesWhileItIsShownIsLeft) {
    const std::vector<Hands> ways{
        [](FilesForm& form) { Click(form.UpBtn); },
        [](FilesForm& form) { Click(form.OkBtn2); },
        [](FilesForm& form) { DoubleClick(form.Dir1, 0); },
    };
    for (const Hands& way : ways) {
        disk.AddFile("E:\\Games\\Old\\e.adf", "x");
        disk.drives = {"C:\\", "E:\\"};
        EXPECT_EQ(Directory("E:\\Games", "",
                            [&](FilesForm& form) {
                                PullOut();
                                way(form);
                                EXPECT_TRUE(form.Visible());
                                EXPECT_EQ(form.Dir1.Path(), "C:\\Emu");
                                EXPECT_EQ(form.Drive1.Drive(), "C:\\");
                            }),
                  "");
    }
}

TEST_F(FileDialogRefusalOnDrives, ShareThatGoesWhileItIsShownIsLeft) {
    for (const char* share : {"\\\\nas\\roms", "//nas/roms"}) {
        disk.AddFile("\\\\nas\\roms\\x.adf", "x");
        Directory(share, "", [&](FilesForm& form) {
            EXPECT_EQ(form.Dir1.Path(), share);
            disk.Remove("\\\\nas");
            Click(form.OkBtn2);
            ExpectRefused(form);
            EXPECT_EQ(form.Dir1.Path(), "C:\\Emu");
        });
    }
}

TEST_F(FileDialogRefusalOnDrives, CurrentDirectoryOnADriveThatHasGone) {
    ASSERT_FALSE(disk.ChangeDirectory("E:\\Games"));
    PullOut();
    disk.home.clear();
    Open("", "", "", [](FilesForm& form) { EXPECT_EQ(form.Dir1.Path(), "C:\\"); });
    Open("E:\\Games", "", "", [](FilesForm& form) { EXPECT_EQ(form.Dir1.Path(), "C:\\"); });
}

TEST_F(FileDialogRefusalOnDrives, ShareLiesOnNoDrive) {
    Open("C:\\Emu", "", "", [](FilesForm& form) {
        EXPECT_EQ(form.Drive1.ListIndex(), 0);
        Type(form.KomplettPfadText, "\\\\nas\\roms");
        Strike(form, "Enter");
        EXPECT_EQ(form.Dir1.Path(), "\\\\nas\\roms");
        EXPECT_EQ(form.Drive1.ListIndex(), -1);
        // And there is a way back by the keys.
        form.Drive1.SetFocus();
        Strike(form, "Down");
        EXPECT_EQ(form.Dir1.Path(), "C:\\");
    });
}

TEST_F(FileDialogRefusalOnDrives, TypedFileAndMaskOfAShare) {
    EXPECT_EQ(Open("C:\\Emu", "", "",
                   [](FilesForm& form) {
                       Type(form.KomplettPfadText, "\\\\nas\\roms\\x.adf");
                       Strike(form, "Enter");
                       EXPECT_EQ(form.FileName.Text(), "x.adf");
                       EXPECT_EQ(form.KomplettPfadText.Text(), "\\\\nas\\roms\\x.adf");
                       Click(form.Ok);
                   }),
              "\\\\nas\\roms\\x.adf");
    Open("C:\\Emu", "", "", [&](FilesForm& form) {
        Type(form.KomplettPfadText, "\\\\nas\\roms\\*.txt");
        Strike(form, "Enter");
        EXPECT_THAT(Rows(form.File1), ElementsAre("y.txt"));
        Type(form.KomplettPfadText, "\\\\gone\\roms\\*.txt");
        Strike(form, "Enter");
        ExpectRefused(form);
        EXPECT_EQ(form.NetworkPath, "");
        EXPECT_EQ(form.Dir1.Path(), "\\\\nas\\roms");
    });
}

TEST_F(FileDialogRefusalOnDrives, RowsAreNotThoseOfAShareThatDoesNotAnswer) {
    const auto share = [](FilesForm& form) {
        Type(form.KomplettPfadText, "\\\\gone\\roms");
        Strike(form, "Enter");
        EXPECT_EQ(form.NetworkPath, "\\\\gone\\roms");
    };
    EXPECT_EQ(Open("C:\\Emu", "", "",
                   [&](FilesForm& form) {
                       share(form);
                       Click(form.File1, 0);
                       EXPECT_EQ(form.KomplettPfadText.Text(), "C:\\Emu\\a.exe");
                       Click(form.Ok);
                   }),
              "C:\\Emu\\a.exe");
    EXPECT_EQ(Directory("C:\\Emu", "",
                        [&](FilesForm& form) {
                            share(form);
                            Click(form.Dir1, 0);
                            EXPECT_EQ(form.KomplettPfadText.Text(), "C:\\Emu\\Sub\\");
                            Click(form.OkBtn2);
                        }),
              "C:\\Emu\\Sub\\");
    Directory("C:\\", "", [&](FilesForm& form) {
        share(form);
        Click(form.UpBtn);
        EXPECT_EQ(form.KomplettPfadText.Text(), "C:\\");
    });
}

}  // namespace
}  // namespace kivu::support
