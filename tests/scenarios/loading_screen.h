#pragma once

#include <functional>

#include "scenarios/preview_collection.h"

namespace kivu::scenarios {

// Games that start behind a loading screen.
class LoadingScreen : public PreviewScenario {
 protected:
    LoadingScreen() {
        Splash("6");
        tree.AddEmulator("Beta", {{"RomPath", "/Roms/Beta"},
                                  {"EmulatorPath", "/Emu/beta"},
                                  {"WinUAE_UseMasterConfig", "0"},
                                  {"SplashTimer", "6"}});
    }
    void Splash(const std::string& seconds, const ProgramDirectory::Settings& more = {}) {
        ProgramDirectory::Settings settings{{"RomPath", "/Roms/Alpha"},
                                            {"EmulatorPath", "/Emu/alpha"},
                                            {"RomCount", "3"},
                                            {"WinUAE_UseMasterConfig", "0"},
                                            {"SplashTimer", seconds}};
        settings.insert(settings.end(), more.begin(), more.end());
        tree.AddEmulator("Alpha", settings);
    }
    // A launch that lets events run before its emulator is named.
    void SplashWithMount(const std::string& seconds) {
        Splash(seconds, {{"AutoMountDeamonTool", "1"}});
    }
    // What happens once, when events run behind the screen or in front of the emulator.
    void DuringLaunch(std::function<void()> act) {
        Host().events.onEvents = [this, act = std::move(act), done = false]() mutable {
            const bool mounting = Form().LoadingBtn.Caption() == "Deamon Tools..";
            if (done || !mounting) return;
            done = true;
            act();
        };
    }

    bool IsUp() {
        const forms::Form* screen = session->Screen().Find("LoadingInfo");
        return screen && session->Screen().IsOpen(*screen);
    }
    Json Screen(const std::string& name) {
        return Do("get", "LoadingInfo." + name).value("value", Json());
    }
    void Click(const std::string& control) { Do("click", "LoadingInfo" + control); }
    void Tick(int count = 1) { Do("tick", "LoadingInfo.Timer1", count); }
    void Later(int milliseconds) { Host().clock.MoveOn(std::chrono::milliseconds(milliseconds)); }
    std::size_t Runs() { return Do("runs")["value"].size(); }
    std::size_t Boxes() { return Do("boxes")["value"].size(); }
    std::string GameImage() {
        const std::string path = Screen("GameImage.Picture");
        return path.substr(path.find_last_of("/\\") + 1);
    }
};

}  // namespace kivu::scenarios
