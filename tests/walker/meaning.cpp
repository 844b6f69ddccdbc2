#include "walker/meaning.h"

#include <algorithm>

#include "text/text.h"

namespace kivu::walker {

namespace {

using Kind = Meaning::Kind;

Meaning GameAt(const Look& look, int row) {
    if (!look.paths.Has(row) || !look.At(List::complete).Has(row)) return {Kind::gone, {}, {}, {}};
    return {Kind::game, look.paths.Text(row), look.At(List::complete).Text(row), look.Loaded()};
}

// A title stands for the first game whose name contains it, whatever the case: of games of which
// one's name is part of an earlier one's, the earlier one is taken.
Meaning GameOfTitle(const Look& look, const std::string& title) {
    const auto& names = look.At(List::complete).rows;
    const std::string wanted = LowerCase(title);
    for (std::size_t row = 0; row < names.size(); ++row) {
        if (LowerCase(names[row]).find(wanted) != std::string::npos)
            return GameAt(look, static_cast<int>(row));
    }
    return {Kind::gone, {}, title, look.Loaded()};
}

// A path or a file name: a row that is it goes before one that only contains it.
int RowOfFile(const std::vector<std::string>& paths, const std::string& wanted) {
    const auto row = [&](auto fits) {
        const auto found = std::find_if(paths.begin(), paths.end(), fits);
        return found == paths.end() ? -1 : static_cast<int>(found - paths.begin());
    };
    const int equal =
        row([&](const std::string& path) { return path == wanted || FileName(path) == wanted; });
    if (equal >= 0) return equal;
    return row([&](const std::string& path) { return path.find(wanted) != std::string::npos; });
}

Meaning OfFavourite(const Look& look, const Stores& stores, int row) {
    const ListLook& list = look.At(List::favourites);
    if (!list.Has(row)) return {};
    const auto at = static_cast<std::size_t>(row);
    // The file after a repair tells more than the list, until it is loaded again.
    if (at >= stores.own.size() || stores.own[at].name != list.rows[at])
        return {Kind::untold, {}, {}, {}};
    const std::string& path = stores.own[at].path;
    int game = RowOfFile(look.paths.rows, path);
    if (game < 0) game = RowOfFile(look.paths.rows, FileName(path));
    if (game < 0) return {Kind::gone, {}, list.rows[at], look.Loaded()};
    return GameAt(look, game);
}

// Of two with an equal text the first counts.
Meaning OfGlobalFavourite(const Look& look, const Stores& stores, int row) {
    const std::string text = look.At(List::globalFavourites).Text(row);
    for (const GlobalFavourite& favourite : stores.global) {
        if (favourite.Display() != text) continue;
        const auto& emulators = look.dropDown.rows;
        const bool known =
            std::find(emulators.begin(), emulators.end(), favourite.system) != emulators.end();
        return {known ? Kind::game : Kind::gone, favourite.path, favourite.name, favourite.system};
    }
    return {};
}

}  // namespace

std::string FileName(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

std::string LowerCase(const std::string& text) {
    return text::ToLower(text);
}

Meaning MeaningOf(const Look& look, const Stores& stores, List list, int row) {
    if (!look.At(list).Has(row)) return {};
    switch (list) {
        case List::complete:
            return GameAt(look, row);
        case List::simple:
        case List::hits:
            return GameOfTitle(look, look.At(list).Text(row));
        case List::favourites:
            return OfFavourite(look, stores, row);
        case List::globalFavourites:
            return OfGlobalFavourite(look, stores, row);
        default:
            return {};
    }
}

Meaning MeaningAsSelected(const Look& look, const Stores& stores, List list, int row) {
    const ListLook& shown = look.At(list);
    const bool title = list == List::simple || list == List::hits;
    const int selected = look.At(List::complete).row;
    const bool inStep = title && shown.Has(row) && selected == look.paths.row &&
                        look.At(List::complete).Marked() == shown.Text(row);
    return inStep ? GameAt(look, selected) : MeaningOf(look, stores, list, row);
}

Meaning MeaningInFront(const Look& look, const Stores& stores) {
    const int selected = look.At(List::complete).row;
    for (const List list : look.InFront()) {
        const bool games = list == List::favourites || list == List::simple ||
                           list == List::complete || list == List::hits;
        if (!games) return {};
        if (look.At(list).row >= 0) return MeaningAsSelected(look, stores, list, look.At(list).row);
    }
    return selected >= 0 ? GameAt(look, selected) : Meaning{};
}

}  // namespace kivu::walker
