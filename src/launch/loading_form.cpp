#include "launch/loading_form.h"

namespace kivu::launch {

namespace {
constexpr int windowWidth = 7500, windowHeight = 3600, margin = 240;
constexpr int pictureWidth = 3600, textLeft = pictureWidth + 2 * margin;
constexpr int waitHeight = 780, titleTop = margin + waitHeight, titleHeight = 1620;
constexpr int buttonWidth = 1500, buttonHeight = 480;
}  // namespace

LoadingForm::LoadingForm(forms::Toolkit toolkit) : forms::Form("LoadingInfo", toolkit) {
    SetCaption("Kivu");
    SetHasFrame(false);
    SetCornerRadius(16);
    SetResizable(false);
    SetKeepsPlace(true);
    // The emulator that is coming up keeps the keyboard.
    SetActivates(false);
    Move(0, 0, windowWidth, windowHeight);
    SetFont({"", 10, false});
    PlaceControls();
    GameImage.SetKeepsProportions(true);
    Label1.SetCaption("Bitte warten.");
    Label1.SetFont({"Courier New", 10, false});
    TxtTitle.SetFont({"Arial", 13, true});
    // The Enter or Space that has started the game must not end it.
    Command1.SetTakesFocus(false);
    AlwaysOnTop1.SetVisible(false);
}

void LoadingForm::PlaceControls() {
    const int textWidth = windowWidth - textLeft - margin;
    // The window's own line stays to be seen around it.
    constexpr int line = forms::twipsPerPixel;
    Picture1.Move(line, line, windowWidth - 2 * line, windowHeight - 2 * line);
    GameImage.Move(margin, margin, pictureWidth, windowHeight - 2 * margin);
    Label1.Move(textLeft, margin, textWidth, waitHeight);
    TxtTitle.Move(textLeft, titleTop, textWidth, titleHeight);
    Command1.Move(windowWidth - margin - buttonWidth, windowHeight - margin - buttonHeight,
                  buttonWidth, buttonHeight);
}

}  // namespace kivu::launch
