#include "ui/skins.h"

#include <utility>

#include "core/emulator_paths.h"
#include "core/form1.h"

namespace kivu::ui {

std::string FindSkinFile(const platform::FileSystem& files, const std::string& profileDirectory,
                         std::string_view name) {
    const std::string directory = core::SkinDirectory(files, profileDirectory);
    const auto found = files.FirstMatch(directory, std::string(name) + ".", "", name);
    // It may have gone meanwhile.
    return found && files.FileExists(directory + *found) ? directory + *found : "";
}

// Names of files count without case; the section of the profiles is written otherwise.
std::string FindSettingsPicture(const platform::FileSystem& files,
                                const std::string& profileDirectory) {
    return FindSkinFile(files, profileDirectory, "settings");
}

void Skins::KeepDesignPictures() {
    form.OrgBackGround.SetPicture(form.GetPicture());
    form.OrgTopLeft.SetPicture(form.TopRightPic.GetPicture());
}

void Skins::LoadSkinPictures() {
    const Place window = [this](forms::Picture picture) { form.SetPicture(std::move(picture)); };
    const Place drives = [this](forms::Picture picture) {
        form.SettingsSubPicture.SetPicture(std::move(picture));
    };
    const Place corner = [this](forms::Picture picture) {
        form.TopRightPic.SetPicture(std::move(picture));
    };
    if (!Load("Background", window)) Put("Background", window, form.OrgBackGround.GetPicture());
    Load("Drivebox", drives);
    if (!Load("BackgroundTopRight", corner))
        Put("BackgroundTopRight", corner, form.OrgTopLeft.GetPicture());
}

bool Skins::Load(const std::string& name, const Place& place) {
    const std::string path = FindSkinFile(files, form.StartPfad, name);
    if (path.empty()) return false;
    // One that cannot be shown leaves what is there.
    (void)pictures.LoadSkin(path, name, place);
    return true;
}

void Skins::Put(const std::string& name, const Place& place, const forms::Picture& picture) {
    (void)pictures.LoadSkin("", name, {});
    place(picture);
}

}  // namespace kivu::ui
