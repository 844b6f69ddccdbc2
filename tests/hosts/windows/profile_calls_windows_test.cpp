#include <iostream>
#include <random>
#include <vector>

#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/scratch_directory.h"
#include "profile/ini.h"
#include "profile/ini_utf16.h"
#include "text/text.h"

// The launcher's own reader and writer of profiles beside the system's calls, on generated files:
// programs of the user's go on with what the launcher has written, and the other way round.
namespace kivu::core {
namespace {

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

const std::vector<std::string> sections = {"Settings",  "settings",  "SETTINGS",
                                           "Favoriten", "Größe",     "two words",
                                           "a]b",       "Favorit.2", "Favoriten_Global"};
const std::vector<std::string> keys = {"RomPath",   "rompath", "A",   "a",  "Fav1_Name",
                                       "two words", "Größe",   "x.y", "#A", "Button12"};
const std::vector<std::string> values = {"",
                                         "1",
                                         "-1",
                                         "x y",
                                         "\"q\"",
                                         "'q'",
                                         "\" q \"",
                                         "'\"q\"'",
                                         "\"\"q\"\"",
                                         "\"",
                                         "'",
                                         "\"\"",
                                         "\"x'",
                                         "x \"y\"",
                                         "a=b",
                                         "=",
                                         "a;b",
                                         "; no comment",
                                         "..\\Roms\\",
                                         "C:\\Spiele\\Größe [a] (Disk 1).adf",
                                         "Ärger für 5 €",
                                         "[x]",
                                         "[Settings]",
                                         "%TEMP%",
                                         "*.adf,*.zip",
                                         std::string(148, 'v'),
                                         std::string(300, 'v')};
// "$" stands for a section's name.
const std::vector<std::string> headers = {"[$]",   "[$]",   "[$]",     "  [$]",
                                          "[$]  ", "[ $ ]", "\t[$]",   "[$] ; why",
                                          "[$];x", "[$] ;", "[$] text"};
// "$" stands for a key and "&" for a value.
const std::vector<std::string> entries = {
    "$=&", "$=&", "$=&", "$ = &", "  $=&  ", "\t$\t=\t&\t", "$=& ; no comment", "$==&", "$=& &"};
const std::vector<std::string> otherLines = {
    "",          "  ",  "\t",  "; comment", ";A=commented", "  ; RomPath=commented",
    "just text", "=6",  "[",   "]",         "[Settings",    "# A=1",
    "'",         "//x", "= =", ";",         ";;[Settings]"};
// A section without a name ends the one before it. Wine forgets it when it writes, so that its keys
// would fall to that one.
const std::vector<std::string> linesToRead = {"[]", "[ ]", "; comment", "just text", ""};
const std::vector<std::vector<std::string>> lineEnds = {{"\r\n"},
                                                        {"\r\n"},
                                                        {"\n"},
                                                        {"\r\n", "\n"},
                                                        {"\r\n", "\r\r\n", "\n"},
                                                        {"\r"},
                                                        {"\r\n", "\r", "\n"}};

// What is left out above, because the two are meant to differ, and why. The system here is Wine,
// and what Wine does is no proof of what Windows does.
struct Difference {
    const char* file;
    const char* key;
    const char* value;  // the launcher's
    const char* why;
};
const std::vector<Difference> differences = {
    {"[Settings]\r\nA\r\nA=2\r\n", "A", "2",
     "a line without \"=\" is no key; Wine takes it for one without a value"},
    {"[Settings] ; see [Other]\r\nA=1\r\n", "A", "1",
     "a bracket in a comment closes no section's name; Wine takes the last one of the line"},
    {"[Settings]x] text\r\nA=1\r\n", "A", "1",
     "text behind a section's name holds none of its brackets; Wine takes the last one of the "
     "line"},
    {"[Settings]\r\n\xC4=1\r\n", "\xC3\xA4", "1",
     "names are equal without regard to case in every letter; Wine's only in those of ASCII"},
    {"[Settings]\r\nA=x\x1A\r\n", "A", "x\x1A",
     "only blanks and tabs around a value go; Wine drops control characters as well"},
    {"\xEF\xBB\xBF[Settings]\r\nA=\xC3\xBC\r\n", "A", "\xC3\xBC",
     "a file with the mark of UTF-8 is UTF-8; so it is to Wine, but not to every Windows"},
    {"[Settings]\r\n;A=1\r\n", ";A", "",
     "a comment is no key; Wine finds it when asked for \";A\""},
};

std::string Filled(std::string form, std::string_view sign, const std::string& text) {
    for (std::size_t at = form.find(sign); at != std::string::npos;
         at = form.find(sign, at + text.size())) {
        form.replace(at, sign.size(), text);
    }
    return form;
}

class ProfileCallsWindows : public ::testing::Test {
 protected:
    // The names that one file is about: few, so that they meet.
    void ChooseNames(Chance& chance) {
        sectionNames = {chance.OneOf(sections), chance.OneOf(sections)};
        keyNames = {chance.OneOf(keys), chance.OneOf(keys), chance.OneOf(keys)};
    }

