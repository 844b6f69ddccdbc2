#include "walker/walk.h"

namespace kivu::walker {

namespace {

// ["meanwhile", when, n, command, ...]
constexpr std::size_t firstInTheMiddle = 3;

// What of a step has come to nothing.
struct LeftOver {
    // That no box has taken: the last ones, as boxes take them in their order.
    std::size_t answers = 0, inputs = 0;
    bool meanwhile = false;  // what was to come in the middle of its last command
};

class Player {
 public:
    explicit Player(const Session& session) : world(session.collection), leftOut(session.leftOut) {
        world.onMeanwhile = [this](const Json& command) { NoteIntrusion(command); };
    }

    World& TheWorld() { return world; }
    bool Ended() const { return world.Ended(); }

    std::optional<Failure> Play(const Step& step) {
        intruded = false;
        const Commands& commands = step.commands;
        for (std::size_t i = 0; i < commands.size() && !world.Ended(); ++i) {
            const auto next = commands.begin() + static_cast<std::ptrdiff_t>(i) + 1;
            world.WillFollow({next, commands.end()});
            if (auto failure = Play(commands[i])) return failure;
            i += served;
        }
        return {};
    }
    // Answers that no box has taken must not wait for a later one.
    LeftOver DropAnswers() {
        auto& dialogs = world.Host().dialogs;
        const LeftOver left{dialogs.answers.size(), dialogs.inputs.size(), !intruded};
        dialogs.answers.clear();
        dialogs.inputs.clear();
        return left;
    }

    // Games end, the watch sees it, Escape is pressed: whatever is left now stays.
    std::optional<Failure> Settle() {
        Step end{"the end", {Command({"disk", "fine"})}};
        for (const auto& entry : world.Host().processes.entries)
            end.commands.push_back(Command({"process", "remove", entry.id}));
        if (world.Now().watching)
            end.commands.push_back(Command({"tick", "Form1.EmuActiveTimer", 5}));
        if (world.Now().splash) end.commands.push_back(Command({"tick", "LoadingInfo.Timer1", 60}));
        for (int i = 0; i < 2; ++i) {
            end.commands.push_back(Command({"answer", "Cancel"}));
            end.commands.push_back(Command({"key", "Form1", "Escape"}));
        }
        if (auto failure = Play(end)) return failure;
        return StartAnew();
    }

 private:
    // Empty: the command was taken.
    static std::string ErrorOf(const Json& answer) {
        return answer.value("ok", false) ? std::string() : answer.value("error", std::string());
    }

    static bool IsForHost(const Json& command) {
        return command[0] == "answer" || command[0] == "input" || command[0] == "meanwhile" ||
               command[0] == "device" || command[0] == "waits" || command[0] == "display";
    }

    // What a command is to do where it comes in the middle of another one.
    void NoteIntrusion(const Json& command) {
        intruded = true;
        if (IsForHost(command)) return;
        const Look look = world.Now();
        Intrusion intrusion{HandOf(command), {}, atBox, atBox || look.busy};
        // Behind a box there is no hand, and nothing from outside is to do anything; so it is while
        // something is under way.
        const bool button = look.splash && intrusion.hand.control == "LoadingInfo.Command1";
        intrusion.stopsStart =
            !atBox && world.Form().StartCanBeGivenUp &&
            (button || (intrusion.hand.gesture == "key" && intrusion.hand.key == "Escape"));
        if (!intrusion.idle) intrusion.expected = Expect(look, ReadStores(world, look), command);
        inner.push_back(std::move(intrusion));
    }

    std::optional<Failure> Play(const Json& command) {
        if (IsForHost(command)) {
            if (command[0] == "meanwhile") atBox = command[1] == "box";
            world.Execute(command);
            served = 0;
            return {};
        }
        const Look before = world.Now();
        const Stores stored = ReadStores(world, before);
        const Expected expected = Expect(before, stored, command);
        const Json answer = world.Execute(command);
        for (auto& [given, got] : world.TakeInside())
            inside.push_back({std::move(given), ErrorOf(got)});
        served = inside.size();
        return CheckAfter(command, before, stored, expected, ErrorOf(answer));
    }

    // Another run of the program on the same disk.
    std::optional<Failure> StartAnew() {
        const Look before = world.Now();
        const Stores stored = ReadStores(world, before);
        world.StartAnew();
        return CheckAfter(Command({"start"}), before, stored, {}, {});
    }

