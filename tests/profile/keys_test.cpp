#include "profile/keys.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "profile/ini.h"
#include "testing/memory_file_system.h"
#include "text/text.h"

namespace kivu::profile {
namespace {

enum class Gives { text, number, wide, present, presentText };

Gives GivenBy(const keys::Text&) {
    return Gives::text;
}
Gives GivenBy(const keys::Number&) {
    return Gives::number;
}
Gives GivenBy(const keys::Wide&) {
    return Gives::wide;
}
Gives GivenBy(const keys::Present&) {
    return Gives::present;
}
Gives GivenBy(const keys::PresentText&) {
    return Gives::presentText;
}

// What is told of an entry, written down a second time.
struct Told {
    template <typename Key>
    Told(const Key& key, keys::Profile profile, std::string_view name, Gives gives,
         std::string_view missing, bool stored = true)
        : key(&key),
          given(GivenBy(key)),
          profile(profile),
          name(name),
          gives(gives),
          missing(missing),
          stored(stored) {}

    const keys::Entry* key;
    Gives given;
    keys::Profile profile;
    std::string_view name;
    Gives gives;
    std::string_view missing;
    bool stored;
};

const std::vector<Told>& ToldOfAll() {
    using enum keys::Profile;
    using enum Gives;
    static const std::vector<Told> rows{
        {keys::WindowState, program, "WindowState", wide, "0"},
        {keys::WindowX, program, "WindowX", present, ""},
        {keys::WindowY, program, "WindowY", present, ""},
        {keys::WindowTop, program, "WindowTop", present, ""},
        {keys::WindowLeft, program, "WindowLeft", present, ""},
        {keys::LastEmulator, program, "LastEmulator", text, ""},
        {keys::ResetScreenResolution, program, "ResetScreenResolution", number, "0"},
        {keys::UseJoystick, program, "UseJoystick", number, "1"},
        {keys::UseJoystickInLaunch, program, "UseJoystick", number, "0"},
        {keys::UseJoystickInSettings, program, "UseJoystick", number, "0"},
        {keys::UseJoystickExitbutton, program, "UseJoystickExitbutton", number, "0"},
        {keys::UseJoystickExitbuttonInLaunch, program, "UseJoystickExitbutton", number, "1"},
        {keys::Fontsize, program, "Fontsize", number, "16"},
        {keys::DeamonToolPath, program, "DeamonToolPath", text, ""},
        {keys::DeamonToolPathOfEmulator, emulator, "DeamonToolPath", text, ""},
        {keys::Buttons[0], program, "Button1", number, "0"},
        {keys::Buttons[1], program, "Button2", number, "1"},
        {keys::Buttons[2], program, "Button3", number, "2"},
        {keys::Buttons[3], program, "Button4", number, "3"},
        {keys::Buttons[4], program, "Button5", number, "4"},
        {keys::Buttons[5], program, "Button6", number, "5"},
        {keys::Buttons[6], program, "Button7", number, "6"},
        {keys::Buttons[7], program, "Button8", number, "7"},
        {keys::Buttons[8], program, "Button9", number, "8"},
        {keys::Buttons[9], program, "Button10", number, "9"},
        {keys::Buttons[10], program, "Button11", number, "10"},
        {keys::Buttons[11], program, "Button12", number, "11"},
        {keys::RomPath, emulator, "RomPath", text, ""},
        {keys::EmulatorPath, emulator, "EmulatorPath", text, ""},
        {keys::EmulatorPathInSetup, emulator, "EmulatorPath", text, "", false},
        {keys::EmulatorPathInKill, emulator, "EmulatorPath", text, "*.exe"},
        {keys::KickstartRom, emulator, "KickstartRom", text, ""},
        {keys::FullScreen, emulator, "FullScreen", number, "1"},
        {keys::DrvWindowX, emulator, "DrvWindowX", present, ""},
        {keys::DrvWindowY, emulator, "DrvWindowY", present, ""},
        {keys::DrvWindowDocked, emulator, "DrvWindowDocked", text, "", false},
        {keys::SmartRomSelection, emulator, "SmartRomSelection", number, "1"},
        {keys::SmartRomSelectionInList, emulator, "SmartRomSelection", number, "0"},
        {keys::SmartRomSelectionAsked, emulator, "SmartRomSelection", number, "0", false},
        {keys::Dir_Parameter, emulator, "Dir_Parameter", text, "*.*"},
        {keys::Dir_ParameterInSettings, emulator, "Dir_Parameter", text, "*.adf"},
        {keys::RomCount, emulator, "RomCount", wide, "-1", false},
        {keys::SplashTimer, emulator, "SplashTimer", number, "6"},
        {keys::SplashTimerInSettings, emulator, "SplashTimer", number, "4"},
        {keys::UseQuote, emulator, "UseQuote", number, "0"},
        {keys::WinUAE_ConfigParameter, emulator, "WinUAE_ConfigParameter", text, ""},
        {keys::WinUAE_UseMasterConfig, emulator, "WinUAE_UseMasterConfig", number, "1"},
        {keys::EmulatorParameter, emulator, "EmulatorParameter", text, ""},
        {keys::EmulatorParameterAddDiskPath, emulator, "EmulatorParameterAddDiskPath", number, "0"},
        {keys::EmulatorParameterAddDiskPathWithoutPath, emulator,
         "EmulatorParameterAddDiskPathWithoutPath", number, "0"},
        {keys::AutoMountDeamonTool, emulator, "AutoMountDeamonTool", number, "0"},
        {keys::RunVBS_Script, emulator, "RunVBS_Script", number, "0", false},
        {keys::BackColor, skin, "BackColor", text, "#0052bc"},
        {keys::FontColor, skin, "FontColor", text, "#FFFFFF"},
        {keys::BackColorInSettings, skin, "BackColor", presentText, "", false},
        {keys::FontColorInSettings, skin, "FontColor", presentText, "", false},
        {keys::TitleString, skin, "TitleString", text, "Kivu 1.4b"},
        {keys::DownloadURL, skin, "DownloadURL", text, ""},
    };
    return rows;
}

TEST(KeysTest, EachEntryIsAsTold) {
    for (const Told& told : ToldOfAll()) {
        SCOPED_TRACE(std::string(told.name));
        EXPECT_EQ(told.key->profile, told.profile);
        EXPECT_EQ(told.key->name, told.name);
        EXPECT_EQ(told.given, told.gives);
        EXPECT_EQ(told.key->missing, told.missing);
        EXPECT_EQ(told.key->writeBack == keys::WriteBack::on, told.stored);
    }
}

TEST(KeysTest, AllEntriesAreTold) {
    std::vector<const keys::Entry*> told;
    for (const Told& row : ToldOfAll())
        told.push_back(row.key);
    EXPECT_EQ(keys::All(), told);
}

// Before an emulator has been selected, the program's profile is the emulator's: what has one name
// there is one value.
TEST(KeysTest, NoKeyStandsTwice) {
    std::set<std::string> names;
    for (const keys::Entry* key : keys::All()) {
        if (key->variant) continue;
        EXPECT_TRUE(names.insert(text::ToLower(key->name)).second) << key->name;
    }
    EXPECT_EQ(names.size(), 46u);
}

TEST(KeysTest, VariantStandsBelowItsKeyAndDiffersFromIt) {
    std::map<std::string_view, const keys::Entry*> first;
    for (const keys::Entry* key : keys::All()) {
        SCOPED_TRACE(std::string(key->name));
        if (!key->variant) {
            first.emplace(key->name, key);
            continue;
        }
        const auto of = first.find(key->name);
        ASSERT_NE(of, first.end());
        EXPECT_TRUE(key->profile != of->second->profile || key->missing != of->second->missing ||
                    key->writeBack != of->second->writeBack);
    }
}

TEST(KeysTest, EachEntryHasAnOwner) {
    for (const keys::Entry* key : keys::All())
        EXPECT_FALSE(key->owner.empty()) << key->name;
}

class ReadByTheTable : public ::testing::Test {
 protected:
    void Put(const std::string& path, std::string_view lines) {
        disk.AddFile(path, "[Settings]\r\n" + std::string(lines));
    }
    std::string Lines(const std::string& path) const {
        const std::string bytes = disk.BytesOf(path);
        return bytes.starts_with("[Settings]\r\n") ? bytes.substr(12) : bytes;
    }

