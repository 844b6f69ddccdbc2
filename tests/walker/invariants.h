#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "walker/meaning.h"

namespace kivu::walker {

// What a session has been through that no look at the window tells.
struct Memory {
    bool repaired = false;        // own favourites, since they were loaded
    bool rescanned = false;       // since the emulator was loaded
    bool unwritten = false;       // since then, something that the disk did not take
    bool startedNothing = false;  // a start by the pad has led to no game
    bool settled = false;         // nothing is under way any more: the session is at its end
};

// A command that came in the middle of another one, and what it was to do there.
struct Intrusion {
    Hand hand;
    Expected expected;
    bool atBox;               // while a box was on the screen
    bool idle;                // there, or while something was under way: nothing comes of it
    bool stopsStart = false;  // it calls off the start that is under way
};

// A command that was served while a modal window was open.
struct Inside {
    Json command;
    std::string error;  // empty: it was taken
};

// One command, with all that was seen around it.
struct Moment {
    World& world;
    const Json& command;
    Hand hand;
    const Look& before;
    const Look& after;
    const Stores& storesBefore;
    const Stores& stores;
    Expected expected;
    std::vector<Started> starts;
    std::vector<BoxLook> boxes;
    std::string error;  // of a command that was not taken
    int beeps;
    int refusals;                         // of the disk
    const std::vector<Intrusion>& inner;  // what came in the middle of it
    const std::vector<Inside>& inside;    // what was done in the window that it opened
    const Memory& memory;

    bool Taken() const { return error.empty(); }
    // Nothing came in its middle, so it does just what was worked out in front of it.
    bool Alone() const { return inner.empty(); }
    // What the command and those in its middle may each have done.
    std::vector<Expected> AllExpected() const;
    // No game, no choice, an emulator loaded: the lists are to be seen.
    bool AtRest() const { return !after.Running() && !after.ChoiceOpen() && after.loaded >= 0; }
    bool Answered(const std::string& titlePart, platform::Answer answer) const;
};

// What is told otherwise.
struct Exemption {
    const char* reason;
    bool (*holds)(const Moment& moment);
};

// What holds after every command. To join one, add a line to a table.
struct Invariant {
    const char* name;
    const char* why;
    // What is wrong; empty: nothing.
    std::string (*check)(const Moment& moment);
    std::vector<Exemption> exemptions;
};

const std::vector<Invariant>& FrontInvariants();    // the list in front, its tab, the focus
const std::vector<Invariant>& ListInvariants();     // what the lists hold
const std::vector<Invariant>& StartInvariants();    // what starts, is stored, is loaded
const std::vector<Invariant>& HandedInvariants();   // files of later starts of the program
const std::vector<Invariant>& RunningInvariants();  // a game and its end
const std::vector<Invariant>& PadInvariants();      // the pad and its switch
const std::vector<Invariant>& PreviewInvariants();  // the picture at the right
const std::vector<Invariant>& StoreInvariants();    // the files
const std::vector<Invariant>& WindowInvariants();   // windows beside the main one
const std::vector<Invariant>& HelperInvariants();   // mounts, start scripts, display modes

struct Fault {
    const Invariant* invariant = nullptr;
    std::string what;
};

// The first invariant that does not hold, but for those left out by name.
std::optional<Fault> Check(const Moment& moment, const std::set<std::string>& leftOut);

std::string Quoted(const std::string& text);
std::string Number(std::size_t number);

}  // namespace kivu::walker
