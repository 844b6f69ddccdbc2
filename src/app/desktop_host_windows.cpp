#include <QCoreApplication>

#include "app/command_line.h"
#include "app/desktop_host.h"
#include "core/language.h"
#include "platform/qt/beeper_qt.h"
#include "platform/qt/dialogs_qt.h"
#include "platform/qt/event_pump_qt.h"
#include "platform/windows/clock_windows.h"
#include "platform/windows/file_system_windows.h"
#include "platform/windows/instance_windows.h"
#include "platform/windows/locale_windows.h"
#include "platform/windows/process_list_windows.h"
#include "platform/windows/program_directory_windows.h"
#include "platform/windows/program_starter_windows.h"
#include "platform/windows/user_store_windows.h"

namespace kivu::app {

namespace {

// The arguments as Windows holds them: those of main are in the ANSI code page, and a file name
// need not be.
std::vector<std::string> WideArguments() {
    std::vector<std::string> arguments;
    for (const QString& argument : QCoreApplication::arguments().mid(1))
        arguments.push_back(argument.toStdString());
    return arguments;
}

}  // namespace

void PrepareToolkit() {
}

struct DesktopHost::Parts {
    std::string programFile = platform::ProgramFile();
    platform::WindowsFileSystem files;
    platform::WindowsProcessList processes;
    platform::WindowsProgramStarter starter;
    platform::WindowsClock clock;
    platform::WindowsLocale locale;
    platform::WindowsUserStore userStore;
    platform::WindowsInstance instance{platform::ProgramName(programFile)};
    platform::QtDialogs dialogs{core::GetSystemLanguageIsGerman(locale)};
    platform::QtBeeper beeper;
    platform::QtEventPump events;
    std::string commandLine;
};

DesktopHost::DesktopHost(int, char**) : parts(std::make_unique<Parts>()) {
    parts->commandLine =
        CommandLineText(WideArguments(), parts->files.CurrentDirectory(),
                        [this](const std::string& path) { return parts->files.FileExists(path); });
}

DesktopHost::~DesktopHost() = default;

platform::Host DesktopHost::Services() {
    return {parts->files,
            parts->processes,
            parts->starter,
            parts->clock,
            parts->dialogs,
            parts->beeper,
            parts->events,
            parts->locale,
            parts->userStore,
            parts->instance,
            platform::ProgramDirectory(parts->programFile),
            platform::ProgramName(parts->programFile),
            parts->commandLine};
}

// The toolkit's own event loop serves the messages of later instances.
void DesktopHost::ListenForInstances(std::function<void(const std::string&)> summon) {
    parts->instance.OnSummoned(std::move(summon));
}

}  // namespace kivu::app
