#include "hosts/linux/program_output.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "hosts/linux/file_descriptor.h"

namespace kivu::hosts {

namespace {

constexpr std::size_t mostOutput = std::size_t{1} << 16;

// In a process group of its own, with nothing open but its end of the pipe, and with no signal
// blocked or ignored.
class SpawnSettings {
 public:
    explicit SpawnSettings(int output) {
        ::posix_spawn_file_actions_init(&files);
        ::posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
        ::posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
        ::posix_spawnattr_init(&attributes);
        sigset_t signals;
        ::sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes, &signals);
        ::sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&attributes, &signals);
        ::posix_spawnattr_setpgroup(&attributes, 0);
        ::posix_spawnattr_setflags(
            &attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~SpawnSettings() {
        ::posix_spawnattr_destroy(&attributes);
        ::posix_spawn_file_actions_destroy(&files);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;

    posix_spawn_file_actions_t files{};
    posix_spawnattr_t attributes{};
};

using Deadline = std::chrono::steady_clock::time_point;

// False: it was too much, or took too long.
bool ReadToEnd(int from, Deadline deadline, std::string& output) {
    std::array<char, 4096> part;
    for (;;) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) return false;
        pollfd watched{from, POLLIN, 0};
        if (::poll(&watched, 1, static_cast<int>(left.count())) < 0 && errno != EINTR) return false;
        if (watched.revents == 0) continue;
        const ssize_t length = ::read(from, part.data(), part.size());
        if (length < 0 && errno == EINTR) continue;
        if (length <= 0) return length == 0;
        output.append(part.data(), static_cast<std::size_t>(length));
        if (output.size() > mostOutput) return false;
    }
}

// What has closed its output may run on.
bool EndsWell(pid_t process, Deadline deadline) {
    int status = 0;
    for (;;) {
        const bool late = std::chrono::steady_clock::now() >= deadline;
        if (late) ::kill(-process, SIGKILL);
        const pid_t ended = ::waitpid(process, &status, late ? 0 : WNOHANG);
        if (ended == process) return WIFEXITED(status) && WEXITSTATUS(status) == 0;
        if (ended < 0 && errno != EINTR) return false;
        if (!late) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

}  // namespace

std::optional<std::string> OutputOf(const std::vector<std::string>& words,
                                    std::chrono::milliseconds limit) {
    int ends[2];
    if (words.empty() || ::pipe2(ends, O_CLOEXEC) != 0) return std::nullopt;
    const FileDescriptor from(ends[0]);
    FileDescriptor to(ends[1]);
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const SpawnSettings settings(to.Get());
    pid_t process = 0;
    if (::posix_spawn(&process, arguments[0], &settings.files, &settings.attributes,
                      arguments.data(), ::environ) != 0)
        return std::nullopt;
    to.Close();
    const Deadline deadline = std::chrono::steady_clock::now() + limit;
    std::string output;
    const bool whole = ReadToEnd(from.Get(), deadline, output);
    if (!EndsWell(process, whole ? deadline : Deadline::min()) || !whole) return std::nullopt;
    return output;
}

}  // namespace kivu::hosts
