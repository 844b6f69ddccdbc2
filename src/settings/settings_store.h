#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/program_files.h"
#include "platform/file_system.h"
#include "profile/ini.h"
#include "profile/keys.h"

namespace kivu::settings {

// The values of the settings window's controls, by their names: 0 or 1 of a check box, the row of a
// combo box (-1: none), the text of a field.
struct SettingsValues {
    // Of the program.
    int Joystickcheck = 0;
    int ResetScreenRes = 0;
    int FontSizeCombo = -1;
    std::string DeamonPath;
    int KillButtonKombo = -1;  // row 0: none, then the buttons from 1 to 8

    // Of the emulator. Paths are absolute.
    std::string TxtKickstartRomFile;
    std::string TxtRomPath;
    std::string txtWinUAEExe;
    int AutoMoundDeamonTools = 0;
    std::string DirBefehleTxt;
    int FullscreenCheck = 0;
    int UseAnfz = 0;
    int DeMulAutostart = 0;
    bool OpenVBS = false;  // is visible
    std::string SecondsTimerTxt;
    std::string UAEMasterConfigLaunchParameter;
    std::string UAELaunchParaneter;
    int UAELaunchParameterAddPath = 0;
    int ParameterWithoutPath = 0;
    int UseMasterConfig = 0;
    int IntelligenteRomauswahl = 0;

    bool operator==(const SettingsValues&) const = default;
};

inline constexpr int killButtonRows = 9;

// One key's new value.
struct KeyWrite {
    const profile::keys::Entry* key;
    std::string value;
};

struct KeyWrites {
    std::vector<KeyWrite> list;  // in the order in which they are made
    // False: the seconds are no number. What would have come before them is in the list, and
    // nothing of what comes behind.
    bool complete = true;
};

// `scriptIsOn`: the profile has the start script on, which has to be turned off where the window
// says so.
KeyWrites WritesOf(const SettingsValues& values, const core::ProgramFiles& program,
                   bool scriptIsOn);

// The number that the whole text is, blanks around it aside; rounded. Empty: it is none, or does
// not fit 16 bits.
std::optional<int> WholeNumber(std::string_view text);

// The value so that a read gives it back, which takes one enclosing pair of quotes away.
std::string ProtectedValue(const std::string& value);

// Reads and writes what the settings window shows, but for the master configuration.
class SettingsStore {
 public:
    SettingsStore(const core::ProgramFiles& program, profile::Ini& ini,
                  const platform::FileSystem& files)
        : program(program), ini(ini), files(files) {}

    // Of what is missing, the window's default is stored. FontSizeCombo is the main window's row,
    // and OpenVBS the handlers' matter: both are left.
    SettingsValues Load();

    struct Saved {
        bool complete = true;             // see KeyWrites
        std::vector<std::string> failed;  // the profiles that could not be written
        bool IsDone() const { return complete && failed.empty(); }
    };
    // Each profile is read once and replaced in one step.
    Saved Save(const SettingsValues& values);

 private:
    bool SaveProfile(const KeyWrites& writes, const std::string& file);
    bool ScriptIsOn();

    const core::ProgramFiles& program;
    profile::Ini& ini;
    const platform::FileSystem& files;
};

}  // namespace kivu::settings
