#include "profile/keys.h"

namespace kivu::profile::keys {

std::vector<const Entry*> All() {
    std::vector<const Entry*> all{
        &WindowState,
        &WindowX,
        &WindowY,
        &WindowTop,
        &WindowLeft,
        &LastEmulator,
        &ResetScreenResolution,
        &UseJoystick,
        &UseJoystickInLaunch,
        &UseJoystickInSettings,
        &UseJoystickExitbutton,
        &UseJoystickExitbuttonInLaunch,
        &Fontsize,
        &DeamonToolPath,
        &DeamonToolPathOfEmulator,
    };
    for (const Number& button : Buttons)
        all.push_back(&button);
    all.insert(all.end(), {
                              &RomPath,
                              &EmulatorPath,
                              &EmulatorPathInSetup,
                              &EmulatorPathInKill,
                              &KickstartRom,
                              &FullScreen,
                              &DrvWindowX,
                              &DrvWindowY,
                              &DrvWindowDocked,
                              &SmartRomSelection,
                              &SmartRomSelectionInList,
                              &SmartRomSelectionAsked,
                              &Dir_Parameter,
                              &Dir_ParameterInSettings,
                              &RomCount,
                              &SplashTimer,
                              &SplashTimerInSettings,
                              &UseQuote,
                              &WinUAE_ConfigParameter,
                              &WinUAE_UseMasterConfig,
                              &EmulatorParameter,
                              &EmulatorParameterAddDiskPath,
                              &EmulatorParameterAddDiskPathWithoutPath,
                              &AutoMountDeamonTool,
                              &RunVBS_Script,
                              &BackColor,
                              &FontColor,
                              &BackColorInSettings,
                              &FontColorInSettings,
                              &TitleString,
                              &DownloadURL,
                          });
    return all;
}

}  // namespace kivu::profile::keys
