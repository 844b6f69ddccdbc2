#include "hosts/linux/name_indexes.h"

#include <algorithm>
#include <ctime>
#include <sys/stat.h>
#include <utility>

namespace kivu::hosts {

namespace {

constexpr std::int64_t second = 1'000'000'000;
// A directory's time of change may be as coarse as this on FAT and on network disks, and as this on
// the others.
constexpr std::int64_t coarsest = 2 * second;
constexpr std::int64_t coarse = second / 20;

std::int64_t Nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * second + time.tv_nsec;
}

// The clock that file systems stamp their files with.
std::int64_t Now() {
    timespec time{};
    ::clock_gettime(CLOCK_REALTIME, &time);
    return Nanoseconds(time);
}

}  // namespace

NameIndexes::NameIndexes(Clock clock, std::size_t most)
    : clock(clock ? std::move(clock) : Clock(&Now)), most(most) {
}

std::optional<NameIndexes::Stamp> NameIndexes::StampOf(const std::string& directory) {
    struct stat status {};
    if (::stat(directory.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return std::nullopt;
    return Stamp{status.st_dev, status.st_ino, Nanoseconds(status.st_mtim)};
}

bool NameIndexes::Holds(const Slot& slot, const Stamp& stamp) const {
    if (!slot.index || slot.stamp != stamp) return false;
    const std::int64_t age = slot.readAt - stamp.changed;
    if (age >= coarsest) return true;
    // Changed in the same moment: what came after it may have the same time.
    if (age >= -coarse && age < coarse) return false;
    const std::int64_t since = clock() - slot.readAt;
    return since >= 0 && since < coarsest;
}

std::shared_ptr<NameIndexes::Slot> NameIndexes::SlotOf(const std::string& directory) {
    const std::scoped_lock one(lock);
    std::shared_ptr<Slot>& slot = indexes[directory];
    if (!slot) slot = std::make_shared<Slot>();
    slot->used = ++uses;
    return slot;
}

void NameIndexes::Keep(const std::string& directory, Slot& slot, std::size_t size) {
    const std::scoped_lock one(lock);
    ++readings;
    const auto own = indexes.find(directory);
    // Given up meanwhile.
    if (own == indexes.end() || own->second.get() != &slot) return;
    bytes -= std::exchange(slot.bytes, 0);
    if (size > most) {
        indexes.erase(own);
        return;
    }
    slot.bytes = size;
    bytes += size;
    while (bytes > most) {
        const auto oldest = std::min_element(
            indexes.begin(), indexes.end(),
            [](const auto& a, const auto& b) { return a.second->used < b.second->used; });
        bytes -= oldest->second->bytes;
        indexes.erase(oldest);
    }
}

std::shared_ptr<const NameIndex> NameIndexes::Of(const std::string& directory, const Read& read) {
    const auto stamp =
        directory.find('\0') == std::string::npos ? StampOf(directory) : std::nullopt;
    if (!stamp) {
        Forget(directory);
        return nullptr;
    }
    const std::shared_ptr<Slot> slot = SlotOf(directory);
    const std::scoped_lock one(slot->reading);
    if (Holds(*slot, *stamp)) return slot->index;
    // Both before the reading: what changes meanwhile makes it old.
    slot->stamp = *stamp;
    slot->readAt = clock();
    const auto listing = read(directory);
    slot->index = listing ? std::make_shared<const NameIndex>(*listing) : nullptr;
    const std::shared_ptr<const NameIndex> index = slot->index;
    Keep(directory, *slot, index ? index->Bytes() + directory.size() + sizeof(Slot) : sizeof(Slot));
    return index;
}

void NameIndexes::Forget(const std::string& directory) {
    const std::scoped_lock one(lock);
    const auto found = indexes.find(directory);
    if (found == indexes.end()) return;
    bytes -= found->second->bytes;
    indexes.erase(found);
}

std::size_t NameIndexes::Bytes() const {
    const std::scoped_lock one(lock);
    return bytes;
}

int NameIndexes::Readings() const {
    const std::scoped_lock one(lock);
    return readings;
}

}  // namespace kivu::hosts
