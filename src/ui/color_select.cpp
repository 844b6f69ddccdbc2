#include "ui/color_select.h"

#include "core/form1.h"
#include "core/raised.h"
#include "ui/colors.h"
#include "ui/window_colors.h"

namespace kivu::ui {

using forms::Color;

ColorSelect::ColorSelect(ColorSelectControls& controls, core::Form1& main,
                         WindowColors& windowColors, Services services)
    : controls(controls),
      main(main),
      windowColors(windowColors),
      dialogs(services.dialogs),
      systemColors(services.systemColors) {
    controls.Option1.SetCaption(main.Say("Hintergrund", "Background"));
    controls.Option2.SetCaption(main.Say("Schrift", "Writing"));
    controls.SliderName[0].SetCaption(main.Say("Rot", "Red"));
    controls.SliderName[1].SetCaption(main.Say("Grün", "Green"));
    controls.SliderName[2].SetCaption(main.Say("Blau", "Blue"));
    controls.SampleText.SetCaption(main.Say("Beispiel", "Example"));
    controls.SkinLines.SetToolTipText(
        main.Say("Diese Zeilen gehören in die Skin.ini, damit die Farben bleiben.",
                 "Put these lines into Skin.ini to keep the colours."));
    for (forms::Slider& slider : controls.ColSlider1)
        slider.onChange = [this] { ColSlider1_Change(); };
    for (forms::OptionButton* option : {&controls.Option1, &controls.Option2}) {
        option->onClick = [this] { Option_Click(); };
        option->onDblClick = [this, option] { Option_DblClick(*option); };
        option->onKeyDown = [this, option](forms::Key& key) { Option_KeyDown(*option, key); };
        option->SetToolTipText(main.Say("Doppelklick oder F2: die Farbe als Text eingeben",
                                        "Double click or F2: enter the colour as text"));
    }
    Show(main.FormBackColor, main.FormForeColor);
    ShowOnSliders();
}

void ColorSelect::SetBackColor(std::int32_t NewValue) {
    Show(RealColor(static_cast<Color>(NewValue), systemColors), controls.BackGroundPix.ForeColor());
    if (BackIsChosen()) ShowOnSliders();
}

void ColorSelect::SetForeColor(std::int32_t NewValue) {
    Show(controls.BackGroundPix.BackColor(), RealColor(static_cast<Color>(NewValue), systemColors));
    if (!BackIsChosen()) ShowOnSliders();
}

std::int32_t ColorSelect::GetBackColor() const {
    return static_cast<std::int32_t>(controls.BackGroundPix.BackColor());
}

std::int32_t ColorSelect::GetForeColor() const {
    return static_cast<std::int32_t>(controls.BackGroundPix.ForeColor());
}

Color ColorSelect::Chosen() const {
    const forms::PictureBox& both = controls.BackGroundPix;
    return BackIsChosen() ? both.BackColor() : both.ForeColor();
}

void ColorSelect::Show(Color back, Color fore) {
    for (forms::Control* sample : {static_cast<forms::Control*>(&controls.BackGroundPix),
                                   static_cast<forms::Control*>(&controls.SampleText),
                                   static_cast<forms::Control*>(&controls.Option1),
                                   static_cast<forms::Control*>(&controls.Option2)}) {
        sample->SetBackColor(back);
        sample->SetForeColor(fore);
    }
    // The rest looks like the window that it stands in.
    const forms::Frame& frame = controls.frame;
    for (std::size_t i = 0; i < controls.ColSlider1.size(); ++i) {
        for (forms::Control* part : {static_cast<forms::Control*>(&controls.SliderName[i]),
                                     static_cast<forms::Control*>(&controls.ColSlider1[i])}) {
            part->SetBackColor(frame.BackColor());
            part->SetForeColor(frame.ForeColor());
        }
    }
    controls.SkinLines.SetBackColor(frame.ForeColor());
    controls.SkinLines.SetForeColor(frame.BackColor());
    controls.SkinLines.SetText("BackColor=" + LongToHex(back) + "\r\nFontColor=" + LongToHex(fore));
}

void ColorSelect::ShowOnSliders() {
    const core::Raised byTheProgram(showing);
    const Color color = Chosen();
    for (std::size_t i = 0; i < controls.ColSlider1.size(); ++i)
        controls.ColSlider1[i].SetValue(static_cast<int>(color >> (8 * i) & 0xff));
}

void ColorSelect::ColSlider1_Change() {
    if (showing) return;
    const auto value = [this](std::size_t i) {
        return static_cast<unsigned>(controls.ColSlider1[i].Value());
    };
    Pick(forms::Rgb(value(0), value(1), value(2)));
}

void ColorSelect::Pick(Color color) {
    const forms::PictureBox& both = controls.BackGroundPix;
    if (BackIsChosen()) {
        Show(color, both.ForeColor());
    } else {
        Show(both.BackColor(), color);
    }
    windowColors.SetColors(main, GetBackColor(), GetForeColor());
    if (onChange) onChange();
}

void ColorSelect::Option_Click() {
    ShowOnSliders();
}

void ColorSelect::Option_KeyDown(forms::OptionButton& option, forms::Key& key) {
    constexpr int f2 = forms::keys::f1 + 1;
    if (key.code != f2 || key.shift != 0) return;
    const bool repeat = key.repeat;
    key = {};
    if (!repeat) Option_DblClick(option);
}

void ColorSelect::Option_DblClick(forms::OptionButton& option) {
    option.SetValue(1);
    const std::string prompt = LongToHex(Chosen()) + " - Format: #FFFFFFFF";
    const std::string answer = dialogs.InputBox(prompt, core::defaultTitle, "");
    if (answer.empty()) return;
    Pick(HexToLong(answer));
    ShowOnSliders();
}

}  // namespace kivu::ui
