#include <filesystem>
#include <gmock/gmock.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>

#include "hosts/linux/program_output.h"
#include "hosts/linux/program_starter_linux.h"
#include "hosts/linux/text_editor.h"
#include "testing/environment_variable.h"
#include "testing/eventually.h"
#include "testing/temporary_directory.h"

namespace fs = std::filesystem;

namespace kivu::hosts {
namespace {

using kivu::testing::EnvironmentVariable;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

// A user with programs and desktop entries of the test's own, and no others.
class TextEditorLinux : public ::testing::Test {
 protected:
    void TearDown() override {
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG | __WALL), -1);
        EXPECT_EQ(errno, ECHILD);
    }

    std::string Program(const std::string& name, const std::string& text = "#!/bin/sh\n") {
        const std::string path = directory.Write("bin/" + name, text);
        ::chmod(path.c_str(), 0755);
        return path;
    }
    // One that writes down its words, a line each.
    void Recorder(const std::string& name) {
        Program(name, "#!/bin/sh\nfor word; do echo \"$word\"; done > '" + directory.Path("part") +
                          "'\n/bin/mv '" + directory.Path("part") + "' '" +
                          directory.Path("report") + "'\n");
    }
    std::vector<std::string> Report() {
        EXPECT_TRUE(
            kivu::testing::Eventually([this] { return fs::exists(directory.Path("report")); }));
        std::istringstream lines(directory.Read("report"));
        std::vector<std::string> words;
        for (std::string line; std::getline(lines, line);)
            words.push_back(line);
        return words;
    }
    void Default(const std::string& entry) {
        Program("xdg-mime",
                "#!/bin/sh\n[ \"$*\" = 'query default text/plain' ] && echo '" + entry + "'\n");
    }
    void Entry(const std::string& name, const std::string& exec, const std::string& more = "",
               const std::string& where = "home") {
        directory.Write(where + "/applications/" + name,
                        "[Desktop Entry]\nType=Application\nExec=" + exec + "\n" + more);
    }
    // The words of each editor that would be tried.
    std::vector<std::string> Editors() {
        std::vector<std::string> editors;
        for (const platform::StartRequest& editor : EditorsFor("/f.vbs")) {
            std::string line;
            for (const std::string& word : editor.words)
                line += (line.empty() ? "" : " ") + word;
            editors.push_back(line);
        }
        return editors;
    }

    kivu::testing::TemporaryDirectory directory;
    EnvironmentVariable path{"PATH", directory.Path("bin")};
    EnvironmentVariable home{"XDG_DATA_HOME", directory.Path("home")};
    EnvironmentVariable shared{"XDG_DATA_DIRS",
                               directory.Path("one") + ":relative:" + directory.Path("two")};
    EnvironmentVariable visual{"VISUAL", std::nullopt};
    EnvironmentVariable editor{"EDITOR", std::nullopt};
    EnvironmentVariable terminal{"TERMINAL", std::nullopt};
    LaunchSession session;
    LinuxProgramStarter starter{session};
};

TEST_F(TextEditorLinux, TheDesktopsProgramForPlainTextOpensTheFile) {
    Recorder("pen");
    Default("org.pen.desktop");
    Entry("org.pen.desktop", "pen --new %U");
    const std::string file = directory.Write("it's a $(x).vbs", "x");
    ASSERT_FALSE(starter.EditText(file));
    const auto words = Report();
    ASSERT_EQ(words.size(), 2U);
    EXPECT_EQ(words[0], "--new");
    EXPECT_THAT(words[1], ::testing::EndsWith("/it%27s%20a%20%24%28x%29.vbs"));
}

TEST_F(TextEditorLinux, ARelativePathIsMadeAbsolute) {
    Recorder("pen");
    Default("pen.desktop");
    Entry("pen.desktop", "pen %f");
    ASSERT_FALSE(starter.EditText("-x"));
    EXPECT_THAT(Report(), ElementsAre(fs::current_path().string() + "/-x"));
}

TEST_F(TextEditorLinux, TheUsersEntryHidesThatOfTheSystem) {
    Program("mine");
    Program("theirs");
    Default("e.desktop");
    Entry("e.desktop", "theirs", "", "two");
    EXPECT_THAT(Editors(), ElementsAre("theirs /f.vbs"));
    Entry("e.desktop", "mine", "", "one");
    EXPECT_THAT(Editors(), ElementsAre("mine /f.vbs"));
    Entry("e.desktop", "mine -u");
    EXPECT_THAT(Editors(), ElementsAre("mine -u /f.vbs"));
}

TEST_F(TextEditorLinux, ADashMayStandForADirectory) {
    Program("pen");
    Default("kde4-pen.desktop");
    Entry("kde4/pen.desktop", "pen %U", "", "one");
    EXPECT_THAT(Editors(), ElementsAre("pen file:///f.vbs"));
}

