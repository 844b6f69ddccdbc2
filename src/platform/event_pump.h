#pragma once

namespace kivu::platform {

// The user interface's turn inside a long routine.
class EventPump {
 public:
    virtual ~EventPump() = default;
    virtual void DoEvents() = 0;
};

}  // namespace kivu::platform
