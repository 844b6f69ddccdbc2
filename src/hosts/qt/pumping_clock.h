#pragma once

#include "platform/clock.h"

namespace kivu::hosts {

// A clock in whose rests the window stays alive. For waits that no routine pumps events in.
class PumpingClock : public platform::Clock {
 public:
    explicit PumpingClock(platform::Clock& clock) : clock(clock) {}
    platform::TimeOfDay Now() const override { return clock.Now(); }
    std::chrono::milliseconds Steady() const override { return clock.Steady(); }
    void Rest(std::chrono::milliseconds duration) override;

 private:
    platform::Clock& clock;
};

}  // namespace kivu::hosts
