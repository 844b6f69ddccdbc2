#include "hosts/linux/display_linux.h"

#include <csignal>
#include <dirent.h>
#include <iostream>
#include <spawn.h>
#include <sys/wait.h>

#include "hosts/linux/x11_screen.h"
#include "testing/environment_variable.h"
#include "testing/eventually.h"
#include "x_server.h"

namespace kivu::hosts {
namespace {

using platform::DisplayMode;
using testing::Eventually;

const std::string user = std::string(KIVU_HELPERS) + "/kivu_display_user";
constexpr DisplayMode desktop{1920, 1080, 32, 60};
constexpr DisplayMode small{800, 600, 32, 60};

pid_t GuardOf(pid_t parent) {
    std::unique_ptr<DIR, int (*)(DIR*)> processes(::opendir("/proc"), ::closedir);
    while (const dirent* entry = ::readdir(processes.get())) {
        const std::string path = std::string("/proc/") + entry->d_name;
        std::ifstream status(path + "/stat");
        std::string id, name, state, its;
        if (!(status >> id >> name >> state >> its) || its != std::to_string(parent)) continue;
        if (name.starts_with("(kivu") && state != "Z") return std::atoi(entry->d_name);
    }
    return 0;
}

// One server for all tests: each leaves it at the desktop's mode.
class DisplayLinux : public ::testing::Test {
 protected:
    static void SetUpTestSuite() {
        directory = std::make_unique<testing::TemporaryDirectory>();
        server = std::make_unique<XServer>(DummyServer(*directory));
    }
    static void TearDownTestSuite() {
        server.reset();
        directory.reset();
    }
    void SetUp() override {
        if (!server->IsRunning()) {
            std::cerr << "SKIPPED: no X server with the dummy driver can be started here\n";
            GTEST_SKIP() << "no X server with the dummy driver";
        }
        display = std::make_unique<testing::EnvironmentVariable>("DISPLAY", server->Name());
        // That of the test before may be about to end.
        ASSERT_TRUE(Eventually([] { return GuardOf(::getpid()) == 0; }));
        ASSERT_EQ(LinuxDisplay().Current(), desktop);
    }

