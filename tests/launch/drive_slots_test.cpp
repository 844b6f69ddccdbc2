#include "launch/drive_slots.h"

#include <gmock/gmock.h>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::launch {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* profile = "/k/Config/Amiga/Kivu.ini";

struct Drives : ::testing::Test {
    Drives() {
        files.AddDirectory("/k/Config/Amiga");
        form.IniPath = profile;
        form.CurrentLanguage = 2;
        form.QuarterWidth = 1000;
        form.WIthoutDoubles.SetWidth(2000);
    }
    void Smart(const char* value) {
        files.AddFile(profile, std::string("[Settings]\r\nSmartRomSelection=") + value + "\r\n");
    }
    // Rows in this order, each in a directory of its own, since the paths are sorted.
    void Games(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            const int number = 100 + form.UAE_FULL.ListCount();
            form.UAE_FULL.AddItem("/g/" + std::to_string(number) + "/" + name);
            form.UAE_Short.AddItem(name);
        }
    }
    // As many disks of one game as asked for, with numbers of two digits.
    void Disks(int count) {
        for (int disk = 1; disk <= count; ++disk) {
            const std::string number = (disk < 10 ? "0" : "") + std::to_string(disk);
            Games({"Game (Disk " + number + " of 40).adf"});
        }
    }
    void Select(int row) {
        form.UAE_Short.SetListIndex(row);
        form.UAE_FULL.SetListIndex(row);
    }
    // The user's click in the complete list.
    void Click(int row, forms::Choice choice = forms::Choice::only) {
        form.ShortListHasFocus = true;
        form.UAE_Short.ClickRow(row, choice);
        form.UAE_FULL.SetListIndex(row);
        drives.FillFromFile();
    }
    // The filled drives' rows, -1 for an empty one.
    std::vector<int> Slots() const {
        std::vector<int> rows;
        for (std::size_t drive = 0; drive < 5; ++drive)
            rows.push_back(RowOf(form.DiskSlots[drive]));
        return rows;
    }
    std::vector<int> Ticks() const {
        std::vector<int> ticks;
        for (const forms::CheckBox& box : form.Check_Dfx)
            ticks.push_back(box.Value());
        return ticks;
    }
    int RowOf(const std::string& path) const {
        for (int row = 0; row < form.UAE_FULL.ListCount(); ++row) {
            if (form.UAE_FULL.List(row) == path) return row;
        }
        return -1;
    }

    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedBeeper beeper;
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    DriveSlots drives{form, ini, beeper};
};

TEST_F(Drives, SecondDiskIsFilledInListOrderBehindTheFirst) {
    Smart("1");
    Games({"Alpha.adf", "Game (Disk 1 of 2).adf", "Game (Disk 2 of 2).adf", "Zulu.adf"});
    Click(2);
    EXPECT_THAT(Slots(), ElementsAre(1, 2, -1, -1, -1));
    EXPECT_THAT(Ticks(), ElementsAre(1, 1, 0, 0, 0));
    EXPECT_EQ(form.Check_Dfx[0].ToolTipText(), "Game (Disk 1 of 2).adf");
    EXPECT_EQ(form.Check_Dfx[1].ToolTipText(), "Game (Disk 2 of 2).adf");
    EXPECT_TRUE(form.AddToFavorit.Visible());
    EXPECT_TRUE(form.AddToFavorit_Global.Visible());
}

TEST_F(Drives, ClickInTheFirstRowsBeginsAtRowZero) {
    Smart("1");
    Disks(3);
    Click(0);
    EXPECT_THAT(Slots(), ElementsAre(0, 1, 2, -1, -1));
    Click(2);
    EXPECT_THAT(Slots(), ElementsAre(0, 1, 2, -1, -1));
}

TEST_F(Drives, ClickNearTheEndStopsAtTheLastRow) {
    Smart("1");
    Games({"A first game.adf", "B second game.adf"});
    Disks(2);
    Click(3);
    EXPECT_THAT(Slots(), ElementsAre(2, 3, -1, -1, -1));
}

