#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "driver/json.h"
#include "driver/properties.h"
#include "forms/form.h"

namespace kivu::driver {

// A field of a window by its name. Both are given the window that the table is of.
struct Field {
    const char* name;
    std::function<Json(const forms::Form&)> get;
    std::function<void(forms::Form&, const Json&)> set;
};

using FieldTable = std::vector<Field>;

namespace detail {

inline Json Shown(const std::string& value) {
    return value;
}
inline Json Shown(int value) {
    return value;
}
inline Json Shown(bool value) {
    return value;
}
inline Json Shown(forms::Color value) {
    return ColorText(value);
}
template <typename Value, std::size_t count>
Json Shown(const std::array<Value, count>& values) {
    Json shown = Json::array();
    for (const Value& value : values)
        shown.push_back(Shown(value));
    return shown;
}

inline void Take(std::string& field, const Json& value, const std::string& name) {
    field = TextFrom(value, name);
}
inline void Take(int& field, const Json& value, const std::string& name) {
    field = WholeFrom(value, name);
}
inline void Take(bool& field, const Json& value, const std::string& name) {
    field = FlagFrom(value, name);
}
inline void Take(forms::Color& field, const Json& value, const std::string& name) {
    field = ColorFrom(value, name);
}
template <typename Value, std::size_t count>
void Take(std::array<Value, count>& field, const Json& value, const std::string& name) {
    if (!value.is_array() || value.size() != count)
        throw CommandError(name + " must be an array of " + std::to_string(count));
    std::array<Value, count> taken = field;
    for (std::size_t i = 0; i < count; ++i)
        Take(taken[i], value[i], name);
    field = taken;
}

}  // namespace detail

template <typename Window, typename Group, typename Value>
Field FieldOf(const char* name, Value Group::*member) {
    return {name,
            [member](const forms::Form& form) {
                return detail::Shown(static_cast<const Window&>(form).*member);
            },
            [member, name](forms::Form& form, const Json& value) {
                detail::Take(static_cast<Window&>(form).*member, value, name);
            }};
}

}  // namespace kivu::driver