    kivu::testing::MemoryFileSystem disk;
    Ini ini{disk};
    const keys::Profiles profiles{"/kivu/Config/Kivu.ini", "/kivu/Config/Amiga/Kivu.ini",
                                  "/kivu/Config/Amiga/Skin/Skin.ini"};
};

TEST_F(ReadByTheTable, EachKeyIsLookedForInItsProfile) {
    Put(profiles.program, "Fontsize=20\r\nFullScreen=8\r\nTitleString=p\r\n");
    Put(profiles.emulator, "Fontsize=9\r\nFullScreen=0\r\nTitleString=e\r\n");
    Put(profiles.skin, "Fontsize=9\r\nFullScreen=8\r\nTitleString=s\r\n");
    EXPECT_EQ(ini.Read(keys::Fontsize, profiles), 20);
    EXPECT_EQ(ini.Read(keys::FullScreen, profiles), 0);
    EXPECT_EQ(ini.Read(keys::TitleString, profiles), "s");
}

TEST_F(ReadByTheTable, FirstReaderFixesTheDefaultForTheOthers) {
    Put(profiles.program, "");
    EXPECT_EQ(ini.Read(keys::UseJoystickInLaunch, profiles), 0);
    EXPECT_EQ(ini.Read(keys::UseJoystick, profiles), 0);
    EXPECT_EQ(Lines(profiles.program), "UseJoystick=0\r\n");
    Put(profiles.emulator, "");
    EXPECT_EQ(ini.Read(keys::Dir_ParameterInSettings, profiles), "*.adf");
    EXPECT_EQ(ini.Read(keys::Dir_Parameter, profiles), "*.adf");
    EXPECT_EQ(Lines(profiles.emulator), "Dir_Parameter=*.adf\r\n");
}

// The value while the key is missing, for entries of any kind.
struct DefaultOf {
    Ini& ini;
    const keys::Profiles& profiles;