TEST_F(Drives, SixNearEqualNamesFillTheFirstFive) {
    Smart("1");
    Disks(6);
    Click(5);
    EXPECT_THAT(Slots(), ElementsAre(1, 2, 3, 4, 5));
    Click(3);
    EXPECT_THAT(Slots(), ElementsAre(0, 1, 2, 3, 4));
    EXPECT_TRUE(form.DiskSlots[5].empty());
}

TEST_F(Drives, RangeReachesFourRowsBackAndFourteenForward) {
    Smart("1");
    Games({"Game (Disk 1).adf", "Game (Disk 2).adf"});
    Games({"entirely other 1", "entirely other 2", "entirely other 3"});
    Games({"Game (Disk 3).adf"});
    for (int row = 6; row < 19; ++row)
        Games({"some filler in between " + std::to_string(row)});
    Games({"Game (Disk 4).adf", "Game (Disk 5).adf"});
    Click(5);
    EXPECT_THAT(Slots(), ElementsAre(1, 5, 19, -1, -1));
}

TEST_F(Drives, LimitOfFiveTakesFourDifferencesAndNotFive) {
    Smart("1");
    Games({"Wonder Game abcde.adf", "Wonder Game abcdX.adf", "Wonder Game aXXXX.adf",
           "Wonder Game XXXXX.adf"});
    Click(0);
    EXPECT_THAT(Slots(), ElementsAre(0, 1, 2, -1, -1));
}

TEST_F(Drives, LimitOfOneTakesTheSameFileNameAlone) {
    form.UAE_FULL.AddItem("/a/Game.adf");
    form.UAE_FULL.AddItem("/b/Game.adf");
    form.UAE_FULL.AddItem("/c/Gamf.adf");
    for (const char* name : {"Game", "Game", "Gamf"})
        form.UAE_Short.AddItem(name);
    Select(0);
    drives.SelectSimilarDisks(0, 0, 14, 1);
    EXPECT_THAT(Slots(), ElementsAre(0, 1, -1, -1, -1));
}

TEST_F(Drives, LastRowCountsFromTheSelectedRowWhateverTheStartRow) {
    Disks(40);
    Select(20);
    drives.SelectSimilarDisks(33, 0, 14, 5);
    EXPECT_THAT(Slots(), ElementsAre(33, 34, -1, -1, -1));
    drives.SelectSimilarDisks(33, 0, 2, 5);
    EXPECT_THAT(Slots(), ElementsAre(33, 34, -1, -1, -1));
    form.DiskSlots = {};
    drives.SelectSimilarDisks(35, 0, 14, 5);
    EXPECT_THAT(Slots(), ElementsAre(-1, -1, -1, -1, -1));
}

TEST_F(Drives, StartRowBelowTheFirstIsTheFirst) {
    Disks(2);
    Select(0);
    drives.SelectSimilarDisks(-1, 0, 14, 5);
    EXPECT_THAT(Slots(), ElementsAre(0, 1, -1, -1, -1));
}

TEST_F(Drives, NothingSelectedFillsNothingButNamesAsShortAsTheLimit) {
    Games({"Game.adf", "a.b"});
    drives.SelectSimilarDisks(-1, 4, 14, 5);
    EXPECT_THAT(Slots(), ElementsAre(1, -1, -1, -1, -1));
}

TEST_F(Drives, EmptyListFillsNothing) {
    drives.SelectSimilarDisks(0, 4, 14, 5);
    drives.SelectSimilarDisks(-1, 4, 14, 5);
    EXPECT_THAT(Ticks(), ElementsAre(0, 0, 0, 0, 0));
    Smart("1");
    Click(0);
    EXPECT_TRUE(form.DiskSlots[0].empty());
}

TEST_F(Drives, DrivesThatNothingIsFoundForKeepTheirDisks) {
    Disks(2);
    Games({"Entirely Other.adf"});
    Select(0);
    drives.SelectSimilarDisks(0, 0, 14, 5);
    Select(2);
    drives.SelectSimilarDisks(2, 0, 14, 5);
    EXPECT_THAT(Slots(), ElementsAre(2, 1, -1, -1, -1));
    EXPECT_THAT(Ticks(), ElementsAre(1, 1, 0, 0, 0));
}

