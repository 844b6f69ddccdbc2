#include "forms/controls.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"

namespace kivu::forms {

namespace {

// Without a measure a character counts as half its height, which keeps layouts in proportion.
int LineWidth(const Toolkit& toolkit, const Font& font, std::string_view line) {
    if (toolkit.measure) return toolkit.measure->Width(font, line);
    const auto points =
        std::count_if(line.begin(), line.end(), [](char c) { return (c & 0xc0) != 0x80; });
    return static_cast<int>(static_cast<double>(points) * font.size * 10);
}

int LineHeight(const Toolkit& toolkit, const Font& font) {
    return toolkit.measure ? toolkit.measure->LineHeight(font) : static_cast<int>(font.size * 24);
}

}  // namespace

std::vector<std::string_view> CaptionLines(std::string_view caption) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] != '\r' && caption[i] != '\n') continue;
        lines.push_back(caption.substr(start, i - start));
        if (caption[i] == '\r' && i + 1 < caption.size() && caption[i + 1] == '\n') ++i;
        start = i + 1;
    }
    lines.push_back(caption.substr(start));
    return lines;
}

TextBox::TextBox(Container* parent, std::string name, int index)
    : Control(parent, std::move(name), index) {
    Remeasure();
}

void TextBox::SetText(std::string value) {
    if (text == value) return;
    text = std::move(value);
    Notify(Aspect::text);
    Run(onChange);
}

void TextBox::SetSelection(int start, int length) {
    if (start < 0 || length < 0 || (start == selStart && length == selLength)) return;
    selStart = start;
    selLength = length;
    Notify(Aspect::selection);
}

void TextBox::Remeasure() {
    SetHeight(LineHeight(GetToolkit(), GetFont()) + 10 * twipsPerPixel);
}

Label::Label(Container* parent, std::string name, int index)
    : Control(parent, std::move(name), index) {
}

void Label::SetCaption(std::string value) {
    if (caption == value) return;
    caption = std::move(value);
    Notify(Aspect::text);
    Remeasure();
    Run(onChange);
}

void Label::SetAutoSize(bool value) {
    autoSize = value;
    Remeasure();
}

void Label::SetAlignment(Alignment value) {
    alignment = value;
    Notify(Aspect::text);
}

void Label::SetOpaque(bool value) {
    opaque = value;
    Notify(Aspect::colors);
}

int Label::TextWidth() const {
    int widest = 0;
    for (const std::string_view line : CaptionLines(caption)) {
        widest = std::max(widest, LineWidth(GetToolkit(), GetFont(), line));
    }
    return widest;
}

int Label::TextHeight() const {
    return static_cast<int>(CaptionLines(caption).size()) * LineHeight(GetToolkit(), GetFont());
}

void Label::Remeasure() {
    if (autoSize) Move(Left(), Top(), TextWidth() + 2 * twipsPerPixel, TextHeight());
}

void CommandButton::SetCaption(std::string value) {
    if (caption == value) return;
    caption = std::move(value);
    Notify(Aspect::text);
}

void ValueButton::SetCaption(std::string value) {
    if (caption == value) return;
    caption = std::move(value);
    Notify(Aspect::text);
}

void ValueButton::SetValue(int newValue) {
    Store(newValue);
}

void ValueButton::Store(int newValue) {
    if (value == newValue) return;
    value = newValue;
    Notify(Aspect::text);
    Run(onClick);
}

void CheckBox::SetValue(int newValue) {
    if (newValue >= 0 && newValue <= 2) Store(newValue);
}

void OptionButton::SetValue(int newValue) {
    if (newValue != 0) {
        for (Control* sibling : Parent()->Children()) {
            if (sibling != this && sibling->GetKind() == Kind::optionButton) {
                static_cast<OptionButton*>(sibling)->SetValue(0);
            }
        }
    }
    const bool on = newValue != 0;
    if (on == (Value() != 0)) return;
    if (on) {
        Store(1);
        return;
    }
    // Only the button that comes on is clicked.
    auto handler = std::exchange(onClick, nullptr);
    Store(0);
    onClick = std::move(handler);
}

void Slider::SetRange(int newMin, int newMax) {
    if (newMin > newMax) return;
    min = newMin;
    max = newMax;
    SetValue(std::clamp(value, min, max));
}

void Slider::SetValue(int newValue) {
    if (newValue < min || newValue > max || newValue == value) return;
    value = newValue;
    Notify(Aspect::text);
    Run(onChange);
}

void Frame::SetCaption(std::string value) {
    if (caption == value) return;
    caption = std::move(value);
    Notify(Aspect::text);
}

Timer::Timer(Container* parent, std::string name, int intervalMilliseconds, bool on)
    : Control(parent, std::move(name)), interval(intervalMilliseconds) {
    SetEnabled(on);
}

void Timer::SetInterval(int milliseconds) {
    if (milliseconds < 0 || interval == milliseconds) return;
    interval = milliseconds;
    Notify(Aspect::timer);
}

bool Timer::Tick() {
    if (!Enabled() || interval == 0) return false;
    if (ticking) return true;
    ticking = true;
    Run(onTimer);
    ticking = false;
    return true;
}

}  // namespace kivu::forms
