#include "support/file_dialog_form.h"

#include <initializer_list>

namespace kivu::support {

namespace {

// Pixels of the design; a view scales them with the text.
constexpr int Twips(int pixels) {
    return pixels * forms::twipsPerPixel;
}

constexpr int wide = 680, high = 500, margin = 18;
constexpr int listsTop = 92, listsHeight = 342, gap = 16;
constexpr int placeWidth = 290, fileWidth = wide - 2 * margin - gap - placeWidth;
constexpr int buttonsTop = high - margin - 34, buttonHeight = 34, buttonWidth = 118;
constexpr int labelHeight = 20;

void Place(forms::Control& control, int left, int top, int controlWidth, int controlHeight) {
    control.Move(Twips(left), Twips(top), Twips(controlWidth), Twips(controlHeight));
}

}  // namespace

FilesForm::FilesForm(forms::Toolkit toolkit, Wording wording) : forms::Form("Files", toolkit) {
    DesignWindow();
    DesignLists();
    DesignButtons();
    Name(wording);
    SetMode(openFile);
}

void FilesForm::DesignWindow() {
    SetHasFrame(false);
    SetCornerRadius(12);
    SetResizable(false);
    Place(*this, 0, 0, wide, high);
    SetFont({"", 10, false});
    Place(TitleLabel, margin, 14, wide - 2 * margin - 40, 24);
    TitleLabel.SetFont({"", 11, true});
    Place(AlwaysOnTop1, wide - margin - 28, 10, 28, 28);
    AlwaysOnTop1.SetIsUserControl(true);
    AOT_Enabled.SetPicture({":/pin-enabled", nullptr});
    AOT_Disabled.SetPicture({":/pin-disabled", nullptr});
    AOT_MouseMove.SetPicture({":/pin-hover", nullptr});
    for (forms::Image* pin : {&AOT_Enabled, &AOT_Disabled, &AOT_MouseMove}) {
        Place(*pin, 0, 0, 28, 28);
        pin->SetToolTipText("Always on top");
        pin->SetVisible(pin == &AOT_Disabled);
    }
}

void FilesForm::DesignLists() {
    constexpr int pathLeft = margin + 52, upWidth = 104;
    Place(PathLabel, margin, 56, 48, labelHeight);
    Place(KomplettPfadText, pathLeft, 50, wide - margin - upWidth - 10 - pathLeft, 28);
    Place(UpBtn, wide - margin - upWidth, 48, upWidth, 32);

    Place(PlaceFrame, margin, listsTop, placeWidth, listsHeight);
    Place(DriveLabel, 0, 0, placeWidth, labelHeight);
    Place(Drive1, 0, labelHeight + 2, placeWidth, 84);
    Place(DirLabel, 0, 116, placeWidth, labelHeight);
    Place(Dir1, 0, 138, placeWidth, listsHeight - 138);
    Place(FileFrame, margin + placeWidth + gap, listsTop, fileWidth, listsHeight);
    Place(FileLabel, 0, 0, fileWidth, labelHeight);
    Place(File1, 0, labelHeight + 2, fileWidth, listsHeight - labelHeight - 2 - 60);
    Place(NameLabel, 0, listsHeight - 52, fileWidth, labelHeight);
    Place(FileName, 0, listsHeight - 30, fileWidth, 28);
    for (forms::Label* label : {&PathLabel, &DriveLabel, &DirLabel, &FileLabel, &NameLabel})
        label->SetMarksLetter(true);
}

void FilesForm::DesignButtons() {
    Place(Command1, margin, buttonsTop, buttonWidth, buttonHeight);
    Place(StartmenuBtn, margin + buttonWidth + 10, buttonsTop, buttonWidth, buttonHeight);
    constexpr int pairWidth = 2 * buttonWidth + 10;
    for (forms::Frame* frame : {&Frame1, &Frame2})
        Place(*frame, wide - margin - pairWidth, buttonsTop, pairWidth, buttonHeight);
    for (forms::CommandButton* ok : {&Ok, &OkBtn2}) {
        Place(*ok, 0, 0, buttonWidth, buttonHeight);
        ok->SetCaption("OK");
    }
    for (forms::CommandButton* cancel : {&Abbruch, &AbbruchBtn2})
        Place(*cancel, buttonWidth + 10, 0, buttonWidth, buttonHeight);
}

void FilesForm::Name(Wording wording) {
    const bool german = wording.german;
    const auto in = [german](const char* inGerman, const char* inEnglish) {
        return german ? inGerman : inEnglish;
    };
    PathLabel.SetCaption(in("&Pfad", "&Path"));
    UpBtn.SetCaption(in("&Aufwärts", "&Up"));
    DriveLabel.SetCaption(wording.posix ? in("&Orte", "P&laces") : in("&Laufwerke", "&Drives"));
    DirLabel.SetCaption(in("&Verzeichnisse", "Dire&ctories"));
    FileLabel.SetCaption(in("&Dateien", "&Files"));
    NameLabel.SetCaption(in("Datei&name", "File &name"));
    Command1.SetCaption("Desk&top");
    StartmenuBtn.SetCaption(wording.posix ? in("Pro&gramme", "Pro&grams")
                                          : in("&Startmenü", "&Start menu"));
    Abbruch.SetCaption(in("Abbrechen", "Cancel"));
    AbbruchBtn2.SetCaption(Abbruch.Caption());
}

void FilesForm::SetMode(const std::string& mode) {
    Mode = mode;
    const bool directory = AsksForDirectory();
    FileFrame.SetVisible(!directory);
    Frame1.SetVisible(!directory);
    Frame2.SetVisible(directory);
    for (forms::Control* control : std::initializer_list<forms::Control*>{
             &PlaceFrame, &DriveLabel, &Drive1, &DirLabel, &Dir1})
        control->SetWidth(directory ? FileFrame.Right() - PlaceFrame.Left() : PlaceFrame.Width());
    SetEnterButton(directory ? &OkBtn2 : &Ok);
    SetEscapeButton(directory ? &AbbruchBtn2 : &Abbruch);
}

void FilesForm::SetTitle(const std::string& title) {
    SetCaption(title);
    TitleLabel.SetCaption(title);
}

}  // namespace kivu::support
