#include "forms/hit_test.h"
#include "forms_testing.h"

namespace kivu::forms {
namespace {

struct Dragging : testing::Test {
    Dragging() {
        form.Move(100, 100, 10000, 8000);
        panel.Move(1000, 2000, 900, 300);
        panel.SetTag("Pic");
        panel.onMouseDown = [this](const Mouse& mouse) {
            log.push_back("grip " + Text(mouse.x, mouse.y));
            panel.StartDrag();
        };
        frame.Move(5000, 0, 4000, 8000);
        label.Move(200, 100, 1000, 500);
        list.Move(0, 0, 4000, 8000);
        panel.BringToFront();
        list.onDragDrop = Drops("L");
        frame.onDragDrop = Drops("Frame");
    }
    std::function<void(Control&, int, int)> Drops(const std::string& name) {
        return [this, name](Control& source, int x, int y) {
            log.push_back(source.Tag() + " on " + name + " " + Text(x, y));
        };
    }
    static std::string Text(int x, int y) { return std::to_string(x) + "," + std::to_string(y); }

    Form form{"F"};
    UserInput user{form};
    PictureBox panel{&form, "Panel"};
    ListBox list{&form, "L", ListControl::Order::asAdded};
    Frame frame{&form, "Frame"};
    Label label{&frame, "Label"};
    Log log;
};

TEST_F(Dragging, ControlIsDroppedOnTheTargetWhereTheButtonComesUp) {
    user.Drag(panel, {30, 40}, list, {500, 600});
    EXPECT_THAT(log, ElementsAre("grip 30,40", "Pic on L 500,600"));
    EXPECT_EQ(form.Dragged(), nullptr);
}

TEST_F(Dragging, TargetThatTakesNoDropsGetsNothing) {
    user.Drag(panel, {30, 40}, label, {1, 2});
    EXPECT_THAT(log, ElementsAre("grip 30,40"));
    list.SetVisible(false);
    user.Drag(panel, {30, 40}, list, {1, 2});
    EXPECT_THAT(log, ElementsAre("grip 30,40", "grip 30,40"));
}

TEST_F(Dragging, ControlThatIsNotGivenToTheMouseGetsTheMovement) {
    list.onMouseMove = [this](const Mouse& m) { log.push_back("move " + Text(m.x, m.y)); };
    list.onMouseUp = [this](const Mouse& m) { log.push_back("up " + Text(m.x, m.y)); };
    user.Drag(list, {10, 20}, label, {5, 6});
    EXPECT_THAT(log, ElementsAre("move 5205,106", "up 5205,106"));
}

TEST_F(Dragging, StepsFindTheTargetBehindTheDraggedControl) {
    list.onDragOver = [this](Control& source, int x, int y) {
        log.push_back(source.Tag() + " over " + Text(x, y));
        source.Move(x, y, source.Width(), source.Height());
    };
    user.MouseDown(panel, {buttons::left, 0, 10, 10});
    user.DragOver({1200, 2100});
    user.DragOver({1300, 2200});
    user.Drop({1301, 2201});
    EXPECT_THAT(log, ElementsAre("grip 10,10", "Pic over 1200,2100", "Pic over 1300,2200",
                                 "Pic on L 1301,2201"));
    EXPECT_EQ(panel.Left(), 1300);
    user.Drop({1301, 2201});
    EXPECT_EQ(log.size(), 4U);
}

TEST_F(Dragging, EscapeBringsTheControlBackAndGoesNoFurther) {
    list.onDragOver = [](Control& source, int x, int y) {
        source.Move(x, y, source.Width(), source.Height());
    };
    form.onPreviewKeyDown = [this](Key& key) { log.push_back(std::to_string(key.code)); };
    user.MouseDown(panel, {buttons::left, 0, 10, 10});
    user.DragOver({1200, 2100});
    EXPECT_EQ(panel.Left(), 1200);
    user.Stroke({keys::down, 0});
    EXPECT_EQ(form.Dragged(), &panel);
    log.clear();
    user.Stroke({keys::escape, 0});
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(form.Dragged(), nullptr);
    EXPECT_EQ(panel.Left(), 1000);
    EXPECT_EQ(panel.Top(), 2000);
    user.Drop({1301, 2201});
    EXPECT_THAT(log, IsEmpty());
    user.Stroke({keys::escape, 0});
    EXPECT_THAT(log, ElementsAre(std::to_string(keys::escape)));
}

TEST_F(Dragging, StepsTakeTheNearestTargetAroundTheControlInFront) {
    user.MouseDown(panel, {buttons::left, 0, 10, 10});
    user.Drop({5300, 150});
    EXPECT_THAT(log, ElementsAre("grip 10,10", "Pic on Frame 300,150"));
}

TEST_F(Dragging, DropWhereNobodyTakesItDoesNothing) {
    user.MouseDown(panel, {buttons::left, 0, 10, 10});
    user.DragOver({9500, 100});
    user.Drop({9500, 100});
    EXPECT_THAT(log, ElementsAre("grip 10,10"));
    EXPECT_EQ(form.Dragged(), nullptr);
}

TEST_F(Dragging, CancelPutsTheControlBack) {
    user.MouseDown(panel, {buttons::left, 0, 10, 10});
    panel.Move(7, 8, 900, 300);
    user.CancelDrag();
    EXPECT_EQ(panel.Left(), 1000);
    EXPECT_EQ(panel.Top(), 2000);
    user.CancelDrag();
    user.DragOver({1, 1});
    EXPECT_THAT(log, ElementsAre("grip 10,10"));
}

TEST_F(Dragging, MouseThatComesUpEndsIt) {
    user.MouseDown(panel, {buttons::left, 0, 10, 10});
    EXPECT_EQ(form.Dragged(), &panel);
    user.MouseUp(panel, {buttons::left, 0, 10, 10});
    EXPECT_EQ(form.Dragged(), nullptr);
}

TEST_F(Dragging, ControlInFrontIsTheOneShownLast) {
    EXPECT_EQ(&ControlAt(form, {1100, 2100}), &panel);
    EXPECT_EQ(&ControlAt(form, {1100, 2100}, &panel), &list);
    list.SetVisible(false);
    EXPECT_EQ(&ControlAt(form, {1100, 2100}, &panel), &form);
    EXPECT_EQ(&ControlAt(form, {5250, 150}), &label);
    EXPECT_EQ(&ControlAt(form, {5250, 700}), &frame);
    EXPECT_EQ(&ControlAt(form, {-5, 700}), &form);
    EXPECT_EQ(CornerInForm(label), (Point{5200, 100}));
    EXPECT_EQ(CornerInForm(form), (Point{0, 0}));
}

}  // namespace
}  // namespace kivu::forms
