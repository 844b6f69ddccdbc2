// The settings window's form beside the launcher's window, with nothing behind it, until the window
// is joined:
//
//     try_settings PROGRAM_DIR [de|en] [full|main] [uae] [deamon] [colors]

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>

#include "app/desktop_host.h"
#include "forms/look.h"
#include "hosts/qt/compositing_qt.h"
#include "settings/settings_form.h"
#include "ui/window_look.h"
#include "view/form_view.h"
#include "view/screen_windows.h"
#include "view/style.h"
#include "view/text_measure.h"
#include "wiring/routines.h"

namespace {

using namespace kivu;
using Words = std::set<std::string>;

// As full as a user's own.
void Fill(settings::SettingsForm& window, core::Form1& main) {
    window.EmuNameLabel.SetCaption("Commodore Amiga");
    window.txtWinUAEExe.SetText("C:\\Program Files\\Emulators\\WinUAE\\winuae.exe");
    window.TxtRomPath.SetText("/home/user/Games/Amiga/Disks/");
    window.DirBefehleTxt.SetText("*.adf, *.zip");
    window.SecondsTimerTxt.SetText("4");
    window.KnownEmuCombo.AddItem("WinUAE (Amiga 500) (Windows, Wine)");
    window.KnownEmuCombo.SetListIndex(0);
    window.KillButtonKombo.AddItem("Keinen");
    window.KillButtonKombo.SetListIndex(0);
    for (int row = 0; row < main.FontSizeCombo.ListCount(); ++row)
        window.FontSizeCombo.AddItem(main.FontSizeCombo.List(row));
    window.FontSizeCombo.SetListIndex(main.FontSizeCombo.ListIndex());
    window.EmuDownload.SetCaption("Download: Project64");
    window.TxtMasterConfig.SetText("config_description=A500\r\nuse_gui=no\r\nchipmem_size=1\r\n");
    for (forms::CheckBox* box : {&window.UseMasterConfig, &window.UAELaunchParameterAddPath,
                                 &window.Joystickcheck, &window.AutoMoundDeamonTools})
        box->SetValue(1);
}

void ShowAll(settings::SettingsForm& window) {
    for (forms::Control* control : window.Controls()) {
        if (control->GetKind() == forms::Kind::image || control->GetKind() == forms::Kind::frame)
            continue;
        control->SetVisible(true);
        if (control != &window.SaveBtn) control->SetEnabled(true);
    }
    for (forms::Image& sign : window.FehlerIcon)
        sign.SetVisible(true);
}

}  // namespace

int main(int argc, char** argv) {
    app::PrepareToolkit();
    QApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s PROGRAM_DIR [de|en] [full|main] [PANELS]\n", argv[0]);
        return 2;
    }
    const Words words(argv + 2, argv + argc);
    view::ApplyStyle();
    app::DesktopHost host(1, argv);
    platform::Host services = host.Services();
    services.programDirectory = argv[1];
    services.programName = "Kivu";
    const view::TextMeasure measure;
    view::ScreenWindows windows;
    windows.SetCompositing(hosts::IsComposited);
    wiring::Launcher launcher(
        services, &measure, [] { std::_Exit(EXIT_SUCCESS); }, &windows);
    launcher.Start();
    core::Form1& main = launcher.MainWindow();
    view::FormView view(main);
    view.SetCompositing(hosts::IsComposited);
    view.onClosed = [] { QApplication::quit(); };
    windows.AdoptView(main, view);
    view.Show();

    settings::SettingsForm window(main.GetToolkit(), words.count("de") ? 1 : 2);
    forms::TakeLook(window, ui::LookOf(main), windows.Room(&main));
    ui::ColorSelect picker(window.ColorSelect1, main, launcher.All().windowColors,
                           {launcher.All().dialogs, launcher.All().host.systemColors});
    window.Load();
    launcher.All().windowColors.SetColors(window, static_cast<std::int32_t>(main.FormBackColor),
                                          static_cast<std::int32_t>(main.FormForeColor));
    Fill(window, main);
    if (!words.count("plain")) ShowAll(window);
    window.ShowMainSettingsOnly(words.count("main") != 0);
    if (words.count("uae")) window.TogglePanel(window.UAEFrame);
    if (words.count("deamon")) window.TogglePanel(window.DeamonFrame);
    if (words.count("colors")) window.TogglePanel(window.DarstellungFrame);
    windows.ShowModal(window, &main);
    return EXIT_SUCCESS;
}
