#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "profile/ini.h"
#include "profile/ini_utf16.h"
#include "testing/ini_checks.h"
#include "testing/memory_file_system.h"
#include "text/text.h"

namespace kivu::profile {
namespace {

using namespace std::string_literals;

// Always the same sequence, so that a failure comes again.
class Chance {
 public:
    explicit Chance(unsigned seed) : engine(seed) {}
    std::size_t Below(std::size_t limit) { return engine() % limit; }
    const std::string& OneOf(const std::vector<std::string>& texts) {
        return texts[Below(texts.size())];
    }

 private:
    std::mt19937 engine;
};

const std::vector<std::string> sections = {"Settings", "SETTINGS", "Favoriten", "Größe",
                                           "GRÖßE",    "a]b",      "",          "x\r\ny"};
const std::vector<std::string> keys = {"RomPath", "rompath", "A", "a",  "Ä",   "ä",   "Fav1_Name",
                                       "A=B",     ";A",      "",  "[A", " A ", "A\nB"};
const std::vector<std::string> values = {"",    "1",   " 1",        "x y",        "\"q\"", "'q'",
                                         "a=b", "; c", "1\r\nB=2",  "..\\Roms\\", "Ärger", "\xC4",
                                         "[x]", "\t",  "nul\0nul"s, "[Settings]", "\"",    "€"};
const std::vector<std::string> lines = {"[Settings]",
                                        "[settings]",
                                        "[Favoriten]",
                                        "[Größe]",
                                        "[Gr\xF6\xDF"
                                        "e]",
                                        "[a]b]",
                                        "[a]",
                                        "[",
                                        "[]",
                                        "RomPath=x",
                                        "ROMPATH = y",
                                        "A=1",
                                        "a='2'",
                                        "\xC4=3",
                                        "Ä=4",
                                        ";A=5",
                                        "A",
                                        "=6",
                                        "",
                                        " \t",
                                        "nul\0=1\0"s,
                                        "\x1A"};
const std::vector<std::string> ends = {"\r\n", "\r\n", "\r\n", "\n", "\r", "\r\r\n"};

std::string RandomProfile(Chance& chance) {
    std::string bytes = chance.Below(8) == 0 ? "\xEF\xBB\xBF" : "";
    for (std::size_t count = chance.Below(14); count > 0; --count) {
        bytes += chance.OneOf(lines) + chance.OneOf(ends);
    }
    if (chance.Below(3) == 0) bytes += chance.OneOf(lines);
    if (chance.Below(10) == 0) {
        return "\xFF\xFE" + Utf8ToUtf16(bytes) + (chance.Below(4) == 0 ? "x" : "");
    }
    return bytes;
}

IniCoding RandomCoding(Chance& chance) {
    if (chance.Below(2) == 0) return {};
    return {[](std::string_view bytes) { return text::FromWindows1252(bytes); },
            [](std::string_view text) { return text::ToWindows1252(text); }};
}

TEST(IniRandom, EverySetIsReadBackAndChangesNothingElse) {
    Chance chance(1);
    for (int round = 0; round < 3000; ++round) {
        testing::IniChecks checks(RandomProfile(chance), RandomCoding(chance));
        for (int set = 0; set < 5; ++set) {
            const std::string before = checks.Bytes();
            ASSERT_EQ(checks.Set(chance.OneOf(sections), chance.OneOf(keys), chance.OneOf(values)),
                      "")
                << "round " << round << ", profile:\n"
                << before;
        }
    }
}

// Mutations of a plain profile: bytes flipped, lost, doubled and thrown in.
TEST(IniRandom, MutatedProfilesKeepTheirUntouchedBytes) {
    const std::string plain =
        "; Kivu\r\n[Settings]\r\nRomPath=\"..\\Roms\\\"\r\nA = 1\r\n\r\n[Favoriten]\r\nFav0_Name=x";
    const std::string special = "[]=;\"' \t\r\n\0\xEF\xBB\xBF\xC4\x1A"s;
    Chance chance(2);
    for (int round = 0; round < 20000; ++round) {
        std::string bytes = plain;
        for (std::size_t count = 1 + chance.Below(8); count > 0 && !bytes.empty(); --count) {
            const std::size_t at = chance.Below(bytes.size());
            switch (chance.Below(4)) {
                case 0:
                    bytes[at] = static_cast<char>(chance.Below(256));
                    break;
                case 1:
                    bytes.erase(at, chance.Below(12));
                    break;
                case 2:
                    bytes.insert(at, bytes.substr(chance.Below(bytes.size()), chance.Below(20)));
                    break;
                default:
                    bytes.insert(at, 1, special[chance.Below(special.size())]);
            }
        }
        testing::IniChecks checks(bytes, RandomCoding(chance));
        ASSERT_EQ(checks.Set("settings", "rompath", chance.OneOf(values)), "") << bytes;
        ASSERT_EQ(checks.Set("Favoriten", "Fav1_Name", "x"), "") << bytes;
    }
}

TEST(IniRandom, OneWriteOfManyKeysGivesTheBytesOfKeyByKeyWrites) {
    Chance chance(3);
    for (int round = 0; round < 1000; ++round) {
        const std::string start = RandomProfile(chance);
        testing::MemoryFileSystem disk;
        Ini ini(disk);
        disk.AddFile("/single.ini", start);
        disk.AddFile("/many.ini", start);
        auto profile = ini.LoadProfile("/many.ini");
        ASSERT_TRUE(profile);
        for (std::size_t count = chance.Below(12); count > 0; --count) {
            const std::string section = chance.OneOf(sections);
            const std::string key = chance.OneOf(keys);
            const std::string value = chance.OneOf(values);
            ini.WriteIniValue(section, key, value, "/single.ini", true);
            profile->Set(section, key, value);
            ASSERT_EQ(profile->Value(section, key),
                      ini.ReadIniValue(section, key, "/single.ini", "", false));
        }
        ini.StoreProfile(*profile, "/many.ini", true);
        ASSERT_EQ(disk.BytesOf("/many.ini"), disk.BytesOf("/single.ini")) << start;
    }
}

// What one key holds, kept beside the file by the simplest means.
TEST(IniRandom, StoreAnswersAsAPlainTableOfValuesWould) {
    Chance chance(4);
    const std::vector<std::string> names = {"A", "B", "Größe", "long key with blanks"};
    testing::MemoryFileSystem disk;
    Ini ini(disk);
    std::map<std::string, std::string> table;
    for (int step = 0; step < 3000; ++step) {
        const std::string section = chance.Below(2) == 0 ? "S" : "T";
        const std::string key = chance.OneOf(names);
        const std::string name = section + "/" + key;
        std::string text(chance.Below(12), ' ');
        for (char& c : text)
            c = static_cast<char>('a' + chance.Below(26));
        if (chance.Below(2) == 0) {
            ini.WriteIniValue(section, key, text, "/p.ini", true);
            table[name] = text;
        } else {
            const bool fileIsThere = disk.FileExists("/p.ini");
            const std::string value = ini.ReadIniValue(section, key, "/p.ini", text, true);
            if (fileIsThere && table[name].empty()) table[name] = text;
            ASSERT_EQ(value, fileIsThere ? table[name] : text) << "step " << step;
        }
    }
    EXPECT_EQ(std::ranges::count(disk.BytesOf("/p.ini"), '\n'), 10);
}

}  // namespace
}  // namespace kivu::profile
