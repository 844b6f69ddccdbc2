#include "core/form1.h"

#include <utility>

namespace kivu::core {

using forms::Rgb;

FileScanControls::FileScanControls(forms::Container* parent)
    : frame(parent, "FileScanRecursive1"),
      ResultList(&frame, "ResultList", forms::ListControl::Order::sorted),
      TmpDirList(&frame, "TmpDirList", forms::ListControl::Order::asAdded),
      MyTmpFile(&frame, "MyTmpFile"),
      MyTmpDir(&frame, "MyTmpDir") {
    frame.SetIsUserControl(true);
    frame.Move(0, 0, 3000, 2000);
    ResultList.SetVisible(false);
    TmpDirList.SetVisible(false);
    MyTmpFile.SetVisible(false);
    MyTmpDir.SetVisible(false);
}

void TitleLine::SetCaption(std::string value) {
    Label::SetCaption(std::move(value));
    SetVisible(true);
}

Form1::Form1(forms::Toolkit toolkit) : forms::Form("Form1", toolkit) {
    DesignColors();
    DesignWindow();
    DesignLists();
    DesignFrame();
    DesignDrives();
    DesignCorner();
}

// Until a skin's own come.
void Form1::DesignColors() {
    const auto color = [](forms::Control& control) {
        control.SetBackColor(Rgb(0x00, 0x52, 0xbc));
        control.SetForeColor(Rgb(255, 255, 255));
    };
    color(*this);
    for (forms::Control* control : Controls())
        color(*control);
}

bool Form1::ChoiceInFront() const {
    return ModeIsChoice() && EmulatorLongListbox.Visible() && !FavoritenListeGlobal.Visible();
}

void Form1::ShowSearchBox(bool show) {
    SearchDblsTxt.SetVisible(show);
    SuchErg.SetVisible(show);
    SearchAllBtn.SetVisible(show);
}

void Form1::OfferFavourites() {
    AddToFavorit.SetVisible(true);
    AddToFavorit_Global.SetVisible(true);
}

int Form1::EmuListboxWidth() const {
    constexpr int twipsPerPoint = 220;
    return static_cast<int>(twipsPerPoint * EmuListbox.FontSize());
}

void Form1::DesignWindow() {
    Move(600, 600, 14400, 10200);
    SetCaption(defaultTitle);
    SetFont({"", 10, false});
    SetPicture({":/background", nullptr});
    // Its lists lie at one place, and their buttons come right behind them.
    SetTabOrder(forms::TabOrder::asCreated);
    EmuActiveTimer.SetRestsBehindQuestions(true);
    JoystickTimer.SetRestsBehindQuestions(true);
    ExitButtonTimer.SetRestsBehindQuestions(true);
    ListLeft = 300;

    MyCaptionLabel.Move(ListLeft + 60, 110, 9000, 330);
    MyCaptionLabel.SetFont({"", 10, true});
    MyCaptionLabel.SetCaption(defaultTitle);

    LoadingBtn.SetAlignment(forms::Alignment::center);
    LoadingBtn.SetFont({"", 18, true});
    LoadingBtn.SetVisible(false);
    LoadingBtn.SetCaption("Liste wird geladen...");
    Current_LoadingSmallBtn.SetAlignment(forms::Alignment::center);
    Current_LoadingSmallBtn.SetFont({"", 10, false});
    Current_LoadingSmallBtn.SetCaption(LoadingBtn.Caption());
    AppRunningPicture.Move(0, 0, 1920, 1920);
    AppRunningPicture.SetPicture({":/running", nullptr});
    AppRunningPicture.SetToolTipText("Emulator beenden");
    AppRunningPicture.SetVisible(false);
    // Both end the emulator: not by a click that only fetches the window.
    LoadingBtn.SetTakesActivatingClick(false);
    AppRunningPicture.SetTakesActivatingClick(false);
}

void Form1::DesignLists() {
    EmuListbox.SetFont({"", 16, false});
    EmuListbox.Move(ListLeft, 540, 3520, EmuListbox.Height());
    EmuListbox.SetToolTipText("Emulator auswählen");
    EmuListbox.SetChoice(true);
    EmulatorLongListbox.SetLeader(EmuListbox);
    EmulatorLongListbox.SetToolTipText(
        "Doppelklick öffneet den Emulator, Rechte Maustaste startet den Emulator im Setup-Modus");
    for (forms::ListBox* list :
         {&EmulatorLongListbox, &FavoritenListe, &WIthoutDoubles, &UAE_Short, &SuchErgList,
          &UAE_FULL, &FavoritenListeGlobal, &GlobalSearchList}) {
        list->SetFont({"", 11, false});
        list->Move(ListLeft, 1300, 9033, 8600);
        list->SetVisible(false);
    }
    UAE_Short.SetMultiSelect(true);
    Label1.SetCaption("Favoriten");
    Label2.SetCaption("Ohne Dubletten");
    Label3.SetCaption("Komplette Liste");
    Label4.SetCaption("Suchergebnisse");
    for (forms::Label* tab : {&Label1, &Label2, &Label3, &Label4}) {
        tab->SetFont({"", 11, false});
        tab->SetTop(700);
        tab->SetAutoSize(true);
    }
    Label4.SetVisible(false);
    EmulatorLongListbox.SetFont(Label4.GetFont());
    AddToFavorit.SetCaption("Add Favorite");
    AddToFavorit_Global.SetCaption("Add to global Favorites");
    DeLFav.SetCaption("Remove Favorite");
    for (forms::CommandButton* button : {&AddToFavorit, &AddToFavorit_Global, &DeLFav}) {
        button->Move(ListLeft, 0, 2200, 420);
        button->SetFont({"", 9, false});
        button->SetVisible(false);
        // They lie on SettingsFrame.
        button->BringToFront();
    }
}

void Form1::DesignFrame() {
    VorschauBild.SetVisible(false);
    GamePicture.SetVisible(false);
    GamePictureVis.SetKeepsProportions(true);
    SettingsFrame.Move(9433, 6000, 4800, 4000);
    Current_ProgramNameFull.Move(100, 200, 4600, 1000);
    Current_ProgramNameFull.SetFont({"", 15, false});
    // Several routines change its font; the eye wants one size.
    Current_ProgramNameFull.SetShownFontSize(15);
    SearchDblsTxt.SetText("Suche..");
    SearchDblsTxt.SetWidth(2250);
    // Also for who does not see what they are.
    SearchDblsTxt.SetToolTipText("Spiel suchen (Strg+F)");
    SuchErg.Move(0, 0, 330, 330);
    SuchErg.SetPicture({":/search", nullptr});
    SuchErg.SetToolTipText("Suchen");
    SearchAllBtn.SetCaption("ALL");
    SearchAllBtn.SetToolTipText("Srg + Return (Suche in allen Emulatoren)");
    SearchAllBtn.SetEnabled(false);
    SearchAllBtn.SetBackColor(Rgb(255, 255, 255));
    SearchAllBtn.Move(0, 0, 660, 420);
    LoadBtn.SetCaption("Liste Neu einlesen");
    // Until an emulator is loaded, whose games it could look for.
    LoadBtn.SetEnabled(false);
    LoadBtn.Move(0, 0, 2100, 420);
    SettingsBtn.SetCaption("Optionen..");
    SettingsBtn.SetToolTipText("Optionen..");
    SettingsShortBtn.SetCaption("Optionen..");
    for (forms::CommandButton* button : {&SettingsBtn, &SettingsShortBtn, &DonateBtn}) {
        button->Move(0, 0, 1200, 420);
        // One of the first two always shows.
        button->SetVisible(button == &SettingsBtn);
    }
    DonateBtn.SetCaption("Spenden");
    DonateBtn.SetToolTipText("PayPal");
    ExitBtn.SetCaption("&Exit");
    ExitBtn.Move(0, 0, 1050, 420);
    FontSizeCombo.Move(0, 0, 2100, 420);
    FontSizeCombo.SetChoice(true);
    FontSizeCombo.SetToolTipText("Schriftgröße der Listen");
    JoystickIcon.Move(0, 0, 420, 420);
    JoystickIcon.SetPicture({":/joystick", nullptr});
    JoystickIcon.SetToolTipText("Joysticksteuerung aktiv");
    JoystickIcon.SetVisible(false);
    AlwaysOnTop1.SetIsUserControl(true);
    AlwaysOnTop1.Move(0, 0, 420, 420);
    AOT_Enabled.SetPicture({":/pin-enabled", nullptr});
    AOT_Disabled.SetPicture({":/pin-disabled", nullptr});
    AOT_MouseMove.SetPicture({":/pin-hover", nullptr});
    for (forms::Image* pin : {&AOT_Enabled, &AOT_Disabled, &AOT_MouseMove}) {
        pin->Move(0, 0, 420, 420);
        pin->SetToolTipText("Always on top");
        pin->SetVisible(pin == &AOT_Disabled);
    }
    Frame1.SetCaption("Invisible Controls");
    Frame1.SetVisible(false);
}

void Form1::DesignDrives() {
    SettingsSubPicture.Move(9533, 8300, 4560, 480);
    SettingsSubPicture.SetTag("Pic");
    // The edge in front of the boxes is where the panel is gripped.
    Frame2.Move(240, 45, 4080, 390);
    for (std::size_t i = 0; i < Check_Dfx.size(); ++i) {
        Check_Dfx[i].SetCaption("Df" + std::to_string(i) + ":");
        Check_Dfx[i].SetFont({"Arial Black", 8, true});
        Check_Dfx[i].Move(30 + static_cast<int>(i) * 810, 45, 800, 300);
    }
    DrivesResizeLabel.SetCaption(unfoldedHandle);
    DrivesResizeLabel.SetShownText(foldSign);
    DrivesResizeLabel.Move(4360, 270, 200, 210);
    DrivesResizeLabel.SetFont({"", 8, true});
    DrivesResizeLabel.SetAlignment(forms::Alignment::center);
    DrivesResizeLabel.SetToolTipText("Laufwerke ein- und ausklappen");
    DrivesResizeLabel.SetOpaque(true);
    DrivesResizeLabel.SetBackColor(Rgb(0x2a, 0x6c, 0xc8));
    SettingsSubPicture.SetVisible(false);
}

void Form1::DesignCorner() {
    TopRightPic.Move(10900, 60, 3270, 960);
    TopRightPic.SetPicture({":/top-right", nullptr});
    TopRightPic.SetToolTipText("Double- click = minimize,  Alt + arrows = resize");
    TitleStr.Move(60, 120, 1400, 300);
    TitleStr.SetFont({"", 9, false});
    TitleStr.SetCaption(defaultTitle);
    TitleStr.SetToolTipText("Öffnet die Homepage im Browser");
    TimeString.Move(1500, 60, 1290, 420);
    TimeString.SetFont({"", 15, true});
    TimeString.SetAlignment(forms::Alignment::right);
    NormalMaxCapt.Move(2850, 90, 360, 360);
    NormalMaxCapt.SetFont({"", 12, true});
    NormalMaxCapt.SetAlignment(forms::Alignment::center);
    NormalMaxCapt.SetCaption("□");
    NormalMaxCapt.SetToolTipText("Maximieren und zurück");
    // In a narrow window the tabs reach onto the corner's picture.
    for (forms::Label* tab : {&Label1, &Label2, &Label3, &Label4})
        tab->BringToFront();
}

}  // namespace kivu::core
