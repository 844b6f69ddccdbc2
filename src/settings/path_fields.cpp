#include "settings/path_fields.h"

#include "core/profile_paths.h"
#include "text/paths.h"
#include "text/stored_paths.h"
#include "text/string_ops.h"
#include "text/text.h"

namespace kivu::settings {

namespace {

bool IsPosix(const core::ProgramFiles& program) {
    return program.AppDir.starts_with('/');
}

bool IsBareName(std::string_view text) {
    return !text.empty() && text.find_first_of("/\\") == std::string_view::npos;
}

// A root keeps it: "C:" alone would be the drive's current directory. "\\" may end a POSIX name.
std::string_view WithoutClosingSeparator(std::string_view path) {
    const bool root = path == "/" || (path.size() == 3 && path[1] == ':');
    const bool posix = path.starts_with('/');
    const bool closed = path.ends_with('/') || (!posix && path.ends_with('\\'));
    if (closed && !root) path.remove_suffix(1);
    return path;
}

// Profiles that were once written with doubled separators heal themselves this way.
std::string WithSingleSeparators(std::string path) {
    const bool drive = path.size() > 1 && path[1] == ':';
    return drive ? text::replaceall(path, "\\\\", "\\") : path;
}

}  // namespace

std::string ShownRomPath(const core::ProgramFiles& program, const platform::FileSystem& files,
                         const std::string& stored) {
    if (stored.empty()) return program.AppDir;
    return WithSingleSeparators(
        text::AddPathSeparator(core::PathOfProfile(program, files, stored)));
}

std::string ShownEmulatorPath(const core::ProgramFiles& program, const platform::FileSystem& files,
                              const std::string& stored) {
    if (stored.empty()) return std::string(WithoutClosingSeparator(program.AppDir));
    return WithSingleSeparators(core::ProgramOfProfile(program, files, stored));
}

std::string ShownFilePath(const core::ProgramFiles& program, const platform::FileSystem& files,
                          const std::string& stored) {
    return stored.empty() ? stored : core::PathOfProfile(program, files, stored);
}

bool IsAppDirectory(const core::ProgramFiles& program, std::string_view text) {
    const std::string_view own = WithoutClosingSeparator(program.AppDir);
    text = WithoutClosingSeparator(text);
    return IsPosix(program) ? text == own : text::EqualsNoCase(text, own);
}

std::string PathForProfile(const core::ProgramFiles& program, const std::string& shown) {
    const std::string path(WithoutClosingSeparator(shown));
    return text::PathToStore(program.BaseDirectory(), path);
}

std::string OwnPathForProfile(const core::ProgramFiles& program, const std::string& shown) {
    return IsAppDirectory(program, shown) ? std::string() : PathForProfile(program, shown);
}

std::string TypedPath(std::string_view text, std::string_view homeDirectory) {
    std::string path(text::Trim(text::WithoutQuotes(text)));
    const bool atHome = path == "~" || path.starts_with("~/") || path.starts_with("~\\");
    if (atHome && !homeDirectory.empty()) path.replace(0, 1, homeDirectory);
    return path;
}

bool IsTestedOnLeaving(std::string_view text) {
    return text.starts_with("\\\\");
}

// As if it were stored and read again.
std::string MeantPath(const core::ProgramFiles& program, const std::string& text) {
    const bool absolute = IsPosix(program) && text.starts_with('/');
    return absolute ? text : text::StoredPath(program.BaseDirectory(), text);
}

bool NamesFile(const core::ProgramFiles& program, const platform::FileSystem& files,
               const std::string& text) {
    return !text.empty() && files.FileExists(MeantPath(program, text));
}

std::string ProgramFile(const core::ProgramFiles& program, const platform::FileSystem& files,
                        const std::function<std::string(const std::string&)>& findInPath,
                        const std::string& text) {
    if (NamesFile(program, files, text)) return MeantPath(program, text);
    return IsPosix(program) && IsBareName(text) ? findInPath(text) : std::string();
}

bool NamesProgram(const core::ProgramFiles& program, const platform::FileSystem& files,
                  const std::function<std::string(const std::string&)>& findInPath,
                  const std::string& text) {
    return !ProgramFile(program, files, findInPath, text).empty();
}

}  // namespace kivu::settings
