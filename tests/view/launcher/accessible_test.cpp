// The launcher's own windows as a screen reader is told of them.

#include <QAccessible>
#include <gmock/gmock.h>

#include "settings/settings_form.h"
#include "view/launcher/search_window.h"
#include "view/text_measure.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

QAccessibleInterface* Of(const QWidget& window, const char* name) {
    return QAccessible::queryAccessibleInterface(
        window.findChild<QWidget*>(QString::fromUtf8(name)));
}
std::string Name(const QAccessibleInterface* of) {
    return of->text(QAccessible::Name).toStdString();
}
std::string Described(const QAccessibleInterface* of) {
    return of->text(QAccessible::Description).toStdString();
}

class LauncherAloud : public SearchWindow {
 protected:
    LauncherAloud() {
        options.measure = &measure;
        options.language = "English";
    }
    void AddGames() {
        tree.AddEmulator("Alpha");
        tree.WriteCache("Alpha", {{"/Roms/Ant (1990).adf", "Ant"}, {"/Roms/Bee.adf", "Bee"}});
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
    }
    QAccessibleInterface* Of(const char* name) { return scenarios::Of(view->Window(), name); }
    bool IsTold(const char* name) {
        const QAccessibleInterface* of = Of(name);
        return of->parent()->indexOfChild(of) >= 0;
    }

    const view::TextMeasure measure;
};

TEST_F(LauncherAloud, FirstStepsAreHeardAtTheFirstStart) {
    Show();
    QAccessibleInterface* focus =
        QAccessible::queryAccessibleInterface(&view->Window())->focusChild();
    ASSERT_TRUE(focus);
    EXPECT_EQ(focus, Of("SettingsBtn"));
    EXPECT_THAT(Described(focus), HasSubstr("No emulator yet. Press \"Optionen..\""));
    // By eye they stand on a label, which is nothing to press.
    EXPECT_EQ(Of("LoadingBtn")->role(), QAccessible::StaticText);
    EXPECT_THAT(Name(Of("LoadingBtn")), HasSubstr("No emulator yet."));
    for (int i = 0; i < 50 && !Form().EmuListbox.HasFocus(); ++i)
        Key(Qt::Key_Tab);
    ASSERT_TRUE(Form().EmuListbox.HasFocus());
    EXPECT_THAT(Described(Of("EmuListbox")), HasSubstr("No emulator yet."));
    EXPECT_THAT(Described(Of("EmulatorLongListbox")), HasSubstr("No emulator yet."));
}

TEST_F(LauncherAloud, EmptyListTellsWhatIsTheMatter) {
    AddGames();
    Show();
    EXPECT_EQ(Described(Of("WIthoutDoubles")), "");
    Form().WIthoutDoubles.Clear();
    EXPECT_THAT(Described(Of("WIthoutDoubles")), HasSubstr("The games are in \"Complete List\""));
}

TEST_F(LauncherAloud, EveryControlOfTheMainWindowHasAName) {
    AddGames();
    for (const char* language : {"English", "German"}) {
        options.language = language;
        Show();
        const bool german = language == std::string("German");
        EXPECT_EQ(Name(Of("FontSizeCombo")),
                  german ? "Schriftgröße der Listen" : "Font size of the lists");
        EXPECT_EQ(Described(Of("TitleStr")),
                  german ? "Öffnet die Homepage im Browser" : "Opens the home page in the browser");
        for (const forms::Control* control : Form().Controls()) {
            if (!control->TakesFocus() || !control->IsReachable()) continue;
            EXPECT_NE(Name(Of(control->FullName().c_str())), "") << control->FullName();
        }
    }
}

TEST_F(LauncherAloud, PinTellsWhetherTheWindowStaysOnTop) {
    AddGames();
    Show();
    EXPECT_EQ(Of("AlwaysOnTop1")->role(), QAccessible::CheckBox);
    EXPECT_EQ(Name(Of("AlwaysOnTop1")), "Always on top");
    for (const char* picture : {"AOT_Enabled", "AOT_Disabled", "AOT_MouseMove"})
        EXPECT_FALSE(IsTold(picture)) << picture;
    for (int i = 0; i < 3; ++i) {
        const bool before = Form().IsTopmost();
        EXPECT_EQ(Of("AlwaysOnTop1")->state().checked, before);
        Of("AlwaysOnTop1")->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        Settle();
        EXPECT_NE(Form().IsTopmost(), before);
        EXPECT_EQ(Of("AlwaysOnTop1")->state().checked, !before);
    }
}

TEST_F(LauncherAloud, SizeOfTheLettersIsNotNamedByTheScreensSize) {
    settings::SettingsForm form({&measure}, 2);
    view::FormView shown(form);
    shown.Show();
    ASSERT_TRUE(form.ResetScreenHint.Visible());
    EXPECT_EQ(Name(scenarios::Of(shown.Window(), "FontSizeCombo")), "Font size of the lists");
}

}  // namespace
}  // namespace kivu::scenarios