    static std::string Header(const std::string& form, const std::string& section) {
        const bool isText = form.ends_with(" text");
        return Filled(isText && section.find(']') != std::string::npos ? "[$]" : form, "$",
                      section);
    }

    std::string Line(Chance& chance, const std::vector<std::string>& others) const {
        switch (chance.Below(8)) {
            case 0:
            case 1:
                return Header(chance.OneOf(headers), chance.OneOf(sectionNames));
            case 2:
                return chance.OneOf(others);
            default:
                return Filled(Filled(chance.OneOf(entries), "$", chance.OneOf(keyNames)), "&",
                              chance.OneOf(values));
        }
    }

    std::string Profile(Chance& chance, const std::vector<std::string>& ends,
                        const std::vector<std::string>& others) {
        ChooseNames(chance);
        std::string text;
        if (chance.Below(4) > 0) text = "[" + sectionNames[0] + "]" + chance.OneOf(ends);
        for (std::size_t count = chance.Below(16); count > 0; --count)
            text += Line(chance, others) + chance.OneOf(ends);
        if (chance.Below(3) == 0) text += Line(chance, others);
        // What an editor saves as "Unicode" is known to both.
        if (chance.Below(10) == 0) return "\xFF\xFE" + profile::Utf8ToUtf16(text);
        return files.EncodeText(text);
    }

    // A new file each time: Wine keeps what it has read for a while.
    std::string NewFile(const std::string& bytes) {
        return directory.Write("p" + std::to_string(++fileCount) + ".ini", bytes);
    }

    std::string SystemValue(const std::string& path, const std::string& section,
                            const std::string& key) const {
        char buffer[2048];
        const DWORD length = ::GetPrivateProfileStringA(files.EncodeText(section).c_str(),
                                                        files.EncodeText(key).c_str(), "", buffer,
                                                        sizeof buffer, path.c_str());
        const std::string value = files.DecodeText({buffer, length});
        return std::string(text::Trim(value));
    }
    bool SystemWrite(const std::string& path, const std::string& section, const std::string& key,
                     const std::string& value) const {
        return ::WritePrivateProfileStringA(files.EncodeText(section).c_str(),
                                            files.EncodeText(key).c_str(),
                                            files.EncodeText(value).c_str(), path.c_str()) != 0;
    }

    // One line for each name: "[section] key=value".
    template <typename Read>
    std::string AllOf(Read read) const {
        std::string reads;
        for (const std::string& section : sectionNames) {
            for (const std::string& key : keyNames)
                reads += "[" + section + "] " + key + "=" + read(section, key) + "\n";
        }
        return reads;
    }
    std::string OwnReads(const std::string& path) {
        const auto profile = ini.LoadProfile(path);
        return AllOf([&](const std::string& section, const std::string& key) {
            return profile->Value(section, key);
        });
    }
    std::string SystemReads(const std::string& path) const {
        return AllOf([&](const std::string& section, const std::string& key) {
            return SystemValue(path, section, key);
        });
    }