    std::string operator()(const keys::Text& key) const { return ini.Read(key, profiles); }
    std::string operator()(const keys::Number& key) const {
        return std::to_string(ini.Read(key, profiles));
    }
    std::string operator()(const keys::Wide& key) const {
        return std::to_string(ini.Read(key, profiles).value_or(-99));
    }
    std::string operator()(const keys::Present& key) const {
        return std::to_string(ini.Read(key, profiles, 480));
    }
    std::string operator()(const keys::PresentText& key) const {
        return ini.Read(key, profiles, "#123456");
    }
};

TEST_F(ReadByTheTable, DefaultIsGivenAndStoredOrNot) {
    const DefaultOf read{ini, profiles};
    Put(profiles.program, "");
    EXPECT_EQ(read(keys::WindowState), "0");
    EXPECT_EQ(read(keys::WindowX), "480");
    EXPECT_EQ(read(keys::LastEmulator), "");
    EXPECT_EQ(read(keys::Fontsize), "16");
    EXPECT_EQ(Lines(profiles.program), "WindowState=0\r\nWindowX=480\r\nFontsize=16\r\n");
    Put(profiles.emulator, "");
    EXPECT_EQ(read(keys::RomCount), "-1");
    EXPECT_EQ(read(keys::RunVBS_Script), "0");
    EXPECT_EQ(read(keys::EmulatorPathInSetup), "");
    EXPECT_EQ(Lines(profiles.emulator), "");
    EXPECT_EQ(read(keys::EmulatorPathInKill), "*.exe");
    EXPECT_EQ(Lines(profiles.emulator), "EmulatorPath=*.exe\r\n");
    Put(profiles.skin, "");
    EXPECT_EQ(read(keys::BackColorInSettings), "#123456");
    EXPECT_EQ(Lines(profiles.skin), "");
    EXPECT_EQ(read(keys::BackColor), "#0052bc");
    EXPECT_EQ(Lines(profiles.skin), "BackColor=#0052bc\r\n");
}

TEST_F(ReadByTheTable, EntryThatIsNotStoredMakesNoFile) {
    disk.AddDirectory("/kivu/Config/Amiga");
    EXPECT_EQ(ini.Read(keys::RomCount, profiles), -1);
    EXPECT_EQ(ini.Read(keys::RunVBS_Script, profiles), 0);
    EXPECT_FALSE(disk.FileExists(profiles.emulator));
    EXPECT_EQ(ini.Read(keys::FullScreen, profiles), 1);
    EXPECT_TRUE(disk.FileExists(profiles.emulator));
}

TEST_F(ReadByTheTable, WhatIsNoNumberCountsByKind) {
    Put(profiles.program, "Fontsize=big\r\nWindowX=wide\r\nWindowState=x\r\nWindowY=70000\r\n");
    EXPECT_EQ(ini.Read(keys::Fontsize, profiles), 0);
    EXPECT_EQ(ini.Read(keys::WindowX, profiles, 480), 480);
    EXPECT_EQ(ini.Read(keys::WindowState, profiles), std::nullopt);
    EXPECT_EQ(ini.Read(keys::WindowY, profiles, 480), 70000);
}

TEST_F(ReadByTheTable, OneProfileAloneIsEnoughForItsKeys) {
    Put("/kivu/Config/C64/Kivu.ini", "RomCount=12\r\n");
    EXPECT_EQ(ini.Read(keys::RomCount, {.emulator = "/kivu/Config/C64/Kivu.ini"}), 12);
}

TEST_F(ReadByTheTable, WriteGoesToTheKeysProfileAndMakesIt) {
    disk.AddDirectory("/kivu/Config/Amiga");
    ini.Write(keys::RomCount, profiles, "7");
    ini.Write(keys::UseJoystickInLaunch, profiles, "0");
    EXPECT_EQ(Lines(profiles.emulator), "RomCount=7\r\n");
    EXPECT_EQ(Lines(profiles.program), "UseJoystick=0\r\n");
    EXPECT_EQ(ini.ReadBytes(keys::LastEmulator, profiles), "");
    ini.Write(keys::LastEmulator, profiles, "Amiga 500");
    EXPECT_EQ(ini.ReadBytes(keys::LastEmulator, profiles), "Amiga 500");
}

}  // namespace
}  // namespace kivu::profile
