#include "support/path_forms.h"

#include "text/paths.h"
#include "text/text.h"

namespace kivu::support {

std::string ShortFileName(const platform::FileSystem& files, const std::string& path) {
    const std::string shortName = files.ShortPathName(LongFileName(files, path));
    return text::RemoveQuotes(shortName.empty() ? path : shortName);
}

std::string LongFileName(const platform::FileSystem& files, const std::string& path) {
    const std::string answer = files.LongPathName(path);
    const std::string_view trimmed = text::Trim(answer);
    return trimmed.empty() ? path : std::string(trimmed);
}

bool NamesAreBytes(const platform::FileSystem& files) {
    return files.Separator() == '/';
}

std::string NameOfStoredBytes(const platform::FileSystem& files, const std::string& stored,
                              const std::function<std::string(const std::string&)>& absolute) {
    std::string decoded = files.DecodeText(stored);
    const bool fromWindows = stored.starts_with('\\') || stored.starts_with("..\\");
    if (!NamesAreBytes(files) || fromWindows) return decoded;
    const bool onlyDecoded =
        !files.FileExists(absolute(stored)) && files.FileExists(absolute(decoded));
    return onlyDecoded ? decoded : stored;
}

std::string DirectoryOf(const platform::FileSystem& files, const std::string& path) {
    return text::GetFilePath(
        path, [&](const std::string& candidate) { return files.IsDirectory(candidate); });
}

}  // namespace kivu::support
