#pragma once

#include "platform/clock.h"

namespace kivu::hosts {

class LinuxClock : public platform::Clock {
 public:
    // In the user's time zone.
    platform::TimeOfDay Now() const override;
    std::chrono::milliseconds Steady() const override;
    // Really sleeps; not at all for zero or less.
    void Rest(std::chrono::milliseconds duration) override;
};

}  // namespace kivu::hosts
