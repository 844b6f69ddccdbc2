#include "settings/settings_store.h"

#include "core/emulator_paths.h"
#include "profile/ini_syntax.h"
#include "settings/path_fields.h"
#include "text/text.h"

namespace kivu::settings {

namespace keys = profile::keys;

namespace {

// The writes that there would be with nothing wrong.
class Writer {
 public:
    explicit Writer(KeyWrites& writes) : writes(writes) {}

    void Text(const keys::Entry& key, const std::string& value) {
        writes.list.push_back({&key, ProtectedValue(value)});
    }
    void Number(const keys::Entry& key, int value) {
        writes.list.push_back({&key, std::to_string(value)});
    }
    // Without a row the key stays: it may hold one that the list has not got.
    void Row(const keys::Entry& key, int row) {
        if (row >= 0) Number(key, row);
    }

 private:
    KeyWrites& writes;
};

void AddProgramWide(Writer& to, const SettingsValues& values) {
    to.Number(keys::UseJoystickInSettings, values.Joystickcheck);
    to.Number(keys::ResetScreenResolution, values.ResetScreenRes);
    to.Row(keys::Fontsize, values.FontSizeCombo);
    to.Text(keys::DeamonToolPath, values.DeamonPath);
}

void AddPathsAndFlags(Writer& to, const SettingsValues& values, const core::ProgramFiles& program) {
    to.Text(keys::KickstartRom, PathForProfile(program, values.TxtKickstartRomFile));
    to.Text(keys::RomPath, OwnPathForProfile(program, values.TxtRomPath));
    to.Number(keys::AutoMountDeamonTool, values.AutoMoundDeamonTools);
    to.Text(keys::EmulatorPath, OwnPathForProfile(program, values.txtWinUAEExe));
    to.Text(keys::Dir_ParameterInSettings, values.DirBefehleTxt);
    to.Number(keys::FullScreen, values.FullscreenCheck);
    to.Number(keys::UseQuote, values.UseAnfz);
}

void AddParameters(Writer& to, const SettingsValues& values) {
    to.Text(keys::WinUAE_ConfigParameter, values.UAEMasterConfigLaunchParameter);
    to.Text(keys::EmulatorParameter, values.UAELaunchParaneter);
    to.Number(keys::EmulatorParameterAddDiskPath, values.UAELaunchParameterAddPath);
    to.Number(keys::EmulatorParameterAddDiskPathWithoutPath, values.ParameterWithoutPath);
    to.Number(keys::WinUAE_UseMasterConfig, values.UseMasterConfig);
    to.Number(keys::SmartRomSelection, values.IntelligenteRomauswahl);
}

bool IsNumber(std::string_view text) {
    const auto skipDigits = [&] {
        const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
        text.remove_prefix(count);
        return count > 0;
    };
    if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
    const bool whole = skipDigits();
    if (text.empty()) return whole;
    if (text[0] != '.' && text[0] != ',') return false;
    text.remove_prefix(1);
    const bool fraction = skipDigits();
    return text.empty() && (whole || fraction);
}

}  // namespace

KeyWrites WritesOf(const SettingsValues& values, const core::ProgramFiles& program,
                   bool scriptIsOn) {
    KeyWrites writes;
    Writer to(writes);
    AddProgramWide(to, values);
    AddPathsAndFlags(to, values, program);
    if (values.OpenVBS) {
        to.Number(keys::RunVBS_Script, values.DeMulAutostart);
    } else if (scriptIsOn) {
        to.Number(keys::RunVBS_Script, 0);
    }
    to.Row(keys::UseJoystickExitbutton, values.KillButtonKombo);
    const auto seconds = WholeNumber(values.SecondsTimerTxt);
    writes.complete = seconds.has_value();
    if (!seconds) return writes;
    to.Number(keys::SplashTimerInSettings, *seconds);
    AddParameters(to, values);
    return writes;
}

std::optional<int> WholeNumber(std::string_view text) {
    text = text::Trim(text);
    if (!IsNumber(text)) return std::nullopt;
    const auto number = text::ToNumber(text);
    return number ? std::optional<int>(*number) : std::nullopt;
}

std::string ProtectedValue(const std::string& value) {
    const bool losesQuotes = profile::ReadableValue(value) != profile::TrimBlanksAndTabs(value);
    return losesQuotes ? '"' + value + '"' : value;
}

SettingsValues SettingsStore::Load() {
    const keys::Profiles profiles = core::ProfilesOf(program);
    SettingsValues values;
    values.TxtRomPath = ShownRomPath(program, files, ini.Read(keys::RomPath, profiles));
    values.ResetScreenRes = ini.Read(keys::ResetScreenResolution, profiles);
    values.txtWinUAEExe = ShownEmulatorPath(program, files, ini.Read(keys::EmulatorPath, profiles));
    values.TxtKickstartRomFile =
        ShownFilePath(program, files, ini.Read(keys::KickstartRom, profiles));
    values.Joystickcheck = ini.Read(keys::UseJoystickInSettings, profiles);
    const int button = ini.Read(keys::UseJoystickExitbutton, profiles);
    values.KillButtonKombo = button >= 0 && button < killButtonRows ? button : -1;
    values.IntelligenteRomauswahl = ini.Read(keys::SmartRomSelection, profiles);
    values.DirBefehleTxt = ini.Read(keys::Dir_ParameterInSettings, profiles);
    values.DeMulAutostart = ScriptIsOn() ? 1 : 0;
    values.AutoMoundDeamonTools = ini.Read(keys::AutoMountDeamonTool, profiles);
    values.DeamonPath = ini.Read(keys::DeamonToolPath, profiles);

    values.FullscreenCheck = ini.Read(keys::FullScreen, profiles);
    values.SecondsTimerTxt = std::to_string(ini.Read(keys::SplashTimerInSettings, profiles));
    values.UAEMasterConfigLaunchParameter = ini.Read(keys::WinUAE_ConfigParameter, profiles);
    values.UAELaunchParaneter = ini.Read(keys::EmulatorParameter, profiles);
    values.UAELaunchParameterAddPath = ini.Read(keys::EmulatorParameterAddDiskPath, profiles);
    values.ParameterWithoutPath = ini.Read(keys::EmulatorParameterAddDiskPathWithoutPath, profiles);
    values.UseMasterConfig = ini.Read(keys::WinUAE_UseMasterConfig, profiles);
    values.UseAnfz = ini.Read(keys::UseQuote, profiles);
    return values;
}

bool SettingsStore::ScriptIsOn() {
    return ini.Read(keys::RunVBS_Script, core::ProfilesOf(program)) > 0;
}

SettingsStore::Saved SettingsStore::Save(const SettingsValues& values) {
    const KeyWrites writes = WritesOf(values, program, ScriptIsOn());
    Saved saved;
    saved.complete = writes.complete;
    const keys::Profiles profiles = core::ProfilesOf(program);
    if (!SaveProfile(writes, profiles.program)) saved.failed.push_back(profiles.program);
    // Without an emulator both are one file.
    if (profiles.emulator != profiles.program && !SaveProfile(writes, profiles.emulator))
        saved.failed.push_back(profiles.emulator);
    return saved;
}

bool SettingsStore::SaveProfile(const KeyWrites& writes, const std::string& file) {
    const keys::Profiles profiles = core::ProfilesOf(program);
    auto document = ini.LoadProfile(file);
    if (!document) return false;
    for (const KeyWrite& write : writes.list) {
        if (profiles.Of(write.key->profile) == file)
            document->Set(keys::section, write.key->name, write.value);
    }
    return ini.StoreProfile(*document, file, true);
}

}  // namespace kivu::settings
