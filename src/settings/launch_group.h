#pragma once

#include "core/ports.h"

namespace kivu::settings {

struct SettingsForm;

// How a game is started: the parameters, the boxes of its path, the mounting of its image, the
// start script and the seconds of the loading screen.
class LaunchGroup {
 public:
    // Joins the controls' events.
    LaunchGroup(SettingsForm& form, core::StartHelpers& helpers);
    LaunchGroup(const LaunchGroup&) = delete;
    LaunchGroup& operator=(const LaunchGroup&) = delete;

    void UAELaunchParameterAddPath_Click();
    void DeMulAutostart_Click();
    void OpenVBS_Click();
    void AutoMoundDeamonTools_Click();

 private:
    SettingsForm& form;
    core::StartHelpers& helpers;
};

}  // namespace kivu::settings
