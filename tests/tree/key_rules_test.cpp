#include "tree/key_rules.h"

#include <gmock/gmock.h>

namespace kivu::tree {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string table =
    "inline constexpr std::string_view settingsWindow = \"to come: the settings window\";\n"
    "inline constexpr Number Fontsize{program, \"Fontsize\", \"16\", \"core/loader\"};\n"
    "inline constexpr Number FontsizeInSettings{Fontsize, \"4\", settingsWindow};\n"
    "inline constexpr std::array<Number, 2> Buttons{{\n"
    "    {program, \"Button1\", \"0\", \"core/loader\"},\n"
    "    {program, \"Button2\", \"1\", \"core/loader\"},\n"
    "}};\n"
    "inline constexpr Text Title{\n    skin, \"TitleString\", \"*.*\", \"ui/title\",\n"
    "    WriteBack::off};\n";

SourceTree With(SourceTree tree) {
    tree.insert(tree.begin(), {std::string(keyTable), table});
    return tree;
}

TEST(KeysPastTheTableTest, LiteralsAndCallsAreFoundOutsideTheProfilesRoom) {
    const SourceTree tree = With({
        {"docs/a.md", "\"Fontsize\""},
        {"src/core/a.cpp", "read(\"Title\");\nread(\"x\", \"TitleString\");\n"},
        {"src/core/b.cpp", "ini.ReadIniValue(a, b);\nini.WriteIniValue(\"Settings\", c);\n"},
        {"src/core/c.h", "  // \"Fontsize\"\nconst char* key = \"Button2\";\n"},
        {"src/favourites/a.cpp", "WriteIniValue(section, key);\nread(\"Fontsize\");\n"},
        {"src/profile/ini.cpp", "ReadIniValue(\"Fontsize\");\n"},
        {"tests/core/a_test.cpp", "ReadIniValue(\"Fontsize\");\n"},
    });
    EXPECT_THAT(KeysPastTheTable(tree),
                ElementsAre("src/core/a.cpp:2: TitleString", "src/core/b.cpp:1: ReadIniValue(",
                            "src/core/b.cpp:2: WriteIniValue(", "src/core/b.cpp:2: \"Settings\"",
                            "src/core/c.h:2: Button2", "src/favourites/a.cpp:2: Fontsize"));
}

TEST(KeysOffTheListTest, EntryThatIsNotListedIsFound) {
    EXPECT_THAT(KeysOffTheList(With({{std::string(keyList),
                                      "all{&Fontsize, &FontsizeInSettings, &Title};\n"
                                      "for (const Number& button : Buttons) {}\n"}})),
                IsEmpty());
    EXPECT_THAT(KeysOffTheList(With({{std::string(keyList), "all{&Fontsize, &TitleOther};\n"}})),
                ElementsAre("src/profile/keys.h: FontsizeInSettings", "src/profile/keys.h: Buttons",
                            "src/profile/keys.h: Title"));
}

TEST(KeysWithoutTheirOwnerTest, OwnersUseTheirEntriesAndNobodyOneThatIsToCome) {
    const std::string loader = "ini.Read(keys::Fontsize, a);\nini.Read(keys::Buttons[i], a);\n";
    EXPECT_THAT(KeysWithoutTheirOwner(With({{"src/core/loader.cpp", loader},
                                            {"src/ui/title.cpp", "Read(profile::keys::Title)"}})),
                IsEmpty());
    EXPECT_THAT(
        KeysWithoutTheirOwner(With({{"src/core/loader.cpp", loader},
                                    {"src/settings/a.cpp", "Read(keys::FontsizeInSettings)"},
                                    {"src/ui/title.cpp", "Read(keys::Titles)"}})),
        ElementsAre(
            "src/profile/keys.h: FontsizeInSettings: its owner has come: src/settings/a.cpp",
            "src/profile/keys.h: Title: src/ui/title.cpp does not use it"));
}

struct KeysOfThisTree : testing::Test {
    static void SetUpTestSuite() { tree = ReadTree(KIVU_SOURCE_DIR); }
    void SetUp() override { ASSERT_FALSE(tree.empty()); }
    static inline SourceTree tree;
};

TEST_F(KeysOfThisTree, RoutinesReadAndWriteByTheTable) {
    EXPECT_EQ(Joined(KeysPastTheTable(tree)), "");
}

TEST_F(KeysOfThisTree, AllEntriesAreListed) {
    EXPECT_EQ(Joined(KeysOffTheList(tree)), "");
}

TEST_F(KeysOfThisTree, OwnersUseTheirEntries) {
    EXPECT_EQ(Joined(KeysWithoutTheirOwner(tree)), "");
}

}  // namespace
}  // namespace kivu::tree
