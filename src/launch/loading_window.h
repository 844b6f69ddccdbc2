#pragma once

#include <functional>

#include "launch/loading_form.h"
#include "launch/loading_info.h"

namespace kivu::launch {

// The loading screen, made anew for each launch that finds none.
class LoadingWindow {
 public:
    LoadingWindow(core::Form1& form, LoadingInfo::Services services,
                  LoadingInfo::Routines routines);

    LoadingForm& GetForm() { return form; }

    // Asked for a key that this window gets, which a click may give the keyboard.
    std::function<bool(const forms::Key&)> takesKey;

 private:
    void JoinEvents();

    LoadingForm form;
    LoadingInfo routines;
};

}  // namespace kivu::launch
