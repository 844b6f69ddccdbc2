#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/busy_state.h"
#include "core/form1.h"
#include "library/file_scan_recursive.h"
#include "library/game_lists.h"
#include "library/scan_source.h"
#include "profile/ini.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_ports.h"
#include "testing/scripted_host.h"

namespace kivu::library {

// Every title that the window has had.
class Titles : public forms::Observer {
 public:
    explicit Titles(forms::Form& form) : form(form) { form.SetObserver(this); }
    ~Titles() override { form.SetObserver(nullptr); }
    void Changed(forms::Control& control, forms::Aspect aspect) override {
        if (&control == &form && aspect == forms::Aspect::text) seen.push_back(form.Caption());
    }
    std::vector<std::string> seen;

 private:
    forms::Form& form;
};

// The lists over a disk in memory.
struct GameListsFixture : ::testing::Test {
    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    ScanSource source{files};
    core::Form1 form{forms::Toolkit{nullptr, nullptr, &source}};
    profile::Ini ini{files};
    core::EventPacer pacer{host.events, host.clock};
    core::BusyState busy{form, host.events};
    FileScanRecursive scanner{form, source, host.beeper, pacer};
    kivu::testing::QuietChoice choice;
    kivu::testing::QuietSwitching switching;
    GameLists lists{form, ini, files, busy, pacer, scanner, {choice, switching}};
};

}  // namespace kivu::library
