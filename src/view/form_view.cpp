#include "view/form_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWindow>
#include <algorithm>

#include "forms/controls.h"
#include "view/accessible.h"
#include "view/fonts.h"
#include "view/make_mirror.h"
#include "view/text.h"

namespace kivu::view {

namespace {

const auto flushEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

// The window as a place for mouse and keys; WindowSync does the rest.
class WindowMirror : public Mirror {
 public:
    WindowMirror(forms::Form& form, QWidget* window, MirrorHost& host) : Mirror(form, host) {
        widget = window;
        JoinAccessible(*this);
    }
    void Apply(forms::Aspect) override {}
};

// Lists cost much, and most of them are never shown: their widgets are made when they are.
bool HasRows(const forms::Control& control) {
    switch (control.GetKind()) {
        case forms::Kind::listBox:
        case forms::Kind::comboBox:
        case forms::Kind::driveListBox:
        case forms::Kind::dirListBox:
        case forms::Kind::fileListBox:
            return true;
        default:
            return false;
    }
}

bool IsShown(const forms::Control& control) {
    for (const forms::Control* at = &control; at; at = at->Parent()) {
        if (at->GetKind() == forms::Kind::form) break;
        if (!at->Visible()) return false;
    }
    return true;
}

}  // namespace

FormView::FormView(forms::Form& form)
    : form(form),
      surface(std::make_unique<FormSurface>(form)),
      rest(*surface),
      sync(form, *surface),
      drag(*surface, sync),
      pointer(form, input, drag, [this](forms::Control& control) { return Find(control); }),
      keyboard(form, input, [this](forms::Control& control) { return Find(control); }) {
    ServeAssistiveTools();
    surface->setObjectName(ToQt(form.FullName()));
    surface->setFont(ToQt(form.GetFont()));
    surface->setFocusPolicy(Qt::NoFocus);
    auto window = std::unique_ptr<WindowMirror>(new WindowMirror(form, surface.get(), *this));
    Watch(surface.get(), *window);
    mirrors.emplace(&form, std::move(window));
    for (forms::Control* control : form.Controls()) {
        if (IsWanted(*control)) Build(*control);
    }
    Stack(form);
    drag.ArrangeEdges();
    keyboard.onCloseKey = [this] {
        const QScopedValueRollback<bool> passed(closeKeyPassed, true);
        surface->close();
    };
    form.SetObserver(this);
}

FormView::~FormView() {
    form.SetObserver(nullptr);
    watched.clear();
    surface.reset();
}

Mirror* FormView::Find(forms::Control& control) const {
    const auto found = mirrors.find(&control);
    return found == mirrors.end() ? nullptr : found->second.get();
}

void FormView::Build(forms::Control& control) {
    Mirror* parent = control.Parent() ? Find(*control.Parent()) : nullptr;
    QWidget* place = parent && parent->Widget() ? parent->Widget() : surface.get();
    mirrors.emplace(&control, MakeMirror(control, place, *this));
}

bool FormView::IsWanted(const forms::Control& control) const {
    return !HasRows(control) || IsShown(control);
}

// What has been shown, with all that lies on it.
void FormView::BuildShown(forms::Control& control) {
    if (!Find(control)) {
        if (!IsWanted(control)) return;
        Build(control);
        StackAmongOthers(control);
        if (form.Focus() == &control) ShowFocus();
    }
    if (const auto* container = dynamic_cast<forms::Container*>(&control)) {
        for (forms::Control* child : container->Children())
            BuildShown(*child);
    }
}

// Below the next one in front of it.
void FormView::StackAmongOthers(forms::Control& control) {
    const auto& children = control.Parent()->Children();
    const auto widgetOf = [this](forms::Control* child) {
        const Mirror* mirror = Find(*child);
        return mirror ? mirror->Widget() : nullptr;
    };
    const auto inFront = std::find_if(
        std::next(std::find(children.begin(), children.end(), &control)), children.end(), widgetOf);
    QWidget* widget = widgetOf(&control);
    if (widget && inFront != children.end()) widget->stackUnder(widgetOf(*inFront));
    drag.ArrangeEdges();
}

// Controls need not lie on one another in the order in which they were made.
void FormView::Stack(const forms::Container& container) {
    for (forms::Control* child : container.Children()) {
        if (Mirror* mirror = Find(*child)) mirror->Apply(forms::Aspect::zOrder);
        if (const auto* inner = dynamic_cast<forms::Container*>(child)) Stack(*inner);
    }
}

void FormView::Watch(QWidget* widget, Mirror& mirror) {
    watched[widget] = &mirror;
    widget->installEventFilter(this);
    widget->setMouseTracking(true);
}

void FormView::Changed(forms::Control& control, forms::Aspect aspect) {
    if (&control == &form) {
        FormChanged(aspect);
        return;
    }
    // A control may have joined the form since.
    if (aspect == forms::Aspect::visible || !Find(control)) BuildShown(control);
    Mirror* mirror = Find(control);
    if (!mirror) return;
    mirror->Apply(aspect);
    TellChange(*mirror, aspect);
    if (aspect == forms::Aspect::zOrder) StackAmongOthers(control);
}

void FormView::FormChanged(forms::Aspect aspect) {
    switch (aspect) {
        case forms::Aspect::focus:
            ShowFocus();
            for (const auto& [control, mirror] : mirrors)
                mirror->FocusMoved();
            if (Mirror* mirror = form.Focus() ? Find(*form.Focus()) : nullptr) TellFocus(*mirror);
            break;
        case forms::Aspect::visible:
            if (!hosted) form.Visible() ? Show() : surface->hide();
            break;
        case forms::Aspect::enabled:
            surface->setEnabled(form.Enabled());
            break;
        case forms::Aspect::font:
            surface->setFont(ToQt(form.GetFont()));
            break;
        case forms::Aspect::picture:
            surface->TakePicture();
            break;
        case forms::Aspect::colors:
            surface->TakeColors();
            for (const auto& [control, mirror] : mirrors)
                mirror->WindowColored();
            break;
        default:
            sync.Apply(aspect);
            drag.ArrangeEdges();
            if (aspect == forms::Aspect::windowFrame && onFrameChanged) onFrameChanged();
    }
}

void FormView::Show() {
    // What a handler makes clickable shows it; handlers are joined after the controls were made.
    for (forms::Control* control : form.Controls()) {
        if (Mirror* mirror = Find(*control)) mirror->Apply(forms::Aspect::geometry);
    }
    FlushNow();
    ShowFocus();
    sync.Show();
    drag.ArrangeEdges();
}

void FormView::Hide() {
    const bool active = surface->isActiveWindow();
    surface->hide();
    // The window manager might give the keyboard to another program.
    if (active && owner && owner->surface->isVisible()) owner->surface->activateWindow();
}

void FormView::StandOver(FormView* newOwner, bool modal) {
    owner = newOwner;
    surface->setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
    // With its flags from the beginning: the toolkit would make a hidden native window anew for
    // others, and its widget would know the old one.
    FollowOwner();
    surface->winId();
    QWindow* below = owner ? owner->surface->windowHandle() : nullptr;
    surface->windowHandle()->setTransientParent(below);
}

void FormView::FollowOwner() {
    sync.SetAboveTopmost(owner && owner->sync.IsOnTop());
}

void FormView::SetCompositing(std::function<bool()> ask) {
    isComposited = std::move(ask);
    surface->SetComposited(isComposited());
}

void FormView::Summon() {
    if (surface->isMinimized())
        surface->setWindowState(surface->windowState() & ~Qt::WindowMinimized);
    surface->raise();
    surface->activateWindow();
}

void FormView::ShowFocus() {
    const QScopedValueRollback<bool> guard(movingFocus, true);
    Mirror* mirror = form.Focus() ? Find(*form.Focus()) : nullptr;
    QWidget* now = surface->focusWidget();
    QWidget* wanted = mirror ? mirror->Widget() : nullptr;
    if (wanted == now) return;
    if (wanted) {
        wanted->setFocus(Qt::OtherFocusReason);
    } else if (now) {
        now->clearFocus();
    }
}

void FormView::TakeFocus(Mirror& mirror, Qt::FocusReason reason) {
    // Windows and popups that come and go move the toolkit's focus; the form's stays.
    const bool passing = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                         reason == Qt::MenuBarFocusReason;
    if (movingFocus || passing || mirror.GetControl().HasFocus()) return;
    // A screen reader or the like has moved it.
    mirror.GetControl().SetFocus();
}

void FormView::FlushSoon(Mirror& mirror) {
    if (std::find(waiting.begin(), waiting.end(), &mirror) == waiting.end()) {
        waiting.push_back(&mirror);
    }
    if (flushPosted) return;
    flushPosted = true;
    // Before the picture is drawn, which is asked for with a low priority.
    QCoreApplication::postEvent(this, new QEvent(flushEvent), Qt::HighEventPriority);
}

void FormView::FlushNow() {
    const std::vector<Mirror*> mine = std::exchange(waiting, {});
    for (Mirror* mirror : mine) {
        mirror->Flush();
    }
}

bool FormView::event(QEvent* event) {
    if (event->type() != flushEvent) return QObject::event(event);
    flushPosted = false;
    FlushNow();
    return true;
}

bool FormView::eventFilter(QObject* object, QEvent* event) {
    const auto found = watched.find(object);
    if (found == watched.end()) return false;
    Mirror& mirror = *found->second;
    if (object == surface.get() && event->type() == QEvent::UpdateRequest) return rest.Holds();
    const RepaintRest::Handler running(rest);
    const forms::HeldForm held(form);
    altKey.See(*event);
    if (object == surface.get() && WindowEvent(*event)) return true;
    return HandEvent(*object, mirror, *event);
}

bool FormView::HandEvent(QObject& object, Mirror& mirror, QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
            return pointer.Handle(mirror, static_cast<QMouseEvent&>(event));
        case QEvent::ShortcutOverride:
            // The form's handlers come before any shortcut of the toolkit.
            event.accept();
            return true;
        case QEvent::KeyPress:
            if (HandToPopup(event)) return true;
            PressKey(object, static_cast<QKeyEvent&>(event));
            return true;
        case QEvent::ToolTip:
            // What can be clicked does something of its own, which the tip of its container does
            // not tell.
            return mirror.GetControl().onClick && mirror.GetControl().ToolTipText().empty() &&
                   !mirror.HasRows();
        case QEvent::FocusIn:
            TakeFocus(mirror, static_cast<QFocusEvent&>(event).reason());
            return false;
        case QEvent::Show:
            mirror.Flush();
            return false;
        default:
            return false;
    }
}

