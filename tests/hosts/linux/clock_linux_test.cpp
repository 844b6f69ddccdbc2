#include "hosts/linux/clock_linux.h"

#include <ctime>

#include "testing/environment_variable.h"

namespace kivu::hosts {
namespace {

TEST(ClockLinux, TellsTheTimeOfTheUsersZone) {
    const LinuxClock clock;
    const auto minutesIn = [&](const char* zone) {
        const kivu::testing::EnvironmentVariable variable("TZ", zone);
        ::tzset();
        const platform::TimeOfDay now = clock.Now();
        EXPECT_TRUE(now.hour >= 0 && now.hour < 24 && now.minute >= 0 && now.minute < 60);
        EXPECT_TRUE(now.second >= 0 && now.second <= 60);
        return now.hour * 60 + now.minute;
    };
    constexpr int day = 24 * 60;
    const int ahead = (minutesIn("XXX-5") - minutesIn("UTC0") + day) % day;
    ::tzset();
    // A minute may have passed between the two looks.
    EXPECT_TRUE(ahead == 5 * 60 || ahead == 5 * 60 - 1) << ahead;
}

TEST(ClockLinux, TheSteadyClockNeverGoesBackAndAdvancesByARest) {
    LinuxClock clock;
    const auto before = clock.Steady();
    clock.Rest(std::chrono::milliseconds(3));
    EXPECT_GE(clock.Steady() - before, std::chrono::milliseconds(2));
    clock.Rest(std::chrono::milliseconds(-1'000'000));
    EXPECT_GE(clock.Steady(), before);
}

}  // namespace
}  // namespace kivu::hosts
