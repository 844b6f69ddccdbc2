#include "hosts/linux/program_starter_linux.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "hosts/linux/start_words.h"
#include "testing/environment_variable.h"
#include "testing/eventually.h"
#include "testing/temporary_directory.h"

namespace fs = std::filesystem;

namespace kivu::hosts {
namespace {

using kivu::testing::EnvironmentVariable;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string surroundings = KIVU_HELPERS "/kivu_surroundings";
const std::string awkward =
    "a 'b' \"c\" $HOME `touch pwned` $(touch pwned); touch pwned & |x<y>z*?[\\";

class ProgramStarterLinux : public ::testing::Test {
 protected:
    void TearDown() override {
        // Whatever was started: no child of this process is left, neither alive nor as a zombie.
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG | __WALL), -1);
        EXPECT_EQ(errno, ECHILD);
        EXPECT_FALSE(fs::exists(directory.Path("pwned")) || fs::exists("pwned"));
    }

    // The values of one fact in the report that a program has written.
    std::vector<std::string> Facts(const std::string& fact, const std::string& report = "report") {
        EXPECT_TRUE(kivu::testing::Eventually([&] { return fs::exists(directory.Path(report)); }));
        std::istringstream lines(directory.Read(report));
        std::vector<std::string> values;
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with(fact + "=")) values.push_back(line.substr(fact.size() + 1));
        }
        return values;
    }
    std::string Fact(const std::string& fact) {
        const auto values = Facts(fact);
        return values.empty() ? "none" : values.front();
    }
    platform::StartRequest Surroundings(std::vector<std::string> words = {}) {
        words.insert(words.begin(), {surroundings, directory.Path("report")});
        platform::StartRequest request;
        request.words = words;
        request.directory = directory.Root();
        return request;
    }
    std::string WriteProgram(const std::string& name, const std::string& text) {
        const std::string path = directory.Write(name, text);
        ::chmod(path.c_str(), 0755);
        return path;
    }
    // A program that writes its words, one a line, beside itself.
    void WriteRecorder(const std::string& name) {
        WriteProgram(name, "#!/bin/sh\nfor word; do echo \"word=$word\"; done > \"" +
                               directory.Path("part") + "\"\nmv \"" + directory.Path("part") +
                               "\" \"" + directory.Path("report") + "\"\n");
    }

    kivu::testing::TemporaryDirectory directory;
    LaunchSession session;
    LinuxProgramStarter starter{session};
};

TEST_F(ProgramStarterLinux, EveryWordArrivesAsItIs) {
    ASSERT_FALSE(starter.Run(Surroundings({awkward, "", "  ", "--", "Gr\xfc\xdf"})));
    EXPECT_THAT(Facts("word"), ElementsAre(awkward, "", "  ", "--", "Gr\xfc\xdf"));
}

TEST_F(ProgramStarterLinux, ANewlineInAWordStaysInIt) {
    WriteRecorder("count");
    platform::StartRequest request;
    request.words = {directory.Path("count"), "one\ntouch pwned\n"};
    request.directory = directory.Root();
    ASSERT_FALSE(starter.Run(request));
    EXPECT_THAT(Facts("word"), ElementsAre("one"));
    EXPECT_EQ(directory.Read("report"), "word=one\ntouch pwned\n\n");
}

TEST_F(ProgramStarterLinux, AProgramOfAnAwkwardNameIsStarted) {
    const std::string name = "$(touch pwned)'; touch pwned & \"x\"\n`y`";
    fs::copy_file(surroundings, directory.Path(name));
    auto request = Surroundings({"here"});
    request.words[0] = directory.Path(name);
    ASSERT_FALSE(starter.Run(request));
    EXPECT_EQ(Fact("word"), "here");
}

TEST_F(ProgramStarterLinux, OnlyTheProgramChangesItsDirectory) {
    const auto before = fs::current_path();
    ASSERT_FALSE(starter.Run(Surroundings()));
    EXPECT_EQ(Fact("directory"), directory.Root());
    EXPECT_EQ(fs::current_path(), before);
}

TEST_F(ProgramStarterLinux, WithoutADirectoryItStaysInTheLaunchersOwn) {
    auto request = Surroundings();
    request.directory.clear();
    ASSERT_FALSE(starter.Run(request));
    EXPECT_EQ(Fact("directory"), fs::current_path().string());
}

TEST_F(ProgramStarterLinux, ItGetsNoDescriptorAndNoTerminalOfTheLauncher) {
    const int low = ::open("/dev/zero", O_RDONLY);
    const int high = ::fcntl(low, F_DUPFD, 700);
    ASSERT_FALSE(starter.Run(Surroundings()));
    ::close(low);
    ::close(high);
    std::vector<std::string> others;
    std::vector<std::string> standard;
    for (const auto& descriptor : Facts("descriptor")) {
        if (descriptor.ends_with(".part")) continue;
        (descriptor.ends_with(" /dev/null") ? standard : others).push_back(descriptor);
    }
    EXPECT_THAT(standard, ElementsAre("0 /dev/null", "1 /dev/null", "2 /dev/null"));
    EXPECT_THAT(others, IsEmpty());
}

