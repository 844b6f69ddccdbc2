// The shortest session that fails alike, by delta debugging over its steps and their commands.

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

// Answers that change nothing, and what has come in the middle without a need.
void DropCommands(Session& best, const std::string& invariant) {
    for (std::size_t step = 1; step < best.steps.size(); ++step) {
        // Without what closes a window all that follows would be done in it.
        const Commands& all = best.steps[step].commands;
        if (!all.empty() && all.front()[0] == "call") continue;
        for (std::size_t i = all.size(); i-- > 0;) {
            Session tried = best;
            auto& commands = tried.steps[step].commands;
            commands.erase(commands.begin() + static_cast<std::ptrdiff_t>(i));
            std::size_t at = 0;
            if (!StillFails(tried, invariant, &at)) continue;
            if (at < tried.steps.size()) tried.steps.resize(at + 1);
            best = std::move(tried);
            if (step >= best.steps.size()) return;
        }
    }
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
    DropCommands(best, failure.invariant);
    return best;
}

}  // namespace kivu::walker
