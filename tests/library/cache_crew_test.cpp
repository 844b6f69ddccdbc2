#include "library/cache_crew.h"

#include <algorithm>
#include <future>
#include <gmock/gmock.h>
#include <new>
#include <string>

namespace kivu::library {
namespace {

using std::string;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

const SearchWords ants("ant");

// What a test has a cache do when it is read.
using Reading = std::function<std::size_t(char* buffer, std::size_t size)>;

class ScriptedReader : public platform::FileSystem::Reader {
 public:
    explicit ScriptedReader(Reading reading) : reading(std::move(reading)) {}
    std::size_t Read(char* buffer, std::size_t size) override { return reading(buffer, size); }

 private:
    Reading reading;
};

Reading Giving(string text) {
    return [text = std::move(text), at = std::size_t{0}](char* buffer, std::size_t size) mutable {
        const std::size_t count = text.copy(buffer, size, at);
        at += count;
        return count;
    };
}

std::unique_ptr<CacheSearch> Search(Reading reading) {
    return std::make_unique<CacheSearch>(std::make_unique<ScriptedReader>(std::move(reading)), ants,
                                         [](std::string_view bytes) { return string(bytes); });
}

// One that a test can hold up at its first block.
struct Gate {
    std::promise<void> reached, opened;

    Reading Before(Reading reading) {
        return [this, reading = std::move(reading), passed = false](char* buffer,
                                                                    std::size_t size) mutable {
            if (!std::exchange(passed, true)) {
                reached.set_value();
                opened.get_future().wait();
            }
            return reading(buffer, size);
        };
    }
};

// The hits of the front cache, until it is through.
std::vector<string> Front(CacheCrew& crew) {
    std::vector<string> names;
    for (CacheSearch::Part part;;) {
        const CacheCrew::Progress progress = crew.Next(part);
        if (progress == CacheCrew::Progress::through) return names;
        if (progress == CacheCrew::Progress::busy) continue;
        for (const CacheSearch::Hit& hit : part.hits)
            names.push_back(hit.name);
    }
}

// Caches of many sizes, the largest of some hundred blocks.
string CacheText(int number, int lines) {
    string text;
    for (int line = 0; line < lines; ++line) {
        text += (line % 500 == 3 ? "Ant " : "Bee ") + std::to_string(number) + " " +
                std::to_string(line) + ".adf\r\n";
    }
    return text;
}

TEST(CacheCrew, GivesWhatOneByOneGives) {
    constexpr int caches = 40;
    const auto lines = [](int number) { return number * 7919 % 30000; };
    CacheCrew crew(1000);
    for (int front = 0, added = 0; front < caches; ++front) {
        for (; added < caches && crew.Count() < CacheCrew::enough; ++added)
            crew.Add(Search(Giving(CacheText(added, lines(added)))));
        std::vector<string> expected;
        for (int line = 3; line < lines(front); line += 500)
            expected.push_back("Ant " + std::to_string(front) + " " + std::to_string(line));
        EXPECT_THAT(Front(crew), ElementsAreArray(expected));
    }
    EXPECT_EQ(crew.Count(), 0U);
}

TEST(CacheCrew, CountsAllLines) {
    CacheCrew crew(1000);
    for (int number = 0; number < 3; ++number)
        crew.Add(Search(Giving(CacheText(number, 12345))));
    for (int number = 0; number < 3; ++number) {
        std::size_t lines = 0;
        for (CacheSearch::Part part;;) {
            const CacheCrew::Progress progress = crew.Next(part);
            if (progress == CacheCrew::Progress::through) break;
            if (progress == CacheCrew::Progress::found) lines += part.lineCount;
        }
        EXPECT_EQ(lines, 12345U);
    }
}

TEST(CacheCrew, TheCallerGoesAheadWhileTheHelperIsAtTheFront) {
    Gate gate;
    bool read = false;
    CacheCrew crew(1000);
    crew.Add(Search(Giving("Ant 1.adf\n")));
    crew.Add(Search(gate.Before(Giving("Ant 2.adf\n"))));
    gate.reached.get_future().wait();
    EXPECT_THAT(Front(crew), ElementsAre("Ant 1"));
    crew.Add(Search([&, text = Giving("Ant 3.adf\n")](char* buffer, std::size_t size) mutable {
        read = true;
        return text(buffer, size);
    }));
    CacheSearch::Part part;
    while (!read)
        EXPECT_EQ(crew.Next(part), CacheCrew::Progress::busy);
    gate.opened.set_value();
    EXPECT_THAT(Front(crew), ElementsAre("Ant 2"));
    EXPECT_THAT(Front(crew), ElementsAre("Ant 3"));
}

TEST(CacheCrew, TheCallerIsNotHeldUpByTheHelper) {
    Gate gate;
    CacheCrew crew(1000);
    crew.Add(Search(Giving("Ant 1.adf\n")));
    crew.Add(Search(gate.Before(Giving("Ant 2.adf\n"))));
    gate.reached.get_future().wait();
    EXPECT_THAT(Front(crew), ElementsAre("Ant 1"));
    CacheSearch::Part part;
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(crew.Next(part), CacheCrew::Progress::busy);
    gate.opened.set_value();
    EXPECT_THAT(Front(crew), ElementsAre("Ant 2"));
}

TEST(CacheCrew, EndsInTheMiddleOfACacheThatNeverEnds) {
    std::promise<void> reached;
    bool told = false;
    const auto endless = [&](char* buffer, std::size_t size) {
        if (!std::exchange(told, true)) reached.set_value();
        std::fill_n(buffer, size, '\n');
        return size;
    };
    CacheCrew crew(1000);
    crew.Add(Search(Giving("")));
    crew.Add(Search(endless));
    reached.get_future().wait();
}

TEST(CacheCrew, EndsWithCachesThatNobodyHasLookedAt) {
    CacheCrew crew(1000);
    for (int i = 0; i < 4; ++i)
        crew.Add(Search(Giving("Ant.adf\n")));
}

TEST(CacheCrew, AFailureOfTheHelperReachesTheCaller) {
    Gate gate;
    CacheCrew crew(1000);
    crew.Add(Search(Giving("Ant 1.adf\n")));
    crew.Add(
        Search(gate.Before([](char*, std::size_t) -> std::size_t { throw std::bad_alloc(); })));
    gate.reached.get_future().wait();
    gate.opened.set_value();
    EXPECT_THAT(Front(crew), ElementsAre("Ant 1"));
    EXPECT_THROW(Front(crew), std::bad_alloc);
}

TEST(CacheCrew, MoreHitsThanWantedAreNotGatheredAhead) {
    Gate gate;
    string many;
    for (int i = 0; i < 40000; ++i)
        many += "Ant " + std::to_string(i) + ".adf\n";
    CacheCrew crew(10);
    crew.Add(Search(Giving("Ant.adf\n")));
    crew.Add(Search(gate.Before(Giving("Ant 1.adf\n"))));
    gate.reached.get_future().wait();
    EXPECT_THAT(Front(crew), ElementsAre("Ant"));
    std::size_t read = 0;
    crew.Add(Search([&, text = Giving(many)](char* buffer, std::size_t size) mutable {
        const std::size_t count = text(buffer, size);
        read += count;
        return count;
    }));
    CacheSearch::Part part;
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(crew.Next(part), CacheCrew::Progress::busy);
    EXPECT_LE(read, 2 * LineBlocks::blockSize);
    gate.opened.set_value();
    EXPECT_THAT(Front(crew), ElementsAre("Ant 1"));
    EXPECT_EQ(Front(crew).size(), 40000U);
}

}  // namespace
}  // namespace kivu::library
