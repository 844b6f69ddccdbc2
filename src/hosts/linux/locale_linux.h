#pragma once

#include <string>

#include "platform/locale.h"

namespace kivu::hosts {

// The language of the user's messages: LC_ALL, then LC_MESSAGES, then the first choice in LANGUAGE,
// then LANG, as far as they are set. LANGUAGE counts for nothing beside a LANG of "C". Without any
// of them it is English.
class LinuxLocale : public platform::Locale {
 public:
    std::string LanguageEnglishName() const override;
};

}  // namespace kivu::hosts
