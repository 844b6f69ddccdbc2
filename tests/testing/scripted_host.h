#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/classic_colors.h"
#include "platform/host.h"
#include "testing/scripted_controllers.h"
#include "testing/scripted_display.h"
#include "testing/scripted_downloads.h"
#include "testing/scripted_starter.h"
#include "text/log_text.h"

// A host that plays by a script: nothing in it waits, shows or starts anything. Each service can be
// used by itself.
namespace kivu::testing {

// Stands still until it is set, or until the launcher rests: then it moves on by so much.
class ScriptedClock : public platform::Clock {
 public:
    platform::TimeOfDay Now() const override {
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(ofDay).count();
        return {static_cast<int>(seconds / 3600), static_cast<int>(seconds / 60 % 60),
                static_cast<int>(seconds % 60)};
    }
    std::chrono::milliseconds Steady() const override { return running += perLook; }
    void Rest(std::chrono::milliseconds duration) override {
        // A rest of nothing must not let a waiting loop run for ever.
        MoveOn(std::max(duration, std::chrono::milliseconds(1)));
        if (onRest) onRest();
    }

    // The time until then has gone by.
    void Set(platform::TimeOfDay time) {
        const std::chrono::milliseconds set = std::chrono::hours(time.hour) +
                                              std::chrono::minutes(time.minute) +
                                              std::chrono::seconds(time.second);
        MoveOn((set - ofDay + std::chrono::hours(24)) % std::chrono::hours(24));
    }
    void MoveOn(std::chrono::milliseconds duration) {
        running += duration;
        ofDay = (ofDay + duration) % std::chrono::hours(24);
    }

    // What happens in the world while the launcher rests.
    std::function<void()> onRest;
    // So much goes by between two looks at the steady clock.
    std::chrono::milliseconds perLook{0};

 private:
    std::chrono::milliseconds ofDay = std::chrono::hours(12);
    mutable std::chrono::milliseconds running = std::chrono::hours(1);
};

struct ShownBox {
    bool isInput = false;
    std::string title, text;
    platform::Buttons buttons = platform::Buttons::OkCancel;
    platform::Icon icon = platform::Icon::None;
    platform::Answer answer = platform::Answer::Cancel;
    std::string initial, input;  // of an input box
};

// Boxes take the answers that wait for them, in order. With none left, or with one that the box has
// no button for, a box gets its cancelling answer.
class ScriptedDialogs : public platform::Dialogs {
 public:
    platform::Answer MessageBox(const std::string& text, const std::string& title,
                                platform::Buttons buttons, platform::Icon icon) override {
        ShownBox box{false, title, text, buttons, icon, Cancelling(buttons), {}, {}};
        if (!answers.empty()) {
            if (HasButton(buttons, answers.front())) box.answer = answers.front();
            answers.pop_front();
        }
        shown.push_back(box);
        if (onShow) onShow();
        return box.answer;
    }
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& initial) override {
        ShownBox box;
        box.isInput = true;
        box.title = title;
        box.text = prompt;
        box.initial = initial;
        if (!inputs.empty()) {
            box.input = inputs.front();
            box.answer = platform::Answer::Ok;
            inputs.pop_front();
        }
        shown.push_back(box);
        if (onShow) onShow();
        return box.input;
    }
    void PressInBox(BoxKey key) override { pressed.push_back(key); }

    std::deque<platform::Answer> answers;
    std::deque<std::string> inputs;
    std::vector<ShownBox> shown;
    std::vector<BoxKey> pressed;   // by a controller
    std::function<void()> onShow;  // while the box is on the screen

 private:
    static platform::Answer Cancelling(platform::Buttons buttons) {
        switch (buttons) {
            case platform::Buttons::YesNo:
                return platform::Answer::No;
            case platform::Buttons::OkCancel:
                return platform::Answer::Cancel;
            default:
                return platform::Answer::Ok;
        }
    }
    static bool HasButton(platform::Buttons buttons, platform::Answer answer) {
        using platform::Answer;
        if (buttons == platform::Buttons::YesNo)
            return answer == Answer::Yes || answer == Answer::No;
        if (answer == Answer::Ok) return true;
        return buttons == platform::Buttons::OkCancel && answer == Answer::Cancel;
    }
};

class ScriptedBeeper : public platform::Beeper {
 public:
    void Beep() override { ++count; }
    int count = 0;
};

// Runs what a test wants to happen while events run; never within itself.
class ScriptedEvents : public platform::EventPump {
 public:
    void DoEvents() override {
        ++count;
        if (!onEvents || running) return;
        running = true;
        onEvents();
        running = false;
    }
    int count = 0;
    std::function<void()> onEvents;

 private:
    bool running = false;
};

class ScriptedLocale : public platform::Locale {
 public:
    std::string LanguageEnglishName() const override { return name; }
    std::string name = "English";
};

class ScriptedUserStore : public platform::UserStore {
 public:
    std::string Get(const std::string& section, const std::string& key,
                    const std::string& missing) const override {
        const auto found = values.find({section, key});
        return found == values.end() ? missing : found->second;
    }
    void Set(const std::string& section, const std::string& key,
             const std::string& value) override {
        values[{section, key}] = value;
    }
    std::string SystemValue(const std::string& root, const std::string& key,
                            const std::string& name) const override {
        const auto found = systemValues.find(root + "\\" + key + "\\" + name);
        return found == systemValues.end() ? "" : found->second;
    }

