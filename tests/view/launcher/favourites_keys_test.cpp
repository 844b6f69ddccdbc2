// The launcher's own window: real keys and clicks on real widgets, a scripted host behind them.

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QTest>
#include <QWindow>
#include <filesystem>
#include <memory>

#include "scenarios/scenario.h"
#include "view/form_view.h"

namespace kivu::scenarios {
namespace {

class FavouritesKeys : public LoadedScenario {
 protected:
    const std::string own = "Config/Alpha/Favoriten.ini";
    const std::string global = "Config/Favoriten_Global.ini";

    void SetUp() override {
        const auto entry = [](int number, const std::string& name, const std::string& path) {
            const std::string key = "Fav" + std::to_string(number);
            return key + "_Name=" + name + "\r\n" + key + "_FullPath=" + path + "\r\n";
        };
        tree.Write(own, "[Favoriten]\r\n" +
                            entry(0, "Ant", "/Roms/Alpha/Ant (1990)(Maker)(Disk 2 of 2).adf") +
                            entry(1, "Bee", "/Roms/Alpha/Bee (1991)(Maker).adf") +
                            entry(2, "Ghost", "/Roms/Alpha/Ghost.adf"));
        tree.Write(global, "[Favoriten_Global]\r\n" +
                               entry(1, "Cat", tree.Path("Roms/Beta/Cat (1992)(Maker).adf")) +
                               "Fav1_System=Beta\r\n");
    }
    void TearDown() override {
        view.reset();
        Scenario::TearDown();
    }
    void Show() {
        Start();
        view = std::make_unique<view::FormView>(Form());
        view->Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view->Window(), 20000));
        QCoreApplication::processEvents();
    }

    void Key(Qt::Key key) { QTest::keyClick(view->Window().windowHandle(), key); }
    QWidget* Widget(const char* name) {
        auto* found = view->Window().findChild<QWidget*>(QString::fromUtf8(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    void Press(Qt::MouseButton button, QWidget* widget, QPoint at) {
        QTest::mouseClick(view->Window().windowHandle(), button, {},
                          widget->mapTo(&view->Window(), at));
    }
    void Click(const char* name) {
        Press(Qt::LeftButton, Widget(name), Widget(name)->rect().center());
    }
    void ClickRow(const char* name, int row, Qt::MouseButton button = Qt::LeftButton) {
        auto* list = qobject_cast<QAbstractItemView*>(Widget(name));
        ASSERT_TRUE(list);
        Press(button, list->viewport(), list->visualRect(list->model()->index(row, 0)).center());
    }
    Json Rows() { return Get("FavoritenListe.List"); }
    Json LastBox() { return Do("boxes")["value"].back(); }
    std::string StartFile(const char* emulator) {
        return tree.Read(std::string("Config/") + emulator + "/Kivu_tmp.bat");
    }

    std::unique_ptr<view::FormView> view;
};

TEST_F(FavouritesKeys, DeleteAsksAndRemovesOnYes) {
    Show();
    Do("answer", "No", "Yes");
    Key(Qt::Key_Delete);
    EXPECT_EQ(LastBox()["text"], "Remove from Favorite-List:\r\rAnt?");
    EXPECT_EQ(Rows(), Json({"Ant", "Bee", "Ghost"}));
    Key(Qt::Key_Delete);
    EXPECT_EQ(Rows(), Json({"Bee", "Ghost"}));
    // The keyboard stays in the list: the next favourite can be chosen and removed.
    Do("answer", "Yes");
    Key(Qt::Key_Down);
    EXPECT_EQ(Get("FavoritenListe.ListIndex"), 0);
    Key(Qt::Key_Delete);
    EXPECT_EQ(LastBox()["text"], "Remove from Favorite-List:\r\rBee?");
}

TEST_F(FavouritesKeys, DeleteInAnotherListRemovesNothing) {
    Show();
    Key(Qt::Key_Right);
    EXPECT_EQ(Get("ListMode"), "2");
    Key(Qt::Key_Delete);
    EXPECT_TRUE(Do("boxes")["value"].empty());
    EXPECT_EQ(Rows().size(), 3U);
}

TEST_F(FavouritesKeys, EnterStartsTheChosenFavourite) {
    Show();
    Key(Qt::Key_Down);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 2);
    Key(Qt::Key_Return);
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_NE(StartFile("Alpha").find("Bee (1991)"), std::string::npos);
}

TEST_F(FavouritesKeys, EnterOnTheNumberPadStartsItToo) {
    Show();
    QTest::keyClick(view->Window().windowHandle(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_NE(StartFile("Alpha").find("Disk 2 of 2"), std::string::npos);
}

TEST_F(FavouritesKeys, EnterOnAMissingOneAsksAndStartsNothing) {
    Show();
    Do("answer", "No", "No");
    Key(Qt::Key_End);
    EXPECT_EQ(LastBox()["title"], "Favorite not found - Repair?");
    Key(Qt::Key_Return);
    EXPECT_EQ(LastBox()["title"], "Favorite not found - Repair?");
    EXPECT_TRUE(Do("runs")["value"].empty());
    EXPECT_EQ(Rows().size(), 3U);
}

TEST_F(FavouritesKeys, YesRepairsAndTheNextKeyChoosesAnotherRow) {
    Show();
    Do("answer", "Yes");
    Key(Qt::Key_End);
    EXPECT_EQ(LastBox()["title"], "Repair result:");
    EXPECT_EQ(Rows(), Json({"Ant", "Bee"}));
    Key(Qt::Key_Down);
    EXPECT_EQ(Get("FavoritenListe.ListIndex"), 0);
}

TEST_F(FavouritesKeys, LettersGoToTheSearchBox) {
    Show();
    Key(Qt::Key_B);
    Key(Qt::Key_E);
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "be");
    EXPECT_EQ(Get("SuchErgList.List"), Json({"Bee (1991)(Maker)"}));
}

TEST_F(FavouritesKeys, ButtonsAddAndRemoveByTheKeyboardAlone) {
    Show();
    Key(Qt::Key_Right);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Get("Focus"), "Form1.AddToFavorit");
    Key(Qt::Key_Space);
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Favorite add: Ant (1990)(Maker)");
    EXPECT_EQ(Rows(), Json({"Ant", "Bee", "Ghost"})) << "one favourite for each path";
    Do("select", "Form1.WIthoutDoubles", 0);
    Key(Qt::Key_Left);
    EXPECT_EQ(Get("Focus"), "Form1.FavoritenListe");
    Key(Qt::Key_Home);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Get("Focus"), "Form1.AddToFavorit_Global");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Get("Focus"), "Form1.DeLFav");
    Key(Qt::Key_Space);
    EXPECT_EQ(Rows(), Json({"Bee", "Ghost"}));
    EXPECT_EQ(Get("Focus"), "Form1.FavoritenListe");
}

