#include "hosts/linux/instance_linux.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/epoll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

#include "hosts/linux/user_directories.h"

namespace kivu::hosts {

namespace {

constexpr int waitingCalls = 8;

struct Address {
    sockaddr_un text{};
    socklen_t length = 0;

    const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&text); }
};

// False: the name is too long for a socket.
bool MakeAddress(const std::string& name, bool abstract, Address& address) {
    const std::size_t room = sizeof address.text.sun_path - 1;
    if (name.empty() || name.size() > room) return false;
    address.text.sun_family = AF_UNIX;
    // A NUL in front marks an abstract name; a path has one behind it.
    std::memcpy(address.text.sun_path + (abstract ? 1 : 0), name.data(), name.size());
    address.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size() + 1);
    return true;
}

FileDescriptor NewSocket() {
    return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

bool IsOwnUsers(int connection) {
    struct ucred peer {};
    socklen_t length = sizeof peer;
    return ::getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 &&
           peer.uid == ::getuid();
}

enum class Call { answered, busy, nobody };

// The path is small enough for the socket's own memory, so nothing here waits for the other side.
Call TryCall(const Address& address, const std::string& file) {
    const FileDescriptor connection = NewSocket();
    if (!connection) return Call::nobody;
    if (::connect(connection.Get(), address.Get(), address.length) != 0)
        return errno == EAGAIN ? Call::busy : Call::nobody;
    if (!IsOwnUsers(connection.Get())) return Call::nobody;
    (void)::send(connection.Get(), file.data(), file.size(), MSG_NOSIGNAL);
    return Call::answered;
}

// The holder of the lock may be on its way from locking to listening, or have more calls waiting
// than it has room for. Whoever has nothing to tell need not wait for that.
void CallPatiently(const Address& address, const std::string& file) {
    constexpr int trials = 40;
    constexpr int pause = 25;  // milliseconds
    for (int trial = 0; trial < trials; ++trial) {
        const Call call = TryCall(address, file);
        if (call == Call::answered || (call == Call::busy && file.empty())) return;
        ::poll(nullptr, 0, pause);
    }
}

// FNV-1a.
std::string HashOf(const std::string& text) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char letter : text)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001b3;
    char digits[32];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(hash));
    return digits;
}

// Program names are file names: any bytes, up to 255 of them. A hash keeps them apart where they do
// not fit or would be a path, and directories always.
std::string SocketName(const std::string& programName, const std::string& directory) {
    constexpr std::size_t maxPlain = 32;
    const bool isPlain = programName.size() <= maxPlain &&
                         programName.find_first_of(std::string_view("/\0", 2)) == std::string::npos;
    const std::string name = "kivu-" + (isPlain ? programName : HashOf(programName));
    return directory.empty() ? name : name + "-" + HashOf(directory);
}

}  // namespace

LinuxInstance::LinuxInstance(const std::string& programName, const std::string& directory)
    : name(SocketName(programName, directory)) {
}

LinuxInstance::~LinuxInstance() {
    // While the lock is held, so that it is surely the own one.
    if (!socketPath.empty()) ::unlink(socketPath.c_str());
}

bool LinuxInstance::HandOver(const std::string&, const std::string& file) {
    if (listener) return false;
    const std::string told = file.size() <= maxFile ? file : "";
    const std::string directory = UserRuntimeDirectory();
    Address address;
    const std::string path = directory + "/" + name + ".socket";
    if (!directory.empty() && MakeAddress(path, false, address)) return !ListenAtPath(path, told);
    return !ListenAbstract(name + "-" + std::to_string(::getuid()), told);
}

bool LinuxInstance::ListenAtPath(const std::string& path, const std::string& file) {
    Address address;
    MakeAddress(path, false, address);
    const std::string lockPath = path + ".lock";
    FileDescriptor opened(
        ::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600));
    if (!opened) return true;
    if (::flock(opened.Get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK) return true;
        CallPatiently(address, file);
        return false;
    }
    lock = std::move(opened);

    ::unlink(path.c_str());
    FileDescriptor made = NewSocket();
    if (made && ::bind(made.Get(), address.Get(), address.length) == 0 && Listen(std::move(made)))
        socketPath = path;
    return true;
}

bool LinuxInstance::ListenAbstract(const std::string& name, const std::string& file) {
    Address address;
    if (!MakeAddress(name, true, address)) return true;
    FileDescriptor made = NewSocket();
    if (!made) return true;
    if (::bind(made.Get(), address.Get(), address.length) == 0 && Listen(std::move(made)))
        return true;
    // Anybody may have taken such a name; only a call to the same user's process is one.
    const Call call = TryCall(address, file);
    if (call == Call::nobody) return true;
    if (call == Call::busy) CallPatiently(address, file);
    return false;
}

bool LinuxInstance::Listen(FileDescriptor made) {
    if (::listen(made.Get(), waitingCalls) != 0) return false;
    FileDescriptor set(::epoll_create1(EPOLL_CLOEXEC));
    epoll_event event{};
    event.events = EPOLLIN;
    if (!set || ::epoll_ctl(set.Get(), EPOLL_CTL_ADD, made.Get(), &event) != 0) return false;
    listener = std::move(made);
    waiting = std::move(set);
    return true;
}

void LinuxInstance::OnSummoned(std::function<void(const std::string&)> handler) {
    summon = std::move(handler);
    if (summon && missed) summon(*std::exchange(missed, std::nullopt));
}

void LinuxInstance::AcceptCallers() {
    while (listener) {
        FileDescriptor caller(
            ::accept4(listener.Get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
        if (!caller) {
            if (errno == ECONNABORTED || errno == EINTR) continue;
            return;
        }
        if (!IsOwnUsers(caller.Get())) continue;
        epoll_event event{};
        event.events = EPOLLIN | EPOLLRDHUP;
        (void)::epoll_ctl(waiting.Get(), EPOLL_CTL_ADD, caller.Get(), &event);
        callers.push_back({std::move(caller), {}});
    }
}

// What it has to say is there. One that says more than a path can have is heard no further.
bool LinuxInstance::HasFinished(Caller& caller) const {
    char bytes[1024];
    for (;;) {
        const ssize_t count = ::recv(caller.connection.Get(), bytes, sizeof bytes, 0);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) return false;
        if (count <= 0) return true;
        caller.said.append(bytes, static_cast<std::size_t>(count));
        if (caller.said.size() <= maxFile) continue;
        caller.said.clear();
        return true;
    }
}

void LinuxInstance::Serve() {
    AcceptCallers();
    bool called = false;
    std::string file;
    std::erase_if(callers, [&](Caller& caller) {
        if (!HasFinished(caller)) return false;
        called = true;
        if (file.empty() && caller.said.find('\0') == std::string::npos) file = caller.said;
        return true;
    });
    // Those that connect and then keep silent make room for the next ones.
    if (callers.size() > static_cast<std::size_t>(waitingCalls)) callers.erase(callers.begin());
    if (!called) return;
    if (summon) {
        summon(file);
    } else if (!missed || missed->empty()) {
        missed = file;
    }
}

}  // namespace kivu::hosts
