#include "hosts/windows/locale_windows.h"

#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"

namespace kivu::hosts {

WindowsLocale::WindowsLocale() : locale(LOCALE_USER_DEFAULT) {
}

std::string WindowsLocale::LanguageEnglishName() const {
    wchar_t name[256];
    const int length = ::GetLocaleInfoW(locale, LOCALE_SENGLANGUAGE, name, std::size(name));
    if (length <= 0) return {};
    // The length counts the closing NUL.
    return Narrow({name, static_cast<std::size_t>(length - 1)});
}

}  // namespace kivu::hosts
