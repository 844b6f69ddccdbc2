// What reading a game controller costs while the launcher waits for its user, as a share of one
// core.

#include <ctime>
#include <stdexcept>
#include <thread>

#include "hosts/linux/clock_linux.h"
#include "hosts/linux/controllers_sdl.h"
#include "ratio/ratio.h"
#include "virtual_pad.h"

namespace {

using namespace kivu;
using namespace std::chrono_literals;

constexpr auto period = 140ms;
constexpr double perSecond = 1000.0 / 140;

class NoLog : public platform::Log {
 public:
    void Write(std::string_view) override {}
};

double ProcessSeconds() {
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// The launcher's controllers with one pad that moves.
class Polling {
 public:
    Polling() {
        const auto list = controllers.Open();
        if (!list || list->size() < 3) throw std::runtime_error("no virtual pad");
        device = list->size() - 1;
    }

    // A tick as the window's timer has it.
    void Tick() {
        pad.SetAxis(0, up = up == 0 ? 32767 : 0);
        if (controllers.Changed()) throw std::runtime_error("the pad has gone");
        platform::ControllerState state;
        for (std::size_t i = 0; i <= device; ++i)
            controllers.Read(i, state);
    }

    // Seconds of the processor that a second of polling takes, wake-ups and cold caches included.
    double ShareOfACore() {
        constexpr int ticks = 7;
        const double before = ProcessSeconds();
        for (int tick = 0; tick < ticks; ++tick) {
            std::this_thread::sleep_for(period);
            Tick();
        }
        return (ProcessSeconds() - before) / ticks * perSecond;
    }

 private:
    testing::VirtualPad pad{"Pad", {.axes = 6, .buttons = 15, .known = true}};
    hosts::LinuxClock clock;
    NoLog log;
    hosts::SdlControllers controllers{clock, log};
    std::size_t device = 0;
    int up = 0;
};

// As after a game: the library is loaded, its service is not up.
double OpenSeconds() {
    hosts::LinuxClock clock;
    NoLog log;
    hosts::SdlControllers controllers{clock, log};
    controllers.Open();
    controllers.Close();
    return bench::Seconds([&] { controllers.Open(); });
}

}  // namespace

int main(int argc, char** argv) {
    const auto share = [] { return Polling().ShareOfACore(); };
    return bench::RunRatios(
        argc, argv,
        {{"polling a pad, by one core", 0.002, share, [] { return 1.0; }, 3},
         {"opening pads after a game, by one frame", 1, OpenSeconds, [] { return 1.0 / 60; }, 20}});
}
