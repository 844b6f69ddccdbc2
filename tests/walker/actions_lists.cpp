// Rows, tabs and the choice of emulators.

#include "walker/actions.h"

namespace kivu::walker {

namespace {

const char* ControlOf(List list) {
    return listNames[static_cast<std::size_t>(list)].control;
}

// A command on one of the list's rows.
template <List list>
Commands OnRow(World& world, const Look& look, Random& random, const char* command) {
    const ListLook& shown = look.At(list);
    if (shown.rows.empty() || !Reachable(world, ControlOf(list))) return {};
    return {Command({command, "Form1." + NameOf(list), random.Below(shown.rows.size())})};
}

template <List list>
Commands Select(World& world, const Look& look, Random& random) {
    return OnRow<list>(world, look, random, "select");
}

template <List list>
Commands Start(World& world, const Look& look, Random& random) {
    return OnRow<list>(world, look, random, "dblclick");
}

Commands Answered(const char* answer, Commands commands) {
    if (!commands.empty()) commands.insert(commands.begin(), Command({"answer", answer}));
    return commands;
}

const char* YesOrNo(Random& random) {
    return random.Chance(40) ? "Yes" : "No";
}

// A favourite whose game has gone asks whether all are to be repaired.
Commands SelectFavourite(World& world, const Look& look, Random& random) {
    const char* answer = YesOrNo(random);
    return Answered(answer, Select<List::favourites>(world, look, random));
}

Commands StartFavourite(World& world, const Look& look, Random& random) {
    const char* answer = YesOrNo(random);
    return Answered(answer, Start<List::favourites>(world, look, random));
}

Commands RenameFavourite(World& world, const Look& look, Random& random) {
    Commands commands = OnRow<List::favourites>(world, look, random, "rightclick");
    if (commands.empty()) return {};
    const char* name = random.Chance(50) ? "Named by hand" : "Ant again";
    commands.insert(commands.begin(), Command({"input", name}));
    return Answered(YesOrNo(random), commands);
}

// Several rows, where they are chosen by hand.
Commands SelectWithCtrl(World& world, const Look& look, Random& random) {
    Commands commands = OnRow<List::complete>(world, look, random, "select");
    if (!commands.empty()) commands[0].push_back("ctrl");
    return commands;
}

Commands SetUp(World& world, const Look& look, Random& random) {
    return OnRow<List::emulators>(world, look, random, "rightclick");
}

Commands OnDropDown(World& world, const Look& look, Random& random, const char* command) {
    if (look.dropDown.rows.empty() || !Reachable(world, "EmuListbox")) return {};
    return {Command({command, "Form1.EmuListbox", random.Below(look.dropDown.rows.size())})};
}

// Another list comes to the front, and the row that is still marked there is acted upon: what other
// lists have selected meanwhile must not count.
Commands MarkedRowOfAnotherList(World& world, const Look& look, Random& random) {
    static const std::vector<List> lists{List::favourites, List::simple, List::complete,
                                         List::hits};
    const List list = random.Pick(lists);
    if (look.At(list).visible || look.At(list).row < 0) return {};
    const char* tab = listNames[static_cast<std::size_t>(list)].tab;
    if (!Reachable(world, tab)) return {};
    static const std::vector<Json> actions{
        Command({"key", "Form1", "Enter"}),
        Command({"click", "Form1.AddToFavorit"}),
        Command({"click", "Form1.AddToFavorit_Global"}),
        Command({"dblclick", "Form1.Current_ProgramNameFull"}),
    };
    return {Command({"click", std::string("Form1.") + tab}), Command({"answer", "No"}),
            random.Pick(actions)};
}

template <const auto& control>
Commands Click(World& world, const Look&, Random&) {
    return Clicked(world, control);
}

constexpr char tab1[] = "Label1", tab2[] = "Label2", tab3[] = "Label3", tab4[] = "Label4";
constexpr char dropDown[] = "EmuListbox";

}  // namespace

const std::vector<Action>& ListActions() {
    static const std::vector<Action> actions{
        {"favourites to the front", 8, Click<tab1>},
        {"simple list to the front", 8, Click<tab2>},
        {"complete list to the front", 8, Click<tab3>},
        {"hits to the front", 6, Click<tab4>},
        {"act on the marked row of another list", 14, MarkedRowOfAnotherList},
        {"open the choice", 12, Click<dropDown>},
        {"choose in the drop-down", 6,
         [](World& world, const Look& look, Random& random) {
             return OnDropDown(world, look, random, "select");
         }},
        {"load from the drop-down", 3,
         [](World& world, const Look& look, Random& random) {
             return OnDropDown(world, look, random, "dblclick");
         }},
        {"choose in the long list", 10, Select<List::emulators>},
        {"load from the long list", 12, Start<List::emulators>},
        {"set an emulator up", 3, SetUp},
        {"select a game of the simple list", 10, Select<List::simple>},
        {"start a game of the simple list", 5, Start<List::simple>},
        {"select a game of the complete list", 10, Select<List::complete>},
        {"choose one more game", 3, SelectWithCtrl},
        {"start a game of the complete list", 5, Start<List::complete>},
        {"select a hit", 8, Select<List::hits>},
        {"start a hit", 4, Start<List::hits>},
        {"select a hit of all emulators", 6, Select<List::globalHits>},
        {"open a hit of all emulators", 6, Start<List::globalHits>},
        {"select a favourite", 10, SelectFavourite},
        {"start a favourite", 6, StartFavourite},
        {"rename a favourite", 3, RenameFavourite},
        {"select a global favourite", 8, Select<List::globalFavourites>},
        {"start a global favourite", 8, Start<List::globalFavourites>},
    };
    return actions;
}

}  // namespace kivu::walker
