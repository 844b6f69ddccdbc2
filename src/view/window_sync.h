#pragma once

#include <QRect>
#include <QTimer>

#include "forms/form.h"
#include "view/form_surface.h"

namespace kivu::view {

// Keeps the native window and the form in line, both ways: place, size, state, frame, title.
//
// The model's twips lead. Pixels reach the model only where the user or the window manager has
// changed the window, and then only the numbers that changed.
class WindowSync {
 public:
    WindowSync(forms::Form& form, FormSurface& window);

    void Apply(forms::Aspect aspect);
    void Show();
    // An event of the window: moved, resized, another state.
    void Observe(const QEvent& event);
    // The window is where the user has put it by a drag of our own.
    void TakeGeometry();
    // True: the user may resize it by its edges.
    bool HasEdges() const;
    // Pixels that it can be made as small as from this size; no more than it has.
    static QSize LeastSize(QSize now);
    // Pixels, as it is shown.
    int CornerRadius() const;
    // It stands over a window that stays on top of all others, and so must it.
    void SetAboveTopmost(bool value);
    bool IsOnTop() const { return form.IsTopmost() || form.IsAboveAll() || aboveTopmost; }

 private:
    struct Place {
        int left, top, width, height;  // twips
    };

    void RequestGeometry();
    void LimitHand(QSize size);
    void ApplyState();
    void ApplyFrame();
    void ObserveState();
    Qt::WindowFlags Flags() const;
    QRect Current() const;

    forms::Form& form;
    FormSurface& window;
    QRect known;     // pixels that the window has, or has been asked to take
    QTimer answer;   // runs while the window manager has not answered the last request
    Place normal{};  // where the window goes back to from another state
    QRect normalPixels;
    forms::WindowState last = forms::WindowState::normal;
    bool shown = false;
    bool aboveTopmost = false;
};

}  // namespace kivu::view
