#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "driver/json.h"

namespace kivu::driver {

// What a called routine gives: its value, and what it has made of arguments that it changes.
struct Outcome {
    Json value;
    Json changed = Json::object();
};

// A routine that can be called by its name. Bind makes one of a lambda: its parameters' types say
// what arguments it takes and check them, std::optional ones may be left out at the end.
struct Routine {
    std::string name;
    std::function<Outcome(const Json& arguments)> run;
};

using RoutineTable = std::vector<Routine>;

namespace detail {

template <typename Value>
struct FromJson;

template <>
struct FromJson<std::string> {
    static std::string Take(const Json& value, const std::string& what) {
        return TextFrom(value, what);
    }
};
template <>
struct FromJson<int> {
    static int Take(const Json& value, const std::string& what) { return WholeFrom(value, what); }
};
template <>
struct FromJson<std::int16_t> {
    static std::int16_t Take(const Json& value, const std::string& what) {
        const int number = WholeFrom(value, what);
        using Range = std::numeric_limits<std::int16_t>;
        if (number < Range::min() || number > Range::max())
            throw CommandError(what + " must be a whole number of 16 bits");
        return static_cast<std::int16_t>(number);
    }
};
// A number is a flag too: all bits set is true, everything else false.
template <>
struct FromJson<bool> {
    static bool Take(const Json& value, const std::string& what) {
        if (value.is_number_integer()) return WholeFrom(value, what) == -1;
        return FlagFrom(value, what);
    }
};
template <>
struct FromJson<std::vector<std::string>> {
    static std::vector<std::string> Take(const Json& value, const std::string& what) {
        if (!value.is_array()) throw CommandError(what + " must be an array of texts");
        std::vector<std::string> texts;
        for (const Json& text : value)
            texts.push_back(TextFrom(text, what));
        return texts;
    }
};

template <typename Parameter>
struct IsOptional : std::false_type {};
template <typename Value>
struct IsOptional<std::optional<Value>> : std::true_type {};

template <typename Parameter>
Parameter TakeArgument(const Json& arguments, std::size_t place) {
    const std::string what = "argument " + std::to_string(place + 1);
    if constexpr (IsOptional<Parameter>::value) {
        if (place >= arguments.size()) return std::nullopt;
        return FromJson<typename Parameter::value_type>::Take(arguments[place], what);
    } else {
        return FromJson<Parameter>::Take(arguments[place], what);
    }
}

template <typename Function, typename Result, typename... Parameters, std::size_t... places>
Outcome Invoke(const Function& function, const Json& arguments,
               Result (Function::*)(Parameters...) const, std::index_sequence<places...>) {
    constexpr std::size_t most = sizeof...(Parameters);
    constexpr std::size_t least =
        (std::size_t{0} + ... + (IsOptional<std::decay_t<Parameters>>::value ? 0 : 1));
    if (arguments.size() < least || arguments.size() > most) {
        const std::string wanted = least == most
                                       ? std::to_string(most)
                                       : std::to_string(least) + " to " + std::to_string(most);
        throw CommandError("the routine takes " + wanted + " arguments");
    }
    const auto call = [&] {
        return function(TakeArgument<std::decay_t<Parameters>>(arguments, places)...);
    };
    if constexpr (std::is_void_v<Result>) {
        call();
        return {};
    } else if constexpr (std::is_same_v<Result, Outcome>) {
        return call();
    } else {
        return {Json(call())};
    }
}

template <typename Function, typename Result, typename... Parameters>
constexpr std::size_t CountParameters(Result (Function::*)(Parameters...) const) {
    return sizeof...(Parameters);
}

}  // namespace detail

template <typename Function>
Routine Bind(std::string name, Function function) {
    constexpr auto call = &Function::operator();
    constexpr std::size_t count = detail::CountParameters<Function>(call);
    return {std::move(name), [function](const Json& arguments) {
                return detail::Invoke(function, arguments, &Function::operator(),
                                      std::make_index_sequence<count>{});
            }};
}

}  // namespace kivu::driver
