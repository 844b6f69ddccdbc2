#include "driver/fields.h"

#include <array>
#include <functional>
#include <vector>

#include "driver/properties.h"
#include "driver/windows.h"

namespace kivu::driver {

namespace {

using core::Form1;

struct Field {
    const char* name;
    std::function<Json(const Form1&)> get;
    std::function<void(Form1&, const Json&)> set;
};

Json Shown(const std::string& value) {
    return value;
}
Json Shown(int value) {
    return value;
}
Json Shown(bool value) {
    return value;
}
Json Shown(forms::Color value) {
    return ColorText(value);
}
template <typename Value, std::size_t count>
Json Shown(const std::array<Value, count>& values) {
    Json shown = Json::array();
    for (const Value& value : values)
        shown.push_back(Shown(value));
    return shown;
}

void Take(std::string& field, const Json& value, const std::string& name) {
    field = TextFrom(value, name);
}
void Take(int& field, const Json& value, const std::string& name) {
    field = WholeFrom(value, name);
}
void Take(bool& field, const Json& value, const std::string& name) {
    field = FlagFrom(value, name);
}
void Take(forms::Color& field, const Json& value, const std::string& name) {
    field = ColorFrom(value, name);
}
template <typename Value, std::size_t count>
void Take(std::array<Value, count>& field, const Json& value, const std::string& name) {
    if (!value.is_array() || value.size() != count)
        throw CommandError(name + " must be an array of " + std::to_string(count));
    std::array<Value, count> taken = field;
    for (std::size_t i = 0; i < count; ++i)
        Take(taken[i], value[i], name);
    field = taken;
}

template <typename Value>
Field Of(const char* name, Value Form1::*member) {
    return {name, [member](const Form1& form) { return Shown(form.*member); },
            [member, name](Form1& form, const Json& value) { Take(form.*member, value, name); }};
}

const std::vector<Field>& Fields() {
#define KIVU_FIELD(name) Of(#name, &Form1::name)
    static const std::vector<Field> fields{
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

const Field* Find(const std::string& name) {
    for (const Field& field : Fields()) {
        if (SameName(field.name, name)) return &field;
    }
    return nullptr;
}

}  // namespace

std::optional<Json> GetField(const Form1& form, const std::string& name) {
    const Field* field = Find(name);
    if (!field) return {};
    return field->get(form);
}

bool SetField(Form1& form, const std::string& name, const Json& value) {
    const Field* field = Find(name);
    if (field) field->set(form, value);
    return field != nullptr;
}

}  // namespace kivu::driver
