// Dragging the drives panel about the real window.

#include <cmath>

#include "forms/hit_test.h"
#include "view/launcher/drives_window.h"

namespace kivu::scenarios {
namespace {

class DrivesDrag : public DrivesWindow {
 protected:
    static constexpr QPoint grip{4, 8};  // pixels from the panel's corner

    forms::PictureBox& Panel() { return Form().SettingsSubPicture; }
    QPoint PanelAt(QPoint offset) {
        return Find("SettingsSubPicture")->mapTo(&view->Window(), offset);
    }
    void Press() { QTest::mousePress(Native(), Qt::LeftButton, {}, PanelAt(grip)); }
    void MoveTo(QPoint at) {
        QTest::mouseMove(Native(), at);
        Settle();
    }
    void Release(QPoint at) {
        QTest::mouseRelease(Native(), Qt::LeftButton, {}, at);
        Settle();
    }
    void DragTo(QPoint at) {
        Press();
        MoveTo(PanelAt(grip) + QPoint(-10, -10));
        MoveTo(at);
        Release(at);
    }
    // Where a drop at this place of the window leads: the panel's and the window's place in pixels
    // count as twips, sideways less 700.
    forms::Point Expected(QPoint at, forms::Point before) {
        const auto lead = [](int panel, int window) { return std::fabs((panel + window) / 15.0); };
        const double left = at.x() * 15 - (grip.x() * 15 - (lead(before.x, Form().Left()) - 700));
        const double top = at.y() * 15 - (grip.y() * 15 - lead(before.y, Form().Top()));
        return {static_cast<int>(std::nearbyint(left)), static_cast<int>(std::nearbyint(top))};
    }
    // A place at which this control lies in front.
    QPoint PlaceOn(const forms::Control& control) {
        const forms::Point corner = forms::CornerInForm(control);
        for (int y = 45; y < control.Height(); y += 75) {
            for (int x = 45; x < control.Width(); x += 75) {
                const forms::Point place{corner.x + x, corner.y + y};
                if (&forms::ControlAt(Form(), place, &Panel()) == &control)
                    return {place.x / 15, place.y / 15};
            }
        }
        ADD_FAILURE() << control.FullName() << " lies behind others";
        return {};
    }
    // `leftOut`: the part of the target's place in the window that a drop on it does not count.
    void CheckDropOn(forms::Control& target, forms::Point leftOut = {0, 0}) {
        SCOPED_TRACE(target.FullName());
        Panel().Move(9300, 7500, Panel().Width(), Panel().Height());
        Settle();
        const forms::Point before{Panel().Left(), Panel().Top()};
        const int width = Panel().Width(), height = Panel().Height();
        const QPoint at = PlaceOn(target);
        forms::Point expected = Expected(at, before);
        expected.x -= leftOut.x;
        expected.y -= leftOut.y;
        DragTo(at);
        EXPECT_EQ(Form().Dragged(), nullptr);
        // A panel that would lie beyond an edge is brought back.
        if (expected.y <= Form().Height() - 500) {
            EXPECT_EQ(Panel().Top(), expected.y);
        }
        if (expected.x <= Form().Width() - 300) {
            EXPECT_EQ(Panel().Left(), expected.x);
        }
        EXPECT_EQ(Panel().Width(), width);
        EXPECT_EQ(Panel().Height(), height);
        EXPECT_EQ(Find("SettingsSubPicture")->pos(), view::PixelRect(Panel()).topLeft());
    }
};

TEST_F(DrivesDrag, MovesOntoEachGameList) {
    Show();
    const std::pair<const char*, forms::ListBox*> lists[] = {{"Label1", &Form().FavoritenListe},
                                                             {"Label2", &Form().WIthoutDoubles},
                                                             {"Label3", &Form().UAE_Short}};
    for (const auto& [tab, rows] : lists) {
        ClickAt(Middle(tab));
        ASSERT_TRUE(rows->Visible());
        CheckDropOn(*rows);
    }
}

TEST_F(DrivesDrag, MovesOntoTheWindowAndItsTitleAndClock) {
    Show();
    CheckDropOn(Form());
    CheckDropOn(Form().MyCaptionLabel);
    CheckDropOn(Form().TopRightPic);
    CheckDropOn(Form().TimeString);
}

TEST_F(DrivesDrag, MovesOntoThePanelUnderThePictureAndTheName) {
    Show();
    OpenFiles();
    ClickRow(0);
    ASSERT_TRUE(Form().Current_ProgramNameFull.Visible());
    CheckDropOn(Form().SettingsFrame);
    const forms::Label& name = Form().Current_ProgramNameFull;
    CheckDropOn(Form().Current_ProgramNameFull, {name.Left(), name.Top()});
}

TEST_F(DrivesDrag, MovesOntoThePictureInEachOfItsShapes) {
    Show();
    Form().VorschauBild.SetVisible(true);
    Form().GamePicture.SetVisible(false);
    Form().GamePictureVis.SetVisible(false);
    CheckDropOn(Form().VorschauBild);
    Form().GamePictureVis.Move(0, 0, 3000, 3000);
    Form().GamePictureVis.SetVisible(true);
    CheckDropOn(Form().GamePictureVis);
    Form().GamePictureVis.SetVisible(false);
    Form().GamePicture.Move(0, 0, 3000, 3000);
    Form().GamePicture.SetVisible(true);
    CheckDropOn(Form().GamePicture);
}

TEST_F(DrivesDrag, MovesOntoTheBusySign) {
    Show();
    for (forms::ListBox* rows :
         {&Form().FavoritenListe, &Form().WIthoutDoubles, &Form().UAE_Short, &Form().SuchErgList})
        rows->SetVisible(false);
    Form().LoadingBtn.SetCaption("Loading list...");
    Form().LoadingBtn.SetVisible(true);
    CheckDropOn(Form().LoadingBtn);
}

TEST_F(DrivesDrag, FollowsTheMouseOnItsWay) {
    Show();
    const forms::Point before{Panel().Left(), Panel().Top()};
    Press();
    MoveTo(PanelAt(grip) + QPoint(-12, -12));
    for (const QPoint at : {QPoint(300, 300), QPoint(200, 250)}) {
        MoveTo(at);
        const forms::Point expected = Expected(at, before);
        EXPECT_EQ(Panel().Left(), expected.x);
        EXPECT_EQ(Panel().Top(), expected.y);
    }
    Release(QPoint(200, 250));
    EXPECT_EQ(Panel().Left(), Expected(QPoint(200, 250), before).x);
}

TEST_F(DrivesDrag, ComesBackFromOutsideAndByEscape) {
    Show();
    const forms::Point before{Panel().Left(), Panel().Top()};
    Press();
    MoveTo(QPoint(300, 300));
    Release(QPoint(-40, 300));
    EXPECT_EQ(Panel().Left(), before.x);
    EXPECT_EQ(Panel().Top(), before.y);
    Press();
    MoveTo(QPoint(300, 300));
    EXPECT_NE(Panel().Left(), before.x);
    Key(Qt::Key_Escape);
    EXPECT_EQ(Panel().Left(), before.x);
    EXPECT_EQ(Find("SettingsSubPicture")->pos(), view::PixelRect(Panel()).topLeft());
    Release(QPoint(300, 300));
    EXPECT_EQ(Panel().Left(), before.x);
    EXPECT_EQ(Do("boxes")["value"], Json::array());
}

TEST_F(DrivesDrag, ClickOnTheGripMovesNothing) {
    Show();
    const forms::Point before{Panel().Left(), Panel().Top()};
    const QPoint at = PanelAt(grip);
    ClickAt(at);
    Press();
    MoveTo(at + QPoint(2, 1));
    Release(at + QPoint(2, 1));
    EXPECT_EQ(Panel().Left(), before.x);
    EXPECT_EQ(Panel().Top(), before.y);
}

TEST_F(DrivesDrag, BoxesStayClickableWhereverThePanelLies) {
    Show();
    OpenFiles();
    ClickRow(3);
    DragTo(QPoint(200, 300));
    ClickAt(Middle("Check_Dfx(1)"));
    EXPECT_EQ(Boxes(), (std::vector<bool>{true, false, false, false, false}));
    EXPECT_EQ(Get("ListMode"), "3");
}

TEST_F(DrivesDrag, FoldsByItsHandleWhereverItLiesAndIsDraggedFolded) {
    Show();
    const int width = Panel().Width(), height = Panel().Height();
    DragTo(QPoint(200, 300));
    ClickAt(Middle("DrivesResizeLabel"));
    EXPECT_EQ(Panel().Width(), 480);
    EXPECT_EQ(Panel().Height(), 210);
    const int left = Panel().Left();
    const forms::Point before{left, Panel().Top()};
    DragTo(QPoint(300, 200));
    EXPECT_EQ(Panel().Left(), Expected(QPoint(300, 200), before).x);
    ClickAt(Middle("DrivesResizeLabel"));
    EXPECT_EQ(Panel().Width(), width);
    EXPECT_EQ(Panel().Height(), height);
}

TEST_F(DrivesDrag, PlateHidesTheRowsBehindIt) {
    Show();
    OpenFiles();
    DragTo(QPoint(100, 120));
    Form().UAE_Short.SetFocus();
    ClickRow(5);
    const QRect place(Find("SettingsSubPicture")->mapTo(&view->Window(), QPoint()),
                      Find("SettingsSubPicture")->size());
    const auto picture = [&] { return view->Window().grab(place).toImage(); };
    for (forms::CheckBox& box : Form().Check_Dfx)
        box.SetValue(0);
    Settle();
    const QImage before = picture();
    for (int row = 0; row < 5; ++row)
        Form().UAE_Short.SetList(row, "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW");
    Settle();
    // Its round corners and the blunt ones around them apart.
    const QRect inside = before.rect().adjusted(8, 8, -8, -8);
    EXPECT_EQ(before.copy(inside), picture().copy(inside));
}

}  // namespace
}  // namespace kivu::scenarios
