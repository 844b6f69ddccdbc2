#pragma once

#include <string>
#include <string_view>

namespace kivu::hosts {

// English name of the language of a POSIX locale such as "de_DE.UTF-8@euro", "de-AT", "gsw" or
// "de". "English" for "C" and "POSIX"; empty for a language that is not known. The alias names of
// old systems ("german") are understood as well.
std::string LanguageNameOfLocale(std::string_view locale);

}  // namespace kivu::hosts
