#pragma once

#include <string>

namespace kivu::forms {

// One line of UTF-8 with a caret and a selection that begins at it, both counted in code points
// and always within the text.
class TextField {
 public:
    TextField() = default;
    // A caret or selection that reaches beyond the text is cut to it.
    TextField(std::string text, int start, int length);

    const std::string& Text() const { return text; }
    int Start() const { return start; }
    int Length() const { return length; }
    bool operator==(const TextField&) const = default;

    // A caret that the new text is too short for stands at its end.
    void SetText(std::string value);
    // Negative numbers change nothing.
    void Select(int newStart, int newLength);

    // What Left, Right, Home, End, Backspace and Delete do. False: the key edits nothing.
    bool EditKey(int keyCode);
    // Puts a character in the place of the selection.
    void Type(char32_t character);

 private:
    void Replace(int from, int count, const std::string& with);

    std::string text;
    int start = 0;
    int length = 0;
};

}  // namespace kivu::forms
