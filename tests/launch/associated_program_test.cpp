#include "launch/associated_program.h"

#include <gmock/gmock.h>

#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"
#include "text/file_names.h"

namespace kivu::launch {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AssociatedProgramTest : public ::testing::Test {
 protected:
    AssociatedProgramTest() {
        files.AddDirectory("/tmp");
        files.AddDirectory("/k");
        EXPECT_FALSE(files.ChangeDirectory("/k"));
    }

    std::string Find(const std::string& file) {
        AssociatedProgram program({files, passing, dialogs,
                                   [this](const std::string& path) {
                                       asked.push_back(path + "=" + files.BytesOf(path));
                                       return answers.contains(path) ? answers[path] : "";
                                   },
                                   "/tmp", "Kivu 1.4b"});
        return program.FindAssociatedProgram(file);
    }

    testing::MemoryFileSystem files;
    core::PassingFiles passing{files};
    testing::ScriptedDialogs dialogs;
    std::map<std::string, std::string> answers;
    std::vector<std::string> asked;
};

TEST_F(AssociatedProgramTest, AFileOfTheCurrentDirectoryIsAskedAbout) {
    files.AddFile("/k/a.txt", "text");
    answers["/k/a.txt"] = "/usr/bin/editor";
    EXPECT_EQ(Find("a.txt"), "/usr/bin/editor");
    EXPECT_EQ(Find("/elsewhere/a.txt"), "/usr/bin/editor");
    EXPECT_THAT(asked, ElementsAre("/k/a.txt=text", "/k/a.txt=text"));
    EXPECT_THAT(files.BytesOf("/k/a.txt"), "text");
}

TEST_F(AssociatedProgramTest, AnotherFileIsStoodInFor) {
    files.AddFile("/d/a.txt", "text");
    answers["/tmp/zzzzzzzTemp_a.txt"] = "/usr/bin/editor";
    EXPECT_EQ(Find("/d/a.txt"), "/usr/bin/editor");
    EXPECT_THAT(asked, ElementsAre("/tmp/zzzzzzzTemp_a.txt=  "));
    EXPECT_EQ(files.BytesOf("/tmp/zzzzzzzTemp_a.txt"), "(no file)");
    EXPECT_EQ(files.BytesOf("/d/a.txt"), "text");
}

TEST_F(AssociatedProgramTest, ThenTheEndingAloneIsAskedAbout) {
    answers["/tmp/RunFileTmp.txt"] = "/usr/bin/editor";
    EXPECT_EQ(Find("/d/a.b.txt"), "/usr/bin/editor");
    EXPECT_THAT(asked, ElementsAre("/tmp/zzzzzzzTemp_a.b.txt=  ", "/tmp/RunFileTmp.txt= "));
    asked.clear();
    // Too short for an ending, or without one.
    EXPECT_EQ(Find("/d/a.c"), "");
    EXPECT_EQ(Find("/d/abcd"), "");
    EXPECT_THAT(asked, ElementsAre("/tmp/zzzzzzzTemp_a.c=  ", "/tmp/RunFileTmpa.c= ",
                                   "/tmp/zzzzzzzTemp_abcd=  ", "/tmp/RunFileTmpabcd= "));
    EXPECT_THAT(*files.ListDirectory("/tmp"), IsEmpty());
}

TEST_F(AssociatedProgramTest, AFileThatIsNotThereIsMadeForTheQuestionAlone) {
    answers["/k/new.txt"] = "/usr/bin/editor";
    EXPECT_EQ(Find("new.txt"), "/usr/bin/editor");
    EXPECT_THAT(asked, ElementsAre("/k/new.txt="));
    EXPECT_EQ(files.BytesOf("/k/new.txt"), "(no file)");
    EXPECT_THAT(*files.ListDirectory("/k"), IsEmpty());
}

TEST_F(AssociatedProgramTest, StarsAreAskedAbout) {
    dialogs.answers = {platform::Answer::Yes};
    EXPECT_EQ(Find("/tmp/*.t*t"), "");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, "Enthält ungültige Zeichen Abbrechen?\r.t*t");
    EXPECT_EQ(dialogs.shown[0].buttons, platform::Buttons::YesNo);
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_THAT(*files.ListDirectory("/tmp"), IsEmpty());
    // One in front alone is taken away.
    answers["/tmp/zzzzzzzTemp_.txt"] = "/usr/bin/editor";
    EXPECT_EQ(Find("/d/*.txt"), "/usr/bin/editor");
    EXPECT_EQ(dialogs.shown.size(), 1U);
}

// While the question is open the program may end, and nothing comes back to this.
TEST_F(AssociatedProgramTest, TheProgramsEndTakesItsFileAway) {
    dialogs.onShow = [this] {
        EXPECT_EQ(files.BytesOf("/k/a*b.txt"), "");
        passing.DeleteAll();
        EXPECT_EQ(files.BytesOf("/k/a*b.txt"), "(no file)");
    };
    Find("/k/a*b.txt");
    EXPECT_EQ(dialogs.shown.size(), 1U);
}

TEST_F(AssociatedProgramTest, GoingOnWithStarsFindsByTheEnding) {
    answers["/tmp/RunFileTmp.txt"] = "/usr/bin/editor";
    EXPECT_EQ(Find("/d/a*b.txt"), "/usr/bin/editor");
    EXPECT_EQ(dialogs.shown.size(), 1U);
    EXPECT_THAT(asked, ElementsAre("/tmp/RunFileTmp.txt= "));
}

TEST_F(AssociatedProgramTest, NothingThatIsThereIsTouched) {
    files.AddFile("/tmp/zzzzzzzTemp_a.txt", "somebody's");
    files.AddLink("/tmp/1zzzzzzzTemp_a.txt", "/k/target");
    answers["/tmp/2zzzzzzzTemp_a.txt"] = "/usr/bin/editor";
    EXPECT_EQ(Find("/d/a.txt"), "/usr/bin/editor");
    EXPECT_EQ(files.BytesOf("/tmp/zzzzzzzTemp_a.txt"), "somebody's");
    EXPECT_EQ(files.BytesOf("/k/target"), "(no file)");
    EXPECT_TRUE(files.IsLink("/tmp/1zzzzzzzTemp_a.txt"));
}

TEST_F(AssociatedProgramTest, NoNameLeavesTheTemporaryDirectory) {
    for (const std::string file :
         {"a\\..\\..\\k\\x.txt", "/d/..", "/d/", "", "a:b", "nul.", "a/..\\..\\x"}) {
        files.changes.clear();
        Find(file);
        for (const std::string& path : files.changes) {
            // The file that was asked about may be made for the question; it is what it is.
            if (path == file || path == file + ".new") continue;
            EXPECT_TRUE(path.starts_with("/tmp/") && text::IsSafeFileName(path.substr(5))) << path;
        }
    }
    EXPECT_THAT(*files.ListDirectory("/tmp"), IsEmpty());
    EXPECT_THAT(*files.ListDirectory("/k"), IsEmpty());
}

TEST_F(AssociatedProgramTest, WhereNothingCanBeWrittenThereIsNoAnswer) {
    files.SetReadOnly("/tmp");
    EXPECT_EQ(Find("/d/a.txt"), "");
    EXPECT_THAT(asked, IsEmpty());
}

}  // namespace
}  // namespace kivu::launch
