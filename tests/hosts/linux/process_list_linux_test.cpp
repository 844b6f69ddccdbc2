#include "hosts/linux/process_list_linux.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "hosts/linux/process_directory.h"
#include "hosts/linux/program_starter_linux.h"
#include "testing/eventually.h"
#include "testing/temporary_directory.h"

namespace fs = std::filesystem;

namespace kivu::hosts {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

const std::string stay = KIVU_HELPERS "/kivu_stay";
const std::string become = KIVU_HELPERS "/kivu_become";

// Processes of the real system, each under a name that no other test uses.
class ProcessListLinux : public ::testing::Test {
 protected:
    void TearDown() override {
        EXPECT_TRUE(kivu::testing::Eventually([&] {
            const auto left = WithNamePart(unique);
            for (const auto id : left)
                ::kill(id, SIGKILL);
            return left.empty();
        }));
    }

    std::string Copy(const std::string& program, const std::string& name) {
        fs::copy_file(program, directory.Path(unique + name));
        return directory.Path(unique + name);
    }
    std::string Script(const std::string& name, const std::string& text) {
        const std::string path = directory.Write(unique + name, text);
        ::chmod(path.c_str(), 0755);
        return path;
    }
    void Start(std::vector<std::string> words, bool watched = true) {
        platform::StartRequest request;
        request.words = std::move(words);
        request.watched = watched;
        ASSERT_FALSE(starter.Run(request));
    }

    std::vector<platform::ProcessEntry> WithName(const std::string& name) const {
        auto entries = list.Snapshot().value_or(std::vector<platform::ProcessEntry>{});
        std::erase_if(entries, [&](const auto& entry) {
            return std::ranges::find(entry.names, name) == entry.names.end();
        });
        return entries;
    }
    std::vector<std::int32_t> WithNamePart(const std::string& part) const {
        std::vector<std::int32_t> ids;
        const auto entries = list.Snapshot().value_or(std::vector<platform::ProcessEntry>{});
        for (const auto& entry : entries) {
            const bool hit = std::ranges::any_of(entry.names, [&](const auto& name) {
                return name.find(part) != std::string::npos;
            });
            if (hit) ids.push_back(entry.id);
        }
        return ids;
    }
    // The one process of this name, once there is one.
    platform::ProcessEntry Await(const std::string& name) const {
        std::vector<platform::ProcessEntry> found;
        EXPECT_TRUE(kivu::testing::Eventually([&] {
            found = WithName(name);
            return found.size() == 1;
        })) << name;
        return found.empty() ? platform::ProcessEntry{} : found.front();
    }
    bool AwaitGone(const std::string& name) const {
        return kivu::testing::Eventually([&] { return WithName(name).empty(); });
    }

