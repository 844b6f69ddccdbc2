#include <QSocketNotifier>
#include <fontconfig/fontconfig.h>
#include <thread>

#include "app/command_line.h"
#include "app/desktop_host.h"
#include "core/language.h"
#include "platform/linux/clock_linux.h"
#include "platform/linux/file_system_linux.h"
#include "platform/linux/instance_linux.h"
#include "platform/linux/launch_session.h"
#include "platform/linux/locale_linux.h"
#include "platform/linux/process_list_linux.h"
#include "platform/linux/program_directory_linux.h"
#include "platform/linux/program_starter_linux.h"
#include "platform/linux/user_store_linux.h"
#include "platform/qt/beeper_qt.h"
#include "platform/qt/dialogs_qt.h"
#include "platform/qt/event_pump_qt.h"

namespace kivu::app {

// The toolkit reads the machine's fonts when it first wants one: some milliseconds, in which it has
// enough else to do.
void PrepareToolkit() {
    std::thread([] { FcInit(); }).detach();
}

struct DesktopHost::Parts {
    std::string programFile = platform::ProgramFile();
    platform::LaunchSession session;
    platform::LinuxFileSystem files;
    platform::LinuxProcessList processes{session};
    platform::LinuxProgramStarter starter{session};
    platform::LinuxClock clock;
    platform::LinuxLocale locale;
    platform::LinuxUserStore userStore;
    platform::LinuxInstance instance{platform::ProgramName(programFile)};
    platform::QtDialogs dialogs{core::GetSystemLanguageIsGerman(locale)};
    platform::QtBeeper beeper;
    platform::QtEventPump events;
    std::string commandLine;
    std::unique_ptr<QSocketNotifier> calls;
};

// The arguments byte for byte: a file name need not be text.
DesktopHost::DesktopHost(int argc, char** argv) : parts(std::make_unique<Parts>()) {
    parts->commandLine =
        CommandLineText({argv + 1, argv + argc}, parts->files.CurrentDirectory(),
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

void DesktopHost::ListenForInstances(std::function<void(const std::string&)> summon) {
    parts->instance.OnSummoned(std::move(summon));
    const int fd = parts->instance.ListenFd();
    if (fd < 0) return;
    parts->calls = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Read);
    QObject::connect(parts->calls.get(), &QSocketNotifier::activated, parts->calls.get(),
                     [this] { parts->instance.Serve(); });
}

}  // namespace kivu::app
