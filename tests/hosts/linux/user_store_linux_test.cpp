#include "hosts/linux/user_store_linux.h"

#include <filesystem>
#include <sys/stat.h>

#include "testing/environment_variable.h"
#include "testing/temporary_directory.h"

namespace fs = std::filesystem;
using namespace std::string_literals;

namespace kivu::hosts {
namespace {

class UserStoreLinux : public ::testing::Test {
 protected:
    kivu::testing::TemporaryDirectory directory;
    LinuxUserStore store{directory.Path("a/b/user.ini")};
    LinuxUserStore here{directory.Path("user.ini")};
};

TEST_F(UserStoreLinux, WithoutAFileEverythingIsMissing) {
    EXPECT_EQ(store.Get("AlwaysOnTop", "OnTop", "True"), "True");
    EXPECT_EQ(directory.Count(), 0u);
}

TEST_F(UserStoreLinux, KeepsAValueAndMakesItsDirectories) {
    store.Set("AlwaysOnTop", "OnTop", "False");
    EXPECT_EQ(directory.Read("a/b/user.ini"), "[AlwaysOnTop]\r\nOnTop=False\r\n");
    EXPECT_EQ(store.Get("alwaysontop", "ONTOP", "True"), "False");
    store.Set("ALWAYSONTOP", "ontop", "True");
    EXPECT_EQ(directory.Read("a/b/user.ini"), "[AlwaysOnTop]\r\nontop=True\r\n");
}

TEST_F(UserStoreLinux, LiesInTheUsersConfigurationDirectory) {
    const kivu::testing::EnvironmentVariable config("XDG_CONFIG_HOME", directory.Path("config/"));
    LinuxUserStore().Set("s", "k", "v");
    EXPECT_EQ(directory.Read("config/Kivu/user.ini"), "[s]\r\nk=v\r\n");
}

TEST_F(UserStoreLinux, ARelativeConfigurationDirectoryCountsAsNone) {
    const kivu::testing::EnvironmentVariable config("XDG_CONFIG_HOME", "relative");
    const kivu::testing::EnvironmentVariable home("HOME", directory.Root());
    LinuxUserStore().Set("s", "k", "v");
    EXPECT_EQ(directory.Read(".config/Kivu/user.ini"), "[s]\r\nk=v\r\n");
}

TEST_F(UserStoreLinux, ForeignLinesAndOtherSectionsStay) {
    directory.Write("user.ini", "; mine\n[One]\na=1\nnonsense\n\n[Two]\r\na=2\r\n[One]\na=3");
    here.Set("one", "b", "x");
    here.Set("two", "a", "y");
    here.Set("three", "c", "z");
    EXPECT_EQ(directory.Read("user.ini"),
              "; mine\n[One]\na=1\nnonsense\nb=x\r\n\n[Two]\r\na=y\r\n[One]\na=3\r\n[three]\r\n"
              "c=z\r\n");
    EXPECT_EQ(here.Get("One", "a", ""), "1");
}

TEST_F(UserStoreLinux, ValuesComeBackAsTheyWereGiven) {
    for (const std::string value : {"", " ", " blanks around ", "\"quoted\"", "\"", "\"a",
                                    "a=b;c#d[e]", "Gr\xc3\xbc\xc3\x9f"}) {
        here.Set("s", "k", value);
        EXPECT_EQ(here.Get("s", "k", "missing"), value);
    }
    here.Set("s", "k", "a\r\n[t]\0b"s);
    EXPECT_EQ(here.Get("s", "k", ""), "a  [t] b");
    EXPECT_EQ(here.Get("t", "k", "missing"), "missing");
}

TEST_F(UserStoreLinux, ANameThatWouldBreakTheFileIsNotKept) {
    for (const std::string name : {"", " ", "a\nb", ";a", "#a", "[a", " a", "a\t"}) {
        here.Set(name, "k", "v");
        here.Set("s", name, "v");
    }
    here.Set("a]b", "k", "v");
    here.Set("s", "a=b", "v");
    EXPECT_EQ(directory.Count(), 0u);
}

TEST_F(UserStoreLinux, AHostileFileIsReadAsFarAsItGoes) {
    directory.Write("user.ini", "\0\xff[s\n]\n[]\n=\n[s]\n=x\nk\n\0k\0= v\0\n"s);
    EXPECT_EQ(here.Get("s", "k", "missing"), "v");
    EXPECT_EQ(here.Get("s", "x", "missing"), "missing");
    here.Set("s", "k", "w");
    EXPECT_EQ(here.Get("s", "k", "missing"), "w");
}

TEST_F(UserStoreLinux, AFileTooLargeIsNeitherReadNorReplaced) {
    directory.Write("user.ini", "[s]\r\nk=v\r\n" + std::string(2'000'000, 'x'));
    here.Set("s", "k", "w");
    EXPECT_EQ(here.Get("s", "k", "missing"), "missing");
    EXPECT_EQ(directory.Read("user.ini").substr(0, 10), "[s]\r\nk=v\r\n");
}

TEST_F(UserStoreLinux, ADirectoryInItsPlaceIsLeftAlone) {
    fs::create_directory(directory.Path("user.ini"));
    here.Set("s", "k", "v");
    EXPECT_EQ(here.Get("s", "k", "missing"), "missing");
    EXPECT_TRUE(fs::is_directory(directory.Path("user.ini")));
}

TEST_F(UserStoreLinux, TheSameValueAgainWritesNothing) {
    here.Set("s", "k", "v");
    ASSERT_EQ(::chmod(directory.Path("user.ini").c_str(), 0600), 0);
    struct stat before {};
    ASSERT_EQ(::stat(directory.Path("user.ini").c_str(), &before), 0);
    here.Set("s", "k", "v");
    struct stat after {};
    ASSERT_EQ(::stat(directory.Path("user.ini").c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
}

TEST_F(UserStoreLinux, ThereIsNoSystemRegistry) {
    EXPECT_EQ(store.SystemValue("HKEY_LOCAL_MACHINE", "Software", "Path"), "");
}

}  // namespace
}  // namespace kivu::hosts
