#include "hosts/linux/file_system_linux.h"

#include <chrono>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "hosts/linux/as_user.h"
#include "testing/temporary_directory.h"

namespace fs = std::filesystem;

namespace kivu::hosts {
namespace {

using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class FileSystemLinux : public ::testing::Test {
 protected:
    std::vector<std::string> Names(const std::string& path) const {
        std::vector<std::string> names;
        const auto entries = files.ListDirectory(path);
        for (const auto& entry : entries.value())
            names.push_back(entry.name + (entry.isDirectory ? "/" : ""));
        return names;
    }

    kivu::testing::TemporaryDirectory directory;
    LinuxFileSystem files;
};

mode_t ModeOf(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

TEST_F(FileSystemLinux, ListsFilesDirectoriesAndLinksToBoth) {
    directory.Write("game.adf", "x");
    fs::create_directory(directory.Path("sub"));
    fs::create_symlink("game.adf", directory.Path("link.adf"));
    fs::create_directory_symlink("sub", directory.Path("linked"));
    EXPECT_THAT(Names(directory.Root()),
                UnorderedElementsAre("game.adf", "link.adf", "sub/", "linked/"));
}

TEST_F(FileSystemLinux, LeavesOutWhatCannotBeAGame) {
    directory.Write(".hidden", "x");
    fs::create_directory(directory.Path(".git"));
    ASSERT_EQ(::mkfifo(directory.Path("pipe").c_str(), 0600), 0);
    fs::create_symlink("nowhere", directory.Path("dangling"));
    fs::create_symlink("loop", directory.Path("loop"));
    fs::create_symlink("/dev/null", directory.Path("device"));
    directory.Write("two\nlines", "x");
    directory.Write("two\rlines", "x");
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    directory.Path("socket").copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ::close(listener);
    EXPECT_THAT(Names(directory.Root()), IsEmpty());
}

TEST_F(FileSystemLinux, NamesKeepTheirBytes) {
    const std::string longest(255, 'n');
    const std::string latin =
        "Gr\xfc\xdf"
        "e.adf";
    const std::string awkward = "a'b\"c$d`e;f&g *?[x]\\.adf";
    for (const auto& name : {longest, latin, awkward})
        directory.Write(name, "x");
    EXPECT_THAT(Names(directory.Root()), UnorderedElementsAre(longest, latin, awkward));
    EXPECT_EQ(files.ReadFile(directory.Path(latin)), "x");
    EXPECT_TRUE(files.FileExists(directory.Path(awkward)));
}

TEST_F(FileSystemLinux, AListOfAnUnreadableDirectoryIsNone) {
    ASSERT_EQ(::chmod(directory.Root().c_str(), 0755), 0);
    const std::string closed = directory.Path("closed");
    ASSERT_EQ(::mkdir(closed.c_str(), 0700), 0);
    ASSERT_EQ(::chmod(closed.c_str(), 0), 0);
    EXPECT_TRUE(kivu::testing::HoldsForPlainUser(
        [&] { return files.ListDirectory(closed) == std::nullopt && files.IsDirectory(closed); }));
    ::chmod(closed.c_str(), 0700);
}

TEST_F(FileSystemLinux, ADirectoryThatVanishedWhileCurrentIsNoCrash) {
    const std::string before = files.CurrentDirectory();
    ASSERT_FALSE(files.MakeDirectory(directory.Path("gone")));
    ASSERT_FALSE(files.ChangeDirectory(directory.Path("gone")));
    fs::remove(directory.Path("gone"));
    EXPECT_EQ(files.CurrentDirectory(), "");
    const auto listed = files.ListDirectory(".");
    EXPECT_TRUE(!listed || listed->empty());
    EXPECT_TRUE(files.WriteFile("file", "x"));
    ASSERT_FALSE(files.ChangeDirectory(before));
    EXPECT_EQ(files.CurrentDirectory(), before);
}

TEST_F(FileSystemLinux, OnlyRegularFilesOfExactlyThisNameExist) {
    directory.Write("Game.adf", "x");
    fs::create_symlink("Game.adf", directory.Path("link"));
    ASSERT_EQ(::mkfifo(directory.Path("pipe").c_str(), 0600), 0);
    EXPECT_TRUE(files.FileExists(directory.Path("Game.adf")));
    EXPECT_TRUE(files.FileExists(directory.Path("link")));
    EXPECT_FALSE(files.FileExists(directory.Path("game.adf")));
    EXPECT_FALSE(files.FileExists(directory.Path("*.adf")));
    EXPECT_FALSE(files.FileExists(directory.Path("Game.ad?")));
    EXPECT_FALSE(files.FileExists(directory.Path("Game.adf/")));
    EXPECT_FALSE(files.FileExists(directory.Path("pipe")));
    EXPECT_FALSE(files.FileExists(directory.Root()));
    EXPECT_FALSE(files.FileExists(""));
    EXPECT_FALSE(files.FileExists("\"" + directory.Path("Game.adf") + "\""));
    EXPECT_FALSE(files.FileExists(directory.Path("Game.adf") + std::string("\0x", 2)));
}

TEST_F(FileSystemLinux, AQuotedTextIsNoFileEvenWhereOneHasThatName) {
    const std::string before = files.CurrentDirectory();
    directory.Write("\"x\"", "x");
    ASSERT_FALSE(files.ChangeDirectory(directory.Root()));
    EXPECT_FALSE(files.FileExists("\"x\""));
    EXPECT_TRUE(files.FileExists(directory.Path("\"x\"")));
    ASSERT_FALSE(files.ChangeDirectory(before));
}

TEST_F(FileSystemLinux, ADirectoryHasOneIdentityWhateverPathLeadsToIt) {
    fs::create_directory(directory.Path("sub"));
    fs::create_directory_symlink("sub", directory.Path("linked"));
    const auto identity = files.IdentityOf(directory.Path("sub"));
    ASSERT_TRUE(identity);
    EXPECT_EQ(files.IdentityOf(directory.Path("linked")), identity);
    EXPECT_EQ(files.IdentityOf(directory.Path("sub/../linked/.")), identity);
    EXPECT_NE(files.IdentityOf(directory.Root()), identity);
    EXPECT_EQ(files.IdentityOf(directory.Path("missing")), std::nullopt);
    EXPECT_TRUE(files.IsLink(directory.Path("linked")));
    EXPECT_FALSE(files.IsLink(directory.Path("sub")));
    EXPECT_FALSE(files.IsLink(""));
}

TEST_F(FileSystemLinux, APathIsResolvedThroughItsLinksOrStaysAsItIs) {
    const std::string root = fs::canonical(directory.Root()).string();
    fs::create_directory(directory.Path("sub"));
    directory.Write("sub/game", "x");
    fs::create_directory_symlink("sub", directory.Path("linked"));
    fs::create_symlink("loop", directory.Path("loop"));
    EXPECT_EQ(files.ResolvedPath(directory.Path("linked/../linked/game")), root + "/sub/game");
    EXPECT_EQ(files.ResolvedPath(directory.Path("loop")), directory.Path("loop"));
    EXPECT_EQ(files.ResolvedPath(directory.Path("missing")), directory.Path("missing"));
    EXPECT_EQ(files.ResolvedPath(""), "");
}

TEST_F(FileSystemLinux, AFileThatDoesNotTellItsSizeIsRead) {
    EXPECT_TRUE(files.ReadFile("/proc/self/stat").value_or("").size() > 10);
}

TEST_F(FileSystemLinux, WhatIsNoRegularFileIsNotReadAndDoesNotHang) {
    ASSERT_EQ(::mkfifo(directory.Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(files.ReadFile(directory.Path("pipe")), std::nullopt);
    EXPECT_EQ(files.ReadFile("/dev/zero"), std::nullopt);
    EXPECT_EQ(files.ReadFile(directory.Root()), std::nullopt);
    EXPECT_EQ(files.ReadFile(directory.Path("missing")), std::nullopt);
    EXPECT_EQ(files.ReadFile(""), std::nullopt);
}

TEST_F(FileSystemLinux, AFileOfTerabytesIsNotRead) {
    directory.Write("sparse", "x");
    std::error_code ignored;
    fs::resize_file(directory.Path("sparse"), std::uintmax_t{1} << 40, ignored);
    if (ignored) GTEST_SKIP() << "no sparse files here";
    EXPECT_EQ(files.ReadFile(directory.Path("sparse")), std::nullopt);
}

TEST_F(FileSystemLinux, AWriteTakesAwayWhatKilledOnesHaveLeftBehindLongAgo) {
    const auto age = [&](const std::string& name, std::chrono::hours hours) {
        fs::last_write_time(directory.Path(name), fs::file_time_type::clock::now() - hours);
    };
    for (const char* name : {".kivu-1f-2a-0.tmp", ".kivu-1f-2a-1.tmp", ".kivu-", ".other-1-2-3.tmp",
                             "x.kivu-1-2-3.tmp", ".kivu-1-2-3.tmp.adf"}) {
        directory.Write(name, "half");
        age(name, std::chrono::hours(25));
    }
    directory.Write(".kivu-3f-2a-0.tmp", "still being written");
    age(".kivu-3f-2a-0.tmp", std::chrono::hours(23));
    fs::create_directory(directory.Path(".kivu-d-0-0.tmp"));
    age(".kivu-d-0-0.tmp", std::chrono::hours(25));
    ASSERT_FALSE(files.WriteFile(directory.Path("file"), "x"));
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(directory.Root()))
        names.push_back(entry.path().filename());
    EXPECT_THAT(
        names, UnorderedElementsAre("file", ".kivu-3f-2a-0.tmp", ".kivu-d-0-0.tmp", ".kivu-",
                                    ".other-1-2-3.tmp", "x.kivu-1-2-3.tmp", ".kivu-1-2-3.tmp.adf"));
}

TEST_F(FileSystemLinux, WritesARelativePathAndANameOf255Bytes) {
    const std::string before = files.CurrentDirectory();
    ASSERT_FALSE(files.ChangeDirectory(directory.Root()));
    EXPECT_FALSE(files.WriteFile("bare", "x"));
    EXPECT_FALSE(files.WriteFile(std::string(255, 'n'), "y"));
    ASSERT_FALSE(files.ChangeDirectory(before));
    EXPECT_EQ(directory.Read("bare"), "x");
    EXPECT_EQ(directory.Read(std::string(255, 'n')), "y");
}

TEST_F(FileSystemLinux, ReplacingIsOneStepAndNotAWriteIntoTheOldFile) {
    directory.Write("file", "old");
    const int reader = ::open(directory.Path("file").c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_FALSE(files.WriteFile(directory.Path("file"), "new"));
    char seen[4] = {};
    EXPECT_EQ(::read(reader, seen, 3), 3);
    ::close(reader);
    EXPECT_STREQ(seen, "old");
}

TEST_F(FileSystemLinux, ANewFileFollowsTheUmaskAndAReplacedOneKeepsItsMode) {
    const mode_t before = ::umask(027);
    EXPECT_FALSE(files.WriteFile(directory.Path("new"), "x"));
    ::umask(before);
    EXPECT_EQ(ModeOf(directory.Path("new")), 0640u);

    directory.Write("private", "x");
    ASSERT_EQ(::chmod(directory.Path("private").c_str(), 0604), 0);
    EXPECT_FALSE(files.WriteFile(directory.Path("private"), "y"));
    EXPECT_EQ(ModeOf(directory.Path("private")), 0604u);
}

TEST_F(FileSystemLinux, WritesThroughALink) {
    fs::create_directory(directory.Path("real"));
    directory.Write("real/file", "old");
    fs::create_symlink("real/file", directory.Path("first"));
    fs::create_symlink(directory.Path("first"), directory.Path("second"));
    EXPECT_FALSE(files.WriteFile(directory.Path("second"), "new"));
    EXPECT_EQ(directory.Read("real/file"), "new");
    EXPECT_TRUE(fs::is_symlink(directory.Path("first")));
    EXPECT_TRUE(fs::is_symlink(directory.Path("second")));
    EXPECT_EQ(directory.Count(), 3u);
}

TEST_F(FileSystemLinux, WritesThroughADanglingLinkAndGivesUpOnALoop) {
    fs::create_symlink("target", directory.Path("dangling"));
    fs::create_symlink("loop", directory.Path("loop"));
    EXPECT_FALSE(files.WriteFile(directory.Path("dangling"), "x"));
    EXPECT_EQ(directory.Read("target"), "x");
    EXPECT_EQ(files.WriteFile(directory.Path("loop"), "x"),
              std::errc::too_many_symbolic_link_levels);
    EXPECT_EQ(directory.Count(), 3u);
}

TEST_F(FileSystemLinux, NeverReplacesADirectoryOrADevice) {
    fs::create_directory(directory.Path("sub"));
    ASSERT_EQ(::mkfifo(directory.Path("pipe").c_str(), 0600), 0);
    fs::create_symlink("/dev/full", directory.Path("full"));
    EXPECT_EQ(files.WriteFile(directory.Path("sub"), "x"), std::errc::is_a_directory);
    EXPECT_TRUE(files.WriteFile(directory.Path("new/"), "x"));
    EXPECT_TRUE(files.WriteFile(directory.Path("missing/file"), "x"));
    EXPECT_TRUE(files.WriteFile(directory.Path("pipe"), "x"));
    EXPECT_TRUE(files.WriteFile(directory.Path("full"), "x"));
    EXPECT_TRUE(files.WriteFile("", "x"));
    EXPECT_TRUE(files.AppendFile(directory.Path("pipe"), "x"));
    EXPECT_TRUE(files.AppendFile(directory.Path("full"), "x"));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_EQ(directory.Count(), 3u);
}

TEST_F(FileSystemLinux, AFullDiskKeepsTheOldFile) {
    if (::mount("tmpfs", directory.Root().c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "a disk of 64 KB needs the right to mount one";
    const std::string file = directory.Path("file");
    EXPECT_FALSE(files.WriteFile(file, "old"));
    EXPECT_EQ(files.WriteFile(file, std::string(100'000, 'x')), std::errc::no_space_on_device);
    EXPECT_EQ(directory.Read("file"), "old");
    EXPECT_EQ(files.AppendFile(file, std::string(100'000, 'x')), std::errc::no_space_on_device);
    EXPECT_EQ(directory.Read("file"), "old");
    EXPECT_EQ(files.AppendFile(directory.Path("other"), std::string(100'000, 'x')),
              std::errc::no_space_on_device);
    EXPECT_EQ(directory.Count(), 1u);
    EXPECT_EQ(::umount(directory.Root().c_str()), 0);
}

TEST_F(FileSystemLinux, AFileSizeLimitKeepsTheOldFile) {
    directory.Write("file", "old");
    ASSERT_EQ(::chmod(directory.Root().c_str(), 0777), 0);
    ASSERT_EQ(::chmod(directory.Path("file").c_str(), 0666), 0);
    EXPECT_TRUE(kivu::testing::HoldsForPlainUser([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{1000, 1000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        return files.WriteFile(directory.Path("file"), std::string(5000, 'x')) ==
                   std::errc::file_too_large &&
               files.AppendFile(directory.Path("file"), std::string(5000, 'x')) ==
                   std::errc::file_too_large;
    }));
    EXPECT_EQ(directory.Read("file"), "old");
    EXPECT_EQ(directory.Count(), 1u);
}

TEST_F(FileSystemLinux, AWriteProtectedFileOrDirectoryIsLeftAlone) {
    directory.Write("file", "old");
    ASSERT_EQ(::chmod(directory.Root().c_str(), 0777), 0);
    ASSERT_EQ(::chmod(directory.Path("file").c_str(), 0444), 0);
    EXPECT_TRUE(kivu::testing::HoldsForPlainUser([&] {
        return files.WriteFile(directory.Path("file"), "new") == std::errc::permission_denied;
    }));
    ASSERT_EQ(::chmod(directory.Root().c_str(), 0555), 0);
    EXPECT_TRUE(kivu::testing::HoldsForPlainUser([&] {
        return files.WriteFile(directory.Path("new"), "new") == std::errc::permission_denied;
    }));
    ASSERT_EQ(::chmod(directory.Root().c_str(), 0755), 0);
    EXPECT_EQ(directory.Read("file"), "old");
    EXPECT_EQ(directory.Count(), 1u);
}

TEST_F(FileSystemLinux, ShortAndLongNamesAreThePathWithoutItsQuotes) {
    directory.Write("My Game.adf", "x");
    const std::string path = directory.Path("My Game.adf");
    EXPECT_EQ(files.ShortPathName(path), path);
    EXPECT_EQ(files.LongPathName("\"" + path + "\""), path);
    EXPECT_EQ(files.ShortPathName(directory.Root()), directory.Root());
    EXPECT_EQ(files.ShortPathName(directory.Path("missing")), "");
    EXPECT_EQ(files.LongPathName(""), "");
    EXPECT_EQ(files.LongPathName("\"\""), "");
    EXPECT_EQ(files.Separator(), '/');
}

TEST_F(FileSystemLinux, TextIsUtf8AndOtherwiseWindows1252) {
    EXPECT_EQ(files.DecodeText("Gr\xc3\xbc\xc3\x9f"), "Gr\xc3\xbc\xc3\x9f");
    EXPECT_EQ(files.DecodeText("Gr\xfc\xdf \x80"), "Gr\xc3\xbc\xc3\x9f \xe2\x82\xac");
    EXPECT_EQ(files.EncodeText("Gr\xc3\xbc\xc3\x9f"), "Gr\xc3\xbc\xc3\x9f");
    EXPECT_EQ(files.EncodeText("n\xfc.adf"), "n\xfc.adf");
}

}  // namespace
}  // namespace kivu::hosts
