#include "support/web_address.h"

#include <algorithm>
#include <array>

#include "text/string_ops.h"
#include "text/text.h"

namespace kivu::support {

namespace {

bool StartsWithNoCase(std::string_view text, std::string_view beginning) {
    return text.size() >= beginning.size() &&
           text::EqualsNoCase(text.substr(0, beginning.size()), beginning);
}

bool IsAddressOf(std::string_view scheme, std::string_view address) {
    if (!StartsWithNoCase(address, scheme)) return false;
    const std::string_view rest = address.substr(scheme.size());
    const bool host = !rest.empty() && std::string_view("/\\?#:@").find(rest[0]) == rest.npos;
    return host && std::none_of(address.begin(), address.end(), [](char c) {
               const auto byte = static_cast<unsigned char>(c);
               return byte <= ' ' || byte == 0x7F || c == '"';
           });
}

// "http:", "C:", "javascript:", but not the port in "host:8080".
bool HasScheme(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == text.npos || text.substr(0, colon).find_first_of("/?#") != text.npos) return false;
    const std::string_view rest = text.substr(colon + 1);
    return rest.empty() || rest[0] < '0' || rest[0] > '9';
}

}  // namespace

bool IsSafeWebAddress(std::string_view address) {
    return IsAddressOf("https://", address);
}

bool IsWebAddress(std::string_view address) {
    return IsAddressOf("http://", address) || IsSafeWebAddress(address);
}

bool ShowHtmlWithBrowser(platform::ProgramStarter& starter, const std::string& address) {
    return IsWebAddress(address) && !starter.Open(address);
}

std::optional<std::string> DownloadAddress(std::string_view stored) {
    const std::string_view trimmed = text::Trim(stored);
    const std::string address = (HasScheme(trimmed) ? "" : "http://") + std::string(trimmed);
    if (!IsWebAddress(address)) return std::nullopt;
    return address;
}

std::string getEmuDownloadPath(std::string_view emulatorName, std::string_view downloadURL) {
    if (emulatorName.empty() || downloadURL.empty()) return {};
    return std::string(emulatorName) + " Download: " + text::replaceall(downloadURL, "http://", "");
}

}  // namespace kivu::support