TEST_F(Drives, WithoutTheFocusTheRowsAreMarkedAndNothingElseHappensToTheList) {
    Disks(3);
    Select(1);
    int clicks = 0;
    form.UAE_Short.onClick = [&clicks] { ++clicks; };
    drives.SelectSimilarDisks(1, 4, 14, 5);
    EXPECT_THAT(form.UAE_Short.SelectedRows(), ElementsAre(0, 1, 2));
    EXPECT_EQ(form.UAE_Short.ListIndex(), 1);
    EXPECT_EQ(clicks, 0);
}

TEST_F(Drives, WithTheFocusOnlyTheClickedRowIsChosen) {
    Smart("1");
    Disks(3);
    Select(1);
    drives.SelectSimilarDisks(1, 4, 14, 5);
    Click(2, forms::Choice::toggle);
    EXPECT_THAT(form.UAE_Short.SelectedRows(), ElementsAre(2));
    Click(2, forms::Choice::toggle);
    EXPECT_THAT(form.UAE_Short.SelectedRows(), ElementsAre(2));
    Click(0, forms::Choice::extend);
    EXPECT_THAT(form.UAE_Short.SelectedRows(), ElementsAre(0));
}

TEST_F(Drives, ClickEmptiesTheDrivesOfTheGameBefore) {
    Smart("1");
    Disks(2);
    Games({"Entirely Other.adf"});
    Click(0);
    Click(2);
    EXPECT_THAT(Slots(), ElementsAre(2, -1, -1, -1, -1));
    EXPECT_THAT(Ticks(), ElementsAre(1, 0, 0, 0, 0));
    EXPECT_EQ(form.Check_Dfx[0].ToolTipText(), "Entirely Other.adf");
    EXPECT_EQ(form.Check_Dfx[1].ToolTipText(), "");
}

TEST_F(Drives, LongChoiceShrinksToTheClickedRow) {
    Smart("1");
    Disks(40);
    form.ShortListHasFocus = true;
    for (const int row : {0, 17, 39}) {
        form.UAE_Short.ClickRow(0);
        form.UAE_Short.ClickRow(39, forms::Choice::extend);
        ASSERT_EQ(form.UAE_Short.SelCount(), 40);
        Click(row, forms::Choice::addRange);
        EXPECT_THAT(form.UAE_Short.SelectedRows(), ElementsAre(row));
    }
}

TEST_F(Drives, HandSelectionTicksBoxesAndLeavesTheDrivesEmpty) {
    Smart("0");
    Games({"a.adf", "b.adf", "c.adf", "d.adf", "e.adf", "f.adf"});
    Click(1);
    Click(4, forms::Choice::toggle);
    EXPECT_THAT(Ticks(), ElementsAre(1, 1, 0, 0, 0));
    EXPECT_EQ(form.Check_Dfx[0].ToolTipText(), "b.adf");
    EXPECT_EQ(form.Check_Dfx[1].ToolTipText(), "e.adf");
    EXPECT_THAT(Slots(), ElementsAre(-1, -1, -1, -1, -1));
    EXPECT_TRUE(form.AddToFavorit.Visible());
    EXPECT_TRUE(form.AddToFavorit_Global.Visible());
}

TEST_F(Drives, FiveRowsByHandFitAndTheSixthSaysThatNoDriveIsLeft) {
    Smart("0");
    Games({"a.adf", "b.adf", "c.adf", "d.adf", "e.adf", "f.adf"});
    Click(0);
    Click(4, forms::Choice::extend);
    EXPECT_THAT(Ticks(), ElementsAre(1, 1, 1, 1, 1));
    EXPECT_EQ(beeper.count, 0);
    Click(5, forms::Choice::toggle);
    EXPECT_THAT(Ticks(), ElementsAre(1, 1, 1, 1, 1));
    EXPECT_EQ(form.Check_Dfx[4].ToolTipText(), "e.adf");
    EXPECT_EQ(beeper.count, 1);
    EXPECT_EQ(form.MyCaptionLabel.Caption(), "No empty drive");
    form.CurrentLanguage = 1;
    Click(5, forms::Choice::addRange);
    EXPECT_EQ(form.MyCaptionLabel.Caption(), "Keine Laufw. mehr frei");
}

