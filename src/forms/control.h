#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/types.h"

namespace kivu::forms {

class Container;
class Control;
class Form;

enum class Kind {
    form,
    listBox,
    comboBox,
    textBox,
    label,
    checkBox,
    commandButton,
    optionButton,
    slider,
    pictureBox,
    image,
    frame,
    timer,
    driveListBox,
    dirListBox,
    fileListBox,
};

// Keeps the form of a control, or a form itself, from being destroyed.
class HeldForm {
 public:
    explicit HeldForm(Control& control);
    ~HeldForm();
    HeldForm(const HeldForm&) = delete;
    HeldForm& operator=(const HeldForm&) = delete;

 private:
    Form* form;
};

// A control of a form: its state, and the handlers of what happens to it. No screen is involved; a
// view that observes the form mirrors it.
//
// Handlers run before the assignment that causes them returns, and may be entered from one another.
class Control {
 public:
    // `index` is the place in a control array, -1 outside of one.
    Control(Container* parent, std::string name, int index = -1);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    virtual Kind GetKind() const = 0;
    const std::string& Name() const { return name; }
    int Index() const { return index; }
    std::string FullName() const;  // "Check_Dfx(0)" in an array
    Container* Parent() const { return parent; }
    Form* ParentForm() const { return form; }

    // The control's own flag, whatever its container's says.
    bool Visible() const { return visible; }
    void SetVisible(bool value);
    bool Enabled() const { return enabled; }
    void SetEnabled(bool value);
    // Visible and enabled, with all its containers, in a form that has not been unloaded.
    bool IsReachable() const;

    int Left() const { return left; }
    int Top() const { return top; }
    int Width() const { return width; }
    int Height() const { return height; }
    int Right() const { return left + width; }
    int Bottom() const { return top + height; }
    void SetLeft(int value) { Move(value, top, width, height); }
    void SetTop(int value) { Move(left, value, width, height); }
    void SetWidth(int value) { Move(left, top, value, height); }
    void SetHeight(int value) { Move(left, top, width, value); }
    // A negative width or height changes nothing at all.
    void Move(int newLeft, int newTop, int newWidth, int newHeight);

    const Font& GetFont() const { return font; }
    // A size that is not above 0, or is above largestFont, changes nothing.
    void SetFont(Font value);
    double FontSize() const { return font.size; }
    void SetFontSize(double points);
    Color BackColor() const { return backColor; }
    Color ForeColor() const { return foreColor; }
    void SetBackColor(Color value);
    void SetForeColor(Color value);
    const std::string& ToolTipText() const { return toolTipText; }
    void SetToolTipText(std::string value);
    const Picture& GetPicture() const { return picture; }
    void SetPicture(Picture value);
    void BringToFront();
    void SendToBack();
    // What the program wants to know the control by, whatever its name.
    const std::string& Tag() const { return tag; }
    void SetTag(std::string value) { tag = std::move(value); }
    // False: a click that brings the window to the front is not meant for this control, which does
    // something that cannot be taken back.
    bool TakesActivatingClick() const { return takesActivatingClick; }
    void SetTakesActivatingClick(bool value) { takesActivatingClick = value; }

    // True: the user and the program can give it the focus.
    virtual bool TakesFocus() const { return false; }
    // No effect on a control that does not take it or cannot be reached.
    void SetFocus();
    bool HasFocus() const;

    // In a mouse-down handler: the control follows the mouse until its button comes up, and is then
    // dropped on what lies there.
    void StartDrag();

    // The user's click, also from the program where a routine acts as the user would.
    void Click() { Run(onClick); }
    void DoubleClick() { Run(onDblClick); }

    std::function<void()> onClick;
    std::function<void()> onDblClick;
    std::function<void()> onGotFocus;
    std::function<void()> onLostFocus;
    std::function<void(Key&)> onKeyDown;
    std::function<void(Character&)> onKeyPress;
    std::function<void(const Mouse&)> onMouseDown;
    std::function<void(const Mouse&)> onMouseMove;
    std::function<void(const Mouse&)> onMouseUp;
    // The mouse is no longer over this control or one that lies in it.
    std::function<void()> onMouseLeave;
    std::function<void()> onResize;
    std::function<void()> onFontChange;
    // A control is dragged over this one, or dropped on it. Twips from this control's edges.
    std::function<void(Control& source, int x, int y)> onDragOver;
    std::function<void(Control& source, int x, int y)> onDragDrop;

 protected:
    void Notify(Aspect aspect);
    const Toolkit& GetToolkit() const;
    // Measures that follow from the font or the text, for controls that have them.
    virtual void Remeasure() {}
    // A copy is run, so that a handler may be replaced while it runs. The form lasts until it
    // returns.
    template <typename Handler, typename... Arguments>
    void Run(const Handler& handler, Arguments&&... arguments) {
        if (!handler) return;
        const Handler copy = handler;
        const HeldForm held(*this);
        copy(std::forward<Arguments>(arguments)...);
    }

 private:
    friend class Form;
    friend class UserInput;

    void PlaceAt(std::size_t place);

    std::string name;
    int index;
    Container* parent;
    Form* form = nullptr;
    bool visible = true;
    bool enabled = true;
    bool takesActivatingClick = true;
    int left = 0, top = 0, width = 0, height = 0;
    Font font;
    Color backColor = Rgb(0xff, 0xff, 0xff);
    Color foreColor = Rgb(0x00, 0x00, 0x00);
    std::string toolTipText;
    std::string tag;
    Picture picture;
};

// A control that holds others.
class Container : public Control {
 public:
    using Control::Control;
    // From the back to the front.
    const std::vector<Control*>& Children() const { return children; }

    // One of the launcher's reusable controls: what it is made of keeps the colours of its own when
    // a window is coloured.
    bool IsUserControl() const { return userControl; }
    void SetIsUserControl(bool value) { userControl = value; }

 private:
    friend class Control;
    bool userControl = false;
    std::vector<Control*> children;
};

}  // namespace kivu::forms
