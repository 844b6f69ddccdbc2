#include <map>

#include "forms_testing.h"

namespace kivu::forms {
namespace {

class FakeDirectories : public DirectorySource {
 public:
    struct Content {
        std::vector<std::string> directories, files;
    };
    bool Read(const std::string& path, std::vector<std::string_view>* directories,
              std::vector<std::string_view>* files) override {
        const auto found = contents.find(path);
        if (found == contents.end()) return false;
        const Content& content = found->second;
        if (directories)
            directories->assign(content.directories.begin(), content.directories.end());
        if (files) files->assign(content.files.begin(), content.files.end());
        return true;
    }
    bool Matches(const std::string& pattern, std::string_view name) override {
        return pattern == "*.*" || name.ends_with(pattern.substr(1));
    }
    std::vector<std::string> Drives() override { return drives; }
    std::vector<std::string> drives;
    std::map<std::string, Content> contents;
};

struct DirectoryTest : testing::Test {
    DirectoryTest() {
        source.contents["/roms"] = {{"b", "A"}, {"z.adf", "Y.adf", "readme.txt"}};
        source.contents["/roms/A"] = {{}, {"one.adf"}};
        source.contents["/"] = {{"roms"}, {}};
        source.contents["C:\\Roms"] = {{"Sub"}, {}};
        source.contents["C:\\"] = {{"Roms"}, {}};
        source.contents["/odd\\"] = {{"in"}, {}};
    }
    FakeDirectories source;
    CountingCollation collation;
    Form form{"Form1", Toolkit{nullptr, &collation, &source}};
    DirListBox dirs{&form, "Dir1"};
    FileListBox files{&form, "File1"};
    DriveListBox drives{&form, "Drive1"};
    Log log;

