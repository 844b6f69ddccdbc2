#include "hosts/windows/downloader_winhttp.h"
#include "hosts/windows/raw_server.h"
#include "hosts/windows/scratch_directory.h"

namespace kivu::hosts {
namespace {

using platform::Fetched;
using testing::RawServer;
constexpr std::int64_t much = 256 << 20;

class DownloaderWindows : public ::testing::Test {
 protected:
    void SetUp() override { ASSERT_TRUE(server.IsRunning()); }
    Fetched Get(const std::string& path, std::int64_t maxBytes = much) {
        return WinHttpDownloader().Fetch(server.Address(path), target, maxBytes, {});
    }
    void Serve(const std::string& path, const std::string& bytes) {
        server.answers[path] = {bytes, true, false};
    }
    void ExpectTheOldFile() {
        EXPECT_EQ(directory.Read("target"), "old");
        EXPECT_EQ(directory.Read("target.part"), "<no such file>");
    }

    RawServer server;
    testing::ScratchDirectory directory;
    const std::string target = directory.Write("target", "old");
};

TEST_F(DownloaderWindows, ReplacesTheFileByTheWholeNewOne) {
    Serve("/file?a=b", RawServer::Ok("content", 7));
    Serve("/nolength", "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\nuntil the end");
    Serve("/chunks",
          "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nchunk\r\n0\r\n\r\n");
    EXPECT_EQ(Get("/file?a=b#c"), Fetched::ok);
    EXPECT_EQ(directory.Read("target"), "content");
    EXPECT_EQ(Get("/nolength"), Fetched::ok);
    EXPECT_EQ(directory.Read("target"), "until the end");
    EXPECT_EQ(Get("/chunks"), Fetched::ok);
    EXPECT_EQ(directory.Read("target"), "chunk");
    EXPECT_EQ(directory.Read("target.part"), "<no such file>");
}

TEST_F(DownloaderWindows, OtherAnswersThanTheFileAreRefused) {
    for (const char* status : {"404 No", "500 No", "206 Part", "203 Other", "302 Nowhere"}) {
        Serve("/page" + std::string(status).substr(0, 3), RawServer::Status(status));
    }
    for (const char* path : {"/page404", "/page500", "/page206", "/page203", "/page302"}) {
        EXPECT_EQ(Get(path), Fetched::refused) << path;
        ExpectTheOldFile();
    }
}

TEST_F(DownloaderWindows, LessThanAnnouncedIsIncomplete) {
    Serve("/short", RawServer::Ok("0123456789", 100));
    Serve("/empty", RawServer::Ok("", 0));
    EXPECT_EQ(Get("/short"), Fetched::incomplete);
    EXPECT_EQ(Get("/empty"), Fetched::incomplete);
    ExpectTheOldFile();
}

TEST_F(DownloaderWindows, WhatIsTooLargeEnds) {
    Serve("/large", RawServer::Ok("x", std::size_t{1} << 30));
    Serve("/file", RawServer::Ok("content", 7));
    server.answers["/endless"] = {"HTTP/1.1 200 OK\r\nConnection: close\r\n\r\nx", true, true};
    EXPECT_EQ(Get("/large"), Fetched::tooLarge);
    EXPECT_EQ(Get("/file", 6), Fetched::tooLarge);
    EXPECT_EQ(Get("/endless", 1 << 20), Fetched::tooLarge);
    ExpectTheOldFile();
}

TEST_F(DownloaderWindows, FollowsFiveRedirectionsAndNoMore) {
    for (int left = 1; left <= 6; ++left)
        Serve("/hops/" + std::to_string(left),
              RawServer::Status(
                  "301 Moved", left == 1 ? "Location: ../file\r\n"
                                         : "Location: /hops/" + std::to_string(left - 1) + "\r\n"));
    Serve("/file", RawServer::Ok("content", 7));
    Serve("/loop", RawServer::Status("302 Moved", "Location: /loop\r\n"));
    Serve("/to/disk", RawServer::Status("302 Moved", "Location: file:///C:/windows/win.ini\r\n"));
    EXPECT_EQ(Get("/hops/6"), Fetched::refused);
    EXPECT_EQ(Get("/loop"), Fetched::refused);
    EXPECT_EQ(Get("/to/disk"), Fetched::refused);
    ExpectTheOldFile();
    EXPECT_EQ(Get("/hops/5"), Fetched::ok);
}

TEST_F(DownloaderWindows, TakesNoOtherAddresses) {
    for (const char* url : {"", "http://", "file:///C:/windows/win.ini", "ftp://127.0.0.1/a",
                            "C:\\windows\\win.ini", "127.0.0.1/file"})
        EXPECT_EQ(WinHttpDownloader().Fetch(url, target, much, {}), Fetched::badAddress) << url;
    EXPECT_EQ(WinHttpDownloader().Fetch("http://127.0.0.1:1/", target, much, {}),
              Fetched::unreachable);
    ExpectTheOldFile();
}

TEST_F(DownloaderWindows, SilenceEndsIt) {
    server.answers["/slow"] = {RawServer::Ok("first", 100), false, false};
    WinHttpDownloader hasty{std::chrono::milliseconds(300)};
    EXPECT_EQ(hasty.Fetch(server.Address("/slow"), target, much, {}), Fetched::incomplete);
    ExpectTheOldFile();
}

TEST_F(DownloaderWindows, TellsHowFarItIsAndCanBeCancelled) {
    server.answers["/slow"] = {RawServer::Ok("first", 100), false, false};
    std::int64_t most = 0, all = 0;
    const auto result = WinHttpDownloader().Fetch(server.Address("/slow"), target, much,
                                                  [&](std::int64_t got, std::int64_t total) {
                                                      most = got;
                                                      all = total;
                                                      return got < 5;
                                                  });
    EXPECT_EQ(result, Fetched::cancelled);
    EXPECT_EQ(most, 5);
    EXPECT_EQ(all, 100);
    EXPECT_EQ(directory.Read("target"), "old");
}

TEST_F(DownloaderWindows, AnotherProgramsPartIsLeftAlone) {
    Serve("/file", RawServer::Ok("content", 7));
    directory.Write("target.part", "of a browser");
    EXPECT_EQ(Get("/file"), Fetched::ok);
    EXPECT_EQ(directory.Read("target"), "content");
    EXPECT_EQ(directory.Read("target.part"), "of a browser");
}

TEST_F(DownloaderWindows, ATargetThatTakesNothingIsNamedSo) {
    const auto into = [&](const std::string& path) {
        return WinHttpDownloader().Fetch("http://127.0.0.1:1/", path, much, {});
    };
    EXPECT_EQ(into(directory.Root()), Fetched::notWritable);
    EXPECT_EQ(into(directory.Path("missing\\file")), Fetched::notWritable);
    EXPECT_EQ(into(directory.Path("nul")), Fetched::notWritable);
    EXPECT_EQ(into(directory.Path("a?b")), Fetched::notWritable);
    EXPECT_EQ(into(""), Fetched::notWritable);
}

}  // namespace
}  // namespace kivu::hosts
