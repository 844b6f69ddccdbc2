#include "hosts/windows/instance_windows.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "hosts/windows/started_program.h"
#include "testing/eventually.h"

namespace kivu::hosts {
namespace {

using kivu::testing::Eventually;
using kivu::testing::StartedPrograms;

class InstanceWindows : public ::testing::Test {
 protected:
    InstanceWindows() { StartedPrograms::Instance(); }
    ~InstanceWindows() override { StartedPrograms::Instance().Kill(); }

    // Serves the messages that wait for this thread.
    static void Pump() {
        MSG message{};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessageW(&message);
    }
    // Another process that is an instance, first or not. `ready` is set once it is the first one.
    Handle StartOther() const {
        std::wstring command = L"\"" + kivu::testing::HelperPath(L"hand_over") + L"\" \"" +
                               Wide(program) + L"\" \"" + Wide(program) + L"-ready\"";
        STARTUPINFOW start{};
        start.cb = sizeof start;
        PROCESS_INFORMATION started{};
        EXPECT_NE(::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                   nullptr, &start, &started),
                  0);
        const Handle thread(started.hThread);
        return Handle(started.hProcess);
    }
    static DWORD ExitCode(const Handle& process) {
        EXPECT_EQ(::WaitForSingleObject(process.Get(), 30 * 1000), WAIT_OBJECT_0);
        DWORD code = 99;
        ::GetExitCodeProcess(process.Get(), &code);
        return code;
    }

    const std::string program = "Kivu-test-" + std::to_string(::GetCurrentProcessId());
    const Handle ready{::CreateEventW(nullptr, TRUE, FALSE, Wide(program + "-ready").c_str())};
};

TEST_F(InstanceWindows, AnotherProcessAsksTheFirstToComeUp) {
    WindowsInstance first(program);
    ASSERT_FALSE(first.HandOver("Kivu", ""));
    int summons = 0;
    first.OnSummoned([&](const std::string&) { ++summons; });
    EXPECT_EQ(ExitCode(StartOther()), 1u);
    Pump();
    EXPECT_EQ(summons, 1);
}

TEST_F(InstanceWindows, TheProgramNameIsThatOfAFileInAnyCase) {
    WindowsInstance first(program + "-ä");
    EXPECT_FALSE(first.HandOver("Kivu", ""));
    EXPECT_TRUE(WindowsInstance("KIVU-TEST-" + std::to_string(::GetCurrentProcessId()) + "-Ä")
                    .HandOver("Kivu", ""));
}

TEST_F(InstanceWindows, WhatAKilledOneLeavesBehindHindersNobody) {
    const Handle earlier = StartOther();
    ASSERT_EQ(::WaitForSingleObject(ready.Get(), 30 * 1000), WAIT_OBJECT_0);
    EXPECT_TRUE(WindowsInstance(program).HandOver("Kivu", ""));
    ::TerminateProcess(earlier.Get(), 1);
    EXPECT_EQ(ExitCode(earlier), 1u);
    WindowsInstance next(program);
    EXPECT_FALSE(next.HandOver("Kivu", ""));
    EXPECT_TRUE(WindowsInstance(program).HandOver("Kivu", ""));
}

TEST_F(InstanceWindows, ANameOfAnyCharactersAndLengthWorks) {
    for (const std::string& name :
         {program + std::string(255 - program.size(), 'n'), program + "\\..\\x", program + "\xff\n",
          "Local\\" + program, std::string()}) {
        WindowsInstance first(name);
        EXPECT_FALSE(first.HandOver("Kivu", ""));
        EXPECT_TRUE(WindowsInstance(name).HandOver("Kivu", ""));
    }
}

TEST_F(InstanceWindows, AnEarlierOneThatDoesNotServeItsMessagesHoldsUpNobody) {
    const Handle earlier = StartOther();
    ASSERT_EQ(::WaitForSingleObject(ready.Get(), 30 * 1000), WAIT_OBJECT_0);
    for (int i = 0; i < 30; ++i)
        EXPECT_TRUE(WindowsInstance(program).HandOver("Kivu", ""));
}

TEST_F(InstanceWindows, OtherMessagesSummonNobody) {
    WindowsInstance first(program);
    ASSERT_FALSE(first.HandOver("Kivu", ""));
    int summons = 0;
    first.OnSummoned([&](const std::string&) { ++summons; });
    const HWND window = ::FindWindowExW(HWND_MESSAGE, nullptr, L"KivuInstance", nullptr);
    ASSERT_NE(window, nullptr);
    for (const UINT message : {UINT{WM_NULL}, UINT{WM_TIMER}, UINT{WM_USER}})
        ::PostMessageW(window, message, 0, 0);
    Pump();
    EXPECT_EQ(summons, 0);
}

}  // namespace
}  // namespace kivu::hosts
