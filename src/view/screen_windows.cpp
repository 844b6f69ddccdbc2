#include "view/screen_windows.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QScreen>

#include "view/fit_into.h"
#include "view/geometry.h"
#include "view/session.h"

namespace kivu::view {

namespace {
const auto freeEvent = static_cast<QEvent::Type>(QEvent::registerEventType());
}

ScreenWindows::ScreenWindows() = default;

ScreenWindows::~ScreenWindows() = default;

void ScreenWindows::AdoptView(forms::Form& form, FormView& view) {
    Adopt(form);
    mainForm = &form;
    mainView = &view;
    view.onFrameChanged = [this] { FollowOwners(); };
}

// Owners stand behind what is shown over them.
void ScreenWindows::FollowOwners() {
    for (const Window& window : OpenWindows()) {
        if (FormView* view = ViewOf(*window.form)) view->FollowOwner();
    }
}

FormView* ScreenWindows::ViewOf(const forms::Form& form) const {
    if (&form == mainForm) return mainView;
    const auto found = views.find(&form);
    return found == views.end() ? nullptr : found->second.get();
}

QScreen* ScreenWindows::ScreenOf(const forms::Form* form) const {
    FormView* view = form ? ViewOf(*form) : nullptr;
    return view ? view->Window().screen() : QGuiApplication::primaryScreen();
}

forms::Size ScreenWindows::Room(const forms::Form* over) const {
    const QScreen* screen = ScreenOf(over);
    const QSize room = screen ? screen->availableSize() : QSize(1024, 768);
    return {ToTwips(room.width()), ToTwips(room.height())};
}

forms::Point ScreenWindows::RoomCorner(const forms::Form* over) const {
    const QScreen* screen = ScreenOf(over);
    const QPoint corner = screen ? screen->availableGeometry().topLeft() : QPoint();
    return {ToTwips(corner.x()), ToTwips(corner.y())};
}

// Boxes count, and whatever else of the program's takes the keyboard.
forms::WindowHost::Activity ScreenWindows::ActiveWindow() const {
    if (QGuiApplication::focusWindow()) return Activity::ours;
    return isElsewhere && isElsewhere() ? Activity::others : Activity::unknown;
}

bool ScreenWindows::CanStayOnTop() const {
    return ThisSession().keepsOnTop;
}

FormView& ScreenWindows::MakeView(forms::Form& form) {
    auto made = std::make_unique<FormView>(form);
    made->SetHosted();
    made->onFrameChanged = [this] { FollowOwners(); };
    if (isComposited) made->SetCompositing(isComposited);
    return *(views[&form] = std::move(made));
}

void ScreenWindows::Appear(const Window& window) {
    if (window.form == mainForm) return;
    FormView* view = ViewOf(*window.form);
    if (!view) {
        if (const QScreen* screen = ScreenOf(window.over); screen && window.over)
            FitInto(*window.form, screen->availableGeometry());
        view = &MakeView(*window.form);
    }
    view->StandOver(window.over ? ViewOf(*window.over) : nullptr, window.modal);
    view->Show();
    if (window.form->Activates()) view->Window().activateWindow();
    view->Window().raise();
}

void ScreenWindows::ComeForward(forms::Form& form) {
    FormView* view = ViewOf(form);
    if (!view) return;
    form.Activates() ? view->Summon() : view->Window().raise();
}

void ScreenWindows::Vanish(forms::Form& form) {
    if (&form == mainForm) return;
    if (FormView* view = ViewOf(form)) view->Hide();
    WakeLoops();
}

void ScreenWindows::Forget(forms::Form& form) {
    if (&form == mainForm) mainForm = nullptr;
    views.erase(&form);
    WakeLoops();
}

// Each looks for itself whether its window is still open.
void ScreenWindows::WakeLoops() {
    for (QEventLoop* loop : loops)
        loop->quit();
}

void ScreenWindows::Serve(forms::Form&, const std::function<bool()>& isOpen) {
    QEventLoop loop;
    loops.push_back(&loop);
    while (isOpen())
        loop.exec(QEventLoop::DialogExec);
    std::erase(loops, &loop);
}

void ScreenWindows::FreeWanted() {
    if (freePosted) return;
    freePosted = true;
    QCoreApplication::postEvent(this, new QEvent(freeEvent));
}

bool ScreenWindows::event(QEvent* event) {
    if (event->type() != freeEvent) return QObject::event(event);
    freePosted = false;
    FreeUnloaded();
    return true;
}

}  // namespace kivu::view
