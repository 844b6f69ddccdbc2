#include "launch/associated_program.h"

#include <optional>

#include "text/file_names.h"
#include "text/paths.h"
#include "text/text.h"

namespace kivu::launch {

namespace {

bool IsThere(const platform::FileSystem& files, const std::string& path) {
    return files.FileExists(path) || files.IsDirectory(path) || files.IsLink(path);
}

// A file of our own that goes away with this. It never takes the place of another, and follows no
// link that somebody has laid: it is written under a free name, and a move fails where something
// is.
class OwnFile {
 public:
    OwnFile(const AssociatedProgram::Services& services, const std::string& path,
            const std::string& bytes)
        : passing(services.passing) {
        platform::FileSystem& files = services.files;
        const std::string draft = path + ".new";
        if (IsThere(files, path) || IsThere(files, draft)) return;
        if (files.WriteFile(draft, bytes)) return;
        if (files.MoveFile(draft, path)) {
            (void)files.DeleteFile(draft);
        } else {
            made = path;
            passing.Note(path);
        }
    }
    ~OwnFile() {
        if (made) passing.Delete(*made);
    }
    OwnFile(const OwnFile&) = delete;
    OwnFile& operator=(const OwnFile&) = delete;

    bool IsMade() const { return made.has_value(); }

 private:
    core::PassingFiles& passing;
    std::optional<std::string> made;
};

}  // namespace

std::string AssociatedProgram::FindAssociatedProgram(const std::string& file) {
    platform::FileSystem& files = services.files;
    if (file.empty()) return {};
    std::optional<OwnFile> standIn;
    if (!IsThere(files, file)) standIn.emplace(services, file, "");
    const char separator = file.find('/') != file.npos ? '/' : '\\';
    const std::size_t last = file.rfind(separator);
    std::string name = last == file.npos ? file : file.substr(last + 1);
    if (name.starts_with('*')) name.erase(0, 1);
    if (name.find('*') != name.npos &&
        services.dialogs.MessageBox("Enthält ungültige Zeichen Abbrechen?\r" + name,
                                    services.defaultTitle, platform::Buttons::YesNo,
                                    platform::Icon::Question) == platform::Answer::Yes)
        return {};
    std::string program = FindForName(name);
    if (!program.empty()) return program;
    const std::size_t dot = name.rfind('.');
    const bool whole = dot == name.npos || text::CodePointCount(name) < 4;
    return AskWith("RunFileTmp" + (whole ? name : name.substr(dot)), " ");
}

// The current directory is where a bare name counts from. It stays as it is.
std::string AssociatedProgram::FindForName(const std::string& name) {
    const std::string here = text::AddPathSeparator(services.files.CurrentDirectory()) + name;
    if (!name.empty() && services.files.FileExists(here)) return services.FindExecutableOf(here);
    return AskWith("zzzzzzzTemp_" + name, "  ");
}

std::string AssociatedProgram::AskWith(const std::string& temporaryName, const std::string& bytes) {
    constexpr int mostNames = 100;
    // With a separator in it, it would stand somewhere else.
    if (services.temporaryDirectory.empty() || !text::IsSafeFileName(temporaryName)) return {};
    const std::string directory = text::AddPathSeparator(services.temporaryDirectory);
    for (int number = 0; number < mostNames; ++number) {
        const std::string path =
            directory + (number == 0 ? "" : std::to_string(number)) + temporaryName;
        if (IsThere(services.files, path)) continue;
        const OwnFile own(services, path, bytes);
        if (own.IsMade()) return services.FindExecutableOf(path);
    }
    return {};
}

}  // namespace kivu::launch
