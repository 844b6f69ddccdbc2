#include "launch/loading_info.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "core/form1.h"
#include "forms/look.h"
#include "text/paths.h"
#include "text/text.h"
#include "ui/skins.h"
#include "ui/window_look.h"

namespace kivu::launch {

namespace {

constexpr std::size_t longestTitle = 30;  // characters, over all its lines
constexpr const char* background = "LoadingInfo.Picture1";
constexpr const char* gameImage = "LoadingInfo.GameImage";

}  // namespace

void LoadingInfo::Form_Load() {
    const std::string loading = ui::FindSkinFile(services.files, form.GetStartPfad(), "Loading");
    const std::string settings = ui::FindSettingsPicture(services.files, form.GetStartPfad());
    TakeLook();
    LoadBackground(settings);
    LoadGameImage(loading);
    window.Seconds = form.SplashSeconds;
    window.SecondsPassed = 0;
    Place();
    window.Timer1.SetEnabled(true);
    std::string title = form.CURRENT_PROGRAM_STARTED;
    title.resize(text::CodePointOffset(title, longestTitle));
    window.TxtTitle.SetCaption(std::move(title));
    // Whatever the user's pin says: the launch has just taken the launcher's own window off the
    // top.
    window.SetTopmost(true);
    window.SetAboveAll(true);
    window.Label1.SetCaption(form.Say("Bitte warten...\r\rLade:", "Please wait...\r\rLoading:"));
    window.Command1.SetCaption(form.Say("Beenden", "Stop"));
}

// With the main window's large fonts it still leaves some of the screen to be seen.
void LoadingInfo::TakeLook() {
    const forms::Size room = services.windows.Room(&form);
    forms::Look look = ui::LookOf(form);
    look.back = form.Label1.BackColor();
    look.fore = form.Label1.ForeColor();
    forms::TakeLook(window, look, {room.width * 2 / 3, room.height * 2 / 3});
    const forms::Image& image = window.GameImage;
    picture = {image.Left(), image.Top(), image.Width(), image.Height()};
}

void LoadingInfo::LoadBackground(const std::string& path) {
    if (path.empty()) return;
    // One that cannot be shown leaves the background empty.
    (void)routines.pictures.LoadSkin(path, background, [this](forms::Picture loaded) {
        window.Picture1.SetPicture(std::move(loaded));
        // Nobody knows what colours lie below the text.
        window.Label1.SetOpaque(true);
        window.TxtTitle.SetOpaque(true);
    });
}

// The preview, if it is that of the game: one that is started from elsewhere has another one.
void LoadingInfo::LoadGameImage(const std::string& loadingPath) {
    const std::string& game = form.StartingGame;
    PlaceText(false);
    const bool about = game.empty() || routines.previews.IsAbout(game);
    const forms::Picture& preview = form.GamePictureVis.GetPicture();
    if (about && form.VorschauBild.Visible() && preview != forms::Picture{}) {
        ShowGameImage(preview);
        return;
    }
    const std::string own = about ? "" : routines.previews.FindForGame(game);
    const auto show = [this](const forms::Picture& loaded) { ShowGameImage(loaded); };
    for (const std::string& path : {own, loadingPath}) {
        if (!path.empty() && routines.pictures.LoadSkin(path, gameImage, show)) return;
    }
}

// In the middle of its area, and as large as fits there.
void LoadingInfo::ShowGameImage(const forms::Picture& shown) {
    window.GameImage.SetPicture(shown);
    PlaceText(true);
    if (!shown.pixels || shown.pixels->width <= 0 || shown.pixels->height <= 0) return;
    const std::int64_t width = shown.pixels->width, height = shown.pixels->height;
    const auto within = [](std::int64_t length, int most) {
        constexpr std::int64_t least = forms::twipsPerPixel;
        return static_cast<int>(std::clamp<std::int64_t>(length, least, most));
    };
    const int fitting = within(picture.height * width / height, picture.width);
    const int high = within(picture.width * height / width, picture.height);
    window.GameImage.Move(picture.left + (picture.width - fitting) / 2,
                          picture.top + (picture.height - high) / 2, fitting, high);
}

void LoadingInfo::PlaceText(bool besidePicture) {
    const int margin = picture.left;
    const int left = besidePicture ? picture.Right() + margin : margin;
    for (forms::Label* label : {&window.Label1, &window.TxtTitle}) {
        label->Move(left, label->Top(), window.Width() - margin - left, label->Height());
        label->SetAlignment(besidePicture ? forms::Alignment::left : forms::Alignment::center);
    }
    const int spare = window.Width() - window.Command1.Width();
    window.Command1.SetLeft(besidePicture ? spare - margin : spare / 2);
    window.GameImage.SetVisible(besidePicture);
}

// In the middle of the screen that the launcher is on, where the emulator comes up.
void LoadingInfo::Place() {
    const forms::Size room = services.windows.Room(&form);
    const forms::Point corner = services.windows.RoomCorner(&form);
    window.Move(corner.x + (room.width - window.Width()) / 2,
                corner.y + (room.height - window.Height()) / 2, window.Width(), window.Height());
}

// What is still being read comes too late.
void LoadingInfo::Form_Unload() {
    window.Timer1.SetEnabled(false);
    for (const char* purpose : {background, gameImage})
        (void)routines.pictures.LoadSkin("", purpose, {});
}

void LoadingInfo::Timer1_Timer() {
    ++window.SecondsPassed;
    if (window.SecondsPassed >= window.Seconds) {
        window.Unload();
    } else if (window.IsAboveAll()) {
        // An emulator that has filled the screen meanwhile may lie above all, too.
        services.windows.Raise(window);
    }
}

void LoadingInfo::Form_Click() {
    window.Unload();
}

void LoadingInfo::Command1_Click() {
    const forms::HeldForm held(window);
    if (form.StartCanBeGivenUp) {
        // What is known by name is the last game, which has nothing to do with this one.
        form.StartGivenUp = true;
    } else {
        routines.watch.AppRunningPicture_Click();
    }
    ShowMainWindow();
    window.Unload();
}

void LoadingInfo::ShowMainWindow() {
    if (form.Ended) return;
    if (form.State() == forms::WindowState::minimized) form.SetState(forms::WindowState::normal);
    services.windows.Raise(form);
}

}  // namespace kivu::launch
