#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/text_field.h"

namespace kivu::forms {

// Text to edit: one line, or several.
class TextBox : public Control {
 public:
    TextBox(Container* parent, std::string name, int index = -1);
    Kind GetKind() const override { return Kind::textBox; }
    bool TakesFocus() const override { return true; }

    const std::string& Text() const { return field.Text(); }
    // A different text runs the change handler.
    void SetText(std::string value);
    int SelStart() const { return field.Start(); }  // code points
    int SelLength() const { return field.Length(); }
    void SetSelection(int start, int length);
    const TextField& Field() const { return field; }
    // Text and selection in one step, as typing changes them: the change handler finds both.
    void SetField(TextField value);
    // Several lines, which end in CR LF however they were given, in a box of any height; Enter
    // begins a new one. One line is as high as its font. Settled before a view is made.
    bool IsMultiLine() const { return field.IsMultiLine(); }
    void SetMultiLine(bool value);

    std::function<void()> onChange;

 protected:
    void Remeasure() override;

 private:
    TextField field;
};

enum class Alignment { left, center, right };

// Text on the window. Lines are split at CR LF, CR or LF.
class Label : public Control {
 public:
    Label(Container* parent, std::string name, int index = -1);
    Kind GetKind() const override { return Kind::label; }

    const std::string& Caption() const { return caption; }
    // A different caption runs the change handler.
    virtual void SetCaption(std::string value);
    bool AutoSize() const { return autoSize; }
    void SetAutoSize(bool value);
    Alignment GetAlignment() const { return alignment; }
    void SetAlignment(Alignment value);
    bool IsOpaque() const { return opaque; }
    void SetOpaque(bool value);
    // A link takes the focus, and Enter and Space click it as the mouse does.
    bool IsLink() const { return link; }
    void SetLink(bool value);
    bool TakesFocus() const override { return link; }
    // True: "&" in the caption marks the letter that, with Alt, gives the focus to the control
    // behind the label, and "&&" is the sign itself. False: all "&" are plain.
    bool MarksLetter() const { return marksLetter; }
    void SetMarksLetter(bool value);
    // Twips that the caption's longest line and all its lines take in the label's font.
    int TextWidth() const;
    int TextHeight() const;
    // The same width for another text.
    int WidthOf(std::string_view text) const;

    // What a view shows in the caption's place, where that is broken for other readers or is too
    // long; empty: the caption. A new caption takes it away.
    const std::string& ShownText() const { return shownText; }
    void SetShownText(std::string value);
    // Points that a view shows the text in, whatever the font says; 0: the font's.
    double ShownFontSize() const { return shownFontSize; }
    void SetShownFontSize(double points);
    Font ShownFont() const;
    // What to do next, in quiet letters below the caption. A new caption takes it away.
    const std::string& Hint() const { return hint; }
    void SetHint(std::string value);
    // Lines that a view makes of what it shows in so many twips, and the height of one.
    int ShownLines(int width) const;
    int ShownLineHeight() const;
    // The same for another text.
    int LinesOf(std::string_view text, int width) const;

    std::function<void()> onChange;

 protected:
    void Remeasure() override;

 private:
    std::string caption;
    bool autoSize = false;
    bool opaque = false;
    bool link = false;
    bool marksLetter = false;
    std::string shownText;
    std::string hint;
    double shownFontSize = 0;
    Alignment alignment = Alignment::left;
};

class CommandButton : public Control {
 public:
    using Control::Control;
    Kind GetKind() const override { return Kind::commandButton; }
    bool TakesFocus() const override { return takesFocus; }
    // False: a click leaves the focus where it is, and the Tab key passes it over.
    void SetTakesFocus(bool value) { takesFocus = value; }
    const std::string& Caption() const { return caption; }  // "&" marks the access key
    void SetCaption(std::string value);

