#include <gtest/gtest.h>

#include "hosts/windows/wide_text.h"

namespace kivu::hosts {
namespace {

TEST(WideText, TurnsTextIntoUtf16AndBack) {
    const std::string text =
        "Gr\xc3\xbc\xc3\x9f"
        "e \xe6\x97\xa5\xe6\x9c\xac \xf0\x9f\x8e\xae";
    const std::wstring wide = L"Gr\u00FC\u00DFe \u65E5\u672C \U0001F3AE";
    EXPECT_EQ(Wide(text), wide);
    EXPECT_EQ(Narrow(wide), text);
    EXPECT_EQ(Wide(""), L"");
    EXPECT_EQ(Narrow(L""), "");
    EXPECT_EQ(Wide(std::string("a\0b", 3)), std::wstring(L"a\0b", 3));
    EXPECT_EQ(Narrow(std::wstring(L"a\0b", 3)), std::string("a\0b", 3));
}

TEST(WideText, EveryUnitSurvivesTheWayThereAndBack) {
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const std::wstring wide = {L'a', static_cast<wchar_t>(unit), L'b'};
        ASSERT_EQ(Wide(Narrow(wide)), wide) << unit;
    }
}

TEST(WideText, SurrogatesSurviveInAnyOrder) {
    constexpr wchar_t units[] = {L'x', 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFF};
    for (const wchar_t one : units) {
        for (const wchar_t two : units) {
            for (const wchar_t three : units) {
                const std::wstring wide = {one, two, three};
                ASSERT_EQ(Wide(Narrow(wide)), wide)
                    << int(one) << ' ' << int(two) << ' ' << int(three);
            }
        }
    }
}

TEST(WideText, BytesThatAreNotUtf8AreWindows1252) {
    EXPECT_EQ(Wide("Gr\xfc\xdf \x80"), L"Gr\u00FC\u00DF \u20AC");
    EXPECT_EQ(Wide("\xED\xA0"), L"\u00ED\u00A0");
    EXPECT_EQ(Wide("\xED"), L"\u00ED");
    EXPECT_EQ(Wide("\xED\xA0\xC3"), L"\u00ED\u00A0\u00C3");
}

}  // namespace
}  // namespace kivu::hosts
