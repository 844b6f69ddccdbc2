// What the hands' commands are to do.

#include <map>

#include "text/text.h"
#include "walker/meaning.h"

namespace kivu::walker {

namespace {

using Act = Expected::Act;

std::string EmulatorOfHit(const Look& look, int row) {
    const std::string text = look.At(List::globalHits).Text(row);
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos) return {};
    const std::string name(text::Trim(text.substr(0, colon)));
    for (const std::string& emulator : look.dropDown.rows) {
        if (emulator == name) return name;
    }
    return {};
}

// A double click on the row, or Enter.
Expected TakeRow(const Look& look, const Stores& stores, List list, int row, bool byKey) {
    Expected expected;
    if (list == List::emulators) {
        expected.loads = look.At(list).Text(row);
    } else if (list == List::globalHits) {
        expected.loads = EmulatorOfHit(look, row);
    } else {
        expected.act = Act::start;
        // A click on a hit whose title is selected in the simple list changes nothing there.
        const bool selected = byKey || (list == List::hits &&
                                        look.At(List::simple).Marked() == look.At(list).Text(row));
        expected.meant = selected ? MeaningAsSelected(look, stores, list, row)
                                  : MeaningOf(look, stores, list, row);
        if (list == List::globalFavourites && expected.meant.kind == Meaning::Kind::game)
            expected.loads = expected.meant.emulator;
    }
    return expected;
}

// A button, whether it is clicked or pressed with a key.
Expected Press(const Look& look, const Stores& stores, const std::string& button) {
    Expected expected;
    if (button == "AddToFavorit") expected.act = Act::storeOwn;
    if (button == "AddToFavorit_Global") expected.act = Act::storeGlobal;
    if (button == "Current_ProgramNameFull") expected.act = Act::start;
    if (expected.act != Act::nothing) expected.meant = MeaningInFront(look, stores);
    return expected;
}

Expected PressKey(const Look& look, const Stores& stores, const std::string& key) {
    const bool enter = key == "Enter", blank = key == "Space";
    if (!enter && !blank) return {};
    // They are for the loading screen.
    if (look.splash) return {};
    const List* list = ListOf(look.focus);
    if (look.focus == "EmuListbox" || (list && *list == List::emulators)) {
        Expected expected;
        expected.loads = look.dropDown.Marked();
        return expected;
    }
    if (list) return enter ? TakeRow(look, stores, *list, look.At(*list).row, true) : Expected{};
    return Press(look, stores, look.focus);
}

// One look at the pad, which holds one button at most. By the table from the factory.
Expected PollPad(const Look& look, const Stores& stores) {
    constexpr int starts = 1, adds = 10;
    if (look.PadIsSilent()) return {};
    if (look.pad.button == adds && look.pad.adds) return Press(look, stores, "AddToFavorit");
    if (look.pad.button != starts) return {};
    // Those of all emulators lie over the pad's own list.
    for (const List list : {List::globalHits, List::globalFavourites}) {
        if (look.At(list).visible)
            return look.At(list).row < 0 ? Expected{}
                                         : TakeRow(look, stores, list, look.At(list).row, false);
    }
    if (look.At(List::emulators).visible || look.pad.focus == 5) {
        Expected expected;
        expected.loads = look.dropDown.Marked();
        return expected;
    }
    static const std::map<int, List> lists{
        {1, List::favourites}, {2, List::simple}, {3, List::complete}, {4, List::hits}};
    const auto list = lists.find(look.pad.focus);
    if (list == lists.end()) return {};
    return TakeRow(look, stores, list->second, look.At(list->second).row, false);
}

// The loaded emulator starts it, whatever row of the choice has been looked at.
Expected TakeFile(const Look& look, const std::string& path) {
    const bool free = look.loaded >= 0 && !(look.gameRuns && look.watching) && !look.picture;
    if (!free || !IsFileToStart(path)) return {};
    Expected expected;
    expected.act = Act::start;
    expected.meant = {Meaning::Kind::game, path, FileName(path), look.Loaded()};
    return expected;
}

}  // namespace

bool IsFileToStart(const std::string& path) {
    return path.starts_with('/') && path.find('?') == std::string::npos;
}

Hand HandOf(const Json& command) {
    Hand hand;
    hand.gesture = command[0].get<std::string>();
    if (command.size() < 2 || !command[1].is_string()) return hand;
    hand.control = command[1].get<std::string>();
    if (hand.control.starts_with("Form1.")) hand.control.erase(0, 6);
    if (command.size() < 3) return hand;
    if (command[2].is_number_integer()) hand.row = command[2].get<int>();
    if (command[2].is_string()) hand.key = command[2].get<std::string>();
    return hand;
}

Expected Expect(const Look& look, const Stores& stores, const Json& command) {
    const Hand hand = HandOf(command);
    if (hand.gesture == "summon") return TakeFile(look, hand.control);
    if (hand.gesture == "key") return PressKey(look, stores, hand.key);
    if (hand.gesture == "tick" && hand.control == "JoystickTimer") return PollPad(look, stores);
    const List* list = ListOf(hand.control);
    if (hand.gesture == "dblclick" && list) return TakeRow(look, stores, *list, hand.row, false);
    if (hand.gesture == "dblclick" && hand.control == "EmuListbox") {
        Expected expected;
        expected.loads = look.dropDown.Text(hand.row);
        return expected;
    }
    if (hand.gesture == "rightclick" && list && *list == List::emulators) {
        Expected expected;
        expected.act = Act::setUp;
        expected.setUp = look.At(*list).Text(hand.row);
        return expected;
    }
    if (hand.gesture == "click" && hand.control == "GamePictureVis" &&
        look.At(List::emulators).visible) {
        Expected expected;
        expected.act = Act::setUp;
        expected.setUp = look.At(List::emulators).Marked();
        return expected;
    }
    const bool named = hand.gesture == "dblclick" && hand.control == "Current_ProgramNameFull";
    if (named || (hand.gesture == "click" && hand.control != "Current_ProgramNameFull"))
        return Press(look, stores, hand.control);
    return {};
}

}  // namespace kivu::walker
