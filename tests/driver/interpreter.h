#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "driver/json.h"
#include "driver/meanwhile.h"
#include "driver/routine_table.h"
#include "driver/session.h"

namespace kivu::driver {

// Serves commands, each a JSON array that begins with the command's name. Every command is answered
// with one object: {"ok":true,...} or {"ok":false,"error":"..."}. Nothing is thrown, whatever the
// command is, but for ProgramEnded in a command inside a modal window.
class Interpreter {
 public:
    explicit Interpreter(Session& session);

    Json Execute(const Json& command);
    // The same for a line of JSON.
    Json ExecuteLine(std::string_view line);

    // The conversation is over.
    bool Quit() const { return quit; }
    bool ProgramHasEnded() const { return session.ended; }
    Session& GetSession() const { return session; }
    // One more routine for "call".
    void Add(Routine routine) { routines.push_back(std::move(routine)); }

    // Run in front of each command of a "meanwhile".
    std::function<void(const Json& command)> onMeanwhile;

 private:
    Json Serve(const Json& command);
    Json Answer(const Json& command);
    Outcome Call(const Json& command) const;

    Session& session;
    RoutineTable routines;
    std::optional<MeanwhilePlan> planned;  // for the next command
    bool quit = false;
};

// One line without a line end. Bytes that are not UTF-8 come out as U+FFFD.
std::string LineOf(const Json& answer);

}  // namespace kivu::driver
