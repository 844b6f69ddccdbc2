// The dialog for files over the launcher's window: real keys and clicks on real widgets.

#include <QAbstractItemView>
#include <QImage>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gmock/gmock.h>

#include "host_files.h"
#include "testing/scripted_host.h"
#include "testing/temporary_directory.h"
#include "view/box_fonts.h"
#include "view/form_view.h"
#include "view/screen_windows.h"
#include "view/text_measure.h"
#include "wiring/launcher.h"
#include "wiring/routines.h"

namespace kivu::scenarios {
namespace {

using ::testing::ElementsAre;

class FileDialogWindow : public ::testing::Test {
 protected:
    FileDialogWindow() {
        for (const char* name : {"emu/amiga", "emu/Zulu.rom", "emu/kick 1.3.rom", "emu/sub/a.rom",
                                 "emu/tools/b.txt"}) {
            const std::filesystem::path path = testing::PathOf(directory.Path(name));
            std::filesystem::create_directories(path.parent_path());
            directory.Write(name, "x");
        }
        emu = directory.Path("emu");
        launcher.Start();
        windows.AdoptView(launcher.MainWindow(), mainView);
        mainView.Show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&mainView.Window(), patience));
    }
    ~FileDialogWindow() override {
        QCoreApplication::processEvents();
        std::filesystem::current_path(before);
    }

    support::FileDialogs& Dialogs() { return launcher.All().windowsBeside.fileDialogs; }
    core::Form1& Main() { return launcher.MainWindow(); }
    support::FilesForm& Form() { return static_cast<support::FilesForm&>(*windows.Find("Files")); }
    // Lets the user act once the dialog is there.
    void Soon(const std::function<void()>& act) {
        QTimer::singleShot(0, &mainView, [this, act] {
            window = &windows.ViewOf(Form())->Window();
            ASSERT_TRUE(QTest::qWaitForWindowActive(window, patience));
            Settle();
            act();
            acted = true;
            if (windows.Find("Files")) Form().SetVisible(false);
        });
    }
    std::string Open(const std::string& path, const std::string& name,
                     const std::function<void()>& act) {
        Soon(act);
        return Dialogs().FileOpenDialog(path, "", name, &Main());
    }
    std::string Directory(const std::string& path, const std::function<void()>& act) {
        Soon(act);
        return Dialogs().FileDirSelectDialog(path, "", &Main());
    }

    static void Settle() { QCoreApplication::processEvents(); }
    template <typename T = QWidget>
    T* Find(const char* name) {
        T* found = window->findChild<T*>(QString::fromUtf8(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    void Click(const char* name) {
        QWidget* widget = Find(name);
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                          widget->mapTo(window.data(), widget->rect().center()));
        Settle();
    }
    QPoint RowPoint(const char* name, int row) {
        auto* list = Find<QAbstractItemView>(name);
        return list->viewport()->mapTo(window.data(),
                                       list->visualRect(list->model()->index(row, 0)).center());
    }
    void ClickRow(const char* name, int row) {
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, RowPoint(name, row));
        if (window) Settle();
    }
    // A real double click begins with a click.
    void DoubleClickRow(const char* name, int row) {
        const QPoint at = RowPoint(name, row);
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, at);
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window->windowHandle(), key, modifiers);
        Settle();
    }
    void Type(const char* text) {
        QTest::keyClicks(window->focusWidget(), text);
        Settle();
    }
    std::vector<std::string> Shown(const char* name) {
        auto* list = Find<QAbstractItemView>(name);
        std::vector<std::string> rows;
        for (int row = 0; row < list->model()->rowCount(); ++row)
            rows.push_back(list->model()->index(row, 0).data().toString().toStdString());
        return rows;
    }
    std::string TextOf(const char* name) { return Find<QLineEdit>(name)->text().toStdString(); }
    bool HasFocus(const char* name) { return Find(name)->hasFocus(); }
    std::string Below(const std::string& name) { return directory.Path("emu/" + name); }

    static constexpr int patience = 20000;  // milliseconds; a busy machine is slow
    testing::TemporaryDirectory directory;
    std::filesystem::path before = std::filesystem::current_path();
    std::string emu;
    testing::HostFileSystem disk;
    testing::ScriptedHost host{disk};
    const view::TextMeasure measure;
    view::ScreenWindows windows;
    wiring::Launcher launcher{host.Services(directory.Root(), "Kivu", ""), &measure, [] {},
                              &windows};
    view::FormView mainView{launcher.MainWindow()};
    QPointer<QWidget> window;
    bool acted = false;
};