    kivu::testing::TemporaryDirectory directory;
    const std::string unique = "kv" + std::to_string(::getpid()) + "-";
    LaunchSession session;
    LinuxProgramStarter starter{session};
    LinuxProcessList list{session};
};

TEST_F(ProcessListLinux, ANativeProgramIsFoundByItsFileAndIsOfTheLaunch) {
    Start({Copy(stay, "emulator of a long name")});
    const auto entry = Await(unique + "emulator of a long name");
    EXPECT_TRUE(entry.ofLaunch);
    EXPECT_FALSE(entry.foreign);
    EXPECT_NE(entry.id, session.Id());
}

TEST_F(ProcessListLinux, AStartThatIsNotWatchedIsNotOfTheLaunch) {
    Start({Copy(stay, "other")}, false);
    EXPECT_FALSE(Await(unique + "other").ofLaunch);
}

TEST_F(ProcessListLinux, AShellScriptIsFoundByItsName) {
    const std::string program = Copy(stay, "program");
    Start({Script("run emu.sh", "#!/bin/sh\n'" + program + "'\nexit 0\n")});
    EXPECT_TRUE(Await(unique + "run emu.sh").ofLaunch);
    EXPECT_TRUE(Await(unique + "program").ofLaunch);
}

TEST_F(ProcessListLinux, AProgramThatCallsItselfByAWindowsPathIsFoundByItsEnd) {
    Start({become, stay, "Z:\\Emus\\" + unique + "winuae.exe", "-f"});
    EXPECT_TRUE(Await(unique + "winuae.exe").ofLaunch);
}

TEST_F(ProcessListLinux, AProgramWhoseFirstArgumentIsAWindowsPathIsFoundByItsEnd) {
    Start({stay, "C:\\Program Files\\" + unique + "winuae.exe"});
    EXPECT_TRUE(Await(unique + "winuae.exe").ofLaunch);
}

TEST_F(ProcessListLinux, AWrapperThatBecomesAnotherProgramStaysOfTheLaunch) {
    const std::string inner = Copy(stay, "inner");
    Start({Copy(become, "wrapper"), inner, inner});
    const auto entry = Await(unique + "inner");
    EXPECT_TRUE(entry.ofLaunch);
    EXPECT_THAT(entry.names, Not(Contains(unique + "wrapper")));
}

TEST_F(ProcessListLinux, AProgramWhoseFileIsReplacedKeepsItsName) {
    const std::string program = Copy(stay, "updated");
    Start({program});
    const auto entry = Await(unique + "updated");
    fs::remove(program);
    EXPECT_THAT(Await(unique + "updated").names, ElementsAre(unique + "updated"));
    EXPECT_EQ(Await(unique + "updated").id, entry.id);
}

TEST_F(ProcessListLinux, AfterItsEndNothingOfItIsLeftNotEvenAZombie) {
    Start({Copy(stay, "ending")});
    const pid_t launch = session.Id();
    const auto entry = Await(unique + "ending");
    list.Kill(entry.id);
    EXPECT_TRUE(AwaitGone(unique + "ending"));
    const ProcessDirectory processes("/proc");
    EXPECT_TRUE(kivu::testing::Eventually([&] {
        const auto ids = processes.Ids().value_or(std::vector<pid_t>{});
        return std::ranges::none_of(ids, [&](pid_t id) {
            const auto state = processes.StateOf(id);
            return state && (state->session == launch || state->parent == ::getpid());
        });
    }));
    EXPECT_FALSE(fs::exists("/proc/" + std::to_string(entry.id)));
}

TEST_F(ProcessListLinux, KillingOneOfTheLaunchEndsTheWholeLaunchAndNothingElse) {
    const std::string program = Copy(stay, "member");
    Start({Copy(stay, "bystander")}, false);
    Start({Script("wrapper.sh", "#!/bin/sh\n'" + program + "' 1 &\n'" + program + "' 2 &\n( '" +
                                    program + "' 3 & )\nwait\n")});
    ASSERT_TRUE(kivu::testing::Eventually([&] { return WithName(unique + "member").size() == 3; }));
    list.Kill(Await(unique + "wrapper.sh").id);
    EXPECT_TRUE(AwaitGone(unique + "member"));
    EXPECT_TRUE(AwaitGone(unique + "wrapper.sh"));
    EXPECT_FALSE(Await(unique + "bystander").ofLaunch);
}

TEST_F(ProcessListLinux, KillingAnotherProcessEndsOnlyThatOne) {
    const std::string program = Copy(stay, "single");
    Start({Script("pair.sh", "#!/bin/sh\n'" + program + "' &\nwait\n")}, false);
    Start({Copy(stay, "watched")});
    list.Kill(Await(unique + "single").id);
    EXPECT_TRUE(AwaitGone(unique + "single"));
    EXPECT_TRUE(Await(unique + "watched").ofLaunch);
}

TEST_F(ProcessListLinux, TheLauncherItselfAndGroupsOfProcessesAreNeverKilled) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::setsid();
        list.Kill(::getpid());
        list.Kill(-::getpid());
        list.Kill(0);
        ::_exit(42);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 42);
}