    static std::unique_ptr<testing::TemporaryDirectory> directory;
    static std::unique_ptr<XServer> server;
    std::unique_ptr<testing::EnvironmentVariable> display;
};

std::unique_ptr<testing::TemporaryDirectory> DisplayLinux::directory;
std::unique_ptr<XServer> DisplayLinux::server;

// The helper, which sets a mode by itself.
class User {
 public:
    explicit User(std::vector<std::string> words) {
        words.insert(words.begin(), user);
        std::vector<char*> arguments;
        for (std::string& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        int input[2], output[2];
        if (::pipe2(input, O_CLOEXEC) != 0 || ::pipe2(output, O_CLOEXEC) != 0) return;
        posix_spawn_file_actions_t files;
        ::posix_spawn_file_actions_init(&files);
        ::posix_spawn_file_actions_adddup2(&files, input[0], STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&files, output[1], STDOUT_FILENO);
        if (::posix_spawn(&process, user.c_str(), &files, nullptr, arguments.data(), ::environ))
            process = 0;
        ::posix_spawn_file_actions_destroy(&files);
        ::close(input[0]);
        ::close(output[1]);
        hold = FileDescriptor(input[1]);
        FileDescriptor answer(output[0]);
        char letter = 0;
        isSet = process > 0 && ::read(answer.Get(), &letter, 1) == 1;
    }
    ~User() { Kill(SIGKILL); }
    User(const User&) = delete;
    User& operator=(const User&) = delete;

    void Kill(int signal) {
        if (process > 0) ::kill(process, signal);
        Wait();
    }
    void End() {
        hold.Close();
        Wait();
    }
    bool isSet = false;

 private:
    void Wait() {
        if (process > 0) ::waitpid(process, nullptr, 0);
        process = 0;
    }
    pid_t process = 0;
    FileDescriptor hold;
};

TEST_F(DisplayLinux, AnOfferedModeIsSetAndPutBack) {
    LinuxDisplay display({user, "--keep-display"});
    EXPECT_TRUE(display.Change(small));
    EXPECT_EQ(display.Current(), small);
    EXPECT_TRUE(display.Change(small));
    EXPECT_TRUE(display.Change({1024, 768, 32, 75}));
    EXPECT_EQ(display.Current(), (DisplayMode{1024, 768, 32, 75}));
    EXPECT_TRUE(display.Change(desktop));
    EXPECT_EQ(display.Current(), desktop);
}

// The whole screen has the size of the mode, so that windows keep to what can be seen.
TEST_F(DisplayLinux, TheScreenShrinksAndGrowsWithTheMode) {
    const auto root = [] {
        const XcbRandr& x = *XcbRandr::Get();
        xcb_connection_t* connection = x.connect(nullptr, nullptr);
        const auto* screen = x.setup_roots_iterator(x.get_setup(connection)).data;
        const std::pair<int, int> size{screen->width_in_pixels, screen->height_in_pixels};
        x.disconnect(connection);
        return size;
    };
    LinuxDisplay display({user, "--keep-display"});
    ASSERT_TRUE(display.Change(small));
    EXPECT_EQ(root(), std::pair(800, 600));
    ASSERT_TRUE(display.Change(desktop));
    EXPECT_EQ(root(), std::pair(1920, 1080));
}

TEST_F(DisplayLinux, WhatIsNotOfferedChangesNothing) {
    LinuxDisplay display({user, "--keep-display"});
    EXPECT_FALSE(display.Change({800, 600, 16, 60}));
    EXPECT_FALSE(display.Change({801, 600, 32, 60}));
    EXPECT_FALSE(display.Change({800, 600, 32, 199}));
    EXPECT_FALSE(display.Change({70000, 600, 32, 60}));
    EXPECT_EQ(display.Current(), desktop);
}

TEST_F(DisplayLinux, FourZerosChangeNothingAndOneKeepsWhatThereIs) {
    LinuxDisplay display({user, "--keep-display"});
    EXPECT_TRUE(display.Change({}));
    EXPECT_EQ(display.Current(), desktop);
    EXPECT_TRUE(display.Change({1024, 768, 0, 0}));
    EXPECT_EQ(display.Current(), (DisplayMode{1024, 768, 32, 60}));
    EXPECT_TRUE(display.Change({0, 0, 0, 75}));
    EXPECT_EQ(display.Current(), (DisplayMode{1024, 768, 32, 75}));
    EXPECT_TRUE(display.Change(desktop));
}

TEST_F(DisplayLinux, AKilledLauncherLeavesTheDesktopsMode) {
    User launcher({"800", "600", "32", "60"});
    ASSERT_TRUE(launcher.isSet);
    LinuxDisplay display;
    ASSERT_EQ(display.Current(), small);
    launcher.Kill(SIGKILL);
    EXPECT_TRUE(Eventually([&] { return display.Current() == desktop; }));
}

TEST_F(DisplayLinux, ALauncherThatEndsLeavesTheDesktopsMode) {
    User launcher({"800", "600", "32", "60", "1024", "768", "32", "75"});
    ASSERT_TRUE(launcher.isSet);
    LinuxDisplay display;
    ASSERT_EQ(display.Current(), (DisplayMode{1024, 768, 32, 75}));
    launcher.End();
    EXPECT_TRUE(Eventually([&] { return display.Current() == desktop; }));
}

// Its end must not undo what the user has set by hand since.
TEST_F(DisplayLinux, ALauncherThatHasPutTheModeBackLeavesTheUsers) {
    User launcher({"800", "600", "32", "60", "1920", "1080", "32", "60"});
    ASSERT_TRUE(launcher.isSet);
    {
        LinuxDisplay display({user, "--keep-display"});
        ASSERT_TRUE(display.Change({1024, 768, 32, 60}));
        launcher.Kill(SIGKILL);
        // Its guard has had nothing to do when the next one has been at work.
        EXPECT_EQ(display.Current(), (DisplayMode{1024, 768, 32, 60}));
    }
    LinuxDisplay display;
    EXPECT_TRUE(Eventually([&] { return display.Current() == desktop; }));
}

TEST_F(DisplayLinux, TheGuardStandsSignalsAndAKilledOneIsReplaced) {
    LinuxDisplay current;
    {
        LinuxDisplay display({user, "--keep-display"});
        ASSERT_TRUE(display.Change(small));
        const pid_t first = GuardOf(::getpid());
        ASSERT_GT(first, 0);
        EXPECT_EQ(::getsid(first), first);
        ::kill(first, SIGKILL);
        ASSERT_TRUE(Eventually([&] { return GuardOf(::getpid()) == 0; }));
        ASSERT_TRUE(display.Change({1024, 768, 32, 60}));
        const pid_t second = GuardOf(::getpid());
        ASSERT_GT(second, 0);
        EXPECT_NE(second, first);
        // By now it listens, and no signal but that one counts.
        ASSERT_TRUE(Eventually([&] {
            std::ifstream status("/proc/" + std::to_string(second) + "/status");
            std::string line;
            while (std::getline(status, line)) {
                if (line.starts_with("SigIgn:")) return line.ends_with("5003");
            }
            return false;
        }));
        for (const int signal : {SIGTERM, SIGINT, SIGHUP})
            ::kill(second, signal);
    }
    EXPECT_TRUE(Eventually([&] { return current.Current() == desktop; }));
}

// At 24 bits the fixed mode of 16 is refused, and yet the launcher repairs what an emulator has
// left when it was killed. Nor does the launcher's own end bring that back.
TEST_F(DisplayLinux, WhatAKilledEmulatorHasLeftIsRepaired) {
    LinuxDisplay display({user, "--keep-display"});
    ASSERT_EQ(display.Current(), desktop);
    EXPECT_FALSE(display.Change({800, 600, 16, 60}));
    const auto emulator = X11Screen::Open();
    const auto left = ChooseMode(*emulator->Modes(), small);
    ASSERT_TRUE(left && emulator->Set(*left));
    EXPECT_EQ(display.Current(), small);
    EXPECT_TRUE(display.Change(desktop));
    EXPECT_EQ(display.Current(), desktop);
    // There is nothing to put back, so nobody who would.
    EXPECT_EQ(GuardOf(::getpid()), 0);
}

TEST_F(DisplayLinux, WithoutAGuardNoModeIsSetThatWouldStay) {
    LinuxDisplay display({"/nowhere/kivu"});
    EXPECT_FALSE(display.Change(small));
    EXPECT_EQ(display.Current(), desktop);
    EXPECT_TRUE(display.Change(desktop));
}

TEST(DisplayWithoutServer, HasNoModeAndTakesNone) {
    for (const char* name : {"", ":32000", "not a display"}) {
        const testing::EnvironmentVariable none("DISPLAY", name);
        LinuxDisplay display;
        EXPECT_EQ(display.Current(), std::nullopt) << name;
        EXPECT_FALSE(display.Change(small)) << name;
        EXPECT_TRUE(display.Change({})) << name;
    }
    const testing::EnvironmentVariable none("DISPLAY", std::nullopt);
    EXPECT_EQ(LinuxDisplay().Current(), std::nullopt);
}

TEST(DisplayWithOneMode, HasAFrequencyAndRefusesEveryOther) {
    const XServer server({"/usr/bin/Xvfb", "-screen", "0", "1280x800x24"});
    if (!server.IsRunning()) {
        std::cerr << "SKIPPED: Xvfb cannot be started here\n";
        GTEST_SKIP() << "no Xvfb";
    }
    const testing::EnvironmentVariable name("DISPLAY", server.Name());
    LinuxDisplay display({user, "--keep-display"});
    const auto current = display.Current();
    ASSERT_TRUE(current);
    EXPECT_EQ(current->frequency, 60);
    EXPECT_EQ(current->bits, 32);
    EXPECT_FALSE(display.Change({801, 600, 32, 60}));
    EXPECT_FALSE(display.Change({1280, 800, 16, 60}));
    EXPECT_TRUE(display.Change(*current));
}

}  // namespace
}  // namespace kivu::hosts
