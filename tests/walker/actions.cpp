#include "walker/actions.h"

#include <algorithm>
#include <set>
#include <utility>

namespace kivu::walker {

namespace {

const std::vector<Action>& All() {
    static const std::vector<Action> all = [] {
        std::vector<Action> joined;
        for (const auto* table : {&ListActions(), &ControlActions(), &KeyActions(), &PadActions(),
                                  &WindowActions(), &WorldActions(), &HelperActions()})
            joined.insert(joined.end(), table->begin(), table->end());
        return joined;
    }();
    return all;
}

const Action& Choose(Random& random) {
    static const int sum = [] {
        int weights = 0;
        for (const Action& action : All())
            weights += action.weight;
        return weights;
    }();
    int place = random.Below(static_cast<std::size_t>(sum));
    for (const Action& action : All()) {
        place -= action.weight;
        if (place < 0) return action;
    }
    return All().back();
}

}  // namespace

bool Reachable(World& world, const char* control) {
    const forms::Control* found = world.Form().Find(control);
    return found && found->IsReachable();
}

Commands Clicked(World& world, const char* control) {
    if (!Reachable(world, control)) return {};
    return {Command({"click", std::string("Form1.") + control})};
}

namespace {

Step AnyStep(World& world, const Look& look, Random& random) {
    // Ticks and sizes can always be had, so one of these tries succeeds.
    for (int tries = 0; tries < 1000; ++tries) {
        const Action& action = Choose(random);
        Commands commands = action.make(world, look, random);
        if (!commands.empty()) return {action.name, std::move(commands)};
    }
    return {"nothing", {}};
}

// The commands that follow work in the window that it opens.
bool OpensWindow(const Step& step) {
    return !step.commands.empty() && step.commands.front()[0] == "call";
}

// Behind a box there are no hands, and nothing comes in the middle of what does.
bool ComesMeanwhile(const Commands& commands, bool atBox) {
    return std::all_of(commands.begin(), commands.end(), [&](const Json& command) {
        static const std::set<std::string> outside{"process", "file",   "tick", "summon",
                                                   "disk",    "resize", "state"};
        const std::string name = command[0];
        return name != "meanwhile" && (!atBox || outside.contains(name));
    });
}

// The last command of the step with another step in its middle.
Step Interrupted(World& world, const Look& look, Random& random, Step step) {
    const bool atBox = random.Chance(30);
    Step other = AnyStep(world, look, random);
    const auto fits = [&] { return !OpensWindow(other) && ComesMeanwhile(other.commands, atBox); };
    for (int tries = 0; tries < 20 && !fits(); ++tries)
        other = AnyStep(world, look, random);
    if (!fits()) return step;
    // At a start and a switch events run some thirty times.
    Json meanwhile = Json::array({"meanwhile", atBox ? "box" : "events", 1});
    if (!atBox) meanwhile[2] = 1 + random.Below(random.Chance(50) ? 4 : 30);
    for (Json command : other.commands) {
        // In so short a time a timer fires once.
        if (command[0] == "tick" && command.size() > 2) command.erase(2);
        meanwhile.push_back(std::move(command));
    }
    step.commands.insert(step.commands.end() - 1, std::move(meanwhile));
    step.action += " (meanwhile: " + other.action + ")";
    return step;
}

}  // namespace

Step NextStep(World& world, Random& random) {
    const Look look = world.Now();
    Step step = AnyStep(world, look, random);
    if (!random.Chance(10) || step.commands.empty() || OpensWindow(step)) return step;
    return Interrupted(world, look, random, std::move(step));
}

}  // namespace kivu::walker
