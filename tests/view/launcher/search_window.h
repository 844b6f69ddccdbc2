#pragma once

#include <QAbstractItemView>
#include <QLineEdit>
#include <QTest>
#include <QWindow>
#include <memory>

#include "scenarios/scenario.h"
#include "view/form_view.h"
#include "wiring/routines.h"

namespace kivu::scenarios {

// The launcher in its window. Keys go to the window, as a screen sends them.
class SearchWindow : public Scenario {
 protected:
    void TearDown() override {
        view.reset();
        Scenario::TearDown();
    }
    void Show() {
        view.reset();  // it looks at the form of the start before
        Start();
        view = std::make_unique<view::FormView>(Form());
        view->Show();
        constexpr int patience = 20000;  // milliseconds; a busy machine is slow
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view->Window(), patience));
        view->Window().activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([this] { return view->Window().isActiveWindow(); }, patience));
        Settle();
    }
    void Settle() { QCoreApplication::processEvents(); }

    QWindow* Native() { return view->Window().windowHandle(); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(Native(), key, modifiers);
        Settle();
    }
    void Type(const char* text) {
        for (const QChar letter : QString::fromUtf8(text)) {
            if (letter.unicode() < 0x80) {
                QTest::keyClick(Native(), letter.toLatin1());
            } else {
                QTest::sendKeyEvent(QTest::Click, view->Window().focusWidget(), Qt::Key_unknown,
                                    QString(letter), Qt::NoModifier);
            }
        }
        Settle();
    }

    template <typename T>
    T* Find(const char* name) {
        T* found = view->Window().findChild<T*>(QString::fromUtf8(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    void Click(const char* name) {
        auto* widget = Find<QWidget>(name);
        QTest::mouseClick(Native(), Qt::LeftButton, {},
                          widget->mapTo(&view->Window(), widget->rect().center()));
        Settle();
    }
    void DoubleClickRow(const char* name, int row) {
        auto* list = Find<QAbstractItemView>(name);
        const QPoint middle = list->visualRect(list->model()->index(row, 0)).center();
        QTest::mouseDClick(Native(), Qt::LeftButton, {},
                           list->viewport()->mapTo(&view->Window(), middle));
        Settle();
    }
    // What a user sees of a list.
    std::vector<std::string> Shown(const char* name) {
        auto* list = Find<QAbstractItemView>(name);
        std::vector<std::string> rows;
        for (int row = 0; list->isVisible() && row < list->model()->rowCount(); ++row)
            rows.push_back(list->model()->index(row, 0).data().toString().toStdString());
        return rows;
    }
    std::string Box() { return Find<QLineEdit>("SearchDblsTxt")->text().toStdString(); }
    bool HasFocus(const char* name) { return Find<QWidget>(name)->hasFocus(); }

    std::unique_ptr<view::FormView> view;
};

}  // namespace kivu::scenarios
