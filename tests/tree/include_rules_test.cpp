#include "tree/include_rules.h"

#include <gmock/gmock.h>

namespace kivu::tree {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

SourceFile File(std::string path, std::string text) {
    return {std::move(path), std::move(text)};
}

TEST(ForeignIncludesTest, StandardLibraryAndOwnFilesAreAllowed) {
    const SourceTree tree{
        File("src/core/a.cpp", "#include \"core/a.h\"\n#include \"b.h\"\n#include <vector>\n"),
        File("src/core/a.h", "#pragma once\n#  include <string>\n"), File("src/core/b.h", "")};
    EXPECT_THAT(ForeignIncludes(tree), IsEmpty());
}

TEST(ForeignIncludesTest, LogicMustNotIncludeToolkitsLibrariesOrTheSystem) {
    for (const char* line :
         {"#include <QString>", "#include <SDL2/SDL.h>", "#include <curl/curl.h>",
          "#include <unistd.h>", "#include <sys/stat.h>", "#include <windows.h>",
          "#include <stdio.h>", "  #  include  <unistd.h> // why", "#include<unistd.h>",
          "#include \"QString\"", "#include \"unistd.h\"", "#include NAME", "#include",
          "#include <core/a.h>"}) {
        const SourceTree tree{File("src/core/a.cpp", std::string("\n") + line + "\n"),
                              File("src/core/a.h", "")};
        EXPECT_THAT(ForeignIncludes(tree), ElementsAre(HasSubstr("src/core/a.cpp:2: "))) << line;
    }
}

TEST(ForeignIncludesTest, LogicMustNotIncludeTests) {
    const SourceTree tree{File("src/core/a.cpp", "#include \"testing/a.h\"\n"),
                          File("tests/testing/a.h", "")};
    EXPECT_THAT(ForeignIncludes(tree), ElementsAre(HasSubstr("\"testing/a.h\" is not in src")));
}

TEST(ForeignIncludesTest, ViewAppAndHostsMayAndTheInterfacesMayNot) {
    const std::string text = "#include <QString>\n#include <unistd.h>\n";
    const SourceTree tree{File("src/app/main.cpp", text),        File("src/platform/clock.h", text),
                          File("src/hosts/linux/a.cpp", text),   File("src/hosts/qt/a.cpp", text),
                          File("src/hosts/windows/a.cpp", text), File("src/view/a.cpp", text)};
    EXPECT_THAT(ForeignIncludes(tree), ElementsAre(HasSubstr("src/platform/clock.h:1: "),
                                                   HasSubstr("src/platform/clock.h:2: ")));
}

TEST(ForeignIncludesTest, FewFilesMayNameTheirInstructionSet) {
    const SourceTree tree{
        File("src/png/filters_sse2.cpp", "#include <emmintrin.h>\n#include <immintrin.h>\n"),
        File("src/library/letter_pair_sse2.cpp", "#include <emmintrin.h>\n"),
        File("src/png/row_conversion.cpp", "#include <emmintrin.h>\n")};
    EXPECT_THAT(ForeignIncludes(tree), ElementsAre(HasSubstr("src/png/filters_sse2.cpp:2: "),
                                                   HasSubstr("src/png/row_conversion.cpp:1: ")));
}

TEST(ForeignIncludesTest, TestsMayIncludeWhatTheyNeed) {
    EXPECT_THAT(ForeignIncludes({File("tests/view/a_test.cpp", "#include <QTest>\n")}), IsEmpty());
}

TEST(ForbiddenNeighboursTest, EachFolderKeepsToItsNeighbours) {
    const SourceTree tree{
        File("src/core/c.h", ""),
        File("src/forms/a.h", "#include \"text/t.h\"\n"),
        File("src/forms/b.h", "#include \"forms/a.h\"\n#include \"a.h\"\n"),
        File("src/hosts/both.h", "#include \"hosts/linux/l.h\"\n#include \"platform/p.h\"\n"),
        File("src/hosts/linux/l.h", "#include \"text/t.h\"\n#include \"platform/p.h\"\n"),
        File("src/hosts/linux/m.h", "#include \"hosts/both.h\"\n"),
        File("src/hosts/qt/q.h", "#include \"hosts/linux/l.h\"\n#include \"core/c.h\"\n"),
        File("src/platform/p.h", "#include \"text/t.h\"\n#include \"core/c.h\"\n"),
        File("src/png/p.h", "#include \"forms/a.h\"\n"),
        File("src/text/t.h", "#include \"platform/p.h\"\n"),
        File("src/view/v.cpp", "#include \"forms/a.h\"\n#include \"core/c.h\"\n"),
        File("src/view/w.cpp", "#include \"png/p.h\"\n#include \"platform/p.h\"\n")};
    EXPECT_THAT(ForbiddenNeighbours(tree),
                ElementsAre("src/forms/a.h:1: forms must not include src/text/t.h",
                            "src/hosts/both.h:1: hosts must not include src/hosts/linux/l.h",
                            "src/hosts/qt/q.h:1: hosts/qt must not include src/hosts/linux/l.h",
                            "src/hosts/qt/q.h:2: hosts/qt must not include src/core/c.h",
                            "src/platform/p.h:2: platform must not include src/core/c.h",
                            "src/png/p.h:1: png must not include src/forms/a.h",
                            "src/text/t.h:1: text must not include src/platform/p.h",
                            "src/view/v.cpp:2: view must not include src/core/c.h",
                            "src/view/w.cpp:1: view must not include src/png/p.h",
                            "src/view/w.cpp:2: view must not include src/platform/p.h"));
}

TEST(ForbiddenNeighboursTest, WaysAroundAreSeen) {
    const SourceTree tree{File("src/text/s.h", ""),
                          File("src/view/a.h", "#include \"../text/s.h\"\n"),
                          File("src/view/b.h", "#include <text/s.h>\n"),
                          File("src/view/c.h", "#include \"view/.././text/s.h\"\n")};
    EXPECT_THAT(ForbiddenNeighbours(tree),
                ElementsAre("src/view/a.h:1: view must not include src/text/s.h",
                            "src/view/b.h:1: view must not include src/text/s.h",
                            "src/view/c.h:1: view must not include src/text/s.h"));
}

TEST(PickedHostsTest, OnlyAppTestsAndBenchPickAHost) {
    const std::string linuxHost = "#include \"hosts/linux/l.h\"\n";
    const SourceTree tree{
        File("bench/b.cpp", linuxHost),           File("src/app/main.cpp", linuxHost),
        File("src/core/c.cpp", linuxHost),        File("src/platform/clock.h", linuxHost),
        File("src/hosts/linux/a.cpp", linuxHost), File("src/hosts/linux/l.h", ""),
        File("src/hosts/qt/q.cpp", linuxHost),    File("tests/core/c_test.cpp", linuxHost)};
    EXPECT_THAT(PickedHosts(tree),
                ElementsAre(HasSubstr("src/core/c.cpp:1: "), HasSubstr("src/platform/clock.h:1: "),
                            HasSubstr("src/hosts/qt/q.cpp:1: ")));
}

TEST(PickedHostsTest, WhatHostsShareIsTheirs) {
    const std::string shared = "#include \"hosts/s.h\"\n";
    const SourceTree tree{File("src/app/main.cpp", shared), File("src/core/c.cpp", shared),
                          File("src/hosts/linux/a.cpp", shared), File("src/hosts/s.cpp", shared),
                          File("src/hosts/s.h", "")};
    EXPECT_THAT(PickedHosts(tree), ElementsAre(HasSubstr("src/core/c.cpp:1: ")));
}

TEST(CirclesTest, ArrowsThatGoOneWayAreNone) {
    const SourceTree tree{
        File("src/core/c.h", "#include \"platform/p.h\"\n#include \"core/d.h\"\n"),
        File("src/core/d.h", "#include \"core/c.h\"\n"),
        File("src/hosts/linux/l.h", "#include \"platform/p.h\"\n"),
        File("src/platform/p.h", "#include \"text/s.h\"\n"), File("src/text/s.h", "")};
    EXPECT_THAT(Circles(tree), IsEmpty());
}

TEST(CirclesTest, CircleIsPrintedWithAFileForEveryStep) {
    const SourceTree tree{File("src/core/c.h", "#include \"library/l.h\"\n"),
                          File("src/launch/x.h", "\n#include \"core/c.h\"\n"),
                          File("src/library/l.h", "#include \"launch/x.h\"\n"),
                          File("src/ui/u.h", "#include \"core/c.h\"\n")};
    EXPECT_THAT(Circles(tree), ElementsAre("circle: core -> library -> launch -> core"
                                           "\n  src/core/c.h:1: includes src/library/l.h"
                                           "\n  src/library/l.h:1: includes src/launch/x.h"
                                           "\n  src/launch/x.h:2: includes src/core/c.h"));
}

TEST(CirclesTest, EveryCircleIsFound) {
    const SourceTree tree{File("src/a/a.h", "#include \"b/b.h\"\n"),
                          File("src/b/b.h", "#include \"a/a.h\"\n"),
                          File("src/c/c.h", "#include \"d/d.h\"\n#include \"a/a.h\"\n"),
                          File("src/d/d.h", "#include \"c/c.h\"\n")};
    EXPECT_THAT(Circles(tree),
                ElementsAre(HasSubstr("circle: a -> b -> a"), HasSubstr("circle: c -> d -> c")));
}

SourceFile Guide(const std::string& rooms) {
    return File("docs/tree.md", "# The source tree\n\n" + rooms + "\nText.\n");
}

TEST(OutOfOrderTest, IncludesGoUpwardsInTheGuidesList) {
    const SourceTree tree{Guide("    src/text/   text\n    src/core/   window\n"),
                          File("src/core/c.h", "#include \"text/t.h\"\n#include \"core/d.h\"\n"),
                          File("src/core/d.h", ""), File("src/text/t.h", "#include <vector>\n")};
    EXPECT_THAT(ListedRooms(tree), ElementsAre("text", "core"));
    EXPECT_THAT(OutOfOrder(tree), IsEmpty());
}

TEST(OutOfOrderTest, AnIncludeDownwardsIsFound) {
    const SourceTree tree{
        Guide("    src/text/   text\n    src/core/   window\n    src/hosts/  hosts\n"),
        File("src/core/c.h", ""), File("src/hosts/linux/l.h", "#include \"core/c.h\"\n"),
        File("src/text/t.h", "\n#include \"core/c.h\"\n#include \"hosts/linux/l.h\"\n")};
    EXPECT_THAT(OutOfOrder(tree),
                ElementsAre("src/text/t.h:2: text stands above src/core/c.h",
                            "src/text/t.h:3: text stands above src/hosts/linux/l.h"));
}

TEST(OutOfOrderTest, ListAndFoldersAreTheSame) {
    const SourceTree tree{Guide("    src/text/   text\n    src/gone/   nothing\n"),
                          File("src/core/c.h", ""), File("src/text/t.h", "")};
    EXPECT_THAT(OutOfOrder(tree),
                ElementsAre("docs/tree.md lists src/gone/", "docs/tree.md lacks src/core/"));
}

struct ThisTree : testing::Test {
    static void SetUpTestSuite() { tree = ReadTree(KIVU_SOURCE_DIR); }
    static inline SourceTree tree;
};

TEST_F(ThisTree, HasBeenRead) {
    EXPECT_THAT(tree, Contains(AllOf(Field(&SourceFile::path, "src/forms/control.h"),
                                     Field(&SourceFile::text, HasSubstr("#include")))));
    EXPECT_THAT(tree, Contains(Field(&SourceFile::path, "tests/tree/include_rules_test.cpp")));
}

TEST_F(ThisTree, LogicIncludesOnlyTheStandardLibraryAndItself) {
    EXPECT_EQ(Joined(ForeignIncludes(tree)), "");
}

TEST_F(ThisTree, FoldersKeepToTheirNeighbours) {
    EXPECT_EQ(Joined(ForbiddenNeighbours(tree)), "");
}

TEST_F(ThisTree, OnlyAppTestsAndBenchPickAHost) {
    EXPECT_EQ(Joined(PickedHosts(tree)), "");
}

TEST_F(ThisTree, RoomsIncludeOnlyThoseAboveThem) {
    EXPECT_EQ(Joined(OutOfOrder(tree)), "");
}

TEST_F(ThisTree, IncludesBetweenFoldersFormNoCircle) {
    EXPECT_EQ(Joined(Circles(tree)), "");
}

}  // namespace
}  // namespace kivu::tree
