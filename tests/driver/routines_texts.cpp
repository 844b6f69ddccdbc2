// Routines over values alone.

#include "driver/properties.h"
#include "driver/routines.h"
#include "library/find_list_item.h"
#include "library/short_names.h"
#include "text/collation.h"
#include "text/paths.h"
#include "text/stored_paths.h"
#include "text/string_ops.h"
#include "ui/colors.h"

namespace kivu::driver {

using std::optional;
using std::string;

namespace {

Outcome FindRow(const string& text, const std::vector<string>& rows, bool probe, int start) {
    const int row = library::FindListItem(text, rows, probe, start);
    Outcome outcome{row};
    outcome.changed["StartRow"] = start;
    return outcome;
}

void AddPathForms(RoutineTable& table) {
    table.push_back(
        Bind("AddPathSeparator", [](string path) { return text::AddPathSeparator(path); }));
    table.push_back(Bind("RemoveQuotes", [](string text) { return text::RemoveQuotes(text); }));
    table.push_back(
        Bind("GetFileNameOnly", [](string path) { return text::GetFileNameOnly(path); }));
    table.push_back(
        Bind("GetLastPathElement", [](string path) { return text::GetLastPathElement(path); }));
    table.push_back(Bind("GetParentPath", [](string path) { return text::GetParentPath(path); }));
    table.push_back(Bind("QuoteIfNeeded", [](string text) { return text::QuoteIfNeeded(text); }));
    table.push_back(Bind("PreParePath", [](string path) { return text::PreParePath(path); }));
    table.push_back(Bind("MakeRelativePath", [](string base, string path) {
        return text::MakeRelativePath(base, path);
    }));
    table.push_back(Bind("MakeAbsolutePath", [](string base, string path) {
        return text::MakeAbsolutePath(base, path);
    }));
}

}  // namespace

void AddTextRoutines(RoutineTable& table, Session& session) {
    AddPathForms(table);
    table.push_back(Bind("CutShortName", [](string path, string separator, bool fromSecond) {
        return library::CutShortName(path, separator, fromSecond);
    }));
    table.push_back(Bind("getCharDiff", [](string a, string b, optional<int> limit) {
        return limit ? library::getCharDiff(a, b, *limit) : library::getCharDiff(a, b);
    }));
    table.push_back(
        Bind("FindListItem", [](string text, std::vector<string> rows, bool probe, int start) {
            return FindRow(text, rows, probe, start);
        }));
    table.push_back(Bind("replaceall", [](string text, string find, string replacement) {
        return text::replaceall(text, find, replacement);
    }));
    table.push_back(
        Bind("ReplaceText", [](string text, string find, string replacement, bool matchCase) {
            return text::ReplaceText(text, find, replacement, matchCase);
        }));
    table.push_back(Bind("CompareText", [](string a, string b) {
        const int order = text::CompareText(a, b);
        return order < 0 ? -1 : order > 0 ? 1 : 0;
    }));
    table.push_back(Bind(
        "HexToLong", [](string text) { return static_cast<std::int64_t>(ui::HexToLong(text)); }));
    table.push_back(Bind("LongToHex", [&session](int color) {
        return ui::LongToHex(static_cast<forms::Color>(color), session.Host().systemColors);
    }));
}

}  // namespace kivu::driver
