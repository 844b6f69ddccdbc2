#include "hosts/windows/program_starter_windows.h"

#include <array>
#include <gmock/gmock.h>
#include <thread>

#include "hosts/windows/started_program.h"

namespace kivu::hosts {
namespace {

using kivu::testing::CurrentDirectoryKeeper;
using kivu::testing::Eventually;
using kivu::testing::InheritedVariable;
using kivu::testing::IsForgotten;
using kivu::testing::ScratchDirectory;
using kivu::testing::StartedPrograms;
using kivu::testing::Told;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int fileNotFound = ERROR_FILE_NOT_FOUND;

class ProgramStarterWindows : public ::testing::Test {
 protected:
    ProgramStarterWindows() { StartedPrograms::Instance(); }
    ~ProgramStarterWindows() override { StartedPrograms::Instance().Kill(); }

    // A telling program of that name in the scratch directory.
    std::string Install(const std::string& name) {
        telling.Install(disk.Path(name));
        return disk.Path(name);
    }
    platform::StartRequest Request(const std::string& command) const {
        platform::StartRequest request;
        request.command = command;
        request.directory = disk.Root();
        return request;
    }
    Told RunAndWait(const platform::StartRequest& request) {
        const std::error_code failure = starter.Run(request);
        EXPECT_FALSE(failure) << failure.message();
        if (failure) return {};
        const auto told = telling.Wait();
        EXPECT_TRUE(told) << request.command;
        EXPECT_TRUE(Eventually([] { return StartedPrograms::Instance().HaveEnded(); }));
        EXPECT_FALSE(telling.IsTrapped()) << request.command;
        return told.value_or(Told());
    }

