#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "forms/controls.h"
#include "platform/dialogs.h"
#include "platform/system_colors.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::ui {

class WindowColors;

// What the colour picker is made of; the window that shows it holds this, and ColorSelect works it.
struct ColorSelectControls {
    static constexpr int width = 5400, height = 2910;

    explicit ColorSelectControls(forms::Container* parent);

    forms::Frame frame;
    forms::OptionButton Option1;  // the back colour
    forms::OptionButton Option2;  // the colour of the writing
    std::array<forms::Label, 3> SliderName;
    std::array<forms::Slider, 3> ColSlider1;  // red, green, blue
    forms::PictureBox BackGroundPix;          // has both colours
    forms::Label SampleText;
    // The lines of a skin's profile that would keep the colours; to be copied.
    forms::TextBox SkinLines;
};

// Picks a back colour and a colour of the writing. Each step shows in the main window at once, and
// nothing is written.
class ColorSelect {
 public:
    struct Services {
        platform::Dialogs& dialogs;
        const platform::SystemColors& systemColors;
    };

    // Joins the controls' events.
    ColorSelect(ColorSelectControls& controls, core::Form1& main, WindowColors& windowColors,
                Services services);
    ColorSelect(const ColorSelect&) = delete;
    ColorSelect& operator=(const ColorSelect&) = delete;

    // From the program: the picker shows the colour, and nothing else happens.
    void SetBackColor(std::int32_t NewValue);
    void SetForeColor(std::int32_t NewValue);
    std::int32_t GetBackColor() const;
    std::int32_t GetForeColor() const;

    void ColSlider1_Change();
    void Option_Click();
    // F2, for those who have no mouse.
    void Option_KeyDown(forms::OptionButton& option, forms::Key& key);
    // Asks for the option's colour as text.
    void Option_DblClick(forms::OptionButton& option);

    // The user has picked a colour.
    std::function<void()> onChange;

 private:
    bool BackIsChosen() const { return controls.Option1.Value() != 0; }
    forms::Color Chosen() const;
    void Show(forms::Color back, forms::Color fore);
    void ShowOnSliders();
    void Pick(forms::Color color);

    ColorSelectControls& controls;
    core::Form1& main;
    WindowColors& windowColors;
    platform::Dialogs& dialogs;
    const platform::SystemColors& systemColors;
    bool showing = false;  // sliders are moved by the program
};

}  // namespace kivu::ui
