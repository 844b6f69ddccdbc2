#pragma once

#include <string>

namespace kivu::forms {

// One line of UTF-8, or several, with a caret and a selection that begins at it, both counted in
// code points and always within the text.
class TextField {
 public:
    TextField() = default;
    // A caret or selection that reaches beyond the text is cut to it.
    TextField(std::string text, int start, int length, bool multiLine = false);

    const std::string& Text() const { return text; }
    int Start() const { return start; }
    int Length() const { return length; }
    bool operator==(const TextField&) const = default;

    // A caret that the new text is too short for stands at its end.
    void SetText(std::string value);
    // Negative numbers change nothing.
    void Select(int newStart, int newLength);

    // Several lines end in CR LF, which the caret steps over as over one character.
    bool IsMultiLine() const { return multiLine; }
    void SetMultiLine(bool value);

    // What Left, Right, Home, End, Backspace and Delete do, and in several lines Up, Down and
    // Enter. False: the key edits nothing.
    bool EditKey(int keyCode);
    // Puts a character in the place of the selection.
    void Type(char32_t character);

 private:
    void Replace(int from, int count, const std::string& with);
    // Code points of the line end that begins or ends there, else 1.
    int StepFrom(int point) const;
    int StepBefore(int point) const;
    int LineStart(int point) const;
    int LineEnd(int point) const;
    bool EditLines(int keyCode);

    std::string text;
    int start = 0;
    int length = 0;
    bool multiLine = false;
};

}  // namespace kivu::forms
