#include "library/cache_crew.h"

#include <chrono>
#include <system_error>
#include <utility>

namespace kivu::library {

namespace {

// The caller looks after other things at least so often.
constexpr std::chrono::milliseconds longestWait{10};

}  // namespace

CacheCrew::CacheCrew(std::size_t limit) : limit(limit) {
    try {
        helper = std::thread([this] { Help(); });
    } catch (const std::system_error&) {
        // Without a thread to be had the caller does it all.
    }
}

CacheCrew::~CacheCrew() {
    {
        const std::lock_guard guard(lock);
        stop = true;
    }
    changed.notify_all();
    if (helper.joinable()) helper.join();
}

void CacheCrew::Add(std::unique_ptr<CacheSearch> search) {
    {
        const std::lock_guard guard(lock);
        jobs.emplace_back().search = std::move(search);
    }
    changed.notify_all();
}

CacheCrew::Job* CacheCrew::FirstWaiting(std::list<Job>::iterator from) {
    for (; from != jobs.end(); ++from) {
        if (from->state == Job::State::waiting) return &*from;
    }
    return nullptr;
}

void CacheCrew::Help() {
    std::unique_lock guard(lock);
    for (;;) {
        Job* job = nullptr;
        changed.wait(guard, [&] {
            // The front is the caller's.
            job = jobs.empty() ? nullptr : FirstWaiting(std::next(jobs.begin()));
            return stop || job;
        });
        if (stop) return;
        job->state = Job::State::helpers;
        guard.unlock();
        try {
            job->found = job->search->Rest(limit, stop);
        } catch (...) {
            job->failure = std::current_exception();
        }
        guard.lock();
        job->state = Job::State::done;
        changed.notify_all();
    }
}

// False: the helper is at it.
bool CacheCrew::ClaimFront() {
    const std::lock_guard guard(lock);
    Job::State& state = jobs.front().state;
    if (state == Job::State::waiting) state = Job::State::callers;
    return state != Job::State::helpers;
}

CacheCrew::Progress CacheCrew::Next(CacheSearch::Part& part) {
    if (!ClaimFront()) {
        GoAhead();
        return Progress::busy;
    }
    Job& front = jobs.front();
    if (ahead == &front) ahead = nullptr;
    if (front.failure) std::rethrow_exception(front.failure);
    if (auto next = NextOf(front)) {
        part = *std::move(next);
        return Progress::found;
    }
    const std::lock_guard guard(lock);
    jobs.pop_front();
    return Progress::through;
}

std::optional<CacheSearch::Part> CacheCrew::NextOf(Job& front) {
    if (front.taken < front.found.size()) return std::move(front.found[front.taken++]);
    CacheSearch::Part part;
    if (front.through || !front.search->Next(part)) return {};
    return part;
}

// One block of a cache behind the front, or a wait for the helper where there is none to do.
void CacheCrew::GoAhead() {
    std::unique_lock guard(lock);
    if (!ahead || ahead->through) {
        ahead = FirstWaiting(std::next(jobs.begin()));
        if (ahead) ahead->state = Job::State::callers;
    }
    if (!ahead || ahead->hits > limit) {
        changed.wait_for(guard, longestWait,
                         [this] { return jobs.front().state != Job::State::helpers; });
        return;
    }
    guard.unlock();
    CacheSearch::Part part;
    ahead->through = !ahead->search->Next(part);
    if (ahead->through) return;
    ahead->hits += part.hits.size();
    ahead->found.push_back(std::move(part));
}

}  // namespace kivu::library
