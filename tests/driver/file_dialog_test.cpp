#include <filesystem>
#include <gmock/gmock.h>

#include "driver/talk.h"
#include "host_files.h"
#include "testing/temporary_directory.h"

namespace kivu::driver {
namespace {

using ::testing::ElementsAre;

// The dialog over the launcher's window, over a real directory.
class FileDialogConversation : public ::testing::Test {
 protected:
    FileDialogConversation() {
        std::filesystem::create_directories(directory.Path("emu/sub"));
        for (const char* name : {"emu/amiga.rom", "emu/note.txt", "emu/sub/c64.rom"})
            directory.Write(name, "x");
        emu = directory.Path("emu");
    }
    void TearDown() override { std::filesystem::current_path(before); }

    static std::string Line(const Json& command) { return command.dump(); }
    std::string Below(const std::string& name) { return directory.Path("emu/" + name); }
    static Json Get(const char* name) { return {"get", name}; }

    std::vector<Json> Run(const std::vector<Json>& commands) {
        std::deque<std::string> lines;
        for (const Json& command : commands)
            lines.push_back(Line(command));
        std::vector<Json> answers;
        const std::size_t told = all;
        const std::vector<std::string>& given = talk.Run(std::move(lines));
        for (std::size_t i = told; i < given.size(); ++i)
            answers.push_back(Json::parse(given[i]));
        all = given.size();
        return answers;
    }

    testing::TemporaryDirectory directory;
    std::filesystem::path before = std::filesystem::current_path();
    std::string emu;
    testing::HostFileSystem disk;
    Session session{disk, Options{directory.Root()}};
    Interpreter interpreter{session};
    Talk talk{interpreter};
    std::size_t all = 0;
};

const Json opened = {{"ok", true}, {"modal", "Files"}};
const Json fine = {{"ok", true}};

Json Value(const Json& value) {
    return {{"ok", true}, {"value", value}};
}
Json Result(const Json& value) {
    return {{"ok", true}, {"result", value}};
}

TEST_F(FileDialogConversation, ChosenFileComesAsResult) {
    EXPECT_THAT(
        Run({{"call", "FileOpenDialog", emu, "Kickstart", "*.rom"},
             Get("Files.Caption"),
             Get("Files.File1.List"),
             Get("Files.Dir1.List"),
             Get("Files.Mode"),
             Get("Files.Focus"),
             {"click", "Files.File1", 0},
             Get("Files.FileName.Text"),
             {"click", "Files.Ok"},
             Get("Form1.ListMode")}),
        ElementsAre(opened, Value("Kickstart    (\"*.rom\")"), Value(Json::array({"amiga.rom"})),
                    Value(Json::array({Below("sub")})), Value("File"), Value("Files.FileName"),
                    fine, Value("amiga.rom"), Result(Below("amiga.rom")), Value("2")));
}

TEST_F(FileDialogConversation, EmptyTextComesForACancelledOne) {
    EXPECT_THAT(Run({{"call", "FileOpenDialog", emu, "", ""}, {"click", "Files.Abbruch"}}),
                ElementsAre(opened, Result("")));
    EXPECT_THAT(Run({{"call", "filesaveDialog", emu, "", ""}, {"key", "Files", "Escape"}}),
                ElementsAre(opened, Result("")));
    EXPECT_THAT(Run({{"call", "FileDirSelectDialog", emu}, {"close", "Files"}}),
                ElementsAre(opened, Json({{"ok", true}, {"value", true}, {"result", ""}})));
}

TEST_F(FileDialogConversation, VariableForTheResultIsChanged) {
    const Json chosen = Below("new.uae");
    EXPECT_THAT(
        Run({{"call", "filesaveDialog", emu, "", "", ""},
             {"type", "Files.FileName", "new.uae"},
             {"key", "Files", "Enter"}}),
        ElementsAre(
            opened, fine,
            Json({{"ok", true}, {"result", chosen}, {"resultChanged", {{"result", chosen}}}})));
}

TEST_F(FileDialogConversation, DirectoryIsChosenByKeysAlone) {
    EXPECT_THAT(Run({{"call", "FileDirSelectDialog", emu, "ROM Verzeichnis wählen"},
                     Get("Files.Focus"),
                     {"key", "Files", "Down"},
                     {"key", "Files", "Enter"},
                     Get("Files.KomplettPfadText.Text"),
                     {"click", "Files.Ok"},
                     {"click", "Files.OkBtn2"}}),
                ElementsAre(opened, Value("Files.Dir1"), fine, fine, Value(Below("sub/")),
                            Json({{"ok", false}, {"error", "Files.Ok cannot be reached"}}),
                            Result(Below("sub/"))));
}

TEST_F(FileDialogConversation, NothingOfTheMainWindowReacts) {
    session.MainWindow().LoadBtn.SetEnabled(true);
    for (const Json& hand : std::vector<Json>{{"click", "Form1.LoadBtn"},
                                              {"key", "Form1", "Escape"},
                                              {"type", "Form1.SearchDblsTxt", "x"},
                                              {"close", "Form1"}}) {
        const auto answers =
            Run({{"call", "FileOpenDialog", emu, "", ""}, hand, {"click", "Files.Abbruch"}});
        ASSERT_EQ(answers.size(), 3U);
        EXPECT_EQ(answers[1]["ok"], false) << hand;
        EXPECT_EQ(answers[2], Result(""));
    }
    EXPECT_EQ(session.Host().dialogs.shown.size(), 0U);
}

TEST_F(FileDialogConversation, SecondOneGivesNothingAndLeavesTheFirst) {
    EXPECT_THAT(Run({{"call", "FileOpenDialog", emu, "", "*.rom"},
                     {"call", "FileDirSelectDialog", emu},
                     Get("Files.Mode"),
                     {"click", "Files.Abbruch"},
                     {"call", "FileDirSelectDialog", emu},
                     Get("Files.Mode"),
                     {"click", "Files.AbbruchBtn2"}}),
                ElementsAre(opened, Value(""), Value("File"), Result(""), opened, Value("Dir"),
                            Result("")));
}

TEST_F(FileDialogConversation, TreeIsWrittenIntoATextFile) {
    const std::string list = directory.Path("list.txt");
    EXPECT_THAT(Run({{"call", "ReadDirctoryStructureToFile", emu, list, ".rom", false}}),
                ElementsAre(Value(true)));
    EXPECT_EQ(disk.ReadFile(list), Below("amiga.rom") + "\r\n" + Below("sub/c64.rom") + "\r\n");
}

}  // namespace
}  // namespace kivu::driver
