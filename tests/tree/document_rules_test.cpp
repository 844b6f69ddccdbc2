#include "tree/document_rules.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace kivu::tree {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

IsThere In(const std::vector<std::string>& paths) {
    return [paths](const std::string& path) {
        return std::find(paths.begin(), paths.end(), path) != paths.end();
    };
}

TEST(DeadLinksTest, FilesAreMeantFromWhereTheDocumentLies) {
    const SourceTree tree{
        {"README.md", "See [a](docs/a.md), ![p](docs/p.png) and [b](docs/b.md).\n"},
        {"docs/a.md", "\n[back](../README.md) [c](c/) [lost](README.md)\n"},
        {"src/a.cpp", "// [a](nowhere.md)\n"}};
    EXPECT_THAT(DeadLinks(tree, In({"README.md", "docs/a.md", "docs/p.png", "docs/c/"})),
                ElementsAre("README.md:1: docs/b.md: no such file",
                            "docs/a.md:2: README.md: no such file"));
}

TEST(DeadLinksTest, HeadingsAreThoseOfTheDocument) {
    const SourceTree tree{
        {"a.md",
         "# Das Bild: für *alle*\n"
         "[1](#das-bild-für-alle) [2](b.md#when-it-doesnt-show) [3](b.md#gone) [4](#gone)\n"
         "[5](run.sh#gone)\n"},
        {"b.md", "text\n## When it doesn't show\n##gone\n"}};
    EXPECT_THAT(
        DeadLinks(tree, In({"a.md", "b.md", "run.sh"})),
        ElementsAre("a.md:2: b.md#gone: no such heading", "a.md:2: #gone: no such heading"));
}

TEST(DeadLinksTest, CodeAndOtherPlacesOfTheWorldAreLeftAlone) {
    const SourceTree tree{{"a.md",
                           "[1](https://example.org/x.md) [2](mailto:me)\n"
                           "    form.A = [this](int a) {};\n"
                           "`[this](int a)` [3](gone.md)\n"
                           "    - [4](lost.md)\n"}};
    EXPECT_THAT(DeadLinks(tree, In({})),
                ElementsAre("a.md:3: gone.md: no such file", "a.md:4: lost.md: no such file"));
}

TEST(UnusedPicturesTest, ShownOnesAreThoseOfAnyDocument) {
    const SourceTree tree{{"README.md", "![a](docs/p/a.png)\n"},
                          {"docs/b.md", "| ![b](p/b.png) | `![c](p/c.png)` |\n"}};
    EXPECT_THAT(UnusedPictures(tree, {"docs/p/a.png", "docs/p/b.png", "docs/p/c.png"}),
                ElementsAre("docs/p/c.png: no document shows it"));
}

TEST(UnpairedChaptersTest, BothLanguagesHaveEachNumberWithItsPictures) {
    const SourceTree tree{
        {"docs/book/README.md", "[1](en/01-a.md) [1](de/01-b.md) [2](en/02-c.md) [3](de/03-d.md)"},
        {"docs/book/de/01-b.md", "![x](../pictures/de/x.png)"},
        {"docs/book/de/03-d.md", "![x](../pictures/de/x.png)"},
        {"docs/book/en/01-a.md", "![x](../pictures/en/x.png)"},
        {"docs/book/en/02-c.md", ""},
        {"docs/book/en/03-e.md", "![x](../pictures/en/y.png)"}};
    EXPECT_THAT(
        UnpairedChapters(tree),
        UnorderedElementsAre("docs/book/en/02-c.md: not in the other language",
                             "docs/book/en/03-e.md: not in the book's contents",
                             "docs/book/en/03-e.md: other pictures than in the other language",
                             "docs/book/de/03-d.md: other pictures than in the other language"));
}

TEST(UntoldKeysTest, EachKeyOfTheTableIsTold) {
    const SourceTree tree{{"docs/profiles.md", "| `A` | `Button1` to `Button2` |\nB"},
                          {"src/profile/keys.h",
                           "inline constexpr Text A{program, \"A\", \"\", \"core/a\"};\n"
                           "inline constexpr Text B{emulator, \"B\", \"A\", \"core/a\"};\n"
                           "{{program, \"Button1\", \"0\", \"a\"},\n"
                           " {program, \"Button2\", \"0\", \"a\"}}\n"
                           "inline constexpr Text A2{A, \"C\", \"core/b\"};\n"}};
    EXPECT_THAT(UntoldKeys(tree), ElementsAre("B: docs/profiles.md does not tell it"));
}

struct DocumentsOfThisTree : testing::Test {
    static void SetUpTestSuite() { tree = ReadTree(KIVU_SOURCE_DIR); }
    void SetUp() override { ASSERT_FALSE(tree.empty()); }
    static inline SourceTree tree;
};

TEST_F(DocumentsOfThisTree, LinksLeadSomewhere) {
    const auto isThere = [](const std::string& path) {
        return std::filesystem::exists(std::filesystem::path(KIVU_SOURCE_DIR) / path);
    };
    EXPECT_EQ(Joined(DeadLinks(tree, isThere)), "");
}

TEST_F(DocumentsOfThisTree, PicturesAreShown) {
    const std::vector<std::string> pictures = PicturesBelow(KIVU_SOURCE_DIR, "docs");
    ASSERT_FALSE(pictures.empty());
    EXPECT_EQ(Joined(UnusedPictures(tree, pictures)), "");
    // Every package brings them.
    constexpr std::uintmax_t mostBytes = 150'000;
    for (const std::string& picture : pictures) {
        const std::filesystem::path path = std::filesystem::path(KIVU_SOURCE_DIR) / picture;
        EXPECT_LE(std::filesystem::file_size(path), mostBytes) << picture;
    }
}

TEST_F(DocumentsOfThisTree, TheBookIsWholeInBothLanguages) {
    EXPECT_EQ(Joined(UnpairedChapters(tree)), "");
}

TEST_F(DocumentsOfThisTree, KeysOfProfilesAreTold) {
    EXPECT_EQ(Joined(UntoldKeys(tree)), "");
}

}  // namespace
}  // namespace kivu::tree
