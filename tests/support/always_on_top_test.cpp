#include "support/always_on_top.h"

#include <gtest/gtest.h>
#include <map>

#include "support/window_handling.h"
#include "testing/scripted_windows.h"

namespace kivu::support {
namespace {

class MemoryStore : public platform::UserStore {
 public:
    std::string Get(const std::string& section, const std::string& key,
                    const std::string& missing) const override {
        const auto found = values.find(section + "/" + key);
        return found == values.end() ? missing : found->second;
    }
    void Set(const std::string& section, const std::string& key,
             const std::string& value) override {
        values[section + "/" + key] = value;
    }
    std::string SystemValue(const std::string&, const std::string&,
                            const std::string&) const override {
        return {};
    }
    std::map<std::string, std::string> values;
};

struct Window {
    explicit Window(platform::UserStore& store) : pin(form, {enabled, disabled, hover}, store) {}
    forms::Form form{"W"};
    forms::Image enabled{&form, "AOT_Enabled"}, disabled{&form, "AOT_Disabled"},
        hover{&form, "AOT_MouseMove"};
    AlwaysOnTop pin;
};

TEST(AlwaysOnTop, IsOnAtTheFirstStart) {
    MemoryStore store;
    Window window(store);
    window.pin.LoadSettings();
    EXPECT_TRUE(window.pin.GetIsOnTop());
    EXPECT_TRUE(window.form.IsTopmost());
    EXPECT_TRUE(window.enabled.Visible());
    EXPECT_FALSE(window.disabled.Visible());
}

TEST(AlwaysOnTop, IsStoredAsAWord) {
    MemoryStore store;
    Window window(store);
    window.pin.SetWindowBackToNormal();
    EXPECT_EQ(store.values["AlwaysOnTop/OnTop"], "False");
    EXPECT_FALSE(window.form.IsTopmost());
    window.pin.SetWindowAlwayOnTop();
    EXPECT_EQ(store.values["AlwaysOnTop/OnTop"], "True");
    EXPECT_TRUE(window.form.IsTopmost());
}

TEST(AlwaysOnTop, ActsOnItsOwnWindowAndSharesTheValue) {
    MemoryStore store;
    Window first(store), second(store);
    first.pin.LoadSettings();
    second.pin.LoadSettings();
    first.pin.AOT_Enabled_Click();
    EXPECT_FALSE(first.form.IsTopmost());
    EXPECT_TRUE(second.form.IsTopmost());
    second.pin.LoadSettings();
    EXPECT_FALSE(second.form.IsTopmost());
}

TEST(AlwaysOnTop, GoesAndComesAroundALaunchWithoutAChangeOfState) {
    MemoryStore store;
    Window window(store);
    window.pin.LoadSettings();
    window.pin.SetToNormal();
    EXPECT_FALSE(window.form.IsTopmost());
    EXPECT_TRUE(window.pin.GetIsOnTop());
    window.pin.SetToTop();
    EXPECT_TRUE(window.form.IsTopmost());
}

TEST(AlwaysOnTop, DoesNotComeToTheTopWhileItIsOff) {
    MemoryStore store;
    Window window(store);
    window.pin.SetWindowBackToNormal();
    window.pin.SetToTop();
    EXPECT_FALSE(window.form.IsTopmost());
}

TEST(AlwaysOnTop, ShowsThatAClickWouldSwitchItOn) {
    MemoryStore store;
    Window window(store);
    window.pin.SetWindowBackToNormal();
    window.pin.AOT_Disabled_MouseMove();
    EXPECT_TRUE(window.hover.Visible());
    EXPECT_FALSE(window.disabled.Visible());
    window.pin.MouseLeft();
    EXPECT_TRUE(window.disabled.Visible());
    EXPECT_FALSE(window.hover.Visible());
    window.pin.SetWindowAlwayOnTop();
    window.pin.AOT_Disabled_MouseMove();
    EXPECT_FALSE(window.hover.Visible());
}

TEST(ChangeBorderstyle, FlipsAndFlipsBack) {
    forms::Form form("W");
    const bool frame = form.HasFrame();
    const bool tool = form.IsToolWindow();
    ChangeBorderstyle(form, 3);
    EXPECT_EQ(form.HasFrame(), !frame);
    EXPECT_EQ(form.IsToolWindow(), !tool);
    ChangeBorderstyle(form, 3);
    EXPECT_EQ(form.HasFrame(), frame);
    ChangeBorderstyle(form, 1);
    EXPECT_EQ(form.HasFrame(), !frame);
    EXPECT_EQ(form.IsToolWindow(), tool);
    ChangeBorderstyle(form, 2);
    EXPECT_EQ(form.IsToolWindow(), !tool);
    ChangeBorderstyle(form, 0);
    ChangeBorderstyle(form, 17);
    EXPECT_EQ(form.HasFrame(), !frame);
}

TEST(WindowGeometry, IsReadAndSetInPixels) {
    forms::Form form("W");
    SetWindowGeometry(form, {10, 20, 640, 480});
    EXPECT_EQ(form.Left(), 150);
    EXPECT_EQ(form.Width(), 9600);
    const PixelRectangle place = WindowGeometry(form);
    EXPECT_EQ(place.top, 20);
    EXPECT_EQ(place.height, 480);
}

struct NothingStaysOnTop : kivu::testing::ScriptedWindows {
    bool CanStayOnTop() const override { return false; }
};

TEST(AlwaysOnTop, HasNoPinWhereNothingStaysOnTop) {
    MemoryStore store;
    NothingStaysOnTop windows;
    forms::Form form("W", forms::Toolkit{nullptr, nullptr, nullptr, &windows});
    forms::Image enabled(&form, "AOT_Enabled"), disabled(&form, "AOT_Disabled"),
        hover(&form, "AOT_MouseMove");
    AlwaysOnTop pin(form, {enabled, disabled, hover}, store);
    const auto seen = [&] { return enabled.Visible() || disabled.Visible() || hover.Visible(); };
    pin.LoadSettings();
    EXPECT_FALSE(seen());
    EXPECT_TRUE(pin.GetIsOnTop());
    pin.SetWindowBackToNormal();
    EXPECT_FALSE(seen());
    pin.AOT_Disabled_MouseMove();
    EXPECT_FALSE(seen());
    pin.MouseLeft();
    EXPECT_FALSE(seen());
    EXPECT_EQ(store.values.size(), 1U);
}

}  // namespace
}  // namespace kivu::support
