// The picture at the right.

#include <algorithm>

#include "text/text.h"
#include "walker/invariants.h"

namespace kivu::walker {

namespace {

const Exemption ended{"the program has ended",
                      [](const Moment& m) { return m.after.ended || m.world.Ended(); }};

// Whether a picture of this name is one of a game: of its file, of its title or of its emulator.
bool IsOfGame(const std::string& picture, const std::string& path, const std::string& emulator) {
    const std::string name = LowerCase(FileName(picture));
    const std::string file = LowerCase(FileName(path));
    for (const std::string& begin :
         {file.substr(0, file.rfind('.')), file.substr(0, file.find('(')), LowerCase(emulator)}) {
        const std::string_view wanted = text::Trim(begin);
        if (!wanted.empty() && name.starts_with(wanted)) return true;
    }
    return false;
}

// Behind a game the name that is shown is the marked row's in front, and the picture goes with it.
bool IsOfNamedGame(const Moment& m) {
    std::string name = m.world.Form().Current_ProgramNameFull.Caption();
    // Broken to the label's width, mostly at its blanks.
    std::replace(name.begin(), name.end(), '\r', ' ');
    return !name.empty() && IsOfGame(m.after.preview, name, m.after.Loaded());
}

// A favourite that is removed, or whose file has gone, selects nothing: where no game is selected,
// as after a rescan, the picture of the last one stays.
bool IsLeftByFavourite(const Moment& m) {
    return m.after.InFront() == std::vector<List>{List::favourites} &&
           m.after.preview == m.before.preview;
}

std::string OfSelectedGame(const Moment& m) {
    if (m.after.preview.empty()) return {};
    const int selected = m.after.At(List::complete).row;
    const Meaning meant = selected < 0 ? MeaningInFront(m.after, m.stores) : Meaning{};
    if (meant.kind == Meaning::Kind::untold) return {};
    const std::string path = selected < 0 ? meant.path : m.after.paths.Text(selected);
    if (!path.empty() && IsOfGame(m.after.preview, path, m.after.Loaded())) return {};
    if (IsOfNamedGame(m) || (path.empty() && IsLeftByFavourite(m))) return {};
    return m.after.preview + " is to be seen, selected is " + Quoted(path);
}

std::string OfMarkedEmulator(const Moment& m) {
    if (m.after.preview.empty()) return {};
    const std::string wanted = "/Config/" + m.after.At(List::emulators).Marked() + "/Skin/";
    if (m.after.preview.find(wanted) != std::string::npos) return {};
    return m.after.preview + " is to be seen, marked is " +
           Quoted(m.after.At(List::emulators).Marked());
}

std::string Zoom(const Moment& m) {
    const core::Form1& form = m.world.Form();
    if (!m.after.zoomed)
        return form.VorschauBild.Left() == form.Col2Left ? "" : "its frame stands elsewhere";
    if (form.GamePictureVis.Visible()) return "both sizes are to be seen";
    const bool clicked = m.hand.gesture == "click" && m.hand.control == "GamePictureVis";
    return m.before.zoomed || clicked || !m.Alone() ? "" : "it was zoomed by " + m.command.dump();
}

std::string NoDirectoryOfNobody(const Moment& m) {
    return m.world.IsDirectory(std::string(programDirectory) + "/Config/Pictures")
               ? "Config/Pictures is there"
               : "";
}

}  // namespace

const std::vector<Invariant>& PreviewInvariants() {
    static const std::vector<Invariant> invariants{
        {"picture of the selected game",
         "people choose by it",
         OfSelectedGame,
         {ended,
          {"over the choice, the favourites of all and the hits of all it is an emulator's",
           [](const Moment& m) {
               return m.after.ChoiceOpen() || m.after.At(List::globalHits).visible;
           }},
          {"no list of games is in front, so none is selected",
           [](const Moment& m) { return m.after.InFront().empty(); }}}},
        {"picture of the marked emulator",
         "a click on it starts that one",
         OfMarkedEmulator,
         {ended,
          {"the choice is not in front",
           [](const Moment& m) {
               return m.after.InFront() != std::vector<List>{List::emulators};
           }}}},
        {"zoom by hand", "a zoomed picture covers the lists", Zoom, {ended}},
        {"no pictures of no emulator",
         "at the next start their directory would be an emulator",
         NoDirectoryOfNobody,
         {}},
    };
    return invariants;
}

}  // namespace kivu::walker