TEST_F(ProgramStarterLinux, ItHasStandardStreamsAlsoWhenTheLauncherHasNone) {
    const int saved = ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 100);
    ::close(STDIN_FILENO);
    ASSERT_FALSE(starter.Run(Surroundings()));
    if (saved >= 0) ::dup2(saved, STDIN_FILENO);
    EXPECT_THAT(Facts("descriptor"), ::testing::Contains("0 /dev/null"));
}

TEST_F(ProgramStarterLinux, ItStartsWithCleanSignalsAndLeavesTheLaunchersAlone) {
    sigset_t blocked;
    sigset_t before;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGUSR1);
    ::sigprocmask(SIG_BLOCK, &blocked, &before);
    const auto oldPipe = std::signal(SIGPIPE, SIG_IGN);
    ASSERT_FALSE(starter.Run(Surroundings()));
    sigset_t after;
    ::sigprocmask(SIG_SETMASK, &before, &after);
    EXPECT_EQ(std::signal(SIGPIPE, oldPipe), SIG_IGN);
    EXPECT_EQ(::sigismember(&after, SIGUSR1), 1);
    EXPECT_EQ(::sigismember(&after, SIGUSR2), 0);
    EXPECT_EQ(Fact("SigBlk"), "0000000000000000");
    EXPECT_EQ(Fact("SigIgn"), "0000000000000000");
}

volatile std::sig_atomic_t childSignals = 0;
void CountChild(int) {
    childSignals = childSignals + 1;
}

TEST_F(ProgramStarterLinux, TheLaunchersChildSignalIsNeitherChangedNorSent) {
    struct sigaction counting {};
    counting.sa_handler = CountChild;
    struct sigaction before {};
    ::sigaction(SIGCHLD, &counting, &before);
    childSignals = 0;
    ASSERT_FALSE(starter.Run(Surroundings()));
    EXPECT_NE(Fact("id"), "none");
    struct sigaction after {};
    ::sigaction(SIGCHLD, &before, &after);
    EXPECT_EQ(after.sa_handler, CountChild);
    EXPECT_EQ(childSignals, 0);
}

TEST_F(ProgramStarterLinux, StartsAlsoWhileTheLauncherIgnoresItsChildren) {
    const auto before = std::signal(SIGCHLD, SIG_IGN);
    ASSERT_FALSE(starter.Run(Surroundings()));
    auto waited = Surroundings();
    waited.words[1] = directory.Path("waited");
    waited.wait = true;
    ASSERT_FALSE(starter.Run(waited));
    EXPECT_TRUE(fs::exists(directory.Path("waited")));
    std::signal(SIGCHLD, before);
    EXPECT_NE(Fact("id"), "none");
}

TEST_F(ProgramStarterLinux, TheEnvironmentIsPassedOn) {
    const EnvironmentVariable variable("KIVU_TEST_VARIABLE", awkward);
    ASSERT_FALSE(starter.Run(Surroundings()));
    EXPECT_EQ(Fact("variable"), awkward);
}

TEST_F(ProgramStarterLinux, ItLivesInASessionOfItsOwnAsNobodysChild) {
    auto request = Surroundings();
    request.watched = true;
    ASSERT_FALSE(starter.Run(request));
    EXPECT_GT(session.Id(), 1);
    EXPECT_EQ(Fact("session"), std::to_string(session.Id()));
    EXPECT_NE(Fact("id"), Fact("session"));
    EXPECT_NE(Fact("session"), std::to_string(::getsid(0)));
    EXPECT_NE(Fact("parent"), std::to_string(::getpid()));
}

TEST_F(ProgramStarterLinux, OnlyAWatchedStartIsRememberedAndAFailedOneForgetsTheLast) {
    ASSERT_FALSE(starter.Run(Surroundings()));
    EXPECT_EQ(session.Id(), 0);
    session.Begin(4711);
    ASSERT_FALSE(starter.Run(Surroundings()));
    EXPECT_EQ(session.Id(), 4711);
    platform::StartRequest failing;
    failing.words = {directory.Path("missing")};
    EXPECT_TRUE(starter.Run(failing));
    EXPECT_EQ(session.Id(), 4711);
    failing.watched = true;
    EXPECT_TRUE(starter.Run(failing));
    EXPECT_EQ(session.Id(), 0);
}

