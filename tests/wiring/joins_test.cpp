#include <gmock/gmock.h>
#include <map>
#include <string>
#include <vector>

#include "core/hook.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"
#include "waiting_wishes.h"
#include "wiring/launcher.h"

namespace kivu::wiring {
namespace {

using ::testing::IsEmpty;
using Names = std::vector<std::string>;

// How often each wish of the whole launcher is joined, by its name.
struct Joins : ::testing::Test {
    Joins() {
        for (const core::Wish* wish : wishes.Wishes())
            all.emplace(wish->Name(), wish->Joins());
        for (const WaitingWish& wish : waitingWishes)
            waiting.emplace(wish.name, wish.waitsFor);
    }
    template <typename Wanted>
    Names Those(Wanted wanted) const {
        Names names;
        for (const auto& [name, joins] : all) {
            if (wanted(name, joins)) names.push_back(name);
        }
        return names;
    }

    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    core::WishCollection wishes;
    Launcher launcher{host.Services("/k"), nullptr, [] {}};
    std::multimap<std::string, int> all;
    std::map<std::string, std::string> waiting;
};

TEST_F(Joins, NobodyIsAskedInVain) {
    EXPECT_THAT(Those([&](const std::string& name, int joins) {
                    return joins == 0 && !waiting.contains(name);
                }),
                IsEmpty());
    EXPECT_GT(all.size(), waiting.size());
}

TEST_F(Joins, NoWishIsJoinedTwice) {
    EXPECT_THAT(Those([](const std::string&, int joins) { return joins > 1; }), IsEmpty());
}

TEST_F(Joins, WhatHasBeenBuiltIsNoLongerWaitedFor) {
    EXPECT_THAT(Those([&](const std::string& name, int joins) {
                    return joins > 0 && waiting.contains(name);
                }),
                IsEmpty());
    for (const auto& [name, waitsFor] : waiting) {
        EXPECT_TRUE(all.contains(name)) << name << " is no wish of anybody";
        EXPECT_FALSE(waitsFor.empty()) << name;
    }
    EXPECT_EQ(waiting.size(), std::size(waitingWishes));
}

TEST_F(Joins, EachWishHasANameOfItsOwn) {
    EXPECT_THAT(Those([&](const std::string& name, int) {
                    return all.count(name) > 1 || name.find('.') == std::string::npos;
                }),
                IsEmpty());
}

}  // namespace
}  // namespace kivu::wiring
