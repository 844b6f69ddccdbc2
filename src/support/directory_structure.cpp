// The list of a directory tree, as a text file.

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "support/file_dialog_paths.h"
#include "support/files.h"
#include "support/path_forms.h"
#include "text/collation.h"
#include "text/paths.h"
#include "text/pattern.h"
#include "text/text.h"

namespace kivu::support {

namespace {

using platform::FileSystem;

text::Pattern PatternFor(const std::string& extension) {
    const std::size_t point = extension.rfind('.');
    const std::string ending = point == std::string::npos ? extension : extension.substr(point + 1);
    return text::Pattern(ending.empty() || ending == "*" ? "*.*" : "*." + ending);
}

class TreeLines {
 public:
    TreeLines(const FileSystem& files, const std::string& extension, const std::string& target)
        : files(files),
          pattern(PatternFor(extension)),
          targetName(text::GetFileNameOnly(target)),
          target(files.IdentityOf(target)) {}

    // Empty: the directory cannot be read.
    std::optional<std::string> Below(const std::string& source) {
        if (!Enter(source)) return std::nullopt;
        // The next one stands at the end.
        while (!waiting.empty()) {
            const std::string directory = std::move(waiting.back());
            waiting.pop_back();
            Enter(directory);
        }
        return std::move(lines);
    }

 private:
    bool Enter(const std::string& directory) {
        const auto listing = files.ReadDirectory(directory);
        if (!listing) return false;
        if (listing->identity && !entered.insert(*listing->identity).second) return true;
        std::vector<std::string> names, directories;
        for (const auto& item : listing->items)
            (item.isDirectory ? directories : names).emplace_back(listing->Name(item));
        const auto before = [](const std::string& a, const std::string& b) {
            return text::CompareText(a, b) < 0;
        };
        std::stable_sort(names.begin(), names.end(), before);
        std::stable_sort(directories.begin(), directories.end(), before);
        for (const std::string& name : names)
            Add(directory, name);
        for (auto name = directories.rbegin(); name != directories.rend(); ++name)
            waiting.push_back(JoinedPath(directory, *name));
        return true;
    }

    void Add(const std::string& directory, const std::string& name) {
        if (!pattern.Matches(name)) return;
        const std::string path = JoinedPath(directory, name);
        const bool maybe = target && text::EqualsNoCase(name, targetName);
        if (maybe && files.IdentityOf(path) == target) return;
        lines += files.EncodeText(path) + "\r\n";
    }

    const FileSystem& files;
    text::Pattern pattern;
    std::string targetName;
    std::optional<FileSystem::Identity> target;
    std::set<FileSystem::Identity> entered;
    std::vector<std::string> waiting;
    std::string lines;
};

}  // namespace

bool Files::ReadDirctoryStructureToFile(const std::string& Source,
                                        const std::string& TargetTextFileName,
                                        const std::string& SearchExtension, bool AppendTarget) {
    FileSystem& files = services.files;
    const TypedFrom here{files.CurrentDirectory(), {}, NamesAreBytes(files)};
    const std::string source = PathTyped(Source, here);
    const std::string target = PathTyped(TargetTextFileName, here);
    if (source.empty() || target.empty()) return false;
    const auto lines = TreeLines(files, SearchExtension, target).Below(source);
    if (!lines) return false;
    return !(AppendTarget ? files.AppendFile(target, *lines) : files.WriteFile(target, *lines));
}

}  // namespace kivu::support
