#include "driver/meanwhile.h"

#include <utility>

namespace kivu::driver {

namespace {

constexpr std::size_t firstCommand = 3;

void CheckInner(const Json& command) {
    if (!command.is_array() || command.empty() || !command[0].is_string())
        throw CommandError("a command is an array that begins with its name");
    const std::string& name = command[0].get_ref<const std::string&>();
    for (const char* refused : {"meanwhile", "start", "quit"}) {
        if (name == refused) throw CommandError(name + " cannot come meanwhile");
    }
}

}  // namespace

MeanwhilePlan PlanFrom(const Json& command) {
    if (command.size() <= firstCommand)
        throw CommandError("meanwhile takes \"box\" or \"events\", a number and commands");
    MeanwhilePlan plan;
    const std::string& when = TextFrom(command[1], "the moment");
    if (when != "box" && when != "events")
        throw CommandError("the moment must be \"box\" or \"events\"");
    plan.atBox = when == "box";
    plan.count = WholeFrom(command[2], "the number");
    if (plan.count < 1) throw CommandError("the number must be 1 or more");
    for (std::size_t i = firstCommand; i < command.size(); ++i) {
        CheckInner(command[i]);
        plan.commands.push_back(command[i]);
    }
    return plan;
}

Meanwhile::Meanwhile(Session& session, MeanwhilePlan plan, Serve serve)
    : session(session), plan(std::move(plan)), serve(std::move(serve)) {
    auto& host = session.Host();
    onShow = host.dialogs.onShow;
    onEvents = host.events.onEvents;
    perLook = host.clock.perLook;
    if (this->plan.atBox) {
        host.dialogs.onShow = [this] {
            if (onShow) onShow();
            Happen();
        };
        return;
    }
    host.events.onEvents = [this] {
        if (onEvents) onEvents();
        Happen();
    };
    // Loops that let events run now and then take every turn to.
    host.clock.perLook = std::chrono::milliseconds(30);
}

Meanwhile::~Meanwhile() {
    auto& host = session.Host();
    host.dialogs.onShow = std::move(onShow);
    host.events.onEvents = std::move(onEvents);
    host.clock.perLook = perLook;
}

void Meanwhile::Happen() {
    if (--plan.count != 0) return;
    for (const Json& command : plan.commands) {
        answers.push_back(serve(command));
        // What is under way must not go on in a program that has ended.
        if (session.ended) throw ProgramEnded{};
    }
}

}  // namespace kivu::driver
