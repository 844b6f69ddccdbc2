#include "settings/path_box.h"

#include "settings/path_fields.h"

namespace kivu::settings {

bool CanBeTested(const forms::TextBox& box) {
    return !box.HasFocus() || !IsTestedOnLeaving(box.Text());
}

bool CanBeTested(const SettingsForm& form, const forms::TextBox& box) {
    return !form.Loading && CanBeTested(box);
}

void ResolveTyped(forms::TextBox& box, const platform::FileSystem& files,
                  const text::PathTest& isThere) {
    const std::string typed = TypedPath(box.Text(), files.HomeDirectory());
    if (typed != box.Text() && !isThere(box.Text())) box.SetText(typed);
}

}  // namespace kivu::settings
