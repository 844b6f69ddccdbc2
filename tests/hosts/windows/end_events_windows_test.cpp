#include <gtest/gtest.h>
#include <string>

#include "hosts/windows/started_program.h"

namespace kivu::hosts {
namespace {

// How a program that listens and hears of that event of its console ends.
DWORD StatusAfter(DWORD event) {
    std::wstring command =
        L"\"" + kivu::testing::HelperPath(L"hear_end") + L"\" " + std::to_wstring(event);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    EXPECT_NE(::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                               nullptr, &start, &started),
              0);
    const Handle thread(started.hThread);
    const Handle process(started.hProcess);
    EXPECT_EQ(::WaitForSingleObject(process.Get(), 60 * 1000), WAIT_OBJECT_0);
    DWORD status = 0;
    ::GetExitCodeProcess(process.Get(), &status);
    return status;
}

constexpr DWORD rests = 100, comesBack = 101, isHidden = 102;

// The system ends the process when its call comes back: the launcher has the time that it takes.
TEST(EndEventsWindows, LastCallRestsUntilTheLauncherHasEnded) {
    for (const DWORD event : {CTRL_CLOSE_EVENT, CTRL_LOGOFF_EVENT, CTRL_SHUTDOWN_EVENT}) {
        const DWORD status = StatusAfter(event);
        if (status == isHidden) GTEST_SKIP() << "this Windows keeps its routine to itself";
        EXPECT_EQ(status, rests) << event;
    }
}

TEST(EndEventsWindows, KeysAskForTheEndAndHoldUpNothing) {
    for (const DWORD event : {CTRL_C_EVENT, CTRL_BREAK_EVENT}) {
        const DWORD status = StatusAfter(event);
        if (status == isHidden) GTEST_SKIP() << "this Windows keeps its routine to itself";
        EXPECT_EQ(status, comesBack) << event;
    }
}

}  // namespace
}  // namespace kivu::hosts
