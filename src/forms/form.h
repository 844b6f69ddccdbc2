#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/control.h"

namespace kivu::forms {

// Shows a form. A change is told after it has happened and before the handlers that it causes.
class Observer {
 public:
    virtual ~Observer() = default;
    virtual void Changed(Control& control, Aspect aspect) = 0;
    // The window is to follow the mouse until its button comes up.
    virtual void DragWindow() {}
};

enum class WindowState { normal = 0, minimized = 1, maximized = 2 };

// A window. Its inner size is its size: the launcher's windows draw their own frame.
class Form : public Container {
 public:
    explicit Form(std::string name, Toolkit toolkit = {});

    Kind GetKind() const override { return Kind::form; }
    void SetObserver(Observer* value) { observer = value; }
    const Toolkit& GetToolkit() const { return toolkit; }

    // Every control in order of creation, those in containers included.
    const std::vector<Control*>& Controls() const { return controls; }
    // Name without regard to case; null if there is none.
    Control* Find(std::string_view name, int index = -1) const;

    const std::string& Caption() const { return caption; }
    void SetCaption(std::string value);

    WindowState State() const { return state; }
    // Runs the resize handler, as a new size does. The window manager's own changes come through
    // here and Move too.
    void SetState(WindowState value);

    Control* Focus() const { return focus; }
    // Null takes the focus away. The old control's lost-focus handler runs, then the new one's
    // got-focus handler. When the first moves the focus on, the control passed over gets neither.
    void MoveFocus(Control* next);

    // Radius of the corners in pixels, 0 for square ones.
    int CornerRadius() const { return cornerRadius; }
    void SetCornerRadius(int pixels);
    bool HasFrame() const { return hasFrame; }
    void SetHasFrame(bool value);
    // A tool window has no place in the system's list of windows.
    bool IsToolWindow() const { return toolWindow; }
    void SetToolWindow(bool value);
    bool IsTopmost() const { return topmost; }
    void SetTopmost(bool value);
    void BeginDrag();

    // The control that follows the mouse until its button comes up, null for none.
    Control* Dragged() const { return dragged; }

    // The window manager's close request. True: nobody objected.
    bool RequestClose();

    // Window-level keys, before the control with the focus gets them.
    std::function<void(Key&)> onPreviewKeyDown;
    std::function<void(Character&)> onPreviewKeyPress;
    // Set `cancel` to keep the window open.
    std::function<void(bool& cancel)> onQueryClose;

 private:
    friend class Control;
    friend class UserInput;
    void DropUnreachableFocus();
    void SetDragged(Control* value);
    Point DraggedFrom() const { return draggedFrom; }

    Toolkit toolkit;
    Observer* observer = nullptr;
    std::vector<Control*> controls;
    std::string caption;
    WindowState state = WindowState::normal;
    Control* focus = nullptr;
    Control* entered = nullptr;  // the focus, once its got-focus handler has been run
    Control* dragged = nullptr;
    Point draggedFrom;  // its place when the mouse went down
    int cornerRadius = 0;
    bool hasFrame = true;
    bool toolWindow = true;
    bool topmost = false;
};

}  // namespace kivu::forms
