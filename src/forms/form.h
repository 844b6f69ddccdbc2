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

// How the Tab key goes through a form.
enum class TabOrder {
    byPlace,    // line by line as the eye does, from left to right, container by container
    asCreated,  // as the controls were made
};

class CommandButton;

// A window. Its inner size is its size: the launcher's windows draw their own frame. A press of the
// mouse on its surface that nobody listens to drags it.
//
// A window beside the main one is loaded, shown, hidden and unloaded through a WindowHost, and made
// anew for each opening by an OnDemand.
class Form : public Container {
 public:
    explicit Form(std::string name, Toolkit toolkit = {});
    ~Form() override;

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

    // Runs onLoad, once until it is unloaded. A window is not seen before it is shown.
    void Load();
    // Runs onUnload, then hides the window for good: its timers and controls do nothing any more,
    // and whoever made it forgets it.
    void Unload();
    // Unloads the window unless somebody objects. True: nobody did.
    bool Close();
    bool IsLoaded() const { return life == Life::loaded; }
    bool IsUnloaded() const { return life == Life::unloaded; }
    // Handlers of it are running, or somebody waits for it: it must not be destroyed.
    bool IsHeld() const { return held > 0; }

    // False: shown without taking the keyboard away from whoever has it.
    bool Activates() const { return activates; }
    void SetActivates(bool value);
    // Above fullscreen programs, where staying on top of other windows is not enough.
    bool IsAboveAll() const { return aboveAll; }
    void SetAboveAll(bool value);
    // True: the user may change the size of a window without a frame by its edges.
    bool IsResizable() const { return resizable; }
    void SetResizable(bool value);
    // True: it stands where it was put, and else in the middle of the window that it is shown over.
    bool KeepsPlace() const { return keepsPlace; }
    void SetKeepsPlace(bool value) { keepsPlace = value; }

    TabOrder GetTabOrder() const { return tabOrder; }
    void SetTabOrder(TabOrder value) { tabOrder = value; }
    // The buttons that Enter and Escape press where the control with the focus makes nothing of
    // them; null for none. A key that is held down presses neither.
    CommandButton* EnterButton() const { return enterButton; }
    void SetEnterButton(CommandButton* value) { enterButton = value; }
    CommandButton* EscapeButton() const { return escapeButton; }
    void SetEscapeButton(CommandButton* value) { escapeButton = value; }

    // Window-level keys, before the control with the focus gets them.
    std::function<void(Key&)> onPreviewKeyDown;
    std::function<void(Character&)> onPreviewKeyPress;
    // Set `cancel` to keep the window open.
    std::function<void(bool& cancel)> onQueryClose;
    std::function<void()> onLoad;
    std::function<void()> onUnload;
    // For who made the window: it has been unloaded and may be destroyed once it is not held.
    std::function<void()> onForget;

 private:
    friend class Control;
    friend class HeldForm;
    friend class UserInput;
    enum class Life { fresh, loaded, unloaded };

    void DropUnreachableFocus();
    void TellWindowHost();
    void Hold() { ++held; }
    void Release();
    void SetFrameFlag(bool& flag, bool value);
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
    bool activates = true;
    bool aboveAll = false;
    bool resizable = true;
    bool keepsPlace = false;
    Life life = Life::fresh;
    bool unloading = false;
    int held = 0;
    TabOrder tabOrder = TabOrder::byPlace;
    CommandButton* enterButton = nullptr;
    CommandButton* escapeButton = nullptr;
};

}  // namespace kivu::forms
