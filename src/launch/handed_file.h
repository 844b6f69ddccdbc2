#pragma once

#include <string>

#include "core/form1.h"
#include "core/hook.h"
#include "platform/beeper.h"
#include "platform/file_system.h"
#include "platform/log.h"

namespace kivu::launch {

// What a later instance hands over of its command line: the path of one file, made absolute from
// the current directory. Empty where there is none to start (a text with "?" asks for help).
std::string FileToHandOver(const std::string& commandLine, const platform::FileSystem& files);

// Starts a file that a later instance of the launcher has handed over. The launcher stays open.
class HandedFile {
 public:
    struct Hooks {
        core::Hook<void()> LeaveEmulatorBox;
        core::Hook<void()> SetToNormal;
        core::Hook<void(const std::string&)> StartGame;
        core::Hook<bool()> BoxIsOpen;
    };

    HandedFile(core::Form1& form, platform::Beeper& beeper, platform::Log& log)
        : form(form), beeper(beeper), log(log) {}

    // With the emulator that is loaded, as its own command line would. A beep and nothing else
    // while none is loaded, a game runs, a box is open or the launcher is busy. The text comes from
    // outside: what is no absolute path is not taken.
    void StartHandedFile(const std::string& path);

    Hooks hooks;

 private:
    bool IsFree() const;

    core::Form1& form;
    platform::Beeper& beeper;
    platform::Log& log;
};

}  // namespace kivu::launch
