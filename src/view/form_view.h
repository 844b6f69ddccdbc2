#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "forms/form.h"
#include "forms/user_input.h"
#include "view/alt_key.h"
#include "view/form_surface.h"
#include "view/keyboard.h"
#include "view/mirror.h"
#include "view/pointer.h"
#include "view/repaint_rest.h"
#include "view/window_drag.h"
#include "view/window_sync.h"

namespace kivu::view {

// Shows a form as a window and turns the user's hands into what its handlers expect. Create it when
// the form's controls and handlers are there; the form must outlive it.
//
// Each widget's object name is its control's full name. A list or drop-down has a widget once it
// has been shown for the first time.
class FormView : public QObject, private forms::Observer, private MirrorHost {
 public:
    explicit FormView(forms::Form& form);
    ~FormView() override;

    // Shows the window in the form's state. The form's focus becomes the keyboard's without any
    // handler being run.
    void Show();
    // For one of several windows: somebody else shows and hides it as the form's own flag says, and
    // the form is unloaded where it is closed.
    void SetHosted() { hosted = true; }
    void Hide();
    // It stands over another window: above one that stays on top of all, on its screen, and that is
    // out of reach while this one is modal. Null: over none. To be settled while it is hidden.
    void StandOver(FormView* owner, bool modal);
    // Follows its owner's own flags.
    void FollowOwner();
    // Asked now and whenever the window comes to the front: whether the screen can blend the window
    // into what lies behind it. Without this it is taken to.
    void SetCompositing(std::function<bool()> ask);
    // Of the host; tells Alt+F4 from a panel's close request where Alt is let go quickly.
    void SetClock(AltKey::Clock clock) { altKey.SetClock(std::move(clock)); }
    // Brings the window back to the front, out of the task bar too.
    void Summon();
    QWidget& Window() { return *surface; }

    // A close request that nobody objected to; the window is hidden by then.
    std::function<void()> onClosed;
    // The form has another frame, or no longer stays on top.
    std::function<void()> onFrameChanged;

    bool eventFilter(QObject* object, QEvent* event) override;
    bool event(QEvent* event) override;

 private:
    void Changed(forms::Control& control, forms::Aspect aspect) override;
    void DragWindow() override { pointer.DragWindow(); }
    void Watch(QWidget* widget, Mirror& mirror) override;
    void FlushSoon(Mirror& mirror) override;
    forms::UserInput& Input() override { return input; }
    forms::Form& Form() override { return form; }
    RepaintRest& Rest() override { return rest; }
    Mirror* MirrorOf(forms::Control& control) override { return Find(control); }

    void FormChanged(forms::Aspect aspect);
    Mirror* Find(forms::Control& control) const;
    void Build(forms::Control& control);
    bool IsWanted(const forms::Control& control) const;
    void BuildShown(forms::Control& control);
    void StackAmongOthers(forms::Control& control);
    void Stack(const forms::Container& container);
    void ShowFocus();
    void TakeFocus(Mirror& mirror, Qt::FocusReason reason);
    void FlushNow();
    void Close(QEvent& request);
    bool IsCloseKey();
    bool WindowEvent(QEvent& event);
    bool HandToPopup(QEvent& event);
    bool HandEvent(QObject& object, Mirror& mirror, QEvent& event);
    void PressKey(QObject& object, QKeyEvent& event);

    forms::Form& form;
    forms::UserInput input{form};
    std::unique_ptr<FormSurface> surface;
    RepaintRest rest;
    WindowSync sync;
    WindowDrag drag;
    Pointer pointer;
    Keyboard keyboard;
    AltKey altKey;
    std::unordered_map<const forms::Control*, std::unique_ptr<Mirror>> mirrors;
    std::unordered_map<const QObject*, Mirror*> watched;
    std::vector<Mirror*> waiting;  // for a flush
    std::function<bool()> isComposited;
    bool flushPosted = false;
    bool movingFocus = false;
    bool closeKeyPassed = false;  // the form's handlers have let it through
    bool hosted = false;
    QPointer<FormView> owner;
};

}  // namespace kivu::view