TEST_F(ProgramStarterLinux, WhatCannotRunIsToldByItsReason) {
    const auto run = [&](const std::string& program) {
        platform::StartRequest request;
        request.words = {program, "x"};
        return starter.Run(request);
    };
    directory.Write("plain", "#!/bin/sh\ntouch pwned\n");
    WriteProgram("torn", std::string("\x7f"
                                     "ELF\0\0\0",
                                     7));
    EXPECT_EQ(run(directory.Path("missing")), std::errc::no_such_file_or_directory);
    EXPECT_EQ(run("kivu-no-such-program"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(run(""), std::errc::no_such_file_or_directory);
    EXPECT_EQ(run(directory.Root()), std::errc::permission_denied);
    EXPECT_EQ(run(directory.Path("plain")), std::errc::permission_denied);
    EXPECT_EQ(run(directory.Path("torn")), std::errc::executable_format_error);
    EXPECT_EQ(run(surroundings + std::string("\0x", 2)), std::errc::invalid_argument);
    EXPECT_EQ(starter.Run({}), std::errc::invalid_argument);
    auto nowhere = Surroundings();
    nowhere.directory = directory.Path("missing");
    EXPECT_EQ(starter.Run(nowhere), std::errc::no_such_file_or_directory);
    auto endless = Surroundings({std::string(5'000'000, 'x')});
    EXPECT_EQ(starter.Run(endless), std::errc::argument_list_too_long);
}

TEST_F(ProgramStarterLinux, ABareNameIsLookedUpInThePathAndNeverInTheCurrentDirectory) {
    const auto before = fs::current_path();
    fs::create_directory(directory.Path("bin"));
    fs::create_directories(directory.Path("other/kivu-tool"));
    fs::copy_file(surroundings, directory.Path("bin/kivu-tool"));
    const EnvironmentVariable path("PATH", ":.:" + directory.Path("other") +
                                               "::" + directory.Path("missing") + ":" +
                                               directory.Path("bin"));
    EXPECT_EQ(FindProgram("kivu-tool"), directory.Path("bin/kivu-tool"));
    EXPECT_EQ(starter.FindInPath("kivu-tool"), directory.Path("bin/kivu-tool"));
    EXPECT_EQ(starter.FindInPath("kivu-no-such-tool"), "");
    EXPECT_EQ(starter.FindInPath(directory.Path("bin/kivu-tool")), "");
    EXPECT_EQ(starter.FindInPath(""), "");
    fs::copy_file(surroundings, directory.Path("kivu-here"));
    fs::current_path(directory.Root());
    EXPECT_EQ(FindProgram("kivu-here"), "");
    EXPECT_EQ(FindProgram("bin/kivu-tool"), directory.Path("bin/kivu-tool"));
    fs::current_path(before);
    EXPECT_EQ(FindProgram(""), "");
}

TEST_F(ProgramStarterLinux, AScriptWithoutItsFirstLineRunsInTheShell) {
    const std::string script =
        WriteProgram("run", "for word; do echo \"word=$word\"; done > part\nmv part report\n");
    platform::StartRequest request;
    request.words = {script, "-c", awkward};
    request.directory = directory.Root();
    ASSERT_FALSE(starter.Run(request));
    EXPECT_THAT(Facts("word"), ElementsAre("-c", awkward));
}

TEST_F(ProgramStarterLinux, AStartFileRunsInTheShellWhateverItsName) {
    const std::string file = directory.Write(
        "$(touch pwned)'&`x`_tmp.bat", "cd '" + directory.Root() + "'\n'" + surroundings + "' '" +
                                           directory.Path("report") + "' 'one; touch pwned' &\n");
    platform::StartRequest request;
    request.words = {file};
    request.startFile = true;
    request.watched = true;
    ASSERT_FALSE(starter.Run(request));
    EXPECT_EQ(Fact("word"), "one; touch pwned");
    EXPECT_EQ(Fact("directory"), directory.Root());
    EXPECT_EQ(Fact("session"), std::to_string(session.Id()));
    request.words = {directory.Path("missing")};
    EXPECT_EQ(starter.Run(request), std::errc::no_such_file_or_directory);
}

TEST_F(ProgramStarterLinux, AWindowsProgramRunsThroughWineWithItsWordsAsTheyCome) {
    fs::create_directory(directory.Path("bin"));
    WriteRecorder("bin/wine");
    const EnvironmentVariable path("PATH", directory.Path("bin") + ":/usr/bin:/bin");
    platform::StartRequest request;
    for (const std::string name : {"Win UAE.exe", "RUN.BAT", "start.Cmd"}) {
        fs::remove(directory.Path("report"));
        directory.Write(name, "MZ");
        request.words = {directory.Path(name), "Z:\\My Games\\$x.adf", "/roms/a b", awkward};
        ASSERT_FALSE(starter.Run(request));
        EXPECT_THAT(Facts("word"), ElementsAre(directory.Path(name), "Z:\\My Games\\$x.adf",
                                               "/roms/a b", awkward));
    }
    request.words = {directory.Path("missing.exe")};
    EXPECT_EQ(starter.Run(request), std::errc::no_such_file_or_directory);
}

TEST_F(ProgramStarterLinux, WithoutWineAWindowsProgramDoesNotStart) {
    const EnvironmentVariable path("PATH", directory.Root());
    platform::StartRequest request;
    request.words = {WriteProgram("tool.exe", "#!/bin/sh\ntouch pwned\n")};
    EXPECT_EQ(starter.Run(request), std::errc::no_such_file_or_directory);
}

TEST_F(ProgramStarterLinux, WaitingReturnsOnceTheProgramHasEnded) {
    auto request = Surroundings({"x"});
    request.wait = true;
    request.watched = true;
    ASSERT_FALSE(starter.Run(request));
    EXPECT_TRUE(fs::exists(directory.Path("report")));
    EXPECT_EQ(Fact("session"), Fact("id"));
    EXPECT_EQ(session.Id(), 0);
    request.words = {directory.Path("missing")};
    EXPECT_EQ(starter.Run(request), std::errc::no_such_file_or_directory);
    request.words = {"false"};
    EXPECT_FALSE(starter.Run(request));
}

TEST_F(ProgramStarterLinux, AnAddressIsOneWordForTheDesktop) {
    fs::create_directory(directory.Path("bin"));
    WriteRecorder("bin/xdg-open");
    const EnvironmentVariable path("PATH", directory.Path("bin") + ":/usr/bin:/bin");
    ASSERT_FALSE(starter.Open("https://example.org/?a=1&b=$(touch pwned)"));
    EXPECT_THAT(Facts("word"), ElementsAre("https://example.org/?a=1&b=$(touch pwned)"));
    fs::remove(directory.Path("report"));
    ASSERT_FALSE(starter.Open("--version"));
    EXPECT_THAT(Facts("word"), ElementsAre("./--version"));
    EXPECT_EQ(starter.Open(""), std::errc::invalid_argument);
}

TEST_F(ProgramStarterLinux, HundredStartsLeaveNothingOpen) {
    const auto open = [] {
        return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    };
    const auto before = open();
    platform::StartRequest request;
    request.words = {"true"};
    platform::StartRequest failing;
    failing.words = {directory.Path("missing")};
    for (int i = 0; i < 100; ++i) {
        EXPECT_FALSE(starter.Run(request));
        EXPECT_TRUE(starter.Run(failing));
    }
    EXPECT_EQ(open(), before);
}

TEST_F(ProgramStarterLinux, WhoMayRunAFileSaysItsRights) {
    EXPECT_TRUE(starter.MayRun(WriteProgram("program", "#!/bin/sh\n")));
    EXPECT_FALSE(starter.MayRun(directory.Write("text", "x")));
    EXPECT_FALSE(starter.MayRun(directory.Path("gone")));
    const std::string windows = directory.Write("tool.EXE", "MZ");
    {
        const EnvironmentVariable none("PATH", directory.Root());
        EXPECT_FALSE(starter.MayRun(windows));
    }
    fs::create_directory(directory.Path("bin"));
    WriteProgram("bin/wine", "#!/bin/sh\n");
    const EnvironmentVariable own("PATH", directory.Path("bin"));
    EXPECT_TRUE(starter.MayRun(windows));
}

TEST_F(ProgramStarterLinux, TheCurrentDirectoryIsNotSearched) {
    fs::create_directory(directory.Path("bin"));
    fs::create_directory_symlink(directory.Path("bin"), directory.Path("link"));
    const EnvironmentVariable own("PATH", ":.:" + directory.Path("bin/"));
    EXPECT_FALSE(starter.SearchesIn(fs::current_path().string()));
    EXPECT_TRUE(starter.SearchesIn(directory.Path("bin")));
    EXPECT_TRUE(starter.SearchesIn(directory.Path("link")));
    EXPECT_FALSE(starter.SearchesIn(directory.Root()));
}

TEST_F(ProgramStarterLinux, TheDesktopsOpenerOpensAFileThatIsThere) {
    fs::create_directory(directory.Path("bin"));
    const std::string opener = WriteProgram("bin/xdg-open", "#!/bin/sh\n");
    const EnvironmentVariable own("PATH", directory.Path("bin"));
    EXPECT_EQ(starter.FindExecutable(directory.Write("a.txt", "x")), opener);
    EXPECT_EQ(starter.FindExecutable(directory.Path("b.txt")), "");
    const EnvironmentVariable none("PATH", directory.Root());
    EXPECT_EQ(starter.FindExecutable(directory.Path("a.txt")), "");
}

}  // namespace
}  // namespace kivu::hosts
