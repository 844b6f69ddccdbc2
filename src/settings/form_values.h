#pragma once

#include "settings/settings_store.h"

namespace kivu::settings {

struct SettingsForm;

// Values into the controls, whose handlers run for those that are other ones. In two parts, as the
// window opens: the second one's parameters are shown when the paths' handlers have run.
void ShowPathsAndBoxes(SettingsForm& form, const SettingsValues& values);
void ShowParameters(SettingsForm& form, const SettingsValues& values);

// What stands in the controls now.
SettingsValues ValuesOf(const SettingsForm& form);

}  // namespace kivu::settings
