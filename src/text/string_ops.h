#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kivu::text {

// Every occurrence, from left to right; what was put in is not looked at again. An empty search
// text changes nothing.
[[nodiscard]] std::string replaceall(std::string_view text, std::string_view findstring,
                                     std::string_view replacestring);

// The same; without `matchCase` the search text is found in capitals and small letters alike. What
// is not replaced keeps its case.
[[nodiscard]] std::string ReplaceText(std::string_view text, std::string_view findstring,
                                      std::string_view replacestring, bool matchCase);

struct RegistryPath {
    std::string root;  // such as "HKEY_LOCAL_MACHINE"
    std::string keyPath;
    std::string valueName;
};

// "Root\key path\value name" in its parts; the key path is empty where there is only one "\".
// Empty: no "\" at all, or none of the seven known roots.
[[nodiscard]] std::optional<RegistryPath> SplitRegistryPath(std::string_view path);

// Each text in a pair of percent signs, with the signs, replaced by the user's directory, which
// `lookup` gives for "USERPROFILE". Where it gives nothing the text stays.
using EnvironmentLookup = std::function<std::optional<std::string>(const std::string&)>;
[[nodiscard]] std::string ExpandUserProfile(std::string_view text, const EnvironmentLookup& lookup);

}  // namespace kivu::text
