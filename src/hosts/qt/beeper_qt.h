#pragma once

#include "platform/beeper.h"

namespace kivu::hosts {

class QtBeeper : public platform::Beeper {
 public:
    void Beep() override;
};

}  // namespace kivu::hosts
