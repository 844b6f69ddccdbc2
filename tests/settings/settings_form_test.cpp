#include "settings/settings_form.h"

#include <algorithm>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <initializer_list>

#include "forms/access_keys.h"
#include "forms/look.h"
#include "forms/tab_order.h"
#include "forms/user_input.h"

namespace kivu::settings {
namespace {

using forms::Control;
using Names = std::vector<std::string>;
constexpr int german = 1, english = 2;

Names Stops(const SettingsForm& form) {
    Names names;
    for (const Control* stop : forms::TabStops(form))
        names.push_back(stop->Name());
    return names;
}

bool IsGroup(const SettingsForm& form, const Control& control) {
    return &control == &form.EmulatorGroup || &control == &form.StartGroup ||
           &control == &form.ProgramGroup;
}

bool IsRaised(const Control& control) {
    const auto* frame = dynamic_cast<const forms::Frame*>(&control);
    return frame && frame->IsRaised();
}

// As after boxes have been ticked and files been missed: all that can ever be there at once.
void ShowEverything(SettingsForm& form) {
    for (Control* control : form.Controls()) {
        control->SetVisible(true);
        control->SetEnabled(true);
    }
}

// Every language, shape and size of the text, on a small screen.
void InEach(const std::function<void(SettingsForm&, const std::string& where)>& look) {
    for (const int language : {german, english}) {
        for (const double points : {8.0, 10.0, 12.0, 16.0, 24.0, 40.0, 72.0}) {
            for (const bool main : {false, true}) {
                SettingsForm form({}, language);
                const int wide = 1024 * forms::twipsPerPixel;
                forms::TakeLook(form, {points}, {wide, wide * 3 / 4});
                ShowEverything(form);
                if (main) form.ShowMainSettingsOnly(true);
                form.SaveBtn.SetEnabled(true);
                const std::string where = std::to_string(points) + (main ? " main" : " full");
                EXPECT_LE(form.Width(), wide) << where;
                EXPECT_LE(form.Height(), wide * 3 / 4) << where;
                look(form, where);
            }
        }
    }
}

bool IsApart(const Control& a, const Control& b) {
    return a.Right() <= b.Left() || b.Right() <= a.Left() || a.Bottom() <= b.Top() ||
           b.Bottom() <= a.Top();
}

bool IsWithin(const Control& a, const Control& b) {
    return a.Left() >= b.Left() && a.Right() <= b.Right() && a.Top() >= b.Top() &&
           a.Bottom() <= b.Bottom();
}

// --- design

TEST(SettingsFormTest, OpensInTheStateOfUntickedBoxes) {
    const SettingsForm form({}, german);
    Names hidden, off;
    for (const Control* control : form.Controls()) {
        if (control->GetKind() == forms::Kind::image) continue;
        if (!control->Visible()) hidden.push_back(control->Name());
        if (!control->Enabled()) off.push_back(control->Name());
    }
    EXPECT_THAT(hidden,
                ::testing::UnorderedElementsAre("UseAnfz", "ParameterWithoutPath", "DeamonButton",
                                                "OpenVBS", "WinUAEBtn", "SetJOyBtn", "EmuDownload",
                                                "UAEFrame", "DeamonFrame", "DarstellungFrame"));
    EXPECT_THAT(off,
                ::testing::UnorderedElementsAre("SaveBtn", "KillButtonKombo", "TxtMasterConfig",
                                                "UAEMasterConfigLaunchParameter", "Command1",
                                                "FullscreenCheck", "Command3"));
    for (const forms::Image& sign : form.FehlerIcon)
        EXPECT_FALSE(sign.Visible());
    EXPECT_FALSE(form.HasOpenPanel());
}

TEST(SettingsFormTest, DesignIsThatOfAWindowBesideTheMainOne) {
    const SettingsForm form({}, german);
    EXPECT_EQ(form.Name(), "SettingsForm");
    EXPECT_FALSE(form.HasFrame());
    EXPECT_FALSE(form.IsResizable());
    EXPECT_FALSE(form.KeepsPlace());
    EXPECT_EQ(form.EnterButton(), nullptr);
    EXPECT_EQ(form.EscapeButton(), nullptr);
    EXPECT_TRUE(form.TxtMasterConfig.IsMultiLine());
    for (const forms::ComboBox* box :
         {&form.KnownEmuCombo, &form.KillButtonKombo, &form.FontSizeCombo})
        EXPECT_TRUE(box->IsChoice()) << box->Name();
    for (const forms::Label* label :
         {&form.EmuDownload, &form.FavoritenReparierenLabel, &form.Label7, &form.Label5})
        EXPECT_TRUE(label->TakesFocus()) << label->Name();
    for (const forms::Image& sign : form.FehlerIcon)
        EXPECT_EQ(sign.GetPicture().source, ":/fault");
    for (const forms::Image* cross : {&form.Picture1, &form.Picture2, &form.RemovePicEnabled})
        EXPECT_EQ(cross->GetPicture().source, ":/close");
}

TEST(SettingsFormTest, EachLetterMeansOneControl) {
    InEach([](SettingsForm& form, const std::string& where) {
        std::string letters;
        for (const Control* control : form.Controls()) {
            const std::string* caption = forms::CaptionWithAccessKey(*control);
            const char letter = caption ? forms::AccessKeyOf(*caption) : '\0';
            if (letter == '\0' || !control->IsReachable()) continue;
            EXPECT_EQ(letters.find(letter), std::string::npos) << control->Name() << where;
            letters += letter;
        }
        EXPECT_EQ(letters, form.IsGerman() ? "" : "sc") << where;
    });
}

// --- places

TEST(SettingsFormTest, PanelsStandWhereTheyAreTold) {
    const SettingsForm form({}, german);
    const auto corner = [](const Control& control) {
        return std::pair(control.Left(), control.Top());
    };
    EXPECT_EQ(corner(form.DeamonFrame), std::pair(1320, 1440));
    EXPECT_EQ(corner(form.DarstellungFrame), std::pair(4440, 1080));
    EXPECT_EQ(corner(form.UAEFrame), std::pair(2640, 1680));
    EXPECT_EQ(corner(form.BackgroundFrame), std::pair(-60, -60));
    EXPECT_EQ(form.BackgroundFrame.Width(), form.Width() + 120);
    EXPECT_EQ(form.BackgroundFrame.Height(), form.Height() + 120);
    EXPECT_EQ(&form.BackgroundFrame, form.Children().front());
    EXPECT_EQ(corner(form.DeMulAutostart), corner(form.UAELaunchParameterAddPath));
    EXPECT_EQ(form.OpenVBS.Top(), form.DeMulAutostart.Top());
    EXPECT_GE(form.OpenVBS.Left(), form.DeMulAutostart.Right());
}

// Loading places them once more, whether the window has taken its look before or not.
TEST(SettingsFormTest, PlacesFollowTheLook) {
    SettingsForm before({}, german), after({}, german);
    constexpr forms::Size room{30000, 30000};
    forms::TakeLook(before, {17}, room);
    const auto place = [](SettingsForm& form) {
        for (forms::Control* panel : {&form.UAEFrame, &form.DeamonFrame, &form.DarstellungFrame})
            panel->Move(0, 0, panel->Width(), panel->Height());
        form.PlacePanels();
        form.PlaceScriptBox();
        form.PlaceBackground();
    };
    place(before);
    place(after);
    forms::TakeLook(after, {17}, room);
    for (std::size_t i = 0; i < before.Controls().size(); ++i) {
        const Control& a = *before.Controls()[i];
        const Control& b = *after.Controls()[i];
        if (&a == &before.BackgroundFrame) continue;  // beyond the edges anyway
        EXPECT_NEAR(a.Left(), b.Left(), 1) << a.Name();
        EXPECT_NEAR(a.Top(), b.Top(), 1) << a.Name();
        EXPECT_NEAR(a.Width(), b.Width(), 2) << a.Name();
    }
}

TEST(SettingsFormTest, EverythingLiesOnWhatHoldsItAndNothingOverlaps) {
    InEach([](SettingsForm& form, const std::string& where) {
        for (const Control* a : form.Controls()) {
            if (a == &form.BackgroundFrame || !a->Visible()) continue;
            EXPECT_GE(a->Left(), 0) << a->Name() << where;
            EXPECT_GE(a->Top(), 0) << a->Name() << where;
            EXPECT_LE(a->Right(), a->Parent()->Width()) << a->Name() << where;
            EXPECT_LE(a->Bottom(), a->Parent()->Height()) << a->Name() << where;
            EXPECT_GT(a->Width(), 0) << a->Name() << where;
            for (const Control* b : form.Controls()) {
                const bool beside = a != b && b->Visible() && a->Parent() == b->Parent();
                if (!beside || b == &form.BackgroundFrame || IsRaised(*a) || IsRaised(*b)) continue;
                if (a->Parent() == &form.AlwaysOnTop1) continue;  // one of the three
                if (IsGroup(form, *a) && !IsGroup(form, *b)) continue;
                const bool inGroup = IsGroup(form, *b) && IsWithin(*a, *b);
                EXPECT_TRUE(IsApart(*a, *b) || inGroup)
                    << a->Name() << " and " << b->Name() << " at " << where;
            }
        }
    });
}

// Fields and buttons stand in columns.
TEST(SettingsFormTest, ColumnsAreAligned) {
    InEach([](SettingsForm& form, const std::string& where) {
        if (form.MainSettingsOnly) return;
        for (const Control* button : std::initializer_list<const Control*>{
                 &form.LaunchButton, &form.WinUAEBtn, &form.LoadBtn, &form.ReloadAllBtn,
                 &form.DeamonButton, &form.SetJOyBtn, &form.Command5, &form.IniBtn,
                 &form.ExitBtn}) {
            EXPECT_EQ(button->Left(), form.NewEmuBtn.Left()) << button->Name() << where;
            EXPECT_EQ(button->Right(), form.NewEmuBtn.Right()) << button->Name() << where;
        }
        EXPECT_NEAR(form.ScriptFrame.Left() + form.OpenVBS.Left(), form.NewEmuBtn.Left(), 1);
        EXPECT_EQ(form.txtWinUAEExe.Left(), form.TxtRomPath.Left()) << where;
        EXPECT_EQ(form.txtWinUAEExe.Right(), form.TxtRomPath.Right()) << where;
        EXPECT_EQ(form.KnownEmuCombo.Left(), form.DirBefehleTxt.Left()) << where;
        EXPECT_EQ(form.KnownEmuCombo.Left(), form.UAELaunchParaneter.Left()) << where;
    });
}

// --- tab order

TEST(SettingsFormTest, TabFollowsTheEye) {
    SettingsForm form({}, german);
    ShowEverything(form);
    for (Control* panel : {&form.UAEFrame, &form.DeamonFrame, &form.DarstellungFrame})
        panel->SetVisible(false);
    EXPECT_THAT(
        Stops(form),
        ::testing::ElementsAre(
            "NewEmuBtn", "txtWinUAEExe", "Command2", "LaunchButton", "KnownEmuCombo", "EmuDownload",
            "WinUAEBtn", "TxtRomPath", "BrowseDir", "LoadBtn", "DirBefehleTxt", "ReloadAllBtn",
            "UAELaunchParaneter", "UAELaunchParameterAddPath", "UseAnfz", "ParameterWithoutPath",
            "DeMulAutostart", "OpenVBS", "AutoMoundDeamonTools", "DeamonButton", "SecondsTimerTxt",
            "Joystickcheck", "KillButtonKombo", "SetJOyBtn", "ResetScreenRes", "FontSizeCombo",
            "Command5", "FensterRahmChk", "FavoritenReparierenLabel", "IniBtn", "Label7", "Label5",
            "DonateBtn", "SaveBtn", "ExitBtn"));
}

// A panel comes right behind its button, which stays within reach to close it again.
TEST(SettingsFormTest, TabGoesFromAButtonIntoItsPanel) {
    const auto behind = [](SettingsForm& form, forms::Frame& panel, const char* button) {
        ShowEverything(form);
        for (Control* other : {&form.UAEFrame, &form.DeamonFrame, &form.DarstellungFrame})
            other->SetVisible(false);
        form.TogglePanel(panel);
        Names stops = Stops(form);
        const auto at = std::find(stops.begin(), stops.end(), button);
        EXPECT_NE(at, stops.end()) << button;
        stops.erase(stops.begin(), at);
        return stops;
    };
    SettingsForm form({}, german);
    Names stops = behind(form, form.UAEFrame, "WinUAEBtn");
    stops.resize(9);
    EXPECT_THAT(stops, ::testing::ElementsAre("WinUAEBtn", "UseMasterConfig", "TxtMasterConfig",
                                              "UAEMasterConfigLaunchParameter", "Command1",
                                              "Command3", "FullscreenCheck",
                                              "IntelligenteRomauswahl", "TxtKickstartRomFile"));
    stops = behind(form, form.DeamonFrame, "DeamonButton");
    stops.resize(4);
    EXPECT_THAT(
        stops, ::testing::ElementsAre("DeamonButton", "DeamonPath", "Command4", "SecondsTimerTxt"));
    stops = behind(form, form.DarstellungFrame, "Command5");
    stops.resize(6);
    EXPECT_THAT(stops, ::testing::ElementsAre("Command5", "Option1", "ColSlider1", "ColSlider1",
                                              "ColSlider1", "SkinLines"));
}

TEST(SettingsFormTest, LaterPanelLiesInFront) {
    SettingsForm form({}, german);
    form.TogglePanel(form.DarstellungFrame);
    form.TogglePanel(form.UAEFrame);
    EXPECT_EQ(form.Children().back(), &form.UAEFrame);
    form.TogglePanel(form.DarstellungFrame);
    EXPECT_FALSE(form.DarstellungFrame.Visible());
    EXPECT_EQ(form.Children().back(), &form.UAEFrame);
    form.TogglePanel(form.DarstellungFrame);
    EXPECT_EQ(form.Children().back(), &form.DarstellungFrame);
    EXPECT_TRUE(form.UAEFrame.Visible());
}

// --- the reduced shape

TEST(SettingsFormTest, FullShapeIsLeftAsItIs) {
    SettingsForm form({}, german), other({}, german);
    form.ShowMainSettingsOnly(false);
    EXPECT_FALSE(form.MainSettingsOnly);
    for (std::size_t i = 0; i < form.Controls().size(); ++i)
        EXPECT_EQ(form.Controls()[i]->Visible(), other.Controls()[i]->Visible());
    EXPECT_EQ(form.Label1.Caption(), other.Label1.Caption());
    EXPECT_EQ(form.Width(), other.Width());
}

TEST(SettingsFormTest, ReducedShapeShowsTheGeneralSettingsAlone) {
    for (const int language : {german, english}) {
        SettingsForm form({}, language);
        ShowEverything(form);
        const int label14 = form.Label14.Top(), info = form.DeamonToolsIinfo.Top();
        const int cross = form.Picture2.Top();
        form.ShowMainSettingsOnly(true);
        EXPECT_TRUE(form.MainSettingsOnly);
        Names shown;
        for (const Control* control : form.Controls()) {
            if (control->Visible()) shown.push_back(control->Name());
        }
        EXPECT_THAT(shown,
                    ::testing::UnorderedElementsAre(
                        "Label11", "Joystickcheck", "ResetScreenRes", "FontSizeCombo", "SetJOyBtn",
                        "SaveBtn", "ExitBtn", "Label7", "Label5", "DonateBtn", "DeamonButton",
                        "Command4", "DeamonPath", "Picture2", "BackgroundFrame", "Label1"));
        EXPECT_EQ(form.Label1.Caption(), "General Settings:");
        EXPECT_EQ(form.Label11.Caption(), "");
        EXPECT_NEAR(form.Label1.Left() + form.Label1.Right(), form.Width(), 15);
        EXPECT_EQ(form.Label1.GetAlignment(), forms::Alignment::center);
        EXPECT_LT(form.Label14.Top(), label14);
        EXPECT_LT(form.DeamonToolsIinfo.Top(), info);
        EXPECT_LT(form.Picture2.Top(), cross);
        EXPECT_FALSE(form.SaveBtn.Enabled());
        EXPECT_EQ(form.BackgroundFrame.Width(), form.Width() + 120);
        for (const Control* control : {static_cast<Control*>(&form.FontSizeCombo),
                                       static_cast<Control*>(&form.DeamonButton)})
            EXPECT_EQ(control->Parent(), &form) << "a hidden frame would hide it";
    }
}

TEST(SettingsFormTest, TabGoesThroughTheReducedShapeAndItsPanel) {
    SettingsForm form({}, german);
    form.ShowMainSettingsOnly(true);
    form.SaveBtn.SetEnabled(true);
    EXPECT_THAT(Stops(form), ::testing::ElementsAre("DeamonButton", "Joystickcheck", "SetJOyBtn",
                                                    "ResetScreenRes", "FontSizeCombo", "Label7",
                                                    "Label5", "DonateBtn", "SaveBtn", "ExitBtn"));
    form.TogglePanel(form.DeamonFrame);
    EXPECT_THAT(Stops(form), ::testing::ElementsAre("DeamonButton", "DeamonPath", "Command4",
                                                    "ResetScreenRes", "FontSizeCombo", "Label7",
                                                    "Label5", "DonateBtn", "SaveBtn", "ExitBtn"));
}

}  // namespace
}  // namespace kivu::settings
