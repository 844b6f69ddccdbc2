#include "core/stored_names.h"

#include <algorithm>

#include "profile/ini_syntax.h"

namespace kivu::core {

namespace {

std::string AsReadBack(const platform::FileSystem& files, const std::string& name) {
    return files.DecodeText(profile::ReadableValue(profile::WithinLine(files.EncodeText(name))));
}

}  // namespace

int FindStoredName(const platform::FileSystem& files, const std::vector<std::string>& rows,
                   const std::vector<std::string>& asStored) {
    for (const std::string& name : asStored) {
        const auto found = name.empty() ? rows.end() : std::find(rows.begin(), rows.end(), name);
        if (found != rows.end()) return static_cast<int>(found - rows.begin());
    }
    if (asStored.empty() || asStored.back().empty()) return -1;
    const auto isMeant = [&](const std::string& row) {
        return AsReadBack(files, row) == asStored.back();
    };
    const auto found = std::find_if(rows.begin(), rows.end(), isMeant);
    if (found == rows.end() || std::any_of(found + 1, rows.end(), isMeant)) return -1;
    return static_cast<int>(found - rows.begin());
}

}  // namespace kivu::core
