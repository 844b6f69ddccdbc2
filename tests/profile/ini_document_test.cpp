#include "profile/ini_document.h"

#include <gtest/gtest.h>
#include <string>

#include "profile/ini_scan.h"
#include "profile/ini_utf16.h"
#include "text/text.h"

namespace kivu::profile {
namespace {

using namespace std::string_literals;

std::string Read(const std::string& bytes, std::string_view key) {
    const std::string value = FindIniValue(bytes, "Settings", key, {});
    EXPECT_EQ(IniDocument(bytes).Value("Settings", key), value);
    return value;
}

// The file after one Set in section "Settings", in both ways.
std::string Written(const std::string& bytes, std::string_view key, std::string_view value) {
    IniDocument profile(bytes);
    profile.Set("Settings", key, value);
    const std::string once = SetIniValue(bytes, "Settings", key, value, {}).value_or(bytes);
    EXPECT_EQ(once, profile.Bytes());
    return once;
}

TEST(IniDocumentRead, FindsSectionsAndKeysWithoutRegardToCase) {
    EXPECT_EQ(Read("[SETTINGS]\r\nrompath=Roms\r\n", "RomPath"), "Roms");
    EXPECT_EQ(IniDocument("[Größe]\r\nÄpfel=3\r\n").Value("GRÖSSE", "äpfel"), "");
    EXPECT_EQ(IniDocument("[Größe]\r\nÄpfel=3\r\n").Value("GRÖßE", "äpfel"), "3");
}

TEST(IniDocumentRead, FirstMatchWins) {
    EXPECT_EQ(Read("[Settings]\r\nA=1\r\na=2\r\n", "A"), "1");
    EXPECT_EQ(Read("[Settings]\r\nA=1\r\n[settings]\r\nA=2\r\nB=3\r\n", "A"), "1");
}

TEST(IniDocumentRead, SecondSectionOfTheSameNameIsNotLookedInto) {
    EXPECT_EQ(Read("[Settings]\r\nA=1\r\n[settings]\r\nB=3\r\n", "B"), "");
}

TEST(IniDocumentRead, EmptyFirstMatchHidesTheSecond) {
    EXPECT_EQ(Read("[Settings]\r\nA=\r\nA=2\r\n", "A"), "");
}

TEST(IniDocumentRead, KeysOutsideOfTheSectionAreNotFound) {
    const std::string bytes = "A=0\r\n[Other]\r\nA=1\r\n[Settings]\r\nB=2\r\n[More]\r\nA=3\r\n";
    EXPECT_EQ(Read(bytes, "A"), "");
    EXPECT_EQ(Read(bytes, "B"), "2");
}

TEST(IniDocumentRead, BlanksAndTabsAroundNamesAndValuesDoNotCount) {
    EXPECT_EQ(Read("  [ Settings\t]  \r\n \tA \t= \t1 2\t \r\n", "A"), "1 2");
    EXPECT_EQ(Read("[Settings]\r\nA=1\r\n", " A "), "1");
}

TEST(IniDocumentRead, OneEnclosingPairOfQuotesIsDropped) {
    EXPECT_EQ(Read("[Settings]\nA=\"x y\"\n", "A"), "x y");
    EXPECT_EQ(Read("[Settings]\nA='x y'\n", "A"), "x y");
    EXPECT_EQ(Read("[Settings]\nA='\"x\"'\n", "A"), "\"x\"");
    EXPECT_EQ(Read("[Settings]\nA=\"\"x\"\"\n", "A"), "\"x\"");
    EXPECT_EQ(Read("[Settings]\nA=\" x \"\n", "A"), "x");
    EXPECT_EQ(Read("[Settings]\nA=\"\"\n", "A"), "");
}

TEST(IniDocumentRead, BlanksInQuotesGoAndTabsStay) {
    EXPECT_EQ(Read("[Settings]\r\nA=\" 1 2 \"\r\n", "A"), "1 2");
    EXPECT_EQ(Read("[Settings]\r\nA=\"\t1\t\"\r\n", "A"), "\t1\t");
}

TEST(IniDocumentRead, QuotesThatEncloseNothingStay) {
    EXPECT_EQ(Read("[Settings]\nA=\"x\n", "A"), "\"x");
    EXPECT_EQ(Read("[Settings]\nA=\"x'\n", "A"), "\"x'");
    EXPECT_EQ(Read("[Settings]\nA=x \"y\"\n", "A"), "x \"y\"");
    EXPECT_EQ(Read("[Settings]\nA=\"\n", "A"), "\"");
}

TEST(IniDocumentRead, CommentsAndForeignLinesAreNoKeys) {
    const std::string bytes = "[Settings]\r\n;A=1\r\n  ; A=2\r\nA\r\n=4\r\n[A=5\r\nA=6\r\n";
    EXPECT_EQ(Read(bytes, "A"), "6");
    EXPECT_EQ(Read(bytes, ";A"), "");
    EXPECT_EQ(Read(bytes, "[A"), "");
    EXPECT_EQ(Read(bytes, ""), "");
}

TEST(IniDocumentRead, SemicolonInAValueBelongsToIt) {
    EXPECT_EQ(Read("[Settings]\r\nA=1 ; 2\r\n", "A"), "1 ; 2");
}

TEST(IniDocumentRead, EqualsSignsBehindTheFirstBelongToTheValue) {
    EXPECT_EQ(Read("[Settings]\r\nA=b=c\r\n", "A"), "b=c");
}

TEST(IniDocumentRead, TextBehindASectionsBracketDoesNotCount) {
    EXPECT_EQ(Read("[Settings] ; see [Other]\r\nA=1\r\n", "A"), "1");
    EXPECT_EQ(Read("[Settings] whatever\r\nA=1\r\n", "A"), "1");
}

TEST(IniDocumentRead, EveryKindOfLineEndIsTaken) {
    for (const std::string end : {"\r\n", "\n", "\r", "\r\r\n", "\n\n", "\n\r"}) {
        const std::string bytes = "[Settings]" + end + "A=1" + end + "B=2";
        EXPECT_EQ(Read(bytes, "A"), "1");
        EXPECT_EQ(Read(bytes, "B"), "2");
    }
}

TEST(IniDocumentRead, ByteOrderMarkIsPassedOver) {
    EXPECT_EQ(Read("\xEF\xBB\xBF[Settings]\r\nA=1\r\n", "A"), "1");
}

TEST(IniDocumentRead, NulEndsAValueAndNothingElse) {
    const std::string bytes = "\0[x\0\n[Settings]\r\nA=1\0\0\r\nB=\"2\"\0junk\r\nC=3\0"s;
    EXPECT_EQ(Read(bytes, "A"), "1");
    EXPECT_EQ(Read(bytes, "B"), "2");
    EXPECT_EQ(Read(bytes, "C"), "3");
}

TEST(IniDocumentRead, LongNamesAreFound) {
    const std::string name(300, 'n');
    IniDocument profile("[" + name + "]\r\n" + name + "=1\r\n");
    EXPECT_EQ(profile.Value(name, name), "1");
    EXPECT_TRUE(profile.Set(name, name + "2", "2"));
    EXPECT_EQ(IniDocument(profile.Bytes()).Value(name, name + "2"), "2");
}

TEST(IniDocumentRead, LongValuesAreNotCut) {
    const std::string value(100000, 'x');
    EXPECT_EQ(Read("[Settings]\r\nA=" + value + "\r\n", "A"), value);
    EXPECT_EQ(Read("[Settings]\r\nA=" + value.substr(0, 149) + "\r\n", "A").size(), 149U);
}

TEST(IniDocumentRead, AnEmptyOrForeignFileGivesNothing) {
    EXPECT_EQ(Read("", "A"), "");
    EXPECT_EQ(Read("\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s, "A"), "");
    EXPECT_EQ(Read("[Settings", "A"), "");
}

TEST(IniDocumentWrite, ChangesOnlyTheLineOfTheKey) {
    EXPECT_EQ(
        Written("; mine\r\n\r\n[Settings]\r\nA=1\r\n ;x\r\nB = 2\r\nfoo\r\n[Z]\r\nA=9", "b", "3"),
        "; mine\r\n\r\n[Settings]\r\nA=1\r\n ;x\r\nB=3\r\nfoo\r\n[Z]\r\nA=9");
}

TEST(IniDocumentWrite, FirstOfTwoEqualKeysIsWritten) {
    EXPECT_EQ(Written("[Settings]\r\nA=1\r\nA=2\r\n", "A", "3"), "[Settings]\r\nA=3\r\nA=2\r\n");
}

TEST(IniDocumentWrite, FirstOfTwoEqualSectionsGetsTheNewKey) {
    EXPECT_EQ(Written("[Settings]\r\nA=1\r\n[Settings]\r\nB=2\r\n", "B", "3"),
              "[Settings]\r\nA=1\r\nB=3\r\n[Settings]\r\nB=2\r\n");
}

TEST(IniDocumentWrite, NewKeyGoesBehindTheLastLineOfItsSectionThatIsNotBlank) {
    EXPECT_EQ(Written("[Settings]\r\nA=1\r\n; end\r\n\r\n \t\r\n[Z]\r\n", "B", "2"),
              "[Settings]\r\nA=1\r\n; end\r\nB=2\r\n\r\n \t\r\n[Z]\r\n");
    EXPECT_EQ(Written("[Settings]\r\n\r\n\r\n", "B", "2"), "[Settings]\r\nB=2\r\n\r\n\r\n");
}

TEST(IniDocumentWrite, NewSectionGoesToTheEnd) {
    EXPECT_EQ(Written("", "A", "1"), "[Settings]\r\nA=1\r\n");
    EXPECT_EQ(Written("[Z]\r\nA=9\r\n\r\n", "A", "1"), "[Z]\r\nA=9\r\n\r\n[Settings]\r\nA=1\r\n");
}

TEST(IniDocumentWrite, LastLineWithoutAnEndIsClosedFirst) {
    EXPECT_EQ(Written("[Z]\nA=9", "A", "1"), "[Z]\nA=9\r\n[Settings]\r\nA=1\r\n");
    EXPECT_EQ(Written("[Settings]\nA=9", "B", "1"), "[Settings]\nA=9\r\nB=1\r\n");
    EXPECT_EQ(Written("[Settings]", "B", "1"), "[Settings]\r\nB=1\r\n");
    EXPECT_EQ(Written("[Settings]\nA=9", "A", "1"), "[Settings]\nA=1\r\n");
    EXPECT_EQ(Written("[Settings]\nA=9\n  ", "B", "1"), "[Settings]\nA=9\nB=1\r\n  ");
    EXPECT_EQ(Written("; only\n  ", "B", "1"), "; only\n  \r\n[Settings]\r\nB=1\r\n");
}

TEST(IniDocumentWrite, FileWithLineFeedsOnlyKeepsThem) {
    EXPECT_EQ(Written("[Settings]\nA=1\nB=2\n\n[Z]\nC=3\n", "A", "9"),
              "[Settings]\nA=9\r\nB=2\n\n[Z]\nC=3\n");
    EXPECT_EQ(Written("[Settings]\nA=1\nB=2\n\n[Z]\nC=3\n", "D", "9"),
              "[Settings]\nA=1\nB=2\nD=9\r\n\n[Z]\nC=3\n");
}

TEST(IniDocumentWrite, ByteOrderMarkStays) {
    EXPECT_EQ(Written("\xEF\xBB\xBF[Settings]\r\nA=1\r\n", "A", "2"),
              "\xEF\xBB\xBF[Settings]\r\nA=2\r\n");
    EXPECT_EQ(Written("\xEF\xBB\xBF", "A", "2"), "\xEF\xBB\xBF[Settings]\r\nA=2\r\n");
}

TEST(IniDocumentWrite, NulBytesElsewhereStay) {
    EXPECT_EQ(Written("\0;\0\r\n[Settings]\r\nA=1\0\r\nB=2\0x\r\n"s, "A", "3"),
              "\0;\0\r\n[Settings]\r\nA=3\r\nB=2\0x\r\n"s);
}

TEST(IniDocumentWrite, ValueThatStandsThereAlreadyChangesNothing) {
    for (const std::string bytes :
         {"[Settings]\nA=1", "[Settings]\na =\t1 \n", "[Settings]\nA=1"}) {
        IniDocument profile(bytes);
        EXPECT_FALSE(profile.Set("Settings", "A", "1"));
        EXPECT_FALSE(profile.IsChanged());
        EXPECT_EQ(profile.Bytes(), bytes);
    }
}

TEST(IniDocumentWrite, ValueIsWrittenWithItsBlanksAndQuotes) {
    EXPECT_EQ(Written("[Settings]\nA=1", "A", " 1"), "[Settings]\nA= 1\r\n");
    EXPECT_EQ(Written("[Settings]\nA=x", "A", "\"x\""), "[Settings]\nA=\"x\"\r\n");
    EXPECT_EQ(Written("[Settings]\nA=\"x\"", "A", "x"), "[Settings]\nA=x\r\n");
}

TEST(IniDocumentWrite, EmptyValueKeepsTheKey) {
    EXPECT_EQ(Written("[Settings]\r\nA=1\r\n", "A", ""), "[Settings]\r\nA=\r\n");
    EXPECT_EQ(Written("[Settings]\r\n", "A", ""), "[Settings]\r\nA=\r\n");
}

TEST(IniDocumentWrite, ValueIsCutAtItsFirstLineBreakOrNul) {
    EXPECT_EQ(Written("", "A", "1\r\n[Other]\r\nB=2"), "[Settings]\r\nA=1\r\n");
    EXPECT_EQ(Written("", "A", "1\nB=2"), "[Settings]\r\nA=1\r\n");
    EXPECT_EQ(Written("", "A", "1\rB=2"), "[Settings]\r\nA=1\r\n");
    EXPECT_EQ(Written("", "A", "1\0002"s), "[Settings]\r\nA=1\r\n");
    EXPECT_EQ(Written("", "A", "\n1"), "[Settings]\r\nA=\r\n");
}

TEST(IniDocumentWrite, NamesAreCutAtTheirFirstLineBreak) {
    IniDocument profile;
    EXPECT_TRUE(profile.Set("S\r\n[T]", "K\nL=1", "v"));
    EXPECT_EQ(profile.Bytes(), "[S]\r\nK=v\r\n");
    EXPECT_EQ(profile.Value("S\nX", "K\rY"), "v");
}

TEST(IniDocumentWrite, NamesThatWouldReadBackAsOthersAreNotWritten) {
    const std::string bytes = "[a]\r\nb=1\r\n";
    for (const std::string key : {"", " ", "b=c", "=", ";b", "[b", "[b]", "\nb"}) {
        IniDocument profile(bytes);
        EXPECT_FALSE(profile.Set("a", key, "2")) << key;
        EXPECT_EQ(profile.Bytes(), bytes) << key;
        EXPECT_EQ(profile.Value("a", key), "") << key;
    }
    for (const std::string section : {"", " ", "a];x", "\na"}) {
        IniDocument profile(bytes);
        EXPECT_FALSE(profile.Set(section, "b", "2")) << section;
        EXPECT_EQ(profile.Bytes(), bytes) << section;
        EXPECT_EQ(profile.Value(section, "b"), "") << section;
    }
}

TEST(IniDocumentWrite, SectionWithABracketInItsNameIsItsOwn) {
    for (const std::string section : {"a]b", "a]", "[a", "]", "a] b"}) {
        IniDocument profile("[a]\r\nk=1\r\n[b]\r\nk=2\r\n");
        EXPECT_TRUE(profile.Set(section, "k", "3")) << section;
        const IniDocument again(profile.Bytes());
        EXPECT_EQ(again.Value(section, "k"), "3") << section;
        EXPECT_EQ(again.Value("a", "k"), "1") << section;
        EXPECT_EQ(again.Value("b", "k"), "2") << section;
    }
}

TEST(IniDocumentWrite, ManyKeysInOneGoAreReadBackBeforeAndAfterWriting) {
    IniDocument profile("[Z]\r\nk=0");
    for (int i = 0; i < 1000; ++i) {
        profile.Set("Favoriten", "Fav" + std::to_string(i) + "_Name", "Game " + std::to_string(i));
        profile.Set("Z", "k" + std::to_string(i), std::to_string(i));
    }
    const IniDocument again(profile.Bytes());
    for (int i = 0; i < 1000; ++i) {
        const std::string key = "fav" + std::to_string(i) + "_name";
        EXPECT_EQ(profile.Value("favoriten", key), "Game " + std::to_string(i));
        EXPECT_EQ(again.Value("favoriten", key), "Game " + std::to_string(i));
    }
    EXPECT_TRUE(profile.Bytes().starts_with("[Z]\r\nk=0\r\nk0=0\r\nk1=1\r\n"));
}

TEST(IniDocumentWrite, CopyOfADocumentIsIndependent) {
    IniDocument first("[Settings]\r\nA=1\r\n");
    IniDocument second = first;
    second.Set("Settings", "A", "2");
    EXPECT_EQ(first.Value("Settings", "A"), "1");
    EXPECT_EQ(second.Value("Settings", "A"), "2");
}

IniCoding Windows1252() {
    return {[](std::string_view bytes) { return text::FromWindows1252(bytes); },
            [](std::string_view text) { return text::ToWindows1252(text); }};
}

TEST(IniDocumentCoding, ValuesAndNamesAreDecodedAndEncoded) {
    IniDocument profile(
        "[Settings]\r\nGr\xF6\xDF"
        "e=\xC4pfel\r\n",
        Windows1252());
    EXPECT_EQ(profile.Value("Settings", "GRÖßE"), "Äpfel");
    profile.Set("Settings", "größe", "Bär");
    profile.Set("Settings", "Ö", "€");
    EXPECT_EQ(profile.Bytes(),
              "[Settings]\r\nGr\xF6\xDF"
              "e=B\xE4r\r\n\xD6=\x80\r\n");
}

TEST(IniDocumentCoding, FileWithAByteOrderMarkIsUtf8OnEveryHost) {
    IniDocument profile("\xEF\xBB\xBF[Settings]\r\nA=Äpfel\r\nB=\xC4pfel\r\n", Windows1252());
    EXPECT_EQ(profile.Value("Settings", "A"), "Äpfel");
    EXPECT_EQ(profile.Value("Settings", "B"), "Äpfel");
    profile.Set("Settings", "A", "Bär");
    EXPECT_EQ(profile.Bytes(), "\xEF\xBB\xBF[Settings]\r\nA=Bär\r\nB=\xC4pfel\r\n");
}

TEST(IniDocumentUtf16, ProfileOfUnicodeTextIsReadAndStaysSo) {
    IniDocument profile(Utf8ToUtf16("\xEF\xBB\xBF; ein Ärger\n[Settings]\r\nA=Äpfel 🎮\r\nB=2"),
                        Windows1252());
    EXPECT_EQ(profile.Value("settings", "a"), "Äpfel 🎮");
    EXPECT_TRUE(profile.Set("Settings", "A", "Bär"));
    EXPECT_EQ(profile.Bytes(), Utf8ToUtf16("\xEF\xBB\xBF; ein Ärger\n[Settings]\r\nA=Bär\r\nB=2"));
    EXPECT_TRUE(profile.Bytes().starts_with("\xFF\xFE;\0 \0"s));
    EXPECT_EQ(FindIniValue(profile.Bytes(), "Settings", "A", Windows1252()), "Bär");
}

TEST(IniDocumentUtf16, EveryByteOfAnUntouchedLineStays) {
    // Surrogates without a partner, a pair, NUL, and an odd byte at the end.
    const std::string head = "\xFF\xFE\x00\xD8;\0\x00\xDC\n\0\x3C\xD8\xAE\xDF\0\0\n\0"s;
    IniDocument profile(head + "x");
    EXPECT_EQ(profile.Bytes(), head + "x");
    EXPECT_TRUE(profile.Set("S", "K", "\xC4"));
    EXPECT_EQ(profile.Bytes(), head + "[\0S\0]\0\r\0\n\0K\0=\0\xC4\0\r\0\n\0x"s);
}

TEST(IniDocumentUtf16, EveryUnitComesBack) {
    std::string bytes = "\xFF\xFE";
    for (unsigned unit = 0xFFFF; unit > 0; --unit) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    EXPECT_EQ(Utf8ToUtf16(Utf16ToUtf8(bytes)), bytes);
    EXPECT_EQ(IniDocument(bytes).Bytes(), bytes);
}

TEST(IniDocumentSize, MegabytesOfEveryShapeAreTakenInOnePass) {
    for (const std::string unit : {"x", "\r", "\n", "]", "] ", "[", "[]\n", "[a]\n", "k=v\r\n", " ",
                                   "=", "\"", "some key=its value\r", "; a comment\r\n"}) {
        std::string many = "[Settings]\nA=1\n[";
        while (many.size() < (2U << 20))
            many += unit;
        EXPECT_EQ(FindIniValue(many, "Nowhere", "A", {}), "");
        IniDocument profile(many);
        EXPECT_EQ(profile.Value("Settings", "A"), "1");
        EXPECT_EQ(profile.Bytes(), many);
        EXPECT_TRUE(profile.Set("Settings", "New", "2"));
        EXPECT_EQ(SetIniValue(many, "Settings", "New", "2", {}), profile.Bytes());
        EXPECT_TRUE(profile.Set("Nowhere", "New", "3"));
        EXPECT_EQ(FindIniValue(profile.Bytes(), "Settings", "New", {}), "2");
        EXPECT_EQ(FindIniValue(profile.Bytes(), "Nowhere", "New", {}), "3");
    }
}

}  // namespace
}  // namespace kivu::profile
