#include "hosts/linux/end_signals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>

namespace kivu::hosts {

namespace {

constexpr std::array watched{SIGTERM, SIGINT, SIGHUP};

struct sigaction before[watched.size()];
std::atomic<int> toProgram{-1};
pid_t owner = 0;

static_assert(std::atomic<int>::is_always_lock_free, "a signal handler reads it");

void Pass(int) {
    const int kept = errno;
    // A child that has not become another program yet has the same pipe.
    const int pipe = ::getpid() == owner ? toProgram.load() : -1;
    const char byte = 1;
    // A full pipe says enough.
    if (pipe >= 0 && ::write(pipe, &byte, 1) < 0) errno = kept;
    errno = kept;
}

}  // namespace

EndSignals::EndSignals() {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
    readEnd = FileDescriptor(ends[0]);
    writeEnd = FileDescriptor(ends[1]);
    owner = ::getpid();
    toProgram = writeEnd.Get();
    struct sigaction pass {};
    pass.sa_handler = Pass;
    pass.sa_flags = SA_RESTART;
    sigemptyset(&pass.sa_mask);
    for (std::size_t i = 0; i < watched.size(); ++i) {
        ::sigaction(watched[i], nullptr, &before[i]);
        if (before[i].sa_handler != SIG_IGN) ::sigaction(watched[i], &pass, nullptr);
    }
}

EndSignals::~EndSignals() {
    if (!readEnd) return;
    for (std::size_t i = 0; i < watched.size(); ++i)
        ::sigaction(watched[i], &before[i], nullptr);
    toProgram = -1;
}

bool EndSignals::Take() {
    char bytes[64];
    bool any = false;
    while (readEnd && ::read(readEnd.Get(), bytes, sizeof bytes) > 0)
        any = true;
    return any;
}

}  // namespace kivu::hosts
