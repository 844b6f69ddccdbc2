#include "scenarios/list_search.h"

namespace kivu::scenarios {
namespace {

// A game that another list has chosen since must not be started in place of the one in sight.
class ResultsThatStart : public ListSearchScenario {
 protected:
    ResultsThatStart() {
        tree.AddEmulator("Alpha", {{"EmulatorPath", "/Emu/alpha"},
                                   {"WinUAE_UseMasterConfig", "0"},
                                   {"EmulatorParameterAddDiskPath", "1"}});
        tree.Write("Emu/alpha", "#!/bin/sh\n");
        for (const char* image : {"1 Zool", "2 Ant", "3 Giant", "4 Bee", "5 Jaeger"})
            tree.Write(std::string("Roms/") + image + ".adf", "x");
    }
    void ChooseInTheCompleteList(int row) {
        Do("click", "Form1.Label3");
        Do("select", "Form1.UAE_Short", row);
        ASSERT_EQ(Get("UAE_FULL.ListIndex"), row);
    }
    std::string Started() {
        const Json runs = Do("runs")["value"];
        return runs.size() == 1 ? tree.Read("Config/Alpha/Kivu_tmp.bat") : runs.dump();
    }
};

TEST_F(ResultsThatStart, ADoubleClickStartsTheResult) {
    Start();
    Type("maker");
    Do("dblclick", "Form1.SuchErgList", 1);
    EXPECT_NE(Started().find("4 Bee.adf"), std::string::npos);
}

TEST_F(ResultsThatStart, ADoubleClickStartsTheResultAfterAnotherListHasChosen) {
    Start();
    Type("ant");
    ChooseInTheCompleteList(3);
    Do("click", "Form1.Label4");
    Do("dblclick", "Form1.SuchErgList", 0);
    EXPECT_NE(Started().find("2 Ant.adf"), std::string::npos);
}

TEST_F(ResultsThatStart, EnterStartsTheResultAfterAnotherListHasChosen) {
    Start();
    Type("ant");
    Do("key", "Form1.SearchDblsTxt", "Enter");
    ChooseInTheCompleteList(3);
    Do("click", "Form1.Label4");
    Do("key", "Form1.SuchErgList", "Enter");
    EXPECT_NE(Started().find("2 Ant.adf"), std::string::npos);
}

TEST_F(ResultsThatStart, TheFirstHitIsTakenFromAnotherListsChoice) {
    Start();
    Type("ant");
    ChooseInTheCompleteList(3);
    Do("set", "Form1.SearchDblsTxt.Text", "ant (");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 1);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 1);
}

TEST_F(ResultsThatStart, NoResultStartsNothing) {
    Start();
    Type("nowhere");
    Do("key", "Form1.SearchDblsTxt", "Enter");
    ASSERT_EQ(Get("Focus"), "Form1.SuchErgList");
    Do("key", "Form1.SuchErgList", "Enter");
    Do("dblclick", "Form1.SuchErgList");
    EXPECT_EQ(Do("runs")["value"].size(), 0U);
}

TEST_F(ListSearchScenario, ASelectedGameIsNotClickedAgain) {
    Start();
    Type("ant");
    ASSERT_EQ(Get("UAE_Short.ListIndex"), 1);
    int clicks = 0;
    const auto click = Form().WIthoutDoubles.onClick;
    Form().WIthoutDoubles.onClick = [&] { ++clicks, click(); };
    Do("set", "Form1.SearchDblsTxt.Text", "ant (");
    Do("select", "Form1.SuchErgList", 0);
    EXPECT_EQ(clicks, 0);
    Do("select", "Form1.SuchErgList", 1);
    EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace kivu::scenarios