// Where the session leaves the keyboard with the window, the keys are still the open drop-down's.
bool FormView::HandToPopup(QEvent& event) {
    QWidget* popup = QApplication::activePopupWidget();
    if (!popup || !surface->isAncestorOf(popup->parentWidget())) return false;
    QWidget* rows = popup->focusWidget() ? popup->focusWidget() : popup;
    QCoreApplication::sendEvent(rows, &event);
    event.accept();
    return true;
}

void FormView::PressKey(QObject& object, QKeyEvent& event) {
    for (const auto& [control, mirror] : mirrors)
        mirror->ForgetMouse();
    keyboard.Press(static_cast<QWidget&>(object), event);
    // A field that makes nothing of a key would hand it on to the windows behind, and with it to
    // the form once more.
    event.accept();
}

bool FormView::WindowEvent(QEvent& event) {
    switch (event.type()) {
        case QEvent::WindowActivate:
            pointer.WindowActivated();
            if (isComposited) surface->SetComposited(isComposited());
            return false;
        case QEvent::Leave:
            pointer.LeftWindow();
            return false;
        case QEvent::Close:
            Close(event);
            return true;
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowStateChange:
            sync.Observe(event);
            drag.ArrangeEdges();
            return false;
        default:
            return false;
    }
}

// Window managers take Alt+F4 for themselves and ask the window to close.
bool FormView::IsCloseKey() {
    if (closeKeyPassed || !altKey.IsHeld()) return false;
    altKey.Use();
    return input.KeyDown({forms::keys::f4, forms::shifts::alt}).code == 0;
}

void FormView::Close(QEvent& request) {
    // A question over a window in the task bar would not be seen.
    const bool swallowed = IsCloseKey();
    if (!swallowed && surface->isMinimized()) Summon();
    if (swallowed || !form.RequestClose()) {
        request.ignore();
        return;
    }
    request.accept();
    if (hosted) {
        form.Unload();
        return;
    }
    surface->hide();
    if (onClosed) onClosed();
}

}  // namespace kivu::view
