#include "driver/fields.h"

#include "core/form1.h"
#include "driver/field_table.h"
#include "driver/windows.h"
#include "joystick/button_setup_form.h"
#include "launch/loading_form.h"
#include "settings/settings_form.h"
#include "support/file_dialog_form.h"

namespace kivu::driver {

namespace {

using core::Form1;

const FieldTable& MainWindowFields() {
#define KIVU_FIELD(name) FieldOf<Form1>(#name, &Form1::name)
    static const FieldTable fields{
        KIVU_FIELD(AppDir),
        KIVU_FIELD(EXE),
        KIVU_FIELD(ConfigPath),
        KIVU_FIELD(StartPfad),
        KIVU_FIELD(IniPath),
        KIVU_FIELD(BaseIniName),
        KIVU_FIELD(ColorsIniName),
        KIVU_FIELD(FavoritenIni),
        KIVU_FIELD(FavoritenGlobalIni),
        KIVU_FIELD(VBSFilename),
        KIVU_FIELD(CacheName),
        KIVU_FIELD(GlobalListName),
        KIVU_FIELD(TmpBatName),
        KIVU_FIELD(StartScriptName),
        KIVU_FIELD(MasterConfigName),
        KIVU_FIELD(ListMode),
        KIVU_FIELD(CurrentLanguage),
        KIVU_FIELD(CurrentEmuIndex),
        KIVU_FIELD(EmuBoxIndexSaved),
        KIVU_FIELD(ListsVisible),
        KIVU_FIELD(EmuListLocked),
        KIVU_FIELD(Busy),
        KIVU_FIELD(WindowReady),
        KIVU_FIELD(Ended),
        KIVU_FIELD(FavouritesColor),
        KIVU_FIELD(EmulatorListColor),
        KIVU_FIELD(EmuListboxBackColor),
        KIVU_FIELD(EmuListboxForeColor),
        KIVU_FIELD(FormBackColor),
        KIVU_FIELD(FormForeColor),
        KIVU_FIELD(TitleString),
        KIVU_FIELD(DownloadURL),
        KIVU_FIELD(JoystickFocus),
        KIVU_FIELD(EmuListBrowsing),
        KIVU_FIELD(JoystickButtonSetupModus),
        KIVU_FIELD(JoystickButtons),
        KIVU_FIELD(ExitButtonAction),
        KIVU_FIELD(ShortListHasFocus),
        KIVU_FIELD(DoublesListHasFocus),
        KIVU_FIELD(DoublesListBusy),
        KIVU_FIELD(CurrentRunninApplication),
        KIVU_FIELD(CURRENT_PROGRAM_STARTED),
        KIVU_FIELD(StartGraceTicks),
        KIVU_FIELD(SplashSeconds),
        KIVU_FIELD(GameIsRunning),
        KIVU_FIELD(DiskSlots),
        KIVU_FIELD(ListLeft),
        KIVU_FIELD(ListWidth),
        KIVU_FIELD(Col2Left),
        KIVU_FIELD(Col2Width),
        KIVU_FIELD(Col3Left),
        KIVU_FIELD(Col3Width),
        KIVU_FIELD(ListHeight),
        KIVU_FIELD(DriveBoxHeight),
        KIVU_FIELD(ThirdWidth),
        KIVU_FIELD(QuarterWidth),
        KIVU_FIELD(HalfWidth),
    };
#undef KIVU_FIELD
    return fields;
}

const FieldTable& FileDialogFields() {
    using support::FilesForm;
#define KIVU_FIELD(name) FieldOf<FilesForm>(#name, &FilesForm::name)
    static const FieldTable fields{
        KIVU_FIELD(Mode),
        KIVU_FIELD(Result),
        KIVU_FIELD(Mask),
        KIVU_FIELD(NetworkPath),
    };
#undef KIVU_FIELD
    return fields;
}

const FieldTable& ButtonSetupFields() {
    using joystick::ButtonSetupForm;
    static const FieldTable fields{
        FieldOf<ButtonSetupForm>("Texts", &ButtonSetupForm::Texts),
        FieldOf<ButtonSetupForm>("Buttons", &ButtonSetupForm::Buttons),
        FieldOf<ButtonSetupForm>("Position", &ButtonSetupForm::Position),
    };
    return fields;
}

const FieldTable& SettingsFields() {
    using settings::SettingsForm;
#define KIVU_FIELD(name) FieldOf<SettingsForm>(#name, &SettingsForm::name)
    static const FieldTable fields{
        KIVU_FIELD(IniPath),    KIVU_FIELD(ColorsIniName),    KIVU_FIELD(StartPfad),
        KIVU_FIELD(ExeAtFocus), KIVU_FIELD(MainSettingsOnly), KIVU_FIELD(Loading),
    };
#undef KIVU_FIELD
    return fields;
}

const FieldTable& LoadingScreenFields() {
    using launch::LoadingForm;
    static const FieldTable fields{
        FieldOf<LoadingForm>("Seconds", &LoadingForm::Seconds),
        FieldOf<LoadingForm>("SecondsPassed", &LoadingForm::SecondsPassed),
    };
    return fields;
}

// One table a window.
const FieldTable& FieldsOf(const forms::Form& form) {
    static const FieldTable none;
    if (dynamic_cast<const Form1*>(&form)) return MainWindowFields();
    if (dynamic_cast<const support::FilesForm*>(&form)) return FileDialogFields();
    if (dynamic_cast<const joystick::ButtonSetupForm*>(&form)) return ButtonSetupFields();
    if (dynamic_cast<const settings::SettingsForm*>(&form)) return SettingsFields();
    if (dynamic_cast<const launch::LoadingForm*>(&form)) return LoadingScreenFields();
    return none;
}

const Field* Find(const forms::Form& form, const std::string& name) {
    for (const Field& field : FieldsOf(form)) {
        if (SameName(field.name, name)) return &field;
    }
    return nullptr;
}

}  // namespace

std::optional<Json> GetField(const forms::Form& form, const std::string& name) {
    const Field* field = Find(form, name);
    if (!field) return {};
    return field->get(form);
}

bool SetField(forms::Form& form, const std::string& name, const Json& value) {
    const Field* field = Find(form, name);
    if (field) field->set(form, value);
    return field != nullptr;
}

}  // namespace kivu::driver
