#include "text/stored_path_order.h"

#include <gtest/gtest.h>
#include <random>

#include "text/collation.h"
#include "text/stored_paths.h"

namespace kivu::text {
namespace {

// What is left of two texts that begin alike stands in the order of the absolute paths.
void ExpectSameOrder(const std::string& base, const std::string& a, const std::string& b) {
    const StoredPaths stored(base, a);
    const auto restA = stored.Rest(a);
    const auto restB = stored.Rest(b);
    if (!restA || !restB) return;
    const int order = CompareText(*restA, *restB);
    const int absolute = CompareText(StoredPath(base, a), StoredPath(base, b));
    EXPECT_EQ(order < 0, absolute < 0) << base << ' ' << a << ' ' << b;
    EXPECT_EQ(order > 0, absolute > 0) << base << ' ' << a << ' ' << b;
}

TEST(StoredPaths, AreToldApartByWhatFollowsTheirCommonStart) {
    const StoredPaths above("/home/kivu", "../../roms/a.adf");
    EXPECT_EQ(above.Rest("../../roms/b.adf"), "roms/b.adf");
    EXPECT_EQ(StoredPaths("/home/kivu", "/Roms/a.adf").Rest("/Roms/b.adf"), "Roms/b.adf");
    EXPECT_EQ(StoredPaths("C:\\Kivu", "..\\Roms\\a.adf").Rest("..\\Roms\\b.adf"), "Roms\\b.adf");
    EXPECT_EQ(StoredPaths("C:\\Kivu", "D:\\Roms\\a.adf").Rest("E:\\b.adf"), "E:\\b.adf");
}

TEST(StoredPaths, ThatBeginOtherwiseOrBecomeAbsoluteInAnotherWayAreNoneOfThem) {
    const StoredPaths above("/home/kivu", "../roms/a.adf");
    for (const char* text : {"", "..", "../", "roms/a.adf", "/roms/a.adf", "../../a.adf",
                             "..//a.adf", "..\\roms\\a.adf", "../..\\a.adf"}) {
        EXPECT_FALSE(above.Rest(text)) << text;
    }
    const StoredPaths windows("C:\\Kivu", "..\\Roms\\a.adf");
    for (const char* text : {"..\\..\\a.adf", "..\\a\\..\\b.adf", "..\\a/b.adf", "..\\D:\\a.adf",
                             "..\\\\a.adf", "D:\\a.adf"}) {
        EXPECT_FALSE(windows.Rest(text)) << text;
    }
    EXPECT_FALSE(StoredPaths("C:\\Kivu", "D:\\a.adf").Rest("D:/a.adf"));
    EXPECT_FALSE(StoredPaths("/home/kivu", "a.adf").Rest("D:a.adf"));
    EXPECT_FALSE(StoredPaths("/home/kivu", "/").Rest("/"));
}

TEST(StoredPaths, KeepTheOrderOfTheAbsolutePaths) {
    std::mt19937 random(31);
    const std::string_view pieces[] = {"..", "/", "\\", ":",        "a",
                                       "B",  "Z", " ",  "\xC3\xA4", "\xCC\x81"};
    const auto text = [&] {
        std::string path = random() % 2 ? "../" : random() % 2 ? "..\\" : "";
        for (auto left = random() % 6; left > 0; --left)
            path += pieces[random() % std::size(pieces)];
        return path;
    };
    for (int round = 0; round < 20000; ++round) {
        for (const char* base : {"/home/kivu", "/", "C:\\Kivu\\Program", "C:", "\\\\nas\\share"})
            ExpectSameOrder(base, text(), text());
    }
}

}  // namespace
}  // namespace kivu::text
