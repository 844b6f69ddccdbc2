#include <QImage>
#include <chrono>

#include "view/launcher/search_window.h"

namespace kivu::scenarios {
namespace {

using Rows = std::vector<std::string>;

class SearchKeys : public SearchWindow {
 protected:
    SearchKeys() {
        tree.AddEmulator("Alpha", {{"EmulatorPath", "/Emu/alpha"},
                                   {"WinUAE_UseMasterConfig", "0"},
                                   {"EmulatorParameterAddDiskPath", "1"}});
        tree.AddEmulator("Beta");
        tree.WriteCache("Alpha", {{"/Roms/1 Zool.adf", "Zool (1992)(Gremlin)"},
                                  {"/Roms/2 Ant.adf", "Ant (1990)(Maker)"},
                                  {"/Roms/3 Giant.adf", "Giant Ant (1991)(Other)"},
                                  {"/Roms/4 Jaeger.adf", "Der Jäger (1990)(Maker)"}});
        tree.WriteCache("Beta", {{"/Roms/Cat (1992)(Maker).d64", "Cat (1992)(Maker)"},
                                 {"/Roms/Want (1993)(Maker).d64", "Want (1993)(Maker)"}});
        tree.Write("Emu/alpha", "#!/bin/sh\n");
        tree.Write("Roms/2 Ant.adf", "x");
        tree.Write("Roms/3 Giant.adf", "x");
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
    }
};

TEST_F(SearchKeys, TypingInAListNarrowsAtEachKey) {
    Show();
    ASSERT_TRUE(HasFocus("WIthoutDoubles"));
    Type("a");
    EXPECT_TRUE(HasFocus("SearchDblsTxt"));
    EXPECT_EQ(Box(), "a");
    EXPECT_EQ(Shown("SuchErgList"), Rows{});
    Type("n");
    EXPECT_EQ(Shown("SuchErgList"), (Rows{"Ant (1990)(Maker)", "Giant Ant (1991)(Other)"}));
    Type("t g");
    EXPECT_EQ(Shown("SuchErgList"), Rows{"Giant Ant (1991)(Other)"});
    EXPECT_EQ(Box(), "ant g");
    EXPECT_FALSE(Find<QWidget>("WIthoutDoubles")->isVisible());
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Shown("SuchErgList").size(), 2U);
}

TEST_F(SearchKeys, LettersBeyondAsciiAreTyped) {
    Show();
    Type("j");
    Type("ÄG");
    EXPECT_EQ(Box(), "jÄG");
    EXPECT_EQ(Shown("SuchErgList"), Rows{"Der Jäger (1990)(Maker)"});
}

TEST_F(SearchKeys, AClickIntoTheBoxTakesItsIdleTextAway) {
    Show();
    EXPECT_EQ(Box(), "Suche..");
    Click("SearchDblsTxt");
    EXPECT_EQ(Box(), "");
    Type("zool");
    EXPECT_EQ(Shown("SuchErgList"), Rows{"Zool (1992)(Gremlin)"});
    for (int i = 0; i < 4; ++i)
        Key(Qt::Key_Backspace);
    Click("Label2");
    EXPECT_EQ(Box(), "Search here..");
}

TEST_F(SearchKeys, ArrowsAndEnterGoThroughTheResultsToAStart) {
    Show();
    Type("ant");
    Key(Qt::Key_Down);
    EXPECT_TRUE(HasFocus("SuchErgList"));
    EXPECT_EQ(Form().SuchErgList.ListIndex(), 0);
    Key(Qt::Key_Down);
    EXPECT_EQ(Form().SuchErgList.ListIndex(), 1);
    EXPECT_EQ(Find<QAbstractItemView>("SuchErgList")->currentIndex().row(), 1);
    Key(Qt::Key_Return);
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_NE(tree.Read("Config/Alpha/Kivu_tmp.bat").find("3 Giant.adf"), std::string::npos);
}

TEST_F(SearchKeys, EnterInTheBoxGoesToTheFirstResult) {
    Show();
    Type("maker");
    Key(Qt::Key_Return);
    EXPECT_TRUE(HasFocus("SuchErgList"));
    EXPECT_EQ(Form().SuchErgList.ListIndex(), 0);
    EXPECT_EQ(Do("runs")["value"].size(), 0U);
    Type("zo");
    EXPECT_EQ(Box(), "zo");
    EXPECT_EQ(Shown("SuchErgList"), Rows{"Zool (1992)(Gremlin)"});
}

TEST_F(SearchKeys, TheResultThatEnterMeansHasALineAroundIt) {
    Show();
    Type("ant");
    auto* list = Find<QAbstractItemView>("SuchErgList");
    // Right of the text, from the row's top down to its middle.
    const auto hasLine = [&](int row) {
        const QImage picture = list->viewport()->grab().toImage();
        const QRect place = list->visualRect(list->model()->index(row, 0));
        const int x = place.right() - 30;
        const QRgb ground = picture.pixel(x, place.center().y());
        for (int y = place.top(); y < place.center().y(); ++y) {
            if (picture.pixel(x, y) != ground) return true;
        }
        return false;
    };
    EXPECT_TRUE(hasLine(0));
    EXPECT_FALSE(hasLine(1));
    Key(Qt::Key_Return);
    EXPECT_EQ(Form().SuchErgList.ListIndex(), 0);
    EXPECT_FALSE(hasLine(1));
    // Back in the box with the second row selected, Enter means the first.
    Key(Qt::Key_Down);
    Click("SearchDblsTxt");
    EXPECT_EQ(Form().SuchErgList.ListIndex(), 1);
    EXPECT_TRUE(hasLine(0));
}

TEST_F(SearchKeys, ADigitTypedInAListStartsASearch) {
    Show();
    ASSERT_TRUE(HasFocus("WIthoutDoubles"));
    Type("1990");
    EXPECT_EQ(Box(), "1990");
    EXPECT_EQ(Shown("SuchErgList"), (Rows{"Ant (1990)(Maker)", "Der Jäger (1990)(Maker)"}));
}

TEST_F(SearchKeys, EnterStartsTheRowMarkedInTheListInFront) {
    Show();
    Key(Qt::Key_Down);
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 1);
    Click("Label3");
    for (int i = 0; i < 2; ++i)
        Key(Qt::Key_Down);
    EXPECT_EQ(Form().UAE_Short.ListIndex(), 3);
    Click("Label2");
    Key(Qt::Key_Return);
    EXPECT_NE(tree.Read("Config/Alpha/Kivu_tmp.bat").find("2 Ant.adf"), std::string::npos);
}

