#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "walker/meaning.h"

namespace kivu::walker {

// What a session has been through that no look at the window tells.
struct Memory {
    bool repaired = false;   // own favourites, since they were loaded
    bool rescanned = false;  // since the emulator was loaded
    bool settled = false;    // nothing is under way any more: the session is at its end
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
    const Memory& memory;

    bool Taken() const { return error.empty(); }
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
const std::vector<Invariant>& RunningInvariants();  // a game and its end
const std::vector<Invariant>& StoreInvariants();    // the files

struct Fault {
    const Invariant* invariant = nullptr;
    std::string what;
};

// The first invariant that does not hold, but for those left out by name.
std::optional<Fault> Check(const Moment& moment, const std::set<std::string>& leftOut);

std::string Quoted(const std::string& text);
std::string Number(std::size_t number);

}  // namespace kivu::walker
