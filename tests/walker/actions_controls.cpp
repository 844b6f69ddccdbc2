// Buttons, what can be typed into, the drives panel.

#include "walker/actions.h"

namespace kivu::walker {

namespace {

template <const auto& control>
Commands Click(World& world, const Look&, Random&) {
    return Clicked(world, control);
}

constexpr char addOwn[] = "AddToFavorit", addGlobal[] = "AddToFavorit_Global", remove[] = "DeLFav",
               rescan[] = "LoadBtn", searchAll[] = "SearchAllBtn", magnifier[] = "SuchErg",
               busy[] = "LoadingBtn", picture[] = "AppRunningPicture", fold[] = "DrivesResizeLabel",
               size[] = "NormalMaxCapt", box[] = "SearchDblsTxt";

const std::vector<const char*>& Words() {
    // Parts of many names, of few, of none; two words; one letter; nothing; the idle text.
    static const std::vector<const char*> words{"an",  "maker", "pac", "bee",  "ma 19",  "xyzzy",
                                                "a",   "",      "zoo", "adf",  "(19",    "19 ma",
                                                "cat", "t (",   " ",   "puck", "Suche.."};
    return words;
}

// The whole text anew, as after a selection of all of it.
Commands TypeSearch(World& world, const Look&, Random& random) {
    if (!Reachable(world, box)) return {};
    return {Command({"focus", "Form1.SearchDblsTxt"}),
            Command({"set", "Form1.SearchDblsTxt.Text", ""}),
            Command({"type", "Form1.SearchDblsTxt", random.Pick(Words())})};
}

Commands TypeOn(World& world, const Look&, Random& random) {
    if (!Reachable(world, box)) return {};
    return {Command({"type", "Form1.SearchDblsTxt", random.Pick(Words())})};
}

Commands KillQuestion(World& world, const Look&, Random& random) {
    Commands commands = Clicked(world, busy);
    if (!commands.empty())
        commands.insert(commands.begin(), Command({"answer", random.Chance(50) ? "Yes" : "No"}));
    return commands;
}

Commands ChooseFont(World& world, const Look&, Random& random) {
    if (!Reachable(world, "FontSizeCombo") || world.Form().FontSizeCombo.ListCount() == 0)
        return {};
    // 8 to 40 points.
    return {Command({"select", "Form1.FontSizeCombo", random.Below(33)})};
}

Commands TickDrive(World& world, const Look&, Random& random) {
    const int drive = random.Below(5);
    if (!world.Form().Check_Dfx[static_cast<std::size_t>(drive)].IsReachable()) return {};
    return {Command({"click", "Form1.Check_Dfx(" + std::to_string(drive) + ")"})};
}

Commands DragPanel(World& world, const Look& look, Random& random) {
    if (!Reachable(world, "SettingsSubPicture")) return {};
    for (const List list : {List::complete, List::simple}) {
        if (!look.At(list).visible) continue;
        return {Command({"drag", "Form1.SettingsSubPicture", "Form1." + NameOf(list),
                         random.Below(6000), random.Below(6000), 100, 100})};
    }
    return {};
}

// In the open choice it starts the emulator; else it is zoomed, and put back.
Commands ClickPreview(World& world, const Look&, Random& random) {
    if (Reachable(world, "GamePicture")) return Clicked(world, "GamePicture");
    Commands commands = Clicked(world, "GamePictureVis");
    if (!commands.empty())
        commands.insert(commands.begin(), Command({"answer", random.Chance(50) ? "Yes" : "No"}));
    return commands;
}

Commands StartNamed(World& world, const Look&, Random&) {
    if (!Reachable(world, "Current_ProgramNameFull")) return {};
    return {Command({"dblclick", "Form1.Current_ProgramNameFull"})};
}

Commands NewTitle(World& world, const Look&, Random&) {
    if (!Reachable(world, "MyCaptionLabel")) return {};
    return {Command({"input", "My games"}), Command({"dblclick", "Form1.MyCaptionLabel"})};
}

}  // namespace

const std::vector<Action>& ControlActions() {
    static const std::vector<Action> actions{
        {"add to the favourites", 8, Click<addOwn>},
        {"add to the global favourites", 8, Click<addGlobal>},
        {"remove the favourite", 6, Click<remove>},
        {"rescan", 6, Click<rescan>},
        {"search for another text", 10, TypeSearch},
        {"type on", 3, TypeOn},
        {"click the search box", 4, Click<box>},
        {"search all emulators", 6, Click<searchAll>},
        {"click the magnifier", 4, Click<magnifier>},
        {"click the busy label", 3, KillQuestion},
        {"kill the game", 3, Click<picture>},
        {"choose a font size", 2, ChooseFont},
        {"tick a drive", 2, TickDrive},
        {"fold the panel", 1, Click<fold>},
        {"drag the panel", 2, DragPanel},
        {"maximise or restore", 1, Click<size>},
        {"click the preview", 5, ClickPreview},
        {"start the named game", 4, StartNamed},
        {"change the title", 1, NewTitle},
    };
    return actions;
}

}  // namespace kivu::walker
