#include "settings/form_values.h"

#include "settings/settings_form.h"

namespace kivu::settings {

void ShowPathsAndBoxes(SettingsForm& form, const SettingsValues& values) {
    form.TxtRomPath.SetText(values.TxtRomPath);
    form.ResetScreenRes.SetValue(values.ResetScreenRes);
    form.txtWinUAEExe.SetText(values.txtWinUAEExe);
    form.TxtKickstartRomFile.SetText(values.TxtKickstartRomFile);
    form.Joystickcheck.SetValue(values.Joystickcheck);
    form.KillButtonKombo.SetListIndex(values.KillButtonKombo);
    form.IntelligenteRomauswahl.SetValue(values.IntelligenteRomauswahl);
    form.DirBefehleTxt.SetText(values.DirBefehleTxt);
    form.DeMulAutostart.SetValue(values.DeMulAutostart);
    form.AutoMoundDeamonTools.SetValue(values.AutoMoundDeamonTools);
    form.DeamonPath.SetText(values.DeamonPath);
}

void ShowParameters(SettingsForm& form, const SettingsValues& values) {
    form.FullscreenCheck.SetValue(values.FullscreenCheck);
    form.SecondsTimerTxt.SetText(values.SecondsTimerTxt);
    form.UAEMasterConfigLaunchParameter.SetText(values.UAEMasterConfigLaunchParameter);
    form.UAELaunchParaneter.SetText(values.UAELaunchParaneter);
    form.UAELaunchParameterAddPath.SetValue(values.UAELaunchParameterAddPath);
    form.ParameterWithoutPath.SetValue(values.ParameterWithoutPath);
    form.UseMasterConfig.SetValue(values.UseMasterConfig);
    // Behind the path's box, which takes the quotes away where it is off.
    form.UseAnfz.SetValue(values.UseAnfz);
}

SettingsValues ValuesOf(const SettingsForm& form) {
    SettingsValues values;
    values.Joystickcheck = form.Joystickcheck.Value();
    values.ResetScreenRes = form.ResetScreenRes.Value();
    values.FontSizeCombo = form.FontSizeCombo.ListIndex();
    values.DeamonPath = form.DeamonPath.Text();
    values.KillButtonKombo = form.KillButtonKombo.ListIndex();
    values.TxtKickstartRomFile = form.TxtKickstartRomFile.Text();
    values.TxtRomPath = form.TxtRomPath.Text();
    values.txtWinUAEExe = form.txtWinUAEExe.Text();
    values.AutoMoundDeamonTools = form.AutoMoundDeamonTools.Value();
    values.DirBefehleTxt = form.DirBefehleTxt.Text();
    values.FullscreenCheck = form.FullscreenCheck.Value();
    values.UseAnfz = form.UseAnfz.Value();
    values.DeMulAutostart = form.DeMulAutostart.Value();
    // The reduced shape hides it, and turns no script off by that.
    values.OpenVBS =
        form.OpenVBS.Visible() || (form.MainSettingsOnly && form.DeMulAutostart.Value() == 1);
    values.SecondsTimerTxt = form.SecondsTimerTxt.Text();
    values.UAEMasterConfigLaunchParameter = form.UAEMasterConfigLaunchParameter.Text();
    values.UAELaunchParaneter = form.UAELaunchParaneter.Text();
    values.UAELaunchParameterAddPath = form.UAELaunchParameterAddPath.Value();
    values.ParameterWithoutPath = form.ParameterWithoutPath.Value();
    values.UseMasterConfig = form.UseMasterConfig.Value();
    values.IntelligenteRomauswahl = form.IntelligenteRomauswahl.Value();
    return values;
}

}  // namespace kivu::settings
