#pragma once

#include <QPointer>
#include <QWidget>
#include <optional>

#include "forms/control.h"
#include "forms/user_input.h"
#include "view/repaint_rest.h"

namespace kivu::view {

class Mirror;
class RowSource;

// What a mirror asks of the view that it belongs to.
class MirrorHost {
 public:
    virtual ~MirrorHost() = default;
    // Routes the widget's mouse and keys through the form's handlers.
    virtual void Watch(QWidget* widget, Mirror& mirror) = 0;
    // Calls the mirror's Flush once, before the next picture; so many requests cost one.
    virtual void FlushSoon(Mirror& mirror) = 0;
    virtual forms::UserInput& Input() = 0;
    virtual forms::Form& Form() = 0;
    // For whoever runs a handler by something else than the mouse and the keys.
    virtual RepaintRest& Rest() = 0;
    // Null for a control without one yet.
    virtual Mirror* MirrorOf(forms::Control& control) = 0;
};

// One control on the screen: keeps a widget in line with it. The control is the truth; a widget
// tells of nothing but the user's hands.
class Mirror {
 public:
    Mirror(forms::Control& control, MirrorHost& host) : control(control), host(host) {}
    virtual ~Mirror();
    Mirror(const Mirror&) = delete;
    Mirror& operator=(const Mirror&) = delete;

    forms::Control& GetControl() const { return control; }
    MirrorHost& Host() const { return host; }
    // Null for a control that is not to be seen, such as a timer.
    QWidget* Widget() const { return widget; }
    // Where the focus goes and text is edited.
    virtual QWidget* Editor() const { return nullptr; }

    virtual void Apply(forms::Aspect aspect);
    // Puts off changes that come in great numbers.
    virtual void Flush() {}

    // The row under a point of the screen, for lists.
    virtual std::optional<int> RowAt(QPoint) const { return {}; }
    virtual bool HasRows() const { return false; }
    virtual const RowSource* RowsShown() const { return nullptr; }
    // The row's place on the screen, which it may have been scrolled out of.
    virtual QRect RowRect(int) const { return {}; }
    virtual int SelectedRow() const { return -1; }
    virtual void ClickRow(int, int /*shift*/) {}
    virtual void SelectRow(int) {}
    // The user works by keys: what the mouse rests on is not what he means.
    virtual void ForgetMouse() {}
    // The form's focus has moved.
    virtual void FocusMoved() {}
    // The arrow of a drop-down list.
    virtual bool IsOnArrow(QPoint /*global*/) const { return false; }
    virtual void ShowRows() {}
    // Whole rows that fit.
    virtual int PageRows() const { return 10; }
    // The widget has mouse work of its own: a caret, a handle, a popup.
    virtual bool UsesMouse() const { return false; }
    virtual void ShowPressed(bool) {}
    // The window has another colour, which shows through, or next to what has one of its own.
    virtual void WindowColored();
    // Pixels that the widget reaches beyond its control.
    virtual QMargins Overhang() const { return {}; }

    // Twips from the control's edges.
    forms::Mouse MouseAt(QPoint global, int button, int shift) const;

 protected:
    // Takes the widget in and shows the control's state on it.
    void Adopt(QWidget* newWidget);
    virtual void ApplyColors();

    forms::Control& control;
    MirrorHost& host;
    QPointer<QWidget> widget;
};

// "<" and "&" in a tool tip are no markup: a file name may hold them.
QString PlainToolTip(const QString& text);
QString PlainToolTip(const std::string& text);

}  // namespace kivu::view
