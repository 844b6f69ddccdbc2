#pragma once

namespace kivu::platform {

class Beeper {
 public:
    virtual ~Beeper() = default;
    virtual void Beep() = 0;
};

}  // namespace kivu::platform
