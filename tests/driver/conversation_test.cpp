#include <filesystem>
#include <gmock/gmock.h>

#include "driver/talk.h"
#include "forms/controls.h"
#include "forms/on_demand.h"
#include "host_files.h"
#include "testing/temporary_directory.h"

namespace kivu::driver {
namespace {

using kivu::testing::TemporaryDirectory;
using ::testing::ElementsAre;

// A window that is made for each opening. `Hide` keeps it, `Close` asks it.
struct BoxForm : forms::Form {
    BoxForm(const std::string& name, forms::WindowHost& host)
        : forms::Form(name, forms::Toolkit{nullptr, nullptr, nullptr, &host}) {
        SetCaption(name + "?");
    }
    forms::CommandButton Hide{this, "Hide"};
    forms::TextBox Text{this, "Text"};
};

// Two buttons of the main window open one window, or two, one behind the other.
class ConversationTest : public ::testing::Test {
 protected:
    ConversationTest() {
        auto& form = session.MainWindow();
        form.ExitBtn.onClick = [this] { Open(files); };
        form.LoadBtn.SetEnabled(true);
        form.LoadBtn.onClick = [this] {
            Open(files);
            Open(settings);
        };
    }
    void TearDown() override { std::filesystem::current_path(before); }

    using OnDemand = forms::OnDemand<BoxForm>;
    OnDemand Window(const char* name) {
        return OnDemand(session.Screen(), [this, name] {
            auto form = std::make_unique<BoxForm>(name, session.Screen());
            form->Hide.onClick = [form = form.get()] { form->SetVisible(false); };
            return form;
        });
    }
    // What was typed into the window.
    std::string Open(OnDemand& window) {
        BoxForm& form = window.Get();
        session.Screen().ShowModal(form, &session.MainWindow());
        ++closed;
        return form.Text.Text();
    }
    std::vector<std::string> Run(std::deque<std::string> given) {
        return talk.Run(std::move(given));
    }