TEST_F(FavouritesKeys, ButtonsTakeAClick) {
    Show();
    Key(Qt::Key_Right);
    ClickRow("WIthoutDoubles", 1);
    for (const char* name : {"AddToFavorit", "AddToFavorit_Global"}) {
        QWidget* button = Widget(name);
        const QPoint at = button->mapTo(&view->Window(), button->rect().center());
        EXPECT_EQ(view->Window().childAt(at), button) << name;
    }
    Click("AddToFavorit_Global");
    EXPECT_NE(tree.Read(global).find("Fav2_System=Alpha"), std::string::npos);
}

TEST_F(FavouritesKeys, RightButtonRenamesTheRowUnderTheMouse) {
    Show();
    Do("input", "Käfer = [Bee]");
    ClickRow("FavoritenListe", 1, Qt::RightButton);
    EXPECT_EQ(LastBox()["text"], "Please enter a new title for: \r\rBee");
    EXPECT_EQ(Rows(), Json({"Ant", "Käfer = [Bee]", "Ghost"}));
    EXPECT_EQ(tree.Stored(own, "Fav1_Name"), files.EncodeText("Käfer = [Bee]"));
}

TEST_F(FavouritesKeys, GlobalOnesComeUpByTheTabAndStartByEnter) {
    Show();
    Click("EmuListbox");
    Click("Label1");
    EXPECT_EQ(Get("FavoritenListeGlobal.List"), Json({"Cat  :  Beta"}));
    EXPECT_EQ(Get("Focus"), "Form1.FavoritenListeGlobal");
    // The key removes only what an emulator has for itself.
    Key(Qt::Key_Delete);
    EXPECT_TRUE(Do("boxes")["value"].empty());
    Key(Qt::Key_Down);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 1);
    Key(Qt::Key_Return);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_NE(StartFile("Beta").find(testing::HostPath("/Emu/beta")), std::string::npos);
    EXPECT_TRUE(Text("CURRENT_PROGRAM_STARTED").starts_with("Cat (1992)(Maker)"));
}

TEST_F(FavouritesKeys, EscapeLeavesTheGlobalOnesWithoutAQuestion) {
    Show();
    Click("EmuListbox");
    Click("Label1");
    Key(Qt::Key_Escape);
    EXPECT_TRUE(Do("boxes")["value"].empty());
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_TRUE(Visible("FavoritenListe"));
    EXPECT_EQ(Get("Focus"), "Form1.FavoritenListe");
}

}  // namespace
}  // namespace kivu::scenarios
