#pragma once

#include <QTimer>

#include "forms/controls.h"
#include "view/mirror.h"

namespace kivu::view {

// Keeps a timer's time.
class TimerMirror : public Mirror {
 public:
    TimerMirror(forms::Timer& timer, MirrorHost& host);
    void Apply(forms::Aspect aspect) override;

 private:
    forms::Timer& model;
    QTimer timer;
};

}  // namespace kivu::view
