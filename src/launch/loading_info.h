#pragma once

#include <string>

#include "core/ports.h"
#include "forms/types.h"
#include "forms/window_host.h"
#include "launch/loading_form.h"
#include "platform/file_system.h"
#include "ui/picture_loader.h"
#include "ui/preview_pictures.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::launch {

// What the loading screen shows, how long it stands, and what a click on it does.
class LoadingInfo {
 public:
    struct Services {
        const platform::FileSystem& files;
        forms::WindowHost& windows;
    };
    struct Routines {
        ui::PictureLoading& pictures;
        const ui::PreviewPictures& previews;
        core::RunningEmulator& watch;
    };

    LoadingInfo(LoadingForm& window, core::Form1& form, Services services, Routines routines)
        : window(window), form(form), services(services), routines(routines) {}

    void Form_Load();
    void Form_Unload();
    void Timer1_Timer();
    // Anywhere but on the button.
    void Form_Click();
    void Command1_Click();

 private:
    // Twips.
    struct Area {
        int left = 0, top = 0, width = 0, height = 0;
        int Right() const { return left + width; }
    };

    void TakeLook();
    void LoadBackground(const std::string& path);
    void LoadGameImage(const std::string& loadingPath);
    void ShowGameImage(const forms::Picture& picture);
    // Beside a picture, or over all of the window as long as none is there.
    void PlaceText(bool besidePicture);
    void Place();
    void ShowMainWindow();

    LoadingForm& window;
    core::Form1& form;
    Services services;
    Routines routines;
    Area picture;  // that a picture may fill
};

}  // namespace kivu::launch
