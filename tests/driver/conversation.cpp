#include "driver/conversation.h"

namespace kivu::driver {

namespace {

// What came of a command that a window held up, told by the answer to the one that closed it.
void AddResult(Json& closing, const Json& heldUp) {
    if (heldUp.contains("value")) closing["result"] = heldUp["value"];
    if (heldUp.contains("changed")) closing["resultChanged"] = heldUp["changed"];
    if (heldUp.contains("error")) closing["resultError"] = heldUp["error"];
}

}  // namespace

Conversation::Conversation(Interpreter& interpreter, NextLine next, GiveAnswer give)
    : interpreter(interpreter), next(std::move(next)), give(std::move(give)) {
    interpreter.GetSession().Screen().onModal = [this](forms::Form& form,
                                                       const std::function<bool()>& isOpen) {
        ServeModal(form.Name(), isOpen);
    };
}

Conversation::~Conversation() {
    interpreter.GetSession().Screen().onModal = nullptr;
}

void Conversation::Run() {
    while (!interpreter.Quit()) {
        const auto line = next();
        if (!line) return;
        if (const auto answer = Serve(*line)) Give(*answer);
    }
}

std::optional<Json> Conversation::Serve(const std::string& line) {
    owed = true;
    Json own = interpreter.ExecuteLine(line);
    if (!owed) return {};
    owed = false;
    Json answer = own;
    if (closing) {
        answer = std::move(*closing);
        AddResult(answer, own);
        closing.reset();
    }
    if (interpreter.ProgramHasEnded()) answer["ended"] = true;
    return answer;
}

void Conversation::ServeModal(const std::string& window, const std::function<bool()>& isOpen) {
    Json opening = closing ? std::move(*closing) : Json{{"ok", true}};
    closing.reset();
    opening["modal"] = window;
    owed = false;
    Give(opening);
    while (isOpen()) {
        const auto line = interpreter.Quit() ? std::nullopt : next();
        if (!line) throw ProgramEnded{};
        auto answer = Serve(*line);
        if (!answer) continue;
        if (!isOpen() && !interpreter.Quit()) {
            closing = std::move(answer);
            owed = true;
        } else {
            Give(*answer);
        }
    }
}

void Conversation::Give(const Json& answer) {
    give(LineOf(answer));
}

}  // namespace kivu::driver