TEST_F(ProcessListLinux, TheLauncherAndItsAncestorsAreForeign) {
    const auto entries = list.Snapshot();
    ASSERT_TRUE(entries);
    int found = 0;
    for (const auto& entry : *entries) {
        if (entry.id != ::getpid() && entry.id != ::getppid()) continue;
        EXPECT_TRUE(entry.foreign);
        EXPECT_FALSE(entry.ofLaunch);
        ++found;
    }
    EXPECT_EQ(found, 2);
}

TEST_F(ProcessListLinux, AnotherUsersProcessIsForeign) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can start a process of another user";
    fs::permissions(directory.Root(), fs::perms(0755));
    const std::string program = Copy(stay, "others");
    const pid_t child = ::fork();
    if (child == 0) {
        if (::setgid(65534) == 0 && ::setuid(65534) == 0)
            ::execl(program.c_str(), program.c_str(), nullptr);
        ::_exit(1);
    }
    EXPECT_TRUE(Await(unique + "others").foreign);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
}

TEST_F(ProcessListLinux, AZombieIsNotRunning) {
    const std::string program = Copy(stay, "zombie");
    const pid_t child = ::fork();
    if (child == 0) {
        ::execl(program.c_str(), program.c_str(), nullptr);
        ::_exit(1);
    }
    EXPECT_EQ(Await(unique + "zombie").id, child);
    ::kill(child, SIGKILL);
    const ProcessDirectory processes("/proc");
    ASSERT_TRUE(kivu::testing::Eventually([&] {
        const auto state = processes.StateOf(child);
        return state && state->ended;
    }));
    const auto entries = list.Snapshot();
    ASSERT_TRUE(entries);
    EXPECT_TRUE(
        std::ranges::none_of(*entries, [&](const auto& entry) { return entry.id == child; }));
    ::waitpid(child, nullptr, 0);
}

TEST_F(ProcessListLinux, ASessionThatIsGoneIsForgotten) {
    Start({Copy(stay, "short")});
    list.Kill(Await(unique + "short").id);
    EXPECT_TRUE(kivu::testing::Eventually([&] {
        static_cast<void>(list.Snapshot());
        return session.Id() == 0;
    }));
}

// A table of processes made up from files.
class MadeUpProcesses : public ::testing::Test {
 protected:
    void Add(const std::string& id, const std::string& stat, const std::string& arguments = "",
             const std::string& executable = "") {
        fs::create_directory(directory.Path(id));
        directory.Write(id + "/stat", stat);
        directory.Write(id + "/cmdline", arguments);
        directory.Write(id + "/status",
                        "Name:\tx\nUid:\t" + std::to_string(::getuid()) + "\t7\t7\t7\n");
        if (!executable.empty()) fs::create_symlink(executable, directory.Path(id + "/exe"));
    }
    static std::string Stat(const std::string& id, const std::string& name,
                            const std::string& state, const std::string& parent,
                            const std::string& processSession,
                            const std::string& flags = "4194304") {
        return id + " (" + name + ") " + state + " " + parent + " 1 " + processSession + " 0 -1 " +
               flags + " 0 0 0\n";
    }

    kivu::testing::TemporaryDirectory directory;
    LaunchSession session;
    LinuxProcessList list{session, directory.Root()};
};

TEST_F(MadeUpProcesses, WithoutATableThereIsNoAnswer) {
    EXPECT_EQ(list.Snapshot(), std::nullopt);
    fs::create_directory(directory.Path("sys"));
    EXPECT_EQ(list.Snapshot(), std::nullopt);
    EXPECT_EQ(LinuxProcessList(session, directory.Path("missing")).Snapshot(), std::nullopt);
}

