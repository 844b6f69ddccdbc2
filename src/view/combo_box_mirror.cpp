#include "view/combo_box_mirror.h"

#include <QListView>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "view/row_delegate.h"

namespace kivu::view {

namespace {

class Combo : public QComboBox {
 public:
    Combo(const RowSource& source, QWidget* parent) : QComboBox(parent), source(source) {
        setEditable(true);
        setInsertPolicy(QComboBox::NoInsert);
        setDuplicatesEnabled(true);
        setCompleter(nullptr);
        setMaxVisibleItems(16);
        // Leaving the field or Enter in it would look the text up among the rows and choose one.
        disconnect(lineEdit(), SIGNAL(editingFinished()), this, nullptr);
        disconnect(lineEdit(), SIGNAL(returnPressed()), this, nullptr);
        lineEdit()->setFrame(false);
        lineEdit()->setFocusPolicy(Qt::NoFocus);
        QObject::connect(lineEdit(), &QLineEdit::textChanged, this, [this] { FitText(); });
    }

    void showPopup() override {
        // The popup is made when it is first wanted.
        if (!dressed) {
            dressed = true;
            view()->window()->setFont(font());
            view()->setItemDelegate(new RowDelegate(source, true, view()));
            view()->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
            if (auto* list = qobject_cast<QListView*>(view())) list->setUniformItemSizes(true);
        }
        view()->setMinimumWidth(width());
        QComboBox::showPopup();
    }

 protected:
    // A wheel that turns over the window must not change what is chosen.
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

    void resizeEvent(QResizeEvent* event) override {
        QComboBox::resizeEvent(event);
        FitText();
    }

    void showEvent(QShowEvent* event) override {
        QComboBox::showEvent(event);
        FitText();
    }

    void changeEvent(QEvent* event) override {
        const bool font = event->type() == QEvent::FontChange;
        // The toolkit would make the popup for its font, and lay out all rows in it.
        font && !dressed ? QWidget::changeEvent(event) : QComboBox::changeEvent(event);
        if (font) FitText();
    }

 private:
    // The field's width follows the font by a fixed rule, so a long text is set narrower before it
    // is cut; beyond a quarter it would be hard to read.
    void FitText() {
        // Until then the field has no width of its own, and each narrower font costs an engine.
        if (!isVisible()) return;
        QFont fitted = font();
        const int room = lineEdit()->width() - 8;
        const int wanted = QFontMetrics(fitted).horizontalAdvance(lineEdit()->text());
        if (room > 0 && wanted > room) fitted.setStretch(std::max(75, 100 * room / wanted));
        if (lineEdit()->font() != fitted) lineEdit()->setFont(fitted);
    }

    const RowSource& source;
    bool dressed = false;
};

}  // namespace

ComboBoxMirror::ComboBoxMirror(forms::ComboBox& control, QWidget* parent, MirrorHost& host)
    : Mirror(control, host),
      box(control),
      source(control),
      combo(new Combo(source, parent)),
      rows(new Rows(source, combo)),
      editor(control, combo->lineEdit()) {
    combo->setModel(rows);
    QObject::connect(combo, &QComboBox::activated, combo, [this](int row) {
        if (box.IsReachable()) box.ClickRow(row);
        // Where the click changed nothing the toolkit has still written the row into the field.
        ShowSelectedRow();
    });
    Adopt(combo);
    host.Watch(combo->lineEdit(), *this);
}

void ComboBoxMirror::Apply(forms::Aspect aspect) {
    Mirror::Apply(aspect);
    if (!combo) return;
    switch (aspect) {
        case forms::Aspect::text:
            editor.ShowText();
            break;
        case forms::Aspect::rows:
            rowsChanged = true;
            host.FlushSoon(*this);
            break;
        case forms::Aspect::selection:
            editor.ShowSelection();
            host.FlushSoon(*this);
            break;
        default:
            break;
    }
}

void ComboBoxMirror::Flush() {
    if (!combo || !combo->isVisible()) return;
    if (std::exchange(rowsChanged, false)) {
        const QSignalBlocker quiet(combo);
        rows->Refresh();
    }
    ShowSelectedRow();
}

void ComboBoxMirror::ShowSelectedRow() {
    if (!combo) return;
    const int row = source.Selected();
    const QSignalBlocker quiet(combo);
    if (row < combo->count() && combo->currentIndex() != row) combo->setCurrentIndex(row);
    editor.ShowText();
}

}  // namespace kivu::view
