#pragma once

#include <QAbstractItemView>
#include <QCheckBox>
#include <QCoreApplication>
#include <QImage>
#include <QTest>
#include <QWindow>
#include <memory>

#include "scenarios/drives_collection.h"
#include "view/form_view.h"
#include "view/geometry.h"

namespace kivu::scenarios {

// The launcher's own window with the Amiga of several disks, and a user's hands.
class DrivesWindow : public DrivesScenario {
 protected:
    void TearDown() override {
        view.reset();
        DrivesScenario::TearDown();
    }
    void Show() {
        Start();
        view = std::make_unique<view::FormView>(Form());
        view->Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view->Window(), 20000));
        Settle();
    }
    void Settle() { QCoreApplication::processEvents(); }

    QWindow* Native() { return view->Window().windowHandle(); }
    template <typename T = QWidget>
    T* Find(const char* name) {
        T* found = view->Window().findChild<T*>(QString::fromUtf8(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    QPoint Middle(const char* name) {
        QWidget* widget = Find(name);
        return widget->mapTo(&view->Window(), widget->rect().center());
    }
    QRect RowRect(int row, const char* name = "UAE_Short") {
        auto* rows = Find<QAbstractItemView>(name);
        const QRect rect = rows->visualRect(rows->model()->index(row, 0));
        return {rows->viewport()->mapTo(&view->Window(), rect.topLeft()), rect.size()};
    }
    void ClickAt(QPoint at, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(Native(), Qt::LeftButton, modifiers, at);
        Settle();
    }
    void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
        ClickAt(RowRect(row).center(), modifiers);
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(Native(), key, modifiers);
        Settle();
    }
    // The complete list, by a click on its tab.
    void OpenFiles() { ClickAt(Middle("Label3")); }

    std::vector<int> Chosen() { return Form().UAE_Short.SelectedRows(); }
    // The boxes as the user sees them.
    std::vector<bool> Boxes() {
        std::vector<bool> ticks;
        for (int drive = 0; drive < 5; ++drive) {
            const std::string name = "Check_Dfx(" + std::to_string(drive) + ")";
            ticks.push_back(Find<QCheckBox>(name.c_str())->isChecked());
        }
        return ticks;
    }

    std::unique_ptr<view::FormView> view;
};

}  // namespace kivu::scenarios
