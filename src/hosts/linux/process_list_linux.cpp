#include "hosts/linux/process_list_linux.h"

#include <algorithm>
#include <csignal>
#include <sys/syscall.h>
#include <unistd.h>
#include <unordered_map>
#include <unordered_set>

#include "hosts/linux/file_descriptor.h"
#include "hosts/linux/process_directory.h"
#include "hosts/linux/process_names.h"

namespace kivu::hosts {

namespace {

using Parents = std::unordered_map<pid_t, pid_t>;

// The launcher and the processes that it hangs from.
std::unordered_set<pid_t> OwnLine(const Parents& parents) {
    std::unordered_set<pid_t> line;
    pid_t id = ::getpid();
    // A made-up or torn list may hold a circle.
    while (id > 0 && line.insert(id).second) {
        const auto parent = parents.find(id);
        if (parent == parents.end()) break;
        id = parent->second;
    }
    return line;
}

std::vector<std::string> NamesOf(const ProcessDirectory& processes, const ProcessState& state) {
    return NamesOf(ProcessFacts{processes.ExecutableOf(state.id), state.shortName,
                                processes.ArgumentsOf(state.id)});
}

bool IsInSession(const ProcessDirectory& processes, pid_t id, pid_t session) {
    const auto state = processes.StateOf(id);
    return state && session > 0 && state->session == session && !state->ended;
}

// By a handle, so that an id that has just gone to another process cannot hit that one: who belongs
// to the session is asked after the handle has been taken.
void KillMember(const ProcessDirectory& processes, pid_t id, pid_t session) {
    // By number: the C library's own wrappers came late, and at first without C linkage.
    const FileDescriptor handle(static_cast<int>(::syscall(SYS_pidfd_open, id, 0)));
    if (!IsInSession(processes, id, session)) return;
    if (handle) {
        ::syscall(SYS_pidfd_send_signal, handle.Get(), SIGKILL, nullptr, 0);
    } else {
        ::kill(id, SIGKILL);
    }
}

// Looks again until nobody new is found: a member may start another one while it is being killed.
void KillSession(const ProcessDirectory& processes, pid_t session) {
    constexpr int maxRounds = 50;
    std::unordered_set<pid_t> killed;
    for (int round = 0; round < maxRounds; ++round) {
        bool foundNew = false;
        for (const pid_t id : processes.Ids().value_or(std::vector<pid_t>{})) {
            if (id == ::getpid() || !IsInSession(processes, id, session)) continue;
            KillMember(processes, id, session);
            foundNew |= killed.insert(id).second;
        }
        if (!foundNew) return;
    }
}

}  // namespace

std::optional<std::vector<platform::ProcessEntry>> LinuxProcessList::Snapshot() const {
    const ProcessDirectory processes(root);
    const auto ids = processes.Ids();
    if (!ids) return std::nullopt;

    const uid_t user = ::getuid();
    const pid_t watched = session.Id();
    bool hasMembers = false;
    Parents parents;
    std::vector<platform::ProcessEntry> entries;
    entries.reserve(ids->size());
    for (const pid_t id : *ids) {
        const auto state = processes.StateOf(id);
        if (!state) continue;
        parents.emplace(id, state->parent);
        // A zombie keeps the session's id from being given away.
        const bool isMember = watched > 0 && state->session == watched;
        hasMembers |= isMember;
        if (state->ended || state->kernel) continue;
        platform::ProcessEntry entry;
        entry.id = id;
        entry.names = NamesOf(processes, *state);
        entry.ofLaunch = isMember;
        entry.foreign = !processes.BelongsTo(id, user);
        if (!entry.names.empty()) entries.push_back(std::move(entry));
    }
    if (entries.empty()) return std::nullopt;

    const auto ownLine = OwnLine(parents);
    for (auto& entry : entries)
        entry.foreign |= ownLine.contains(entry.id);
    if (watched > 0) session.Looked(hasMembers);
    return entries;
}

void LinuxProcessList::Kill(std::int32_t id) {
    if (id <= 1 || id == ::getpid()) return;
    const ProcessDirectory processes(root);
    const pid_t watched = session.Id();
    if (IsInSession(processes, id, watched)) {
        KillSession(processes, watched);
    } else {
        ::kill(id, SIGKILL);
    }
}

}  // namespace kivu::hosts
