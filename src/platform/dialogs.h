#pragma once

#include <string>

namespace kivu::platform {

enum class Buttons { Ok, OkCancel, YesNo };
enum class Icon { None, Information, Question, Warning, Error };
enum class Answer { Ok, Cancel, Yes, No };

// Message and input boxes. Texts hold line breaks as CR, LF or both.
class Dialogs {
 public:
    virtual ~Dialogs() = default;
    // Closing a box gives its cancelling answer: No, Cancel, or Ok where there is nothing else.
    virtual Answer MessageBox(const std::string& text, const std::string& title, Buttons buttons,
                              Icon icon) = 0;
    // Empty text: cancelled, or left empty.
    virtual std::string InputBox(const std::string& prompt, const std::string& title,
                                 const std::string& initial) = 0;

    // What a hand does to the box that is open, when it holds a game controller: steps between its
    // buttons, presses the one in focus, gives the cancelling answer. No effect while none is open.
    enum class BoxKey { previous, next, press, cancel };
    virtual void PressInBox(BoxKey) {}
};

}  // namespace kivu::platform
