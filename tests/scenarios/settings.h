#pragma once

#include <functional>
#include <string>
#include <utility>

#include "scenarios/scenario.h"

namespace kivu::scenarios {

// The settings window over the main one.
class SettingsScenario : public LoadedScenario {
 protected:
    static constexpr const char* programProfile = "Config/Kivu.ini";
    static constexpr const char* profile = "Config/Alpha/Kivu.ini";

    // Opens the window, and the user does that in it. `another`: in one that opens over it.
    void Open(std::function<void()> user, const char* button = "SettingsBtn") {
        int opened = 0;
        session->Screen().onModal = [&](forms::Form& form, const std::function<bool()>& isOpen) {
            if (form.Name() != "SettingsForm") {
                ASSERT_TRUE(another) << form.Name();
                another(form);
                return;
            }
            open = isOpen;
            ++opened;
            user();
        };
        Do("click", std::string("Form1.") + button);
        session->Screen().onModal = nullptr;
        EXPECT_EQ(opened, 1);
        ExpectGone();
    }
    void OpenShort(std::function<void()> user) { Open(std::move(user), "SettingsShortBtn"); }
    void ExpectGone() {
        EXPECT_TRUE(Refused("get", "SettingsForm.Caption"));
        const Json windows = Do("windows")["value"];
        for (const Json& window : windows)
            EXPECT_NE(window["modal"], true) << window;
    }

    Json Of(const std::string& name) {
        return Do("get", "SettingsForm." + name).value("value", Json());
    }
    std::string TextOf(const std::string& name) { return Of(name + ".Text").get<std::string>(); }
    bool Shown(const std::string& name) { return Of(name + ".Visible") == true; }
    bool On(const std::string& name) { return Of(name + ".Enabled") == true; }
    bool Unsaved() { return On("SaveBtn"); }
    template <typename Value>
    void Set(const std::string& name, Value value) {
        Do("set", "SettingsForm." + name, value);
    }
    void Click(const std::string& name) { Do("click", "SettingsForm." + name); }
    void Key(const char* key) { Do("key", "SettingsForm", key); }
    void Save() {
        EXPECT_TRUE(Unsaved());
        Click("SaveBtn");
        EXPECT_FALSE(Unsaved());
    }
    Json Boxes() { return Do("boxes")["value"]; }
    std::string Stored(const char* key) { return tree.Stored(profile, key); }
    std::string StoredByProgram(const char* key) { return tree.Stored(programProfile, key); }

    std::function<bool()> open;
    std::function<void(forms::Form&)> another;
};

// The same for an emulator that is WinUAE, whose fields the window keeps.
class WinuaeSettings : public SettingsScenario {
 protected:
    WinuaeSettings() {
        tree.AddEmulator("Alpha", {{"RomPath", "/Roms/Alpha"},
                                   {"EmulatorPath", "/Emu/winuae.exe"},
                                   {"WinUAE_UseMasterConfig", "1"}});
        tree.Write("Emu/winuae.exe", "MZ");
    }
};

}  // namespace kivu::scenarios
