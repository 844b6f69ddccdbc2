#include "hosts/linux/log_linux.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "hosts/linux/user_directories.h"
#include "text/log_text.h"

namespace kivu::hosts {

namespace {

constexpr int maxLooks = 3;  // at a file that others may turn over meanwhile

text::LogTime LocalTime() {
    struct timespec now {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    struct tm local {};
    if (::localtime_r(&now.tv_sec, &local) == nullptr) return {};
    return {local.tm_year + 1900,
            local.tm_mon + 1,
            local.tm_mday,
            local.tm_hour,
            local.tm_min,
            local.tm_sec,
            static_cast<int>(now.tv_nsec / 1'000'000)};
}

std::string OldName(const std::string& path) {
    const std::string_view ending = ".log";
    const bool plain = path.ends_with(ending);
    return path.substr(0, path.size() - (plain ? ending.size() : 0)) + ".old.log";
}

// A reader that has gone must not take the launcher with it.
class WithoutBrokenPipe {
 public:
    WithoutBrokenPipe() {
        ::sigemptyset(&brokenPipe);
        ::sigaddset(&brokenPipe, SIGPIPE);
        sigset_t pending;
        ::sigpending(&pending);
        wasPending = ::sigismember(&pending, SIGPIPE) == 1;
        ::pthread_sigmask(SIG_BLOCK, &brokenPipe, &before);
    }
    ~WithoutBrokenPipe() {
        const struct timespec now {};
        if (!wasPending) {
            while (::sigtimedwait(&brokenPipe, nullptr, &now) < 0 && errno == EINTR) {
            }
        }
        ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    }
    WithoutBrokenPipe(const WithoutBrokenPipe&) = delete;
    WithoutBrokenPipe& operator=(const WithoutBrokenPipe&) = delete;

 private:
    sigset_t brokenPipe{};
    sigset_t before{};
    bool wasPending = false;
};

// False: there is nobody any more who would take it.
bool WriteToStandardError(std::string_view line) {
    const WithoutBrokenPipe guard;
    while (!line.empty()) {
        pollfd out{STDERR_FILENO, POLLOUT, 0};
        if (::poll(&out, 1, 0) != 1 || (out.revents & POLLOUT) == 0)
            return (out.revents & (POLLERR | POLLNVAL | POLLHUP)) == 0;
        // A pipe that can be written to has room for that much.
        const ssize_t written =
            ::write(STDERR_FILENO, line.data(), line.size() < PIPE_BUF ? line.size() : PIPE_BUF);
        if (written < 0) return errno == EAGAIN || errno == EINTR;
        line.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace

void LinuxLog::Write(std::string_view text) {
    const std::scoped_lock one(writing);
    const std::string line =
        text::LogLine(LocalTime(), static_cast<unsigned long>(::getpid()), text) + "\n";
    if (echo) echo = WriteToStandardError(line);
    FindPlace();
    if (!path.empty()) Append(line);
}

void LinuxLog::FindPlace() {
    if (placed) return;
    placed = true;
    if (const std::string directory = UserStateDirectory(); !directory.empty())
        path = directory + "/Kivu/Kivu.log";
}

FileDescriptor LinuxLog::Open() const {
    // Neither a pipe without a reader nor a terminal may hold it up.
    constexpr int flags =
        O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    FileDescriptor file(::open(path.c_str(), flags, 0600));
    if (!file && errno == ENOENT && !MakeUserDirectory(path.substr(0, path.rfind('/'))))
        file = FileDescriptor(::open(path.c_str(), flags, 0600));
    return file;
}

void LinuxLog::Append(const std::string& line) {
    for (int look = 1; look <= maxLooks; ++look) {
        const FileDescriptor file = Open();
        struct stat status {};
        if (!file || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return;
        const auto size = static_cast<std::size_t>(status.st_size);
        if (size == 0 || size + line.size() <= maxSize) return WriteTo(file, line);
        if (look < maxLooks) {
            MakeRoom(file);
        } else if (size < 2 * maxSize) {
            // Another instance is at it; one that has been stopped there would be for ever.
            WriteTo(file, line);
        }
    }
}

// Of several instances that find the file full one turns it over; the others look again.
void LinuxLog::MakeRoom(const FileDescriptor& file) const {
    if (::flock(file.Get(), LOCK_EX | LOCK_NB) != 0) return;
    struct stat opened {};
    struct stat named {};
    if (::fstat(file.Get(), &opened) != 0 || ::stat(path.c_str(), &named) != 0) return;
    const bool isTheSame = opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
    if (!isTheSame) return;
    // The newest lines count most.
    if (std::rename(path.c_str(), OldName(path).c_str()) != 0) {
        [[maybe_unused]] const int ignored = ::ftruncate(file.Get(), 0);
    }
}

// In one call, so that lines of several instances do not mix.
void LinuxLog::WriteTo(const FileDescriptor& file, const std::string& line) {
    const std::string whole = torn ? "\n" + line : line;
    const ssize_t written = ::write(file.Get(), whole.data(), whole.size());
    if (written > 0) torn = static_cast<std::size_t>(written) < whole.size();
}

}  // namespace kivu::hosts
