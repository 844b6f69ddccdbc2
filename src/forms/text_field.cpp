#include "forms/text_field.h"

#include <algorithm>
#include <string_view>
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

constexpr const char* lineEnd = "\r\n";

// CR and LF alone become CR LF.
std::string WithLineEnds(std::string_view text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') {
            lines += text[i];
            continue;
        }
        lines += lineEnd;
        if (text.substr(i, 2) == lineEnd) ++i;
    }
    return lines;
}

std::string Utf8(char32_t code) {
    const auto tail = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3f)); };
    if (code < 0x80) return {static_cast<char>(code)};
    if (code < 0x800) return {static_cast<char>(0xc0 | code >> 6), tail(code)};
    if (code < 0x10000) return {static_cast<char>(0xe0 | code >> 12), tail(code >> 6), tail(code)};
    return {static_cast<char>(0xf0 | code >> 18), tail(code >> 12), tail(code >> 6), tail(code)};
}

}  // namespace

TextField::TextField(std::string text, int start, int length, bool multiLine)
    : text(multiLine ? WithLineEnds(text) : std::move(text)), multiLine(multiLine) {
    Select(start, length);
}

void TextField::SetText(std::string value) {
    text = multiLine ? WithLineEnds(value) : std::move(value);
    Select(start, length);
}

void TextField::SetMultiLine(bool value) {
    multiLine = value;
    SetText(std::move(text));
}

void TextField::Select(int newStart, int newLength) {
    if (newStart < 0 || newLength < 0) return;
    const int count = PointsOf(text);
    start = std::min(newStart, count);
    length = std::min(newLength, count - start);
}

int TextField::StepFrom(int point) const {
    return multiLine && text.compare(ByteOf(text, point), 2, lineEnd) == 0 ? 2 : 1;
}

int TextField::StepBefore(int point) const {
    return point >= 2 && StepFrom(point - 2) == 2 ? 2 : std::min(point, 1);
}

int TextField::LineStart(int point) const {
    const std::size_t byte = ByteOf(text, point);
    const std::size_t end = byte == 0 ? std::string::npos : text.rfind('\n', byte - 1);
    return end == std::string::npos ? 0 : PointsOf(text.substr(0, end + 1));
}

int TextField::LineEnd(int point) const {
    return PointsOf(text.substr(0, text.find(lineEnd, ByteOf(text, point))));
}

bool TextField::EditLines(int keyCode) {
    const int begin = LineStart(start);
    const int column = start - begin;
    const auto moveTo = [&](int line) { Select(std::min(line + column, LineEnd(line)), 0); };
    switch (keyCode) {
        case keys::up:
            if (begin > 0) moveTo(LineStart(begin - 2));
            return true;
        case keys::down:
            if (const int end = LineEnd(start); end < PointsOf(text)) moveTo(end + 2);
            return true;
        case keys::home:
            Select(begin, 0);
            return true;
        case keys::end:
            Select(LineEnd(start), 0);
            return true;
        case keys::enter:
            Replace(start, length, lineEnd);
            return true;
        default:
            return false;
    }
}

bool TextField::EditKey(int keyCode) {
    if (multiLine && EditLines(keyCode)) return true;
    switch (keyCode) {
        case keys::left:
            Select(length > 0 ? start : start - StepBefore(start), 0);
            return true;
        case keys::right:
            Select(start + (length > 0 ? length : StepFrom(start)), 0);
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
                const int step = StepBefore(start);
                Replace(start - step, step, "");
            }
            return true;
        case keys::del:
            Replace(start, length > 0 ? length : StepFrom(start), "");
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
