#pragma once

#include <string>
#include <utility>

#include "core/hook.h"
#include "core/ports.h"
#include "platform/beeper.h"
#include "platform/file_system.h"
#include "platform/instance.h"
#include "platform/log.h"
#include "support/always_on_top.h"

namespace kivu::core {
struct Form1;
class ShutDown;
}  // namespace kivu::core

namespace kivu::launch {

// What a later instance hands over of its command line: the path of one file, made absolute from
// the current directory. Empty where there is none to start (a text with "?" asks for help).
std::string FileToHandOver(const std::string& commandLine, const platform::FileSystem& files);

// Hands the command line's file over to an earlier instance of the launcher, and starts one that a
// later instance has handed over. The launcher stays open.
class HandedFile {
 public:
    struct Hooks {
        core::Hook<bool()> BoxIsOpen{"HandedFile.BoxIsOpen"};
    };
    struct Services {
        const platform::FileSystem& files;
        platform::Beeper& beeper;
        platform::Instance& instance;
        platform::Log& log;
    };
    struct Routines {
        core::EmulatorChoice& choice;
        core::Launching& launching;
        core::ShutDown& shutDown;
        support::AlwaysOnTop& alwaysOnTop;
    };

    HandedFile(core::Form1& form, Services services, Routines routines, std::string commandLine)
        : form(form), services(services), routines(routines), commandLine(std::move(commandLine)) {}

    // True: an earlier instance runs. It comes to the front and has been handed the file of this
    // one's command line; this one has ended.
    bool HandOver();

    // With the emulator that is loaded, as its own command line would. A beep and nothing else
    // while none is loaded, a game runs, a box is open or the launcher is busy. The text comes from
    // outside: what is no absolute path is not taken.
    void StartHandedFile(const std::string& path);

    Hooks hooks;

 private:
    bool IsFree() const;

    core::Form1& form;
    Services services;
    Routines routines;
    std::string commandLine;
};

}  // namespace kivu::launch
