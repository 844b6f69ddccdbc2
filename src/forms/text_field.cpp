#include "forms/text_field.h"

#include <algorithm>
#include <utility>

#include "forms/types.h"

namespace kivu::forms {

namespace {

bool IsTail(char byte) {
    return (byte & 0xc0) == 0x80;
}

std::size_t ByteOf(const std::string& text, int point) {
    std::size_t byte = 0;
    for (; byte < text.size() && point > 0; --point) {
        ++byte;
        while (byte < text.size() && IsTail(text[byte]))
            ++byte;
    }
    return byte;
}

// Stray tail bytes at the front count as one point, as ByteOf steps over them.
int PointsOf(const std::string& text) {
    const auto heads = std::count_if(text.begin(), text.end(), [](char c) { return !IsTail(c); });
    return static_cast<int>(heads) + (!text.empty() && IsTail(text.front()) ? 1 : 0);
}

std::string Utf8(char32_t code) {
    const auto tail = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3f)); };
    if (code < 0x80) return {static_cast<char>(code)};
    if (code < 0x800) return {static_cast<char>(0xc0 | code >> 6), tail(code)};
    if (code < 0x10000) return {static_cast<char>(0xe0 | code >> 12), tail(code >> 6), tail(code)};
    return {static_cast<char>(0xf0 | code >> 18), tail(code >> 12), tail(code >> 6), tail(code)};
}

}  // namespace

TextField::TextField(std::string text, int start, int length) : text(std::move(text)) {
    Select(start, length);
}

void TextField::SetText(std::string value) {
    text = std::move(value);
    Select(start, length);
}

void TextField::Select(int newStart, int newLength) {
    if (newStart < 0 || newLength < 0) return;
    const int count = PointsOf(text);
    start = std::min(newStart, count);
    length = std::min(newLength, count - start);
}

bool TextField::EditKey(int keyCode) {
    switch (keyCode) {
        case keys::left:
            Select(length > 0 ? start : std::max(0, start - 1), 0);
            return true;
        case keys::right:
            Select(start + std::max(1, length), 0);
            return true;
        case keys::home:
            Select(0, 0);
            return true;
        case keys::end:
            Select(PointsOf(text), 0);
            return true;
        case keys::back:
            if (length > 0) {
                Replace(start, length, "");
            } else if (start > 0) {
                Replace(start - 1, 1, "");
            }
            return true;
        case keys::del:
            Replace(start, std::max(1, length), "");
            return true;
        default:
            return false;
    }
}

void TextField::Type(char32_t character) {
    Replace(start, length, Utf8(character));
}

void TextField::Replace(int from, int count, const std::string& with) {
    const std::size_t begin = ByteOf(text, from);
    const std::size_t end = ByteOf(text, from + count);
    text.replace(begin, end - begin, with);
    Select(from + PointsOf(with), 0);
}

}  // namespace kivu::forms
