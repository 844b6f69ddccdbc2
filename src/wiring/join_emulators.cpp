// The choice among emulators, and the change to another one.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinEmulators() {
    emulatorSwitch.ports.choice = emulatorBox;
    emulatorSwitch.ports.front = listEvents;
    emulatorSwitch.ports.games = gameLists;
    emulatorSwitch.ports.launching = gameLaunch;
    emulatorSwitch.ports.watch = watch;
    emulatorSwitch.ports.layout = layout;
    emulatorSwitch.hooks.DropPreview = [this] { previews.Drop(); };
    emulatorSwitch.hooks.PreparePreviews = [this] { previews.Prepare(); };
    emulatorSwitch.hooks.LoadSkinPictures = [this] { skins.LoadSkinPictures(); };
    emulatorSwitch.hooks.LoadFavoriten = [this] { favoriten.LoadFavoriten(); };
    // A profile with a master configuration has one from its first selection on.
    emulatorSwitch.hooks.GetMasterConfig = [this] { uaeFiles.GetMasterConfig(); };

    emulatorBox.ports.front = listEvents;
    emulatorBox.ports.watch = watch;
    emulatorBox.ports.layout = layout;
    emulatorBox.hooks.ShowEmulatorPreview = [this](int row) { previews.ShowEmulatorPreview(row); };
    emulatorBox.hooks.ApplyListColors = [this] { ui::ApplyListColors(form); };
    // The right mouse button opens an emulator without a game.
    emulatorBox.hooks.StartEmulator = [this](const std::string& name, bool ask) {
        emulatorSetup.StartEmulator(name, ask);
    };

    forms::ComboBox& box = form.EmuListbox;
    box.onClick = [this] { emulatorBox.EmuListbox_Click(); };
    box.onDblClick = [this] { emulatorBox.EmuListbox_DblClick(); };
    box.onGotFocus = [this] { emulatorBox.EmuListbox_GotFocus(); };
    box.onDropDown = [this] { emulatorBox.EmuListbox_DropDown(); };
    box.onLostFocus = [this] { emulatorBox.EmuListbox_LostFocus(); };
    box.onKeyDown = [this](forms::Key& key) { emulatorBox.EmuListbox_KeyDown(key); };
    box.onKeyPress = [this](forms::Character& key) { emulatorBox.EmuListbox_KeyPress(key); };

    forms::ListBox& longList = form.EmulatorLongListbox;
    longList.onClick = [this] { emulatorBox.EmulatorLongListbox_Click(); };
    longList.onDblClick = [this] { emulatorBox.EmuListbox_DblClick(); };
    longList.onGotFocus = [this] { emulatorBox.EmulatorLongListbox_GotFocus(); };
    longList.onKeyDown = [this](forms::Key& key) { emulatorBox.EmuListbox_KeyDown(key); };
    longList.onKeyPress = [this](forms::Character& key) {
        emulatorBox.EmulatorLongListbox_KeyPress(key);
    };
    longList.onMouseDown = [this](const forms::Mouse& mouse) {
        emulatorBox.EmulatorLongListbox_MouseDown(mouse);
    };
}

}  // namespace kivu::wiring
