#include "launch/game_launch.h"

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "core/raised.h"
#include "launch/emulator_program.h"
#include "launch/refused_name.h"
#include "launch/uae_files.h"
#include "launch/wait.h"
#include "library/find_game.h"
#include "library/short_names.h"
#include "support/path_forms.h"
#include "text/command_line.h"
#include "text/paths.h"
#include "text/stored_paths.h"
#include "text/string_ops.h"
#include "text/text.h"

namespace kivu::launch {

namespace keys = profile::keys;

// What others may know of a launch while it lasts.
class GameLaunch::Underway {
 public:
    Underway(core::LaunchState& state, const std::string& path) : state(state) {
        state.StartingGame = path;
        state.StartCanBeGivenUp = true;
        state.StartGivenUp = false;
    }
    ~Underway() {
        state.StartingGame.clear();
        state.StartCanBeGivenUp = false;
    }
    Underway(const Underway&) = delete;
    Underway& operator=(const Underway&) = delete;

 private:
    core::LaunchState& state;
};

void GameLaunch::LaunchBtn_Click() {
    // A switch or a rescan that is under way goes on with the lists.
    if (form.Busy) return;
    const std::string path = form.UAE_FULL.List(form.UAE_Short.ListIndex());
    // An emulator's window must not come up behind the launcher's.
    routines.alwaysOnTop.SetToNormal();
    form.EmuListbox.SetVisible(false);
    StartGame(path);
    form.EmuListbox.SetVisible(true);
}

void GameLaunch::StartGame(const std::string& GamePath) {
    if (launching) return;
    const core::Raised once(launching);
    const core::Raised working(form.Busy);
    const std::string notedTitle = form.Caption();
    forms::Control* const focus = form.Focus();
    Run run;
    run.path = text::RemoveQuotes(GamePath);
    // A name may end in a blank; trimmed, it would be another one.
    if (services.files.FileExists(GamePath)) run.path = GamePath;
    const Underway underway(form, run.path);
    Prepare(run);
    BuildParameters(run);
    library::FindGameInFullList(form, busy, pacer, run.path);
    if (!GameExists(run)) return ReturnToLists(focus);
    if (run.useMasterConfig) routines.uaeFiles.WriteStartConfiguration(run.windowsPaths);
    if (!WriteStartFile(run)) return ReturnToLists(focus);
    busy.MeCaption("Spiel Läuft");
    pacer.DoEvents();
    const std::string found = run.direct ? "" : FindStartFile(form.TmpBatName);
    if (!found.empty()) form.TmpBatName = found;
    form.TmpBatName =
        "\"" + text::RemoveQuotes(support::LongFileName(services.files, form.TmpBatName)) + "\"";
    EnterEmulatorDirectory(run);
    if (!form.StartGivenUp && !ShowLoadingAndMount(run)) form.StartGivenUp = true;
    form.StartCanBeGivenUp = false;
    if (form.StartGivenUp) return GiveUp(run, notedTitle, focus);
    form.CurrentRunninApplication = WatchedName(run.emulator);
    LogRun(run);
    StartEmulatorProgram(run);
    (void)services.files.ChangeDirectory(form.AppDir);
    FinishStart(notedTitle);
}

// The user has stopped it: what the last game has left to be watched or ended stays that.
void GameLaunch::GiveUp(const Run& run, const std::string& notedTitle, forms::Control* focus) {
    services.log.Write("given up: " + run.path);
    (void)services.files.ChangeDirectory(form.AppDir);
    busy.MeCaption(notedTitle);
    ReturnToLists(focus);
}

// Nothing has been started: the window is as it was, with the focus where it was.
void GameLaunch::ReturnToLists(forms::Control* focus) {
    // Of another game that runs the window goes on telling.
    if (form.EmulatorRuns()) return;
    routines.choice.LeaveChoice();
    busy.HideAll(true);
    routines.front.RefreshList();
    if (focus) focus->SetFocus();
    if (form.Focus()) return;
    for (forms::ListBox* list :
         {&form.FavoritenListe, &form.WIthoutDoubles, &form.UAE_Short, &form.SuchErgList}) {
        if (list->Visible()) return list->SetFocus();
    }
}

void GameLaunch::Prepare(Run& run) {
    const platform::FileSystem& files = services.files;
    run.emulator = ResolveEmulator(form.txtWinUAEExe.Text(), form.AppDir, files, services.starter);
    run.useQuote = ini.Read(keys::UseQuote, core::ProfilesOf(form));
    run.argument = text::QuoteIfNeeded(run.useQuote >= 1 ? support::LongFileName(files, run.path)
                                                         : support::ShortFileName(files, run.path));
    form.TmpBatName = text::RemoveQuotes(form.TmpBatName);
    routines.alwaysOnTop.SetToNormal();
    // The one tab that the busy state leaves; it would stand there alone.
    form.Label4.SetVisible(false);
    busy.HideAll(false);
    hooks.SetVorschau();
    // Relative paths in the profile are meant from here.
    (void)services.files.ChangeDirectory(form.AppDir);
    std::string entry = run.argument;
    Add_CURRENT_PROGRAM_STARTED(entry);
    form.LoadingBtn.SetCaption(run.argument + "...");
    routines.alwaysOnTop.SetWindowBackToNormal();
    std::string title = text::GetFileNameOnly(run.path);
    const std::size_t length = text::CodePointCount(title);
    if (length > 4) title.resize(text::CodePointOffset(title, length - 4));
    form.CURRENT_PROGRAM_STARTED = title;
}

void GameLaunch::BuildParameters(Run& run) {
    run.windowsPaths = services.starter.UsesShell() && text::IsWindowsProgram(run.emulator);
    run.parameters = StartParameters(run.windowsPaths);
    run.parameters.AppendTyped(ini.Read(keys::WinUAE_ConfigParameter, core::ProfilesOf(form)));
    run.parameters.Pad();
    run.useMasterConfig = ini.Read(keys::WinUAE_UseMasterConfig, core::ProfilesOf(form)) == 1;
    if (run.useMasterConfig) {
        const std::string configuration =
            support::ShortFileName(services.files, form.StartScriptName);
        run.parameters.AppendPath(configuration, configuration);
    }
    run.parameters.Pad();
    run.parameters.AppendTyped(ini.Read(keys::EmulatorParameter, core::ProfilesOf(form)));
    run.parameters.Pad();
    AppendGame(run);
    run.parameters.Pad();
}

void GameLaunch::AppendGame(Run& run) {
    if (ini.Read(keys::EmulatorParameterAddDiskPath, core::ProfilesOf(form)) == 0) return;
    if (ini.Read(keys::EmulatorParameterAddDiskPathWithoutPath, core::ProfilesOf(form)) == 0) {
        run.parameters.AppendPath(run.argument, run.path);
        return;
    }
    std::string name = text::replaceall(text::GetFileNameOnly(run.argument), "\"", "");
    // Exactly 1, where the path itself is quoted from 1 upward.
    if (run.useQuote == 1) name = text::QuoteIfNeeded(name);
    run.parameters.AppendPath(name, text::GetFileNameOnly(run.path));
}

bool GameLaunch::GameExists(const Run& run) {
    if (services.files.FileExists(run.path) || services.files.FileExists(run.argument)) return true;
    services.log.Write("not launched, no such file: " + run.path);
    services.dialogs.MessageBox("File not found:\r" + run.argument, "Game - File not found!",
                                platform::Buttons::Ok, platform::Icon::Information);
    return false;
}

// False: no start can be made safe, and the user has been told.
bool GameLaunch::WriteStartFile(Run& run) {
    platform::FileSystem& files = services.files;
    (void)files.DeleteFile(form.TmpBatName);
    pacer.DoEvents();
    if (files.FileExists(form.TmpBatName)) {
        (void)files.DeleteFile(support::ShortFileName(files, form.TmpBatName));
        pacer.DoEvents();
    }
    const std::string directory = support::DirectoryOf(files, run.emulator);
    if (services.starter.UsesShell()) return WriteShellStartFile(run, directory);
    bool safe = run.parameters.IsBatchSafe();
    const std::string cd =
        BatchWord(text::QuoteIfNeeded(support::ShortFileName(files, directory)), safe);
    const std::string program = BatchWord(text::QuoteIfNeeded(run.emulator), safe);
    const std::string content =
        BatchStartFile(cd, StartCommand(program, run.parameters.BatchText()));
    // A batch file's line goes to a second command processor, which reads it again and may take the
    // outer quotes off it: nothing that is quoted or doubled here is safe there.
    if (!text::IsProgramFile(run.emulator))
        safe &= run.parameters.HasPlainPaths() && text::IsPlainForCmd(run.emulator);
    const auto bytes = services.starter.StartFileBytes(content);
    run.direct = !safe || !bytes;
    const bool written = !run.direct && !files.WriteFile(form.TmpBatName, *bytes);
    run.startFileFailed = !written || !files.FileExists(form.TmpBatName);
    return true;
}

bool GameLaunch::WriteShellStartFile(Run& run, const std::string& directory) {
    bool safe = true;
    const std::vector<std::string> words = HostWords(run, safe);
    if (run.companionFailed) {
        // What an earlier start has left there names another game.
        LogRefusal(run);
        TellOfMissingStartFile(CompanionName());
        return false;
    }
    if (!safe) {
        LogRefusal(run);
        services.dialogs.MessageBox(RefusedNameText(form, run.path),
                                    form.Say("Start nicht möglich", "Start not possible"),
                                    platform::Buttons::Ok, platform::Icon::Warning);
        return false;
    }
    const auto failed = services.files.WriteFile(form.TmpBatName, ShellStartFile(directory, words));
    run.startFileFailed = failed || !services.files.FileExists(form.TmpBatName);
    return true;
}

// The emulator and its arguments as a POSIX host starts them. Windows programs run through Wine; a
// batch file among them gets a batch file of its own, in which nothing of a path is acted upon.
std::vector<std::string> GameLaunch::HostWords(Run& run, bool& safe) {
    std::vector<std::string> words = run.parameters.Words();
    if (!text::IsWindowsProgram(run.emulator)) {
        words.insert(words.begin(), run.emulator);
        return words;
    }
    const bool batch = !text::ToLower(run.emulator).ends_with(".exe");
    if (!batch) {
        words.insert(words.begin(), {"wine", run.emulator});
        return words;
    }
    platform::FileSystem& files = services.files;
    const std::string directory = text::ToWinePath(support::DirectoryOf(files, run.emulator));
    // What is doubled or quoted here is read again by the batch file that it is handed to, and Wine
    // replaces a "%NAME%" in it once more.
    safe = run.parameters.IsBatchSafe() && run.parameters.HasPlainPaths() &&
           text::IsPlainForCmd(run.emulator);
    const std::string cd = BatchWord(text::QuoteIfNeeded(directory), safe);
    const std::string program =
        BatchWord(text::QuoteIfNeeded(text::ToWinePath(run.emulator)), safe);
    const std::string companion = CompanionName();
    const std::string content =
        BatchStartFile(cd, program + " " + std::string(text::Trim(run.parameters.BatchText())));
    // The command processor reads its own path too.
    const std::string path = text::ToWinePath(companion);
    if (text::EscapeForCmd(path) != path) safe = false;
    run.companionFailed = safe && files.WriteFile(companion, content);
    return {"wine", "cmd", "/c", path};
}

std::string GameLaunch::CompanionName() const {
    return form.StartPfad + form.EXE + "_tmp_wine.bat";
}

void GameLaunch::EnterEmulatorDirectory(const Run& run) {
    const std::string directory = support::DirectoryOf(services.files, run.emulator);
    (void)services.files.ChangeDirectory(support::ShortFileName(services.files, directory));
    (void)services.files.ChangeDirectory(directory);
}

bool GameLaunch::ShowLoadingAndMount(const Run& run) {
    form.SplashSeconds = ini.Read(keys::SplashTimer, core::ProfilesOf(form));
    if (form.SplashSeconds > 0) hooks.ShowLoadingInfo();
    if (ini.Read(keys::AutoMountDeamonTool, core::ProfilesOf(form)) <= 0) return true;
    const std::string noted = form.LoadingBtn.Caption();
    form.LoadingBtn.SetCaption("Deamon Tools..");
    pacer.DoEvents();
    const bool goOn = !form.StartGivenUp && routines.helpers.MountGameImage(run.path);
    form.LoadingBtn.SetCaption(noted);
    return goOn;
}

// What the start file says, which is all that the host's starter is given.
void GameLaunch::LogRun(const Run& run) const {
    services.log.Write("launch: " + run.path);
    services.log.Write("emulator: " + text::QuoteIfNeeded(run.emulator) + " " +
                       std::string(text::Trim(run.parameters.Text())) +
                       "; watched as: " + form.CurrentRunninApplication);
    if (!services.files.FileExists(run.emulator))
        services.log.Write("no emulator at: " + run.emulator);
    if (run.direct)
        services.log.Write("started without a start file, which could not take these names");
}

void GameLaunch::LogRefusal(const Run& run) const {
    const std::string why = run.companionFailed ? "its batch file is not there: " + CompanionName()
                                                : "no batch file can take this name: " + run.path;
    services.log.Write("not launched, " + why);
}

void GameLaunch::StartEmulatorProgram(Run& run) {
    platform::StartRequest request;
    request.watched = true;
    request.directory = services.files.CurrentDirectory();
    if (!run.startFileFailed) {
        request.command = form.TmpBatName;
        request.words = {text::RemoveQuotes(form.TmpBatName)};
        request.style = platform::WindowStyle::Minimized;
        request.startFile = true;
        (void)services.starter.Run(request);
        return;
    }
    if (!run.direct) services.beeper.Beep();
    request.command =
        text::QuoteIfNeeded(run.emulator) + " " + std::string(text::Trim(run.parameters.Text()));
    bool safe = true;
    // A host that starts by the command text needs no words, nor any file for them.
    if (services.starter.UsesShell()) request.words = HostWords(run, safe);
    const bool program = text::ToLower(run.emulator).find(".exe") != std::string::npos;
    request.style = program ? platform::WindowStyle::Maximized : platform::WindowStyle::Minimized;
    if (safe && !run.companionFailed) {
        (void)services.starter.Run(request);
    } else {
        LogRefusal(run);
    }
}

void GameLaunch::FinishStart(const std::string& notedTitle) {
    const int exitButton = ini.Read(keys::UseJoystickExitbuttonInLaunch, core::ProfilesOf(form));
    const int joystick = ini.Read(keys::UseJoystickInLaunch, core::ProfilesOf(form));
    const bool endsByButton = exitButton >= 1 && joystick >= 1;
    if (!endsByButton) hooks.JoystickEnable(false);
    if (form.SplashSeconds > 0) hooks.ShowLoadingInfo();
    form.StartGraceTicks = 3;
    form.EmuListbox.SetVisible(false);
    form.EmuActiveTimer.SetEnabled(true);
    form.GameIsRunning = true;
    if (endsByButton) hooks.WatchExitButton();
    if (ini.Read(keys::RunVBS_Script, core::ProfilesOf(form)) > 0) {
        form.LoadingBtn.SetCaption("Gamestart..");
        WAIT(1, services.clock, pacer);
        RunScriptOfGame();
    }
    // In its quotes the path names no file: the start file stays until the next launch, as a look
    // at what was started.
    (void)services.files.DeleteFile(form.TmpBatName);
    pacer.DoEvents();
    form.SetCaption(notedTitle);
}

// The user may have ended the game meanwhile: what the script types would go to whatever is in
// front.
void GameLaunch::RunScriptOfGame() {
    if (form.StartGivenUp) {
        services.log.Write("start script not run, the game has been ended");
        return;
    }
    form.LoadingBtn.SetCaption("Running Startscript.vbs");
    routines.helpers.RunStartScript();
}

void GameLaunch::SetCurrentRunninApplication(const std::string& NewAppPAth) {
    form.CurrentRunninApplication = NewAppPAth;
}

std::string GameLaunch::Add_CURRENT_PROGRAM_STARTED(std::string& name) {
    name = library::CutShortName(support::LongFileName(services.files, name), ")", true);
    const bool first = form.CURRENT_PROGRAM_STARTED.empty();
    if (!first && text::CodePointCount(name) >= 30) name.resize(text::CodePointOffset(name, 29));
    if (!first) form.CURRENT_PROGRAM_STARTED += '\r';
    form.CURRENT_PROGRAM_STARTED += name;
    return {};
}

const std::string& GameLaunch::Get_CURRENT_PROGRAM_STARTED() const {
    return form.CURRENT_PROGRAM_STARTED;
}

std::string GameLaunch::FindStartFile(const std::string& path) {
    const platform::FileSystem& files = services.files;
    std::string current(text::Trim(path));
    if (current.empty() || files.FileExists(current)) return current;
    const std::string shortName = support::ShortFileName(files, current);
    for (const std::string& form :
         {support::LongFileName(files, current), shortName, text::QuoteIfNeeded(shortName)}) {
        if (!files.FileExists(form)) continue;
        return form;
    }
    TellOfMissingStartFile(current);
    return current;
}

void GameLaunch::TellOfMissingStartFile(const std::string& path) {
    services.dialogs.MessageBox("Bat - Start-File not found: \r" + path, core::defaultTitle,
                                platform::Buttons::Ok, platform::Icon::None);
}

}  // namespace kivu::launch
