#pragma once

#include "forms/controls.h"
#include "platform/file_system.h"
#include "settings/settings_form.h"
#include "text/paths.h"

// The settings window's text boxes for paths.
namespace kivu::settings {

// False while a share's path is being typed: its server would be asked at each key.
bool CanBeTested(const forms::TextBox& box);
// The same, and false while values are being read, after which each is tested once.
bool CanBeTested(const SettingsForm& form, const forms::TextBox& box);

// What has been typed or pasted, as it is meant; see TypedPath. A text for which `isThere` holds
// stays: a name may have blanks or quotes at its ends.
void ResolveTyped(forms::TextBox& box, const platform::FileSystem& files,
                  const text::PathTest& isThere);

}  // namespace kivu::settings
