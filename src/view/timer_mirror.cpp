#include "view/timer_mirror.h"

namespace kivu::view {

TimerMirror::TimerMirror(forms::Timer& control, MirrorHost& host)
    : Mirror(control, host), model(control) {
    QObject::connect(&timer, &QTimer::timeout, &timer, [this] {
        const RepaintRest::Handler running(this->host.Rest());
        model.Tick();
    });
    Apply(forms::Aspect::timer);
}

void TimerMirror::Apply(forms::Aspect aspect) {
    if (aspect != forms::Aspect::timer && aspect != forms::Aspect::enabled) return;
    const bool on = model.Enabled() && model.Interval() > 0;
    if (!on) {
        timer.stop();
    } else if (!timer.isActive() || timer.interval() != model.Interval()) {
        timer.start(model.Interval());
    }
}

}  // namespace kivu::view
