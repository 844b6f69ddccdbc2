#include "settings/new_emulator_group.h"

#include <algorithm>

#include "core/form1.h"
#include "settings/boxes.h"
#include "settings/new_emulator.h"

namespace kivu::settings {

namespace {

int RowOf(const forms::ListControl& list, const std::string& name) {
    const auto& rows = list.Rows();
    const auto found = std::find(rows.begin(), rows.end(), name);
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

}  // namespace

void NewEmulatorGroup::JoinEvents() {
    form.NewEmuBtn.onClick = [this] { NewEmuBtn_Click(); };
}

void NewEmulatorGroup::ShowState() {
    const std::string& name = main.EmuListbox.List(main.CurrentEmuIndex);
    form.EmuNameLabel.SetCaption(name.empty() ? "No Emulator found" : name);
    form.NewEmuBtn.SetEnabled(!Rests());
}

void NewEmulatorGroup::ComeForward() {
    // A window that has been closed meanwhile has given the main window its place back.
    if (form.IsUnloaded() || !main.IsTopmost()) return;
    services.mainOnTop.SetToNormal();
    services.windows.Raise(form);
}

bool NewEmulatorGroup::Rests() const {
    return main.EmuActiveTimer.Enabled() || main.Busy;
}

// The look brings the main window back where the emulator has gone, as behind a game.
bool NewEmulatorGroup::StillRuns() {
    if (!main.EmuActiveTimer.Enabled()) return false;
    services.watch.EmuActiveTimer_Timer();
    ComeForward();
    if (form.IsUnloaded()) return true;
    if (!main.EmuActiveTimer.Enabled()) return false;
    Show(services.dialogs, StillRunsBox(main.CurrentRunninApplication, main));
    return true;
}

void NewEmulatorGroup::NewEmuBtn_Click() {
    if (main.Busy || StillRuns() || !MayLeaveValues()) return;
    const std::string name = AskForName();
    // The box lets events run.
    if (name.empty() || Rests() || !Make(name)) return;
    AddToLists(name);
    Load(name);
}

// What is typed before there is any emulator is meant for the first one.
bool NewEmulatorGroup::MayLeaveValues() {
    if (main.CurrentEmuIndex < 0 || !form.SaveBtn.Enabled()) return true;
    return Show(services.dialogs, DiscardQuestion(main)) == platform::Answer::Ok;
}

std::string NewEmulatorGroup::AskForName() {
    std::string typed;
    for (;;) {
        typed = services.dialogs.InputBox(NewEmulatorPrompt(main), NewEmulatorTitle(main), typed);
        std::string name = EmulatorName(typed);
        if (name.empty()) return name;
        const auto fault = FaultOfName(services.files, main.ConfigPath, name);
        if (!fault) return name;
        Show(services.dialogs, FaultBox(*fault, name, main));
    }
}

bool NewEmulatorGroup::Make(const std::string& name) {
    const auto error = MakeEmulator(services.files, main.ConfigPath, name);
    if (!error) return true;
    Show(services.dialogs, NotMadeBox(main.ConfigPath + name, error, main));
    return false;
}

void NewEmulatorGroup::AddToLists(const std::string& name) {
    main.EmuListbox.AddItem(name);
    main.EmulatorLongListbox.AddItem(name);
    const int row = RowOf(main.EmuListbox, name);
    main.CurrentEmuIndex = RowAfterInsert(main.CurrentEmuIndex, row);
    main.EmuBoxIndexSaved = RowAfterInsert(main.EmuBoxIndexSaved, row);
}

void NewEmulatorGroup::Load(const std::string& name) {
    const bool keepTyped = main.CurrentEmuIndex < 0 && form.SaveBtn.Enabled();
    main.EmuListbox.SetListIndex(RowOf(main.EmuListbox, name));
    // Events run meanwhile.
    form.SetEnabled(false);
    services.emulators.SelectEmulator(false);
    form.SetEnabled(true);
    if (main.Ended) return;
    ComeForward();
    hooks.LoadAnew(keepTyped);
    form.txtWinUAEExe.SetFocus();
    form.ExeAtFocus = form.txtWinUAEExe.Text();
}

}  // namespace kivu::settings
