#include "launch/emulator_setup.h"

#include "core/form1.h"
#include "core/raised.h"
#include "launch/emulator_program.h"
#include "launch/wait.h"
#include "support/path_forms.h"
#include "text/paths.h"
#include "text/stored_paths.h"

namespace kivu::launch {

std::string EmulatorSetup::EmulatorOf(const std::string& name) const {
    const platform::FileSystem& files = services.files;
    const std::string file = form.ConfigPath + name + files.Separator() + form.EXE + ".ini";
    const std::string stored = ini.Read(profile::keys::EmulatorPathInSetup, {.emulator = file});
    if (stored.empty()) return {};
    const std::string path =
        text::ProfilePath(form.BaseDirectory(), stored, [&](const std::string& candidate) {
            return files.FileExists(candidate) || files.IsDirectory(candidate);
        });
    const bool bareName = stored.find_first_of("/\\") == std::string::npos;
    if (!bareName || files.FileExists(path)) return path;
    const std::string found = ResolveEmulator(stored, form.AppDir, files, services.starter);
    return files.FileExists(found) ? found : path;
}

void EmulatorSetup::StartEmulator(const std::string& EName, bool ConfirmationMessagebox) {
    if (starting) return;
    const core::Raised once(starting);
    const std::string path = EmulatorOf(EName);
    if (!services.files.FileExists(path)) {
        services.log.Write("set-up of " + EName + ": no emulator at: " + path);
        SayMissing(EName, path);
        return;
    }
    const std::string file = text::GetFileNameOnly(path);
    if (ConfirmationMessagebox) {
        const auto answer = services.dialogs.MessageBox(
            EName + "-Emulator zum Einstellen jetzt starten?", file + " starten?",
            platform::Buttons::YesNo, platform::Icon::Question);
        if (answer != platform::Answer::Yes) return;
    }
    form.LoadingBtn.SetCaption("Setup:\r" + EName + "\r->" + file);
    Start(path, EName);
}

void EmulatorSetup::StartProgram(const std::string& path, const std::string& what) {
    if (starting) return;
    const core::Raised once(starting);
    Start(path, what);
}

void EmulatorSetup::Start(const std::string& path, const std::string& what) {
    const std::string file = text::GetFileNameOnly(path);
    const std::string directory = support::DirectoryOf(services.files, path);
    (void)services.files.ChangeDirectory(
        text::QuoteIfNeeded(support::ShortFileName(services.files, directory)));
    (void)services.files.ChangeDirectory(directory);
    services.log.Write("set-up of " + what + ": " + path + "; watched as: " + file);
    platform::StartRequest request;
    request.command = path;
    request.words = {path};
    request.directory = services.files.CurrentDirectory();
    request.style = platform::WindowStyle::Normal;
    request.watched = true;
    (void)services.starter.Run(request);
    form.CurrentRunninApplication = file;
    {
        // A game that started now would be taken for this one.
        const core::Raised working(form.Busy);
        WAIT(1, services.clock, pacer);
    }
    watch.EmuActiveTimer_Timer();
    form.EmuActiveTimer.SetEnabled(true);
}

// The two languages are the wrong way round here, and have always been.
void EmulatorSetup::SayMissing(const std::string& name, const std::string& path) {
    const bool english = form.CurrentLanguage == 1;
    const std::string title = english ? "Emulator not found!" : "Emulator nicht gefunden!";
    const std::string text =
        name + (english ? "-Emulator not found:" : "-Emulator wurde nicht gefunden:");
    services.dialogs.MessageBox(text + "\r\r" + path, title, platform::Buttons::Ok,
                                platform::Icon::None);
}

}  // namespace kivu::launch
