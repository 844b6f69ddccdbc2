#include "core/hook.h"

#include <gmock/gmock.h>
#include <stdexcept>

namespace kivu::core {
namespace {

using ::testing::ElementsAre;

struct Numbers {
    virtual ~Numbers() = default;
    virtual int Next() = 0;
};
struct Counting : Numbers {
    int Next() override { return ++number; }
    int number = 0;
};

struct Asking {
    Hook<int(int)> Twice{"Asking.Twice"};
    Port<Numbers> numbers{"Asking.numbers"};
};

TEST(Hook, GivesADefaultValueUntilItIsJoined) {
    Asking asking;
    EXPECT_FALSE(asking.Twice);
    EXPECT_EQ(asking.Twice(4), 0);
    asking.Twice = [](int number) { return 2 * number; };
    EXPECT_TRUE(asking.Twice);
    EXPECT_EQ(asking.Twice(4), 8);
}

TEST(Port, LeadsToTheOneThatServes) {
    Asking asking;
    Counting counting;
    asking.numbers = counting;
    asking.numbers->Next();
    EXPECT_EQ(asking.numbers->Next(), 2);
}

TEST(Port, SaysWhichOneIsMissing) {
    Asking asking;
    try {
        asking.numbers->Next();
        FAIL();
    } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(), "Asking.numbers is joined to nothing");
    }
}

TEST(Wish, CountsItsJoins) {
    Asking asking;
    Counting counting;
    EXPECT_EQ(asking.Twice.Joins(), 0);
    asking.Twice = [](int) { return 1; };
    asking.Twice = [](int) { return 2; };
    asking.numbers = counting;
    EXPECT_EQ(asking.Twice.Joins(), 2);
    EXPECT_EQ(asking.numbers.Joins(), 1);
}

TEST(WishCollection, HoldsThoseThatAreMadeWhileItLives) {
    const Asking before;
    const WishCollection outer;
    const Asking first;
    {
        const WishCollection inner;
        const Asking second;
        EXPECT_THAT(inner.Wishes(), ElementsAre(&second.Twice, &second.numbers));
    }
    const Hook<void()> last{"last"};
    EXPECT_THAT(outer.Wishes(), ElementsAre(&first.Twice, &first.numbers, &last));
}

}  // namespace
}  // namespace kivu::core
