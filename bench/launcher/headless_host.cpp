#include "headless_host.h"

#include "ratio/ratio.h"
#include "testing/scripted_host.h"

namespace kivu::bench {

namespace {

class SteadyClock : public platform::Clock {
 public:
    platform::TimeOfDay Now() const override { return {12, 0, 0}; }
    std::chrono::milliseconds Steady() const override {
        using namespace std::chrono;
        return duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
    }
    void Rest(std::chrono::milliseconds) override {}
};

}  // namespace

// Time passes as it does; nothing else happens by itself.
struct HeadlessHost::Silent : testing::ScriptedHost {
    using ScriptedHost::ScriptedHost;
    SteadyClock clock;
};

std::error_code TimedFileSystem::WriteFile(const std::string& path, std::string_view bytes) {
    std::error_code failure;
    seconds += Seconds([&] { failure = LinuxFileSystem::WriteFile(path, bytes); });
    return failure;
}

HeadlessHost::HeadlessHost() : silent(std::make_unique<Silent>(files)) {
}

HeadlessHost::~HeadlessHost() = default;

void HeadlessHost::HoldBackground() {
    silent->background.inlined = false;
}

void HeadlessHost::ServeBackground() {
    while (!silent->background.waiting.empty())
        silent->background.Serve(0);
}

platform::Host HeadlessHost::Services(const std::string& programDirectory) {
    return platform::ServicesOf(*silent, programDirectory, "Kivu", "");
}

}  // namespace kivu::bench
