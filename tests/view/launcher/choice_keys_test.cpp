#include <QComboBox>

#include "view/launcher/search_window.h"

namespace kivu::scenarios {
namespace {

// The choice of the emulator and the few controls beside it, as hands meet them.
class ChoiceKeys : public SearchWindow {
 protected:
    ChoiceKeys() {
        for (const char* name : {"Alpha", "Beta", "Gamma"})
            tree.AddEmulator(name);
        tree.WriteCache("Alpha", {{"/Roms/Ant.adf", "Ant"}, {"/Roms/Bee.adf", "Bee"}});
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
    }
    void ClickArrow() {
        auto* box = Find<QWidget>("EmuListbox");
        const QPoint arrow(box->width() - 10, box->height() / 2);
        QTest::mouseClick(Native(), Qt::LeftButton, {}, box->mapTo(&view->Window(), arrow));
        Settle();
    }
    bool IsOpen() { return Find<QWidget>("EmulatorLongListbox")->isVisible(); }
    void ExpectClosed() {
        EXPECT_FALSE(IsOpen());
        EXPECT_FALSE(QApplication::activePopupWidget());
        EXPECT_EQ(Get("EmuListbox.ListIndex"), 0);
        EXPECT_EQ(Get("EmuListbox.Text"), "Alpha");
        EXPECT_TRUE(HasFocus("WIthoutDoubles"));
    }
};

TEST_F(ChoiceKeys, TheArrowOpensTheChoiceAndLeavesItAgain) {
    Show();
    ClickArrow();
    EXPECT_TRUE(IsOpen());
    EXPECT_FALSE(QApplication::activePopupWidget());
    Key(Qt::Key_Down);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 1);
    ClickArrow();
    ExpectClosed();
    // The keys for it do the same.
    ClickArrow();
    Key(Qt::Key_F4);
    ExpectClosed();
    ClickArrow();
    Key(Qt::Key_Down, Qt::AltModifier);
    ExpectClosed();
}

TEST_F(ChoiceKeys, TheFieldOpensTheChoiceAndKeepsItOpen) {
    Show();
    Click("EmuListbox");
    EXPECT_TRUE(IsOpen());
    Click("EmuListbox");
    EXPECT_TRUE(IsOpen());
    EXPECT_FALSE(QApplication::activePopupWidget());
    Key(Qt::Key_End);
    EXPECT_EQ(Get("EmulatorLongListbox.ListIndex"), 2);
    Key(Qt::Key_Home);
    EXPECT_EQ(Get("EmulatorLongListbox.ListIndex"), 0);
    Key(Qt::Key_Escape);
    ExpectClosed();
}

TEST_F(ChoiceKeys, WhatIsTypedStartsASearchAndLeavesThePromptAlone) {
    Show();
    ClickArrow();
    const Json prompt = Get("EmuListbox.Text");
    Key(Qt::Key_Period);
    EXPECT_EQ(Get("EmuListbox.Text"), prompt);
    Type("b");
    EXPECT_TRUE(HasFocus("SearchDblsTxt"));
    EXPECT_EQ(Box(), "b");
    EXPECT_EQ(Get("EmuListbox.Text"), "Alpha");
}

TEST_F(ChoiceKeys, TheSizeIsChosenAndNotTyped) {
    Show();
    Form().FontSizeCombo.SetFocus();
    const Json before = Get("FontSizeCombo.Text");
    Type("50s");
    EXPECT_EQ(Get("FontSizeCombo.Text"), before);
    Key(Qt::Key_Home);
    EXPECT_EQ(Get("FontSizeCombo.ListIndex"), 0);
}

TEST_F(ChoiceKeys, ThePinLetsGoOfItsHoverLookWhereverTheMouseGoes) {
    Show();
    Do("click", "Form1.AOT_Enabled");
    const auto move = [this](const char* name) {
        auto* widget = Find<QWidget>(name);
        QTest::mouseMove(Native(), widget->mapTo(&view->Window(), widget->rect().center()));
        Settle();
    };
    for (const char* next : {"ExitBtn", "FontSizeCombo", "WIthoutDoubles"}) {
        move("AOT_Disabled");
        EXPECT_TRUE(Find<QWidget>("AOT_MouseMove")->isVisible());
        move(next);
        EXPECT_FALSE(Find<QWidget>("AOT_MouseMove")->isVisible()) << next;
    }
}

}  // namespace
}  // namespace kivu::scenarios
