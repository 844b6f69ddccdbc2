#pragma once

#include <QListView>

#include "view/rows.h"

namespace kivu::view {

// The rows of a list box on the screen. It always begins with a whole row, and the row under the
// mouse is lit only while it is the mouse that the user works with.
class ListView : public QListView {
 public:
    explicit ListView(QWidget* parent);

    // Quiet words in the place of the rows while there are none.
    void SetHint(const QString& words);
    // Nothing is under the mouse until it moves.
    void ForgetMouse();
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void updateGeometries() override;
    void wheelEvent(QWheelEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

 private:
    int Step() const;
    // Where a scroll position comes to rest: the nearest row's top.
    int Snapped(int value) const;

    QString hint;
    int turned = 0;  // of the wheel, in lines times a notch's 120, that made no whole row yet
    bool mouseRests = false;
    QPointF restingAt;  // pixels of the screen
};

}  // namespace kivu::view
