// A failure as somebody can look into it.

#include <sstream>

#include "walker/walk.h"

namespace kivu::walker {

std::string Report(const Session& session, const Failure& failure) {
    std::ostringstream text;
    text << "seed " << session.seed << ", " << failure.invariant << ": " << failure.what << "\n"
         << "because " << failure.why << "\nat " << failure.command.dump();
    if (failure.step == session.steps.size()) text << ", which settles what is under way";
    std::vector<Step> taken;
    (void)Replay(session, &taken);
    text << "\nby";
    for (const Step& step : taken)
        text << (&step == &taken.front() ? " " : ", ") << step.action;
    text << "\n\nrm -rf " << programDirectory << " && mkdir -p " << programDirectory
         << " && kivu-drive --program-dir " << programDirectory << " --language "
         << session.collection.options.language << " <<'END'\n";
    for (const Json& command : session.collection.layout)
        text << driver::LineOf(command) << "\n";
    for (const Step& step : taken) {
        for (const Json& command : step.commands)
            text << driver::LineOf(command) << "\n";
    }
    if (failure.step == session.steps.size()) text << driver::LineOf(failure.command) << "\n";
    text << "[\"dump\",\"Form1\"]\nEND\n";
    return text.str();
}

}  // namespace kivu::walker
