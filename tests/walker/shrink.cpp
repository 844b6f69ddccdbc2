// The shortest session that fails alike, by delta debugging over its steps.

#include <algorithm>

#include "walker/walk.h"

namespace kivu::walker {

namespace {

using Steps = std::vector<Step>;

bool StillFails(const Session& session, const std::string& invariant, std::size_t* at) {
    const auto failure = Replay(session);
    if (!failure || failure->invariant != invariant) return false;
    *at = failure->step;
    return true;
}

Session Without(const Session& session, std::size_t first, std::size_t count) {
    Session shorter = session;
    const auto from = shorter.steps.begin() + static_cast<std::ptrdiff_t>(first);
    shorter.steps.erase(from, from + static_cast<std::ptrdiff_t>(count));
    return shorter;
}

}  // namespace

Session Shrink(const Session& session, const Failure& failure) {
    Session best = session;
    if (failure.step < best.steps.size()) best.steps.resize(failure.step + 1);
    // The first step starts the program and stays.
    for (std::size_t part = best.steps.size() / 2; part >= 1;) {
        bool shorter = false;
        for (std::size_t first = 1; first < best.steps.size();) {
            const std::size_t count = std::min(part, best.steps.size() - first);
            Session tried = Without(best, first, count);
            std::size_t at = 0;
            if (!StillFails(tried, failure.invariant, &at)) {
                first += count;
                continue;
            }
            if (at < tried.steps.size()) tried.steps.resize(at + 1);
            best = std::move(tried);
            shorter = true;
        }
        if (shorter && part == 1) continue;
        part /= 2;
    }
    return best;
}

}  // namespace kivu::walker
