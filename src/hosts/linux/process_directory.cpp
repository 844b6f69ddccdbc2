#include "hosts/linux/process_directory.h"

#include <array>
#include <charconv>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace kivu::hosts {

namespace {

constexpr std::uint64_t kernelThreadFlag = 0x00200000;  // PF_KTHREAD of linux/sched.h

template <typename Number>
std::optional<Number> ParseNumber(std::string_view text) {
    Number number{};
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

std::string_view NextField(std::string_view& rest) {
    const auto begin = rest.find_first_not_of(' ');
    if (begin == std::string_view::npos) return rest = {};
    rest.remove_prefix(begin);
    const auto end = rest.find_first_of(" \n");
    const std::string_view field = rest.substr(0, end);
    rest.remove_prefix(field.size());
    return field;
}

// "123/stat", without an allocation.
class EntryPath {
 public:
    EntryPath(pid_t id, const char* name) {
        std::snprintf(path.data(), path.size(), "%d/%s", id, name);
    }
    const char* Get() const { return path.data(); }

 private:
    std::array<char, 40> path{};
};

}  // namespace

std::optional<ProcessState> ParseProcessState(std::string_view line) {
    const auto open = line.find('(');
    const auto close = line.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open ||
        open == 0)
        return std::nullopt;
    std::string_view rest = line.substr(close + 1);
    // See proc(5): state, parent, process group, session, terminal, its group, flags.
    const std::string_view state = NextField(rest);
    const auto parent = ParseNumber<pid_t>(NextField(rest));
    NextField(rest);
    const auto session = ParseNumber<pid_t>(NextField(rest));
    NextField(rest);
    NextField(rest);
    const auto flags = ParseNumber<std::uint64_t>(NextField(rest));
    const auto id = ParseNumber<pid_t>(line.substr(0, line.find(' ')));
    if (!id || state.empty() || !parent || !session || !flags) return std::nullopt;

    ProcessState found;
    found.id = *id;
    found.parent = *parent;
    found.session = *session;
    found.shortName = line.substr(open + 1, close - open - 1);
    found.ended = state == "Z" || state == "X" || state == "x";
    found.kernel = (*flags & kernelThreadFlag) != 0;
    return found;
}

ProcessDirectory::ProcessDirectory(const std::string& root)
    : root(root),
      directory(::open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      buffer(16 * 1024, '\0') {
}

std::optional<std::vector<pid_t>> ProcessDirectory::Ids() const {
    const auto close = [](DIR* stream) { ::closedir(stream); };
    const std::unique_ptr<DIR, decltype(close)> stream(::opendir(root.c_str()), close);
    if (!directory || !stream) return std::nullopt;
    std::vector<pid_t> ids;
    while (const dirent* entry = ::readdir(stream.get())) {
        const auto id = ParseNumber<pid_t>(entry->d_name);
        if (id && *id > 0) ids.push_back(*id);
    }
    // An empty one is a place where nothing is mounted.
    if (ids.empty()) return std::nullopt;
    return ids;
}

std::string_view ProcessDirectory::ReadFile(pid_t id, const char* name) const {
    const FileDescriptor file(
        ::openat(directory.Get(), EntryPath(id, name).Get(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    // One read gives it all: these files are made up at the moment of reading, and asking once more
    // for their end costs as much as the text.
    const ssize_t got = file ? ::read(file.Get(), buffer.data(), buffer.size()) : 0;
    return std::string_view(buffer).substr(0, got > 0 ? static_cast<std::size_t>(got) : 0);
}

std::optional<ProcessState> ProcessDirectory::StateOf(pid_t id) const {
    auto state = ParseProcessState(ReadFile(id, "stat"));
    if (state && state->id != id) return std::nullopt;
    return state;
}

std::string ProcessDirectory::ExecutableOf(pid_t id) const {
    char target[PATH_MAX];
    const ssize_t length =
        ::readlinkat(directory.Get(), EntryPath(id, "exe").Get(), target, sizeof target);
    return length > 0 ? std::string(target, static_cast<std::size_t>(length)) : std::string();
}

std::vector<std::string> ProcessDirectory::ArgumentsOf(pid_t id) const {
    constexpr std::size_t maxArguments = 32;  // a script's name comes long before
    std::string_view rest = ReadFile(id, "cmdline");
    std::vector<std::string> arguments;
    while (!rest.empty() && arguments.size() < maxArguments) {
        const auto end = rest.find('\0');
        arguments.emplace_back(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return arguments;
}

bool ProcessDirectory::BelongsTo(pid_t id, uid_t user) const {
    struct stat owner {};
    if (::fstatat(directory.Get(), EntryPath(id, "").Get(), &owner, 0) != 0) return false;
    if (owner.st_uid != 0) return owner.st_uid == user;
    // Root also owns the directories of others' programs that may not be looked into.
    std::string_view status = ReadFile(id, "status");
    const auto at = status.find("\nUid:\t");
    if (at == std::string_view::npos) return user == 0;
    status.remove_prefix(at + 6);
    return ParseNumber<uid_t>(status.substr(0, status.find_first_of("\t\n"))) == user;
}

}  // namespace kivu::hosts
