// The real program through its pipes.

#include <gmock/gmock.h>

#include "driver/json.h"
#include "run_program.h"
#include "scenarios/program_directory.h"

namespace kivu::scenarios {
namespace {

using driver::Json;
using ::testing::HasSubstr;

class Program : public ::testing::Test {
 protected:
    // Gives the lines that the program answers to these, and keeps its exit code.
    std::vector<std::string> Talk(const std::string& lines,
                                  const std::vector<std::string>& more = {}) {
        const std::string input = tree.Write("input.txt", lines);
        std::vector<std::string> words{KIVU_DRIVE, "--program-dir", tree.Path("program")};
        words.insert(words.end(), more.begin(), more.end());
        const auto [output, code] = testing::RunProgram(words, input);
        exitCode = code;
        std::vector<std::string> answers;
        std::istringstream split(output);
        for (std::string line; std::getline(split, line);)
            answers.push_back(line);
        return answers;
    }

    ProgramDirectory tree;
    int exitCode = -1;
};

TEST_F(Program, AnswersEachLineWithOneLine) {
    tree.MakeDirectory("program");
    const auto answers = Talk(
        "[\"start\"]\n[\"get\",\"Form1.EmuListbox.Text\"]\r\n\nnonsense\n[\"call\",\"HexToLong\","
        "\"#0052bc\"]\n[\"quit\"]\n[\"get\",\"Form1.ListMode\"]\n");
    ASSERT_EQ(answers.size(), 6U);
    EXPECT_EQ(answers[0], "{\"ok\":true}");
    EXPECT_EQ(answers[1], "{\"ok\":true,\"value\":\"No Emulator found\"}");
    EXPECT_THAT(answers[2], HasSubstr("\"ok\":false"));
    EXPECT_THAT(answers[3], HasSubstr("\"ok\":false"));
    EXPECT_EQ(answers[4], "{\"ok\":true,\"value\":12341760}");
    EXPECT_EQ(exitCode, 0);
    EXPECT_TRUE(tree.Exists("program/Config/Kivu.ini"));
}

TEST_F(Program, EndOfInputEndsItWell) {
    tree.MakeDirectory("program");
    EXPECT_EQ(Talk("[\"start\"]").size(), 1U);
    EXPECT_EQ(exitCode, 0);
    EXPECT_TRUE(Talk("").empty());
    EXPECT_EQ(exitCode, 0);
}

TEST_F(Program, TakesItsOptions) {
    tree.MakeDirectory("program");
    const auto answers = Talk(
        "[\"start\"]\n[\"get\",\"Form1.TimeString.Caption\"]\n[\"get\",\"Form1.CurrentLanguage\"]"
        "\n[\"get\",\"Form1.EXE\"]\n",
        {"--language", "German", "--time", "07:08:09", "--program", "Other"});
    ASSERT_EQ(answers.size(), 4U);
    EXPECT_THAT(answers[1], HasSubstr("\"07:08\""));
    EXPECT_THAT(answers[2], HasSubstr(":1}"));
    EXPECT_THAT(answers[3], HasSubstr("\"Other\""));
    EXPECT_TRUE(tree.Exists("program/Config/Other.ini"));
}

TEST_F(Program, CommandLineThatStartsAGameEndsTheProgram) {
    tree.Write("program/game.adf", "x");
    const auto answers =
        Talk("[\"start\"]\n[\"runs\"]\n", {"--command-line", tree.Path("program/game.adf")});
    ASSERT_EQ(answers.size(), 2U);
    EXPECT_EQ(answers[0], "{\"ok\":true,\"ended\":true}");
    EXPECT_EQ(Json::parse(answers[1])["value"].size(), 1U);
}

TEST_F(Program, NonsenseAmongItsOwnArgumentsIsRefused) {
    EXPECT_TRUE(Talk("[\"start\"]\n", {"--time", "noon"}).empty());
    EXPECT_EQ(exitCode, 2);
}

TEST_F(Program, NothingThatIsReadBringsItDown) {
    tree.MakeDirectory("program");
    std::string lines;
    unsigned seed = 1;
    for (int line = 0; line < 300; ++line) {
        for (int i = 0; i < 40; ++i) {
            seed = seed * 1103515245 + 12345;
            const char c = static_cast<char>(seed >> 16);
            lines += c == '\n' ? ' ' : c;
        }
        lines += '\n';
    }
    EXPECT_EQ(Talk(lines).size(), 300U);
    EXPECT_EQ(exitCode, 0);
}

}  // namespace
}  // namespace kivu::scenarios
