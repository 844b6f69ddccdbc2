#pragma once

#include <string>

namespace kivu::platform {

class Locale {
 public:
    virtual ~Locale() = default;
    // English name of the user's language, such as "German" or "English"; empty when unknown.
    virtual std::string LanguageEnglishName() const = 0;
};

}  // namespace kivu::platform
