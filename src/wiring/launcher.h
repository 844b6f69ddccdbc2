#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/form1.h"
#include "forms/types.h"
#include "platform/host.h"

namespace kivu::wiring {

// The whole launcher without a screen: it builds every routine over one main window and one host,
// and joins them.
class Launcher {
 public:
    // `measure` may be null; `endProgram` is asked to end the process at once, and may return where
    // a test plays the host. Without `windows` a modal window is gone at once.
    Launcher(platform::Host host, const forms::TextMeasure* measure,
             std::function<void()> endProgram, forms::WindowHost* windows = nullptr);
    ~Launcher();
    Launcher(const Launcher&) = delete;
    Launcher& operator=(const Launcher&) = delete;

    core::Form1& MainWindow();
    // The main window's Load event. The window may be shown afterwards, unless the program has
    // ended.
    void Start();
    // A later instance was given this file to start and hands it over.
    void StartHandedFile(const std::string& path);
    // The session is about to end; the launcher goes on until it does.
    void SessionEnds();
    // It is to end now, and nobody is asked.
    void EndFromOutside();

    // The routines by subsystem, for who wants to call one by its name.
    struct Routines;
    Routines& All() { return *routines; }

 private:
    std::unique_ptr<Routines> routines;
};

}  // namespace kivu::wiring
