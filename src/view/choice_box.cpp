#include "view/choice_box.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QListView>
#include <QPointer>
#include <QStylePainter>
#include <QToolTip>
#include <algorithm>

#include "view/colors.h"
#include "view/mirror.h"
#include "view/row_delegate.h"
#include "view/text.h"

namespace kivu::view {

namespace {

// The toolkit's popup closes by a key while that is offered as a shortcut, in front of its press.
// Where the session leaves the keyboard with the window (Wayland), the press would then be the
// window's: Escape would ask to quit, Enter would start what is marked. So it closes by the press.
class KeysOfPopup : public QObject {
 public:
    explicit KeysOfPopup(QAbstractItemView& view) : QObject(&view), view(view) {
        view.installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (offering || object != &view) return false;
        if (event->type() == QEvent::ShortcutOverride) {
            event->accept();
            return true;
        }
        return event->type() == QEvent::KeyPress && Close(static_cast<QKeyEvent&>(*event));
    }

 private:
    bool Close(QKeyEvent& press) {
        QKeyEvent offer(QEvent::ShortcutOverride, press.key(), press.modifiers(), press.text(),
                        press.isAutoRepeat());
        const QPointer<QObject> alive(this);
        offering = true;
        QCoreApplication::sendEvent(&view, &offer);
        // The row that is chosen may have done away with all of this.
        if (alive) offering = false;
        if (alive && view.isVisible()) return false;
        press.accept();
        return true;
    }

    QAbstractItemView& view;
    bool offering = false;
};

}  // namespace

void DressPopup(QComboBox& combo, const RowSource& source) {
    QAbstractItemView* view = combo.view();
    if (!dynamic_cast<RowDelegate*>(view->itemDelegate())) {
        view->setItemDelegate(new RowDelegate(source, true, view));
        view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        if (auto* list = qobject_cast<QListView*>(view)) list->setUniformItemSizes(true);
        view->window()->setFont(combo.font());
        new KeysOfPopup(*view);
    }
    view->setMinimumWidth(combo.width());
}

QFont Fitted(QFont font, const QString& text, int width) {
    constexpr int least = 75;  // percent
    const double wanted = QFontMetricsF(font).horizontalAdvance(text);
    if (width <= 0 || wanted <= width) return font;
    // Letters take whole pixels, so that more than this share of their widths may be left.
    int stretch = static_cast<int>(100 * width / wanted);
    do {
        font.setStretch(std::max(least, stretch));
        stretch -= 3;
    } while (font.stretch() > least && QFontMetricsF(font).horizontalAdvance(text) > width);
    return font;
}

void ChoiceBox::showPopup() {
    DressPopup(*this, source);
    dressed = true;
    QComboBox::showPopup();
}

QRect ChoiceBox::Field() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    constexpr int margin = 2;  // pixels, as in a field that can be edited
    return style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
        .adjusted(margin, 0, -margin, 0);
}

QString ChoiceBox::ShownText() const {
    const QString whole = ToQt(box.Text());
    const int width = Field().width();
    return QFontMetrics(Fitted(font(), whole, width)).elidedText(whole, Qt::ElideRight, width);
}

bool ChoiceBox::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || ShownText() == ToQt(box.Text()))
        return QComboBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainToolTip(box.Text()),
                       this);
    return true;
}

void ChoiceBox::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field = Field();
    painter.setFont(Fitted(font(), ToQt(box.Text()), field.width()));
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    painter.setPen(isEnabled() ? text : MixFor(3.5, base, text, 0.7));
    painter.drawText(field, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, ShownText());
}

void ChoiceBox::changeEvent(QEvent* event) {
    // The toolkit would make the popup for its font, and lay out all rows in it: what a plain
    // widget does is enough. NOLINTBEGIN(bugprone-parent-virtual-call)
    const bool font = event->type() == QEvent::FontChange;
    font && !dressed ? QWidget::changeEvent(event) : QComboBox::changeEvent(event);
    // NOLINTEND(bugprone-parent-virtual-call)
}

void ChoiceBox::mousePressEvent(QMouseEvent* event) {
    // A program that shows the rows itself has heard of the mouse already.
    if (!box.onDropDown) QComboBox::mousePressEvent(event);
}

}  // namespace kivu::view
