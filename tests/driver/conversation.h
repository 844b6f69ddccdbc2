#pragma once

#include <functional>
#include <optional>
#include <string>

#include "driver/interpreter.h"

namespace kivu::driver {

// Serves lines until there are no more or one of them quits. Each line is answered by one line.
class Conversation {
 public:
    // Empty: no further line.
    using NextLine = std::function<std::optional<std::string>()>;
    using GiveAnswer = std::function<void(const std::string& line)>;

    // Serves the session's modal windows from now on.
    Conversation(Interpreter& interpreter, NextLine next, GiveAnswer give);
    ~Conversation();
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;

    void Run();

 private:
    // Called where a modal window has been opened: answers the command that opened it, and serves
    // the commands that follow until the window has closed. The command that closes it is answered
    // when what the window held up has gone on to its end, or to the next window; its answer holds
    // what that gave, too. Throws ProgramEnded when there is nobody left to close it.
    void ServeModal(const std::string& window, const std::function<bool()>& isOpen);
    // The answer of a command, or that of the last one inside the window that it has opened. Empty:
    // all have been given.
    std::optional<Json> Serve(const std::string& line);
    void Give(const Json& answer);

    Interpreter& interpreter;
    NextLine next;
    GiveAnswer give;
    bool owed = false;            // a command in progress has no answer yet
    std::optional<Json> closing;  // of the command that has closed a window, not given yet
};

}  // namespace kivu::driver
