#include "ui/preview_pictures.h"

#include <utility>

#include "core/form1.h"
#include "library/short_names.h"
#include "text/first_match.h"
#include "text/paths.h"
#include "text/text.h"
#include "ui/layout.h"
#include "ui/skins.h"

namespace kivu::ui {

namespace {

// An ending of three characters; longer and shorter ones stay.
std::string_view WithoutEnding(std::string_view name) {
    constexpr std::size_t ending = 4;  // with the point
    const std::size_t count = text::CodePointCount(name);
    if (count < ending) return name;
    const std::size_t point = text::CodePointOffset(name, count - ending);
    return name[point] == '.' ? name.substr(0, point) : name;
}

bool HoldsSeparator(std::string_view text) {
    return text.find_first_of("/\\") != std::string_view::npos;
}

// Without the bracket that the cut has left: pictures are called "Game.png" or "Game (1990).png".
std::string TitleOf(std::string_view entry) {
    std::string title = library::CutShortName(entry, "(", false);
    if (title.ends_with('(')) title.pop_back();
    return std::string(text::Trim(title));
}

// A path without a separator would lead to wherever the program happens to stand.
std::string DirectoryOf(const std::string& path, const platform::FileSystem& files) {
    if (!HoldsSeparator(path)) return {};
    return text::AddPathSeparator(text::GetFilePath(
        path, [&](const std::string& directory) { return files.IsDirectory(directory); }));
}

std::string Subdirectory(const std::string& directory, std::string_view name,
                         const platform::FileSystem& files) {
    if (directory.empty()) return {};
    const auto found = files.FindDirectory(directory, name);
    return found ? directory + *found + files.Separator() : std::string();
}

}  // namespace

PreviewPictures::~PreviewPictures() {
    const std::scoped_lock running(lease->running);
    lease->valid = false;
}

std::string PreviewPictures::ProfileDirectory() const {
    return text::AddPathSeparator(text::Trim(form.GetStartPfad()));
}

PreviewPictures::Places PreviewPictures::AllPlaces() const {
    return {ProfileDirectory(), form.TxtRomPath.Text(), form.txtWinUAEExe.Text()};
}

// The emulator's own pictures first, so that the common case is answered by the first look-up.
PreviewPictures::Sources PreviewPictures::SourcesAt(const Places& places,
                                                    const platform::FileSystem& files) {
    const std::string games = DirectoryOf(places.games, files);
    const std::string beside = text::GetParentPath(games);
    const std::string emulator = DirectoryOf(places.emulator, files);
    return {{Subdirectory(places.profile, "Pictures", files), ""},
            {games, ".jpg"},
            {games, ".png"},
            {Subdirectory(beside, "snap", files), ""},
            {Subdirectory(beside, "Titles", files), ""},
            {Subdirectory(emulator, "Titles", files), ""},
            {Subdirectory(emulator, "Pictures", files), ""},
            {games, ".gif"}};
}

std::string PreviewPictures::FindPreviewPicture(const std::string& name) const {
    return Find(SourcesAt(AllPlaces(), files), name, text::StemOf(name));
}

std::string PreviewPictures::Find(const Sources& sources, const std::string& name,
                                  std::string_view preferredStem) const {
    const std::string_view wanted = text::Trim(WithoutEnding(name));
    const char separators[] = {'/', files.Separator(), '\0'};
    // Every file begins with nothing, and no file's name holds a separator.
    if (wanted.empty() || wanted.find_first_of(separators) != std::string_view::npos) return {};
    for (const Source& source : sources) {
        if (source.directory.empty()) continue;
        if (const auto found =
                files.FirstMatch(source.directory, wanted, source.ending, preferredStem))
            return source.directory + *found;
    }
    return {};
}

std::string PreviewPictures::FindForGame(const std::string& entry) const {
    const Sources sources = SourcesAt(AllPlaces(), files);
    const std::string file = text::GetFileNameOnly(text::WithoutQuotes(entry));
    const std::string_view stem = text::StemOf(file);
    std::string directory = ProfileDirectory();
    if (!directory.empty()) directory.pop_back();
    const std::string emulator = text::GetFileNameOnly(directory);
    for (const auto& [name, preferred] :
         {std::pair(file, stem), {TitleOf(entry), stem}, {emulator, std::string_view(emulator)}}) {
        std::string path = Find(sources, name, preferred);
        if (!path.empty() && files.FileExists(path)) return path;
    }
    return {};
}

bool PreviewPictures::IsAbout(const std::string& path) const {
    return !coming && shownGame && text::WithoutQuotes(*shownGame) == path;
}

// So that the user finds where pictures go. Beside the emulators it would be one of them.
void PreviewPictures::MakePicturesDirectory() {
    const std::string directory = ProfileDirectory();
    if (directory.empty() || directory == text::AddPathSeparator(form.ConfigPath)) return;
    if (!files.FindDirectory(directory, "Pictures")) {
        // Without it there are no pictures in it.
        (void)files.MakeDirectory(directory + "Pictures");
    }
}

void PreviewPictures::ShowGamePreview(int index) {
    const std::string& entry = form.UAE_FULL.List(index);
    shownGame = entry;
    const std::string name = text::GetFileNameOnly(text::WithoutQuotes(entry));
    MakePicturesDirectory();
    HideForNext();
    const std::string path = name.empty() ? std::string() : FindForGame(entry);
    if (name.empty()) {
        SetVorschaubild(false);
    } else if (!path.empty()) {
        LoadVorschauImageFromPAth(path);
    } else {
        Stop();
    }
}

void PreviewPictures::ShowEmulatorPreview(int index) {
    shownGame.reset();
    const std::string& name = form.EmuListbox.List(index);
    std::string path;
    if (!name.empty()) {
        const std::string profile =
            text::AddPathSeparator(form.ConfigPath) + name + files.Separator();
        path = FindSkinFile(files, profile, name);
        if (path.empty()) path = FindSkinFile(files, profile, "Loading");
    }
    HideForNext();
    if (path.empty()) {
        SetVorschaubild(false);
    } else {
        LoadVorschauImageFromPAth(path);
    }
}

void PreviewPictures::EndZoom() {
    if (form.GamePicture.Visible()) layout.SetVorschau();
}

void PreviewPictures::HideForNext() {
    EndZoom();
    oldStays = form.VorschauBild.Visible() && form.GamePictureVis.GetPicture() != forms::Picture{};
    form.VorschauBild.SetVisible(false);
}

void PreviewPictures::LoadVorschauImageFromPAth(const std::string& ImagePath) {
    const bool stays = std::exchange(oldStays, false);
    EndZoom();
    if (ImagePath.empty() || !files.FileExists(ImagePath)) {
        SetVorschaubild(false);
        Blank();
        ShowLoaded();
        return;
    }
    coming = true;
    loader.Load(ImagePath, form.GamePicture, [this](bool) {
        coming = false;
        PictureCame();
    });
    if (!coming) return;
    // The old one rather than a gap, for as long as nobody sees that it lingers, which does not
    // begin anew with each further row.
    form.PreviewTimer.SetEnabled(stays);
    form.VorschauBild.SetVisible(stays);
}

void PreviewPictures::PictureCame() {
    if (form.Ended) return;
    form.PreviewTimer.SetEnabled(false);
    SetVorschaubild(true);
    form.GamePictureVis.SetPicture(form.GamePicture.GetPicture());
    ShowLoaded();
}

void PreviewPictures::ShowLoaded() {
    form.VorschauBild.SetVisible(true);
    form.GamePicture.SetVisible(false);
}

void PreviewPictures::SetVorschaubild(bool showIt) {
    if (!showIt) Stop();
    form.VorschauBild.SetVisible(showIt);
    layout.ResizeSettingsWindow();
    form.GamePictureVis.SetVisible(showIt);
    form.VorschauBild.SetVisible(showIt);
    if (showIt) layout.SetVorschau();
}

void PreviewPictures::Drop() {
    Blank();
    shownGame.reset();
}

void PreviewPictures::Stop() {
    form.PreviewTimer.SetEnabled(false);
    loader.Drop(form.GamePicture);
}

void PreviewPictures::Blank() {
    Stop();
    form.GamePicture.SetPicture({});
    form.GamePictureVis.SetPicture({});
}

void PreviewPictures::PreviewTimer_Timer() {
    form.PreviewTimer.SetEnabled(false);
    form.VorschauBild.SetVisible(false);
}

void PreviewPictures::Refresh(int index) {
    // These have pictures of their own.
    if (form.EmulatorLongListbox.Visible() || form.FavoritenListeGlobal.Visible() ||
        form.GlobalSearchList.Visible())
        return;
    // A list may be in front before the window is out of its busy state.
    if (!form.ListsVisible && !form.FavoritenListe.Visible() && !form.WIthoutDoubles.Visible() &&
        !form.UAE_Short.Visible() && !form.SuchErgList.Visible())
        return;
    if (shownGame != form.UAE_FULL.List(index)) ShowGamePreview(index);
}

void PreviewPictures::Prepare() {
    if (!files.ServesThreads()) return;
    background.Run(
        [&disk = files, places = AllPlaces(), held = lease] {
            const std::scoped_lock running(held->running);
            if (!held->valid) return;
            for (const Source& source : SourcesAt(places, disk)) {
                if (!held->valid) return;
                // Any look-up will do.
                if (!source.directory.empty()) (void)disk.FirstMatch(source.directory, "?", "", "");
            }
        },
        [] {});
}

void PreviewPictures::GamePictureVis_MouseDown() {
    // With the favourites of all emulators over the choice, its row is not to be seen.
    const bool inFront = form.EmulatorLongListbox.Visible() &&
                         !form.FavoritenListeGlobal.Visible() && !form.GlobalSearchList.Visible();
    pressStarted = inFront && form.EmulatorLongListbox.ListIndex() >= 0;
    if (pressStarted) hooks.StartEmulator(form.EmulatorLongListbox.SelectedText(), true);
}

void PreviewPictures::GamePictureVis_Click() {
    const bool started = std::exchange(pressStarted, false);
    if (started || form.EmulatorLongListbox.Visible()) return;
    if (form.GamePicture.GetPicture() != forms::Picture{}) layout.ZoomPicture();
}

void PreviewPictures::ToggleZoom() {
    if (form.GamePicture.Visible()) {
        layout.SetVorschau();
    } else if (form.VorschauBild.Visible() && form.GamePictureVis.Visible() && !form.Busy &&
               !form.EmulatorRuns()) {
        pressStarted = false;
        GamePictureVis_Click();
    }
}

void PreviewPictures::GamePicture_Click() {
    layout.SetVorschau();
}

}  // namespace kivu::ui
