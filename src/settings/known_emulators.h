#pragma once

#include <string_view>
#include <vector>

// What the launcher knows about emulators: by which name each program is recognised, and what its
// profile then needs. Nothing here touches a control or a file.
namespace kivu::settings {

// The settings window's controls that a row fills, by their names.
enum class Field {
    UseMasterConfig,
    AutoMoundDeamonTools,
    FullscreenCheck,
    UAEMasterConfigLaunchParameter,
    UAELaunchParaneter,
    UseAnfz,
    UAELaunchParameterAddPath,
    DirBefehleTxt,
    IntelligenteRomauswahl,
    TxtMasterConfig,
    SecondsTimerTxt,
    ParameterWithoutPath,
};

bool IsCheckBox(Field field);

// One control's new value: "0" or "1" for a check box, else its text.
struct Assignment {
    Field field;
    std::string_view value;

    bool operator==(const Assignment&) const = default;
};

// In the order in which they are made; each runs its control's change handler.
using Assignments = std::vector<Assignment>;

// What every accepted row starts from.
const Assignments& EmulatorDefaults();

struct KnownEmulator {
    // One of them somewhere in the path's small letters. "\" separates, on whichever host.
    std::vector<std::string_view> matches;
    // As it stands in front of the question, with a blank at its end or without.
    std::string_view display;
    Assignments row;
    // Made before the defaults, which take them back.
    Assignments beforeDefaults = {};
    std::string_view titlePrefix = {};
    // One more program, by the whole name of its file.
    std::string_view fileName = {};
};

// In the order in which they are tried. Some can never be met: an earlier row takes their name, or
// they hold capitals, which no path in small letters has.
const std::vector<KnownEmulator>& KnownEmulators();

// The first row that the path meets; null for none.
const KnownEmulator* FindKnownEmulator(std::string_view path);

// False for a row that no path can meet.
bool CanBeMet(const KnownEmulator& emulator);

// What accepting a row assigns, in order, defaults included.
Assignments AssignmentsOf(const KnownEmulator& emulator);

}  // namespace kivu::settings
