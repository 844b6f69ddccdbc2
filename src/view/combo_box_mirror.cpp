#include "view/combo_box_mirror.h"

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QWheelEvent>
#include <utility>

#include "view/choice_box.h"
#include "view/geometry.h"

namespace kivu::view {

namespace {

class Combo : public QComboBox {
 public:
    Combo(const RowSource& source, QWidget* parent) : QComboBox(parent), source(source) {
        setEditable(true);
        setInsertPolicy(QComboBox::NoInsert);
        setCompleter(nullptr);
        // Leaving the field or Enter in it would look the text up among the rows and choose one.
        disconnect(lineEdit(), SIGNAL(editingFinished()), this, nullptr);
        disconnect(lineEdit(), SIGNAL(returnPressed()), this, nullptr);
        lineEdit()->setFrame(false);
        lineEdit()->setFocusPolicy(Qt::NoFocus);
        QObject::connect(lineEdit(), &QLineEdit::textChanged, this, [this] { FitText(); });
    }

    void showPopup() override {
        DressPopup(*this, source);
        dressed = true;
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
        // The toolkit would make the popup for its font, and lay out all rows in it: what a plain
        // widget does is enough. NOLINTBEGIN(bugprone-parent-virtual-call)
        font && !dressed ? QWidget::changeEvent(event) : QComboBox::changeEvent(event);
        // NOLINTEND(bugprone-parent-virtual-call)
        if (font) FitText();
    }

 private:
    // The field's width follows the font by a fixed rule, so a long text is set narrower before it
    // is cut.
    void FitText() {
        // Until then the field has no width of its own, and each narrower font costs an engine.
        if (!isVisible()) return;
        const QFont fitted = Fitted(font(), lineEdit()->text(), lineEdit()->width() - 8);
        if (lineEdit()->font() != fitted) lineEdit()->setFont(fitted);
    }

    const RowSource& source;
    bool dressed = false;
};

QComboBox* MakeCombo(const forms::ComboBox& box, const RowSource& source, QWidget* parent) {
    if (box.IsChoice()) return new ChoiceBox(box, source, parent);
    return new Combo(source, parent);
}

}  // namespace

ComboBoxMirror::ComboBoxMirror(forms::ComboBox& control, QWidget* parent, MirrorHost& host)
    : Mirror(control, host),
      box(control),
      source(control),
      combo(MakeCombo(control, source, parent)),
      rows(new Rows(source, combo)) {
    if (combo->lineEdit()) editor.emplace(control, combo->lineEdit());
    combo->setDuplicatesEnabled(true);
    combo->setMaxVisibleItems(16);
    combo->setModel(rows);
    QObject::connect(combo, &QComboBox::activated, combo, [this](int row) {
        const RepaintRest::Handler running(this->host.Rest());
        if (box.IsReachable()) box.ClickRow(row);
        // Where the click changed nothing the toolkit has still written the row into the field.
        ShowSelectedRow();
    });
    Adopt(combo);
    if (combo->lineEdit()) host.Watch(combo->lineEdit(), *this);
}

void ComboBoxMirror::Apply(forms::Aspect aspect) {
    Mirror::Apply(aspect);
    if (!combo) return;
    switch (aspect) {
        case forms::Aspect::text:
            ShowText();
            break;
        case forms::Aspect::rows:
            rowsChanged = true;
            host.FlushSoon(*this);
            break;
        case forms::Aspect::selection:
            if (editor) editor->ShowSelection();
            host.FlushSoon(*this);
            break;
        default:
            break;
    }
}

QMargins ComboBoxMirror::Overhang() const {
    return {0, 0, ToPixels(box.Left() + box.ShownWidth()) - ToPixels(box.Right()), 0};
}

void ComboBoxMirror::ShowText() {
    if (editor) {
        editor->ShowText();
        return;
    }
    combo->update();
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
    ShowText();
}

bool ComboBoxMirror::IsOnArrow(QPoint global) const {
    if (!combo) return false;
    QStyleOptionComboBox option;
    option.initFrom(combo);
    return combo->style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, combo)
        .contains(combo->mapFromGlobal(global));
}

void ComboBoxMirror::ShowRows() {
    if (combo && !host.Input().DropDown(box)) combo->showPopup();
}

}  // namespace kivu::view
