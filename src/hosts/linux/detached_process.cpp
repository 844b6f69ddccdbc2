#include "hosts/linux/detached_process.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <memory>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include "hosts/linux/file_descriptor.h"

namespace kivu::hosts {

namespace {

// The new process borrows the launcher's memory until it runs its program, while the launcher
// stands still (CLONE_VM and CLONE_VFORK, as posix_spawn does): copying the page tables of a
// launcher with long lists would take milliseconds. So nothing in it may allocate or lock, it
// needs a stack of its own, and it tells its failure through memory.
struct alignas(64) ChildStack {
    std::array<std::byte, 64 * 1024> bytes;
    void* Top() { return bytes.data() + bytes.size(); }
};

struct Start {
    const char* program = nullptr;
    const char* directory = nullptr;  // null: stay
    std::vector<char*> words;
    int null = -1;       // /dev/null, above the standard streams
    int lastOpen = 0;    // a descriptor that no open one lies above, for old kernels
    bool leave = false;  // the program is started by a process between that ends at once
    volatile int failure = 0;
    ChildStack between;
    ChildStack started;
};

void ResetSignals() {
    struct sigaction byDefault {};
    byDefault.sa_handler = SIG_DFL;
    // SIGKILL, SIGSTOP and the C library's own refuse, and need nothing.
    for (int signal = 1; signal < NSIG; ++signal)
        ::sigaction(signal, &byDefault, nullptr);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

void CloseOthers(int lastOpen) {
    if (::close_range(STDERR_FILENO + 1, UINT_MAX, 0) == 0) return;
    for (int descriptor = STDERR_FILENO + 1; descriptor <= lastOpen; ++descriptor)
        ::close(descriptor);
}

bool TakeNullStreams(int null) {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::dup2(null, stream) < 0) return false;
    }
    return true;
}

int BecomeProgram(void* argument) {
    auto& start = *static_cast<Start*>(argument);
    const bool ready = (start.leave || ::setsid() >= 0) &&
                       (start.directory == nullptr || ::chdir(start.directory) == 0) &&
                       TakeNullStreams(start.null);
    if (ready) {
        CloseOthers(start.lastOpen);
        ResetSignals();
        ::execv(start.program, start.words.data());
    }
    start.failure = errno;
    return 127;
}

// Without SIGCHLD in it: the launcher gets none for the process between, and nobody who waits for
// any child can take it away.
constexpr int borrowMemory = CLONE_VM | CLONE_VFORK;

// Leads the new session, starts the program in it and ends: the program becomes init's child, and
// is no session leader, so that no terminal it opens can become its own.
int LeadSession(void* argument) {
    auto& start = *static_cast<Start*>(argument);
    if (::setsid() < 0 || ::clone(BecomeProgram, start.started.Top(), borrowMemory, argument) < 0)
        start.failure = errno;
    return 0;
}

// No handler of the launcher may run in the borrowed memory.
class AllSignalsBlocked {
 public:
    AllSignalsBlocked() {
        sigset_t all;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_BLOCK, &all, &before);
    }
    ~AllSignalsBlocked() { ::pthread_sigmask(SIG_SETMASK, &before, nullptr); }
    AllSignalsBlocked(const AllSignalsBlocked&) = delete;
    AllSignalsBlocked& operator=(const AllSignalsBlocked&) = delete;

 private:
    sigset_t before{};
};

// By its id: the launcher's other children are somebody else's business.
void Reap(pid_t child) {
    while (::waitpid(child, nullptr, __WALL) < 0 && errno == EINTR) {
    }
}

Detached Run(const DetachedProgram& program, bool leave) {
    const auto start = std::make_unique<Start>();
    const FileDescriptor opened(::open("/dev/null", O_RDWR | O_CLOEXEC));
    // Above the streams, so that dup2 makes a copy that lives on after the exec.
    const FileDescriptor null(opened ? ::fcntl(opened.Get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1)
                                     : -1);
    if (!null) return {{errno, std::generic_category()}, 0};

    start->program = program.program.c_str();
    if (!program.directory.empty()) start->directory = program.directory.c_str();
    for (const auto& word : program.words)
        start->words.push_back(const_cast<char*>(word.c_str()));
    start->words.push_back(nullptr);
    start->null = null.Get();
    start->lastOpen = static_cast<int>(std::clamp<long>(::sysconf(_SC_OPEN_MAX), 256, 65536));
    start->leave = leave;

    pid_t child = -1;
    {
        const AllSignalsBlocked blocked;
        child =
            ::clone(leave ? LeadSession : BecomeProgram,
                    leave ? start->between.Top() : start->started.Top(), borrowMemory, start.get());
        if (child < 0) return {{errno, std::generic_category()}, 0};
    }
    Reap(child);
    if (start->failure != 0) return {{start->failure, std::generic_category()}, 0};
    return {{}, child};
}

}  // namespace

Detached StartDetached(const DetachedProgram& program) {
    return Run(program, true);
}

Detached RunDetached(const DetachedProgram& program) {
    return Run(program, false);
}

}  // namespace kivu::hosts