    std::optional<Failure> CheckAfter(const Json& command, const Look& before, const Stores& stored,
                                      const Expected& expected, const std::string& error) {
        const Look after = world.Now();
        const Stores stores = ReadStores(world, after);
        const Moment moment{world,
                            command,
                            HandOf(command),
                            before,
                            after,
                            stored,
                            stores,
                            expected,
                            world.TakeStarts(),
                            world.TakeBoxes(),
                            error,
                            world.TakeBeeps(),
                            world.TakeRefusals(),
                            inner,
                            inside,
                            memory};
        Remember(moment);
        const auto fault = Check(moment, leftOut);
        inner.clear();
        inside.clear();
        if (!fault) return {};
        return Failure{0, fault->invariant->name, fault->invariant->why, fault->what, command};
    }

    void Remember(const Moment& moment) {
        const bool anew = moment.hand.gesture == "start";
        const bool startedNothing = memory.startedNothing;
        if (!anew && moment.before.loaded != moment.after.loaded) memory = {};
        memory.startedNothing = startedNothing;
        if (moment.refusals > 0) memory.unwritten = true;
        if (!moment.after.gameRuns || moment.after.watching) memory.startedNothing = false;
        if (moment.hand.control == "JoystickTimer" && moment.after.gameRuns)
            memory.startedNothing = !moment.after.watching;
        if (anew) memory.rescanned = false;
        if (Pressed(moment, "LoadBtn")) memory.rescanned = true;
        if (moment.Answered("epa", platform::Answer::Yes)) memory.repaired = true;
        // Both load the favourites again.
        const bool removed =
            Pressed(moment, "DeLFav") && moment.before.At(List::favourites).visible;
        if (removed || Pressed(moment, "AddToFavorit")) memory.repaired = false;
    }

    // With the mouse or with a key.
    static bool Pressed(const Moment& moment, const std::string& button) {
        for (const Intrusion& intrusion : moment.inner) {
            if (intrusion.hand.control == button && !intrusion.idle) return true;
        }
        if (!moment.Taken()) return false;
        const Hand& hand = moment.hand;
        const bool byPad = hand.control == "JoystickTimer" && button == "AddToFavorit" &&
                           moment.expected.act == Expected::Act::storeOwn;
        const bool byKey = hand.gesture == "key" && !moment.before.splash &&
                           (hand.key == "Enter" || hand.key == "Space");
        return byPad || hand.control == button || (byKey && moment.before.focus == button);
    }

    World world;
    const std::set<std::string>& leftOut;
    std::vector<Intrusion> inner;  // of the command that is under way
    std::vector<Inside> inside;    // of the window that it has opened
    std::size_t served = 0;        // so many commands has that taken
    bool atBox = false;            // when they come
    bool intruded = false;         // they have come, in the step that is under way
    Memory memory;
};

std::optional<Failure> At(std::optional<Failure> failure, std::size_t step) {
    if (failure) failure->step = step;
    return failure;
}

// From `first` on, as those in the middle of a command stand behind what says when they come.
template <typename List>
void DropLeftOver(List& commands, std::size_t first, LeftOver& left) {
    for (std::size_t i = commands.size(); i-- > first;) {
        const std::string name = commands[i][0];
        const auto at = commands.begin() + static_cast<std::ptrdiff_t>(i);
        if (name == "meanwhile") {
            if (left.meanwhile) {
                commands.erase(at);
            } else {
                DropLeftOver(commands[i], firstInTheMiddle, left);
            }
        } else if (name == "answer" || name == "input") {
            std::size_t& count = name == "answer" ? left.answers : left.inputs;
            if (count == 0) continue;
            --count;
            commands.erase(at);
        }
    }
}

}  // namespace

Session NewSession(std::uint64_t seed) {
    Session session;
    session.seed = seed;
    Random random(seed);
    session.collection = MakeCollection(random);
    session.steps.push_back({"start", {Command({"start"})}});
    return session;
}

std::optional<Failure> Walk(Session& session, int steps) {
    Player player(session);
    // Its own numbers: another collection for the same steps.
    Random random(session.seed ^ 0x5bd1e995U);
    if (auto failure = player.Play(session.steps[0])) return At(failure, 0);
    for (int i = 0; i < steps && !player.Ended(); ++i) {
        session.steps.push_back(NextStep(player.TheWorld(), random));
        auto failure = player.Play(session.steps.back());
        if (failure) return At(failure, session.steps.size() - 1);
        player.DropAnswers();
    }
    if (player.Ended()) return {};
    return At(player.Settle(), session.steps.size());
}

std::optional<Failure> Replay(const Session& session, std::vector<Step>* taken) {
    Player player(session);
    for (std::size_t i = 0; i < session.steps.size() && !player.Ended(); ++i) {
        auto failure = player.Play(session.steps[i]);
        LeftOver left = player.DropAnswers();
        if (taken) {
            taken->push_back(session.steps[i]);
            DropLeftOver(taken->back().commands, 0, left);
        }
        if (failure) return At(failure, i);
    }
    if (player.Ended()) return {};
    return At(player.Settle(), session.steps.size());
}

}  // namespace kivu::walker
