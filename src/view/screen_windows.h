#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "forms/window_host.h"
#include "view/form_view.h"

class QEventLoop;

namespace kivu::view {

// Serves forms with real windows: over their owner and with it, on its screen, modal ones with an
// event loop of their own. The view of a form is made when it is first shown.
class ScreenWindows : public QObject, public forms::WindowHost {
 public:
    ScreenWindows();
    ~ScreenWindows() override;

    // The main window, which has a view already and is shown by it.
    void AdoptView(forms::Form& form, FormView& view);
    // Asked for each window; see FormView.
    void SetCompositing(std::function<bool()> ask) { isComposited = std::move(ask); }
    // Whether another program's window is known to be active.
    void SetElsewhere(std::function<bool()> ask) { isElsewhere = std::move(ask); }
    // Null: it has not been shown yet.
    FormView* ViewOf(const forms::Form& form) const;

    forms::Size Room(const forms::Form* over) const override;
    forms::Point RoomCorner(const forms::Form* over) const override;
    Activity ActiveWindow() const override;
    bool CanStayOnTop() const override;

    bool event(QEvent* event) override;

 protected:
    void Appear(const Window& window) override;
    void ComeForward(forms::Form& form) override;
    void Vanish(forms::Form& form) override;
    void Forget(forms::Form& form) override;
    void Serve(forms::Form& form, const std::function<bool()>& isOpen) override;
    void FreeWanted() override;

 private:
    FormView& MakeView(forms::Form& form);
    QScreen* ScreenOf(const forms::Form* form) const;
    void FollowOwners();
    void WakeLoops();

    std::unordered_map<const forms::Form*, std::unique_ptr<FormView>> views;
    const forms::Form* mainForm = nullptr;
    FormView* mainView = nullptr;
    std::vector<QEventLoop*> loops;  // of the modal windows
    std::function<bool()> isComposited;
    std::function<bool()> isElsewhere;
    bool freePosted = false;
};

}  // namespace kivu::view
