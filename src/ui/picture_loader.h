#pragma once

#include <functional>
#include <string>

#include "forms/controls.h"

namespace kivu::ui {

// How a picture file comes onto a control. Files are a stranger's: what is too large, damaged, no
// picture or no regular file is not shown, and costs neither memory nor time.
class PictureLoading {
 public:
    virtual ~PictureLoading() = default;

    // Takes what `target` shows away, and shows the file there in its natural size (15 twips a
    // pixel), which the control takes on. `done` is told whether a picture is there now: before
    // this returns, or later on the window's thread. It is not called any more once another load,
    // or Drop, has come for the same target.
    virtual void Load(const std::string& path, forms::PictureBox& target,
                      std::function<void(bool shown)> done) = 0;
    // What is under way for the target comes to nothing.
    virtual void Drop(forms::PictureBox& target) = 0;

    // Whether the file is a picture that can be shown, by its header. If so `receive` gets it, now
    // or later on the window's thread, unless another one has been asked for with the same purpose.
    virtual bool LoadSkin(const std::string& path, const std::string& purpose,
                          std::function<void(forms::Picture)> receive) = 0;
};

}  // namespace kivu::ui
