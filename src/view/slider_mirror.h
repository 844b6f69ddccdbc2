#pragma once

#include <QSlider>

#include "forms/controls.h"
#include "view/mirror.h"

namespace kivu::view {

class SliderMirror : public Mirror {
 public:
    SliderMirror(forms::Slider& slider, QWidget* parent, MirrorHost& host);
    void Apply(forms::Aspect aspect) override;
    bool UsesMouse() const override { return true; }

 private:
    forms::Slider& model;
    QPointer<QSlider> slider;
};

}  // namespace kivu::view
