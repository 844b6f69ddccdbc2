#include "library/scan_source.h"

#include <utility>

namespace kivu::library {

bool ScanSource::Read(const std::string& path, std::vector<std::string_view>* directories,
                      std::vector<std::string_view>* names) {
    const bool entering = scanning && path != lastPath;
    if (entering && !Enter(path)) return false;
    if (!entering && (!scanning || (names && !namesAreLeft))) {
        auto listing = files.ReadDirectory(path);
        if (!listing) return false;
        if (scanning) LeaveOutLinksInside(path, *listing);
        last = *std::move(listing);
    }
    Show(last, directories, names);
    if (names) namesAreLeft = false;
    return true;
}

// Reads a directory that the scan has not seen yet.
bool ScanSource::Enter(const std::string& path) {
    auto listing = ahead->Read(path);
    if (!listing) return false;
    if (listing->identity && !entered.insert(*listing->identity).second) return false;
    LeaveOutLinksInside(path, *listing);
    last = *std::move(listing);
    lastPath = path;
    namesAreLeft = true;
    return true;
}

// A link to a directory that the walk meets anyway would only decide under which of its paths the
// files are found.
void ScanSource::LeaveOutLinksInside(const std::string& path, Listing& listing) const {
    std::erase_if(listing.items, [&](const Listing::Item& item) {
        if (!item.isLink) return false;
        const bool closed = !path.empty() && (path.back() == '/' || path.back() == '\\');
        std::string full = closed ? path : path + files.Separator();
        full += listing.Name(item);
        const std::string target = files.ResolvedPath(full);
        return target == rootPath || target.starts_with(rootPath + files.Separator());
    });
}

void ScanSource::BeginScan(const std::string& root) {
    scanning = true;
    rootPath = files.ResolvedPath(root);
    entered.clear();
    lastPath.clear();
    ahead.emplace(files);
}

void ScanSource::WillEnter(const std::vector<std::string>& paths) {
    if (ahead) ahead->Expect(paths);
}

void ScanSource::EndScan() {
    scanning = false;
    entered.clear();
    lastPath.clear();
    last = {};
    namesAreLeft = false;
    ahead.reset();
}

}  // namespace kivu::library
