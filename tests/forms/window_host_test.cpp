#include "forms/window_host.h"

#include <stdexcept>

#include "forms_testing.h"
#include "testing/scripted_windows.h"

namespace kivu::forms {
namespace {

struct WindowHostTest : ::testing::Test {
    WindowHostTest() {
        owner.Move(3000, 3000, 9000, 6000);
        box.Move(0, 0, 3000, 2000);
        for (Form* form : {&owner, &box, &second}) {
            form->onLoad = Writes(log, form->Name() + " load");
            form->onUnload = Writes(log, form->Name() + " unload");
        }
        windows.Adopt(owner);
    }

    Log Open() const {
        Log names;
        for (const auto& window : windows.OpenWindows())
            names.push_back(window.form->Name() + (window.modal ? " modal" : ""));
        return names;
    }

    Log log;
    kivu::testing::ScriptedWindows windows;
    Toolkit toolkit{nullptr, nullptr, nullptr, &windows};
    Form owner{"Owner", toolkit};
    Form box{"Box", toolkit};
    TextBox low{&box, "Low"};
    TextBox high{&box, "High"};
    Timer timer{&box, "Timer", 1000, true};
    Form second{"Second", toolkit};
};

TEST_F(WindowHostTest, ShowLoadsOnceAndListsFromBackToFront) {
    windows.Show(box, &owner);
    windows.Show(second, &owner);
    EXPECT_THAT(Open(), ElementsAre("Owner", "Box", "Second"));
    EXPECT_THAT(log, ElementsAre("Box load", "Second load"));
    windows.Show(box, &owner);
    EXPECT_THAT(Open(), ElementsAre("Owner", "Second", "Box"));
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(WindowHostTest, HiddenWindowKeepsItsStateAndIsNotOpen) {
    windows.Show(box, &owner);
    low.SetText("kept");
    box.SetVisible(false);
    EXPECT_THAT(Open(), ElementsAre("Owner"));
    EXPECT_EQ(windows.Find("box"), &box);
    windows.Show(box, &owner);
    EXPECT_THAT(log, ElementsAre("Box load"));
    EXPECT_THAT(Open(), ElementsAre("Owner", "Box"));
    EXPECT_EQ(low.Text(), "kept");
}

TEST_F(WindowHostTest, LoadedWindowIsNotSeenBeforeItIsShown) {
    box.Load();
    EXPECT_FALSE(box.Visible());
    EXPECT_THAT(Open(), ElementsAre("Owner"));
    EXPECT_EQ(windows.Find("Box"), &box);
}

TEST_F(WindowHostTest, StandsInTheMiddleOfItsOwnerUnlessItKeepsItsPlace) {
    box.Load();
    windows.Show(box, &owner);
    EXPECT_EQ(box.Left(), 6000);
    EXPECT_EQ(box.Top(), 5000);
    // Where the user has moved it.
    box.Move(100, 200, 3000, 2000);
    box.SetVisible(false);
    windows.Show(box, &owner);
    EXPECT_EQ(box.Left(), 100);
    second.SetKeepsPlace(true);
    second.Move(7, 8, 100, 100);
    windows.Show(second, &owner);
    EXPECT_EQ(second.Left(), 7);
}

TEST_F(WindowHostTest, ModalWindowReturnsWhenItIsHidden) {
    windows.onModal = [&](Form& form, const std::function<bool()>& isOpen) {
        EXPECT_THAT(Open(), ElementsAre("Owner", "Box modal"));
        EXPECT_EQ(windows.Questions(), 1);
        EXPECT_TRUE(windows.IsBlocked(owner));
        EXPECT_FALSE(windows.IsBlocked(box));
        EXPECT_TRUE(isOpen());
        form.SetVisible(false);
        EXPECT_FALSE(isOpen());
    };
    windows.ShowModal(box, &owner);
    EXPECT_EQ(windows.Questions(), 0);
    EXPECT_FALSE(windows.IsBlocked(owner));
    EXPECT_THAT(log, ElementsAre("Box load"));
    EXPECT_TRUE(box.IsLoaded());
}

TEST_F(WindowHostTest, ModalWindowReturnsWhenItIsUnloaded) {
    windows.onModal = [&](Form& form, const std::function<bool()>&) { windows.Close(form); };
    windows.ShowModal(box, &owner);
    EXPECT_THAT(log, ElementsAre("Box load", "Box unload"));
    EXPECT_EQ(windows.Find("Box"), nullptr);
}

TEST_F(WindowHostTest, ModalWindowThatNobodyServesGoesAtOnce) {
    windows.ShowModal(box, &owner);
    EXPECT_FALSE(box.Visible());
    EXPECT_TRUE(box.IsLoaded());
}

TEST_F(WindowHostTest, WindowOverAModalOneIsInReachAndTheModalOneIsWhileThatIsNotModal) {
    windows.onModal = [&](Form&, const std::function<bool()>&) {
        windows.Show(second, &box);
        EXPECT_FALSE(windows.IsBlocked(second));
        EXPECT_FALSE(windows.IsBlocked(box));
        EXPECT_TRUE(windows.IsBlocked(owner));
    };
    windows.ShowModal(box, &owner);
}

TEST_F(WindowHostTest, ModalWindowInAModalWindowBlocksIt) {
    int depth = 0;
    windows.onModal = [&](Form& form, const std::function<bool()>&) {
        if (++depth == 1) {
            windows.ShowModal(second, &form);
            EXPECT_FALSE(windows.IsBlocked(box));
            EXPECT_EQ(windows.Questions(), 1);
        } else {
            EXPECT_EQ(windows.Questions(), 2);
            EXPECT_TRUE(windows.IsBlocked(box));
            // The same once more only comes to the front.
            windows.ShowModal(box, &owner);
            EXPECT_EQ(windows.Questions(), 2);
        }
    };
    windows.ShowModal(box, &owner);
    EXPECT_EQ(depth, 2);
}

TEST_F(WindowHostTest, TellsOfEachQuestion) {
    std::vector<int> told;
    windows.onQuestions = [&] { told.push_back(windows.Questions()); };
    {
        const WindowHost::Question question(windows);
        windows.ShowModal(box, &owner);
    }
    EXPECT_THAT(told, ElementsAre(1, 2, 1, 0));
}

TEST_F(WindowHostTest, QuestionsAreCountedDownWhenTheProgramEndsInsideOne) {
    windows.onModal = [](Form&, const std::function<bool()>&) { throw std::runtime_error("end"); };
    EXPECT_THROW(windows.ShowModal(box, &owner), std::runtime_error);
    EXPECT_EQ(windows.Questions(), 0);
    EXPECT_FALSE(box.IsHeld());
}

TEST_F(WindowHostTest, RaiseTakesAlongWhatStandsOverAWindow) {
    windows.Show(box, &owner);
    windows.Show(second, nullptr);
    windows.Raise(owner);
    EXPECT_THAT(Open(), ElementsAre("Second", "Owner", "Box"));
}

TEST_F(WindowHostTest, CloseAsksFirst) {
    windows.Show(box, &owner);
    bool refuse = true;
    box.onQueryClose = [&](bool& cancel) { cancel = refuse; };
    windows.Close(box);
    EXPECT_TRUE(windows.IsOpen(box));
    refuse = false;
    windows.Close(box);
    EXPECT_FALSE(windows.IsOpen(box));
    EXPECT_TRUE(box.IsUnloaded());
}

TEST_F(WindowHostTest, UnloadRunsItsHandlerOnceWhileTheWindowIsStillThere) {
    windows.Show(box, &owner);
    box.onUnload = [&] {
        log.push_back(box.Visible() ? "seen" : "hidden");
        box.Unload();
    };
    box.Unload();
    box.Unload();
    EXPECT_THAT(log, ElementsAre("Box load", "seen"));
}

TEST_F(WindowHostTest, NothingRunsInAnUnloadedWindow) {
    windows.Show(box, &owner);
    int ticks = 0;
    timer.onTimer = [&] { ++ticks; };
    low.onKeyDown = Writes(log, "key");
    box.onPreviewKeyDown = Writes(log, "preview");
    box.Unload();
    log.clear();
    EXPECT_FALSE(timer.Tick());
    EXPECT_FALSE(low.IsReachable());
    UserInput hands(box);
    hands.Type(low, "x");
    hands.Click(low);
    hands.Stroke({keys::enter});
    EXPECT_EQ(ticks, 0);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(WindowHostTest, KeyThatUnloadsTheWindowGoesNoFurther) {
    windows.Show(box, &owner);
    low.SetFocus();
    low.onKeyDown = [&](Key&) { box.Unload(); };
    low.onKeyPress = Writes(log, "press");
    box.onPreviewKeyPress = Writes(log, "preview");
    low.onChange = Writes(log, "change");
    log.clear();
    UserInput(box).Type(low, "x");
    EXPECT_THAT(log, ElementsAre("Box unload"));
}

TEST_F(WindowHostTest, WindowThatItsLoadHandlerUnloadsIsNotShown) {
    box.onLoad = [&] { box.Unload(); };
    windows.ShowModal(box, &owner);
    EXPECT_THAT(Open(), ElementsAre("Owner"));
    EXPECT_FALSE(box.Visible());
}

TEST_F(WindowHostTest, UnloadedWindowThatLivesOnIsLoadedAnew) {
    windows.Show(box, &owner);
    box.Unload();
    windows.Show(box, &owner);
    EXPECT_THAT(log, ElementsAre("Box load", "Box unload", "Box load"));
    EXPECT_TRUE(low.IsReachable());
}

TEST_F(WindowHostTest, FirstStopHasTheFocusUnlessAnotherWasGivenIt) {
    low.Move(0, 1000, 1000, low.Height());
    high.Move(0, 100, 1000, high.Height());
    windows.Show(box, &owner);
    EXPECT_EQ(box.Focus(), &high);
    low.SetFocus();
    box.SetVisible(false);
    windows.Show(box, &owner);
    EXPECT_EQ(box.Focus(), &low);
}

TEST_F(WindowHostTest, WindowThatTakesNoFocusGivesItToNoControl) {
    box.SetActivates(false);
    windows.Show(box, &owner);
    EXPECT_EQ(box.Focus(), nullptr);
}

TEST_F(WindowHostTest, TimerThatRestsTicksOnlyWhileNothingWaitsForTheUser) {
    Timer watch{&owner, "Watch", 1000, true}, clock{&owner, "Clock", 1000, true};
    watch.SetRestsBehindQuestions(true);
    watch.onTimer = Writes(log, "watch");
    clock.onTimer = Writes(log, "clock");
    timer.onTimer = Writes(log, "own");
    windows.onModal = [&](Form&, const std::function<bool()>&) {
        log.clear();
        EXPECT_TRUE(watch.Tick());
        EXPECT_TRUE(clock.Tick());
        EXPECT_TRUE(timer.Tick());
    };
    windows.ShowModal(box, &owner);
    EXPECT_THAT(log, ElementsAre("clock", "own"));
    watch.Tick();
    EXPECT_EQ(log.back(), "watch");
}

TEST_F(WindowHostTest, DestroyedWindowLeavesTheList) {
    {
        Form brief("Brief", toolkit);
        windows.Show(brief, &owner);
        windows.Show(second, &brief);
    }
    EXPECT_EQ(windows.Find("Brief"), nullptr);
    EXPECT_FALSE(windows.IsBlocked(second));
    EXPECT_THAT(Open(), ElementsAre("Owner", "Second"));
}

}  // namespace
}  // namespace kivu::forms
