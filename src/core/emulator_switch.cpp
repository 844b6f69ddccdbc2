#include "core/emulator_switch.h"

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "core/raised.h"
#include "core/settings_loader.h"
#include "core/shut_down.h"
#include "text/stored_paths.h"
#include "text/text.h"

namespace kivu::core {

namespace keys = profile::keys;

static_assert(keys::TitleString.missing == defaultTitle);

void EmulatorSwitch::SelectEmulator(bool AddToGlobal) {
    // A step of the controller only looks at the emulator.
    if (form.Busy || form.EmuListBrowsing) return;
    const Raised working(form.Busy);
    const profile::Ini::GatheredWriteBacks gathered(ini);
    form.Label4.SetCaption(" Suchergebnisse (0) ");
    form.Label4.SetVisible(false);
    form.EmuListbox.SetWidth(form.EmuListboxWidth());
    form.Current_LoadingSmallBtn.SetVisible(true);
    if (form.EmuListbox.ListIndex() == form.CurrentEmuIndex) {
        ReturnToLoadedEmulator();
        return;
    }
    if (!ClearForSwitch()) return;

    AssignEmulatorPaths(form, files, form.EmuListbox.SelectedText());
    const std::string name = form.EmuListbox.SelectedText();
    InitEmulatorView();
    if (form.Ended) return;

    form.EmulatorLongListbox.SetVisible(false);
    form.EmuListbox.SetText(name);
    ini.Write(keys::LastEmulator, ProfilesOf(form), form.EmuListbox.Text());
    ShowLoadedLists();
    if (AddToGlobal) AppendToGlobalList();
    ports.front->RefreshList();
    form.Current_LoadingSmallBtn.SetVisible(false);
    if (!form.EmulatorLongListbox.Visible()) PutLoadedListInFront();
    ports.watch->HideListsOfRunning();
    // From here on no more events run, and another emulator can be chosen.
    form.EmuListbox.SetVisible(true);
}

void EmulatorSwitch::PutLoadedListInFront() {
    if (form.FavoritenListe.ListCount() > 0) {
        ports.front->Label1_Click();
    } else {
        ports.front->Label2_Click();
    }
}

void EmulatorSwitch::ReturnToLoadedEmulator() {
    form.EmulatorLongListbox.SetVisible(false);
    form.EmuListbox.SetVisible(false);
    ports.choice->ShowEmulatorBox(false);
    form.SetMode(Front::favourites);
    ports.front->RefreshList();
    events.DoEvents();
    form.Current_LoadingSmallBtn.SetVisible(false);
    ports.choice->LeaveEmulatorBox();
    form.EmuListbox.SetVisible(true);
}

// False: the switch is locked and stops here.
bool EmulatorSwitch::ClearForSwitch() {
    form.FavoritenListe.Clear();
    form.EmuListbox.SetVisible(false);
    form.EmulatorLongListbox.SetVisible(false);
    busy.HideAll(false);
    if (form.EmulatorLongListbox.ListIndex() != form.EmuListbox.ListIndex()) {
        form.EmulatorLongListbox.SetListIndex(form.EmuListbox.ListIndex());
    }
    if (form.EmuListLocked) return false;
    form.EmuBoxIndexSaved = form.EmuListbox.ListIndex();
    form.EmuListbox.SetSelection(form.EmuListbox.SelStart(), 0);
    form.FavoritenListe.Clear();
    form.UAE_Short.Clear();
    form.UAE_FULL.Clear();
    form.SuchErgList.Clear();
    ports.choice->ShowEmulatorBox(false);
    return true;
}

void EmulatorSwitch::ShowLoadedLists() {
    const bool favourites = form.FavoritenListe.ListCount() > 0;
    if (favourites) {
        ports.front->Label1_Click();
        form.FavoritenListe.SetListIndex(0);
    } else {
        ports.front->Label2_Click();
        form.WIthoutDoubles.SetListIndex(0);
    }
    busy.HideAll(true);
    form.SetMode(form.FavoritenListe.ListCount() > 0 ? Front::favourites : Front::simple);
}

void EmulatorSwitch::AppendToGlobalList() {
    const std::string kept = form.Label1.Caption();
    form.Label1.SetCaption("Global List: " + form.EmuListbox.SelectedText());
    ports.games->AddToALL_LIST();
    form.Label1.SetCaption(kept);
}

void EmulatorSwitch::InitEmulatorView() {
    hooks.LoadSkinPictures();
    hooks.LoadFavoriten();
    if (ini.Read(keys::ResetScreenResolution, ProfilesOf(form)) > 0) {
        hooks.SaveAndSetDisplayMode();
    }
    hooks.DropPreview();
    ports.layout->SetVorschau();
    form.CurrentEmuIndex = form.EmuListbox.ListIndex();
    form.LoadBtn.SetEnabled(form.CurrentEmuIndex >= 0);
    ShowDefaultTitle();
    form.WIthoutDoubles.Clear();
    form.UAE_FULL.Clear();
    form.UAE_Short.Clear();
    form.FavoritenListe.Clear();
    form.TopRightPic.SetTop(20);
    PrepareMasterConfig();
    ports.layout->Form_Resize();
    FillFontSizes();
    alwaysOnTop.SetToTop();
    settingsLoader.LoadSettings();
    // All paths are this emulator's now.
    hooks.PreparePreviews();
    hooks.LoadFavoriten();
    form.EmulatorLongListbox.SetVisible(false);
    ReadTitle();
    if (ServeCommandLine()) return;
    SelectUsualFontSize();
    FinishView();
}

void EmulatorSwitch::DressWindow() {
    hooks.LoadSkinPictures();
    ports.layout->Form_Resize();
    FillFontSizes();
    settingsLoader.LoadLook();
    SelectUsualFontSize();
}

void EmulatorSwitch::SelectUsualFontSize() {
    if (form.FontSizeCombo.ListIndex() < 1) form.FontSizeCombo.SetListIndex(13);
}

void EmulatorSwitch::ShowDefaultTitle() {
    form.TitleStr.SetCaption(defaultTitle);
    form.SetCaption(defaultTitle);
    form.MyCaptionLabel.SetCaption(defaultTitle);
    form.SettingsSubPicture.BringToFront();
}

void EmulatorSwitch::PrepareMasterConfig() {
    const int use = ini.Read(keys::WinUAE_UseMasterConfig, ProfilesOf(form));
    form.MasterConfigName.clear();
    if (use != 1) return;
    form.MasterConfigName = form.ConfigPath + form.EXE + "_Master.uaecfg";
    hooks.GetMasterConfig();
}

void EmulatorSwitch::FillFontSizes() {
    form.FontSizeCombo.Clear();
    const std::string wording = form.Say("Schriftgröße: ", "Font size: ");
    for (int size = 8; size <= 80; ++size) {
        form.FontSizeCombo.AddItem(wording + std::to_string(size));
    }
}

void EmulatorSwitch::ReadTitle() {
    form.TitleString = ini.Read(keys::TitleString, ProfilesOf(form));
    form.DownloadURL = ini.Read(keys::DownloadURL, ProfilesOf(form));
    form.SetCaption(form.TitleString);
    form.MyCaptionLabel.SetCaption(form.TitleString);
}

bool EmulatorSwitch::ServeCommandLine() {
    if (text::Trim(commandLine).empty()) return false;
    ini.StoreWriteBacks();
    if (commandLine.find('?') != std::string::npos) {
        dialogs.MessageBox("Command Parameter: Not full supported yet!  *.adf Files should work!",
                           defaultTitle, platform::Buttons::Ok, platform::Icon::None);
    } else {
        ports.launching->StartGame(text::QuoteIfNeeded(text::Trim(commandLine)));
    }
    shutDown.EndProgram();
    return true;
}

void EmulatorSwitch::FinishView() {
    events.DoEvents();
    form.LoadingBtn.SetCaption(form.Say("Liste wird geladen...", "Loading list..."));
    busy.HideAll(false);
    events.DoEvents();
    ports.games->LoadCacheList();
    ports.layout->Form_Resize();
    events.DoEvents();
    form.Current_ProgramNameFull.SetCaption("");
    form.LoadingBtn.SetCaption("Loading..");
    form.TitleString = ini.Read(keys::TitleString, ProfilesOf(form));
    form.TitleStr.SetCaption(form.TitleString);
    form.MyCaptionLabel.SetCaption(form.TitleString);
    form.LoadingBtn.SetCaption(form.TitleString);
    form.EmuListbox.SetSelection(form.EmuListbox.SelStart(), 0);
    ports.games->BuildDoublesList();
    ports.watch->WatchOnce();
    busy.HideAll(false);
    form.SettingsBtn.SetVisible(true);
    form.SettingsShortBtn.SetVisible(false);
}

}  // namespace kivu::core
