#include "hosts/linux/mounted_drives.h"

#include <algorithm>

namespace kivu::hosts {

namespace {

constexpr const char* userPlaces[] = {"/media/", "/run/media/", "/mnt/"};

bool IsOctal(char c) {
    return c >= '0' && c <= '7';
}

// Blanks, tabs, line ends and backslashes stand in the table as "\" and three octal digits.
std::string Unescaped(std::string_view field) {
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        const bool escape = field[i] == '\\' && i + 3 < field.size() && IsOctal(field[i + 1]) &&
                            IsOctal(field[i + 2]) && IsOctal(field[i + 3]);
        if (!escape) {
            text += field[i];
            continue;
        }
        text += static_cast<char>((field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 +
                                  (field[i + 3] - '0'));
        i += 3;
    }
    return text;
}

// The second field of a line: where it is mounted.
std::string PlaceOf(std::string_view line) {
    const std::size_t begin = line.find(' ');
    if (begin == std::string_view::npos) return {};
    const std::size_t end = line.find(' ', begin + 1);
    return Unescaped(line.substr(begin + 1, end == std::string_view::npos ? end : end - begin - 1));
}

bool IsForUsers(const std::string& place) {
    // A disk may be mounted on /mnt itself.
    return place == "/mnt" ||
           std::any_of(std::begin(userPlaces), std::end(userPlaces),
                       [&](const char* above) { return place.starts_with(above); });
}

}  // namespace

std::vector<std::string> DrivesOf(const std::string& home, std::string_view mountTable) {
    std::vector<std::string> mounts;
    while (!mountTable.empty()) {
        const std::size_t end = std::min(mountTable.find('\n'), mountTable.size());
        std::string place = PlaceOf(mountTable.substr(0, end));
        if (IsForUsers(place) && place != home) mounts.push_back(std::move(place));
        mountTable.remove_prefix(std::min(end + 1, mountTable.size()));
    }
    std::sort(mounts.begin(), mounts.end());
    mounts.erase(std::unique(mounts.begin(), mounts.end()), mounts.end());
    std::vector<std::string> drives{"/"};
    if (!home.empty() && home != "/") drives.push_back(home);
    drives.insert(drives.end(), mounts.begin(), mounts.end());
    return drives;
}

}  // namespace kivu::hosts
