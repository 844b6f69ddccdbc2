#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "hosts/linux/name_index.h"
#include "platform/file_system.h"

namespace kivu::hosts {

// The indexes of the directories that have been looked into last. One is read anew when its
// directory has changed since: a directory's time of change tells, but only one that was old enough
// when it was read, since file systems count it in steps of up to two seconds. Threads may call all
// of it.
class NameIndexes {
 public:
    // All indexes together; the one that was asked for longest ago goes first.
    static constexpr std::size_t maxBytes = std::size_t{64} << 20;

    using Clock = std::function<std::int64_t()>;  // nanoseconds since 1970
    explicit NameIndexes(Clock clock = {}, std::size_t most = maxBytes);

    // `read` reads the directory. Null: it cannot be read.
    using Read = std::function<std::optional<platform::FileSystem::Listing>(const std::string&)>;
    std::shared_ptr<const NameIndex> Of(const std::string& directory, const Read& read);
    // What the index says of the directory is not so.
    void Forget(const std::string& directory);

    std::size_t Bytes() const;
    int Readings() const;

 private:
    struct Stamp {
        std::uint64_t device = 0, inode = 0;
        std::int64_t changed = 0;  // nanoseconds since 1970
        bool operator==(const Stamp&) const = default;
    };
    struct Slot {
        std::mutex reading;
        std::shared_ptr<const NameIndex> index;
        Stamp stamp;
        std::int64_t readAt = 0;
        // Of the list of all: guarded by its lock.
        std::size_t bytes = 0;
        std::uint64_t used = 0;
    };

    static std::optional<Stamp> StampOf(const std::string& directory);
    bool Holds(const Slot& slot, const Stamp& stamp) const;
    std::shared_ptr<Slot> SlotOf(const std::string& directory);
    // One that is too large is used once and not kept.
    void Keep(const std::string& directory, Slot& slot, std::size_t size);

    Clock clock;
    std::size_t most;
    mutable std::mutex lock;
    std::map<std::string, std::shared_ptr<Slot>> indexes;
    std::size_t bytes = 0;
    std::uint64_t uses = 0;
    int readings = 0;
};

}  // namespace kivu::hosts
