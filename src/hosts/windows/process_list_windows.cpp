#include "hosts/windows/process_list_windows.h"

#include <unordered_map>
#include <unordered_set>

#include "hosts/windows/handle.h"
#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"

namespace kivu::hosts {

namespace {

std::optional<std::vector<SnapshotRow>> SystemRows() {
    const Handle snapshot(::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    if (!snapshot || ::Process32FirstW(snapshot.Get(), &entry) == 0) return std::nullopt;
    std::vector<SnapshotRow> rows;
    do {
        // Names come without a directory, save from a few odd drivers.
        const std::wstring_view path = entry.szExeFile;
        rows.push_back({entry.th32ProcessID, entry.th32ParentProcessID,
                        Narrow(path.substr(path.find_last_of(L"\\/") + 1))});
    } while (::Process32NextW(snapshot.Get(), &entry) != 0);
    return rows;
}

std::optional<std::uint64_t> StartTime(std::uint32_t id) {
    const Handle process(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
    FILETIME start{}, end{}, kernel{}, user{};
    if (!process || ::GetProcessTimes(process.Get(), &start, &end, &kernel, &user) == 0)
        return std::nullopt;
    return std::uint64_t{start.dwHighDateTime} << 32 | start.dwLowDateTime;
}

std::optional<std::uint32_t> Session(std::uint32_t id) {
    DWORD session = 0;
    if (::ProcessIdToSessionId(id, &session) == 0) return std::nullopt;
    return session;
}

// The launcher and the processes that it hangs from. A parent that has ended leaves an id that the
// emulator itself may get: what is younger than its child is no parent.
std::unordered_set<std::uint32_t> OwnLine(const std::vector<SnapshotRow>& rows, std::uint32_t own,
                                          const ProcessQuestions& ask) {
    std::unordered_map<std::uint32_t, std::uint32_t> parents;
    for (const SnapshotRow& row : rows)
        parents.emplace(row.id, row.parent);
    std::unordered_set<std::uint32_t> line{own};
    auto born = ask.startTime(own);
    for (auto child = parents.find(own); child != parents.end() && born;) {
        const auto parent = parents.find(child->second);
        if (parent == parents.end()) break;
        const auto parentBorn = ask.startTime(parent->first);
        if (!parentBorn || *parentBorn > *born || !line.insert(parent->first).second) break;
        born = parentBorn;
        child = parent;
    }
    return line;
}

}  // namespace

std::vector<platform::ProcessEntry> EntriesOf(const std::vector<SnapshotRow>& rows,
                                              std::uint32_t own, const ProcessQuestions& ask) {
    const auto ownLine = OwnLine(rows, own, ask);
    const auto ownSession = ask.session(own);
    std::vector<platform::ProcessEntry> entries;
    entries.reserve(rows.size());
    for (const SnapshotRow& row : rows) {
        // The idle process, which is none.
        if (row.id == 0 || row.name.empty()) continue;
        platform::ProcessEntry entry;
        entry.id = static_cast<std::int32_t>(row.id);
        entry.names = {row.name};
        const auto session = ask.session(row.id);
        entry.foreign =
            ownLine.contains(row.id) || (session && ownSession && *session != *ownSession);
        entries.push_back(std::move(entry));
    }
    return entries;
}

std::optional<std::vector<platform::ProcessEntry>> WindowsProcessList::Snapshot() const {
    const auto rows = SystemRows();
    if (!rows) return std::nullopt;
    return EntriesOf(*rows, ::GetCurrentProcessId(), {StartTime, Session});
}

void WindowsProcessList::Kill(std::int32_t id) {
    const auto wanted = static_cast<DWORD>(id);
    if (id == 0 || wanted == ::GetCurrentProcessId()) return;
    const Handle process(::OpenProcess(PROCESS_TERMINATE, FALSE, wanted));
    if (process) ::TerminateProcess(process.Get(), 1);
}

}  // namespace kivu::hosts
