#include "forms/access_keys.h"

#include "forms/controls.h"

namespace kivu::forms {

char AccessKeyOf(std::string_view caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') continue;
        const char letter = caption[++i];
        if (letter == '&') continue;
        const bool capital = letter >= 'A' && letter <= 'Z';
        const bool known =
            capital || (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9');
        return capital ? static_cast<char>(letter + 32) : known ? letter : '\0';
    }
    return '\0';
}

std::string PlainCaption(std::string_view caption) {
    std::string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        plain += caption[i];
    }
    return plain;
}

const std::string* CaptionWithAccessKey(const Control& control) {
    if (const auto* button = dynamic_cast<const CommandButton*>(&control))
        return &button->Caption();
    if (const auto* button = dynamic_cast<const ValueButton*>(&control)) return &button->Caption();
    const auto* label = dynamic_cast<const Label*>(&control);
    return label && label->MarksLetter() ? &label->Caption() : nullptr;
}

}  // namespace kivu::forms