TEST_F(SearchKeys, F3GoesOnFromTheSelectedGame) {
    Show();
    Type("ant");
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 1);
    Key(Qt::Key_F3);
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 2);
    EXPECT_EQ(Shown("SuchErgList"), Rows{"Giant Ant (1991)(Other)"});
    EXPECT_TRUE(HasFocus("SearchDblsTxt"));
}

TEST_F(SearchKeys, CtrlFGoesToTheBoxAndEscapeAsksToEnd) {
    Show();
    Key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(HasFocus("SearchDblsTxt"));
    EXPECT_EQ(Box(), "");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Do("boxes")["value"].size(), 1U);
    EXPECT_TRUE(HasFocus("SearchDblsTxt"));
}

TEST_F(SearchKeys, CtrlEnterSearchesAllAndEnterOnAHitLeadsToItsEmulator) {
    Show();
    Type("ant");
    Key(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_TRUE(HasFocus("GlobalSearchList"));
    // The files have no ")" in their names, so that path and title are two hits.
    ASSERT_EQ(Shown("GlobalSearchList").size(), 5U);
    Key(Qt::Key_End);
    EXPECT_EQ(Form().GlobalSearchList.ListIndex(), 4);
    Key(Qt::Key_Return);
    EXPECT_FALSE(Find<QWidget>("GlobalSearchList")->isVisible());
    EXPECT_TRUE(HasFocus("SuchErgList"));
    EXPECT_EQ(Shown("SuchErgList"), Rows{"Want (1993)(Maker)"});
    EXPECT_EQ(Find<QAbstractItemView>("SuchErgList")->currentIndex().row(), 0);
    EXPECT_EQ(Box(), "ant");
}

TEST_F(SearchKeys, ADoubleClickOnAHitLeadsToItsEmulator) {
    Show();
    Key(Qt::Key_F, Qt::ControlModifier);
    Type("199");
    Click("SearchAllBtn");
    ASSERT_TRUE(HasFocus("GlobalSearchList"));
    Type("want");
    EXPECT_TRUE(HasFocus("SearchDblsTxt"));
    EXPECT_EQ(Shown("GlobalSearchList").size(), 1U);
    DoubleClickRow("GlobalSearchList", 0);
    EXPECT_EQ(Form().CurrentEmuIndex, 1);
    EXPECT_TRUE(HasFocus("SuchErgList"));
    EXPECT_EQ(Shown("SuchErgList").size(), 2U);
}

TEST_F(SearchKeys, TheWindowLivesAndItsCounterMovesDuringALongSearch) {
    std::string cache;
    for (int i = 10000; i < 30000; ++i)
        cache += "/Roms/Long " + std::to_string(i) + ".adf\r\nLong " + std::to_string(i) + "\r\n";
    tree.Write("Config/Gamma/Kivu_Cache.txt", cache);
    prepare = [](driver::Session& session) {
        session.Host().clock.perLook = std::chrono::milliseconds(40);
    };
    Show();
    Type("long 2999");
    std::vector<QImage> looks;
    Host().events.onEvents = [&] {
        Settle();
        if (Form().SearchDblsTxt.Enabled()) return;
        EXPECT_TRUE(Find<QWidget>("GlobalSearchList")->isVisible());
        EXPECT_EQ(Box(), "Searching: long 2999");
        looks.push_back(Find<QWidget>("Label4")->grab().toImage());
    };
    Key(Qt::Key_Return, Qt::ControlModifier);
    Host().events.onEvents = {};
    ASSERT_GT(looks.size(), 4U);
    EXPECT_NE(looks.back(), looks[looks.size() - 2]);
    EXPECT_EQ(Shown("GlobalSearchList").size(), 12U);
    EXPECT_EQ(Box(), "long 2999");
}

}  // namespace
}  // namespace kivu::scenarios
