#include "wiring/launcher.h"

#include "core/emulator_paths.h"
#include "text/collation.h"
#include "wiring/routines.h"

namespace kivu::wiring {

int TextOrder::Compare(std::string_view a, std::string_view b) const {
    return text::CompareText(a, b);
}

std::uint64_t TextOrder::Rank(std::string_view text) const {
    return text::SortRank(text);
}

Launcher::Launcher(platform::Host host, const forms::TextMeasure* measure,
                   std::function<void()> endProgram, forms::WindowHost* windows)
    : routines(
          std::make_unique<Routines>(std::move(host), measure, std::move(endProgram), windows)) {
}

Launcher::~Launcher() = default;

core::Form1& Launcher::MainWindow() {
    return routines->form;
}

void Launcher::Start() {
    routines->alwaysOnTop.LoadSettings();
    routines->startUp.Form_Load();
    routines->hints.Refresh();
    routines->hints.ShowFirstSteps();
}

void Launcher::StartHandedFile(const std::string& path) {
    routines->handedFile.StartHandedFile(path);
}

void Launcher::SessionEnds() {
    routines->shutDown.StoreForSession();
}

void Launcher::EndFromOutside() {
    routines->shutDown.EndFromOutside();
}

Launcher::Routines::Routines(platform::Host hostServices, const forms::TextMeasure* measure,
                             std::function<void()> end, forms::WindowHost* windowHost)
    : logged(std::move(hostServices)),
      host(logged.Services()),
      windows(windowHost ? *windowHost : noWindows),
      dialogs(host.dialogs, windows),
      scanSource(host.files),
      form(forms::Toolkit{measure, &order, &scanSource, &windows}),
      ini(host.files),
      pacer(host.events, host.clock),
      busy(form, host.events),
      alwaysOnTop(form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove}, host.userStore),
      pictureLoader(form, {host.files, host.pictureDecoder, host.background, dialogs}),
      shutDown(form, ini),
      settingsLoader(form, ini, host.files, dialogs),
      emulatorSwitch(form, ini, {host.files, host.events, dialogs},
                     {busy, settingsLoader, shutDown, alwaysOnTop}, host.commandLine),
      startUp(form, ini, host.files, host.locale, host.clock, emulatorSwitch),
      windowKeys(form, dialogs, host.beeper, shutDown),
      links(form, {host.files, host.starter, dialogs, host.events, host.downloads, host.log},
            host.build),
      scanner(form, scanSource, host.beeper, pacer),
      emulatorBox(form, ini, host.files, busy, emulatorSwitch),
      gameLists(form, ini, host.files, busy, pacer, scanner, {emulatorBox, emulatorSwitch}),
      markedGame(form, dialogs),
      listSearch(form, markedGame, emulatorBox),
      globalSearch(form, host.files, busy, pacer, listSearch, emulatorBox),
      listEvents(form, markedGame, {emulatorBox, gameLists, globalSearch}),
      favoriten(form, ini, host.files, gameLists),
      globalFavoriten(form, ini, host.files),
      repair(form, favoriten, busy, pacer, dialogs),
      favoritenEvents(form, favoriten, globalFavoriten, repair, busy, pacer, {dialogs, host.beeper},
                      {emulatorBox, listEvents, markedGame}),
      globalEvents(form, globalFavoriten, busy, {host.beeper, host.events},
                   {emulatorSwitch, emulatorBox, markedGame, alwaysOnTop}),
      prozess(host.processes),
      watch(form, ini, prozess, busy, host.events, dialogs, host.log,
            {emulatorBox, listEvents, alwaysOnTop}),
      uaeFiles(form, host.files, host.log),
      displayMode(host.display, host.log),
      runFile({host.files, host.starter, dialogs, host.temporaryDirectory}, pacer),
      startHelpers(
          form, ini, pacer,
          {host.files, host.starter, host.clock, dialogs, host.log, host.runtimeDirectory}),
      gameLaunch(form, ini, busy, pacer,
                 {host.files, host.starter, host.clock, dialogs, host.beeper, host.log},
                 {emulatorBox, listEvents, alwaysOnTop, uaeFiles, startHelpers}),
      handedFile(form, {host.files, host.beeper, host.instance, host.log},
                 {emulatorBox, gameLaunch, shutDown, alwaysOnTop}, host.commandLine),
      emulatorSetup(form, ini, pacer, {host.files, host.starter, host.clock, dialogs, host.log},
                    watch),
      driveSlots(form, ini, host.beeper),
      layout(form),
      fontSize(form, layout),
      skins(form, host.files, pictureLoader),
      windowColors(form, ini),
      hints(form, {host.files, host.starter}),
      surface(form, ini, {dialogs, host.files}, busy, alwaysOnTop),
      panelDrag(form, layout),
      previews(form, {host.files, host.background}, layout, pictureLoader),
      controllers(form, {host.controllers, dialogs, host.events}),
      navigation(form, listEvents, emulatorBox, globalEvents, driveSlots),
      buttonActions(form, {emulatorBox, gameLaunch, watch, driveSlots}),
      padEvents(form, navigation, buttonActions, windows),
      joystickControl(form, ini, controllers, padEvents, windows,
                      {dialogs, host.events, host.beeper}),
      exitButton(form, controllers, buttonActions),
      boxByPad(form, controllers, windows, dialogs),
      buttonSetupWindow(windows, [this] { return MakeButtonSetup(); }),
      buttonSetup(form, buttonSetupWindow, windows,
                  {controllers, padEvents, settingsLoader, alwaysOnTop}),
      windowsBeside(form, host, dialogs, windows, {pictureLoader, previews, watch}, ini,
                    [this] { return SettingsRoutines(); }),
      settingsOpener(form, windowsBeside.settings, windows, alwaysOnTop) {
    core::AssignProgram(form, host.files, host.programDirectory, host.programName);
    shutDown.hooks.EndProcess = std::move(end);
    JoinWindow();
    JoinEmulators();
    JoinLists();
    JoinSearch();
    JoinFavourites();
    JoinLaunch();
    JoinDrives();
    JoinJoystick();
    JoinSettings();
}

}  // namespace kivu::wiring
