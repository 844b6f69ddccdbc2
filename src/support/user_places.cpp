#include "support/user_places.h"

#include <initializer_list>
#include <string_view>

#include "support/file_dialog_paths.h"
#include "support/path_forms.h"
#include "text/text.h"

namespace kivu::support {

namespace {

// The value of a line such as XDG_DESKTOP_DIR="$HOME/Schreibtisch", which desktops write; nothing
// else than a path, or one below "$HOME", may stand there.
std::string ValueOf(std::string_view line, std::string_view name, const std::string& home) {
    line = text::Trim(line);
    if (!line.starts_with(name)) return {};
    line.remove_prefix(name.size());
    if (line.size() < 3 || !line.starts_with("=\"") || !line.ends_with('"')) return {};
    line = line.substr(2, line.size() - 3);
    constexpr std::string_view ofHome = "$HOME/";
    if (line.starts_with(ofHome)) return JoinedPath(home, line.substr(ofHome.size()));
    return line.starts_with('/') ? std::string(line) : std::string();
}

}  // namespace

// As freedesktop.org's xdg-user-dirs keeps it.
std::string UserPlaces::NamedDesktop() const {
    const std::string home = files.HomeDirectory();
    if (home.empty()) return {};
    const auto bytes = files.ReadFile(JoinedPath(home, ".config/user-dirs.dirs"));
    std::string desktop;
    for (const std::string_view line : text::SplitLines(bytes ? *bytes : std::string_view())) {
        std::string value = ValueOf(line, "XDG_DESKTOP_DIR", home);
        if (!value.empty()) desktop = std::move(value);
    }
    return desktop;
}

std::string UserPlaces::Desktop() const {
    const std::string home = files.HomeDirectory();
    const std::string named = NamesAreBytes(files) ? NamedDesktop() : folders.GetDesktopPath();
    const std::string usual = home.empty() ? home : JoinedPath(home, "Desktop");
    for (const std::string& path : {named, usual}) {
        if (!path.empty() && files.IsDirectory(path)) return path;
    }
    return home;
}

std::string UserPlaces::Programs() const {
    if (!NamesAreBytes(files)) return folders.GetStartMenuPath();
    const char* games = "/usr/games";
    return files.IsDirectory(games) ? games : "/usr/bin";
}

}  // namespace kivu::support
