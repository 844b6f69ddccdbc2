#include "ui/colors.h"

#include <algorithm>

namespace kivu::ui {

namespace {

int Digit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

unsigned Pair(std::string_view digits, std::size_t place) {
    if (place + 2 > digits.size()) return 0;
    const int high = Digit(digits[place]);
    const int low = Digit(digits[place + 1]);
    return high < 0 || low < 0 ? 0 : static_cast<unsigned>(high * 16 + low);
}

}  // namespace

forms::Color HexToLong(std::string_view text) {
    std::string digits(text);
    std::erase(digits, '#');
    return forms::Rgb(Pair(digits, 0), Pair(digits, 2), Pair(digits, 4));
}

forms::Color RealColor(forms::Color color, const platform::SystemColors& system) {
    constexpr forms::Color systemMark = 0x80000000u;
    if ((color & systemMark) == 0) return color & 0xffffffu;
    return system.SystemColor(static_cast<int>(color & ~systemMark)) & 0xffffffu;
}

std::string LongToHex(forms::Color color) {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text = "#";
    for (int shift = 0; shift <= 16; shift += 8) {
        text += digits[color >> (shift + 4) & 0xf];
        text += digits[color >> shift & 0xf];
    }
    return text;
}

std::string LongToHex(forms::Color color, const platform::SystemColors& system) {
    return LongToHex(RealColor(color, system));
}

}  // namespace kivu::ui
