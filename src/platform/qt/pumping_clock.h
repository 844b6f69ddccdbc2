#pragma once

#include "platform/clock.h"

namespace kivu::platform {

// A clock in whose rests the window stays alive. For waits that no routine pumps events in.
class PumpingClock : public Clock {
 public:
    explicit PumpingClock(Clock& clock) : clock(clock) {}
    TimeOfDay Now() const override { return clock.Now(); }
    std::chrono::milliseconds Steady() const override { return clock.Steady(); }
    void Rest(std::chrono::milliseconds duration) override;

 private:
    Clock& clock;
};

}  // namespace kivu::platform
