#include "tree/text_rules.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

namespace kivu::tree {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Tables that a script writes and nobody reads.
const std::vector<std::string> generatedTables;

std::string Lines(std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += "x\n";
    return text;
}

TEST(LongFilesTest, FileOfTheMostLinesIsFineAndOneMoreIsNot) {
    const SourceTree tree{{"bench/a.cpp", Lines(mostLines + 1)},
                          {"docs/a.md", Lines(mostLines + 1)},
                          {"src/a/a.h", Lines(mostLines)},
                          {"src/a/b.cpp", Lines(mostLines + 1)},
                          {"src/a/c.cpp", Lines(mostLines) + "x"},
                          {"tests/driver/CMakeLists.txt", Lines(mostLines + 1)},
                          {"tests/driver/data.txt", Lines(mostLines + 1)}};
    EXPECT_THAT(LongFiles(tree, {}),
                ElementsAre("bench/a.cpp: 401 lines", "src/a/b.cpp: 401 lines",
                            "src/a/c.cpp: 401 lines", "tests/driver/CMakeLists.txt: 401 lines"));
}

TEST(LongFilesTest, GeneratedTablesArePassedOverByNameAndMustBeThere) {
    const SourceTree tree{{"src/a/table.cpp", Lines(mostLines + 1)}};
    EXPECT_THAT(LongFiles(tree, {"src/a/table.cpp"}), IsEmpty());
    EXPECT_THAT(LongFiles(tree, {"src/a/table.cpp", "src/a/gone.cpp"}),
                ElementsAre("src/a/gone.cpp: no such file"));
}

TEST(UnguardedHeadersTest, GuardComesBeforeAnyOtherDirective) {
    const SourceTree tree{{"src/a/a.h", "// words\n\n#pragma once\n#include <string>\n"},
                          {"src/a/b.h", "#include <string>\n#pragma once\n"},
                          {"src/a/c.h", ""},
                          {"src/a/d.h", "#ifndef D_H\n#define D_H\n#endif\n"},
                          {"src/a/e.cpp", "#include <string>\n"},
                          {"tests/a/f.h", "int x;\n"}};
    EXPECT_THAT(UnguardedHeaders(tree),
                ElementsAre("src/a/b.h", "src/a/c.h", "src/a/d.h", "tests/a/f.h"));
}

TEST(DecidingJoinsTest, RoutinesTakeTheDecisions) {
    const SourceTree tree{SourceFile{"src/wiring/join_a.cpp",
                                     "// If it is open?\n"
                                     "form.A.onClick = [this] { one.A_Click(), two.Show(); };\n"
                                     "for (auto& tab : tabs) tab.onClick = drift;\n"
                                     "if (one.IsOpen()) one.Close();\n"
                                     "all.Has = [this] { return !marked.Select(); };\n"
                                     "all.Row = [this] { return one.IsOpen() ? 1 : 2; };\n"
                                     "one.IsOpen() && one.Close();\n"},
                          SourceFile{"src/wiring/launcher.cpp", "if (a) b();\n"}};
    EXPECT_THAT(DecidingJoins(tree),
                ElementsAre("src/wiring/join_a.cpp:4", "src/wiring/join_a.cpp:5",
                            "src/wiring/join_a.cpp:6", "src/wiring/join_a.cpp:7"));
}

TEST(UnreadableReferencesTest, TextsAndNamesThatMentionThemAreFound) {
    const std::string word = std::string("spe") + "c";
    const std::string part = std::string("Par") + "t";
    for (const std::string& line :
         {"as the " + word + " says", "the " + word + "s", word + "ification", "S" + word.substr(1),
          word + ".md", part + " 4.1", "see " + part + "s 1.1 and 2.3"}) {
        const SourceTree tree{{"docs/a.md", "fine\n" + line + "\n"}};
        EXPECT_THAT(UnreadableReferences(tree), ElementsAre("docs/a.md:2: " + line));
    }
    EXPECT_THAT(UnreadableReferences({{"docs/" + word + ".txt", ""}}),
                ElementsAre(HasSubstr("its name")));
    EXPECT_THAT(UnreadableReferences({{"tests/a_" + word + "_b.cpp", ""}}),
                ElementsAre(HasSubstr("its name")));
}

TEST(UnreadableReferencesTest, OtherWordsAreFine) {
    const SourceTree tree{{"docs/special.md",
                           "special, specific, inspect, spectrum, ZX Spectrum, respect\n"
                           "Part one, Part 9.1, Partial 1.1, part of it\n"}};
    EXPECT_THAT(UnreadableReferences(tree), IsEmpty());
}

TEST(ReadTreeTest, ReadsTextsBelowTheDirectoryAndPassesOverBuildsAndGit) {
    namespace fs = std::filesystem;
    const fs::path root = fs::path(testing::TempDir()) / "kivu_read_tree";
    fs::remove_all(root);
    for (const char* folder : {"src/a", ".git", "build/x", ".ci", "src/build"})
        fs::create_directories(root / folder);
    const auto write = [&](const char* path, const std::string& text) {
        std::ofstream(root / path, std::ios::binary) << text;
    };
    write("src/a/a.h", "one\r\ntwo");
    write("src/build/b.h", "");
    write("src/a/picture.png", std::string("\x89PNG\0", 5));
    write(".git/config", "x");
    write("build/x/y.h", "x");
    write(".ci/run", "x");
    const SourceTree tree = ReadTree(root.string());
    std::vector<std::string> paths;
    for (const SourceFile& file : tree)
        paths.push_back(file.path);
    EXPECT_THAT(paths, ElementsAre(".ci/run", "src/a/a.h", "src/build/b.h"));
    EXPECT_THAT(LinesOf(tree[1]), ElementsAre("one", "two"));
    fs::remove_all(root);
}

TEST(ReadTreeTest, DirectoryThatIsMissingGivesAnEmptyTree) {
    EXPECT_THAT(ReadTree("/nowhere/at/all"), IsEmpty());
}

struct TextsOfThisTree : testing::Test {
    static void SetUpTestSuite() { tree = ReadTree(KIVU_SOURCE_DIR); }
    void SetUp() override { ASSERT_FALSE(tree.empty()); }
    static inline SourceTree tree;
};

TEST_F(TextsOfThisTree, FilesFitIntoAReadersHead) {
    EXPECT_EQ(Joined(LongFiles(tree, generatedTables)), "");
}

TEST_F(TextsOfThisTree, HeadersAreGuarded) {
    EXPECT_EQ(Joined(UnguardedHeaders(tree)), "");
    EXPECT_EQ(Joined(DecidingJoins(tree)), "");
}

TEST_F(TextsOfThisTree, NothingRefersToPapersThatAReaderDoesNotHave) {
    EXPECT_EQ(Joined(UnreadableReferences(tree)), "");
}

}  // namespace
}  // namespace kivu::tree
