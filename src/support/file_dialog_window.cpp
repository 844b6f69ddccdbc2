#include "support/file_dialog_window.h"

#include <initializer_list>

#include "support/path_forms.h"
#include "text/text.h"

namespace kivu::support {

using forms::Key;
namespace keys = forms::keys;

FilesWindow::FilesWindow(forms::Toolkit toolkit, bool german, Files::Services services,
                         platform::Beeper& beeper)
    : form(toolkit, {german, NamesAreBytes(services.files)}),
      folders(services),
      places(services.files, folders),
      lists(form, services.files, places, beeper),
      answer(form, services.files, lists),
      alwaysOnTop(form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove}, services.store) {
    form.onLoad = [this] { Form_Load(); };
    JoinLists();
    JoinKeys();
    JoinButtons();
}

void FilesWindow::Form_Load() {
    alwaysOnTop.LoadSettings();
    alwaysOnTop.SetToTop();
    lists.TakeCurrentDirectory();
}

void FilesWindow::JoinLists() {
    form.Drive1.onClick = [this] { lists.Drive1_Click(); };
    form.Dir1.onChange = [this] { lists.Dir1_Change(); };
    form.Dir1.onClick = [this] { lists.Dir1_Click(); };
    form.Dir1.onDblClick = [this] { lists.EnterChosen(); };
    form.File1.onClick = [this] { answer.File1_Click(); };
    form.File1.onDblClick = [this] { answer.Ok_Click(); };
    form.FileName.onChange = [this] { answer.FileName_Change(); };
    form.KomplettPfadText.onLostFocus = [this] { lists.KomplettPfadText_LostFocus(); };
}

void FilesWindow::JoinKeys() {
    // On a drive that the arrow keys have gone to, Enter goes on to what is there.
    form.Drive1.onKeyDown = [this](Key& key) {
        if (key.code != keys::enter) return;
        form.Dir1.SetFocus();
        key.code = 0;
    };
    form.Dir1.onKeyDown = [this](Key& key) {
        if (key.code == keys::enter) lists.EnterChosen();
        if (key.code == keys::back) lists.UpBtn_Click();
        if (key.code == keys::enter || key.code == keys::back) key.code = 0;
    };
    form.File1.onKeyDown = [this](Key& key) {
        if (key.code != keys::back) return;
        lists.UpBtn_Click();
        key.code = 0;
    };
    form.KomplettPfadText.onKeyDown = [this](Key& key) {
        if (key.code != keys::enter) return;
        lists.KomplettPfadText_Enter();
        key.code = 0;
    };
    // The arrow keys go through the files while a name is typed.
    form.FileName.onKeyDown = [this](Key& key) {
        const int step = key.code == keys::down ? 1 : key.code == keys::up ? -1 : 0;
        if (step == 0 || key.shift != 0) return;
        form.File1.ClickRow(form.File1.ListIndex() + step);
        key.code = 0;
    };
    for (forms::DirectoryControl* list :
         std::initializer_list<forms::DirectoryControl*>{&form.Dir1, &form.File1}) {
        list->onKeyPress = [this, list](forms::Character& character) {
            if (character.code > ' ') lists.JumpTo(*list, text::FoldCase(character.code));
        };
    }
}

void FilesWindow::JoinButtons() {
    form.UpBtn.onClick = [this] { lists.UpBtn_Click(); };
    form.Command1.onClick = [this] { lists.Command1_Click(); };
    form.StartmenuBtn.onClick = [this] { lists.StartmenuBtn_Click(); };
    for (forms::CommandButton* ok : {&form.Ok, &form.OkBtn2})
        ok->onClick = [this] { answer.Ok_Click(); };
    for (forms::CommandButton* cancel : {&form.Abbruch, &form.AbbruchBtn2})
        cancel->onClick = [this] { answer.Abbruch_Click(); };
    form.AOT_Enabled.onClick = [this] { alwaysOnTop.AOT_Enabled_Click(); };
    form.AOT_Disabled.onClick = [this] { alwaysOnTop.AOT_Disabled_Click(); };
    form.AOT_MouseMove.onClick = [this] { alwaysOnTop.AOT_MouseMove_Click(); };
    form.AOT_Disabled.onMouseMove = [this](const forms::Mouse&) {
        alwaysOnTop.AOT_Disabled_MouseMove();
    };
    form.AlwaysOnTop1.onMouseLeave = [this] { alwaysOnTop.MouseLeft(); };
    form.TitleLabel.onMouseDown = [this](const forms::Mouse& mouse) {
        if (mouse.button == forms::buttons::left) form.BeginDrag();
    };
}

}  // namespace kivu::support
