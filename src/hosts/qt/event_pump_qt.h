#pragma once

#include "platform/event_pump.h"

namespace kivu::hosts {

// Runs the events that wait, for a bounded time. Handlers that pump in their turn are bounded too:
// an event that pumps for each event it gets must not eat the stack.
class QtEventPump : public platform::EventPump {
 public:
    void DoEvents() override;

 private:
    int depth = 0;
};

}  // namespace kivu::hosts