TEST_F(Drives, ClickAsksForOneAndAGameForAnythingButZero) {
    Disks(2);
    Smart("2");
    Click(0);
    EXPECT_THAT(Slots(), ElementsAre(-1, -1, -1, -1, -1));
    EXPECT_TRUE(drives.SelectsByHand());
    form.ShortListHasFocus = false;
    drives.FillFromGame(0);
    EXPECT_THAT(Slots(), ElementsAre(0, -1, -1, -1, -1));
    form.DiskSlots = {};
    Smart("0");
    drives.FillFromGame(0);
    EXPECT_THAT(Slots(), ElementsAre(-1, -1, -1, -1, -1));
    Smart("1");
    EXPECT_FALSE(drives.SelectsByHand());
}

TEST_F(Drives, MissingSettingIsStoredAsOff) {
    Disks(2);
    EXPECT_TRUE(drives.SelectsByHand());
    Click(0);
    Click(1);
    EXPECT_EQ(ini.ReadIniValue("Settings", "SmartRomSelection", profile, "?", false), "0");
    EXPECT_THAT(Slots(), ElementsAre(-1, -1, -1, -1, -1));
}

TEST_F(Drives, GameThatWasNotFoundIsLookedForFromTheFirstRow) {
    Smart("1");
    Disks(3);
    Select(2);
    drives.FillFromGame(-1);
    EXPECT_THAT(Slots(), ElementsAre(2, -1, -1, -1, -1));
}

TEST_F(Drives, OneDiskIsShownForAGameOfAWideList) {
    for (forms::CheckBox& box : form.Check_Dfx)
        box.SetValue(1);
    form.WIthoutDoubles.SetWidth(1000);
    drives.ShowOneDisk();
    EXPECT_THAT(Ticks(), ElementsAre(1, 1, 1, 1, 1));
    form.WIthoutDoubles.SetWidth(1001);
    form.DiskSlots[1] = "/g/b.adf";
    drives.ShowOneDisk();
    EXPECT_THAT(Ticks(), ElementsAre(1, 0, 0, 0, 0));
    EXPECT_EQ(form.DiskSlots[1], "/g/b.adf");
}

TEST_F(Drives, BoxOfAnEmptyDriveCannotBeTicked) {
    form.Check_Dfx[1].SetValue(1);
    form.Check_Dfx[2].SetValue(1);
    form.DiskSlots[2] = "/g/c.adf";
    for (const int index : {-1, 0, 1, 2, 5, 99})
        drives.Check_Dfx_MouseUp(index);
    EXPECT_THAT(Ticks(), ElementsAre(0, 0, 1, 0, 0));
}

TEST_F(Drives, BlankOnTheBoxOfAnEmptyDriveIsSwallowed) {
    forms::Character blank{U' '};
    form.Check_Dfx[1].SetValue(1);
    drives.Check_Dfx_KeyPress(1, blank);
    EXPECT_EQ(blank.code, 0U);
    EXPECT_THAT(Ticks(), ElementsAre(0, 0, 0, 0, 0));
    form.DiskSlots[1] = "/g/b.adf";
    blank.code = U' ';
    drives.Check_Dfx_KeyPress(1, blank);
    EXPECT_EQ(blank.code, static_cast<char32_t>(' '));
    forms::Character letter{U'a'};
    drives.Check_Dfx_KeyPress(0, letter);
    EXPECT_EQ(letter.code, static_cast<char32_t>('a'));
}

TEST_F(Drives, NamesCompareWithoutTheirDirectories) {
    Smart("1");
    form.UAE_FULL.AddItem("/games/one very long directory/Game (Disk 1).adf");
    form.UAE_FULL.AddItem("/games/x/Game (Disk 2).adf");
    form.UAE_Short.AddItem("Game");
    form.UAE_Short.AddItem("Game");
    Click(0);
    EXPECT_THAT(Slots(), ElementsAre(0, 1, -1, -1, -1));
}

}  // namespace
}  // namespace kivu::launch
