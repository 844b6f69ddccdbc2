#include "walker/actions.h"

namespace kivu::walker {

namespace {

const std::vector<Action>& All() {
    static const std::vector<Action> all = [] {
        std::vector<Action> joined;
        for (const auto* table :
             {&ListActions(), &ControlActions(), &KeyActions(), &WorldActions()})
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

Step NextStep(World& world, Random& random) {
    const Look look = world.Now();
    // Ticks and sizes can always be had, so one of these tries succeeds.
    for (int tries = 0; tries < 1000; ++tries) {
        const Action& action = Choose(random);
        Commands commands = action.make(world, look, random);
        if (!commands.empty()) return {action.name, std::move(commands)};
    }
    return {"nothing", {}};
}

}  // namespace kivu::walker
