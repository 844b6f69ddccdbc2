#include "hosts/linux/locale_linux.h"

#include <cstdlib>
#include <string_view>

#include "hosts/linux/language_names.h"

namespace kivu::hosts {

namespace {

std::string_view Variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

bool IsPlainC(std::string_view locale) {
    return locale == "C" || locale == "POSIX";
}

// LANGUAGE is a list: "de_AT:de:en".
std::string_view FirstOfList(std::string_view list) {
    while (list.starts_with(':'))
        list.remove_prefix(1);
    return list.substr(0, list.find(':'));
}

std::string_view MessageLocale() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES"}) {
        if (const auto value = Variable(name); !value.empty()) return value;
    }
    const auto general = Variable("LANG");
    const auto preferred = FirstOfList(Variable("LANGUAGE"));
    if (!preferred.empty() && !IsPlainC(general)) return preferred;
    return general.empty() ? "C" : general;
}

}  // namespace

std::string LinuxLocale::LanguageEnglishName() const {
    return LanguageNameOfLocale(MessageLocale());
}

}  // namespace kivu::hosts
