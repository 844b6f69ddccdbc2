#pragma once

#include "forms/controls.h"
#include "view/mirror.h"

namespace kivu::view {

// Text on the window, plain, cut with dots where it does not fit. A label that can be clicked looks
// like a quiet tab; one whose back colour is not its window's is the marked one.
class LabelMirror : public Mirror {
 public:
    LabelMirror(forms::Label& label, QWidget* parent, MirrorHost& host);

    void Apply(forms::Aspect aspect) override;
    QMargins Overhang() const override;

 protected:
    void ApplyColors() override;

 private:
    forms::Label& label;
};

}  // namespace kivu::view
