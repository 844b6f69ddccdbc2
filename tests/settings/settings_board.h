#pragma once

#include <string>

#include "settings/detection.h"
#include "settings/known_emulators.h"
#include "settings/linux_emulators.h"
#include "settings/settings_store.h"

namespace kivu::settings {

// The settings window's controls and what their change handlers do to each other, without a window.
// A handler runs when a value changes.
struct SettingsBoard {
    SettingsValues values;

    // Answers every question of a detection with Yes, or with No.
    void Take(const Detection& detection, bool yes = true) {
        Make(detection.first);
        if (detection.question && yes) {
            Make(detection.onYes);
            if (!detection.pathOnYes.empty()) SetPath(detection.pathOnYes);
        }
        if (!detection.path.empty()) SetPath(detection.path);
    }

    void SetPath(const std::string& path) {
        if (values.txtWinUAEExe == path) return;
        values.txtWinUAEExe = path;
        PathChanged();
    }

    void PathChanged() {
        if (CountsAsWinUAE(values.txtWinUAEExe)) return;
        values.TxtKickstartRomFile.clear();
        values.IntelligenteRomauswahl = 0;
        values.UseMasterConfig = 0;
        values.UAEMasterConfigLaunchParameter.clear();
        values.FullscreenCheck = 0;
    }

    void Make(const Assignments& assignments) {
        for (const Assignment& one : assignments)
            Make(one);
    }

 private:
    void Make(const Assignment& one) {
        const std::string text(one.value);
        switch (one.field) {
            case Field::UseMasterConfig:
                return Master(text == "1");
            case Field::AutoMoundDeamonTools:
                return Check(values.AutoMoundDeamonTools, text);
            case Field::FullscreenCheck:
                return Check(values.FullscreenCheck, text);
            case Field::UseAnfz:
                return Check(values.UseAnfz, text);
            case Field::UAELaunchParameterAddPath:
                return AddPath(text == "1");
            case Field::IntelligenteRomauswahl:
                return Check(values.IntelligenteRomauswahl, text);
            case Field::ParameterWithoutPath:
                return Check(values.ParameterWithoutPath, text);
            case Field::UAEMasterConfigLaunchParameter:
                values.UAEMasterConfigLaunchParameter = text;
                return;
            case Field::UAELaunchParaneter:
                values.UAELaunchParaneter = text;
                return;
            case Field::DirBefehleTxt:
                values.DirBefehleTxt = text;
                return;
            case Field::SecondsTimerTxt:
                values.SecondsTimerTxt = text;
                return;
            case Field::TxtMasterConfig:
                return;
        }
    }

    static void Check(int& box, const std::string& text) { box = text == "1" ? 1 : 0; }

    void Master(bool on) {
        if (values.UseMasterConfig == on) return;
        values.UseMasterConfig = on;
        if (on && values.UAEMasterConfigLaunchParameter.empty())
            values.UAEMasterConfigLaunchParameter = "-f";
    }

    void AddPath(bool on) {
        if (values.UAELaunchParameterAddPath == on) return;
        values.UAELaunchParameterAddPath = on;
        if (!on) values.UseAnfz = 0;
    }
};

}  // namespace kivu::settings
