#include "hosts/linux/downloader_curl.h"

#include <csignal>
#include <filesystem>
#include <iostream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "as_user.h"
#include "hosts/linux/part_file.h"
#include "testing/environment_variable.h"
#include "testing/temporary_directory.h"
#include "web_server.h"

namespace kivu::hosts {
namespace {

using platform::Fetched;
constexpr std::int64_t much = 256 << 20;

// One server for all tests of a run.
class DownloaderCurl : public ::testing::Test {
 protected:
    static void SetUpTestSuite() { server = std::make_unique<testing::WebServer>(KIVU_WEB_SERVER); }
    static void TearDownTestSuite() { server.reset(); }
    void SetUp() override {
        if (!server->IsRunning()) {
            std::cerr << "SKIPPED: python3 or openssl is missing\n";
            GTEST_SKIP() << "no local server";
        }
    }

    Fetched Get(const std::string& url, std::int64_t maxBytes = much) {
        return CurlDownloader(server->Certificate()).Fetch(url, target, maxBytes, {});
    }
    // The file that was there before still is, and nothing else.
    void ExpectTheOldFile() {
        EXPECT_EQ(directory.Read("target"), "old");
        EXPECT_EQ(directory.Count(), 1U);
    }

    static std::unique_ptr<testing::WebServer> server;
    testing::EnvironmentVariable noProxy{"no_proxy", "*"};
    testing::TemporaryDirectory directory;
    const std::string target = directory.Write("target", "old");
};

std::unique_ptr<testing::WebServer> DownloaderCurl::server;

TEST_F(DownloaderCurl, ReplacesTheFileByTheWholeNewOne) {
    EXPECT_EQ(Get(server->Http("/file")), Fetched::ok);
    EXPECT_EQ(directory.Read("target"), "content of /file");
    EXPECT_EQ(Get(server->Https("/file?with=query")), Fetched::ok);
    EXPECT_EQ(Get(server->Http("/nolength")), Fetched::ok);
    EXPECT_EQ(directory.Read("target"), "until the end");
    EXPECT_EQ(Get(server->Http("/chunks")), Fetched::ok);
    EXPECT_EQ(directory.Read("target"), "chunk");
    EXPECT_EQ(directory.Count(), 1U);
}

TEST_F(DownloaderCurl, MakesANewFileWithTheUsersRights) {
    const std::string fresh = directory.Path("it's new");
    EXPECT_EQ(CurlDownloader().Fetch(server->Http("/file"), fresh, much, {}), Fetched::ok);
    EXPECT_EQ(directory.Read("it's new"), "content of /file");
    struct stat status {};
    ASSERT_EQ(::stat(fresh.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0111, 0U);
    EXPECT_EQ(directory.Count(), 2U);
}

TEST_F(DownloaderCurl, OtherAnswersThanTheFileAreRefused) {
    for (const char* path : {"/404", "/500", "/206", "/203", "/204", "/nowhere"}) {
        EXPECT_EQ(Get(server->Http(path)), Fetched::refused) << path;
        ExpectTheOldFile();
    }
}

TEST_F(DownloaderCurl, LessThanAnnouncedIsIncomplete) {
    for (const char* path : {"/short", "/cutchunks", "/empty"}) {
        EXPECT_EQ(Get(server->Http(path)), Fetched::incomplete) << path;
        ExpectTheOldFile();
    }
}

TEST_F(DownloaderCurl, WhatIsTooLargeEndsAtOnce) {
    EXPECT_EQ(Get(server->Http("/large")), Fetched::tooLarge);
    ExpectTheOldFile();
    EXPECT_EQ(Get(server->Http("/endless"), 1 << 20), Fetched::tooLarge);
    EXPECT_EQ(Get(server->Http("/endless/redirection"), 1 << 20), Fetched::tooLarge);
    EXPECT_EQ(Get(server->Http("/file"), 15), Fetched::tooLarge);
    ExpectTheOldFile();
    EXPECT_EQ(Get(server->Http("/file"), 16), Fetched::ok);
}

TEST_F(DownloaderCurl, FollowsFiveRedirectionsAndNoMore) {
    EXPECT_EQ(Get(server->Http("/hops/6")), Fetched::refused);
    EXPECT_EQ(Get(server->Http("/loop")), Fetched::refused);
    ExpectTheOldFile();
    EXPECT_EQ(Get(server->Http("/hops/5")), Fetched::ok);
    EXPECT_EQ(directory.Read("target"), "content of /file");
}

TEST_F(DownloaderCurl, RedirectionsLeadToNothingLessSafe) {
    EXPECT_EQ(Get(server->Https("/to/http")), Fetched::refused);
    EXPECT_EQ(Get(server->Http("/to/https/and/back")), Fetched::refused);
    EXPECT_EQ(Get(server->Http("/to/file")), Fetched::refused);
    ExpectTheOldFile();
    EXPECT_EQ(Get(server->Http("/to/https")), Fetched::ok);
}

TEST_F(DownloaderCurl, ACertificateThatNobodyVouchesForIsNoAnswer) {
    EXPECT_EQ(CurlDownloader().Fetch(server->Https("/file"), target, much, {}),
              Fetched::unreachable);
    ExpectTheOldFile();
    testing::TemporaryDirectory other;
    const testing::EnvironmentVariable variable("SSL_CERT_FILE", server->Certificate());
    EXPECT_EQ(
        CurlDownloader(other.Write("none.pem", "")).Fetch(server->Https("/file"), target, much, {}),
        Fetched::unreachable);
}

TEST_F(DownloaderCurl, ANameOfAnotherServerIsNoAnswer) {
    std::string url = server->Https("/file");
    url.replace(url.find("127.0.0.1"), 9, "localhost");
    EXPECT_EQ(Get(url), Fetched::unreachable);
    ExpectTheOldFile();
}

TEST_F(DownloaderCurl, WhereNobodyListensThereIsNoAnswer) {
    EXPECT_EQ(Get("http://127.0.0.1:1/file"), Fetched::unreachable);
    EXPECT_EQ(Get("https://127.0.0.1:1/file"), Fetched::unreachable);
    EXPECT_EQ(Get("http://kivu.invalid/file"), Fetched::unreachable);
    ExpectTheOldFile();
}

TEST_F(DownloaderCurl, TakesNoOtherAddresses) {
    for (const std::string url : {"", "http://", "file:///etc/hostname", "ftp://127.0.0.1/a",
                                  "/etc/hostname", "C:\\a", "gopher://a", "127.0.0.1/file"})
        EXPECT_EQ(Get(url), Fetched::badAddress) << url;
    EXPECT_EQ(Get(std::string("http://a\0b", 10)), Fetched::badAddress);
    EXPECT_EQ(Get("http://a:port/"), Fetched::badAddress);
    ExpectTheOldFile();
}

TEST_F(DownloaderCurl, SilenceEndsIt) {
    CurlDownloader hasty(server->Certificate(), std::chrono::milliseconds(200));
    EXPECT_EQ(hasty.Fetch(server->Http("/slow"), target, much, {}), Fetched::incomplete);
    EXPECT_EQ(hasty.Fetch(server->Http("/silent"), target, much, {}), Fetched::unreachable);
    ExpectTheOldFile();
}

TEST_F(DownloaderCurl, TellsHowFarItIsAndCanBeCancelled) {
    std::int64_t most = 0, all = 0;
    const auto thread = std::this_thread::get_id();
    const auto result = CurlDownloader().Fetch(server->Http("/slow"), target, much,
                                               [&](std::int64_t got, std::int64_t total) {
                                                   EXPECT_EQ(std::this_thread::get_id(), thread);
                                                   most = got;
                                                   all = total;
                                                   return got < 5 || total < 100;
                                               });
    EXPECT_EQ(result, Fetched::cancelled);
    EXPECT_EQ(most, 5);
    EXPECT_EQ(all, 100);
    ExpectTheOldFile();
    EXPECT_EQ(CurlDownloader().Fetch(server->Http("/silent"), target, much,
                                     [](std::int64_t, std::int64_t) { return false; }),
              Fetched::cancelled);
}

// Events run meanwhile, and may bring another one.
TEST_F(DownloaderCurl, AnotherDownloadMayRunWithinIt) {
    CurlDownloader downloader;
    const std::string other = directory.Path("other");
    Fetched inner = Fetched::refused;
    const auto outer =
        downloader.Fetch(server->Http("/slow"), target, much, [&](std::int64_t, std::int64_t) {
            inner = downloader.Fetch(server->Http("/file"), other, much, {});
            return false;
        });
    EXPECT_EQ(outer, Fetched::cancelled);
    EXPECT_EQ(inner, Fetched::ok);
    EXPECT_EQ(directory.Read("other"), "content of /file");
    EXPECT_EQ(directory.Read("target"), "old");
}

// In the middle of both the process ends, and nothing comes back to clean up.
TEST_F(DownloaderCurl, TheEndOfTheProcessLeavesNoPartOfAFile) {
    CurlDownloader downloader;
    const std::string other = directory.Path("other");
    std::size_t during = 0, afterwards = 0;
    const auto stop = [](std::int64_t, std::int64_t) { return false; };
    downloader.Fetch(server->Http("/slow"), target, much, [&](std::int64_t, std::int64_t) {
        downloader.Fetch(server->Http("/slow"), other, much, [&](std::int64_t, std::int64_t) {
            during = directory.Count();
            downloader.Abandon();
            afterwards = directory.Count();
            return false;
        });
        return false;
    });
    EXPECT_EQ(during, 3U);
    EXPECT_EQ(afterwards, 1U);
    ExpectTheOldFile();
    // What is over is no longer its own.
    directory.Write("target.part", "of a browser");
    EXPECT_EQ(downloader.Fetch(server->Http("/slow"), target, much, stop), Fetched::cancelled);
    downloader.Abandon();
    EXPECT_EQ(directory.Read("target.part"), "of a browser");
    EXPECT_EQ(directory.Count(), 2U);
}

// All of it may have come by then.
TEST_F(DownloaderCurl, AnAbandonedFileTakesNobodysPlace) {
    PartFile part;
    ASSERT_TRUE(part.Open(target));
    ASSERT_TRUE(part.Write("new", 3));
    part.Abandon();
    EXPECT_FALSE(part.Finish());
    ExpectTheOldFile();
}

TEST_F(DownloaderCurl, AnotherProgramsPartIsLeftAlone) {
    directory.Write("target.part", "of a browser");
    std::filesystem::create_directory(directory.Path("target.1.part"));
    EXPECT_EQ(Get(server->Http("/file")), Fetched::ok);
    EXPECT_EQ(directory.Read("target"), "content of /file");
    EXPECT_EQ(directory.Read("target.part"), "of a browser");
    EXPECT_EQ(directory.Count(), 3U);
}

TEST_F(DownloaderCurl, ALinkIsReplacedAndNotWrittenThrough) {
    const std::string link = directory.Path("link");
    std::filesystem::create_symlink(target, link);
    EXPECT_EQ(CurlDownloader().Fetch(server->Http("/file"), link, much, {}), Fetched::ok);
    EXPECT_FALSE(std::filesystem::is_symlink(link));
    EXPECT_EQ(directory.Read("link"), "content of /file");
    EXPECT_EQ(directory.Read("target"), "old");
}

TEST_F(DownloaderCurl, ATargetThatTakesNothingIsNamedSo) {
    const auto into = [&](const std::string& path) {
        return CurlDownloader().Fetch(server->Http("/file"), path, much, {});
    };
    EXPECT_EQ(into(directory.Root()), Fetched::notWritable);
    EXPECT_EQ(into(directory.Root() + "/"), Fetched::notWritable);
    EXPECT_EQ(into(directory.Path("missing/file")), Fetched::notWritable);
    EXPECT_EQ(into(target + "/file"), Fetched::notWritable);
    EXPECT_EQ(into(directory.Path(std::string(300, 'n'))), Fetched::notWritable);
    EXPECT_EQ(into(""), Fetched::notWritable);
    ExpectTheOldFile();
}

TEST_F(DownloaderCurl, AReadOnlyDirectoryIsToldBeforeAnythingIsFetched) {
    ASSERT_EQ(::chmod(directory.Root().c_str(), 0555), 0);
    EXPECT_TRUE(testing::HoldsForPlainUser([&] {
        return CurlDownloader().Fetch("http://127.0.0.1:1/file", target, much, {}) ==
               Fetched::notWritable;
    }));
    ASSERT_EQ(::chmod(directory.Root().c_str(), 0755), 0);
    ExpectTheOldFile();
}

TEST_F(DownloaderCurl, ADiskThatIsFullLeavesTheOldFile) {
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit tight{4, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &tight), 0);
    const auto result = Get(server->Http("/file"));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(result, Fetched::notWritable);
    ExpectTheOldFile();
}

}  // namespace
}  // namespace kivu::hosts
