#include "library/emulator_box.h"

#include "core/form1.h"
#include "core/raised.h"
#include "library/list_search.h"
#include "text/paths.h"
#include "text/text.h"

namespace kivu::library {

namespace keys = forms::keys;
using core::Front;

void EmulatorBox::FillEmulatorLists() {
    const auto entries = files.ListDirectory(form.ConfigPath);
    if (!entries) return;
    for (const auto& entry : *entries) {
        if (!entry.isDirectory) continue;
        form.EmuListbox.AddItem(entry.name);
        form.EmulatorLongListbox.AddItem(entry.name);
    }
}

void EmulatorBox::WritePrompt() {
    if (form.EmuListbox.ListCount() == 0) {
        form.EmuListbox.SetText("No Emulator found");
    } else {
        form.EmuListbox.SetText(form.Say("Emulator auswählen:", "Select Emulator:"));
    }
}

void EmulatorBox::ShowEmulatorBox(bool Show) {
    if (showing) return;
    const core::Raised once(showing);
    if (Show) {
        Open();
    } else {
        Close();
    }
    form.SetMode(Front::choice);
}

void EmulatorBox::Close() {
    form.EmuListbox.SetWidth(form.EmuListboxWidth());
    form.EmuListLocked = true;
    ports.layout->SetVorschau();
    if (form.EmuListbox.ListIndex() != form.EmuBoxIndexSaved)
        form.EmuListbox.SetListIndex(form.EmuBoxIndexSaved);
    form.EmuListLocked = false;
    RestoreColours();
    choiceOpen = false;
    // Whatever list comes to the front next: a step must not lead back into the choice.
    if (form.JoystickFocus == 5) form.JoystickFocus = form.FavoritenListe.ListCount() > 0 ? 1 : 2;
    if (form.EmuListbox.ListIndex() >= 0) {
        form.EmuListbox.SetText(form.EmuListbox.SelectedText());
    } else {
        WritePrompt();
    }
    busy.HideAll(false);
    form.EmulatorLongListbox.SetVisible(false);
}

void EmulatorBox::RestoreColours() {
    if (!choiceOpen) return;
    form.EmuListbox.SetBackColor(form.EmuListboxBackColor);
    form.EmuListbox.SetForeColor(form.EmuListboxForeColor);
}

void EmulatorBox::Open() {
    form.SettingsBtn.SetVisible(false);
    form.SettingsShortBtn.SetVisible(true);
    busy.HideAll(false);
    form.EmulatorLongListbox.SetFont(form.Label4.GetFont());
    form.EmulatorLongListbox.SetVisible(true);
    // Opened once more, the drop-down stands on whatever row has been looked at meanwhile.
    if (!choiceOpen) form.EmuBoxIndexSaved = form.EmuListbox.ListIndex();
    form.EmuListLocked = false;
    form.SetMode(Front::choice);
    PutChoiceInFront();
    hooks.ShowEmulatorPreview(form.EmulatorLongListbox.ListIndex());
    form.EmuListbox.SetSelection(form.EmuListbox.SelStart(), 0);
    hooks.ApplyListColors();
    if (!choiceOpen) {
        form.EmuListboxBackColor = form.EmuListbox.BackColor();
        form.EmuListboxForeColor = form.EmuListbox.ForeColor();
        choiceOpen = true;
    }
    form.EmuListbox.SetBackColor(forms::Rgb(0, 0, 0));
    form.EmuListbox.SetForeColor(forms::Rgb(255, 255, 255));
    form.EmulatorLongListbox.SetForeColor(forms::Rgb(0, 0, 0));
    form.EmulatorLongListbox.SetBackColor(form.EmulatorListColor);
    // A letter typed here starts a search, so the box is there.
    if (!form.EmulatorRuns()) form.ShowSearchBox(true);
    ShowMissingName();
}

void EmulatorBox::ShowMissingName() {
    const bool marked = form.EmulatorLongListbox.ListIndex() >= 0;
    if (!marked || !form.Current_ProgramNameFull.Caption().empty()) return;
    form.Current_ProgramNameFull.SetVisible(true);
    ShowNameOfRow();
}

// Only the favourites' tab goes with it, at the right edge.
void EmulatorBox::PutChoiceInFront() {
    form.EmuListbox.SetWidth(form.EmulatorLongListbox.Width());
    ports.layout->ArrangeTabs();
    form.Label1.SetVisible(true);
    form.Label1.SetLeft(form.Width() - form.Label1.Width() - 400);
    // The tab stands on the corner's picture now.
    form.Label1.BringToFront();
}

void EmulatorBox::CloseChoice() {
    ShowEmulatorBox(false);
    form.EmuListbox.SetListIndex(form.CurrentEmuIndex);
}

void EmulatorBox::LeaveEmulatorBox() {
    busy.HideAll(false);
    CloseChoice();
    const bool favourites = form.FavoritenListe.ListCount() > 0;
    form.SetMode(favourites ? Front::favourites : Front::simple);
    busy.HideAll(true);
    ports.front->RefreshList();
    // The focus goes on to the list in front: a drop-down that kept it could not be opened again.
    if (favourites) {
        ports.front->Label1_Click();
    } else {
        ports.front->Label2_Click();
    }
    ports.watch->HideListsOfRunning();
}

void EmulatorBox::LeaveOpenChoice() {
    if (choiceOpen) LeaveEmulatorBox();
}

void EmulatorBox::LeaveChoice() {
    if (choiceOpen) {
        LeaveEmulatorBox();
        return;
    }
    // A row that is chosen there counts as a click, which opens the choice.
    const std::string mode = form.ListMode;
    form.EmuListbox.SetListIndex(form.CurrentEmuIndex);
    form.ListMode = mode;
}

void EmulatorBox::EmuListbox_Click() {
    // The choice stays closed now, and so no row is chosen in it. Where the drop-down is hidden,
    // what is under way has set the row.
    if (Rests() && !choiceOpen && form.EmuListbox.Visible()) {
        form.EmuListbox.SetListIndex(form.CurrentEmuIndex);
        if (form.CurrentEmuIndex < 0) WritePrompt();
        return;
    }
    form.EmulatorLongListbox.SetListIndex(form.EmuListbox.ListIndex());
    form.EmuListbox.SetSelection(form.EmuListbox.SelStart(), 0);
    form.SetMode(Front::choice);
}

void EmulatorBox::EmuListbox_DblClick() {
    emulators.SelectEmulator(false);
}

void EmulatorBox::EmuListbox_GotFocus() {
    if (takingFocus || !form.EmuListbox.Visible() || Rests()) return;
    const core::Raised once(takingFocus);
    form.SetMode(Front::choice);
    form.JoystickFocus = 5;
    busy.HideAll(false);
    ShowEmulatorBox(true);
}

// A search in all lists gives way to the choice, as it does to any other list.
bool EmulatorBox::Rests() const {
    return form.Busy && !form.GlobalSearchList.Visible();
}

void EmulatorBox::EmuListbox_DropDown() {
    if (Rests()) return;
    if (form.EmulatorLongListbox.Visible()) {
        LeaveEmulatorBox();
    } else if (form.EmuListbox.HasFocus()) {
        EmuListbox_GotFocus();
    } else {
        form.EmuListbox.SetFocus();
    }
}

void EmulatorBox::EmuListbox_LostFocus() {
    form.EmuListbox.SetSelection(form.EmuListbox.SelStart(), 0);
}

void EmulatorBox::EmuListbox_KeyDown(forms::Key& key) {
    if (key.code != keys::back && key.code != keys::escape) return;
    key.code = 0;
    LeaveEmulatorBox();
}

void EmulatorBox::EmuListbox_KeyPress(forms::Character& character) {
    if (character.code == keys::enter || character.code == keys::space) {
        emulators.SelectEmulator(false);
        return;
    }
    if (!BeginsSearch(character)) return;
    StartSearchWith(character.code);
    character.code = 0;
}

void EmulatorBox::StartSearchWith(char32_t letter) {
    if (form.EmulatorRuns()) return;
    form.ShowSearchBox(true);
    form.SearchDblsTxt.SetText(std::string(1, static_cast<char>(letter)));
    form.SearchDblsTxt.SetFocus();
    form.SearchDblsTxt.SetSelection(1, 0);
    form.EmuListbox.SetText(form.EmuListbox.SelectedText());
}

void EmulatorBox::EmulatorLongListbox_Click() {
    form.SetMode(Front::longList);
    form.Current_ProgramNameFull.SetVisible(true);
    if (form.EmulatorLongListbox.ListIndex() != form.EmuListbox.ListIndex()) {
        form.EmuListLocked = true;
        form.EmuListbox.SetListIndex(form.EmulatorLongListbox.ListIndex());
        form.EmuListLocked = false;
    }
    hooks.ShowEmulatorPreview(form.EmulatorLongListbox.ListIndex());
    ShowNameOfRow();
}

void EmulatorBox::ShowNameOfRow() {
    const std::string directory =
        text::AddPathSeparator(form.ConfigPath + form.EmuListbox.SelectedText());
    const std::string file = directory + form.EXE + ".ini";
    forms::Label& name = form.Current_ProgramNameFull;
    name.SetCaption(form.EmulatorLongListbox.SelectedText());
    name.SetFontSize(form.EmulatorLongListbox.FontSize() + 4);
    if (!files.FileExists(file)) return;
    const int count = ini.Read(profile::keys::RomCount, {.emulator = file}).value_or(0);
    // Behind the name as it has been broken to the label's width.
    name.SetCaption(name.Caption() + "\r (Roms: " + (count < 0 ? "?" : std::to_string(count)) +
                    ")");
}

void EmulatorBox::EmulatorLongListbox_GotFocus() {
    form.SetMode(Front::longList);
    if (!choiceOpen) return;
    // A search or the favourites of all emulators may have been over it.
    form.FavoritenListeGlobal.SetVisible(false);
    form.DeLFav.SetVisible(false);
    ports.front->RefreshList();
    PutChoiceInFront();
    ShowMissingName();
}

void EmulatorBox::EmulatorLongListbox_KeyPress(forms::Character& character) {
    EmuListbox_KeyPress(character);
    character.code = 0;
}

void EmulatorBox::EmulatorLongListbox_MouseDown(const forms::Mouse& mouse) {
    if (mouse.button != forms::buttons::right || mouse.shift != 0) return;
    if (form.EmulatorLongListbox.ListIndex() < 0) return;
    hooks.StartEmulator(form.EmulatorLongListbox.SelectedText(), false);
}

}  // namespace kivu::library
