#include <gmock/gmock.h>

#include "library/game_lists_fixture.h"

namespace kivu::library {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

struct Aliases : GameListsFixture {
    Aliases() {
        form.UAE_Short.AddItems({"Ant (1)", "Ant (2)", "Bee", "Ant (3)", "Cat", "Ant (4)"});
    }
    void Apply(const std::string& rules, const std::string& separator = ";") {
        files.AddFile("/AliasList.txt", rules);
        lists.ApplyAliasList("/AliasList.txt", separator);
    }
    const std::vector<std::string>& Names() { return form.UAE_Short.Rows(); }
};

TEST_F(Aliases, SecondRuleWithTheSameTextHitsTheNextDisk) {
    Apply("Ant;First\r\nAnt;Second\r\nAnt;Third\r\n");
    EXPECT_THAT(Names(), ElementsAre("First", "Second", "Bee", "Third", "Cat", "Ant (4)"));
}

TEST_F(Aliases, RuleOutOfOrderHasNoHitAboveTheLastOne) {
    Apply("Cat;Felis\r\nBee;Apis\r\n");
    EXPECT_THAT(Names(), ElementsAre("Ant (1)", "Ant (2)", "Bee", "Ant (3)", "Felis", "Ant (4)"));
}

TEST_F(Aliases, RuleWithoutAHitMakesTheNextOneSearchFromTheTop) {
    Apply("Cat;Felis\r\nBee;never seen\r\nBee;Apis\r\n");
    EXPECT_THAT(Names(), ElementsAre("Ant (1)", "Ant (2)", "Apis", "Ant (3)", "Felis", "Ant (4)"));
}

TEST_F(Aliases, SearchGoesOnBehindAHitThatFollowedARestart) {
    Apply("Cat;Felis\r\nnothing;x\r\nAnt;First\r\nAnt;Second\r\nBee;Apis\r\nAnt;Third\r\n");
    EXPECT_THAT(Names(), ElementsAre("First", "Second", "Apis", "Third", "Felis", "Ant (4)"));
}

TEST_F(Aliases, HitOnTheLastRowSendsTheNextRuleBehindTheEnd) {
    Apply("Ant (4);Last\r\nBee;x\r\nBee;Apis\r\n");
    EXPECT_THAT(Names(), ElementsAre("Ant (1)", "Ant (2)", "Apis", "Ant (3)", "Cat", "Last"));
}

TEST_F(Aliases, CaseDoesNotCountAndBothSidesAreTrimmed) {
    Apply("  bEE  ;  Apis mellifera  \r\n");
    EXPECT_EQ(form.UAE_Short.List(2), "Apis mellifera");
}

TEST_F(Aliases, FirstSeparatorOfTheLineCounts) {
    Apply("Bee;a;b\r\nno separator\r\n\r\n");
    EXPECT_EQ(form.UAE_Short.List(2), "a;b");
}

TEST_F(Aliases, SelectedRowKeepsItsPlaceUnderItsNewName) {
    form.UAE_Short.SetListIndex(2);
    Apply("Bee;Apis\r\n");
    EXPECT_EQ(form.UAE_Short.ListIndex(), 2);
    EXPECT_EQ(form.UAE_Short.SelectedText(), "Apis");
}

TEST_F(Aliases, EverySecondRuleShowsItsNumber) {
    Titles titles(form);
    Apply("a;b\r\nBee;Apis\r\nno rule\r\nq;r\r\nq;r\r\nq;r\r\n");
    EXPECT_THAT(titles.seen, ElementsAre("Alias names: ", "Alias Names: 2", "Alias Names: 4"));
}

TEST_F(Aliases, MissingFileOrSeparatorChangesNothing) {
    const std::vector<std::string> before = Names();
    Titles titles(form);
    lists.ApplyAliasList("", ";");
    lists.ApplyAliasList("/none.txt", ";");
    Apply("Bee;Apis\r\n", "");
    EXPECT_EQ(Names(), before);
    EXPECT_THAT(titles.seen, Not(Contains("Alias names: ")));
}

}  // namespace
}  // namespace kivu::library
