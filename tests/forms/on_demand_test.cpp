#include "forms/on_demand.h"

#include "forms_testing.h"
#include "testing/scripted_windows.h"

namespace kivu::forms {
namespace {

using kivu::testing::ScriptedWindows;

struct Settings : Form {
    Settings(WindowHost& host, Log& log)
        : Form("Settings", Toolkit{nullptr, nullptr, nullptr, &host}), log(log) {
        log.push_back("made");
        onLoad = Writes(log, "load");
    }
    ~Settings() override { log.push_back("freed"); }

    Log& log;
    CommandButton close{this, "Close"};
    TextBox text{this, "Text"};
};

// Owns its form and its routines.
struct OwningWindow {
    OwningWindow(WindowHost& host, Log& log) : form(host, log) {}
    Form& GetForm() { return form; }
    Settings form;
};

struct OnDemandTest : ::testing::Test {
    Log log;
    ScriptedWindows windows;
    OnDemand<Settings> settings{windows,
                                [this] { return std::make_unique<Settings>(windows, log); }};
};

TEST_F(OnDemandTest, IsMadeAndLoadedWhenFirstSpokenTo) {
    EXPECT_EQ(settings.Loaded(), nullptr);
    EXPECT_THAT(log, IsEmpty());
    Settings& made = settings.Get();
    EXPECT_THAT(log, ElementsAre("made", "load"));
    EXPECT_EQ(&settings.Get(), &made);
    EXPECT_EQ(settings.Loaded(), &made);
    EXPECT_FALSE(made.Visible());
}

TEST_F(OnDemandTest, EachOpeningStartsFresh) {
    settings.Get().text.SetText("old");
    windows.Show(settings.Get(), nullptr);
    settings.Get().SetVisible(false);
    EXPECT_EQ(settings.Get().text.Text(), "old");
    settings.Get().Unload();
    EXPECT_EQ(settings.Loaded(), nullptr);
    EXPECT_EQ(settings.Get().text.Text(), "");
}

TEST_F(OnDemandTest, IsFreedOnlyAtAPlaceForIt) {
    settings.Get().Unload();
    EXPECT_THAT(log, ElementsAre("made", "load"));
    windows.FreeUnloaded();
    EXPECT_THAT(log, ElementsAre("made", "load", "freed"));
}

TEST_F(OnDemandTest, OutlivesTheHandlerThatUnloadsIt) {
    Settings& made = settings.Get();
    windows.Show(made, nullptr);
    made.close.onClick = [&] {
        made.Unload();
        windows.FreeUnloaded();
        // A new one while the old one is still about.
        Settings& next = settings.Get();
        EXPECT_NE(&next, &made);
        EXPECT_FALSE(made.Visible());
        log.push_back("handled");
    };
    UserInput(made).Click(made.close);
    EXPECT_THAT(log, ElementsAre("made", "load", "made", "load", "handled"));
    windows.FreeUnloaded();
    EXPECT_EQ(log.back(), "freed");
    EXPECT_NE(settings.Loaded(), nullptr);
}

TEST_F(OnDemandTest, OutlivesWhoWaitsForIt) {
    Settings& made = settings.Get();
    windows.onModal = [&](Form& form, const std::function<bool()>&) {
        made.text.SetText("result");
        form.Unload();
        windows.FreeUnloaded();
        EXPECT_NE(log.back(), "freed");
    };
    windows.ShowModal(made, nullptr);
    EXPECT_EQ(made.text.Text(), "result");
    windows.FreeUnloaded();
    EXPECT_EQ(log.back(), "freed");
}

TEST_F(OnDemandTest, UnloadedOneCannotBeShownAnyMore) {
    Settings& made = settings.Get();
    made.Unload();
    windows.Show(made, nullptr);
    windows.ShowModal(made, nullptr);
    EXPECT_THAT(windows.OpenWindows(), IsEmpty());
    EXPECT_THAT(log, ElementsAre("made", "load"));
}

TEST_F(OnDemandTest, OneThatUnloadsItselfWhileLoadingLastsAsLongAsAnyOther) {
    OnDemand<Settings> shy{windows, [this] {
                               auto made = std::make_unique<Settings>(windows, log);
                               Settings& form = *made;
                               form.onLoad = [&form] { form.Unload(); };
                               return made;
                           }};
    Settings& made = shy.Get();
    EXPECT_EQ(shy.Loaded(), nullptr);
    EXPECT_TRUE(made.IsUnloaded());
    EXPECT_THAT(log, ElementsAre("made"));
    windows.FreeUnloaded();
    EXPECT_EQ(log.back(), "freed");
}

TEST_F(OnDemandTest, HoldsWhatOwnsItsForm) {
    OnDemand<OwningWindow> owning{windows,
                                  [this] { return std::make_unique<OwningWindow>(windows, log); }};
    windows.Show(owning.Get().GetForm(), nullptr);
    owning.Get().GetForm().Close();
    windows.FreeUnloaded();
    EXPECT_THAT(log, ElementsAre("made", "load", "freed"));
    EXPECT_EQ(owning.Loaded(), nullptr);
}

TEST_F(OnDemandTest, GoesWithItsOwnerWhileOpen) {
    {
        OnDemand<Settings> brief{windows,
                                 [this] { return std::make_unique<Settings>(windows, log); }};
        windows.Show(brief.Get(), nullptr);
    }
    EXPECT_THAT(windows.OpenWindows(), IsEmpty());
    EXPECT_EQ(log.back(), "freed");
}

}  // namespace
}  // namespace kivu::forms
