#include "support/logged_files.h"

#include "support/log_reason.h"

namespace kivu::support {

namespace {
// Beyond that many it tells again: a disk full of unreadable files must not fill the memory.
constexpr std::size_t maxTold = 1000;
}  // namespace

std::optional<std::vector<platform::FileSystem::Entry>> LoggedFiles::ListDirectory(
    const std::string& path) const {
    auto entries = files.ListDirectory(path);
    TellListed(entries.has_value(), path);
    return entries;
}

std::optional<platform::FileSystem::Listing> LoggedFiles::ReadDirectory(
    const std::string& path) const {
    auto listing = files.ReadDirectory(path);
    TellListed(listing.has_value(), path);
    return listing;
}

void LoggedFiles::TellListed(bool listed, const std::string& path) const {
    const bool fine = listed || IsLeftOut(path);
    Tell("directory not read", path,
         fine                      ? ""
         : files.IsDirectory(path) ? "no access"
                                   : "not there");
}

bool LoggedFiles::IsLeftOut(const std::string& directory) const {
    const std::string separators = {'/', files.Separator()};
    const std::string path = directory.substr(0, directory.find_last_not_of(separators) + 1);
    const std::string above = path.substr(0, path.find_last_of(separators) + 1);
    return !files.IsDirectory(path) && !above.empty() && files.IsDirectory(above);
}

std::optional<std::string> LoggedFiles::ReadFile(const std::string& path) const {
    auto bytes = files.ReadFile(path);
    TellRead(bytes.has_value(), path);
    return bytes;
}

std::unique_ptr<platform::FileSystem::Reader> LoggedFiles::OpenFile(const std::string& path) const {
    auto reader = files.OpenFile(path);
    TellRead(reader != nullptr, path);
    return reader;
}

// A file that is missing is no failure: nearly all of them are read before they have been written.
void LoggedFiles::TellRead(bool read, const std::string& path) const {
    const char* reason = read                      ? ""
                         : files.FileExists(path)  ? "no access"
                         : files.IsDirectory(path) ? "it is a directory"
                                                   : "";
    Tell("not read", path, reason);
}

std::error_code LoggedFiles::WriteFile(const std::string& path, std::string_view bytes) {
    const std::error_code failure = files.WriteFile(path, bytes);
    const std::string separators = {'/', files.Separator()};
    const bool leftOut = failure && IsLeftOut(path.substr(0, path.find_last_of(separators) + 1));
    Told("not written", path, leftOut ? std::error_code() : failure);
    return failure;
}

std::error_code LoggedFiles::AppendFile(const std::string& path, std::string_view bytes) {
    return Told("not written", path, files.AppendFile(path, bytes));
}

std::error_code LoggedFiles::DeleteFile(const std::string& path) {
    const std::error_code failure = files.DeleteFile(path);
    const bool gone = !failure || !(files.FileExists(path) || files.IsDirectory(path));
    Told("not deleted", path, gone ? std::error_code() : failure);
    return failure;
}

std::error_code LoggedFiles::MoveFile(const std::string& from, const std::string& to) {
    return Told("not moved", from + " to " + to, files.MoveFile(from, to));
}

std::error_code LoggedFiles::MakeDirectory(const std::string& path) {
    const std::error_code failure = files.MakeDirectory(path);
    Told("directory not made", path,
         failure && files.IsDirectory(path) ? std::error_code() : failure);
    return failure;
}

std::error_code LoggedFiles::Told(const char* what, const std::string& path,
                                  std::error_code failure) const {
    Tell(what, path, LogReason(failure));
    return failure;
}

void LoggedFiles::Tell(const char* what, const std::string& path, const std::string& reason) const {
    const std::scoped_lock one(telling);
    // Nothing has failed so far, as nearly always.
    if (reason.empty() && told.empty()) return;
    const std::string line = std::string(what) + ": " + path;
    if (reason.empty()) {
        told.erase(line);
        return;
    }
    if (told.contains(line)) return;
    if (told.size() >= maxTold) told.clear();
    told.insert(line);
    log.Write(line + ": " + reason);
}

}  // namespace kivu::support
