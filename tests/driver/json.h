#pragma once

#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

namespace kivu::driver {

// Keeps the order in which keys are put in, so that an answer begins with "ok".
using Json = nlohmann::ordered_json;

// What is wrong with a command; its text becomes the answer's error.
struct CommandError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Values out of JSON. `what` names the value in the error; nothing is converted silently.
inline const std::string& TextFrom(const Json& value, const std::string& what) {
    if (!value.is_string()) throw CommandError(what + " must be a text");
    return value.get_ref<const std::string&>();
}

inline int WholeFrom(const Json& value, const std::string& what) {
    const auto fail = [&] { return CommandError(what + " must be a whole number of 32 bits"); };
    if (!value.is_number_integer()) throw fail();
    constexpr auto most = std::numeric_limits<int>::max();
    if (value.is_number_unsigned()) {
        const auto number = value.get<std::uint64_t>();
        if (number > static_cast<std::uint64_t>(most)) throw fail();
        return static_cast<int>(number);
    }
    const auto number = value.get<std::int64_t>();
    if (number < std::numeric_limits<int>::min() || number > most) throw fail();
    return static_cast<int>(number);
}

inline bool FlagFrom(const Json& value, const std::string& what) {
    if (!value.is_boolean()) throw CommandError(what + " must be true or false");
    return value.get<bool>();
}

}  // namespace kivu::driver
