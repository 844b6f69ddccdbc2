#pragma once

#include <QElapsedTimer>
#include <QMouseEvent>
#include <functional>

#include "forms/user_input.h"
#include "view/mirror.h"
#include "view/window_drag.h"

namespace kivu::view {

// Turns the mouse into what the form's handlers expect: focus, mouse down, click, double click,
// mouse up. Handlers may hide, clear or move anything on the way.
class Pointer {
 public:
    using MirrorOf = std::function<Mirror*(forms::Control&)>;
    Pointer(forms::Form& form, forms::UserInput& input, WindowDrag& drag, MirrorOf mirrorOf);

    // True: the widget is not to see the event any more.
    bool Handle(Mirror& mirror, QMouseEvent& event);
    // The window has come to the front.
    void WindowActivated() { activated.start(); }
    // The mouse is over nothing of the form any more.
    void LeftWindow() { Hover(nullptr); }
    // A handler asks for the window to follow the mouse.
    void DragWindow();

 private:
    bool Press(Mirror& mirror, const QMouseEvent& event, bool second);
    // The press only fetches the window, and its control must not take that for its own click.
    bool OnlyActivates(const Mirror& mirror, bool second);
    // A box that a handler of the press has brought up took it; the click is meant all the same.
    bool ReleaseIsLost(const forms::Control& control) const;
    void Hover(forms::Control* control);
    // The button has come up where nobody told of it.
    void LoseButton();
    bool Move(Mirror& mirror, const QMouseEvent& event);
    bool Release(const QMouseEvent& event, bool consumed);
    void PressList(Mirror& mirror, const QMouseEvent& event, bool second);
    // A control that its handler has given to the mouse. False: there is none.
    bool DragControl(QPoint global);
    bool DropControl(QPoint global);
    forms::Point PlaceOf(QPoint global) const;
    void ClickOn(forms::Control& control);
    // The control that listens: one that nobody listens to is part of what lies behind it.
    Mirror& TargetOf(Mirror& mirror) const;

    forms::Form& form;
    forms::UserInput& input;
    WindowDrag& drag;
    MirrorOf mirrorOf;
    forms::Control* pressed = nullptr;  // while its button is down
    Qt::MouseButton button = Qt::NoButton;
    QPoint pressedAt;
    bool clickPending = false;
    bool dragsControl = false;       // past the distance that tells a drag from a click
    QPoint draggedFrom;              // pixels
    forms::Control* last = nullptr;  // of the press before, for double clicks
    forms::Control* hovered = nullptr;
    QElapsedTimer activated;
    bool fetching = false;  // the press before did nothing but activate
};

}  // namespace kivu::view
