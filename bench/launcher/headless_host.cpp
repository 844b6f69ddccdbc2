#include "headless_host.h"

#include "ratio/ratio.h"

namespace kivu::bench {

namespace {

class NoProcesses : public platform::ProcessList {
 public:
    std::optional<std::vector<platform::ProcessEntry>> Snapshot() const override {
        return std::vector<platform::ProcessEntry>{};
    }
    void Kill(std::int32_t) override {}
};

class NoStarter : public platform::ProgramStarter {
 public:
    std::error_code Run(const platform::StartRequest&) override { return {}; }
    bool UsesShell() const override { return true; }
    std::error_code Open(const std::string&) override { return {}; }
};

class SteadyClock : public platform::Clock {
 public:
    platform::TimeOfDay Now() const override { return {12, 0, 0}; }
    std::chrono::milliseconds Steady() const override {
        using namespace std::chrono;
        return duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
    }
    void Rest(std::chrono::milliseconds) override {}
};

class NoDialogs : public platform::Dialogs {
 public:
    platform::Answer MessageBox(const std::string&, const std::string&, platform::Buttons buttons,
                                platform::Icon) override {
        switch (buttons) {
            case platform::Buttons::Ok:
                return platform::Answer::Ok;
            case platform::Buttons::OkCancel:
                return platform::Answer::Cancel;
            case platform::Buttons::YesNo:
                break;
        }
        return platform::Answer::No;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override {
        return {};
    }
};

class NoBeeper : public platform::Beeper {
 public:
    void Beep() override {}
};

class NoEvents : public platform::EventPump {
 public:
    void DoEvents() override {}
};

class EnglishLocale : public platform::Locale {
 public:
    std::string LanguageEnglishName() const override { return "English"; }
};

class EmptyStore : public platform::UserStore {
 public:
    std::string Get(const std::string&, const std::string&,
                    const std::string& missing) const override {
        return missing;
    }
    void Set(const std::string&, const std::string&, const std::string&) override {}
    std::string SystemValue(const std::string&, const std::string&,
                            const std::string&) const override {
        return {};
    }
};

class OnlyInstance : public platform::Instance {
 public:
    bool HandOver(const std::string&, const std::string&) override { return false; }
    void OnSummoned(std::function<void(const std::string&)>) override {}
};

}  // namespace

struct HeadlessHost::Silent {
    NoProcesses processes;
    NoStarter starter;
    SteadyClock clock;
    NoDialogs dialogs;
    NoBeeper beeper;
    NoEvents events;
    EnglishLocale locale;
    EmptyStore userStore;
    OnlyInstance instance;
};

std::error_code TimedFileSystem::WriteFile(const std::string& path, std::string_view bytes) {
    std::error_code failure;
    seconds += Seconds([&] { failure = LinuxFileSystem::WriteFile(path, bytes); });
    return failure;
}

HeadlessHost::HeadlessHost() : silent(std::make_unique<Silent>()) {
}

HeadlessHost::~HeadlessHost() = default;

platform::Host HeadlessHost::Services(const std::string& programDirectory) {
    return {files,
            silent->processes,
            silent->starter,
            silent->clock,
            silent->dialogs,
            silent->beeper,
            silent->events,
            silent->locale,
            silent->userStore,
            silent->instance,
            programDirectory,
            "Kivu",
            ""};
}

}  // namespace kivu::bench