TEST_F(FileDialogWindow, FileIsChosenWithTheMouse) {
    EXPECT_EQ(Open(emu, "*.rom",
                   [this] {
                       EXPECT_TRUE(window->isModal());
                       EXPECT_THAT(Shown("File1"), ElementsAre("kick 1.3.rom", "Zulu.rom"));
                       EXPECT_THAT(Shown("Dir1"), ElementsAre("sub", "tools"));
                       ClickRow("File1", 0);
                       EXPECT_EQ(TextOf("FileName"), "kick 1.3.rom");
                       EXPECT_EQ(TextOf("KomplettPfadText"), Below("kick 1.3.rom"));
                       Click("Ok");
                   }),
              Below("kick 1.3.rom"));
    EXPECT_TRUE(acted);
}

TEST_F(FileDialogWindow, DoubleClicksLeadThroughDirectoriesToAFile) {
    EXPECT_EQ(Open(emu, "*.rom",
                   [this] {
                       DoubleClickRow("Dir1", 0);
                       Settle();
                       EXPECT_THAT(Shown("File1"), ElementsAre("a.rom"));
                       Click("UpBtn");
                       EXPECT_EQ(TextOf("KomplettPfadText"), Below("*.rom"));
                       DoubleClickRow("Dir1", 0);
                       Settle();
                       DoubleClickRow("File1", 0);
                   }),
              Below("sub/a.rom"));
}

TEST_F(FileDialogWindow, FileIsChosenWithKeysAlone) {
    EXPECT_EQ(Open(emu, "*.rom",
                   [this] {
                       EXPECT_TRUE(HasFocus("FileName"));
                       Key(Qt::Key_C, Qt::AltModifier);
                       EXPECT_TRUE(HasFocus("Dir1"));
                       Key(Qt::Key_Down);
                       Key(Qt::Key_Return);
                       EXPECT_THAT(Shown("File1"), ElementsAre("a.rom"));
                       Key(Qt::Key_Backspace);
                       EXPECT_THAT(Shown("Dir1"), ElementsAre("sub", "tools"));
                       Key(Qt::Key_Tab);
                       EXPECT_TRUE(HasFocus("File1"));
                       Key(Qt::Key_Z);
                       EXPECT_EQ(TextOf("FileName"), "Zulu.rom");
                       Key(Qt::Key_Return);
                   }),
              Below("Zulu.rom"));
}

TEST_F(FileDialogWindow, TypedNameMaskAndPath) {
    EXPECT_EQ(Open(emu, "*.rom",
                   [this] {
                       Type("*.*");
                       Key(Qt::Key_Return);
                       EXPECT_THAT(Shown("File1"),
                                   ElementsAre("amiga", "kick 1.3.rom", "Zulu.rom"));
                       EXPECT_EQ(TextOf("FileName"), "");
                       Key(Qt::Key_P, Qt::AltModifier);
                       Find<QLineEdit>("KomplettPfadText")->selectAll();
                       QTest::keyClicks(window->focusWidget(),
                                        QString::fromStdString('"' + Below("tools") + '"'));
                       Key(Qt::Key_Return);
                       EXPECT_THAT(Shown("File1"), ElementsAre("b.txt"));
                       Key(Qt::Key_N, Qt::AltModifier);
                       Type("new.txt");
                       Key(Qt::Key_Return);
                   }),
              Below("tools/new.txt"));
}

