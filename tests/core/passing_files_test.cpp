#include "core/passing_files.h"

#include <gmock/gmock.h>

#include "testing/memory_file_system.h"

namespace kivu::core {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct PassingFilesTest : ::testing::Test {
    PassingFilesTest() {
        for (const char* path : {"/k/a", "/k/b", "/k/c"})
            files.AddFile(path, "x");
    }
    std::vector<std::string> Left() {
        std::vector<std::string> left;
        for (const char* path : {"/k/a", "/k/b", "/k/c"})
            if (files.FileExists(path)) left.emplace_back(path);
        return left;
    }
    kivu::testing::MemoryFileSystem files;
    PassingFiles passing{files};
};

TEST_F(PassingFilesTest, TheEndTakesWhatIsNotedAndNothingElse) {
    passing.Note("/k/a");
    passing.Note("/k/b");
    passing.DeleteAll();
    EXPECT_THAT(Left(), ElementsAre("/k/c"));
}

TEST_F(PassingFilesTest, WhatIsOverIsForgotten) {
    passing.Note("/k/a");
    passing.Delete("/k/a");
    EXPECT_THAT(Left(), ElementsAre("/k/b", "/k/c"));
    // Somebody else's from here on.
    files.AddFile("/k/a", "x");
    passing.Delete("/k/a");
    passing.DeleteAll();
    EXPECT_THAT(Left(), ElementsAre("/k/a", "/k/b", "/k/c"));
}

TEST_F(PassingFilesTest, OneThatIsGoneHoldsTheOthersUpInNothing) {
    passing.Note("/k/gone");
    passing.Note("/k/a");
    passing.DeleteAll();
    passing.DeleteAll();
    EXPECT_THAT(Left(), ElementsAre("/k/b", "/k/c"));
}

// Written twice it is two things to take away, and one of them may be over first.
TEST_F(PassingFilesTest, ThoseOfOneNameAreCounted) {
    passing.Note("/k/a");
    passing.Note("/k/a");
    passing.Delete("/k/a");
    files.AddFile("/k/a", "x");
    passing.DeleteAll();
    EXPECT_THAT(Left(), ElementsAre("/k/b", "/k/c"));
}

}  // namespace
}  // namespace kivu::core
