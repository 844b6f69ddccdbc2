#include "view/slider_mirror.h"

#include <QSignalBlocker>

namespace kivu::view {

SliderMirror::SliderMirror(forms::Slider& control, QWidget* parent, MirrorHost& host)
    : Mirror(control, host), model(control), slider(new QSlider(Qt::Horizontal, parent)) {
    QObject::connect(slider, &QSlider::valueChanged, slider,
                     [this](int value) { model.SetValue(value); });
    Adopt(slider);
}

void SliderMirror::Apply(forms::Aspect aspect) {
    Mirror::Apply(aspect);
    if (!slider) return;
    if (aspect == forms::Aspect::geometry) {
        const bool upright = model.Height() > model.Width();
        slider->setOrientation(upright ? Qt::Vertical : Qt::Horizontal);
    }
    if (aspect != forms::Aspect::text) return;
    const QSignalBlocker quiet(slider);
    slider->setRange(model.Min(), model.Max());
    slider->setValue(model.Value());
}

}  // namespace kivu::view
