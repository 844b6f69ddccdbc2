#pragma once

#include <string>
#include <vector>

#include "forms/controls.h"
#include "forms/window_host.h"
#include "view/sample_form.h"

namespace kivu::tests {

// A small window over the main one.
struct BoxForm : forms::Form {
    explicit BoxForm(forms::WindowHost& host)
        : forms::Form("Box", forms::Toolkit{&measure, nullptr, nullptr, &host}) {
        SetHasFrame(false);
        Move(0, 0, 4500, 3000);
        cancel.Move(2400, 2400, 1500, 450);
        ok.Move(300, 2400, 1500, 450);
        text.Move(300, 300, 3000, text.Height());
        ok.onClick = [this] {
            log.push_back("ok");
            SetVisible(false);
        };
        cancel.onClick = [this] { Unload(); };
        SetEnterButton(&ok);
        SetEscapeButton(&cancel);
    }

    forms::CommandButton cancel{this, "Cancel"};
    forms::CommandButton ok{this, "Ok"};
    forms::TextBox text{this, "Text"};
    forms::Timer timer{this, "Timer", 1, false};
    std::vector<std::string> log;
};

}  // namespace kivu::tests
