#include <QTimer>
#include <QWindow>

#include "forms/form.h"
#include "view/accessible_control.h"
#include "view/open_to_hands.h"
#include "view/rows.h"
#include "view/text.h"

namespace kivu::view {

namespace {

// What a double click does: starts the game, or opens what the row stands for.
QString ActivateAction() {
    return QStringLiteral("Activate");
}

// One row. It stands for a number, whatever text that has by now.
class AccessibleRow : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
    AccessibleRow(QWidget* list, int row) : list(list), row(row) {}
    int Row() const { return row; }

    bool isValid() const override { return Source() && row < Source()->Count(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return list ? list->window()->windowHandle() : nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return list ? QAccessible::queryAccessibleInterface(list) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}
    QString text(QAccessible::Text which) const override {
        if (which != QAccessible::Name || !isValid()) return {};
        return ToQt(Source()->Text(row)).trimmed();
    }
    QRect rect() const override { return isValid() ? Find()->RowRect(row) : QRect(); }
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const forms::Control& control = Find()->GetControl();
        state.selectable = state.focusable = true;
        state.selected = Source()->IsMarked(row);
        state.focused = control.HasFocus() && list->isActiveWindow() && Source()->Selected() == row;
        state.disabled = !IsOpen() && list->isVisible();
        state.invisible = !list->isVisible();
        const QRect seen(list->mapToGlobal(QPoint(0, 0)), list->size());
        state.offscreen = !rect().intersects(seen);
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    // To choose a row is to click it; Enter and the buttons take what has been clicked.
    QStringList actionNames() const override {
        QStringList names{pressAction(), setFocusAction()};
        if (Find() && Find()->GetControl().onDblClick) names << ActivateAction();
        return names;
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& name) override {
        if (!isValid() || !IsOpen() || !actionNames().contains(name)) return;
        // Another emulator's games may be loaded for it, and the tool must not wait so long.
        QTimer::singleShot(0, list, [list = list, row = row, name] {
            const AccessibleRow asked(list, row);
            if (asked.isValid() && asked.IsOpen()) asked.Click(name == ActivateAction());
        });
    }

 private:
    void Click(bool twice) const {
        Mirror& mirror = *Find();
        const RepaintRest::Handler running(mirror.Host().Rest());
        forms::Control& control = mirror.GetControl();
        const forms::HeldForm held(control);
        forms::UserInput& input = mirror.Host().Input();
        twice ? input.DoubleClick(control, row) : input.Click(control, row);
    }
    bool IsOpen() const { return Find()->GetControl().IsReachable() && IsOpenToHands(*list); }
    Mirror* Find() const { return MirrorOfWidget(list); }
    const RowSource* Source() const { return Find() ? Find()->RowsShown() : nullptr; }

    QPointer<QWidget> list;
    int row;
};

}  // namespace

AccessibleRows::~AccessibleRows() {
    for (const auto& [row, id] : rows)
        QAccessible::deleteAccessibleInterface(id);
}

int AccessibleRows::childCount() const {
    const Mirror* mirror = Find();
    return mirror && mirror->RowsShown() ? mirror->RowsShown()->Count() : 0;
}

QAccessibleInterface* AccessibleRows::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    QAccessible::Id& id = rows[index];
    if (!id) id = QAccessible::registerAccessibleInterface(new AccessibleRow(widget, index));
    return QAccessible::accessibleInterface(id);
}

int AccessibleRows::indexOfChild(const QAccessibleInterface* wanted) const {
    const auto* row = dynamic_cast<const AccessibleRow*>(wanted);
    return row && row->parent() == this ? row->Row() : -1;
}

QAccessibleInterface* AccessibleRows::focusChild() const {
    const Mirror* mirror = Find();
    // The rows of a drop-down are put away while its field has the focus.
    if (!mirror || !mirror->RowsShown() || MeaningOf(Control()) == Meaning::choice) return nullptr;
    return Control().HasFocus() ? child(mirror->RowsShown()->Selected()) : nullptr;
}

QAccessibleInterface* AccessibleRows::childAt(int x, int y) const {
    const Mirror* mirror = Find();
    if (!mirror || !rect().contains(x, y)) return nullptr;
    const std::optional<int> row = mirror->RowAt(QPoint(x, y));
    return row ? child(*row) : nullptr;
}

}  // namespace kivu::view
