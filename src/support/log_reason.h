#pragma once

#include <string>
#include <system_error>

namespace kivu::support {

// Why something has failed, as the host words it, with its number, since the words may be in any
// language. Empty where nothing has.
inline std::string LogReason(std::error_code failure) {
    if (!failure) return {};
    return failure.message() + " (" + std::to_string(failure.value()) + ")";
}

}  // namespace kivu::support
