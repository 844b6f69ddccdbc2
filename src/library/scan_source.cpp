#include "library/scan_source.h"

#include <utility>

namespace kivu::library {

bool ScanSource::Read(const std::string& path, std::vector<std::string>* directories,
                      std::vector<std::string>* names) {
    if (!scanning) {
        std::vector<std::string> readDirectories, readNames;
        if (!List(path, readDirectories, readNames)) return false;
        if (directories) *directories = std::move(readDirectories);
        if (names) *names = std::move(readNames);
        return true;
    }
    if (path != lastPath && !Enter(path)) return false;
    if (names && !namesAreLeft) {
        std::vector<std::string> ignored;
        if (!List(path, ignored, lastNames)) return false;
    }
    if (directories) *directories = lastDirectories;
    if (names) {
        *names = std::exchange(lastNames, {});
        namesAreLeft = false;
    }
    return true;
}

// Reads a directory that the scan has not seen yet.
bool ScanSource::Enter(const std::string& path) {
    const auto identity = files.IdentityOf(path);
    if (identity && entered.contains(*identity)) return false;
    std::vector<std::string> directories, names;
    if (!List(path, directories, names)) return false;
    LeaveOutLinksInside(path, directories);
    if (identity) entered.insert(*identity);
    lastPath = path;
    lastDirectories = std::move(directories);
    lastNames = std::move(names);
    namesAreLeft = true;
    return true;
}

bool ScanSource::List(const std::string& path, std::vector<std::string>& directories,
                      std::vector<std::string>& names) {
    auto entries = files.ListDirectory(path);
    if (!entries) return false;
    directories.clear();
    names.clear();
    names.reserve(entries->size());
    for (auto& entry : *entries)
        (entry.isDirectory ? directories : names).push_back(std::move(entry.name));
    return true;
}

// A link to a directory that the walk meets anyway would only decide under which of its paths the
// files are found.
void ScanSource::LeaveOutLinksInside(const std::string& path,
                                     std::vector<std::string>& directories) const {
    std::erase_if(directories, [&](const std::string& name) {
        const bool closed = !path.empty() && (path.back() == '/' || path.back() == '\\');
        const std::string full = closed ? path + name : path + files.Separator() + name;
        if (!files.IsLink(full)) return false;
        const std::string target = files.ResolvedPath(full);
        return target == rootPath || target.starts_with(rootPath + files.Separator());
    });
}

bool ScanSource::Matches(const std::string& text, const std::string& name) {
    if (text != patternText) {
        patternText = text;
        pattern = text::Pattern(text);
    }
    return pattern.Matches(name);
}

void ScanSource::BeginScan(const std::string& root) {
    scanning = true;
    rootPath = files.ResolvedPath(root);
    entered.clear();
    lastPath.clear();
}

void ScanSource::EndScan() {
    scanning = false;
    entered.clear();
    lastPath.clear();
    lastDirectories.clear();
    lastNames.clear();
    namesAreLeft = false;
}

}  // namespace kivu::library
