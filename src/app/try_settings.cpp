// The form of the settings window alone, with nothing behind it, until the window is joined:
//
//     try_settings [de] [main] [uae] [deamon] [colors] [plain] [points=N] [back=RRGGBB]
//                  [fore=RRGGBB] [screen=WxH] [shot=FILE.png]
//
// All that may ever be there is shown at once, but with "plain". "shot" keeps its picture and ends.

#include <QApplication>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "forms/look.h"
#include "settings/settings_form.h"
#include "view/form_view.h"
#include "view/style.h"
#include "view/text_measure.h"

namespace {

using namespace kivu;

struct Wishes {
    std::vector<std::string> words;

    bool Has(const std::string& word) const {
        return std::find(words.begin(), words.end(), word) != words.end();
    }
    std::string Value(const std::string& name, const std::string& otherwise) const {
        for (const std::string& word : words) {
            if (word.rfind(name + "=", 0) == 0) return word.substr(name.size() + 1);
        }
        return otherwise;
    }
    forms::Color Color(const std::string& name, const char* otherwise) const {
        const unsigned rgb = static_cast<unsigned>(std::stoul(Value(name, otherwise), nullptr, 16));
        return forms::Rgb(rgb >> 16, rgb >> 8, rgb);
    }
};

// As full as a user's own.
void Fill(settings::SettingsForm& window) {
    const bool german = window.IsGerman();
    window.EmuNameLabel.SetCaption("Commodore Amiga");
    window.txtWinUAEExe.SetText("C:\\Program Files\\Emulators\\WinUAE\\winuae.exe");
    window.TxtRomPath.SetText("/home/user/Games/Amiga/Disks/");
    window.DirBefehleTxt.SetText("*.adf, *.zip");
    window.SecondsTimerTxt.SetText("4");
    const auto choose = [](forms::ComboBox& box, const char* row) {
        box.AddItem(row);
        box.SetListIndex(0);
    };
    choose(window.KnownEmuCombo, "WinUAE (Amiga 500) (Windows, Wine)");
    choose(window.KillButtonKombo, german ? "Keinen" : "Button: 8");
    choose(window.FontSizeCombo, german ? "Schriftgröße: 14" : "Font size: 14");
    window.EmuDownload.SetCaption("Download: Project64");
    window.TxtMasterConfig.SetText("config_description=A500\r\nuse_gui=no\r\nchipmem_size=1\r\n");
    window.ColorSelect1.Option1.SetCaption(german ? "Hintergrund" : "Background");
    window.ColorSelect1.Option2.SetCaption(german ? "Schrift" : "Writing");
    const char* const names[]{german ? "Rot" : "Red", german ? "Grün" : "Green", "Blau"};
    for (std::size_t i = 0; i < 3; ++i)
        window.ColorSelect1.SliderName[i].SetCaption(names[i]);
    window.ColorSelect1.SampleText.SetCaption(german ? "Beispiel" : "Example");
    for (forms::CheckBox* box : {&window.UseMasterConfig, &window.UAELaunchParameterAddPath,
                                 &window.Joystickcheck, &window.AutoMoundDeamonTools})
        box->SetValue(1);
}

void ShowAll(settings::SettingsForm& window) {
    for (forms::Control* control : window.Controls()) {
        const auto* frame = dynamic_cast<forms::Frame*>(control);
        const bool pin = control->Parent() == &window.AlwaysOnTop1;
        if (pin || (frame && frame->IsRaised())) continue;
        control->SetVisible(true);
        if (control != &window.SaveBtn) control->SetEnabled(true);
    }
}

// As the launcher's own routine does.
void SetColors(forms::Form& window, forms::Color back, forms::Color fore) {
    window.SetBackColor(back);
    window.SetForeColor(fore);
    for (forms::Control* control : window.Controls()) {
        if (control->GetKind() == forms::Kind::commandButton) continue;
        const bool swapped = control->GetKind() == forms::Kind::textBox;
        control->SetBackColor(swapped ? fore : back);
        control->SetForeColor(swapped ? back : fore);
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const Wishes wishes{{argv + 1, argv + argc}};
    view::ApplyStyle();
    const view::TextMeasure measure;
    settings::SettingsForm window({&measure}, wishes.Has("de") ? 1 : 2);
    int wide = 1024, high = 768;
    std::sscanf(wishes.Value("screen", "1024x768").c_str(), "%dx%d", &wide, &high);
    const forms::Color back = wishes.Color("back", "0052bc"), fore = wishes.Color("fore", "ffffff");
    forms::TakeLook(window, {std::stod(wishes.Value("points", "10")), back, fore, back, fore},
                    {wide * forms::twipsPerPixel, high * forms::twipsPerPixel});
    SetColors(window, back, fore);
    Fill(window);
    if (!wishes.Has("plain")) ShowAll(window);
    window.ShowMainSettingsOnly(wishes.Has("main"));
    if (wishes.Has("uae")) window.TogglePanel(window.UAEFrame);
    if (wishes.Has("deamon")) window.TogglePanel(window.DeamonFrame);
    if (wishes.Has("colors")) window.TogglePanel(window.DarstellungFrame);
    view::FormView view(window);
    view.onClosed = [] { QApplication::quit(); };
    view.Show();
    const std::string focus = wishes.Value("focus", "");
    if (forms::Control* control = window.Find(focus)) control->SetFocus();
    const std::string shot = wishes.Value("shot", "");
    if (shot.empty()) return QApplication::exec();
    if (!QTest::qWaitForWindowExposed(&view.Window())) return EXIT_FAILURE;
    QApplication::processEvents();
    return view.Window().grab().save(QString::fromStdString(shot)) ? EXIT_SUCCESS : EXIT_FAILURE;
}