TEST_F(MadeUpProcesses, ReadsWhatThereIsAndSkipsTheRest) {
    session.Begin(70);
    Add("100", Stat("100", "emu) Z (x", "S", "1", "70"), std::string("./emu\0game\0", 11),
        "/opt/emu");
    Add("101", Stat("101", "gone", "Z", "1", "70"));
    Add("102", Stat("102", "kworker", "S", "2", "0", "69238880"));
    Add("103", "103 (torn");
    Add("104", Stat("999", "wrong id", "S", "1", "70"));
    Add("105", Stat("105", "x", "S", "one", "70"));
    Add("106", "");
    Add("107", Stat("107", "nameless", "R", "1", "0"));
    fs::create_directory(directory.Path("108"));
    directory.Write("version", "x");
    fs::create_directory(directory.Path("99999999999999"));
    const auto entries = list.Snapshot();
    ASSERT_TRUE(entries);
    ASSERT_EQ(entries->size(), 2u);
    const auto& emu = (*entries)[0].id == 100 ? (*entries)[0] : (*entries)[1];
    const auto& nameless = (*entries)[0].id == 100 ? (*entries)[1] : (*entries)[0];
    EXPECT_THAT(emu.names, ElementsAre("emu"));
    EXPECT_TRUE(emu.ofLaunch);
    EXPECT_FALSE(emu.foreign);
    EXPECT_EQ(nameless.id, 107);
    EXPECT_THAT(nameless.names, ElementsAre("nameless"));
    EXPECT_FALSE(nameless.ofLaunch);
}

TEST_F(MadeUpProcesses, SessionZeroIsNeverTheLaunch) {
    Add("100", Stat("100", "emu", "S", "1", "0"), "", "/opt/emu");
    const auto entries = list.Snapshot();
    ASSERT_TRUE(entries);
    EXPECT_FALSE(entries->front().ofLaunch);
}

TEST_F(MadeUpProcesses, ACircleOfParentsEnds) {
    const std::string own = std::to_string(::getpid());
    Add(own, Stat(own, "self", "S", "100", "1"), "", "/opt/self");
    Add("100", Stat("100", "parent", "S", own, "1"), "", "/opt/parent");
    const auto entries = list.Snapshot();
    ASSERT_TRUE(entries);
    for (const auto& entry : *entries)
        EXPECT_TRUE(entry.foreign);
}

TEST_F(MadeUpProcesses, ALongCommandLineIsCutAndDoesNoHarm) {
    std::string arguments = "/opt/emu";
    arguments += '\0';
    arguments += std::string(1'000'000, 'x');
    Add("100", Stat("100", "emu", "S", "1", "1"), arguments);
    const auto entries = list.Snapshot();
    ASSERT_TRUE(entries);
    EXPECT_THAT(entries->front().names, ElementsAre("emu"));
}

TEST_F(MadeUpProcesses, ASessionIsForgottenAtTheThirdEmptyLookAndAZombieKeepsIt) {
    session.Begin(70);
    Add("100", Stat("100", "emu", "Z", "1", "70"));
    Add("101", Stat("101", "other", "S", "1", "1"), "", "/opt/other");
    for (int look = 0; look < 5; ++look)
        ASSERT_TRUE(list.Snapshot());
    EXPECT_EQ(session.Id(), 70);
    fs::remove_all(directory.Path("100"));
    ASSERT_TRUE(list.Snapshot());
    ASSERT_TRUE(list.Snapshot());
    EXPECT_EQ(session.Id(), 70);
    ASSERT_TRUE(list.Snapshot());
    EXPECT_EQ(session.Id(), 0);
}

TEST(ProcessStateLine, EndsOfLineAndBracketsInANameAreNoSeparators) {
    const auto state = ParseProcessState("12 (a b)\n(c) S 3 4 5 0 -1 0 0");
    ASSERT_TRUE(state);
    EXPECT_EQ(state->id, 12);
    EXPECT_EQ(state->shortName, "a b)\n(c");
    EXPECT_EQ(state->parent, 3);
    EXPECT_EQ(state->session, 5);
    for (const auto* torn : {"", "12", "(x) S 1 1 1 1 1 1", ") (", "12 (x) S 1 1", "12 (x)",
                             "x (x) S 1 1 1 1 1 1", "12 (x) S 1 1 99999999999 1 1 1"})
        EXPECT_FALSE(ParseProcessState(torn)) << torn;
}

}  // namespace
}  // namespace kivu::hosts
