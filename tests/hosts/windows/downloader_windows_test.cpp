#include "hosts/windows/downloader_winhttp.h"
#include "hosts/windows/part_file.h"
#include "hosts/windows/raw_server.h"
#include "hosts/windows/scratch_directory.h"
#include "hosts/windows/started_program.h"

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

// No call of Windows' makes a disk full for a test.
struct FullDiskDownloader : WinHttpDownloader {
    struct FullPart : PartFile {
        bool Write(const char* bytes, std::size_t size) override {
            const std::size_t fitting = std::min<std::size_t>(size, room);
            room -= fitting;
            return PartFile::Write(bytes, fitting) && fitting == size;
        }
        std::size_t room = 5;
    };
    std::unique_ptr<PartFile> NewPart() const override { return std::make_unique<FullPart>(); }
};

TEST_F(DownloaderWindows, ADiskThatIsFullLeavesTheOldFile) {
    Serve("/file", RawServer::Ok("content", 7));
    Serve("/fits", RawServer::Ok("conte", 5));
    EXPECT_EQ(FullDiskDownloader().Fetch(server.Address("/file"), target, much, {}),
              Fetched::notWritable);
    ExpectTheOldFile();
    EXPECT_EQ(FullDiskDownloader().Fetch(server.Address("/fits"), target, much, {}), Fetched::ok);
}

// What stands there may not be replaced, and is not.
TEST_F(DownloaderWindows, AReadOnlyTargetStays) {
    Serve("/file", RawServer::Ok("content", 7));
    ASSERT_TRUE(directory.SetAttributes("target", FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(Get("/file"), Fetched::notWritable);
    ExpectTheOldFile();
    ASSERT_TRUE(directory.SetAttributes("target", FILE_ATTRIBUTE_ARCHIVE));
    {
        const Handle reader(::CreateFileW(directory.WidePath("target").c_str(), GENERIC_READ,
                                          FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        EXPECT_EQ(Get("/file"), Fetched::notWritable);
    }
    ExpectTheOldFile();
    EXPECT_EQ(Get("/file"), Fetched::ok);
}

// Takes the right to make files in a directory away from everybody, until the end of its scope.
class ClosedDirectory {
 public:
    explicit ClosedDirectory(std::wstring path) : path(std::move(path)) {
        // Read and run alone, and nothing inherited.
        Apply(L"D:P(A;;GRGX;;;WD)(A;;WDSD;;;WD)");
    }
    ~ClosedDirectory() { Apply(L"D:P(A;OICI;GA;;;WD)"); }
    ClosedDirectory(const ClosedDirectory&) = delete;
    ClosedDirectory& operator=(const ClosedDirectory&) = delete;

 private:
    void Apply(const wchar_t* rights) const {
        PSECURITY_DESCRIPTOR descriptor = nullptr;
        ::ConvertStringSecurityDescriptorToSecurityDescriptorW(rights, SDDL_REVISION_1, &descriptor,
                                                               nullptr);
        EXPECT_NE(::SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor), 0);
        ::LocalFree(descriptor);
    }
    std::wstring path;
};

TEST_F(DownloaderWindows, AReadOnlyDirectoryIsToldBeforeAnythingIsFetched) {
    directory.MakeDirectory("closed");
    const ClosedDirectory closed(directory.WidePath("closed"));
    const Handle probe(::CreateFileW(directory.WidePath("closed\\probe").c_str(), GENERIC_WRITE, 0,
                                     nullptr, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE, nullptr));
    if (probe) GTEST_SKIP() << "Wine asks the system below, where root may write everywhere";
    EXPECT_EQ(WinHttpDownloader().Fetch("http://127.0.0.1:1/file", directory.Path("closed\\target"),
                                        much, {}),
              Fetched::notWritable);
}

// The process ends in the middle of it, and nothing comes back to clean up.
TEST_F(DownloaderWindows, ItsPartGoesWithTheProcess) {
    std::wstring command =
        L"\"" + testing::HelperPath(L"leave_part") + L"\" \"" + Wide(target) + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    ASSERT_NE(::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                               nullptr, &startup, &started),
              0);
    const Handle process(started.hProcess), thread(started.hThread);
    ASSERT_EQ(::WaitForSingleObject(process.Get(), 30000), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeProcess(process.Get(), &code);
    EXPECT_EQ(code, 7U) << "it had a part of the file";
    ExpectTheOldFile();
}

// Until then its name is taken, and a second download of the same file has another one.
TEST_F(DownloaderWindows, TwoPartsOfOneTargetHaveNamesOfTheirOwn) {
    PartFile first, second;
    ASSERT_TRUE(first.Open(target));
    ASSERT_TRUE(first.Write("first", 5));
    ASSERT_TRUE(second.Open(target));
    ASSERT_TRUE(second.Write("second", 6));
    EXPECT_TRUE(second.Finish());
    EXPECT_EQ(directory.Read("target"), "second");
    EXPECT_TRUE(first.Finish());
    EXPECT_EQ(directory.Read("target"), "first");
    EXPECT_EQ(directory.Read("target.1.part"), "<no such file>");
}

}  // namespace
}  // namespace kivu::hosts
