#pragma once

#include <cstdint>
#include <string>

#include "platform/locale.h"

namespace kivu::hosts {

// The language of one of the system's locales, by its number: 0x0407 is German as in Germany.
class WindowsLocale : public platform::Locale {
 public:
    // The user's own.
    WindowsLocale();
    explicit WindowsLocale(std::uint32_t locale) : locale(locale) {}

    std::string LanguageEnglishName() const override;

 private:
    std::uint32_t locale;
};

}  // namespace kivu::hosts
