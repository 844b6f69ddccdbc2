#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

// The table of all keys that profiles hold, but for those of the favourites' stores. Routines read
// and write by its entries (profile/ini.h), so that two of them that mean the same default cannot
// differ, and who wants another default has a line here.
//
// A new key: a line below in the group of its profile, the same name in All() (keys.cpp), and its
// default in tests/profile/keys_test.cpp. tests/tree finds what has been forgotten.
namespace kivu::profile::keys {

// One section holds all keys of a profile.
inline constexpr std::string_view section = "Settings";

// Whose profile: the program's, an emulator's, or the colours and title of an emulator's skin.
// Before an emulator has been selected, the first two are one file.
enum class Profile { program, emulator, skin };
using enum Profile;

// The files that a read or write goes to.
struct Profiles {
    std::string program = {};
    std::string emulator = {};
    std::string skin = {};

    const std::string& Of(Profile profile) const {
        return profile == Profile::program    ? program
               : profile == Profile::emulator ? emulator
                                              : skin;
    }
};

// Whether a read stores a default that it gives.
enum class WriteBack { on, off };

struct Entry {
    Profile profile;
    std::string_view name;
    std::string_view missing;  // the default, in the place of a missing or empty value
    // The file below src/ whose routine gives the key its meaning and reads by this entry, less its
    // ending; or "to come: " and what will.
    std::string_view owner;
    WriteBack writeBack;
    bool variant = false;  // of an entry above it, for readers with another default

