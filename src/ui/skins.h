#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/types.h"
#include "platform/file_system.h"
#include "ui/picture_loader.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::ui {

// The file "name.*" of an emulator's skin, any ending; of several a picture, then the first in the
// order of names. Empty: there is none. `profileDirectory` is the emulator's own.
std::string FindSkinFile(const platform::FileSystem& files, const std::string& profileDirectory,
                         std::string_view name);
// The picture behind the settings, and behind the loading screen. Empty: there is none.
std::string FindSettingsPicture(const platform::FileSystem& files,
                                const std::string& profileDirectory);

// The pictures that an emulator's skin gives to the main window. They are looked for anew at each
// change of emulator. A file that is no picture leaves what is there.
class Skins {
 public:
    Skins(core::Form1& form, const platform::FileSystem& files, PictureLoading& pictures)
        : form(form), files(files), pictures(pictures) {}

    // What the window was designed with, for emulators without pictures of their own.
    void KeepDesignPictures();
    void LoadSkinPictures();

 private:
    using Place = std::function<void(forms::Picture)>;
    // True: there is such a file, whether or not it can be shown.
    bool Load(const std::string& name, const Place& place);
    // What is still being read for the place comes too late.
    void Put(const std::string& name, const Place& place, const forms::Picture& picture);

    core::Form1& form;
    const platform::FileSystem& files;
    PictureLoading& pictures;
};

}  // namespace kivu::ui
