#include <QSocketNotifier>
#include <cstdio>
#include <fontconfig/fontconfig.h>
#include <string_view>
#include <thread>
#include <utility>

#include "app/build.h"
#include "app/command_line.h"
#include "app/desktop_host.h"
#include "core/language.h"
#include "hosts/late_controllers.h"
#include "hosts/linux/clock_linux.h"
#include "hosts/linux/controllers_sdl.h"
#include "hosts/linux/display_guard.h"
#include "hosts/linux/display_linux.h"
#include "hosts/linux/downloader_curl.h"
#include "hosts/linux/end_signals.h"
#include "hosts/linux/file_system_linux.h"
#include "hosts/linux/instance_linux.h"
#include "hosts/linux/launch_session.h"
#include "hosts/linux/locale_linux.h"
#include "hosts/linux/log_linux.h"
#include "hosts/linux/process_list_linux.h"
#include "hosts/linux/program_directory_linux.h"
#include "hosts/linux/program_starter_linux.h"
#include "hosts/linux/system_colors_linux.h"
#include "hosts/linux/user_directories.h"
#include "hosts/linux/user_store_linux.h"
#include "hosts/qt/background_qt.h"
#include "hosts/qt/beeper_qt.h"
#include "hosts/qt/dialogs_qt.h"
#include "hosts/qt/event_pump_qt.h"
#include "hosts/qt/picture_decoder_qt.h"

namespace kivu::app {

namespace {

// The arguments byte for byte: a file name need not be text.
std::vector<std::string> ArgumentsOf(int argc, char** argv) {
    return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

Options OptionsIn(std::vector<std::string>& arguments, const platform::FileSystem& files) {
    return TakeOptions(arguments,
                       [&files](const std::string& path) { return files.FileExists(path); });
}

platform::Build BuildOf(const std::string& programFile) {
    platform::Build build = ThisBuild();
    build.installed = hosts::IsInstalled(programFile);
    return build;
}

}  // namespace

// The guard of the display mode is this program as well.
std::optional<int> RunOtherJob(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--keep-display") return hosts::KeepDisplay();
    std::vector<std::string> arguments = ArgumentsOf(argc, argv);
    const Options options = OptionsIn(arguments, hosts::LinuxFileSystem());
    const bool german = core::GetSystemLanguageIsGerman(hosts::LinuxLocale());
    const auto answer = AnswerTo(options, Version(), german);
    if (!answer) return std::nullopt;
    std::FILE* stream = answer->isError ? stderr : stdout;
    const bool said = std::fputs(answer->text.c_str(), stream) >= 0 && std::fflush(stream) == 0;
    return answer->status == 0 && !said ? 1 : answer->status;
}

// The toolkit reads the machine's fonts when it first wants one: some milliseconds, in which it has
// enough else to do.
void PrepareToolkit() {
    std::thread([] { FcInit(); }).detach();
}

struct DesktopHost::Parts {
    explicit Parts(std::vector<std::string> words) : arguments(std::move(words)) {}

    std::vector<std::string> arguments;
    hosts::LinuxFileSystem files;
    Options options = OptionsIn(arguments, files);
    std::string programFile = hosts::ProgramFile();
    std::string programDirectory = options.data.empty() ? hosts::ProgramDirectory(programFile)
                                                        : DataDirectory(options.data, files);
    hosts::LaunchSession session;
    hosts::LinuxProcessList processes{session};
    hosts::LinuxProgramStarter starter{session};
    hosts::LinuxClock clock;
    hosts::LinuxLog log;
    hosts::LinuxLocale locale;
    hosts::LinuxUserStore userStore;
    hosts::LinuxInstance instance{hosts::ProgramName(programFile),
                                  files.ResolvedPath(programDirectory)};
    hosts::QtDialogs dialogs{core::GetSystemLanguageIsGerman(locale)};
    hosts::QtBeeper beeper;
    hosts::QtEventPump events;
    hosts::QtPictureDecoder pictureDecoder;
    hosts::QtBackground background;
    hosts::LinuxSystemColors systemColors;
    hosts::SdlControllers sdl{clock, log};
    hosts::LateControllers controllers{sdl};
    hosts::LinuxDisplay display;
    hosts::CurlDownloader downloads;
    platform::Build build = BuildOf(programFile);
    std::string runtimeDirectory = hosts::UserRuntimeDirectory();
    std::string temporaryDirectory = hosts::TemporaryDirectory();
    std::string commandLine;
    std::unique_ptr<QSocketNotifier> calls;
    std::unique_ptr<hosts::EndSignals> endSignals;
    std::unique_ptr<QSocketNotifier> endCalls;
};

DesktopHost::DesktopHost(int argc, char** argv)
    : parts(std::make_unique<Parts>(ArgumentsOf(argc, argv))) {
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

void DesktopHost::ListenForInstances(std::function<void(const std::string&)> summon) {
    parts->instance.OnSummoned(std::move(summon));
    const int fd = parts->instance.ListenFd();
    if (fd < 0) return;
    parts->calls = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Read);
    QObject::connect(parts->calls.get(), &QSocketNotifier::activated, parts->calls.get(),
                     [this] { parts->instance.Serve(); });
}

void DesktopHost::ListenForEnd(std::function<void()> end) {
    parts->endSignals = std::make_unique<hosts::EndSignals>();
    const int fd = parts->endSignals->WaitFd();
    if (fd < 0) return;
    parts->endCalls = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Read);
    QObject::connect(parts->endCalls.get(), &QSocketNotifier::activated, parts->endCalls.get(),
                     [this, end = std::move(end)] {
                         if (parts->endSignals->Take()) end();
                     });
}

void DesktopHost::AbandonDownloads() {
    parts->downloads.Abandon();
}

}  // namespace kivu::app
