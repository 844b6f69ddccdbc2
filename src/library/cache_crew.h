#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "library/cache_search.h"

namespace kivu::library {

// Looks through many caches on two cores and gives what is found as if it were one by one.
//
// The caller takes the caches from the front of a row; a helper, a thread that lives as long as
// this object, does those behind the front. While the helper is at the one in front, the caller
// goes ahead too. A search belongs to whoever has claimed it, with all that it has found; claims
// are made, and the helper gives back what it has done, under the lock. All members are for the
// caller's thread. The destructor lets the helper stop at its next block and waits for that.
class CacheCrew {
 public:
    // So many caches are enough for the helper to have always one to do.
    static constexpr std::size_t enough = 4;

    // Nobody goes ahead in a cache with more hits than `limit`.
    explicit CacheCrew(std::size_t limit);
    ~CacheCrew();
    CacheCrew(const CacheCrew&) = delete;
    CacheCrew& operator=(const CacheCrew&) = delete;

    // At the end of the row. What the search uses lives longer than this object.
    void Add(std::unique_ptr<CacheSearch> search);
    std::size_t Count() const { return jobs.size(); }

    enum class Progress { found, busy, through };
    // What is next in the front cache. Busy: nothing yet, and some time has gone by. Through: it
    // has left the row. Not for an empty row.
    Progress Next(CacheSearch::Part& part);

 private:
    struct Job {
        enum class State { waiting, callers, helpers, done };

        std::unique_ptr<CacheSearch> search;
        State state = State::waiting;          // guarded
        std::vector<CacheSearch::Part> found;  // ahead of its turn
        std::size_t taken = 0;                 // of these
        std::size_t hits = 0;
        bool through = false;
        std::exception_ptr failure;
    };

    void Help();
    Job* FirstWaiting(std::list<Job>::iterator from);
    bool ClaimFront();
    void GoAhead();
    std::optional<CacheSearch::Part> NextOf(Job& front);

    const std::size_t limit;
    std::mutex lock;
    std::condition_variable changed;
    std::list<Job> jobs;   // changed by the caller alone; guarded, as the helper looks at it
    Job* ahead = nullptr;  // the caller's own, behind the front
    std::atomic<bool> stop = false;
    std::thread helper;
};

}  // namespace kivu::library
