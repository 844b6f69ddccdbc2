#pragma once

#include <QComboBox>
#include <QWheelEvent>

#include "forms/list_control.h"
#include "view/rows.h"

namespace kivu::view {

// The rows of a drop-down list, drawn as those of a list.
void DressPopup(QComboBox& combo, const RowSource& source);

// `font` set narrower where `text` would not fit into `width`; beyond a quarter it would be hard to
// read.
QFont Fitted(QFont font, const QString& text, int width);

// A drop-down list whose field only shows a text, which need not be a row's. One that does not fit
// is cut with dots and can be read whole by its tool tip.
class ChoiceBox : public QComboBox {
 public:
    ChoiceBox(const forms::ComboBox& box, const RowSource& source, QWidget* parent)
        : QComboBox(parent), box(box), source(source) {}

    void showPopup() override;

 protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    // A wheel that turns over the window must not change what is chosen.
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

 private:
    QRect Field() const;
    QString ShownText() const;

    const forms::ComboBox& box;
    const RowSource& source;
    bool dressed = false;  // the popup has been made
};

}  // namespace kivu::view
