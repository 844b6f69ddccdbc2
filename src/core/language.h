#pragma once

#include <string>

#include "platform/locale.h"

namespace kivu::core {

struct Form1;

// The kind of locale text that GetLocaleString can give: the language's English name.
inline constexpr int LOCALE_SENGLANGUAGE = 4097;

// Empty for any other kind, and when the system does not say.
std::string GetLocaleString(const platform::Locale& locale, int LCType);
bool GetSystemLanguageIsGerman(const platform::Locale& locale);

// The window is designed in German; this writes the English captions over it on any other system.
void ApplyEnglishCaptions(Form1& form);

}  // namespace kivu::core
