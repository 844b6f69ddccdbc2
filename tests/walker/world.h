#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "driver/interpreter.h"
#include "testing/memory_file_system.h"
#include "walker/collection.h"
#include "walker/look.h"

namespace kivu::walker {

// Something that the launcher has started.
struct Started {
    bool game = false;     // through a start file or in its place; else an emulator for setting up
    std::string emulator;  // whose directory the start file lies in; empty without one
    std::string text;      // all that the command processors get to read, with "/" in paths
    std::string program;   // of an emulator that is started without a start file
};

// A mount tool or the user's script beside a start.
struct HelperRun {
    std::string text;  // all that the command processor gets to read
    bool mounts = false;
    std::size_t startsBefore = 0;  // programs that had been started since the last look at them
};

struct BoxLook {
    testing::ShownBox box;
    Look look;  // while it is on the screen
};

// One launcher over one collection, on a disk in memory.
class World {
 public:
    explicit World(const Collection& collection);
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    // A driver's command, and what it answers.
    Json Execute(const Json& command);
    // What follows the next command: a modal window that this opens takes it until it closes.
    void WillFollow(std::deque<Json> commands) { following = std::move(commands); }
    // What a modal window has been given since, each command with its answer.
    std::vector<std::pair<Json, Json>> TakeInside() { return std::exchange(inside, {}); }
    bool ModalIsOpen();
    // Another run of the program on the same disk.
    void StartAnew();

    core::Form1& Form() { return session->MainWindow(); }
    testing::ScriptedHost& Host() { return session->Host(); }
    Look Now();
    bool Ended() const { return session->ended; }

    // By its path below the program directory; empty where there is none.
    std::string Read(const std::string& path) const;
    bool Exists(const std::string& absolute) const { return disk.FileExists(absolute); }
    bool IsDirectory(const std::string& absolute) const { return disk.IsDirectory(absolute); }

    // Whether the launcher cannot write that file of its own now.
    bool Refuses(const std::string& path) const {
        return broken && path.find(*broken) != std::string::npos;
    }
    bool DiskIsBroken() const { return broken.has_value(); }

    // Run in front of each command that comes in the middle of another one.
    std::function<void(const Json& command)> onMeanwhile;

    // Since the last look at them.
    int TakeBeeps() { return std::exchange(Host().beeper.count, 0); }
    // Writes that the disk has refused.
    int TakeRefusals();
    std::vector<Started> TakeStarts() { return std::exchange(starts, {}); }
    std::vector<HelperRun> TakeHelpers() { return std::exchange(helpers, {}); }
    // Display modes that were asked for, and processes that were ended.
    std::vector<platform::DisplayMode> TakeModes() {
        return std::exchange(Host().display.sent, {});
    }
    std::size_t TakeKills() { return std::exchange(Host().processes.kills, {}).size(); }
    // In this run of the program, at any time.
    bool DiskHasRefused() const { return refusals > 0; }
    std::vector<BoxLook> TakeBoxes() { return std::exchange(boxes, {}); }

 private:
    void ServeWindow(const std::function<bool()>& isOpen);
    void Watch();
    void NoteDisk(const Json& command);
    void NoteStart(const platform::StartRequest& request);

    driver::Options options;
    testing::MemoryFileSystem disk;
    std::unique_ptr<driver::Session> session;
    std::unique_ptr<driver::Interpreter> interpreter;
    std::deque<Json> following;
    std::vector<std::pair<Json, Json>> inside;
    std::vector<Started> starts;
    std::vector<HelperRun> helpers;
    std::vector<BoxLook> boxes;
    std::optional<std::string> broken;  // what paths hold that cannot be written; empty: all
    int refusals = 0;
};

}  // namespace kivu::walker