    ScratchDirectory disk;
    kivu::testing::Telling telling;
    WindowsProgramStarter starter;
};

TEST_F(ProgramStarterWindows, ArgumentsReachTheProgramAsTheCommandSaysThem) {
    const std::string program = Install("te ll.exe");
    const Told told = RunAndWait(
        Request("\"" + program + "\" -x \"a b\" %OS% c&d ^e \"f\\\"g\" Grö\xC3\x9F\x65 中"));
    EXPECT_EQ(told.program, program);
    EXPECT_THAT(told.words, ElementsAre("-x", "a b", "%OS%", "c&d", "^e", "f\"g", "Größe", "中"));
    EXPECT_EQ(told.directory, disk.Root());
}

TEST_F(ProgramStarterWindows, APathAloneIsTheWholeCommandAlsoWithBlanks) {
    disk.MakeDirectory("my emus");
    const std::string program = Install("my emus\\the emu & co.exe");
    Install("my.exe");
    Install("my emus\\the.exe");
    platform::StartRequest request = Request(program);
    request.words = {program};
    const Told told = RunAndWait(request);
    EXPECT_EQ(told.program, program);
    EXPECT_THAT(told.words, IsEmpty());
}

TEST_F(ProgramStarterWindows, AProgramNamedFromTheCurrentDirectoryIsFoundThere) {
    const CurrentDirectoryKeeper keeper;
    disk.MakeDirectory("emu");
    Install("emu\\tell.exe");
    ASSERT_TRUE(::SetCurrentDirectoryW(Wide(disk.Root()).c_str()));
    platform::StartRequest request = Request("emu\\tell.exe 1");
    request.directory.clear();
    const Told told = RunAndWait(request);
    EXPECT_THAT(told.words, ElementsAre("1"));
    EXPECT_EQ(told.directory, disk.Root());
}

TEST_F(ProgramStarterWindows, WindowStylesReachTheProgram) {
    const std::string program = Install("tell.exe");
    const std::pair<platform::WindowStyle, int> styles[] = {
        {platform::WindowStyle::Hidden, SW_HIDE},
        {platform::WindowStyle::Normal, SW_SHOWNORMAL},
        {platform::WindowStyle::Minimized, SW_SHOWMINIMIZED},
        {platform::WindowStyle::Maximized, SW_SHOWMAXIMIZED},
        {platform::WindowStyle::NormalNoFocus, SW_SHOWNOACTIVATE},
        {platform::WindowStyle::MinimizedNoFocus, SW_SHOWMINNOACTIVE}};
    for (const auto& [style, show] : styles) {
        platform::StartRequest request = Request(program);
        request.style = style;
        EXPECT_EQ(RunAndWait(request).show, std::to_string(show));
    }
}

TEST_F(ProgramStarterWindows, ProgramsInheritTheEnvironmentAndNoHandle) {
    const InheritedVariable variable(L"KIVU_TEST_VARIABLE", L"Wört");
    // Many, so that the last one has a number that no handle of the program's own has.
    std::vector<Handle> offered;
    for (int i = 0; i < 3000; ++i) {
        SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
        offered.emplace_back(::CreateEventW(&inheritable, TRUE, FALSE, nullptr));
    }
    const auto number = reinterpret_cast<std::uintptr_t>(offered.back().Get());
    const InheritedVariable last(L"KIVU_OFFERED_HANDLE", std::to_wstring(number));
    const Told told = RunAndWait(Request(Install("tell.exe")));
    EXPECT_EQ(told.variable, "Wört");
    EXPECT_EQ(told.inherited, "no");
}

TEST_F(ProgramStarterWindows, NothingOfAnEndedProgramIsLeft) {
    const std::string program = Install("tell.exe");
    disk.Write("run.bat", "@\"" + program + "\"\r\n");
    for (const std::string& command : {program, disk.Path("run.bat")}) {
        for (const bool wait : {false, true}) {
            platform::StartRequest request = Request(command);
            request.wait = wait;
            const Told told = RunAndWait(request);
            EXPECT_TRUE(Eventually([&] { return IsForgotten(told.id); }));
        }
    }
    DWORD before = 0, after = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &before);
    for (int i = 0; i < 5; ++i)
        RunAndWait(Request(program));
    ::GetProcessHandleCount(::GetCurrentProcess(), &after);
    EXPECT_LE(after, before);
}

TEST_F(ProgramStarterWindows, WaitsForTheEndOfAProgramAndOfABatchFile) {
    const std::string program = Install("tell.exe");
    disk.Write("run.bat", "@\"" + program + "\"\r\n");
    const InheritedVariable name(L"KIVU_TELL_UNTIL", L"Kivu-test-until");
    for (const std::string& command : {program, disk.Path("run.bat")}) {
        const Handle allowed(::CreateEventW(nullptr, TRUE, FALSE, L"Kivu-test-until"));
        const Handle returned(::CreateEventW(nullptr, TRUE, FALSE, nullptr));
        std::thread waiting([&] {
            platform::StartRequest request = Request(command);
            request.wait = true;
            EXPECT_FALSE(starter.Run(request));
            ::SetEvent(returned.Get());
        });
        EXPECT_TRUE(telling.Wait());
        EXPECT_EQ(::WaitForSingleObject(returned.Get(), 0), WAIT_TIMEOUT);
        ::SetEvent(allowed.Get());
        waiting.join();
        EXPECT_TRUE(Eventually([] { return StartedPrograms::Instance().HaveEnded(); }));
    }
}

TEST_F(ProgramStarterWindows, DoesNotWaitUnlessTold) {
    const std::string program = Install("tell.exe");
    const Handle allowed(::CreateEventW(nullptr, TRUE, FALSE, L"Kivu-test-until"));
    const InheritedVariable name(L"KIVU_TELL_UNTIL", L"Kivu-test-until");
    EXPECT_FALSE(starter.Run(Request(program)));
    EXPECT_TRUE(telling.Wait());
    EXPECT_FALSE(StartedPrograms::Instance().HaveEnded());
    ::SetEvent(allowed.Get());
    EXPECT_TRUE(Eventually([] { return StartedPrograms::Instance().HaveEnded(); }));
}

TEST_F(ProgramStarterWindows, WhatCannotStartIsAnErrorOfTheSystem) {
    const std::string program = Install("tell.exe");
    disk.Write("broken.exe", "MZ, but nothing else");
    const std::pair<std::string, int> failures[] = {
        {disk.Path("missing.exe"), fileNotFound},
        {disk.Path("missing.bat"), fileNotFound},
        {disk.Root(), fileNotFound},
        {"", fileNotFound},
        {" \t", fileNotFound},
        {"\"\"", fileNotFound},
        {"no-such-program-anywhere", fileNotFound},
        {disk.Path("broken.exe"), ERROR_BAD_EXE_FORMAT},
        {program + std::string("\0x", 2), ERROR_INVALID_PARAMETER}};
    for (const auto& [command, error] : failures) {
        const std::error_code failure = starter.Run(Request(command));
        EXPECT_EQ(failure, std::error_code(error, std::system_category())) << command;
    }
    platform::StartRequest request = Request(program);
    request.directory = disk.Path("nowhere");
    EXPECT_EQ(starter.Run(request).category(), std::system_category());
    platform::StartRequest startFile = Request(disk.Path("missing.bat"));
    startFile.startFile = true;
    EXPECT_EQ(starter.Run(startFile).value(), fileNotFound);
    EXPECT_FALSE(telling.HasTold());
    EXPECT_TRUE(StartedPrograms::Instance().HaveEnded());
}

TEST_F(ProgramStarterWindows, ABatchFileGetsItsArgumentsAsTheyAre) {
    Install("tell.exe");
    Install("trap.exe");
    disk.MakeDirectory("R&D (1) it's ^ok!");
    const std::string batch =
        disk.Write("R&D (1) it's ^ok!\\run.bat", "@\"%~dp0..\\tell.exe\" %1 %2 %3 %4\r\n");
    const Told told =
        RunAndWait(Request("\"" + batch + "\" D:\\A&trap&B.zip \"C & trap & D.zip\" x^y !OS!"));
    EXPECT_THAT(told.words, ElementsAre("D:\\A&trap&B.zip", "C & trap & D.zip", "x^y", "!OS!"));
    EXPECT_EQ(told.directory, disk.Root());
}

TEST_F(ProgramStarterWindows, ABatchFileSeesNoVariableExpanded) {
    if (kivu::testing::IsWine()) GTEST_SKIP() << kivu::testing::wineExpandsTwice;
    Install("tell.exe");
    Install("trap.exe");
    disk.MakeDirectory("100% %OS%");
    disk.Write("100% %OS%\\run.bat", "@\"%~dp0..\\tell.exe\" %1 %2 %3\r\n");
    const InheritedVariable variable(L"KIVU_TEST_VARIABLE", L"\" & trap & \"");
    const Told told = RunAndWait(Request("\"" + disk.Path("100% %OS%\\run.bat") +
                                         "\" \"x %KIVU_TEST_VARIABLE% y\" %OS% 100%"));
    EXPECT_THAT(told.words, ElementsAre("x %KIVU_TEST_VARIABLE% y", "%OS%", "100%"));
}

TEST_F(ProgramStarterWindows, ArgumentsThatABatchFileCannotBeGivenStartNothing) {
    Install("tell.exe");
    Install("trap.exe");
    disk.Write("run.bat", "@\"%~dp0tell.exe\" %*\r\n");
    for (const std::string& arguments :
         {std::string(" \"a\\\"&trap&b\""), std::string(" a\r\ntrap"), std::string(9000, ' ')})
        EXPECT_EQ(starter.Run(Request("\"" + disk.Path("run.bat") + "\"" + arguments)).category(),
                  std::system_category());
    EXPECT_TRUE(StartedPrograms::Instance().HaveEnded());
    EXPECT_FALSE(telling.HasTold());
    EXPECT_FALSE(telling.IsTrapped());
}

TEST_F(ProgramStarterWindows, TheVariableForBatchFilesIsGoneAfterwards) {
    Install("tell.exe");
    disk.Write("run.bat", "@\"%~dp0tell.exe\"\r\n");
    RunAndWait(Request(disk.Path("run.bat")));
    EXPECT_EQ(::GetEnvironmentVariableW(L"KIVU_START", nullptr, 0), 0u);
}

TEST_F(ProgramStarterWindows, ProgramsInTheCurrentDirectoryDoNotStandInForTheSystems) {
    Install("tell.exe");
    Install("trap.exe");
    for (const char* name : {"cmd.exe", "chcp.exe", "chcp.com", "start.exe"})
        ASSERT_TRUE(
            ::CopyFileW(disk.WidePath("trap.exe").c_str(), disk.WidePath(name).c_str(), TRUE));
    disk.Write("run.bat", "@\"%~dp0tell.exe\"\r\n");
    const CurrentDirectoryKeeper keeper;
    ASSERT_TRUE(::SetCurrentDirectoryW(Wide(disk.Root()).c_str()));
    RunAndWait(Request(disk.Path("run.bat")));
    EXPECT_EQ(starter.Run(Request("trap.exe")).value(), fileNotFound);
}

TEST_F(ProgramStarterWindows, StartFileKeepsOnlyWhatItsCodePageHolds) {
    EXPECT_EQ(starter.StartFileBytes("cd C:\\a\r\n"), "cd C:\\a\r\n");
    const auto umlauts = starter.StartFileBytes("ä");
    ASSERT_TRUE(umlauts);
    EXPECT_EQ(starter.StartFileBytes("\xF0\x9F\x8E\xAE").has_value(), ::GetOEMCP() == CP_UTF8);
    // Letters that would turn into a quote and an ampersand where the nearest one is taken.
    for (const char* wide : {"\xEF\xBC\x82", "\xEF\xBC\x86", "\xEF\xBC\x85"})
        EXPECT_NE(starter.StartFileBytes(wide).value_or("").size(), 1u) << wide;
    EXPECT_FALSE(starter.UsesShell());
}

class FindInPathWindows : public ProgramStarterWindows {
 protected:
    void SetPath(const std::string& path) { variable.emplace(L"PATH", Wide(path)); }
    std::optional<InheritedVariable> variable;
};

TEST_F(FindInPathWindows, GoesThroughTheDirectoriesInTheirOrder) {
    disk.MakeDirectory("first one");
    disk.MakeDirectory("second");
    Install("second\\kivu-x.exe");
    disk.MakeDirectory("first one\\kivu-y.exe");
    Install("second\\kivu-y.exe");
    disk.Write("second\\kivu-z.bat", "");
    SetPath(";" + disk.Path("missing") + ";\"" + disk.Path("first one") + "\";" +
            disk.Path("second") + "\\;");
    EXPECT_EQ(starter.FindInPath("kivu-x.exe"), disk.Path("second\\kivu-x.exe"));
    EXPECT_EQ(starter.FindInPath("kivu-x"), disk.Path("second\\kivu-x.exe"));
    EXPECT_EQ(starter.FindInPath("KIVU-X.EXE").size(), disk.Path("second\\kivu-x.exe").size());
    EXPECT_EQ(starter.FindInPath("kivu-y.exe"), disk.Path("second\\kivu-y.exe"));
    EXPECT_EQ(starter.FindInPath("kivu-z"), disk.Path("second\\kivu-z.bat"));
    Install("first one\\kivu-x.exe");
    EXPECT_EQ(starter.FindInPath("kivu-x.exe"), disk.Path("first one\\kivu-x.exe"));
}

TEST_F(FindInPathWindows, FindsTheSystemsOwnProgramsInAnyCase) {
    SetPath("");
    const std::string found = starter.FindInPath("cmd");
    EXPECT_NE(::GetFileAttributesW(Wide(found).c_str()), INVALID_FILE_ATTRIBUTES) << found;
}

TEST_F(FindInPathWindows, PassesOverRelativeDirectoriesAndTheCurrentOne) {
    const CurrentDirectoryKeeper keeper;
    disk.MakeDirectory("sub");
    Install("kivu-x.exe");
    Install("sub\\kivu-x.exe");
    ASSERT_TRUE(::SetCurrentDirectoryW(Wide(disk.Root()).c_str()));
    SetPath(".;sub;;\\;C:");
    EXPECT_EQ(starter.FindInPath("kivu-x.exe"), "");
    EXPECT_EQ(starter.Run(Request("kivu-x.exe")).value(), fileNotFound);
}

TEST_F(FindInPathWindows, ANameWithADirectoryIsNoBareOne) {
    Install("kivu-x.exe");
    SetPath(disk.Root());
    for (const std::string& name :
         {disk.Path("kivu-x.exe"), std::string(".\\kivu-x.exe"), std::string("C:kivu-x.exe"),
          std::string("./kivu-x.exe"), std::string(), std::string("kivu-x.exe\0", 11)})
        EXPECT_EQ(starter.FindInPath(name), "") << name;
}

TEST_F(FindInPathWindows, ABareNameIsStartedFromThere) {
    disk.MakeDirectory("bin");
    Install("bin\\kivu-x.exe");
    SetPath(disk.Path("bin"));
    const Told told = RunAndWait(Request("kivu-x 1"));
    EXPECT_EQ(told.program, disk.Path("bin\\kivu-x.exe"));
    EXPECT_THAT(told.words, ElementsAre("1"));
}

// A file type that the telling program serves, for this user, until the end of the test.
class OpenWindows : public ProgramStarterWindows {
 protected:
    OpenWindows() {
        SetValue(L".kivutest", L"KivuTestFile");
        SetValue(L"KivuTestFile\\shell\\open\\command",
                 L"\"" + Wide(Install("tell.exe")) + L"\" opened \"%1\" %*");
    }
    ~OpenWindows() override {
        for (const wchar_t* key : {L".kivutest", L"KivuTestFile"}) {
            ::RegDeleteTreeW(HKEY_CURRENT_USER,
                             (L"Software\\Classes\\" + std::wstring(key)).c_str());
            ::RegDeleteTreeW(HKEY_CLASSES_ROOT, key);
        }
    }
    // For this user. The second call changes the same value on Windows, which shows a user's own
    // types among all the types; Wine keeps the two apart, and looks at the latter alone.
    static void SetValue(const std::wstring& key, const std::wstring& text) {
        const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        for (const auto& [root, path] : {std::pair(HKEY_CURRENT_USER, L"Software\\Classes\\" + key),
                                         std::pair(HKEY_CLASSES_ROOT, key)})
            EXPECT_EQ(::RegSetKeyValueW(root, path.c_str(), nullptr, REG_SZ, text.c_str(), size),
                      ERROR_SUCCESS);
    }
};

TEST_F(OpenWindows, ADocumentGoesToItsProgram) {
    const std::string document = disk.Write("R&D 100% (x) ^ä.kivutest", "");
    EXPECT_FALSE(starter.Open(document));
    const auto told = telling.Wait();
    ASSERT_TRUE(told);
    EXPECT_THAT(told->words, ElementsAre("opened", document));
}

TEST_F(OpenWindows, ACommandOfADocumentGoesThereWithItsArguments) {
    const std::string document = disk.Write("my game.kivutest", "");
    platform::StartRequest request = Request("\"" + document + "\" -x \"a b\"");
    request.style = platform::WindowStyle::Maximized;
    const Told told = RunAndWait(request);
    EXPECT_THAT(told.words, ElementsAre("opened", document, "-x", "a b"));
    EXPECT_EQ(told.directory, disk.Root());
    EXPECT_EQ(told.show, std::to_string(SW_SHOWMAXIMIZED));
}

TEST_F(OpenWindows, WhatNobodyServesIsAnErrorOfTheSystem) {
    const std::string document = disk.Write("x.kivu-nobody", "");
    for (const std::string& text : {document, disk.Path("missing.kivutest"), std::string(),
                                    document + std::string("\0", 1)}) {
        const std::error_code failure = starter.Open(text);
        EXPECT_TRUE(failure) << text;
        EXPECT_EQ(failure.category(), std::system_category());
    }
}

TEST_F(OpenWindows, AFileThatIsThereHasItsProgram) {
    const std::string document = disk.Write("a b.kivutest", "");
    EXPECT_THAT(starter.FindExecutable(document), ::testing::EndsWith("tell.exe"));
    EXPECT_EQ(starter.FindExecutable(disk.Path("missing.kivutest")), "");
    EXPECT_EQ(starter.FindExecutable(document + std::string("\0", 1)), "");
}

TEST_F(FindInPathWindows, WhereItLooksIsKnownInEverySpelling) {
    disk.MakeDirectory("bin");
    SetPath("\"" + disk.Path("bin\\") + "\";.;relative");
    EXPECT_TRUE(starter.SearchesIn(disk.Path("bin")));
    EXPECT_TRUE(starter.SearchesIn(disk.Path("BIN\\")));
    EXPECT_FALSE(starter.SearchesIn(disk.Root()));
    EXPECT_FALSE(starter.SearchesIn("."));
    EXPECT_FALSE(starter.SearchesIn("relative"));
}

}  // namespace
}  // namespace kivu::hosts
