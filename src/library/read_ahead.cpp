#include "library/read_ahead.h"

#include <algorithm>
#include <new>
#include <system_error>
#include <utility>

namespace kivu::library {

namespace {

std::size_t Names(const std::optional<ReadAhead::Listing>& listing) {
    return listing ? listing->items.size() : 0;
}

}  // namespace

ReadAhead::~ReadAhead() {
    {
        const std::lock_guard guard(lock);
        stop = true;
    }
    changed.notify_all();
    if (thread.joinable()) thread.join();
}

void ReadAhead::Expect(const std::vector<std::string>& paths) {
    if (paths.empty() || !files.ServesThreads()) return;
    {
        const std::lock_guard guard(lock);
        expected.insert(expected.end(), paths.begin(), paths.end());
    }
    changed.notify_all();
    if (thread.joinable()) return;
    try {
        thread = std::thread([this] { Work(); });
    } catch (const std::system_error&) {
        // Without a thread to be had, all is read when it is asked for.
    }
}

void ReadAhead::Work() {
    std::unique_lock guard(lock);
    for (;;) {
        changed.wait(guard, [this] { return stop || MayWork(); });
        if (stop) return;
        inWork = std::move(expected.back());
        expected.pop_back();
        const std::string path = *inWork;
        guard.unlock();
        std::optional<Listing> listing;
        bool failed = false;
        try {
            listing = files.ReadDirectory(path);
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        guard.lock();
        inWork.reset();
        // The caller tries again what the memory has not sufficed for, and fails for itself.
        if (!failed) {
            waitingNames += Names(listing);
            done.insert_or_assign(path, std::move(listing));
        }
        changed.notify_all();
    }
}

std::optional<ReadAhead::Listing> ReadAhead::Read(const std::string& path) {
    {
        std::unique_lock guard(lock);
        changed.wait(guard, [&] { return inWork != path; });
        if (auto found = done.extract(path)) {
            waitingNames -= Names(found.mapped());
            changed.notify_all();
            return std::move(found.mapped());
        }
        const auto last = std::find(expected.rbegin(), expected.rend(), path);
        if (last != expected.rend()) expected.erase(std::next(last).base());
    }
    return files.ReadDirectory(path);
}

}  // namespace kivu::library
