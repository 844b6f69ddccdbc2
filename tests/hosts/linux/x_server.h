#pragma once

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "testing/temporary_directory.h"

namespace kivu::hosts {

// An X server of the test's own. Not running: it is not installed, or may not be started here.
class XServer {
 public:
    // `words` lack the option that tells the number of the display.
    explicit XServer(std::vector<std::string> words) {
        int ends[2];
        if (::access(words[0].c_str(), X_OK) != 0 || ::pipe2(ends, O_CLOEXEC) != 0) return;
        words.insert(words.end(), {"-displayfd", "3", "-noreset", "-nolisten", "tcp"});
        std::vector<char*> arguments;
        for (std::string& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        posix_spawn_file_actions_t files;
        ::posix_spawn_file_actions_init(&files);
        for (const int output : {STDOUT_FILENO, STDERR_FILENO})
            ::posix_spawn_file_actions_addopen(&files, output, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_adddup2(&files, ends[1], 3);
        if (::posix_spawn(&process, words[0].c_str(), &files, nullptr, arguments.data(),
                          ::environ) != 0)
            process = 0;
        ::posix_spawn_file_actions_destroy(&files);
        ::close(ends[1]);
        // It says its number when it serves, and nothing when it ends before.
        char digit = 0;
        std::string number;
        while (process > 0 && ::read(ends[0], &digit, 1) == 1 && digit != '\n')
            number += digit;
        ::close(ends[0]);
        if (!number.empty()) name = ":" + number;
    }
    ~XServer() {
        if (process <= 0) return;
        ::kill(process, SIGTERM);
        while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    bool IsRunning() const { return !name.empty(); }
    const std::string& Name() const { return name; }  // as $DISPLAY has it

 private:
    pid_t process = 0;
    std::string name;
};

// The words of a server that switches modes without hardware, at 1920x1080 with 24 bits.
inline std::vector<std::string> DummyServer(const testing::TemporaryDirectory& directory) {
    const std::string configuration = directory.Write("xorg.conf", R"(
Section "ServerFlags"
  Option "AutoAddDevices" "false"
  Option "AutoAddGPU" "false"
EndSection
Section "Device"
  Identifier "Device"
  Driver "dummy"
  VideoRam 65536
EndSection
Section "Monitor"
  Identifier "Monitor"
  HorizSync 5-1000
  VertRefresh 5-200
EndSection
Section "Screen"
  Identifier "Screen"
  Device "Device"
  Monitor "Monitor"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Modes "1920x1080" "1024x768" "800x600"
  EndSubSection
EndSection
)");
    return {"/usr/lib/xorg/Xorg",       "-config",     configuration, "-logfile",
            directory.Path("xorg.log"), "-novtswitch", "-sharevts"};
}

}  // namespace kivu::hosts