    std::map<std::pair<std::string, std::string>, std::string> values;
    std::map<std::string, std::string> systemValues;  // by root\key\name
};

class ScriptedInstance : public platform::Instance {
 public:
    bool HandOver(const std::string& title, const std::string& file) override {
        askedFor = title;
        handedOver = file;
        return earlierRuns;
    }
    void OnSummoned(std::function<void(const std::string&)> value) override {
        summon = std::move(value);
    }
    bool earlierRuns = false;
    std::string askedFor;
    std::string handedOver;
    std::function<void(const std::string&)> summon;
};

// The process list as the test wants it. A kill takes its entry away, and with one of the watched
// launch the whole launch.
class ScriptedProcesses : public platform::ProcessList {
 public:
    struct EndedProcess {
        std::int32_t id = 0;
        std::string name;  // empty: there was no such process
    };

    std::optional<std::vector<platform::ProcessEntry>> Snapshot() const override {
        if (unreadable) return std::nullopt;
        return entries;
    }
    void Kill(std::int32_t id) override {
        const auto found = Find(id);
        EndedProcess kill{id, {}};
        bool ofLaunch = false;
        if (found != entries.end()) {
            if (!found->names.empty()) kill.name = found->names.front();
            ofLaunch = found->ofLaunch;
        }
        kills.push_back(kill);
        if (immortal) return;
        std::erase_if(entries, [&](const platform::ProcessEntry& entry) {
            return entry.id == id || (ofLaunch && entry.ofLaunch);
        });
    }

    // False: the id is taken already.
    bool Add(const std::string& name, std::int32_t id) {
        if (Find(id) != entries.end()) return false;
        platform::ProcessEntry entry;
        entry.id = id;
        entry.names = {name};
        entries.push_back(std::move(entry));
        return true;
    }
    bool Remove(std::int32_t id) {
        return std::erase_if(entries, [&](const auto& entry) { return entry.id == id; }) > 0;
    }

    std::vector<platform::ProcessEntry> entries;
    std::vector<EndedProcess> kills;
    bool unreadable = false;
    bool immortal = false;  // kills have no effect

 private:
    std::vector<platform::ProcessEntry>::iterator Find(std::int32_t id) {
        return std::find_if(entries.begin(), entries.end(),
                            [&](const auto& entry) { return entry.id == id; });
    }
};

// Keeps the lines as a file would have them, without their times.
class ScriptedLog : public platform::Log {
 public:
    void Write(std::string_view text) override {
        // For all of them, so that a host can be moved.
        static std::mutex writing;
        const std::scoped_lock one(writing);
        lines.push_back(text::LogText(text));
    }
    std::vector<std::string> lines;
};

// Pictures of one colour, in the size that the test says.
class ScriptedPictures : public platform::PictureDecoder {
 public:
    std::optional<platform::DecodedPicture> Decode(std::string_view bytes, int,
                                                   const std::atomic<bool>&) override {
        ++count;
        if (!sizeOf) return std::nullopt;
        auto picture = sizeOf(bytes);
        if (picture)
            picture->pixels.assign(static_cast<std::size_t>(picture->width) *
                                       static_cast<std::size_t>(picture->height),
                                   color);
        return picture;
    }
    std::function<std::optional<platform::DecodedPicture>(std::string_view bytes)> sizeOf;
    int count = 0;
    std::uint32_t color = 0xff808080;  // of each pixel, 0xAARRGGBB
};

// At once, or when the test lets it happen.
class ScriptedBackground : public platform::Background {
 public:
    void Run(std::function<void()> work, std::function<void()> done) override {
        waiting.push_back({std::move(work), std::move(done)});
        while (inlined && !waiting.empty())
            Serve(0);
    }
    void Serve(std::size_t which) {
        Job job = std::move(waiting[which]);
        waiting.erase(waiting.begin() + static_cast<std::ptrdiff_t>(which));
        job.work();
        job.done();
    }

    struct Job {
        std::function<void()> work, done;
    };
    std::deque<Job> waiting;
    bool inlined = true;
};

// The classic desktop's.
class ScriptedColors : public platform::SystemColors {
 public:
    std::uint32_t SystemColor(int index) const override { return platform::ClassicColor(index); }
};

struct ScriptedHost {
    explicit ScriptedHost(platform::FileSystem& files) : files(files), downloads(files) {
        starter.textOf = [&files](const std::string& path) { return files.ReadFile(path); };
    }

    platform::Host Services(std::string_view programDirectory,
                            std::string_view programName = "Kivu",
                            std::string_view commandLine = {}) {
        return platform::ServicesOf(*this, programDirectory, programName, commandLine);
    }

    platform::FileSystem& files;
    ScriptedProcesses processes;
    ScriptedStarter starter;
    ScriptedClock clock;
    ScriptedDialogs dialogs;
    ScriptedBeeper beeper;
    ScriptedEvents events;
    ScriptedLocale locale;
    ScriptedUserStore userStore;
    ScriptedInstance instance;
    ScriptedLog log;
    ScriptedPictures pictureDecoder;
    ScriptedBackground background;
    ScriptedColors systemColors;
    ScriptedControllers controllers;
    ScriptedDisplay display;
    ScriptedDownloads downloads;

    platform::Build build;
    std::string runtimeDirectory;
    std::string temporaryDirectory;
};

}  // namespace kivu::testing
