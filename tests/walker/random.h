#pragma once

#include <cstdint>
#include <vector>

namespace kivu::walker {

// Equal seeds give equal numbers on every host (splitmix64).
class Random {
 public:
    explicit Random(std::uint64_t seed) : state(seed) {}

    std::uint64_t Next() {
        std::uint64_t mixed = state += 0x9e3779b97f4a7c15U;
        mixed = (mixed ^ mixed >> 30) * 0xbf58476d1ce4e5b9U;
        mixed = (mixed ^ mixed >> 27) * 0x94d049bb133111ebU;
        return mixed ^ mixed >> 31;
    }
    // 0 up to count - 1; 0 for a count of 0.
    int Below(std::size_t count) { return count == 0 ? 0 : static_cast<int>(Next() % count); }
    bool Chance(int percent) { return Below(100) < percent; }
    template <typename Value>
    const Value& Pick(const std::vector<Value>& values) {
        return values[static_cast<std::size_t>(Below(values.size()))];
    }

 private:
    std::uint64_t state;
};

}  // namespace kivu::walker
