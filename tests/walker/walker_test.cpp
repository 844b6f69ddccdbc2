#include <cstdlib>
#include <gtest/gtest.h>
#include <map>

#include "walker/walk.h"

namespace kivu::walker {
namespace {

constexpr int stepsOfASession = 60;

std::uint64_t FromEnvironment(const char* name, std::uint64_t otherwise) {
    const char* text = std::getenv(name);
    return text && *text ? std::strtoull(text, nullptr, 10) : otherwise;
}

// Walks and tells of the first failure of each invariant, in its shortest session.
void WalkSeeds(std::uint64_t first, std::uint64_t count) {
    std::map<std::string, int> failures;
    for (std::uint64_t seed = first; seed < first + count; ++seed) {
        Session session = NewSession(seed);
        const auto failure = Walk(session, stepsOfASession);
        if (!failure) continue;
        if (++failures[failure->invariant] > 1) continue;
        const Session shortest = Shrink(session, *failure);
        const auto last = Replay(shortest);
        ADD_FAILURE() << Report(shortest, last ? *last : *failure);
    }
    for (const auto& [invariant, times] : failures)
        ADD_FAILURE() << invariant << ": " << times << " of " << count << " sessions";
}

TEST(Walker, FixedSeeds) {
    WalkSeeds(1, 150);
}

// KIVU_WALKER_SEED is the first seed, KIVU_WALKER_SESSIONS how many.
TEST(Walker, FreshSeeds) {
    const std::uint64_t count = FromEnvironment("KIVU_WALKER_SESSIONS", 0);
    if (count == 0) GTEST_SKIP() << "KIVU_WALKER_SESSIONS asks for none";
    WalkSeeds(FromEnvironment("KIVU_WALKER_SEED", 1000), count);
}

}  // namespace
}  // namespace kivu::walker
