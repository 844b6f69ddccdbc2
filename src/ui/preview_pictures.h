#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/hook.h"
#include "forms/types.h"
#include "platform/background.h"
#include "platform/file_system.h"
#include "ui/picture_loader.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::ui {

class Layout;

// The picture of the game under the cursor, or of an emulator. It belongs to a game by its file's
// name alone, and is looked for on the disk at each selection.
class PreviewPictures {
 public:
    struct Hooks {
        core::Hook<void(const std::string&, bool)> StartEmulator{"PreviewPictures.StartEmulator"};
    };
    struct Services {
        platform::FileSystem& files;
        platform::Background& background;
    };

    PreviewPictures(core::Form1& form, Services services, Layout& layout, PictureLoading& loader)
        : form(form),
          files(services.files),
          background(services.background),
          layout(layout),
          loader(loader) {}
    ~PreviewPictures();
    PreviewPictures(const PreviewPictures&) = delete;
    PreviewPictures& operator=(const PreviewPictures&) = delete;

    // The path of the first picture whose name begins with this name, less an ending of three
    // characters; empty where there is none.
    std::string FindPreviewPicture(const std::string& name) const;
    // The picture of a game by the path of its file, as it is shown for a row of the lists: by its
    // file's name, then by its title, then the one that all the emulator's games have.
    std::string FindForGame(const std::string& entry) const;
    // What is on view, or that nothing is, was settled for this game.
    bool IsAbout(const std::string& path) const;
    // By rows of the game lists and of EmuListbox. Out of range there is no picture.
    void ShowGamePreview(int index);
    void ShowEmulatorPreview(int index);
    // A file that is there and cannot be shown leaves the frame on view, and empty.
    void LoadVorschauImageFromPAth(const std::string& ImagePath);
    // The whole picture area.
    void SetVorschaubild(bool showIt);

    // A list of games has come to the front: the picture of that row of the game lists, where
    // another one is on view.
    void Refresh(int index);
    // Another emulator's data comes: what was on view, or on its way, is nothing's picture.
    void Drop();
    // Gets ready what the next look-ups need, beside the window's thread.
    void Prepare();

    void GamePictureVis_Click();
    void GamePictureVis_MouseDown();
    void GamePicture_Click();
    // By the keyboard; not over what runs, and not in the choice of emulators.
    void ToggleZoom();
    // What comes late leaves the frame empty meanwhile.
    void PreviewTimer_Timer();

    Hooks hooks;

 private:
    // Where pictures are looked for: a directory with its separator, and how their names end.
    struct Source {
        std::string directory;
        std::string_view ending;
    };
    using Sources = std::vector<Source>;
    // What tells where they are, of the emulator that is loaded.
    struct Places {
        std::string profile, games, emulator;  // the last one's program
    };
    // Whether work beside the window may still use what it was given.
    struct Lease {
        std::mutex running;
        bool valid = true;
    };

    std::string ProfileDirectory() const;
    Places AllPlaces() const;
    // Looks at the disk. Any thread may ask, where the disk serves it.
    static Sources SourcesAt(const Places& places, const platform::FileSystem& files);
    std::string Find(const Sources& sources, const std::string& name,
                     std::string_view preferredStem) const;
    void MakePicturesDirectory();
    void EndZoom();
    void HideForNext();
    // What is on its way comes to nothing.
    void Stop();
    void Blank();
    void PictureCame();
    void ShowLoaded();

    core::Form1& form;
    platform::FileSystem& files;
    platform::Background& background;
    Layout& layout;
    PictureLoading& loader;
    // The entry of UAE_FULL whose preview was shown last; none: something else's.
    std::optional<std::string> shownGame = std::string();
    bool coming = false;        // a picture has been asked for and is not there yet
    bool oldStays = false;      // a picture was on view before the one that is to come
    bool pressStarted = false;  // the button that is down has started an emulator
    std::shared_ptr<Lease> lease = std::make_shared<Lease>();
};

}  // namespace kivu::ui