    TemporaryDirectory directory;
    std::filesystem::path before = std::filesystem::current_path();
    testing::HostFileSystem disk;
    Session session{disk, Options{directory.Root()}};
    OnDemand files = Window("Files");
    OnDemand settings = Window("SettingsForm");
    Interpreter interpreter{session};
    int closed = 0;
    Talk talk{interpreter};
};

constexpr const char* openOne = "[\"click\",\"Form1.ExitBtn\"]";
constexpr const char* openTwo = "[\"click\",\"Form1.LoadBtn\"]";
constexpr const char* hideFiles = "[\"click\",\"Files.Hide\"]";
constexpr const char* hideSettings = "[\"click\",\"SettingsForm.Hide\"]";
constexpr const char* look = "[\"get\",\"Form1.ListMode\"]";
constexpr const char* seen = "{\"ok\":true,\"value\":\"2\"}";
constexpr const char* fine = "{\"ok\":true}";
constexpr const char* inFiles = "{\"ok\":true,\"modal\":\"Files\"}";
constexpr const char* inSettings = "{\"ok\":true,\"modal\":\"SettingsForm\"}";

std::string OutOfReach(const std::string& name) {
    return "{\"ok\":false,\"error\":\"" + name + " cannot be reached\"}";
}

TEST_F(ConversationTest, EveryLineHasOneAnswerInItsTurn) {
    EXPECT_THAT(Run({look, "{", look, "[\"quit\"]", look}),
                ElementsAre(seen, "{\"ok\":false,\"error\":\"the line is no JSON\"}", seen, fine));
}

TEST_F(ConversationTest, CommandsAreServedInsideTheWindowUntilItCloses) {
    EXPECT_THAT(Run({openOne, look, hideFiles, look}), ElementsAre(inFiles, seen, fine, seen));
    EXPECT_EQ(closed, 1);
}

TEST_F(ConversationTest, WindowClosesAtTheWindowManagersWish) {
    EXPECT_THAT(Run({openOne, "[\"close\",\"Files\"]", look}),
                ElementsAre(inFiles, "{\"ok\":true,\"value\":true}", seen));
    EXPECT_EQ(files.Loaded(), nullptr);
}

TEST_F(ConversationTest, WindowThatObjectsStaysOpen) {
    files.Get().onQueryClose = [](bool& cancel) { cancel = true; };
    EXPECT_THAT(Run({openOne, "[\"close\",\"Files\"]", hideFiles}),
                ElementsAre(inFiles, "{\"ok\":true,\"value\":false}", fine));
}

TEST_F(ConversationTest, HandsReachOnlyTheWindowInFrontMeanwhile) {
    EXPECT_THAT(Run({openOne, openTwo, "[\"close\",\"Form1\"]", "[\"key\",\"Form1\",\"Escape\"]",
                     hideFiles, hideFiles}),
                ElementsAre(inFiles, OutOfReach("Form1.LoadBtn"), OutOfReach("Form1"),
                            OutOfReach("Form1"), fine, OutOfReach("Files.Hide")));
}

TEST_F(ConversationTest, WindowsAreListedFromBackToFront) {
    EXPECT_THAT(
        Run({"[\"windows\"]", openOne, "[\"windows\"]", hideFiles, "[\"get\",\"Files.Caption\"]",
             "[\"get\",\"Nowhere.Caption\"]"}),
        ElementsAre(
            "{\"ok\":true,\"value\":[{\"name\":\"Form1\",\"caption\":\"Kivu 1.4b\",\"over\":\"\","
            "\"modal\":false}]}",
            inFiles,
            "{\"ok\":true,\"value\":[{\"name\":\"Form1\",\"caption\":\"Kivu 1.4b\",\"over\":\"\","
            "\"modal\":false},{\"name\":\"Files\",\"caption\":\"Files?\",\"over\":\"Form1\","
            "\"modal\":true}]}",
            fine, "{\"ok\":true,\"value\":\"Files?\"}",
            "{\"ok\":false,\"error\":\"no window Nowhere\"}"));
}

TEST_F(ConversationTest, WindowThatFollowsAnotherShowsInTheAnswerThatClosesTheFirst) {
    EXPECT_THAT(Run({openTwo, hideFiles, look, hideSettings, look}),
                ElementsAre(inFiles, inSettings, seen, fine, seen));
    EXPECT_EQ(closed, 2);
}

TEST_F(ConversationTest, WindowInsideAWindowClosesFirst) {
    settings.Get().Text.onChange = [this] { Open(files); };
    auto& form = session.MainWindow();
    form.ExitBtn.onClick = [this] { Open(settings); };
    const char* openInner = "[\"set\",\"SettingsForm.Text.Text\",\"x\"]";
    EXPECT_THAT(
        Run({openOne, openInner, hideSettings, hideFiles, look, hideSettings, look}),
        ElementsAre(inSettings, inFiles, OutOfReach("SettingsForm.Hide"), fine, seen, fine, seen));
    EXPECT_EQ(closed, 2);
}

TEST_F(ConversationTest, ValueOfTheCommandThatOpenedAWindowComesWhenThatCloses) {
    interpreter.Add(Bind("AskForText", [this] { return Open(files); }));
    EXPECT_THAT(Run({"[\"call\",\"AskForText\"]", "[\"type\",\"Files.Text\",\"a.adf\"]",
                     "[\"get\",\"Files.Text.Text\"]", hideFiles, look}),
                ElementsAre(inFiles, fine, "{\"ok\":true,\"value\":\"a.adf\"}",
                            "{\"ok\":true,\"result\":\"a.adf\"}", seen));
}

TEST_F(ConversationTest, FailureOfTheCommandThatOpenedAWindowComesWhenThatCloses) {
    interpreter.Add(Bind("Fail", [this]() -> int {
        Open(files);
        throw CommandError("gone wrong");
    }));
    EXPECT_THAT(
        Run({"[\"call\",\"Fail\"]", "[\"close\",\"Files\"]", look}),
        ElementsAre(inFiles, "{\"ok\":true,\"value\":true,\"resultError\":\"gone wrong\"}", seen));
}

TEST_F(ConversationTest, WatchRestsWhileAWindowWaitsAndTheClockGoesOn) {
    auto& form = session.MainWindow();
    int looks = 0, seconds = 0;
    form.EmuActiveTimer.onTimer = [&] { ++looks; };
    form.Uhrzeit.onTimer = [&] { ++seconds; };
    form.EmuActiveTimer.SetEnabled(true);
    const char* watch = "[\"tick\",\"Form1.EmuActiveTimer\"]";
    Run({openOne, watch, "[\"tick\",\"Form1.Uhrzeit\"]", hideFiles});
    EXPECT_EQ(looks, 0);
    EXPECT_EQ(seconds, 1);
    Run({watch});
    EXPECT_EQ(looks, 1);
}

TEST_F(ConversationTest, FileHandedOverWhileAWindowWaitsOnlyBeeps) {
    session.MainWindow().WindowReady = true;
    Run({openOne, "[\"summon\",\"/roms/a.adf\"]", hideFiles});
    EXPECT_EQ(session.Host().beeper.count, 1);
}

TEST_F(ConversationTest, QuitInsideAWindowLeavesEverythingBehind) {
    EXPECT_THAT(Run({openOne, "[\"quit\"]", look}), ElementsAre(inFiles, fine));
    EXPECT_EQ(closed, 0);
}

TEST_F(ConversationTest, EndOfInputInsideAWindowLeavesEverythingBehind) {
    EXPECT_THAT(Run({openOne, look}), ElementsAre(inFiles, seen));
    EXPECT_EQ(closed, 0);
}

TEST_F(ConversationTest, ProgramThatEndsBehindTheWindowShowsInTheAnswerThatClosedIt) {
    auto& form = session.MainWindow();
    form.ExitBtn.onClick = [this] {
        Open(files);
        session.ended = true;
        throw ProgramEnded{};
    };
    EXPECT_THAT(Run({openOne, hideFiles, look}),
                ElementsAre(inFiles, "{\"ok\":true,\"ended\":true}",
                            "{\"ok\":true,\"value\":\"2\",\"ended\":true}"));
}

}  // namespace
}  // namespace kivu::driver
