#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "walker/actions.h"
#include "walker/invariants.h"

namespace kivu::walker {

// A session as it can be played again: what it starts with, and each step by its commands.
struct Session {
    std::uint64_t seed = 0;
    Collection collection;
    std::vector<Step> steps;
    std::set<std::string> leftOut{};  // invariants by name
};

struct Failure {
    std::size_t step = 0;  // the number of steps when the session was at its end
    std::string invariant, why, what;
    Json command;
};

// Walks until an invariant fails, the program ends or so many steps are done. The session is left
// with the steps that were gone.
std::optional<Failure> Walk(Session& session, int steps);
Session NewSession(std::uint64_t seed);

// Plays the session's steps. With `taken`, answers that no box took are left out of its steps.
std::optional<Failure> Replay(const Session& session, std::vector<Step>* taken = nullptr);

// The shortest session that fails in the same invariant, as far as leaving out steps leads.
Session Shrink(const Session& session, const Failure& failure);

// The failure in words, the layout and the steps as lines for kivu-drive.
std::string Report(const Session& session, const Failure& failure);

}  // namespace kivu::walker