TEST_F(FileDialogWindow, DirectoryIsChosen) {
    EXPECT_EQ(Directory(emu,
                        [this] {
                            EXPECT_TRUE(HasFocus("Dir1"));
                            EXPECT_FALSE(window->findChild<QWidget*>("Ok")->isVisible());
                            ClickRow("Dir1", 1);
                            EXPECT_EQ(TextOf("KomplettPfadText"), Below("tools/"));
                            Click("OkBtn2");
                        }),
              Below("tools/"));
}

TEST_F(FileDialogWindow, EscapeAndTheWindowManagerCancel) {
    EXPECT_EQ(Open(emu, "*.rom",
                   [this] {
                       ClickRow("File1", 0);
                       Key(Qt::Key_Escape);
                   }),
              "");
    EXPECT_EQ(Open(emu, "*.rom",
                   [this] {
                       ClickRow("File1", 0);
                       window->close();
                   }),
              "");
    EXPECT_EQ(windows.Questions(), 0);
    EXPECT_EQ(windows.Find("Files"), nullptr);
}

TEST_F(FileDialogWindow, MainWindowDoesNotReactMeanwhile) {
    Main().Move(0, 0, Main().Width(), Main().Height());
    EXPECT_EQ(Open(emu, "*.rom",
                   [this] {
                       const forms::Control* focus = Main().Focus();
                       const std::size_t boxes = host.dialogs.shown.size();
                       QWidget& behind = mainView.Window();
                       QTest::mouseClick(behind.windowHandle(), Qt::LeftButton, {}, QPoint(40, 60));
                       QTest::keyClick(behind.windowHandle(), Qt::Key_Escape);
                       Settle();
                       EXPECT_TRUE(window->isVisible());
                       EXPECT_EQ(host.dialogs.shown.size(), boxes);
                       EXPECT_EQ(Main().Focus(), focus);
                       Click("Abbruch");
                   }),
              "");
}

TEST_F(FileDialogWindow, TitleAndSurfaceStandInTheMainWindowsLook) {
    Main().SetBackColor(forms::Rgb(0x20, 0x40, 0x20));
    Open(emu, "*.rom", [this] {
        EXPECT_EQ(Form().BackColor(), Main().BackColor());
        EXPECT_EQ(Form().File1.BackColor(), Main().UAE_Short.BackColor());
        EXPECT_EQ(Form().Dir1.FontSize(), Main().UAE_Short.FontSize());
    });
}

// Every caption has its room, in either language and in letters of any size.
TEST_F(FileDialogWindow, NoCaptionIsCut) {
    if (tests::FontsAreBoxes()) GTEST_SKIP() << "this host has no fonts";
    for (const int language : {1, 2}) {
        for (const double points : {8.0, 11.0, 16.0, 40.0}) {
            Main().CurrentLanguage = language;
            Main().UAE_Short.SetFontSize(points);
            Open(emu, "*.rom", [this] {
                for (const forms::Control* control : Form().Controls()) {
                    const auto* label = dynamic_cast<const forms::Label*>(control);
                    if (!label || !label->Visible()) continue;
                    EXPECT_LE(label->TextWidth(), label->Width()) << label->Caption();
                    EXPECT_LE(label->TextHeight(), label->Height()) << label->Caption();
                }
                for (const forms::CommandButton* button :
                     {&Form().UpBtn, &Form().Command1, &Form().StartmenuBtn, &Form().Ok,
                      &Form().Abbruch}) {
                    const int text = measure.Width(button->GetFont(), button->Caption());
                    EXPECT_LE(text, button->Width() - 8 * forms::twipsPerPixel)
                        << button->Caption();
                    EXPECT_LE(measure.LineHeight(button->GetFont()), button->Height());
                }
            });
        }
    }
}

}  // namespace
}  // namespace kivu::scenarios
