#include "core/window_keys.h"

#include "core/form1.h"
#include "core/shut_down.h"

namespace kivu::core {

namespace keys = forms::keys;
namespace shifts = forms::shifts;

namespace {
constexpr int zoomKey = keys::f1 + 1;
constexpr int maximizeKey = keys::f1 + 10;

forms::Image& ShownPin(Form1& form) {
    if (form.AOT_Enabled.Visible()) return form.AOT_Enabled;
    return form.AOT_MouseMove.Visible() ? form.AOT_MouseMove : form.AOT_Disabled;
}

// What the Tab key does not come to and a key clicks: the sign that makes the window large, the
// pin, and the handle of the drives. Null: it is no such key.
forms::Control* ClickedBy(forms::Key key, Form1& form) {
    if (key.code == maximizeKey && key.shift == 0) return &form.NormalMaxCapt;
    if (key.shift != shifts::ctrl) return nullptr;
    if (key.code == 'T') return &ShownPin(form);
    return key.code == 'D' ? &form.DrivesResizeLabel : nullptr;
}

}  // namespace

void WindowKeys::Form_KeyDown(forms::Key& key) {
    if (ports.loading->TakesKey(key)) {
        key = {};
        return;
    }
    if (key.code == keys::f4 && key.shift == shifts::alt) {
        key = {};
        CloseKey();
        return;
    }
    if (key.code == zoomKey && key.shift == 0) {
        // Held down, it would flicker.
        if (!key.repeat) hooks.TogglePictureZoom();
        key = {};
        return;
    }
    if (forms::Control* clicked = ClickedBy(key, form)) {
        if (!key.repeat && clicked->IsReachable()) clicked->Click();
        key = {};
        return;
    }
    if (key.code == 'F' && key.shift == shifts::ctrl) form.SearchDblsTxt.SetFocus();
    const bool arrow = key.code >= keys::left && key.code <= keys::down;
    if (arrow && key.shift == shifts::alt) {
        ResizeBy(key.code);
        return;
    }
    const bool sideways = key.code == keys::left || key.code == keys::right;
    // While an emulator runs the arrows would bring its games' lists up.
    if (sideways && !form.EmulatorRuns() && !MovesInSearchText()) hooks.JoystickDirection(key.code);
}

// Over the hits of all emulators the mode is that of the results, and turning the tabs would lose
// them all.
bool WindowKeys::MovesInSearchText() const {
    const bool searching = form.Mode() == Front::searchBox ||
                           (form.GlobalSearchList.Visible() && form.SearchDblsTxt.HasFocus());
    return searching && !form.SearchDblsTxt.Text().empty();
}

void WindowKeys::CloseKey() {
    if (form.AppRunningPicture.Visible()) ports.watch->AppRunningPicture_Click();
    beeper.Beep();
}

void WindowKeys::ResizeBy(int keyCode) {
    if (form.State() != forms::WindowState::normal) return;
    constexpr int step = 200;
    switch (keyCode) {
        case keys::right:
            form.SetWidth(form.Width() + step);
            break;
        case keys::left:
            form.SetWidth(form.Width() - step);
            break;
        case keys::up:
            form.SetHeight(form.Height() - step);
            break;
        case keys::down:
            form.SetHeight(form.Height() + step);
            break;
        default:
            break;
    }
}

void WindowKeys::Form_KeyPress(forms::Character& character) {
    if (character.code == keys::escape && form.Mode() != Front::choice) AskToEnd();
}

void WindowKeys::AskToEnd() {
    const std::string text = form.CurrentLanguage == 1 ? form.EXE + " jetzt wirklich beenden?"
                                                       : "Quit " + form.EXE + " now?";
    const std::string title =
        form.CurrentLanguage == 1 ? form.EXE + " beenden?" : "Exit " + form.EXE + "?";
    const auto answer =
        dialogs.MessageBox(text, title, platform::Buttons::OkCancel, platform::Icon::Question);
    if (answer == platform::Answer::Ok) shutDown.ExitBtn_Click();
}

void WindowKeys::Form_QueryClose(bool& cancel) {
    if (form.Ended) return;
    cancel = true;
    // Who is being asked something answers that first.
    if (!hooks.BoxIsOpen()) AskToEnd();
}

}  // namespace kivu::core