    constexpr Entry(Profile profile, std::string_view name, std::string_view missing,
                    std::string_view owner, WriteBack writeBack = WriteBack::on)
        : profile(profile), name(name), missing(missing), owner(owner), writeBack(writeBack) {}
    constexpr Entry(const Entry& key, std::string_view missing, std::string_view owner,
                    WriteBack writeBack = WriteBack::on)
        : Entry(key.profile, key.name, missing, owner, writeBack) {
        variant = true;
    }
    // The same key in another profile.
    constexpr Entry(Profile profile, const Entry& key, std::string_view owner)
        : Entry(key, key.missing, owner, key.writeBack) {
        this->profile = profile;
    }
};

// What a read gives.
struct Text : Entry {
    using Entry::Entry;
};
// A 16-bit number, 0 when it is none.
struct Number : Entry {
    using Entry::Entry;
};
// A 32-bit number, empty when it is none.
struct Wide : Entry {
    using Entry::Entry;
};
// A 32-bit number, in twips. The reader gives what it has at present as the default; that also
// stays when what is stored is no number.
struct Present : Entry {
    constexpr Present(Profile profile, std::string_view name, std::string_view owner)
        : Entry(profile, name, {}, owner) {}
};
// A text with the reader's present one as the default.
struct PresentText : Entry {
    constexpr PresentText(const Entry& key, std::string_view owner, WriteBack writeBack)
        : Entry(key, {}, owner, writeBack) {}
};

inline constexpr std::string_view settingsStore = "settings/settings_store";

// --- The program's profile.

inline constexpr Wide WindowState{program, "WindowState", "0", "core/start_up"};
// A size, whatever the names say.
inline constexpr Present WindowX{program, "WindowX", "core/start_up"};
inline constexpr Present WindowY{program, "WindowY", "core/start_up"};
inline constexpr Present WindowTop{program, "WindowTop", "core/start_up"};
inline constexpr Present WindowLeft{program, "WindowLeft", "core/start_up"};
inline constexpr Text LastEmulator{program, "LastEmulator", "", "core/start_up"};
inline constexpr Number ResetScreenResolution{program, "ResetScreenResolution", "0",
                                              "core/emulator_switch"};
// Whoever reads the next two first fixes them for a fresh profile: at the start the loader does.
inline constexpr Number UseJoystick{program, "UseJoystick", "1", "core/settings_loader"};
inline constexpr Number UseJoystickInLaunch{UseJoystick, "0", "launch/game_launch"};
inline constexpr Number UseJoystickInSettings{UseJoystick, "0", settingsStore};
inline constexpr Number UseJoystickExitbutton{program, "UseJoystickExitbutton", "0",
                                              "core/settings_loader"};
inline constexpr Number UseJoystickExitbuttonInLaunch{UseJoystickExitbutton, "1",
                                                      "launch/game_launch"};
// A row of FontSizeCombo, whose row 0 is size 8.
inline constexpr Number Fontsize{program, "Fontsize", "16", "core/settings_loader"};
inline constexpr Text DeamonToolPath{program, "DeamonToolPath", "", settingsStore};
// An emulator's own, where the program's has none.
inline constexpr Text DeamonToolPathOfEmulator{emulator, DeamonToolPath, "launch/start_helpers"};
// The device's button for each action.
inline constexpr std::array<Number, 12> Buttons{{
    {program, "Button1", "0", "core/settings_loader"},
    {program, "Button2", "1", "core/settings_loader"},
    {program, "Button3", "2", "core/settings_loader"},
    {program, "Button4", "3", "core/settings_loader"},
    {program, "Button5", "4", "core/settings_loader"},
    {program, "Button6", "5", "core/settings_loader"},
    {program, "Button7", "6", "core/settings_loader"},
    {program, "Button8", "7", "core/settings_loader"},
    {program, "Button9", "8", "core/settings_loader"},
    {program, "Button10", "9", "core/settings_loader"},
    {program, "Button11", "10", "core/settings_loader"},
    {program, "Button12", "11", "core/settings_loader"},
}};

// --- An emulator's profile.

// A path may be relative to the program's directory.
inline constexpr Text RomPath{emulator, "RomPath", "", "core/settings_loader"};
inline constexpr Text EmulatorPath{emulator, "EmulatorPath", "", "core/settings_loader"};
// Of an emulator that need not be the selected one.
inline constexpr Text EmulatorPathInSetup{EmulatorPath, "", "launch/emulator_setup",
                                          WriteBack::off};
inline constexpr Text EmulatorPathInKill{EmulatorPath, "*.exe", "launch/running_watch"};
inline constexpr Text KickstartRom{emulator, "KickstartRom", "", "core/settings_loader"};
inline constexpr Number FullScreen{emulator, "FullScreen", "1", "core/settings_loader"};
// The place of the drives panel, and whether it is the panel's own one in the right column.
inline constexpr Present DrvWindowX{emulator, "DrvWindowX", "core/settings_loader"};
inline constexpr Present DrvWindowY{emulator, "DrvWindowY", "core/settings_loader"};
inline constexpr Text DrvWindowDocked{emulator, "DrvWindowDocked", "", "core/settings_loader",
                                      WriteBack::off};
inline constexpr Number SmartRomSelection{emulator, "SmartRomSelection", "1",
                                          "core/settings_loader"};
inline constexpr Number SmartRomSelectionInList{SmartRomSelection, "0", "launch/drive_slots"};
// A question of keys and marks, which must not decide for a click.
inline constexpr Number SmartRomSelectionAsked{SmartRomSelection, "0", "launch/drive_slots",
                                               WriteBack::off};
// As with the joystick, the first of the two fixes it.
inline constexpr Text Dir_Parameter{emulator, "Dir_Parameter", "*.*", "library/game_lists"};
inline constexpr Text Dir_ParameterInSettings{Dir_Parameter, "*.adf", settingsStore};
inline constexpr Wide RomCount{emulator, "RomCount", "-1", "library/emulator_box", WriteBack::off};
// Seconds.
inline constexpr Number SplashTimer{emulator, "SplashTimer", "6", "launch/game_launch"};
inline constexpr Number SplashTimerInSettings{SplashTimer, "4", settingsStore};
inline constexpr Number UseQuote{emulator, "UseQuote", "0", "launch/game_launch"};
inline constexpr Text WinUAE_ConfigParameter{emulator, "WinUAE_ConfigParameter", "",
                                             "launch/game_launch"};
inline constexpr Number WinUAE_UseMasterConfig{emulator, "WinUAE_UseMasterConfig", "1",
                                               "core/emulator_switch"};
inline constexpr Text EmulatorParameter{emulator, "EmulatorParameter", "", "launch/game_launch"};
inline constexpr Number EmulatorParameterAddDiskPath{emulator, "EmulatorParameterAddDiskPath", "0",
                                                     "launch/game_launch"};
inline constexpr Number EmulatorParameterAddDiskPathWithoutPath{
    emulator, "EmulatorParameterAddDiskPathWithoutPath", "0", "launch/game_launch"};
inline constexpr Number AutoMountDeamonTool{emulator, "AutoMountDeamonTool", "0",
                                            "launch/game_launch"};
inline constexpr Number RunVBS_Script{emulator, "RunVBS_Script", "0", "launch/game_launch",
                                      WriteBack::off};

// --- A skin's profile.

// "#RRGGBB".
inline constexpr Text BackColor{skin, "BackColor", "#0052bc", "ui/window_colors"};
inline constexpr Text FontColor{skin, "FontColor", "#FFFFFF", "ui/window_colors"};
// Not stored: a colour that is only tried must not become the skin's.
inline constexpr PresentText BackColorInSettings{BackColor, "settings/looks_group", WriteBack::off};
inline constexpr PresentText FontColorInSettings{FontColor, "settings/looks_group", WriteBack::off};
inline constexpr Text TitleString{skin, "TitleString", "Kivu 1.4b", "core/emulator_switch"};
// Only users write it.
inline constexpr Text DownloadURL{skin, "DownloadURL", "", "core/emulator_switch"};

// Every entry, in this order.
std::vector<const Entry*> All();

}  // namespace kivu::profile::keys
