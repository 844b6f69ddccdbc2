#include "settings/launch_group.h"

#include "settings/settings_form.h"

namespace kivu::settings {

LaunchGroup::LaunchGroup(SettingsForm& form, core::StartHelpers& helpers)
    : form(form), helpers(helpers) {
    const auto changed = [&form] { form.MarkUnsaved(); };
    for (forms::TextBox* field :
         {&form.DirBefehleTxt, &form.UAELaunchParaneter, &form.SecondsTimerTxt})
        field->onChange = changed;
    for (forms::CheckBox* box : {&form.UseAnfz, &form.ParameterWithoutPath})
        box->onClick = changed;
    form.UAELaunchParameterAddPath.onClick = [this] { UAELaunchParameterAddPath_Click(); };
    form.DeMulAutostart.onClick = [this] { DeMulAutostart_Click(); };
    form.OpenVBS.onClick = [this] { OpenVBS_Click(); };
    form.AutoMoundDeamonTools.onClick = [this] { AutoMoundDeamonTools_Click(); };
}

void LaunchGroup::UAELaunchParameterAddPath_Click() {
    form.MarkUnsaved();
    const bool path = form.UAELaunchParameterAddPath.Value() == 1;
    form.UseAnfz.SetVisible(path);
    form.ParameterWithoutPath.SetVisible(path);
    if (!path) form.UseAnfz.SetValue(0);
}

void LaunchGroup::DeMulAutostart_Click() {
    form.MarkUnsaved();
    form.OpenVBS.SetVisible(form.DeMulAutostart.Value() == 1);
}

void LaunchGroup::OpenVBS_Click() {
    helpers.EditStartScript();
}

void LaunchGroup::AutoMoundDeamonTools_Click() {
    form.MarkUnsaved();
    const bool mounts = form.AutoMoundDeamonTools.Value() == 1;
    form.DeamonButton.SetVisible(mounts);
    if (!mounts) form.DeamonFrame.SetVisible(false);
}

}  // namespace kivu::settings
