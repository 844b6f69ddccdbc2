#include <QCoreApplication>

#include "app/build.h"
#include "app/command_line.h"
#include "app/desktop_host.h"
#include "core/language.h"
#include "hosts/late_controllers.h"
#include "hosts/qt/background_qt.h"
#include "hosts/qt/beeper_qt.h"
#include "hosts/qt/dialogs_qt.h"
#include "hosts/qt/event_pump_qt.h"
#include "hosts/qt/picture_decoder_qt.h"
#include "hosts/windows/clock_windows.h"
#include "hosts/windows/controllers_dinput.h"
#include "hosts/windows/display_windows.h"
#include "hosts/windows/downloader_winhttp.h"
#include "hosts/windows/end_events_windows.h"
#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/instance_windows.h"
#include "hosts/windows/locale_windows.h"
#include "hosts/windows/log_windows.h"
#include "hosts/windows/process_list_windows.h"
#include "hosts/windows/program_directory_windows.h"
#include "hosts/windows/program_starter_windows.h"
#include "hosts/windows/standard_stream.h"
#include "hosts/windows/system_colors_windows.h"
#include "hosts/windows/user_store_windows.h"

namespace kivu::app {

namespace {

// The arguments as Windows holds them: those of main are in the ANSI code page, and a file name
// need not be. Without those of the toolkit, once that is there.
std::vector<std::string> WideArguments() {
    if (QCoreApplication::instance() == nullptr) return hosts::ProgramArguments();
    std::vector<std::string> arguments;
    for (const QString& argument : QCoreApplication::arguments().mid(1))
        arguments.push_back(argument.toStdString());
    return arguments;
}

Options OptionsIn(std::vector<std::string>& arguments, const platform::FileSystem& files) {
    return TakeOptions(arguments,
                       [&files](const std::string& path) { return files.FileExists(path); });
}

// In a directory of the user's choice the program's own file need not lie.
platform::Build BuildOf(const Options& options) {
    platform::Build build = ThisBuild();
    build.replacesItself = options.data.empty();
    return build;
}

}  // namespace

// The system puts a display mode back by itself.
std::optional<int> RunOtherJob(int, char**) {
    std::vector<std::string> arguments = WideArguments();
    const Options options = OptionsIn(arguments, hosts::WindowsFileSystem());
    const bool german = core::GetSystemLanguageIsGerman(hosts::WindowsLocale());
    const auto answer = AnswerTo(options, Version(), german);
    if (!answer) return std::nullopt;
    hosts::StandardStream stream(answer->isError ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE);
    stream.Write(answer->text);
    return answer->status;
}

void PrepareToolkit() {
}

struct DesktopHost::Parts {
    std::vector<std::string> arguments = WideArguments();
    hosts::WindowsFileSystem files;
    Options options = OptionsIn(arguments, files);
    std::string programFile = hosts::ProgramFile();
    std::string programDirectory = options.data.empty() ? hosts::ProgramDirectory(programFile)
                                                        : DataDirectory(options.data, files);
    hosts::WindowsProcessList processes;
    hosts::WindowsProgramStarter starter;
    hosts::WindowsClock clock;
    hosts::WindowsLog log;
    hosts::WindowsLocale locale;
    hosts::WindowsUserStore userStore;
    hosts::WindowsInstance instance{hosts::ProgramName(programFile),
                                    files.ResolvedPath(programDirectory)};
    hosts::QtDialogs dialogs{core::GetSystemLanguageIsGerman(locale)};
    hosts::QtBeeper beeper;
    hosts::QtEventPump events;
    hosts::QtPictureDecoder pictureDecoder;
    hosts::QtBackground background;
    hosts::WindowsSystemColors systemColors;
    hosts::DirectInputControllers directInput{clock, log};
    hosts::LateControllers controllers{directInput};
    hosts::WindowsDisplay display;
    hosts::WinHttpDownloader downloads;
    platform::Build build = BuildOf(options);
    std::string runtimeDirectory;
    std::string temporaryDirectory = hosts::TemporaryDirectory();
    std::string commandLine;
};

DesktopHost::DesktopHost(int, char**) : parts(std::make_unique<Parts>()) {
    if (parts->options.log) parts->log.AlsoToStandardError();
    parts->commandLine =
        CommandLineText(parts->arguments, parts->files.CurrentDirectory(),
                        [this](const std::string& path) { return parts->files.FileExists(path); });
}

DesktopHost::~DesktopHost() = default;

platform::Host DesktopHost::Services() {
    return platform::ServicesOf(*parts, parts->programDirectory,
                                hosts::ProgramName(parts->programFile), parts->commandLine);
}

void DesktopHost::WindowStands() {
    parts->controllers.Wake();
}

// The toolkit's own event loop serves the messages of later instances.
void DesktopHost::ListenForInstances(std::function<void(const std::string&)> summon) {
    parts->instance.OnSummoned(std::move(summon));
}

void DesktopHost::ListenForEnd(std::function<void()> end) {
    hosts::ListenForConsoleEnd(
        [end = std::move(end)] { QMetaObject::invokeMethod(qApp, end, Qt::QueuedConnection); });
}

// The system takes them away with the process.
void DesktopHost::AbandonDownloads() {
}

}  // namespace kivu::app
