#pragma once

#include <string_view>

#include "text/text.h"

namespace kivu::text {

// Without regard to case, as the endings of file names are told apart.
inline bool EndsWithNoCase(std::string_view text, std::string_view ending) {
    return text.size() >= ending.size() &&
           EqualsNoCase(text.substr(text.size() - ending.size()), ending);
}

}  // namespace kivu::text
