#include <limits>

#include "text/text.h"

namespace kivu::text {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

struct Fraction {
    bool aboveHalf = false;
    bool exactlyHalf = false;
};

// The digits behind the point, seen as a part of one.
Fraction ReadFraction(std::string_view digits) {
    std::size_t count = 0;
    while (count < digits.size() && IsDigit(digits[count]))
        ++count;
    digits = digits.substr(0, count);
    if (digits.empty() || digits[0] < '5') return {};
    const bool half =
        digits[0] == '5' && digits.find_first_not_of('0', 1) == std::string_view::npos;
    return {!half, half};
}

// The rounded number in front, or nothing when there is none or its amount is above `limit`.
std::optional<std::int64_t> LeadingNumber(std::string_view text, std::int64_t limit) {
    const std::size_t start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos) return std::nullopt;
    text.remove_prefix(start);
    const bool negative = text.front() == '-';
    if (negative || text.front() == '+') text.remove_prefix(1);

    std::int64_t amount = 0;
    std::size_t at = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at) {
        amount = amount * 10 + (text[at] - '0');
        if (amount > limit) return std::nullopt;
    }
    const bool hasPoint = at < text.size() && (text[at] == '.' || text[at] == ',');
    const bool hasFraction = hasPoint && at + 1 < text.size() && IsDigit(text[at + 1]);
    if (at == 0 && !hasFraction) return std::nullopt;
    if (hasFraction) {
        const Fraction fraction = ReadFraction(text.substr(at + 1));
        if (fraction.aboveHalf || (fraction.exactlyHalf && amount % 2 == 1)) ++amount;
    }
    return negative ? -amount : amount;
}

template <typename Number>
std::optional<Number> LeadingNumberAs(std::string_view text) {
    using Limits = std::numeric_limits<Number>;
    const auto number = LeadingNumber(text, std::int64_t{Limits::max()} + 1);
    if (!number || *number < Limits::min() || *number > Limits::max()) return std::nullopt;
    return static_cast<Number>(*number);
}

}  // namespace

std::optional<std::int16_t> ToNumber(std::string_view text) {
    return LeadingNumberAs<std::int16_t>(text);
}

std::optional<std::int32_t> ToWideNumber(std::string_view text) {
    return LeadingNumberAs<std::int32_t>(text);
}

}  // namespace kivu::text
