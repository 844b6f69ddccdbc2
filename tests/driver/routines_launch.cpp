// Routines of the launch, the watch and the process list.

#include <array>

#include "driver/routines.h"
#include "launch/wait.h"
#include "wiring/routines.h"

namespace kivu::driver {

using std::optional;
using std::string;

namespace {

// By the numbers that programs are started with.
platform::WindowStyle StyleOf(int style) {
    using platform::WindowStyle;
    constexpr std::array styles{WindowStyle::Hidden, WindowStyle::Normal, WindowStyle::Minimized,
                                WindowStyle::Maximized, WindowStyle::NormalNoFocus};
    if (style == 6) return WindowStyle::MinimizedNoFocus;
    if (style < 0 || style >= static_cast<int>(styles.size()))
        throw CommandError("a window style is 0 to 4 or 6");
    return styles.at(static_cast<std::size_t>(style));
}

void AddStartRoutines(RoutineTable& table, Session& session) {
    auto& launch = session.Routines().gameLaunch;
    table.push_back(Bind("StartGame", [&launch](string path) { launch.StartGame(path); }));
    table.push_back(Bind("LaunchBtn_Click", [&launch] { launch.LaunchBtn_Click(); }));
    table.push_back(
        Bind("FindStartFile", [&launch](string path) { return launch.FindStartFile(path); }));
    table.push_back(Bind("SetCurrentRunninApplication",
                         [&launch](string name) { launch.SetCurrentRunninApplication(name); }));
    table.push_back(Bind("Add_CURRENT_PROGRAM_STARTED", [&launch](string name) {
        Outcome outcome{launch.Add_CURRENT_PROGRAM_STARTED(name)};
        outcome.changed["name"] = name;
        return outcome;
    }));
    table.push_back(Bind("Get_CURRENT_PROGRAM_STARTED",
                         [&launch] { return launch.Get_CURRENT_PROGRAM_STARTED(); }));
    auto& setup = session.Routines().emulatorSetup;
    table.push_back(
        Bind("StartEmulator", [&setup](string name, bool ask) { setup.StartEmulator(name, ask); }));
}

void AddDriveRoutines(RoutineTable& table, Session& session) {
    auto& files = session.Routines().uaeFiles;
    table.push_back(Bind("GetMasterConfig", [&files] { return files.GetMasterConfig(); }));
    auto& drives = session.Routines().driveSlots;
    table.push_back(Bind("SelectSimilarDisks", [&drives](std::int16_t from, std::int16_t back,
                                                         std::int16_t forward, std::int16_t limit) {
        drives.SelectSimilarDisks(from, back, forward, limit);
    }));
    table.push_back(Bind("Check_Dfx_MouseUp",
                         [&drives](std::int16_t index) { drives.Check_Dfx_MouseUp(index); }));
}

// The tool for CD images, the start script, commands as text.
void AddHelperRoutines(RoutineTable& table, Session& session) {
    auto& helpers = session.Routines().startHelpers;
    table.push_back(
        Bind("MountGameImage", [&helpers](string path) { return helpers.MountGameImage(path); }));
    table.push_back(Bind("RunStartScript", [&helpers] { helpers.RunStartScript(); }));
    table.push_back(Bind("EditStartScript", [&helpers] { helpers.EditStartScript(); }));
    table.push_back(Bind("GetVBSFilename", [&helpers] { return helpers.GetVBSFilename(); }));
    auto& runFile = session.Routines().runFile;
    table.push_back(Bind("ShellAndWait", [&runFile](string command, int style) {
        runFile.ShellAndWait(command, StyleOf(style));
    }));
    table.push_back(Bind("FindExecutableOf",
                         [&runFile](string file) { return runFile.FindExecutableOf(file); }));
    table.push_back(Bind("FindAssociatedProgram",
                         [&runFile](string file) { return runFile.FindAssociatedProgram(file); }));
}

void AddDisplayRoutines(RoutineTable& table, Session& session) {
    auto& screen = session.Routines().displayMode;
    table.push_back(Bind("SaveAndSetDisplayMode", [&screen] { screen.SaveAndSetDisplayMode(); }));
    table.push_back(Bind("RestoreDisplayMode", [&screen] { screen.RestoreDisplayMode(); }));
    table.push_back(
        Bind("ChangeDisplayMode", [&screen](std::int16_t width, std::int16_t height,
                                            std::int16_t colors, std::int16_t frequency) {
            screen.ChangeDisplayMode(width, height, colors, frequency);
        }));
}

}  // namespace

void AddLaunchRoutines(RoutineTable& table, Session& session) {
    AddStartRoutines(table, session);
    AddDriveRoutines(table, session);
    AddHelperRoutines(table, session);
    AddDisplayRoutines(table, session);
    auto& all = session.Routines();
    table.push_back(Bind("WAIT", [&all](std::int16_t seconds) {
        launch::WAIT(seconds, all.host.clock, all.pacer);
    }));
    auto& processes = all.prozess;
    table.push_back(Bind("FindProcessId", [&processes](string name) {
        return processes.FindProcessId(name, launch::Reach::nameOnly);
    }));
    table.push_back(Bind("IsProcessRunning", [&processes](string name) {
        return processes.IsProcessRunning(name, launch::Reach::nameOnly);
    }));
    table.push_back(Bind("KillProcess", [&processes](int id) { processes.KillProcess(id); }));
    auto& loading = all.windowsBeside.loading;
    table.push_back(
        Bind("ShowLoadingInfo", [&all, &loading] { loading.ShowLoadingInfo(&all.form); }));
    table.push_back(Bind("GivenUp", [&loading] { return loading.GivenUp(); }));
    auto& watch = all.watch;
    table.push_back(Bind("EmuActiveTimer_Timer", [&watch] { watch.EmuActiveTimer_Timer(); }));
    table.push_back(Bind("AppRunningPicture_Click", [&watch] { watch.AppRunningPicture_Click(); }));
    table.push_back(Bind("LoadingBtn_Click", [&watch] { watch.LoadingBtn_Click(); }));
}

}  // namespace kivu::driver
