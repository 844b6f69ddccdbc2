#include "forms/controls.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "forms/access_keys.h"
#include "forms/form.h"
#include "forms/window_host.h"

namespace kivu::forms {

namespace {

// Twips, far beyond any screen: sums of two measures stay within an int.
constexpr std::int64_t largestMeasure = 1'000'000'000;

// Without a measure a character counts as half its height, which keeps layouts in proportion.
int LineWidth(const Toolkit& toolkit, const Font& font, std::string_view line) {
    if (toolkit.measure) return toolkit.measure->Width(font, line);
    const auto points =
        std::count_if(line.begin(), line.end(), [](char c) { return (c & 0xc0) != 0x80; });
    const double width = static_cast<double>(points) * font.size * 10;
    return static_cast<int>(std::min(width, static_cast<double>(largestMeasure)));
}

int LineHeight(const Toolkit& toolkit, const Font& font) {
    return toolkit.measure ? toolkit.measure->LineHeight(font) : static_cast<int>(font.size * 24);
}

// Broken between words, and wherever it must within one.
int LinesWithin(const Toolkit& toolkit, const Font& font, std::string_view line, int width) {
    width = std::max(1, width);
    const auto wide = [&](std::size_t from, std::size_t to) {
        return LineWidth(toolkit, font, line.substr(from, to - from));
    };
    int lines = 1;
    std::size_t begin = 0, word = 0;
    while (word < line.size()) {
        const std::size_t end = std::min(line.find(' ', word), line.size());
        if (wide(begin, end) > width) {
            lines += word > begin;
            begin = word;
            lines += std::max(0, wide(begin, end) - 1) / width;
        }
        word = end + 1;
    }
    return lines;
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
    TextBox::Remeasure();
}

void TextBox::SetText(std::string value) {
    TextField changed = field;
    changed.SetText(std::move(value));
    SetField(std::move(changed));
}

void TextBox::SetSelection(int start, int length) {
    TextField changed = field;
    changed.Select(start, length);
    SetField(std::move(changed));
}

void TextBox::SetField(TextField value) {
    const TextField old = std::exchange(field, std::move(value));
    const bool changed = old.Text() != field.Text();
    const bool moved = old.Start() != field.Start() || old.Length() != field.Length();
    if (changed) Notify(Aspect::text);
    if (moved) Notify(Aspect::selection);
    if (changed) Run(onChange);
}

void TextBox::SetMultiLine(bool value) {
    TextField changed = field;
    changed.SetMultiLine(value);
    SetField(std::move(changed));
    Remeasure();
}

void TextBox::Remeasure() {
    if (IsMultiLine()) return;
    SetHeight(LineHeight(GetToolkit(), GetFont()) + 10 * twipsPerPixel);
}

Label::Label(Container* parent, std::string name, int index)
    : Control(parent, std::move(name), index) {
}

void Label::SetCaption(std::string value) {
    if (caption == value) return;
    caption = std::move(value);
    shownText.clear();
    hint.clear();
    Notify(Aspect::text);
    Remeasure();
    Run(onChange);
}

void Label::SetAutoSize(bool value) {
    if (autoSize == value) return;
    autoSize = value;
    Remeasure();
}

void Label::SetAlignment(Alignment value) {
    if (alignment == value) return;
    alignment = value;
    Notify(Aspect::text);
}

void Label::SetOpaque(bool value) {
    if (opaque == value) return;
    opaque = value;
    Notify(Aspect::colors);
}

void Label::SetLink(bool value) {
    if (link == value) return;
    link = value;
    Notify(Aspect::text);
}

void Label::SetMarksLetter(bool value) {
    if (marksLetter == value) return;
    marksLetter = value;
    Notify(Aspect::text);
    Remeasure();
}

void Label::SetShownText(std::string value) {
    if (shownText == value) return;
    shownText = std::move(value);
    Notify(Aspect::text);
}

void Label::SetHint(std::string value) {
    if (hint == value) return;
    hint = std::move(value);
    Notify(Aspect::text);
}

void Label::SetShownFontSize(double points) {
    const bool fits = points >= 0 && points <= largestFont;
    if (!fits || shownFontSize == points) return;
    shownFontSize = points;
    Notify(Aspect::font);
}

Font Label::ShownFont() const {
    Font shown = GetFont();
    if (shownFontSize > 0) shown.size = shownFontSize;
    return shown;
}

int Label::ShownLines(int width) const {
    return LinesOf(shownText.empty() ? caption : shownText, width);
}

int Label::LinesOf(std::string_view text, int width) const {
    int lines = 0;
    const forms::TextMeasure* measure = GetToolkit().measure;
    for (const std::string_view line : CaptionLines(text)) {
        lines += measure ? measure->LinesWithin(ShownFont(), line, width)
                         : LinesWithin(GetToolkit(), ShownFont(), line, width);
    }
    return lines;
}

int Label::ShownLineHeight() const {
    return LineHeight(GetToolkit(), ShownFont());
}

int Label::TextWidth() const {
    return WidthOf(marksLetter ? PlainCaption(caption) : caption);
}

int Label::WidthOf(std::string_view text) const {
    int widest = 0;
    for (const std::string_view line : CaptionLines(text)) {
        widest = std::max(widest, LineWidth(GetToolkit(), GetFont(), line));
    }
    return widest;
}

int Label::TextHeight() const {
    const auto lines = static_cast<std::int64_t>(CaptionLines(caption).size());
    const std::int64_t height = lines * LineHeight(GetToolkit(), GetFont());
    return static_cast<int>(std::min(height, largestMeasure));
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

void ValueButton::Store(int newValue, Click click) {
    if (value == newValue) return;
    value = newValue;
    Notify(Aspect::text);
    if (click == Click::run) Run(onClick);
}

void CheckBox::SetValue(int newValue) {
    if (newValue >= 0 && newValue <= 2) Store(newValue);
}

void OptionButton::Press() {
    if (Value() != 0) {
        Control::Click();
    } else {
        SetValue(1);
    }
}

void OptionButton::SetValue(int newValue) {
    if (newValue == 0) {
        Store(0, Click::spare);
        return;
    }
    for (Control* sibling : Parent()->Children()) {
        if (sibling != this && sibling->GetKind() == Kind::optionButton) {
            static_cast<OptionButton*>(sibling)->Store(0, Click::spare);
        }
    }
    Store(1);
}

void Slider::SetRange(int newMin, int newMax) {
    if (newMin > newMax || (newMin == min && newMax == max)) return;
    min = newMin;
    max = newMax;
    const bool kept = value >= min && value <= max;
    if (kept) Notify(Aspect::text);
    SetValue(std::clamp(value, min, max));
}

void Slider::SetValue(int newValue) {
    if (newValue < min || newValue > max || newValue == value) return;
    value = newValue;
    Notify(Aspect::text);
    Run(onChange);
}

void Image::SetKeepsProportions(bool value) {
    if (keepsProportions == value) return;
    keepsProportions = value;
    Notify(Aspect::picture);
}

void Image::SetMostShownHeight(int twips) {
    if (mostShownHeight == twips) return;
    mostShownHeight = twips;
    Notify(Aspect::picture);
}

void Frame::SetCaption(std::string value) {
    if (caption == value) return;
    caption = std::move(value);
    Notify(Aspect::text);
}

void Frame::SetRaised(bool value) {
    if (raised == value) return;
    raised = value;
    Notify(Aspect::colors);
}

Timer::Timer(Container* parent, std::string name, int intervalMilliseconds, bool on)
    : Control(parent, std::move(name)), interval(std::max(0, intervalMilliseconds)) {
    SetEnabled(on);
}

void Timer::SetInterval(int milliseconds) {
    if (milliseconds < 0 || interval == milliseconds) return;
    interval = milliseconds;
    Notify(Aspect::timer);
}

bool Timer::Tick() {
    const bool off = !Enabled() || interval == 0;
    if (off || (ParentForm() && ParentForm()->IsUnloaded())) return false;
    const WindowHost* windows = GetToolkit().windows;
    if (ticking || (rests && windows && windows->Questions() > 0)) return true;
    ticking = true;
    Run(onTimer);
    ticking = false;
    return true;
}

}  // namespace kivu::forms