    static std::vector<std::string> Shown(const DirectoryControl& control) {
        std::vector<std::string> rows;
        for (int i = 0; i < control.ListCount(); ++i)
            rows.push_back(control.List(i));
        return rows;
    }
};

TEST_F(DirectoryTest, DirListShowsFullPathsInOrder) {
    dirs.SetPath("/roms");
    EXPECT_THAT(Shown(dirs), ElementsAre("/roms/A", "/roms/b"));
}

TEST_F(DirectoryTest, DirListJoinsWithTheSeparatorOfItsPath) {
    dirs.SetPath("/");
    EXPECT_THAT(Shown(dirs), ElementsAre("/roms"));
    dirs.SetPath("C:\\");
    EXPECT_THAT(Shown(dirs), ElementsAre("C:\\Roms"));
    dirs.SetPath("C:\\Roms");
    EXPECT_THAT(Shown(dirs), ElementsAre("C:\\Roms\\Sub"));
    dirs.SetPath("/odd\\");
    EXPECT_THAT(Shown(dirs), ElementsAre("/odd\\/in"));
}

TEST_F(DirectoryTest, DirectoriesAreShownByTheirNamesAlone) {
    for (const char* path : {"/roms", "/", "C:\\", "C:\\Roms", "/odd\\"}) {
        dirs.SetPath(path);
        const std::string full = dirs.List(0);
        const std::string name(dirs.Name(0));
        EXPECT_TRUE(full.ends_with(name)) << path;
        EXPECT_EQ(name.find_first_of("/\\"), std::string::npos) << path;
        EXPECT_NE(name, "") << path;
    }
    EXPECT_EQ(dirs.Name(7), "");
    dirs.ForgetPath();
    EXPECT_EQ(dirs.Name(0), "");
}

TEST_F(DirectoryTest, PathIsKeptWithoutItsClosingSeparatorButForARoot) {
    const std::vector<std::pair<const char*, const char*>> table{
        {"/roms/", "/roms"}, {"C:\\Roms\\", "C:\\Roms"}, {"/", "/"}, {"C:\\", "C:\\"}};
    for (const auto& [given, kept] : table) {
        dirs.SetPath(given);
        EXPECT_EQ(dirs.Path(), kept);
    }
    dirs.SetPath("/roms");
    dirs.onChange = Writes(log, "change");
    dirs.SetPath("/roms/");
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(DirectoryTest, ForgettingThePathEmptiesTheDirListAndRunsNothing) {
    dirs.SetPath("/roms");
    dirs.onChange = Writes(log, "change");
    dirs.ForgetPath();
    EXPECT_EQ(dirs.Path(), "");
    EXPECT_EQ(dirs.ListCount(), 0);
    EXPECT_THAT(log, IsEmpty());
    dirs.SetPath("/roms");
    EXPECT_THAT(log, ElementsAre("change"));
}

TEST_F(DirectoryTest, PathThatCannotBeEnteredLeavesTheDirListWhereItWas) {
    dirs.SetPath("/roms");
    dirs.onChange = Writes(log, "change");
    dirs.SetPath("/gone");
    dirs.SetPath("");
    EXPECT_EQ(dirs.Path(), "/roms");
    EXPECT_EQ(dirs.ListCount(), 2);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(DirectoryTest, DifferentPathRunsTheChangeHandlerAndTheSameOneReadsAnew) {
    dirs.onChange = [this] { log.push_back(dirs.Path()); };
    dirs.SetPath("/roms");
    source.contents["/roms"].directories.push_back("c");
    dirs.SetPath("/roms");
    EXPECT_EQ(dirs.ListCount(), 3);
    EXPECT_THAT(log, ElementsAre("/roms"));
}

TEST_F(DirectoryTest, DirListMayGoToOneOfItsOwnRows) {
    dirs.SetPath("/roms");
    dirs.SetPath(dirs.List(0));
    EXPECT_EQ(dirs.Path(), "/roms/A");
    EXPECT_EQ(dirs.ListCount(), 0);
}

TEST_F(DirectoryTest, FileListShowsTheNamesThatMatchInOrder) {
    files.SetPath("/roms");
    EXPECT_THAT(Shown(files), ElementsAre("readme.txt", "Y.adf", "z.adf"));
    files.SetPattern("*.adf");
    EXPECT_THAT(Shown(files), ElementsAre("Y.adf", "z.adf"));
    files.SetPattern("*.iso");
    EXPECT_THAT(Shown(files), IsEmpty());
}

TEST_F(DirectoryTest, PathThatCannotBeEnteredLeavesTheFileListWhereItWas) {
    files.SetPath("/roms");
    files.onChange = Writes(log, "change");
    files.SetPath("/gone");
    EXPECT_EQ(files.Path(), "/roms");
    EXPECT_EQ(files.ListCount(), 3);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(DirectoryTest, FileListOfADirectoryThatHasGoneIsEmptyForANewPattern) {
    files.SetPath("/roms");
    source.contents.clear();
    files.SetPattern("*.adf");
    EXPECT_THAT(Shown(files), IsEmpty());
}

TEST_F(DirectoryTest, WithoutASourceTheListsStayEmpty) {
    Form plain("Form2");
    DirListBox noDirs(&plain, "Dir1");
    FileListBox noFiles(&plain, "File1");
    noDirs.SetPath("/roms");
    noFiles.SetPath("/roms");
    noFiles.SetPattern("*.adf");
    EXPECT_EQ(noDirs.Path(), "");
    EXPECT_EQ(noFiles.ListCount(), 0);
}

TEST_F(DirectoryTest, SelectionFollowsTheRulesOfLists) {
    drives.SetDrives({"C:", "D:"});
    drives.onClick = [this] { log.push_back(drives.Drive()); };
    drives.SetListIndex(1);
    drives.SetListIndex(1);
    drives.SetListIndex(2);
    drives.ClickRow(1);
    drives.ClickRow(2);
    EXPECT_THAT(log, ElementsAre("D:", "D:"));
    EXPECT_EQ(drives.List(2), "");
    EXPECT_EQ(drives.List(-1), "");
    drives.SetDrives({"E:"});
    EXPECT_EQ(drives.ListIndex(), -1);
    EXPECT_EQ(drives.Drive(), "");
}

TEST_F(DirectoryTest, DrivesComeFromTheSourceAndTheChosenOneStays) {
    source.drives = {"/", "/home/ann", "/media/ann/stick"};
    drives.onClick = Writes(log, "click");
    drives.Refresh();
    EXPECT_THAT(Shown(drives), ElementsAre("/", "/home/ann", "/media/ann/stick"));
    drives.SetListIndex(2);
    source.drives = {"/", "/media/ann/stick"};
    drives.Refresh();
    EXPECT_EQ(drives.Drive(), "/media/ann/stick");
    source.drives = {"/"};
    drives.Refresh();
    EXPECT_EQ(drives.ListIndex(), -1);
    EXPECT_THAT(log, ElementsAre("click"));
}

TEST_F(DirectoryTest, LongestDriveThatBeginsAPathIsChosen) {
    drives.SetDrives({"/", "/home/ann", "/home/ann/nas"});
    const auto chosen = [&](const char* path) {
        drives.SetDrive(path);
        return drives.Drive();
    };
    EXPECT_EQ(chosen("/home/ann/roms"), "/home/ann");
    EXPECT_EQ(chosen("/home/anna"), "/");
    EXPECT_EQ(chosen("/home/ann/nas/"), "/home/ann/nas");
    EXPECT_EQ(chosen("/home/ann"), "/home/ann");
    EXPECT_EQ(chosen("relative"), "/home/ann");
    drives.SetDrives({"C:\\", "D:\\"});
    EXPECT_EQ(chosen("d:\\Roms"), "D:\\");
    EXPECT_EQ(chosen("C:"), "C:\\");
    EXPECT_EQ(chosen("\\\\server\\share"), "C:\\");
}

}  // namespace
}  // namespace kivu::forms
