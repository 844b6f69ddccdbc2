#include "ui/color_select.h"

namespace kivu::ui {

ColorSelectControls::ColorSelectControls(forms::Container* parent)
    : frame(parent, "ColorSelect1"),
      Option1(&frame, "Option1"),
      Option2(&frame, "Option2"),
      SliderName{{{&frame, "SliderName", 0}, {&frame, "SliderName", 1}, {&frame, "SliderName", 2}}},
      ColSlider1{{{&frame, "ColSlider1", 0}, {&frame, "ColSlider1", 1}, {&frame, "ColSlider1", 2}}},
      BackGroundPix(&frame, "BackGroundPix"),
      SampleText(&BackGroundPix, "SampleText"),
      SkinLines(&frame, "SkinLines") {
    constexpr int edge = 150, row = 420, half = (width - 3 * edge) / 2;
    frame.SetIsUserControl(true);
    frame.Move(0, 0, width, height);
    Option1.Move(edge, 60, half, 360);
    Option2.Move(2 * edge + half, 60, half, 360);
    Option1.SetValue(1);
    for (std::size_t i = 0; i < ColSlider1.size(); ++i) {
        const int top = 480 + static_cast<int>(i) * row;
        SliderName[i].Move(edge, top + 45, 900, 300);
        ColSlider1[i].SetRange(0, 255);
        ColSlider1[i].Move(edge + 900, top, width - 2 * edge - 900, 390);
    }
    // The lines of a skin are longer than the sample, and grow where the text is rounded up.
    constexpr int lines = half + 450, sample = half - 450;
    BackGroundPix.Move(edge, 480 + 3 * row + 90, sample, 960);
    SampleText.SetAlignment(forms::Alignment::center);
    SampleText.Move(60, 330, sample - 120, 300);
    SkinLines.SetMultiLine(true);
    SkinLines.Move(2 * edge + sample, BackGroundPix.Top(), lines, 960);
}

}  // namespace kivu::ui
