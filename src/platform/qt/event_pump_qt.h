#pragma once

#include "platform/desktop.h"

namespace kivu::platform {

// Runs the events that wait, for a bounded time. Handlers that pump in their turn are bounded too:
// an event that pumps for each event it gets must not eat the stack.
class QtEventPump : public EventPump {
 public:
    void DoEvents() override;

 private:
    int depth = 0;
};

}  // namespace kivu::platform
