#include "driver/conversation.h"

namespace kivu::driver {

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
    Json answer = closing ? std::move(*closing) : std::move(own);
    closing.reset();
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