    static int ValuesIn(std::string_view reads) {
        int count = 0;
        for (std::size_t end = 1; end < reads.size(); ++end)
            count += reads[end] == '\n' && reads[end - 1] != '=' ? 1 : 0;
        return count;
    }

    std::vector<std::string> sectionNames, keyNames;
    testing::ScratchDirectory directory;
    hosts::WindowsFileSystem files;
    profile::Ini ini{files};
    int fileCount = 0;
};

TEST_F(ProfileCallsWindows, BothReadTheSameFromEveryFile) {
    Chance chance(1);
    int found = 0;
    for (int round = 0; round < 2500; ++round) {
        const auto& ends = lineEnds[chance.Below(lineEnds.size())];
        const std::string bytes = Profile(chance, ends, round % 2 == 0 ? otherLines : linesToRead);
        const std::string path = NewFile(bytes);
        const std::string own = OwnReads(path);
        ASSERT_EQ(own, SystemReads(path)) << "round " << round << "\n" << bytes;
        found += ValuesIn(own);
        ::DeleteFileA(path.c_str());
    }
    // The files hold what is looked for.
    EXPECT_GT(found, 2000);
}

TEST_F(ProfileCallsWindows, AfterTheSameWritesBothReadTheSameFromBothFiles) {
    Chance chance(2);
    for (int round = 0; round < 750; ++round) {
        const std::string bytes =
            Profile(chance, lineEnds[chance.Below(lineEnds.size())], otherLines);
        const std::string own = NewFile(bytes);
        const std::string systems = NewFile(bytes);
        for (int write = 0; write < 2; ++write) {
            const std::string& section = chance.OneOf(sectionNames);
            const std::string& key = chance.OneOf(keyNames);
            const std::string& value = chance.OneOf(values);
            ini.WriteIniValue(section, key, value, own, true);
            ASSERT_TRUE(SystemWrite(systems, section, key, value));
            const std::string what = "round " + std::to_string(round) + ", [" + section + "] " +
                                     key + "=" + value + "\n" + bytes;
            const std::string expected = OwnReads(own);
            ASSERT_EQ(SystemReads(own), expected) << what;
            ASSERT_EQ(OwnReads(systems), expected) << what;
            ASSERT_EQ(SystemReads(systems), expected) << what;
        }
        ::DeleteFileA(own.c_str());
        ::DeleteFileA(systems.c_str());
    }
}

TEST_F(ProfileCallsWindows, BothMayWriteToOneFileInTurns) {
    Chance chance(3);
    for (int round = 0; round < 100; ++round) {
        const std::string path = NewFile(Profile(chance, lineEnds[0], otherLines));
        for (int write = 0; write < 5; ++write) {
            const std::string& section = chance.OneOf(sectionNames);
            const std::string& key = chance.OneOf(keyNames);
            const std::string value = "value " + std::to_string(write);
            if (chance.Below(2) == 0) {
                ini.WriteIniValue(section, key, value, path, true);
            } else {
                ASSERT_TRUE(SystemWrite(path, section, key, value));
            }
            ASSERT_EQ(ini.ReadIniValue(section, key, path, "", false), value);
            ASSERT_EQ(SystemValue(path, section, key), value);
        }
        ASSERT_EQ(OwnReads(path), SystemReads(path)) << directory.Read(path);
        ::DeleteFileA(path.c_str());
    }
}

TEST_F(ProfileCallsWindows, WhereTheTwoAreMeantToDifferTheLaunchersReadingHolds) {
    if (::GetACP() != 1252) GTEST_SKIP() << "the system's code page is " << ::GetACP();
    for (const Difference& difference : differences) {
        const std::string path = NewFile(difference.file);
        EXPECT_EQ(ini.ReadIniValue("Settings", difference.key, path, "", false), difference.value)
            << difference.why;
        const bool agrees =
            SystemValue(path, "Settings", difference.key) == std::string(difference.value);
        std::cout << (agrees ? "[ as here  ] " : "[ not here ] ") << difference.why << '\n';
    }
}

}  // namespace
}  // namespace kivu::core
