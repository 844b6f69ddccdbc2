#pragma once

#include <QDialog>
#include <QPoint>
#include <QString>
#include <cstddef>
#include <vector>

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace kivu::hosts {

// The common shape of the boxes: no frame, a title, a text, a row of buttons at the right; moved by
// its surface.
class DialogBox : public QDialog {
 public:
    DialogBox(const QString& name, const QString& title);

    // A coloured disc with a letter in front of the text.
    void SetSign(const QString& letter, const QColor& color);
    // Plain text; CR, LF and CR LF break its lines.
    void SetText(const QString& text);
    void AddWidget(QWidget* widget);
    // Closes the box with `result` (above 0). The first button is the one that Enter presses.
    QPushButton* AddButton(const QString& name, const QString& caption, int result);

    // Shows the box over the active window and waits. 0: closed or Escape.
    int Ask();

    // For who has no keyboard. Moves the focus among the buttons, which have ends.
    void StepToButton(int step);
    // The one in focus, or the one that Enter presses.
    void PressButton();

 protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

 private:
    std::vector<QPushButton*> Buttons() const;
    // Of the one in focus, or else of the one that Enter presses.
    std::size_t CurrentButton(const std::vector<QPushButton*>& all) const;

    bool blended;  // the screen lays windows over one another
    bool gripped = false;
    QPoint grippedAt;
    QVBoxLayout* body = nullptr;
    QHBoxLayout* message = nullptr;
    QHBoxLayout* buttons = nullptr;
};

}  // namespace kivu::hosts
