#include "hosts/linux/display_guard.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "hosts/linux/x11_screen.h"

namespace kivu::hosts {

namespace {

// One message: the id of the mode to put back, 0 for none.
using Message = std::uint32_t;

// In a session of its own, with nothing open but its end of the socket.
class SpawnSettings {
 public:
    explicit SpawnSettings(int standardInput) {
        ::posix_spawn_file_actions_init(&files);
        ::posix_spawn_file_actions_adddup2(&files, standardInput, STDIN_FILENO);
        for (const int output : {STDOUT_FILENO, STDERR_FILENO})
            ::posix_spawn_file_actions_addopen(&files, output, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
        ::posix_spawnattr_init(&attributes);
        sigset_t signals;
        ::sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes, &signals);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSID);
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

// False: the launcher has gone.
bool Receive(Message& message) {
    for (;;) {
        const ssize_t length = ::recv(STDIN_FILENO, &message, sizeof message, 0);
        if (length < 0 && errno == EINTR) continue;
        return length == static_cast<ssize_t>(sizeof message);
    }
}

}  // namespace

DisplayGuard::~DisplayGuard() {
    Forget();
}

bool DisplayGuard::Keep(std::uint32_t mode) {
    if (Tell(mode)) return true;
    // There is none yet, or somebody has killed it.
    Forget();
    return Start() && Tell(mode);
}

void DisplayGuard::Rest() {
    if (socket) (void)Tell(0);
}

// Its end, where it has come, is taken note of, so that no zombie stays.
void DisplayGuard::Forget() {
    socket.Close();
    if (process > 0) ::waitpid(process, nullptr, WNOHANG);
    process = 0;
}

bool DisplayGuard::Tell(std::uint32_t mode) {
    const Message message = mode;
    return socket && ::send(socket.Get(), &message, sizeof message, MSG_NOSIGNAL) ==
                         static_cast<ssize_t>(sizeof message);
}

bool DisplayGuard::Start() {
    std::array<int, 2> ends{-1, -1};
    // Messages keep their bounds, and a killed reader is an error for the writer.
    if (program.empty() || ::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) < 0)
        return false;
    FileDescriptor ours(ends[0]);
    const FileDescriptor theirs(ends[1]);
    std::vector<char*> words;
    for (std::string& word : program)
        words.push_back(word.data());
    words.push_back(nullptr);
    const SpawnSettings settings(theirs.Get());
    if (::posix_spawn(&process, words[0], &settings.files, &settings.attributes, words.data(),
                      ::environ) != 0) {
        process = 0;
        return false;
    }
    socket = std::move(ours);
    return true;
}

int KeepDisplay() {
    // For who looks at the list of processes: it is started by a path that says nothing.
    ::prctl(PR_SET_NAME, "kivu-display");
    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGPIPE})
        std::signal(signal, SIG_IGN);
    // No drive is kept busy by it.
    if (::chdir("/") != 0) return 1;
    Message told = 0;
    for (Message message = 0; Receive(message);)
        told = message;
    if (told == 0) return 0;
    const auto screen = X11Screen::Open();
    const auto modes = screen ? screen->Modes() : std::nullopt;
    if (!modes) return 1;
    return modes->current == told || screen->Set(told) ? 0 : 1;
}

}  // namespace kivu::hosts
