#pragma once

#include "view/mirror.h"
#include "view/pictures.h"

namespace kivu::view {

// A picture box, a frame or an image: a picture, a back colour, a caption, and the place of the
// controls inside. A panel in its window's own colour lets the window show through.
class PanelMirror : public Mirror {
 public:
    PanelMirror(forms::Control& control, QWidget* parent, MirrorHost& host);
    void Apply(forms::Aspect aspect) override;

 protected:
    void ApplyColors() override;
};

}  // namespace kivu::view
