#include "hosts/linux/instance_linux.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "testing/environment_variable.h"
#include "testing/temporary_directory.h"

namespace fs = std::filesystem;

namespace kivu::hosts {
namespace {

// With a runtime directory of the test's own, and without one.
class InstanceLinux : public ::testing::TestWithParam<bool> {
 protected:
    const std::string program = "Kivu-test-" + std::to_string(::getpid());
    kivu::testing::TemporaryDirectory directory;
    kivu::testing::EnvironmentVariable runtime{
        "XDG_RUNTIME_DIR", GetParam() ? std::optional(directory.Root()) : std::nullopt};
};

INSTANTIATE_TEST_SUITE_P(, InstanceLinux, ::testing::Bool(), [](const auto& parameter) {
    return parameter.param ? "RuntimeDirectory" : "AbstractSocket";
});

bool Readable(int descriptor) {
    pollfd look{descriptor, POLLIN, 0};
    return ::poll(&look, 1, 0) == 1;
}

TEST_P(InstanceLinux, OnlyTheFirstListensAndIsWokenByACall) {
    LinuxInstance first(program);
    EXPECT_EQ(first.ListenFd(), -1);
    EXPECT_FALSE(first.HandOver("Kivu", ""));
    ASSERT_GE(first.ListenFd(), 0);
    EXPECT_FALSE(Readable(first.ListenFd()));

    LinuxInstance second(program);
    EXPECT_TRUE(second.HandOver("Kivu", ""));
    EXPECT_EQ(second.ListenFd(), -1);
    EXPECT_TRUE(Readable(first.ListenFd()));
    first.Serve();
    EXPECT_FALSE(Readable(first.ListenFd()));
}

TEST_P(InstanceLinux, ManyCallsAtOnceAreOneSummonsAndNoneOfThemWaits) {
    LinuxInstance first(program);
    ASSERT_FALSE(first.HandOver("Kivu", ""));
    int summons = 0;
    first.OnSummoned([&](const std::string&) { ++summons; });
    for (int i = 0; i < 30; ++i)
        EXPECT_TRUE(LinuxInstance(program).HandOver("Kivu", ""));
    first.Serve();
    EXPECT_EQ(summons, 1);
}

TEST_P(InstanceLinux, TheNameOfAFileKeepsItsBytes) {
    LinuxInstance first(program);
    ASSERT_FALSE(first.HandOver("Kivu", ""));
    std::vector<std::string> files;
    first.OnSummoned([&](const std::string& file) { files.push_back(file); });
    EXPECT_TRUE(LinuxInstance(program).HandOver("Kivu", "/roms/\xff.adf"));
    first.Serve();
    EXPECT_EQ(files, std::vector<std::string>{"/roms/\xff.adf"});
}

TEST_P(InstanceLinux, OfManyCallsAtOnceTheFirstFileCounts) {
    LinuxInstance first(program);
    ASSERT_FALSE(first.HandOver("Kivu", ""));
    for (const char* file : {"", "/a", "/b"})
        EXPECT_TRUE(LinuxInstance(program).HandOver("Kivu", file));
    first.Serve();
    std::vector<std::string> files;
    first.OnSummoned([&](const std::string& file) { files.push_back(file); });
    EXPECT_EQ(files, std::vector<std::string>{"/a"});
}

TEST_P(InstanceLinux, WhatAKilledOneLeavesBehindHindersNobody) {
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        LinuxInstance killed(program);
        const char answer = killed.HandOver("Kivu", "") ? '1' : '0';
        if (::write(ready[1], &answer, 1) != 1) ::_exit(1);
        for (;;)
            ::pause();
    }
    char answer = 0;
    ASSERT_EQ(::read(ready[0], &answer, 1), 1);
    EXPECT_EQ(answer, '0');
    EXPECT_TRUE(LinuxInstance(program).HandOver("Kivu", ""));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    LinuxInstance next(program);
    EXPECT_FALSE(next.HandOver("Kivu", ""));
    EXPECT_GE(next.ListenFd(), 0);
    EXPECT_TRUE(LinuxInstance(program).HandOver("Kivu", ""));
    ::close(ready[0]);
    ::close(ready[1]);
}

TEST_P(InstanceLinux, ANameOfAnyBytesAndLengthWorks) {
    const std::string longest = program + std::string(255 - program.size(), 'n');
    for (const std::string& name : {longest, program + "/../x", program + "\xff\n"}) {
        LinuxInstance first(name);
        EXPECT_FALSE(first.HandOver("Kivu", ""));
        EXPECT_GE(first.ListenFd(), 0);
        EXPECT_TRUE(LinuxInstance(name).HandOver("Kivu", ""));
    }
}

TEST_P(InstanceLinux, StartedProgramsDoNotKeepTheSocketOpen) {
    LinuxInstance first(program);
    ASSERT_FALSE(first.HandOver("Kivu", ""));
    EXPECT_NE(::fcntl(first.ListenFd(), F_GETFD) & FD_CLOEXEC, 0);
}

// Whoever of the same user connects by hand.
class InstanceLinuxCallers : public ::testing::Test {
 protected:
    InstanceLinuxCallers() {
        EXPECT_FALSE(first.HandOver("Kivu", ""));
        first.OnSummoned([this](const std::string& file) { files.push_back(file); });
    }
    FileDescriptor Connect() const {
        FileDescriptor caller(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        directory.Path("kivu-" + program + ".socket")
            .copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(
            ::connect(caller.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof address),
            0);
        return caller;
    }
    // What the first one does not take any more is no fault.
    static void Say(const FileDescriptor& caller, const std::string& text) {
        (void)::send(caller.Get(), text.data(), text.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    }

    const std::string program = "Kivu-callers-" + std::to_string(::getpid());
    kivu::testing::TemporaryDirectory directory;
    const kivu::testing::EnvironmentVariable runtime{"XDG_RUNTIME_DIR", directory.Root()};
    LinuxInstance first{program};
    std::vector<std::string> files;
};

TEST_F(InstanceLinuxCallers, ACallInPiecesIsOneFile) {
    FileDescriptor caller = Connect();
    first.Serve();
    EXPECT_TRUE(files.empty());
    Say(caller, "/roms/a");
    EXPECT_TRUE(Readable(first.ListenFd()));
    first.Serve();
    EXPECT_TRUE(files.empty());
    EXPECT_FALSE(Readable(first.ListenFd()));
    Say(caller, ".adf");
    caller.Close();
    EXPECT_TRUE(Readable(first.ListenFd()));
    first.Serve();
    EXPECT_EQ(files, std::vector<std::string>{"/roms/a.adf"});
    EXPECT_FALSE(Readable(first.ListenFd()));
}

TEST_F(InstanceLinuxCallers, WhatIsNoPathOnlyBringsUp) {
    const std::string withNul("/a\0b", 4);
    for (const std::string& text : {withNul, std::string(100000, '/')}) {
        FileDescriptor caller = Connect();
        Say(caller, text);
        caller.Close();
        first.Serve();
    }
    EXPECT_EQ(files, (std::vector<std::string>{"", ""}));
}

TEST_F(InstanceLinuxCallers, SilentOnesNeitherBlockNorPileUp) {
    std::vector<FileDescriptor> silent;
    for (int i = 0; i < 50; ++i) {
        silent.push_back(Connect());
        first.Serve();
    }
    EXPECT_TRUE(LinuxInstance(program).HandOver("Kivu", "/a"));
    first.Serve();
    EXPECT_EQ(files, std::vector<std::string>{"/a"});
    char byte = 0;
    EXPECT_EQ(::recv(silent.front().Get(), &byte, 1, MSG_DONTWAIT), 0) << "has been let go";
}

class InstanceLinuxPlaces : public ::testing::Test {
 protected:
    const std::string program = "Kivu-place-" + std::to_string(::getpid());
    kivu::testing::TemporaryDirectory directory;
};

TEST_F(InstanceLinuxPlaces, ADirectoryThatCannotBeUsedGivesWayToAnAbstractSocket) {
    const std::string deep = directory.Path(std::string(120, 'd'));
    fs::create_directory(deep);
    for (const std::string& place : {directory.Path("missing"), std::string("relative"), deep}) {
        const kivu::testing::EnvironmentVariable runtime("XDG_RUNTIME_DIR", place);
        LinuxInstance first(program);
        EXPECT_FALSE(first.HandOver("Kivu", ""));
        EXPECT_TRUE(LinuxInstance(program).HandOver("Kivu", ""));
    }
    EXPECT_EQ(directory.Count(), 1u);
}

TEST_F(InstanceLinuxPlaces, AnotherUsersRuntimeDirectoryIsNotUsed) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can give a directory away";
    ASSERT_EQ(::chown(directory.Root().c_str(), 65534, 65534), 0);
    const kivu::testing::EnvironmentVariable runtime("XDG_RUNTIME_DIR", directory.Root());
    LinuxInstance first(program);
    EXPECT_FALSE(first.HandOver("Kivu", ""));
    EXPECT_GE(first.ListenFd(), 0);
    EXPECT_EQ(directory.Count(), 0u);
}

TEST_F(InstanceLinuxPlaces, WhatLiesInThePlaceOfTheSocketOrTheLockIsNoCrash) {
    const kivu::testing::EnvironmentVariable runtime("XDG_RUNTIME_DIR", directory.Root());
    fs::create_directory(directory.Path("kivu-" + program + ".socket"));
    {
        LinuxInstance first(program);
        EXPECT_FALSE(first.HandOver("Kivu", ""));
        first.Serve();
        EXPECT_EQ(first.ListenFd(), -1);
    }
    EXPECT_TRUE(fs::is_directory(directory.Path("kivu-" + program + ".socket")));
    fs::create_symlink("/dev/null", directory.Path("kivu-" + program + "2.socket.lock"));
    EXPECT_FALSE(LinuxInstance(program + "2").HandOver("Kivu", ""));
}

TEST_F(InstanceLinuxPlaces, AnAbstractNameTakenByAnotherUserIsNoEarlierInstance) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can act as another user";
    const kivu::testing::EnvironmentVariable runtime("XDG_RUNTIME_DIR", std::nullopt);
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const std::string name = "kivu-" + program + "-0";
        if (::setuid(65534) != 0) ::_exit(1);
        const int taken = ::socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        name.copy(address.sun_path + 1, sizeof address.sun_path - 1);
        const auto length =
            static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
        const bool bound = ::bind(taken, reinterpret_cast<sockaddr*>(&address), length) == 0 &&
                           ::listen(taken, 1) == 0;
        if (::write(ready[1], bound ? "1" : "0", 1) != 1) ::_exit(1);
        for (;;)
            ::pause();
    }
    char answer = 0;
    ASSERT_EQ(::read(ready[0], &answer, 1), 1);
    EXPECT_EQ(answer, '1');
    EXPECT_FALSE(LinuxInstance(program).HandOver("Kivu", ""));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    ::close(ready[0]);
    ::close(ready[1]);
}

}  // namespace
}  // namespace kivu::hosts
