#include "support/web_address.h"

#include <gmock/gmock.h>

#include "testing/scripted_host.h"

namespace kivu::support {
namespace {

using ::testing::IsEmpty;

TEST(WebAddress, IsHttpOrHttpsWithAHost) {
    for (const char* address :
         {"http://a", "https://a.b/c", "HTTP://A.B", "https://a.b:8080/c?d=e&f#g",
          "https://a.b/it's", "http://[::1]:80/x",
          "https://b\xC3\xBC"
          "cher.de"})
        EXPECT_TRUE(IsWebAddress(address)) << address;
}

TEST(WebAddress, NothingElseIsOne) {
    for (const char* address : {"",
                                "http",
                                "http:",
                                "http:/a",
                                "http://",
                                "https://",
                                "http:///a",
                                "http://?a",
                                "http://:80/",
                                "http://\\a",
                                "ftp://a.b",
                                "file:///etc/passwd",
                                "javascript:alert(1)",
                                "C:\\evil.exe",
                                "/usr/bin/evil",
                                "evil.exe",
                                "\\\\server\\share\\evil.exe",
                                "-http://a",
                                " http://a",
                                "http://a ",
                                "http://a b",
                                "http://a/\"b",
                                "http://a/\tb",
                                "http://a/\rb",
                                "http://a/\nb",
                                "http://a/\x7F",
                                "httpx://a",
                                "https:\\\\a"})
        EXPECT_FALSE(IsWebAddress(address)) << address;
    EXPECT_FALSE(IsWebAddress(std::string_view("http://a\0b", 10)));
}

TEST(WebAddress, SafeIsHttpsAlone) {
    EXPECT_TRUE(IsSafeWebAddress("https://a.b/c"));
    EXPECT_TRUE(IsSafeWebAddress("HTTPS://a.b/c"));
    EXPECT_FALSE(IsSafeWebAddress("http://a.b/c"));
    EXPECT_FALSE(IsSafeWebAddress("https://a.b/c d"));
}

TEST(WebAddress, TheBrowserGetsAddressesAlone) {
    testing::ScriptedStarter starter;
    EXPECT_TRUE(ShowHtmlWithBrowser(starter, "https://a.b/c"));
    ASSERT_EQ(starter.runs.size(), 1U);
    EXPECT_TRUE(starter.runs[0].opened);
    EXPECT_EQ(starter.runs[0].request.command, "https://a.b/c");
    for (const char* other : {"C:\\evil.exe", "", "file:///a", "https://a --option"})
        EXPECT_FALSE(ShowHtmlWithBrowser(starter, other)) << other;
    EXPECT_EQ(starter.runs.size(), 1U);
    starter.result = std::make_error_code(std::errc::no_such_file_or_directory);
    EXPECT_FALSE(ShowHtmlWithBrowser(starter, "https://a.b/c"));
}

TEST(WebAddress, AStoredOneWithoutASchemeIsHttp) {
    EXPECT_EQ(DownloadAddress("a.b/c"), "http://a.b/c");
    EXPECT_EQ(DownloadAddress(" a.b "), "http://a.b");
    EXPECT_EQ(DownloadAddress("a.b:8080/c"), "http://a.b:8080/c");
    EXPECT_EQ(DownloadAddress("a.b/c:d"), "http://a.b/c:d");
    EXPECT_EQ(DownloadAddress("http://a.b/c"), "http://a.b/c");
    EXPECT_EQ(DownloadAddress("https://a.b"), "https://a.b");
}

TEST(WebAddress, AStoredOneThatIsNoneOpensNothing) {
    for (const char* stored : {"", " ", "C:\\evil.exe", "C:evil.exe", "/usr/bin/evil", "//a.b/c",
                               "\\\\server\\share\\evil.exe", "file:///a", "javascript:alert(1)",
                               "ms-settings:x", "a b.c", "a\"b", "mailto:a@b"})
        EXPECT_EQ(DownloadAddress(stored), std::nullopt) << stored;
}

TEST(WebAddress, TheEntryOfAnEmulatorLeavesOutHttp) {
    EXPECT_EQ(getEmuDownloadPath("Amiga", "http://a.b/c"), "Amiga Download: a.b/c");
    EXPECT_EQ(getEmuDownloadPath("Amiga", "a.b/c"), "Amiga Download: a.b/c");
    EXPECT_EQ(getEmuDownloadPath("Amiga", "https://a.b"), "Amiga Download: https://a.b");
    EXPECT_THAT(getEmuDownloadPath("Amiga", ""), IsEmpty());
    EXPECT_THAT(getEmuDownloadPath("", "a.b"), IsEmpty());
}

}  // namespace
}  // namespace kivu::support
