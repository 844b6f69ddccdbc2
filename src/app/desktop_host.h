#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/host.h"

namespace kivu::app {

// The program may be started by itself for a small job beside the launcher, or by a user who only
// asks it something: the exit code when that is done. Empty: it is to be the launcher. To be called
// before anything else, and again without what the toolkit has taken, which may have stood in front
// of what was asked.
std::optional<int> RunOtherJob(int argc, char** argv);

// Begins on another core what the toolkit would wait for. To be called first.
void PrepareToolkit();

// Everything the launcher asks of the machine it runs on. One file for each host implements it.
// Needs a QApplication.
class DesktopHost {
 public:
    // As given to main, without the arguments that the toolkit has taken.
    DesktopHost(int argc, char** argv);
    ~DesktopHost();

    platform::Host Services();
    // What the start has not waited for may come now.
    void WindowStands();
    // Listens for later instances from now on; `summon` is called when one asks this to come up,
    // with the file that it was given to start, if any.
    void ListenForInstances(std::function<void(const std::string& file)> summon);
    // `end` is called when somebody asks the process to end: by a signal, or by closing its
    // console.
    void ListenForEnd(std::function<void()> end);
    // The process ends, whatever is under way: no part of a download stays behind.
    void AbandonDownloads();

 private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};

}  // namespace kivu::app
