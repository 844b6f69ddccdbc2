#pragma once

#include <chrono>

namespace kivu::platform {

struct TimeOfDay {
    int hour = 0;
    int minute = 0;
    int second = 0;
};

// Wall clock for what the user sees and waits for; the steady one for pacing inside long loops.
class Clock {
 public:
    virtual ~Clock() = default;
    virtual TimeOfDay Now() const = 0;
    virtual std::chrono::milliseconds Steady() const = 0;
    // A short rest between two looks at the clock. A scripted clock moves on instead.
    virtual void Rest(std::chrono::milliseconds duration) = 0;
};

}  // namespace kivu::platform
