#pragma once

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <unordered_map>
#include <vector>

#include "platform/file_system.h"

namespace kivu::library {

// Reads directories while the caller works on those before them.
//
// A thread that lives from the first Expect to the end of this object takes the directories that
// are expected, the last told one first, and lays down what it has read; all that both touch is
// changed under the lock. All members are for the caller's thread. The destructor waits for the
// directory that is being read.
class ReadAhead {
 public:
    using Listing = platform::FileSystem::Listing;

    explicit ReadAhead(const platform::FileSystem& files) : files(files) {}
    ~ReadAhead();
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    // These will be asked for, the last one first. Nothing is read ahead of a file system that
    // serves one thread only.
    void Expect(const std::vector<std::string>& paths);
    // The directory, read ahead or now. Empty: it cannot be read.
    std::optional<Listing> Read(const std::string& path);

    // Nothing more is read ahead while so many names wait for the caller.
    static constexpr std::size_t mostNames = 20000;

 private:
    void Work();
    bool MayWork() const { return !expected.empty() && waitingNames < mostNames; }

    const platform::FileSystem& files;
    std::mutex lock;
    std::condition_variable changed;
    std::vector<std::string> expected;
    std::optional<std::string> inWork;
    std::unordered_map<std::string, std::optional<Listing>> done;
    std::size_t waitingNames = 0;
    bool stop = false;
    std::thread thread;
};

}  // namespace kivu::library
