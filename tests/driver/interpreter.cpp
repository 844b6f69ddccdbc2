#include "driver/interpreter.h"

#include <exception>
#include <utility>

#include "driver/commands.h"
#include "driver/routines.h"
#include "driver/windows.h"

namespace kivu::driver {

namespace {

const Command* FindCommand(const std::string& name) {
    for (const auto* table :
         {&HandCommands(), &StateCommands(), &HostCommands(), &DeviceCommands(), &FileCommands()}) {
        for (const Command& command : *table) {
            if (name == command.name) return &command;
        }
    }
    return nullptr;
}

Json Refusal(const std::string& error) {
    Json answer = Json::object();
    answer["ok"] = false;
    answer["error"] = error;
    return answer;
}

void CheckArguments(const Command& command, std::size_t given) {
    if (given >= command.least && given <= command.most) return;
    const std::string name = command.name;
    throw CommandError(given < command.least ? name + " needs more arguments"
                                             : name + " takes fewer arguments");
}

}  // namespace

Interpreter::Interpreter(Session& session) : session(session) {
    AddTextRoutines(routines, session);
    AddFileRoutines(routines, session);
    AddLibraryRoutines(routines, session);
    AddFavouriteRoutines(routines, session);
    AddLaunchRoutines(routines, session);
    AddWindowRoutines(routines, session);
    AddJoystickRoutines(routines, session);
    AddSettingsRoutines(routines, session);
}

Json Interpreter::ExecuteLine(std::string_view line) {
    const Json command = Json::parse(line, nullptr, false);
    if (!command.is_discarded()) return Execute(command);
    Json answer = Refusal("the line is no JSON");
    if (session.ended) answer["ended"] = true;
    return answer;
}

Json Interpreter::Execute(const Json& command) {
    if (!planned) return Serve(command);
    Meanwhile meanwhile(session, *std::exchange(planned, {}), [this](const Json& inner) {
        if (onMeanwhile) onMeanwhile(inner);
        return Serve(inner);
    });
    Json answer = Serve(command);
    answer["meanwhile"] = meanwhile.Answers();
    return answer;
}

Json Interpreter::Serve(const Json& command) {
    Json answer;
    try {
        answer = Answer(command);
    } catch (const ProgramEnded&) {
        answer = Json::object();
        answer["ok"] = true;
    } catch (const std::exception& error) {
        answer = Refusal(error.what());
    }
    session.Screen().FreeUnloaded();
    if (session.ended) answer["ended"] = true;
    return answer;
}

Json Interpreter::Answer(const Json& command) {
    if (!command.is_array() || command.empty() || !command[0].is_string())
        throw CommandError("a command is an array that begins with its name");
    const std::string& name = command[0].get_ref<const std::string&>();
    Json answer = Json::object();
    answer["ok"] = true;
    if (name == "quit") {
        if (command.size() > 1) throw CommandError("quit takes fewer arguments");
        quit = true;
        return answer;
    }
    if (name == "meanwhile") {
        planned = PlanFrom(command);
        return answer;
    }
    if (name == "call") {
        const Outcome outcome = Call(command);
        answer["value"] = outcome.value;
        if (!outcome.changed.empty()) answer["changed"] = outcome.changed;
        return answer;
    }
    const Command* found = FindCommand(name);
    if (!found) throw CommandError("no command " + name);
    CheckArguments(*found, command.size() - 1);
    if (found->needsProgram && session.ended) throw CommandError("the program has ended");
    const Json more = found->run(session, command);
    for (const auto& [key, value] : more.items())
        answer[key] = value;
    return answer;
}

Outcome Interpreter::Call(const Json& command) const {
    if (command.size() < 2) throw CommandError("call needs the routine's name");
    const std::string& name = TextFrom(command[1], "the routine's name");
    Json arguments = Json::array();
    for (std::size_t i = 2; i < command.size(); ++i)
        arguments.push_back(command[i]);
    for (const Routine& routine : routines) {
        if (SameName(routine.name, name)) return routine.run(arguments);
    }
    throw CommandError("no routine " + name);
}

std::string LineOf(const Json& answer) {
    return answer.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace kivu::driver
