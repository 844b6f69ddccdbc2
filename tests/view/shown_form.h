#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <gtest/gtest.h>

#include "view/form_view.h"
#include "view/sample_form.h"

namespace kivu::tests {

// The sample form on a screen, and a user's hands.
class ShownForm : public testing::Test {
 protected:
    void Show() {
        view.Show();
        constexpr int patience = 20000;  // milliseconds; a busy machine is slow
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view.Window(), patience));
        // A window manager that has just started may pass over the first request.
        ASSERT_TRUE(QTest::qWaitFor(
            [this] {
                if (!view.Window().isActiveWindow()) view.Window().activateWindow();
                return view.Window().isActiveWindow();
            },
            patience));
        Settle();
    }

    // Until nothing waits any more.
    void Settle() { QCoreApplication::processEvents(); }

    QWindow* Native() { return view.Window().windowHandle(); }

    template <typename T = QWidget>
    T* Find(const char* name) {
        T* found = view.Window().findChild<T*>(QString::fromUtf8(name));
        EXPECT_TRUE(found) << name;
        return found;
    }

    QPoint Middle(QWidget* widget) {
        return widget->mapTo(&view.Window(), widget->rect().center());
    }
    QPoint RowPoint(const char* name, int row) {
        auto* list = Find<QAbstractItemView>(name);
        const QRect rect = list->visualRect(list->model()->index(row, 0));
        return list->viewport()->mapTo(&view.Window(), rect.center());
    }
    void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(Native(), button, {}, at);
    }
    void DoubleClick(QPoint at) { QTest::mouseDClick(Native(), Qt::LeftButton, {}, at); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(Native(), key, modifiers);
    }
    void Wheel(QWidget* widget, int angle) {
        const QPointF at = widget->rect().center();
        QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, angle}, {}, {}, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(widget, &event);
    }
    void Type(const char* text) { QTest::keyClicks(view.Window().focusWidget(), text); }

    SampleForm form;
    view::FormView view{form};
};

}  // namespace kivu::tests
