#include "text/string_ops.h"

#include <algorithm>
#include <array>

#include "text/text.h"

namespace kivu::text {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

// Bytes of `text` at `at` that match `findstring` but for case, or 0.
std::size_t MatchNoCase(std::string_view text, std::size_t at, std::string_view findstring) {
    std::size_t end = at;
    for (std::size_t inFind = 0; inFind < findstring.size();) {
        if (end == text.size()) return 0;
        const char32_t wanted = FoldCase(NextCodePoint(findstring, inFind));
        if (FoldCase(NextCodePoint(text, end)) != wanted) return 0;
    }
    return end - at;
}

}  // namespace

std::string replaceall(std::string_view text, std::string_view findstring,
                       std::string_view replacestring) {
    std::string result;
    if (findstring.empty()) return result = text;
    result.reserve(text.size());
    for (;;) {
        const std::size_t found = text.find(findstring);
        result += text.substr(0, found);
        if (found == kNone) return result;
        result += replacestring;
        text.remove_prefix(found + findstring.size());
    }
}

std::string ReplaceText(std::string_view text, std::string_view findstring,
                        std::string_view replacestring, bool matchCase) {
    if (matchCase) return replaceall(text, findstring, replacestring);
    std::string result;
    if (findstring.empty()) return result = text;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        if (const std::size_t length = MatchNoCase(text, at, findstring)) {
            result += replacestring;
            at += length;
        } else {
            const std::size_t start = at;
            NextCodePoint(text, at);
            result += text.substr(start, at - start);
        }
    }
    return result;
}

std::optional<RegistryPath> SplitRegistryPath(std::string_view path) {
    constexpr std::array<std::string_view, 7> kRoots = {
        "HKEY_CLASSES_ROOT",     "HKEY_CURRENT_USER",   "HKEY_LOCAL_MACHINE", "HKEY_USERS",
        "HKEY_PERFORMANCE_DATA", "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA"};
    const std::size_t first = path.find('\\');
    if (first == kNone) return std::nullopt;
    const std::string_view root = path.substr(0, first);
    if (std::find(kRoots.begin(), kRoots.end(), root) == kRoots.end()) return std::nullopt;
    const std::string_view rest = path.substr(first + 1);
    const std::size_t last = rest.rfind('\\');
    const std::string_view key = last == kNone ? std::string_view{} : rest.substr(0, last);
    const std::string_view value = last == kNone ? rest : rest.substr(last + 1);
    return RegistryPath{std::string(root), std::string(key), std::string(value)};
}

std::string ExpandUserProfile(std::string_view text, const EnvironmentLookup& lookup) {
    const std::size_t first = text.find('%');
    if (first == kNone || text.find('%', first + 1) == kNone || !lookup) return std::string(text);
    const std::optional<std::string> directory = lookup("USERPROFILE");
    if (!directory) return std::string(text);
    std::string result;
    for (;;) {
        const std::size_t open = text.find('%');
        const std::size_t close = open == kNone ? kNone : text.find('%', open + 1);
        if (close == kNone) return result += text;
        result += text.substr(0, open);
        result += *directory;
        text.remove_prefix(close + 1);
    }
}

}  // namespace kivu::text
