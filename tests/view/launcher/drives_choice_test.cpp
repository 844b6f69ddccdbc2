// Choosing disks in the complete list, with real keys and clicks.

#include "view/launcher/drives_window.h"

namespace kivu::scenarios {
namespace {

using ::testing::ElementsAre;
using Boxed = std::vector<bool>;

struct DrivesByHand : DrivesWindow {
    DrivesByHand() { WriteProfile({{"SmartRomSelection", "0"}}); }
    // A row's picture without its neighbours'. The first three rows have the same title.
    QImage Picture(int row) {
        return view->Window().grab(RowRect(row)).toImage().convertToFormat(QImage::Format_RGB32);
    }
};

using DrivesBySimilarity = DrivesWindow;

TEST_F(DrivesByHand, CtrlAndShiftClicksChooseRowsAndTickBoxes) {
    Show();
    OpenFiles();
    ClickRow(0);
    ClickRow(4, Qt::ControlModifier);
    EXPECT_THAT(Chosen(), ElementsAre(0, 4));
    EXPECT_EQ(Boxes(), (Boxed{true, true, false, false, false}));
    ClickRow(2, Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(2, 3, 4));
    ClickRow(0, Qt::ControlModifier);
    ClickRow(1, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(0, 1, 2, 3, 4));
    ClickRow(2, Qt::ControlModifier);
    EXPECT_THAT(Chosen(), ElementsAre(0, 1, 3, 4));
    EXPECT_EQ(Boxes(), (Boxed{true, true, true, true, false}));
    ClickRow(2);
    EXPECT_THAT(Chosen(), ElementsAre(2));
    EXPECT_EQ(Boxes(), (Boxed{true, false, false, false, false}));
    EXPECT_EQ(Disks(), Json({"", "", "", "", ""}));
}

TEST_F(DrivesByHand, KeysAloneChooseRows) {
    Show();
    // From the simple list, which has the focus at the start.
    Key(Qt::Key_Right);
    ASSERT_EQ(Get("ListMode"), "3");
    Key(Qt::Key_Home);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(0, 1));
    Key(Qt::Key_Down, Qt::ControlModifier);
    Key(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_THAT(Chosen(), ElementsAre(0, 1));
    EXPECT_EQ(Form().UAE_Short.ListIndex(), 3);
    Key(Qt::Key_Space);
    EXPECT_THAT(Chosen(), ElementsAre(0, 1, 3));
    EXPECT_EQ(Boxes(), (Boxed{true, true, true, false, false}));
    EXPECT_TRUE(Form().UAE_Short.HasFocus());
    EXPECT_EQ(Form().SearchDblsTxt.Text().find(' '), std::string::npos);
    Key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_THAT(Chosen(), ElementsAre(0, 1));
    Key(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(3, 4, 5));
    Key(Qt::Key_Home, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_THAT(Chosen(), ElementsAre(0, 1, 2, 3, 4, 5));
    Key(Qt::Key_Up, Qt::ShiftModifier);
    Key(Qt::Key_Down);
    EXPECT_THAT(Chosen(), ElementsAre(1));
}

TEST_F(DrivesByHand, CurrentRowStandsOutAmongThoseChosen) {
    Show();
    OpenFiles();
    ClickRow(0);
    ClickRow(2, Qt::ShiftModifier);
    QTest::mouseMove(Native(), QPoint(5, 5));
    Settle();
    ASSERT_THAT(Chosen(), ElementsAre(0, 1, 2));
    ASSERT_EQ(Form().UAE_Short.List(0), Form().UAE_Short.List(2));
    EXPECT_EQ(Picture(0), Picture(1));
    EXPECT_NE(Picture(1), Picture(2));
    Key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_NE(Picture(0), Picture(1));
    EXPECT_EQ(Picture(0), Picture(2));
    // Also where it is not chosen itself: no fill, but a line around it.
    const QImage chosen = Picture(0);
    Key(Qt::Key_Up, Qt::ControlModifier);
    Key(Qt::Key_Space);
    EXPECT_THAT(Chosen(), ElementsAre(1, 2));
    EXPECT_NE(Picture(0), chosen);
    EXPECT_NE(Picture(0), Picture(1));
    EXPECT_EQ(Picture(1), Picture(2));
}

TEST_F(DrivesByHand, SixthRowSaysInTheTitleThatNoDriveIsLeft) {
    Show();
    OpenFiles();
    ClickRow(0);
    Key(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "No empty drive");
    EXPECT_EQ(Do("beeps")["value"], 1);
    EXPECT_EQ(Boxes(), (Boxed{true, true, true, true, true}));
}

TEST_F(DrivesByHand, ChoiceOutlivesAVisitToABoxAndToAnotherList) {
    Show();
    OpenFiles();
    ClickRow(1);
    ClickRow(3, Qt::ControlModifier);
    ClickAt(Middle("Check_Dfx(4)"));
    EXPECT_FALSE(Form().UAE_Short.HasFocus());
    EXPECT_THAT(Chosen(), ElementsAre(1, 3));
    ClickAt(Middle("Label2"));
    OpenFiles();
    EXPECT_THAT(Chosen(), ElementsAre(1, 3));
    ClickRow(5, Qt::ControlModifier);
    EXPECT_THAT(Chosen(), ElementsAre(1, 3, 5));
    EXPECT_EQ(Boxes(), (Boxed{true, true, true, false, false}));
}

TEST_F(DrivesBySimilarity, ClickOnOneDiskTicksTheBoxesOfAllAndTipsNameThem) {
    Show();
    OpenFiles();
    ClickRow(1);
    EXPECT_EQ(Boxes(), (Boxed{true, true, true, false, false}));
    EXPECT_EQ(Find("Check_Dfx(2)")->toolTip(),
              QString::fromUtf8("Käfer König (1990)(Maker)(Disk 3 of 3).adf"));
    ClickRow(5);
    EXPECT_EQ(Boxes(), (Boxed{true, false, false, false, false}));
    EXPECT_EQ(Find("Check_Dfx(2)")->toolTip(), "");
}

TEST_F(DrivesBySimilarity, ModifiersChooseNoSecondRow) {
    Show();
    OpenFiles();
    ClickRow(0);
    ClickRow(3, Qt::ControlModifier);
    EXPECT_THAT(Chosen(), ElementsAre(3));
    ClickRow(5, Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(5));
    Key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_THAT(Chosen(), ElementsAre(4));
    EXPECT_EQ(Disks(), Json({"Moon Miner (1991)(Disk 1 of 2).adf",
                             "Moon Miner (1991)(Disk 2 of 2).adf", "", "", ""}));
}

TEST_F(DrivesBySimilarity, ArrowAndEnterStartAGameWithItsDisks) {
    tree.Write("Config/Kivu_Master.uaecfg", "use_gui = no\r\n");
    Show();
    Key(Qt::Key_Right);
    Key(Qt::Key_End);
    Key(Qt::Key_Up);
    Key(Qt::Key_Return);
    EXPECT_EQ(StartConfiguration(), "\r\nuse_gui = no\r\n" +
                                        FloppyLine(0, "Moon Miner (1991)(Disk 1 of 2).adf") +
                                        FloppyLine(1, "Moon Miner (1991)(Disk 2 of 2).adf"));
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
}

TEST_F(DrivesBySimilarity, BoxWithTheFocusStandsOutTickedOrNot) {
    Show();
    OpenFiles();
    ClickRow(3);
    for (const int drive : {1, 4}) {
        forms::CheckBox& box = Form().Check_Dfx[static_cast<std::size_t>(drive)];
        QWidget* widget = Find(box.FullName().c_str());
        const auto picture = [&] {
            Settle();
            return view->Window()
                .grab({widget->mapTo(&view->Window(), QPoint()), widget->size()})
                .toImage();
        };
        const QImage before = picture();
        box.SetFocus();
        ASSERT_TRUE(box.HasFocus());
        EXPECT_NE(picture(), before) << drive;
    }
}

TEST_F(DrivesBySimilarity, BoxOfAnEmptyDriveIsTickedByNeitherMouseNorBlank) {
    Show();
    OpenFiles();
    ClickRow(3);
    ClickAt(Middle("Check_Dfx(4)"));
    Key(Qt::Key_Space);
    EXPECT_EQ(Boxes(), (Boxed{true, true, false, false, false}));
    ClickAt(Middle("Check_Dfx(1)"));
    EXPECT_EQ(Boxes(), (Boxed{true, false, false, false, false}));
    EXPECT_EQ(Disks()[1], "Moon Miner (1991)(Disk 2 of 2).adf");
    Key(Qt::Key_Space);
    EXPECT_EQ(Boxes(), (Boxed{true, true, false, false, false}));
}

}  // namespace
}  // namespace kivu::scenarios
