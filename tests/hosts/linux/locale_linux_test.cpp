#include "hosts/linux/locale_linux.h"

#include "hosts/linux/language_names.h"
#include "testing/environment_variable.h"

namespace kivu::hosts {
namespace {

using Value = std::optional<std::string>;

std::string NameWith(const Value& all, const Value& messages, const Value& language,
                     const Value& general) {
    const kivu::testing::EnvironmentVariable one("LC_ALL", all);
    const kivu::testing::EnvironmentVariable two("LC_MESSAGES", messages);
    const kivu::testing::EnvironmentVariable three("LANGUAGE", language);
    const kivu::testing::EnvironmentVariable four("LANG", general);
    return LinuxLocale().LanguageEnglishName();
}

TEST(LanguageNames, EveryFormOfALocaleGivesItsLanguage) {
    for (const auto* locale :
         {"de_DE.UTF-8", "de_AT", "de", "de_DE@euro", "de-CH", "DE_de", "german", "Deutsch"})
        EXPECT_EQ(LanguageNameOfLocale(locale), "German") << locale;
    EXPECT_EQ(LanguageNameOfLocale("en_GB.UTF-8"), "English");
    EXPECT_EQ(LanguageNameOfLocale("fr_FR"), "French");
    EXPECT_EQ(LanguageNameOfLocale("zu"), "Zulu");
    EXPECT_EQ(LanguageNameOfLocale("aa"), "Afar");
    EXPECT_EQ(LanguageNameOfLocale("pt_BR.UTF-8"), "Portuguese");
}

TEST(LanguageNames, GermanysRelativesCarryItsName) {
    for (const auto* locale : {"gsw", "gsw_CH.UTF-8", "nds_DE", "bar", "wae_CH"})
        EXPECT_NE(LanguageNameOfLocale(locale).find("German"), std::string::npos) << locale;
}

TEST(LanguageNames, TheSystemsOwnLocaleIsEnglishAndAnUnknownOneIsNone) {
    EXPECT_EQ(LanguageNameOfLocale("C"), "English");
    EXPECT_EQ(LanguageNameOfLocale("C.UTF-8"), "English");
    EXPECT_EQ(LanguageNameOfLocale("POSIX"), "English");
    for (const auto* locale : {"", "xx_XX", "d", "deu", "_DE", ".UTF-8", "\xff\xfe"})
        EXPECT_EQ(LanguageNameOfLocale(locale), "") << locale;
}

TEST(LocaleLinux, TheStrongerVariableWins) {
    EXPECT_EQ(NameWith("de_DE.UTF-8", "fr_FR", "it", "en_US.UTF-8"), "German");
    EXPECT_EQ(NameWith({}, "fr_FR", "it", "en_US.UTF-8"), "French");
    EXPECT_EQ(NameWith({}, {}, "it:de", "en_US.UTF-8"), "Italian");
    EXPECT_EQ(NameWith({}, {}, {}, "de_AT.UTF-8"), "German");
}

TEST(LocaleLinux, AnEmptyVariableIsNone) {
    EXPECT_EQ(NameWith("", "", "", "de_DE"), "German");
    EXPECT_EQ(NameWith("", "", ":", "de_DE"), "German");
    EXPECT_EQ(NameWith("", "", "::de", "en_US"), "German");
}

TEST(LocaleLinux, WithoutALanguageItIsEnglish) {
    EXPECT_EQ(NameWith({}, {}, {}, {}), "English");
    EXPECT_EQ(NameWith({}, {}, {}, "C"), "English");
    EXPECT_EQ(NameWith({}, {}, "de", "C"), "English");
    EXPECT_EQ(NameWith("POSIX", {}, "de", "de_DE"), "English");
    EXPECT_EQ(NameWith({}, {}, "de", {}), "German");
}

}  // namespace
}  // namespace kivu::hosts
