#pragma once

#include <string>
#include <vector>

#include "forms/controls.h"
#include "forms/directory_controls.h"
#include "forms/form.h"
#include "forms/list_control.h"
#include "view/text_measure.h"

namespace kivu::tests {

inline const view::TextMeasure measure;

// A window with one control of each kind that a user can touch.
struct SampleForm : forms::Form {
    SampleForm() : forms::Form("Sample", forms::Toolkit{&measure, nullptr, nullptr}) {
        SetHasFrame(false);
        SetToolWindow(false);
        SetCornerRadius(30);
        SetCaption("Sample");
        SetTabOrder(forms::TabOrder::asCreated);
        Move(1500, 1500, 12000, 9000);
        list.Move(300, 300, 4500, 4500);
        other.Move(5100, 300, 3000, 3000);
        combo.Move(300, 5100, 3000, combo.Height());
        choice.SetChoice(true);
        choice.SetVisible(false);
        choice.Move(300, 6600, 3000, choice.Height());
        text.Move(300, 5700, 3000, text.Height());
        label.Move(5100, 3600, 3000, 300);
        label.SetCaption("Label");
        button.Move(5100, 4200, 1500, 450);
        button.SetCaption("&Go");
        check.Move(5100, 4800, 1500, 300);
        check.SetCaption("Check");
        slider.Move(5100, 5700, 3000, 300);
        frame.Move(8400, 300, 3000, 3000);
        inner.Move(150, 450, 1500, 450);
        for (int i = 0; i < 2; ++i) {
            options[i].Move(150, 1050 + i * 450, 1500, 300);
        }
    }

    forms::ListBox list{this, "List", forms::ListControl::Order::asAdded};
    forms::ListBox other{this, "Other", forms::ListControl::Order::sorted};
    forms::ComboBox combo{this, "Combo"};
    // Not shown until a test wants it.
    forms::ComboBox choice{this, "Choice"};
    forms::TextBox text{this, "Text"};
    forms::Label label{this, "Label"};
    forms::CommandButton button{this, "Button"};
    forms::CheckBox check{this, "Check", 0};
    forms::Slider slider{this, "Slider"};
    forms::Frame frame{this, "Frame"};
    forms::TextBox inner{&frame, "Inner"};
    forms::OptionButton options[2] = {{&frame, "Option", 0}, {&frame, "Option", 1}};
    forms::Timer timer{this, "Timer", 10, false};

    std::vector<std::string> log;
    std::function<void()> Note(std::string what) {
        return [this, what = std::move(what)] { log.push_back(what); };
    }

    void Fill(int rows) {
        for (int i = 0; i < rows; ++i) {
            list.AddItem("Row " + std::to_string(i));
        }
    }
};

}  // namespace kivu::tests
