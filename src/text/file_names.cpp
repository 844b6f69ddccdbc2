#include "text/file_names.h"

#include <algorithm>
#include <array>

#include "text/text.h"

namespace kivu::text {

bool IsDeviceName(std::string_view name) {
    // A stream's name behind ":" does not make it another device.
    const std::string_view stem = TrimRight(name.substr(0, name.find_first_of(".:")));
    constexpr std::array<std::string_view, 6> devices = {"CON", "PRN",    "AUX",
                                                         "NUL", "CONIN$", "CONOUT$"};
    const auto is = [&](std::string_view device) { return EqualsNoCase(stem, device); };
    if (std::any_of(devices.begin(), devices.end(), is)) return true;
    if (stem.size() < 4) return false;
    const std::string_view port = stem.substr(0, 3), number = stem.substr(3);
    // Superscript digits count as digits here.
    constexpr std::array<std::string_view, 3> superscripts = {"\xC2\xB9", "\xC2\xB2", "\xC2\xB3"};
    const bool digit =
        (number.size() == 1 && number[0] >= '1' && number[0] <= '9') ||
        std::find(superscripts.begin(), superscripts.end(), number) != superscripts.end();
    return digit && (EqualsNoCase(port, "COM") || EqualsNoCase(port, "LPT"));
}

bool IsSafeFileName(std::string_view name) {
    if (name.empty() || name.ends_with('.') || name.ends_with(' ')) return false;
    const bool plain = std::none_of(name.begin(), name.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < ' ' || byte == 0x7F ||
               std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
    });
    return plain && !IsDeviceName(name);
}

}  // namespace kivu::text
