#include "support/url_download.h"

#include <gmock/gmock.h>

#include "testing/memory_file_system.h"
#include "testing/scripted_downloads.h"
#include "testing/scripted_host.h"

namespace kivu::support {
namespace {

using platform::Fetched;
using ::testing::IsEmpty;

class UrlDownloadTest : public ::testing::Test {
 protected:
    explicit UrlDownloadTest(char separator = '/') : files(separator) {
        files.AddDirectory(separator == '/' ? "/dl" : "C:\\dl");
    }

    bool Download(const std::string& url, const std::string& destination, bool overwrite = false) {
        downloads.served.emplace(url, "new");
        return download.URLToFileDownload(url, destination, overwrite);
    }
    // One box, which names its source; then it is forgotten.
    void ExpectBox(const std::string& text) {
        ASSERT_EQ(dialogs.shown.size(), 1U);
        EXPECT_EQ(dialogs.shown[0].title, "modURLDownload.URLDownload");
        EXPECT_EQ(dialogs.shown[0].text, text);
        EXPECT_EQ(dialogs.shown[0].icon, platform::Icon::Error);
        EXPECT_EQ(dialogs.shown[0].buttons, platform::Buttons::Ok);
        dialogs.shown.clear();
    }

    testing::MemoryFileSystem files;
    testing::ScriptedDownloads downloads{files};
    testing::ScriptedDialogs dialogs;
    testing::ScriptedLog log;
    bool german = false;
    UrlDownload download{{downloads, files, dialogs, log},
                         [this](const char* inGerman, const char* inEnglish) {
                             return german ? inGerman : inEnglish;
                         }};
};

TEST_F(UrlDownloadTest, TheNameComesFromTheAddressAndGetsANumberWhereItIsTaken) {
    const std::string url = "http://h/a.b/x.zip?v=1";
    for (const char* name : {"/dl/x.zip", "/dl/x (1).zip", "/dl/x (2).zip"}) {
        EXPECT_TRUE(Download(url, "/dl/"));
        EXPECT_EQ(files.BytesOf(name), "new") << name;
        EXPECT_EQ(downloads.requests.back().path, name);
    }
    EXPECT_THAT(dialogs.shown, IsEmpty());
}

TEST_F(UrlDownloadTest, ADirectoryIsOneWithAndWithoutASeparator) {
    EXPECT_TRUE(Download("http://h/x.zip", "/dl"));
    EXPECT_EQ(files.BytesOf("/dl/x.zip"), "new");
    downloads.served["http://h/y.zip"] = "new";
    EXPECT_TRUE(download.URLToFileDownload("\"http://h/y.zip\"", "\"/dl/\"", false));
    EXPECT_EQ(files.BytesOf("/dl/y.zip"), "new");
}

TEST_F(UrlDownloadTest, QuotesAreTakenOffBothEnds) {
    downloads.served["http://h/x"] = "new";
    EXPECT_TRUE(download.URLToFileDownload("\"http://h/x\"", "\"/dl/file\"", false));
    EXPECT_EQ(files.BytesOf("/dl/file"), "new");
    // The one at the end may be missing.
    EXPECT_TRUE(download.URLToFileDownload("\"http://h/x", "\"/dl/other", false));
    EXPECT_EQ(files.BytesOf("/dl/other"), "new");
}

TEST_F(UrlDownloadTest, OverwriteReplacesTheFile) {
    files.AddFile("/dl/x.zip", "old");
    EXPECT_TRUE(Download("http://h/x.zip", "/dl/x.zip", true));
    EXPECT_EQ(files.BytesOf("/dl/x.zip"), "new");
    EXPECT_TRUE(Download("http://h/x.zip", "/dl/", true));
    EXPECT_EQ(files.BytesOf("/dl/x (1).zip"), "(no file)");
}

TEST_F(UrlDownloadTest, TheNumberStandsInFrontOfTheNamesOwnEnding) {
    files.AddDirectory("/dl/with.dot");
    for (const auto& [taken, numbered] :
         std::vector<std::pair<std::string, std::string>>{{"/dl/a.tar.gz", "/dl/a.tar (1).gz"},
                                                          {"/dl/with.dot/b", "/dl/with.dot/b (1)"},
                                                          {"/dl/.c", "/dl/ (1).c"},
                                                          {"/dl/d.", "/dl/d (1)."},
                                                          {"/dl/e (1).x", "/dl/e (1) (1).x"}}) {
        files.AddFile(taken, "old");
        EXPECT_TRUE(Download("http://h/x", taken));
        EXPECT_EQ(downloads.requests.back().path, numbered);
        EXPECT_EQ(files.BytesOf(taken), "old");
    }
}

TEST_F(UrlDownloadTest, DirectoriesAndLinksCountAsTaken) {
    files.AddDirectory("/dl/x.zip");
    files.AddLink("/dl/x (1).zip", "/nowhere");
    EXPECT_TRUE(Download("http://h/x.zip", "/dl/"));
    EXPECT_EQ(downloads.requests.back().path, "/dl/x (2).zip");
}

TEST_F(UrlDownloadTest, NumbersEndAt9999) {
    files.AddFile("/dl/x", "old");
    for (int number = 1; number < 9999; ++number)
        files.AddFile("/dl/x (" + std::to_string(number) + ")", "old");
    EXPECT_TRUE(Download("http://h/x", "/dl/"));
    EXPECT_EQ(downloads.requests.back().path, "/dl/x (9999)");
    EXPECT_FALSE(Download("http://h/x", "/dl/"));
    ExpectBox("No file name is free any more:\r/dl/x");
}

TEST_F(UrlDownloadTest, AnAddressWithoutAFileNameIsToldAndNotFetched) {
    for (const char* url :
         {"http://h/", "http://h/a/", "http://h", "http://h/..\\e.exe", "http://h/..", "http://h/.",
          "http://h/?a=b/c.zip", "http://h/#c.zip", "http://h/nul.zip", "http://h/a:b",
          "http://h/x.", "http://h/a*b", "http://h/a|b", "http://h/a<b>"}) {
        EXPECT_FALSE(Download(url, "/dl/")) << url;
        ExpectBox(std::string("The address does not end in a file name:\r") + url);
    }
    EXPECT_THAT(downloads.requests, IsEmpty());
    german = true;
    EXPECT_FALSE(download.URLToFileDownload("\"http://h/\"", "/dl/", false));
    ExpectBox("Die Adresse endet in keinem Dateinamen:\rhttp://h/");
}

TEST_F(UrlDownloadTest, OnlyWebAddressesAreTaken) {
    for (const char* url : {"", "file:///etc/passwd", "/etc/passwd", "C:\\a.exe", "http://h/a b"}) {
        EXPECT_FALSE(Download(url, "/dl/x")) << url;
        ExpectBox(std::string("No http or https address:\r") + url);
    }
    EXPECT_FALSE(Download("http://h/x", ""));
    ExpectBox("No target for:\rhttp://h/x");
    EXPECT_THAT(downloads.requests, IsEmpty());
}

TEST_F(UrlDownloadTest, ATransferThatFailsIsTheCallersToTell) {
    for (const Fetched result : {Fetched::unreachable, Fetched::refused, Fetched::incomplete,
                                 Fetched::tooLarge, Fetched::cancelled}) {
        downloads.otherwise = result;
        EXPECT_FALSE(download.URLToFileDownload("http://h/x", "/dl/", false));
    }
    EXPECT_THAT(dialogs.shown, IsEmpty());
    EXPECT_EQ(log.lines.front(), "not downloaded, no answer: http://h/x to /dl/x");
}

TEST_F(UrlDownloadTest, ATargetThatTakesNothingIsTold) {
    files.SetReadOnly("/dl");
    EXPECT_FALSE(Download("http://h/x", "/dl/"));
    ExpectBox("The file cannot be written:\r/dl/x");
    EXPECT_FALSE(Download("http://h/x", "/missing/"));
    ExpectBox("The file cannot be written:\r/missing/x");
}

TEST_F(UrlDownloadTest, CancellingGivesFalseAndNoBox) {
    downloads.served["http://h/x"] = "new";
    std::int64_t most = 0;
    EXPECT_FALSE(download.URLToFileDownload("http://h/x", "/dl/", false,
                                            [&](std::int64_t got, std::int64_t total) {
                                                most = total;
                                                return got == 0;
                                            }));
    EXPECT_EQ(most, 3);
    EXPECT_THAT(dialogs.shown, IsEmpty());
    EXPECT_EQ(files.BytesOf("/dl/x"), "(no file)");
}

class UrlDownloadOnWindows : public UrlDownloadTest {
 protected:
    UrlDownloadOnWindows() : UrlDownloadTest('\\') {}
};

TEST_F(UrlDownloadOnWindows, PathsAreTheHosts) {
    EXPECT_TRUE(Download("http://h/x.zip", "C:\\dl"));
    EXPECT_EQ(downloads.requests.back().path, "C:\\dl\\x.zip");
    EXPECT_TRUE(Download("http://h/x.zip", "C:\\dl\\"));
    EXPECT_EQ(downloads.requests.back().path, "C:\\dl\\x (1).zip");
    EXPECT_TRUE(Download("http://h/x.zip", "C:/dl/"));
    EXPECT_EQ(downloads.requests.back().path, "C:/dl/x (2).zip");
}

}  // namespace
}  // namespace kivu::support
