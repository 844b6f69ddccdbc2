#include "hosts/windows/log_windows.h"

#include <gmock/gmock.h>
#include <sstream>

#include "hosts/windows/scratch_directory.h"

namespace kivu::hosts {
namespace {

using kivu::testing::ScratchDirectory;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::SizeIs;

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

class LogWindows : public ::testing::Test {
 protected:
    std::string Text() const { return directory.Read("Kivu.log"); }
    std::string Old() const { return directory.Read("Kivu.old.log"); }

    ScratchDirectory directory;
    const std::string path = directory.Path("Kivu.log");
};

TEST_F(LogWindows, ItsPlaceIsBelowTheLocalApplicationData) {
    wchar_t local[MAX_PATH] = {};
    ASSERT_NE(::GetEnvironmentVariableW(L"LOCALAPPDATA", local, std::size(local)), 0U);
    EXPECT_EQ(WindowsLog::UserPath(), Narrow(local) + "\\Kivu\\Kivu.log");
}

TEST_F(LogWindows, WhereNothingCanBeWrittenNothingIs) {
    directory.Write("file", "x");
    WindowsLog(directory.Path("file\\Kivu.log")).Write("x");
    WindowsLog("").Write("x");
    WindowsLog("\\\\.\\pipe\\x").Write("x");
    WindowsLog(directory.Root()).Write("x");
    EXPECT_EQ(directory.Read("file"), "x");
    EXPECT_EQ(directory.Count(), 1U);
}

TEST_F(LogWindows, SeveralInstancesWriteAndReadersAreInNobodysWay) {
    WindowsLog first(path, 2000), second(path, 2000);
    for (int i = 0; i < 200; ++i) {
        (i % 2 == 0 ? first : second).Write("line " + std::to_string(i) + ".");
        const Handle reader(::CreateFileW(directory.WidePath("Kivu.log").c_str(), GENERIC_READ,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                          nullptr, OPEN_EXISTING, 0, nullptr));
        EXPECT_TRUE(reader);
    }
    const std::string text = Old() + Text();
    for (int i = 170; i < 200; ++i)
        EXPECT_THAT(text, HasSubstr("] line " + std::to_string(i) + ".\r\n"));
    for (const std::string& line : Lines(text))
        EXPECT_THAT(line, EndsWith(".\r"));
}

TEST_F(LogWindows, StandardErrorGetsTheSameLine) {
    const HANDLE before = ::GetStdHandle(STD_ERROR_HANDLE);
    {
        const Handle file(::CreateFileW(directory.WidePath("shown").c_str(), GENERIC_WRITE,
                                        FILE_SHARE_READ, nullptr, CREATE_ALWAYS, 0, nullptr));
        ::SetStdHandle(STD_ERROR_HANDLE, file.Get());
        WindowsLog log(path);
        log.Write("quiet");
        log.AlsoToStandardError();
        log.Write("loud");
        ::SetStdHandle(STD_ERROR_HANDLE, before);
    }
    EXPECT_EQ(directory.Read("shown"), Lines(Text()).back() + "\n");
}

}  // namespace
}  // namespace kivu::hosts
