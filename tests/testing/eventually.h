#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace kivu::testing {

// Looks again and again until the condition holds; false after half a minute.
inline bool Eventually(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

}  // namespace kivu::testing
