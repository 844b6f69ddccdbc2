#include "driver/conversation.h"

#include <deque>
#include <filesystem>
#include <gmock/gmock.h>

#include "host_files.h"
#include "testing/temporary_directory.h"

namespace kivu::driver {
namespace {

using kivu::testing::TemporaryDirectory;
using ::testing::ElementsAre;

// Stand-ins for modal windows: two buttons open one, an image closes it.
class ConversationTest : public ::testing::Test {
 protected:
    ConversationTest() {
        auto& form = session.MainWindow();
        form.ExitBtn.onClick = [this] { Open("Files"); };
        form.LoadBtn.SetEnabled(true);
        form.LoadBtn.onClick = [this] {
            Open("Files");
            Open("SettingsForm");
        };
        form.SuchErg.onClick = [this] { open = false; };
    }
    void TearDown() override { std::filesystem::current_path(before); }

    void Open(const std::string& name) {
        open = true;
        conversation.ServeModal(name, [this] { return open; });
        ++closed;
    }
    std::vector<std::string> Run(std::deque<std::string> given) {
        lines = std::move(given);
        conversation.Run();
        return answers;
    }

    TemporaryDirectory directory;
    std::filesystem::path before = std::filesystem::current_path();
    testing::HostFileSystem files;
    Session session{files, Options{directory.Root()}};
    Interpreter interpreter{session};
    std::deque<std::string> lines;
    std::vector<std::string> answers;
    bool open = false;
    int closed = 0;
    Conversation conversation{interpreter,
                              [this]() -> std::optional<std::string> {
                                  if (lines.empty()) return {};
                                  std::string line = lines.front();
                                  lines.pop_front();
                                  return line;
                              },
                              [this](const std::string& line) { answers.push_back(line); }};
};

constexpr const char* openOne = "[\"click\",\"Form1.ExitBtn\"]";
constexpr const char* openTwo = "[\"click\",\"Form1.LoadBtn\"]";
constexpr const char* close = "[\"click\",\"Form1.SuchErg\"]";
constexpr const char* look = "[\"get\",\"Form1.ListMode\"]";
constexpr const char* seen = "{\"ok\":true,\"value\":\"2\"}";
constexpr const char* fine = "{\"ok\":true}";

TEST_F(ConversationTest, EveryLineHasOneAnswerInItsTurn) {
    EXPECT_THAT(Run({look, "{", look, "[\"quit\"]", look}),
                ElementsAre(seen, "{\"ok\":false,\"error\":\"the line is no JSON\"}", seen, fine));
}

TEST_F(ConversationTest, CommandsAreServedInsideTheWindowUntilItCloses) {
    EXPECT_THAT(Run({openOne, look, close, look}),
                ElementsAre("{\"ok\":true,\"modal\":\"Files\"}", seen, fine, seen));
    EXPECT_EQ(closed, 1);
}

TEST_F(ConversationTest, WindowThatFollowsAnotherShowsInTheAnswerThatClosesTheFirst) {
    EXPECT_THAT(Run({openTwo, close, look, close, look}),
                ElementsAre("{\"ok\":true,\"modal\":\"Files\"}",
                            "{\"ok\":true,\"modal\":\"SettingsForm\"}", seen, fine, seen));
    EXPECT_EQ(closed, 2);
}

TEST_F(ConversationTest, WindowInsideAWindowClosesFirst) {
    auto& form = session.MainWindow();
    form.LoadBtn.onClick = [this] {
        Open("Files");
        open = true;  // the outer one still is
    };
    EXPECT_THAT(Run({openOne, openTwo, close, look, close, look}),
                ElementsAre("{\"ok\":true,\"modal\":\"Files\"}",
                            "{\"ok\":true,\"modal\":\"Files\"}", fine, seen, fine, seen));
    EXPECT_EQ(closed, 2);
}

TEST_F(ConversationTest, QuitInsideAWindowLeavesEverythingBehind) {
    EXPECT_THAT(Run({openOne, "[\"quit\"]", look}),
                ElementsAre("{\"ok\":true,\"modal\":\"Files\"}", fine));
    EXPECT_EQ(closed, 0);
}

TEST_F(ConversationTest, EndOfInputInsideAWindowLeavesEverythingBehind) {
    EXPECT_THAT(Run({openOne, look}), ElementsAre("{\"ok\":true,\"modal\":\"Files\"}", seen));
    EXPECT_EQ(closed, 0);
}

TEST_F(ConversationTest, ProgramThatEndsBehindTheWindowShowsInTheAnswerThatClosedIt) {
    auto& form = session.MainWindow();
    form.ExitBtn.onClick = [this] {
        Open("Files");
        session.ended = true;
        throw ProgramEnded{};
    };
    EXPECT_THAT(Run({openOne, close, look}),
                ElementsAre("{\"ok\":true,\"modal\":\"Files\"}", "{\"ok\":true,\"ended\":true}",
                            "{\"ok\":true,\"value\":\"2\",\"ended\":true}"));
}

}  // namespace
}  // namespace kivu::driver
