#include "hosts/linux/log_linux.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <regex>
#include <sstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "hosts/linux/user_directories.h"
#include "testing/environment_variable.h"
#include "testing/temporary_directory.h"

namespace kivu::hosts {
namespace {

using kivu::testing::EnvironmentVariable;
using kivu::testing::TemporaryDirectory;
using ::testing::AllOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::SizeIs;

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

class LogLinux : public ::testing::Test {
 protected:
    std::string Text() const { return directory.Read("Kivu.log"); }
    std::string Old() const { return directory.Read("Kivu.old.log"); }

    TemporaryDirectory directory;
    const std::string path = directory.Path("Kivu.log");
};

// Where descriptor 2 leads, until the end of its scope.
class StandardError {
 public:
    explicit StandardError(int descriptor) : before(::dup(STDERR_FILENO)) {
        ::dup2(descriptor, STDERR_FILENO);
    }
    ~StandardError() {
        ::dup2(before, STDERR_FILENO);
        ::close(before);
    }

 private:
    int before;
};

TEST_F(LogLinux, NothingIsMadeBeforeTheFirstLine) {
    const EnvironmentVariable state("XDG_STATE_HOME", directory.Path("state"));
    LinuxLog log;
    EXPECT_EQ(directory.Count(), 0U);
    log.Write("x");
    EXPECT_THAT(directory.Read("state/Kivu/Kivu.log"), EndsWith("] x\n"));
    struct stat status {};
    ASSERT_EQ(::stat(directory.Path("state/Kivu/Kivu.log").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(LogLinux, WithoutAStateDirectoryItLiesBelowTheHomeDirectory) {
    const EnvironmentVariable home("HOME", directory.Root());
    for (const auto& unusable : {std::optional<std::string>(), std::optional<std::string>("rel")}) {
        const EnvironmentVariable state("XDG_STATE_HOME", unusable);
        EXPECT_EQ(UserStateDirectory(), directory.Path(".local/state"));
    }
    const EnvironmentVariable state("XDG_STATE_HOME", std::nullopt);
    LinuxLog().Write("x");
    EXPECT_THAT(directory.Read(".local/state/Kivu/Kivu.log"), EndsWith("] x\n"));
}

TEST_F(LogLinux, WhereNothingCanBeWrittenNothingIs) {
    directory.Write("file", "x");
    LinuxLog(directory.Path("file/Kivu.log")).Write("x");
    LinuxLog("").Write("x");
    LinuxLog(directory.Root()).Write("x");
    // A link would lead away, a pipe without a reader would wait.
    std::filesystem::create_symlink(directory.Path("elsewhere"), path);
    LinuxLog(path).Write("x");
    EXPECT_FALSE(std::filesystem::exists(directory.Path("elsewhere")));
    std::filesystem::remove(path);
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    LinuxLog(path).Write("x");
    const FileDescriptor reader(::open(path.c_str(), O_RDONLY | O_NONBLOCK));
    LinuxLog(path).Write("x");
    char byte;
    EXPECT_EQ(::read(reader.Get(), &byte, 1), 0);
    EXPECT_EQ(directory.Read("file"), "x");
}

TEST_F(LogLinux, ALogThatIsDeletedOrMovedBeginsAnew) {
    LinuxLog log(path);
    log.Write("one");
    std::filesystem::remove(path);
    log.Write("two");
    EXPECT_THAT(Text(), EndsWith("] two\n"));
    EXPECT_THAT(Lines(Text()), SizeIs(1));
}

TEST_F(LogLinux, OneMegabyteIsTheMost) {
    directory.Write("Kivu.log", std::string(1024 * 1024 - 20, '\n'));
    LinuxLog(path).Write("x");
    EXPECT_THAT(Lines(Text()), SizeIs(1));
    EXPECT_EQ(Old().size(), 1024U * 1024 - 20);
}

TEST_F(LogLinux, ALineLongerThanTheLimitIsWrittenAlone) {
    LinuxLog log(path, 10);
    log.Write("one");
    log.Write("two");
    EXPECT_THAT(Text(), EndsWith("] two\n"));
    EXPECT_THAT(Old(), EndsWith("] one\n"));
    EXPECT_THAT(Lines(Text()), SizeIs(1));
}

// Another instance has stopped in the middle of its turning over.
TEST_F(LogLinux, AFullOneThatIsHeldGrowsToTwiceItsSizeAtMost) {
    const FileDescriptor holder(::open(path.c_str(), O_WRONLY | O_CREAT, 0600));
    ASSERT_EQ(::flock(holder.Get(), LOCK_EX), 0);
    LinuxLog log(path, 1000);
    for (int i = 0; i < 200; ++i)
        log.Write("line");
    EXPECT_GT(Text().size(), 1000U);
    EXPECT_LE(Text().size(), 2100U);
    EXPECT_FALSE(std::filesystem::exists(directory.Path("Kivu.old.log")));
}

TEST_F(LogLinux, LinesOfTwoInstancesDoNotMixAndNoneIsLost) {
    constexpr int perWriter = 500;
    std::array<pid_t, 2> writers{};
    for (std::size_t writer = 0; writer < writers.size(); ++writer) {
        writers[writer] = ::fork();
        if (writers[writer] != 0) continue;
        LinuxLog log(path, std::size_t{1} << 20);
        for (int i = 0; i < perWriter; ++i)
            log.Write("writer " + std::to_string(writer) + " line " + std::to_string(i) + " " +
                      std::string(i % 100, 'x') + ".");
        ::_exit(0);
    }
    for (const pid_t writer : writers) {
        int status = 0;
        ASSERT_EQ(::waitpid(writer, &status, 0), writer);
        EXPECT_EQ(status, 0);
    }
    const auto lines = Lines(Text());
    EXPECT_THAT(lines, SizeIs(2 * perWriter));
    std::array<int, 2> next{};
    const std::regex form(R"(.* \[\d+\] writer ([01]) line (\d+) (x*)\.)");
    for (const std::string& line : lines) {
        std::smatch match;
        ASSERT_TRUE(std::regex_match(line, match, form)) << line;
        int& expected = next.at(match[1].str()[0] - '0');
        EXPECT_EQ(std::stoi(match[2]), expected++);
        EXPECT_EQ(match[3].length(), std::stoi(match[2]) % 100);
    }
}

TEST_F(LogLinux, TurningOverByTwoInstancesTearsNoLine) {
    std::array<pid_t, 2> writers{};
    for (pid_t& writer : writers) {
        writer = ::fork();
        if (writer != 0) continue;
        LinuxLog log(path, 2000);
        for (int i = 0; i < 2000; ++i)
            log.Write("line " + std::to_string(i) + ".");
        ::_exit(0);
    }
    for (const pid_t writer : writers) {
        int status = 0;
        ASSERT_EQ(::waitpid(writer, &status, 0), writer);
        EXPECT_EQ(status, 0);
    }
    // Those of the one that came last are there, whichever that was.
    const std::string text = Old() + Text();
    EXPECT_THAT(text, HasSubstr("] line 1999.\n"));
    for (const std::string& line : Lines(text))
        EXPECT_THAT(line, MatchesRegex(".* \\[[0-9]+\\] line [0-9]+\\."));
    EXPECT_EQ(directory.Count(), 2U);
}

TEST_F(LogLinux, StandardErrorGetsTheSameLine) {
    const std::string shown = directory.Path("shown");
    const FileDescriptor file(::open(shown.c_str(), O_WRONLY | O_CREAT, 0600));
    {
        const StandardError to(file.Get());
        LinuxLog quiet(path);
        quiet.Write("quiet");
        LinuxLog log(path);
        log.AlsoToStandardError();
        log.Write("loud \x1B[2J");
        LinuxLog nowhere("");
        nowhere.AlsoToStandardError();
        nowhere.Write("all the same");
    }
    const auto lines = Lines(directory.Read("shown"));
    ASSERT_THAT(lines, SizeIs(2));
    EXPECT_EQ(lines[0], Lines(Text()).back());
    EXPECT_THAT(lines[0], EndsWith("] loud <1B>[2J"));
    EXPECT_THAT(lines[1], EndsWith("] all the same"));
}

TEST_F(LogLinux, AReaderThatHasGoneOrSleepsHoldsNothingUp) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    FileDescriptor reader(ends[0]);
    const FileDescriptor writer(ends[1]);
    const StandardError to(writer.Get());
    LinuxLog log(path);
    log.AlsoToStandardError();
    for (int i = 0; i < 3000; ++i)
        log.Write(std::string(100, 'x'));
    reader.Close();
    log.Write("y");
    log.Write("z");
    EXPECT_THAT(Lines(Text()), SizeIs(3002));
}

}  // namespace
}  // namespace kivu::hosts
