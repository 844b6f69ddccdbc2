#include "text/string_ops.h"

#include <gtest/gtest.h>

namespace kivu::text {
namespace {

using std::string;
using std::string_view;
using namespace std::literals;

TEST(ReplaceAll, ReplacesFromLeftToRight) {
    EXPECT_EQ(replaceall("a.b.c", ".", "-"), "a-b-c");
    EXPECT_EQ(replaceall("aaa", "aa", "b"), "ba");
    EXPECT_EQ(replaceall("abc", "b", ""), "ac");
    EXPECT_EQ(replaceall("abc", "x", "y"), "abc");
    EXPECT_EQ(replaceall("", "x", "y"), "");
    EXPECT_EQ(replaceall("a\0b"s, "\0"s, "0"), "a0b");
    EXPECT_EQ(replaceall("aA", "a", "b"), "bA");
}

TEST(ReplaceAll, EndsWhenTheReplacementHoldsTheSearchText) {
    EXPECT_EQ(replaceall("a'b", "'", "'\\''"), "a'\\''b");
    EXPECT_EQ(replaceall("aa", "a", "aa"), "aaaa");
}

TEST(ReplaceAll, LeavesATextWhenThereIsNothingToLookFor) {
    EXPECT_EQ(replaceall("ab", "", "x"), "ab");
}

TEST(ReplaceText, PassesOverCaseWhenAsked) {
    EXPECT_EQ(ReplaceText("Disk disk DISK", "disk", "x", false), "x x x");
    EXPECT_EQ(ReplaceText("Disk disk DISK", "disk", "x", true), "Disk x DISK");
    EXPECT_EQ(ReplaceText("ÄÖÜ", "ö", "-", false), "Ä-Ü");
    EXPECT_EQ(ReplaceText("Keep CASE here", "case", "it", false), "Keep it here");
    EXPECT_EQ(ReplaceText("aaa", "AA", "b", false), "ba");
    EXPECT_EQ(ReplaceText("aa", "A", "aa", false), "aaaa");
    EXPECT_EQ(ReplaceText("ab", "", "x", false), "ab");
    EXPECT_EQ(ReplaceText("x\xFFy", "Y", "z", false), "x\xFFz");
    EXPECT_EQ(ReplaceText("ab", "abc", "x", false), "ab");
}

TEST(SplitRegistryPath, SplitsRootKeyAndValue) {
    const auto path = SplitRegistryPath("HKEY_LOCAL_MACHINE\\Software\\Microsoft\\SystemRoot");
    ASSERT_TRUE(path);
    EXPECT_EQ(path->root, "HKEY_LOCAL_MACHINE");
    EXPECT_EQ(path->keyPath, "Software\\Microsoft");
    EXPECT_EQ(path->valueName, "SystemRoot");
}

TEST(SplitRegistryPath, KnowsSevenRoots) {
    for (const char* root :
         {"HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE", "HKEY_USERS",
          "HKEY_PERFORMANCE_DATA", "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA"}) {
        EXPECT_TRUE(SplitRegistryPath(root + "\\a\\b"s)) << root;
    }
    EXPECT_FALSE(SplitRegistryPath("HKEY_ELSEWHERE\\a\\b"));
    EXPECT_FALSE(SplitRegistryPath("\\a\\b"));
}

TEST(SplitRegistryPath, GivesNothingWithoutABackslash) {
    EXPECT_FALSE(SplitRegistryPath("HKEY_USERS"));
    EXPECT_FALSE(SplitRegistryPath(""));
}

TEST(SplitRegistryPath, LeavesTheKeyEmptyWithOneBackslash) {
    const auto path = SplitRegistryPath("HKEY_USERS\\Name");
    ASSERT_TRUE(path);
    EXPECT_EQ(path->keyPath, "");
    EXPECT_EQ(path->valueName, "Name");
}

TEST(ExpandUserProfile, PutsTheUsersDirectoryBetweenPercentSigns) {
    const EnvironmentLookup lookup = [](const string& name) -> std::optional<string> {
        return name == "USERPROFILE" ? std::optional<string>("C:\\Users\\me") : std::nullopt;
    };
    EXPECT_EQ(ExpandUserProfile("%USERPROFILE%\\Desktop", lookup), "C:\\Users\\me\\Desktop");
    EXPECT_EQ(ExpandUserProfile("x%any%y%other%", lookup), "xC:\\Users\\meyC:\\Users\\me");
    EXPECT_EQ(ExpandUserProfile("100% sure", lookup), "100% sure");
    EXPECT_EQ(ExpandUserProfile("C:\\Windows", lookup), "C:\\Windows");
    EXPECT_EQ(ExpandUserProfile("", lookup), "");
}

TEST(ExpandUserProfile, LeavesTheTextWithoutAUsersDirectory) {
    const EnvironmentLookup none = [](const string&) { return std::optional<string>(); };
    EXPECT_EQ(ExpandUserProfile("%USERPROFILE%\\Desktop", none), "%USERPROFILE%\\Desktop");
    EXPECT_EQ(ExpandUserProfile("%USERPROFILE%\\Desktop", nullptr), "%USERPROFILE%\\Desktop");
}

TEST(ExpandUserProfile, DoesNotExpandWhatItPutIn) {
    const EnvironmentLookup odd = [](const string&) { return std::optional<string>("%a%"); };
    EXPECT_EQ(ExpandUserProfile("%x%", odd), "%a%");
}

}  // namespace
}  // namespace kivu::text
