#include "wiring/launcher.h"

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
    routines->JoinHooks();
    routines->JoinControls();
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

Launcher::Routines::Routines(platform::Host hostServices, const forms::TextMeasure* measure,
                             std::function<void()> end, forms::WindowHost* windowHost)
    : logged(std::move(hostServices)),
      host(logged.Services()),
      endProgram(std::move(end)),
      windows(windowHost ? *windowHost : noWindows),
      dialogs(host.dialogs, windows),
      scanSource(host.files),
      form(forms::Toolkit{measure, &order, &scanSource, &windows}),
      ini(host.files),
      pacer(host.events, host.clock),
      busy(form, host.events),
      alwaysOnTop(form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove}, host.userStore),
      startUp(form, ini, host.files, host.locale, host.clock),
      emulatorSwitch(form, ini, host.files, host.events, dialogs, busy, host.commandLine),
      settingsLoader(form, ini, host.files, dialogs),
      shutDown(form, ini),
      windowKeys(form, dialogs, host.beeper),
      scanner(form, scanSource, host.beeper, pacer),
      gameLists(form, ini, host.files, busy, pacer, scanner),
      emulatorBox(form, ini, host.files, busy),
      markedGame(form, dialogs),
      listEvents(form, markedGame),
      listSearch(form, markedGame),
      globalSearch(form, host.files, busy, pacer),
      favoriten(form, ini, host.files),
      globalFavoriten(form, ini, host.files),
      repair(form, favoriten, busy, pacer, dialogs),
      favoritenEvents(form, favoriten, globalFavoriten, repair, busy, pacer,
                      {dialogs, host.beeper}),
      globalEvents(form, globalFavoriten, busy, {host.beeper, host.events}),
      prozess(host.processes),
      watch(form, ini, prozess, busy, host.events, dialogs, host.log),
      gameLaunch(form, ini, busy, pacer,
                 {host.files, host.starter, host.clock, dialogs, host.beeper, host.log}),
      handedFile(form, host.beeper, host.log),
      emulatorSetup(form, ini, pacer, {host.files, host.starter, host.clock, dialogs, host.log}),
      uaeFiles(form, host.files, host.log),
      driveSlots(form, ini, host.beeper),
      layout(form),
      fontSize(form),
      hints(form),
      surface(form, ini, dialogs),
      panelDrag(form),
      navigation(form) {
    const char separator = host.files.Separator();
    form.AppDir = host.programDirectory;
    if (form.AppDir.empty() || form.AppDir.back() != separator) form.AppDir += separator;
    form.EXE = host.programName;
}

void Launcher::Routines::EndProgram() {
    form.Ended = true;
    ini.StoreWriteBacks();
    if (endProgram) endProgram();
}

void Launcher::Routines::LeaveChoice() {
    if (emulatorBox.ChoiceIsOpen()) {
        emulatorBox.LeaveEmulatorBox();
        return;
    }
    // A row that is chosen there counts as a click, which opens the choice.
    const std::string mode = form.ListMode;
    form.EmuListbox.SetListIndex(form.CurrentEmuIndex);
    form.ListMode = mode;
}

void Launcher::Routines::RefreshList() {
    globalSearch.LeaveResults();
    layout.ArrangeLists();
    gameLists.UpdateListCaptions();
    markedGame.ShowName();
    hints.Refresh();
}

}  // namespace kivu::wiring