 private:
    std::string caption;
    bool takesFocus = true;
};

// A box or a round button that holds a number: 0 off, 1 on, 2 greyed (boxes only). A different
// value runs the click handler.
class ValueButton : public Control {
 public:
    using Control::Control;
    // The user's click.
    virtual void Press() = 0;
    bool TakesFocus() const override { return true; }
    const std::string& Caption() const { return caption; }
    void SetCaption(std::string value);
    int Value() const { return value; }
    virtual void SetValue(int newValue) = 0;

 protected:
    enum class Click { run, spare };
    void Store(int newValue, Click click = Click::run);

 private:
    std::string caption;
    int value = 0;
};

class CheckBox : public ValueButton {
 public:
    using ValueButton::ValueButton;
    Kind GetKind() const override { return Kind::checkBox; }
    void Press() override { SetValue(Value() == 0 ? 1 : 0); }
    void SetValue(int newValue) override;  // other values than 0 to 2 change nothing
};

// One of the option buttons of a container is on: switching one on switches the others off, which
// runs the click handler of the first alone. The Tab key comes to the one that is on, and the arrow
// keys go through them.
class OptionButton : public ValueButton {
 public:
    using ValueButton::ValueButton;
    Kind GetKind() const override { return Kind::optionButton; }
    void Press() override;
    void SetValue(int newValue) override;
};

class Slider : public Control {
 public:
    using Control::Control;
    Kind GetKind() const override { return Kind::slider; }
    bool TakesFocus() const override { return true; }
    int Min() const { return min; }
    int Max() const { return max; }
    // Moves the value into the range. No effect if the least is above the most.
    void SetRange(int newMin, int newMax);
    int Value() const { return value; }
    void SetValue(int newValue);  // out of range changes nothing

    std::function<void()> onChange;

 private:
    int min = 0, max = 10, value = 0;
};

// A picture that can hold controls.
class PictureBox : public Container {
 public:
    using Container::Container;
    Kind GetKind() const override { return Kind::pictureBox; }
};

// A picture alone, stretched to the control.
class Image : public Control {
 public:
    using Control::Control;
    Kind GetKind() const override { return Kind::image; }
    // True: the picture is as large as fits into the control without being distorted, at its top
    // and in the middle of its width.
    bool KeepsProportions() const { return keepsProportions; }
    void SetKeepsProportions(bool value);
    // Twips from the top edge that a view draws the picture in, where something lies on the rest;
    // below 0: all of the height.
    int MostShownHeight() const { return mostShownHeight; }
    void SetMostShownHeight(int twips);

 private:
    bool keepsProportions = false;
    int mostShownHeight = -1;
};

class Frame : public Container {
 public:
    using Container::Container;
    Kind GetKind() const override { return Kind::frame; }
    const std::string& Caption() const { return caption; }
    void SetCaption(std::string value);
    // True: it lies over others of its window, which do not show through, and which the Tab key
    // passes over.
    bool IsRaised() const { return raised; }
    void SetRaised(bool value);

 private:
    std::string caption;
    bool raised = false;
};

// Ticks while it is enabled and its interval is above 0, in a form that has not been unloaded. Who
// keeps the time calls Tick.
class Timer : public Control {
 public:
    Timer(Container* parent, std::string name, int intervalMilliseconds, bool on);
    Kind GetKind() const override { return Kind::timer; }
    int Interval() const { return interval; }
    void SetInterval(int milliseconds);
    // False: the timer is off. A tick inside its own handler does nothing.
    bool Tick();
    // True: it rests while a box or a modal window waits for the user, since what it does would
    // start, switch or open something behind that.
    bool RestsBehindQuestions() const { return rests; }
    void SetRestsBehindQuestions(bool value) { rests = value; }

    std::function<void()> onTimer;

 private:
    int interval;
    bool ticking = false;
    bool rests = false;
};

// Lines of a caption, split at CR LF, CR or LF.
std::vector<std::string_view> CaptionLines(std::string_view caption);

}  // namespace kivu::forms
