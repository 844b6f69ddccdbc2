#include "text/stored_path_order.h"

namespace kivu::text {

namespace {

constexpr std::size_t none = std::string_view::npos;

bool HasDrive(std::string_view text) {
    return text.size() > 1 && text[1] == ':';
}

}  // namespace

StoredPaths::StoredPaths(std::string_view base, std::string_view sample)
    : posix(base.starts_with('/')) {
    const std::string_view up = posix ? "../" : "..\\";
    drive = !posix && HasDrive(sample);
    std::size_t length = 0;
    while (sample.substr(length).starts_with(up))
        length += up.size();
    // Below the base itself a path begins with one separator.
    if (length == 0 && sample.starts_with(posix ? '/' : '\\')) length = 1;
    begin = sample.substr(0, length);
}

std::optional<std::string_view> StoredPaths::Rest(std::string_view text) const {
    if (!text.starts_with(begin)) return {};
    if (drive) return HasDrive(text) && text.find('/') == none ? std::optional(text) : std::nullopt;
    const std::string_view rest = text.substr(begin.size());
    return IsPlain(rest) ? std::optional(rest) : std::nullopt;
}

bool StoredPaths::IsPlain(std::string_view rest) const {
    if (rest.empty() || rest[0] == '/' || rest[0] == '\\' || rest.starts_with("..")) return false;
    if (posix) return !begin.empty() || !HasDrive(rest);
    return rest.find(':') == none && rest.find('/') == none && rest.find("..\\") == none;
}

}  // namespace kivu::text
