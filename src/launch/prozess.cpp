#include "launch/prozess.h"

#include <algorithm>

#include "text/paths.h"
#include "text/text.h"

namespace kivu::launch {

namespace {

bool Carries(const platform::ProcessEntry& entry, const std::string& name) {
    return std::any_of(entry.names.begin(), entry.names.end(),
                       [&](const std::string& own) { return text::EqualsNoCase(own, name); });
}

bool Contains(const platform::ProcessEntry& entry, const std::string& name) {
    return std::any_of(entry.names.begin(), entry.names.end(),
                       [&](const std::string& own) { return text::ContainsNoCase(own, name); });
}

bool Matches(const platform::ProcessEntry& entry, const std::string& name, Reach reach) {
    if (entry.foreign) return false;
    return Carries(entry, name) || (reach == Reach::andLaunch && entry.ofLaunch);
}

// A process of the last launch: the one that carries the name, failing that the first. 0 for none.
std::int32_t FindOfLaunch(const std::vector<platform::ProcessEntry>& entries,
                          const std::string& name) {
    std::int32_t first = 0;
    for (const auto& entry : entries) {
        if (!entry.ofLaunch || entry.foreign) continue;
        if (Carries(entry, name)) return entry.id;
        if (first == 0) first = entry.id;
    }
    return first;
}

}  // namespace

std::int32_t Prozess::FindProcessId(const std::string& name, Reach reach) const {
    const std::string own = text::GetFileNameOnly(name);
    const auto snapshot = list.Snapshot();
    if (own.empty() || !snapshot) return 0;
    if (reach == Reach::andLaunch) {
        // Another copy of the emulator may have been running before.
        if (const std::int32_t launched = FindOfLaunch(*snapshot, own)) return launched;
    }
    std::int32_t similar = 0;
    for (const auto& entry : *snapshot) {
        if (Matches(entry, own, reach)) return entry.id;
        if (!entry.foreign && Contains(entry, own)) similar = entry.id;
    }
    return similar;
}

bool Prozess::IsProcessRunning(const std::string& name, Reach reach) const {
    const std::string own = text::GetFileNameOnly(name);
    const auto snapshot = list.Snapshot();
    if (own.empty() || !snapshot) return false;
    return std::any_of(
        snapshot->begin(), snapshot->end(),
        [&](const platform::ProcessEntry& entry) { return Matches(entry, own, reach); });
}

}  // namespace kivu::launch
