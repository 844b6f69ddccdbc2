#pragma once

#include "platform/desktop.h"

namespace kivu::platform {

class QtBeeper : public Beeper {
 public:
    void Beep() override;
};

}  // namespace kivu::platform