TEST_F(TextEditorLinux, AnEntryThatLeadsOutOfItsDirectoryIsNone) {
    Program("e");
    directory.Write("home/evil.desktop", "[Desktop Entry]\nType=Application\nExec=e\n");
    fs::create_directories(directory.Path("home/applications"));
    Default("../evil.desktop");
    EXPECT_THAT(Editors(), IsEmpty());
}

TEST_F(TextEditorLinux, AnEntryForTheTerminalRunsInOne) {
    Program("nano");
    Default("nano.desktop");
    Entry("nano.desktop", "nano %F", "Terminal=true\n");
    EXPECT_THAT(Editors(), IsEmpty());
    Program("x-terminal-emulator");
    EXPECT_THAT(Editors(), ElementsAre("x-terminal-emulator -e nano /f.vbs",
                                       "x-terminal-emulator -e nano /f.vbs"));
    Program("xdg-terminal-exec");
    EXPECT_EQ(Editors().front(), "xdg-terminal-exec nano /f.vbs");
    Program("myterm");
    const EnvironmentVariable own("TERMINAL", "myterm");
    EXPECT_EQ(Editors().front(), "myterm -e nano /f.vbs");
}

TEST_F(TextEditorLinux, TheUsersTerminalEditorComesNextAndThenWhatIsInstalled) {
    for (const char* program : {"gedit", "kate", "vim", "vi", "xterm"})
        Program(program);
    const EnvironmentVariable variable("EDITOR", "vim -n");
    EXPECT_THAT(Editors(), ElementsAre("xterm -e vim -n /f.vbs", "gedit /f.vbs", "kate /f.vbs",
                                       "xterm -e vim /f.vbs", "xterm -e vi /f.vbs"));
}

// They would run a script, since its kind belongs to its interpreter.
TEST_F(TextEditorLinux, WhatGoesByTheFilesOwnKindIsPassedOver) {
    for (const char* program : {"xdg-open", "gio", "wine", "env", "xterm", "exo-open"})
        Program(program);
    Default("a.desktop;b.desktop;c.desktop");
    Entry("a.desktop", "xdg-open %f");
    Entry("b.desktop", "env WINEPREFIX=/x wine start /unix %f");
    Entry("c.desktop", directory.Path("bin/gio") + " open %f");
    const EnvironmentVariable variable("VISUAL", "exo-open");
    EXPECT_THAT(Editors(), IsEmpty());
    EXPECT_EQ(starter.EditText("/f.vbs"), std::errc::no_such_file_or_directory);
}

TEST_F(TextEditorLinux, AnEditorThatCannotBeStartedIsFollowedByTheNext) {
    Default("gone.desktop;broken.desktop");
    Entry("gone.desktop", "/opt/gone %f");
    Program("broken", std::string("\x7F"
                                  "ELF\0broken",
                                  11));
    Entry("broken.desktop", "broken %f");
    Recorder("mousepad");
    ASSERT_FALSE(starter.EditText("/f.vbs"));
    EXPECT_THAT(Report(), ElementsAre("/f.vbs"));
}

TEST_F(TextEditorLinux, WithoutAnyEditorItIsAnError) {
    EXPECT_EQ(starter.EditText("/f.vbs"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(starter.EditText(""), std::errc::invalid_argument);
    EXPECT_EQ(starter.EditText(std::string("/a\0b", 4)), std::errc::invalid_argument);
}

TEST_F(TextEditorLinux, TheOutputOfAProgramIsReadToItsEnd) {
    const std::string says = Program("says", "#!/bin/sh\necho \"$1\"; echo two; echo no >&2\n");
    EXPECT_EQ(OutputOf({says, "a b"}, 30s), "a b\ntwo\n");
    EXPECT_EQ(OutputOf({Program("fails", "#!/bin/sh\necho x; exit 3\n")}, 30s), std::nullopt);
    EXPECT_EQ(OutputOf({directory.Path("bin/gone")}, 30s), std::nullopt);
    EXPECT_EQ(OutputOf({}, 30s), std::nullopt);
}

TEST_F(TextEditorLinux, AProgramThatHangsOrPoursIsEnded) {
    const std::string hangs = Program("hangs", "#!/bin/sh\n/bin/sleep 1000 &\nwait\n");
    EXPECT_EQ(OutputOf({hangs}, 1ms), std::nullopt);
    const std::string closes = Program("closes", "#!/bin/sh\nexec >&-\nexec /bin/sleep 1000\n");
    EXPECT_EQ(OutputOf({closes}, 50ms), std::nullopt);
    const std::string pours = Program(
        "pours", "#!/bin/sh\nwhile :; do echo 0123456789012345678901234567890123456789; done\n");
    EXPECT_EQ(OutputOf({pours}, 30s), std::nullopt);
}

}  // namespace
}  // namespace kivu::hosts
