#include "hosts/qt/dialog_box.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QWindow>
#include <algorithm>

#include "hosts/qt/compositing_qt.h"

namespace kivu::hosts {

namespace {

constexpr int widest = 560;  // pixels of text before it breaks
constexpr int cornerRadius = 12;

// The window that a box belongs to: the active one, or while none is, the one that is seen.
QWidget* Owner() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const bool popup = window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip;
        // One that keeps off the keyboard may go by itself at any time, and the box with it.
        const bool passing = window->testAttribute(Qt::WA_ShowWithoutActivating);
        if (window->isVisible() && !popup && !passing) return window;
    }
    return nullptr;
}

class Sign : public QWidget {
 public:
    Sign(const QString& letter, const QColor& color) : letter(letter), color(color) {
        setFixedSize(44, 44);
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(rect());
        QFont large = font();
        large.setPixelSize(26);
        large.setBold(true);
        painter.setFont(large);
        painter.setPen(QColor(0x14, 0x1c, 0x2b));
        painter.drawText(rect(), Qt::AlignCenter, letter);
    }

 private:
    QString letter;
    QColor color;
};

}  // namespace

DialogBox::DialogBox(const QString& name, const QString& title)
    : QDialog(Owner(), Qt::Dialog | Qt::FramelessWindowHint), blended(IsComposited()) {
    // Over a window that stays on top of all others only one that does so too is seen.
    const QWindow* owner = parentWidget() ? parentWidget()->windowHandle() : nullptr;
    if (owner && owner->flags().testFlag(Qt::WindowStaysOnTopHint)) {
        setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    setAttribute(Qt::WA_TranslucentBackground, blended);
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
    QFont text = font();
    text.setPointSizeF(10.5);
    setFont(text);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(24, 18, 24, 20);
    outer->setSpacing(16);
    auto* caption = new QLabel(title);
    caption->setTextFormat(Qt::PlainText);
    QFont bold = text;
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    caption->setFont(bold);
    outer->addWidget(caption);
    message = new QHBoxLayout;
    message->setSpacing(18);
    body = new QVBoxLayout;
    body->setSpacing(12);
    message->addLayout(body, 1);
    outer->addLayout(message, 1);
    buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    buttons->addStretch(1);
    outer->addLayout(buttons);
    setMinimumWidth(340);
}

void DialogBox::SetSign(const QString& letter, const QColor& color) {
    message->insertWidget(0, new Sign(letter, color), 0, Qt::AlignTop);
}

void DialogBox::SetText(const QString& text) {
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    while (lines.endsWith(u'\n'))
        lines.chop(1);
    auto* label = new QLabel(lines);
    // Measured before it has a parent to take the font from.
    label->setFont(font());
    label->setObjectName(QStringLiteral("Text"));
    label->setAccessibleName(lines);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    const int wanted =
        label->fontMetrics().boundingRect({0, 0, 1 << 20, 1 << 20}, 0, lines).width();
    const int width = std::min(wanted + 8, widest);
    label->setMinimumWidth(width);
    const int height = std::max(0, label->heightForWidth(width));
    const QScreen* screen = QGuiApplication::primaryScreen();
    const int room = screen ? screen->availableSize().height() * 3 / 5 : 600;
    if (height <= room) {
        label->setMinimumHeight(height);
        body->addWidget(label, 1, Qt::AlignVCenter);
        return;
    }
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(label);
    scroll->setMinimumSize(width + 20, room);
    body->addWidget(scroll);
}

void DialogBox::AddWidget(QWidget* widget) {
    body->addWidget(widget);
}

QPushButton* DialogBox::AddButton(const QString& name, const QString& caption, int result) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setMinimumSize(96, 34);
    const bool first = buttons->count() == 1;
    button->setDefault(first);
    connect(button, &QPushButton::clicked, this, [this, result] { done(result); });
    buttons->addWidget(button);
    if (first) button->setFocus();
    return button;
}

int DialogBox::Ask() {
    adjustSize();
    const QWidget* over = parentWidget();
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (over) {
        move(over->geometry().center() - rect().center());
    } else if (screen) {
        move(screen->availableGeometry().center() - rect().center());
    }
    return exec();
}

std::vector<QPushButton*> DialogBox::Buttons() const {
    std::vector<QPushButton*> all;
    for (int i = 0; i < buttons->count(); ++i) {
        if (auto* button = qobject_cast<QPushButton*>(buttons->itemAt(i)->widget()))
            all.push_back(button);
    }
    return all;
}

std::size_t DialogBox::CurrentButton(const std::vector<QPushButton*>& all) const {
    const auto found = std::find(all.begin(), all.end(), focusWidget());
    return found == all.end() ? 0 : static_cast<std::size_t>(found - all.begin());
}

void DialogBox::StepToButton(int step) {
    const std::vector<QPushButton*> all = Buttons();
    if (all.empty()) return;
    const int last = static_cast<int>(all.size()) - 1;
    const int wanted = std::clamp(static_cast<int>(CurrentButton(all)) + step, 0, last);
    QPushButton& button = *all[static_cast<std::size_t>(wanted)];
    button.setFocus(Qt::TabFocusReason);
    // Enter presses it from now on. The toolkit sees to that in the active window alone.
    button.setDefault(true);
}

void DialogBox::PressButton() {
    const std::vector<QPushButton*> all = Buttons();
    if (!all.empty()) all[CurrentButton(all)]->click();
}

void DialogBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor face = palette().color(QPalette::Window);
    // Where nothing blends the corners, the mask cuts them out of a whole face.
    if (!blended) painter.fillRect(rect(), face);
    painter.setPen(Qt::NoPen);
    painter.setBrush(face);
    painter.drawRoundedRect(rect(), cornerRadius, cornerRadius);
    painter.setPen(QColor(255, 255, 255, 70));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius - 0.5,
                            cornerRadius - 0.5);
}

void DialogBox::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    if (blended) return;
    QPainterPath shape;
    shape.addRoundedRect(rect(), cornerRadius, cornerRadius);
    setMask(QRegion(shape.toFillPolygon().toPolygon()));
}

// As in the system's own boxes a button's letter presses it without Alt, too.
void DialogBox::keyPressEvent(QKeyEvent* event) {
    const bool alone = (event->modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) == 0;
    for (QPushButton* button : findChildren<QPushButton*>()) {
        const QKeySequence letter = QKeySequence::mnemonic(button->text());
        if (!alone || letter.isEmpty() || letter[0].key() != event->key()) continue;
        button->click();
        return;
    }
    QDialog::keyPressEvent(event);
}

void DialogBox::mousePressEvent(QMouseEvent* event) {
    gripped = event->button() == Qt::LeftButton;
    grippedAt = event->globalPosition().toPoint();
}

// Only once the mouse has moved with the button down: a window manager that is asked behind the
// release would never let go.
void DialogBox::mouseMoveEvent(QMouseEvent* event) {
    gripped = gripped && (event->buttons() & Qt::LeftButton);
    const int way = (event->globalPosition().toPoint() - grippedAt).manhattanLength();
    if (!gripped || way < QApplication::startDragDistance()) return;
    gripped = false;
    if (windowHandle()) windowHandle()->startSystemMove();
}

}  // namespace kivu::hosts
