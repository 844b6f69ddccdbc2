#include "hosts/windows/user_store_windows.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"

namespace kivu::hosts {

namespace {

// Larger texts are somebody else's. In bytes.
constexpr DWORD maxValueSize = 1 << 20;

HKEY RootOf(std::string_view name) {
    const std::array<std::pair<std::string_view, HKEY>, 7> roots = {{
        {"HKEY_CLASSES_ROOT", HKEY_CLASSES_ROOT},
        {"HKEY_CURRENT_USER", HKEY_CURRENT_USER},
        {"HKEY_LOCAL_MACHINE", HKEY_LOCAL_MACHINE},
        {"HKEY_USERS", HKEY_USERS},
        {"HKEY_PERFORMANCE_DATA", HKEY_PERFORMANCE_DATA},
        {"HKEY_CURRENT_CONFIG", HKEY_CURRENT_CONFIG},
        {"HKEY_DYN_DATA", HKEY_DYN_DATA},
    }};
    for (const auto& [rootName, root] : roots) {
        if (rootName == name) return root;
    }
    return nullptr;
}

bool IsUsable(std::string_view name) {
    return !name.empty() && name.find('\0') == std::string_view::npos;
}

// Closes an opened registry key, which is no kernel object.
class RegistryKey {
 public:
    RegistryKey() = default;
    ~RegistryKey() {
        if (key != nullptr) ::RegCloseKey(key);
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    bool Open(HKEY root, const std::wstring& path) {
        return ::RegOpenKeyExW(root, path.c_str(), 0, KEY_QUERY_VALUE, &key) == ERROR_SUCCESS;
    }
    bool Create(HKEY root, const std::wstring& path) {
        return ::RegCreateKeyExW(root, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                 KEY_SET_VALUE, nullptr, &key, nullptr) == ERROR_SUCCESS;
    }
    HKEY Get() const { return key; }

 private:
    HKEY key = nullptr;
};

std::optional<std::string> TextValue(HKEY root, const std::wstring& path,
                                     const std::wstring& name) {
    RegistryKey key;
    if (!key.Open(root, path)) return std::nullopt;
    std::wstring text(256, L'\0');
    for (;;) {
        DWORD type = REG_NONE;
        DWORD size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        const LSTATUS status = ::RegQueryValueExW(key.Get(), name.c_str(), nullptr, &type,
                                                  reinterpret_cast<BYTE*>(text.data()), &size);
        if (status == ERROR_MORE_DATA && size <= maxValueSize) {
            text.resize(std::max<std::size_t>(size / sizeof(wchar_t) + 1, text.size() * 2));
            continue;
        }
        if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ))
            return std::nullopt;
        // Nothing makes a program store its text with a NUL, with only one, or in whole characters.
        text.resize(size / sizeof(wchar_t));
        return Narrow(std::wstring_view(text).substr(0, text.find(L'\0')));
    }
}

}  // namespace

WindowsUserStore::WindowsUserStore() : path("Software\\Kivu") {
}

std::string WindowsUserStore::Get(const std::string& section, const std::string& key,
                                  const std::string& missing) const {
    if (!IsUsable(section) || !IsUsable(key)) return missing;
    return TextValue(HKEY_CURRENT_USER, Wide(path + "\\" + section), Wide(key)).value_or(missing);
}

void WindowsUserStore::Set(const std::string& section, const std::string& key,
                           const std::string& value) {
    if (!IsUsable(section) || section.find('\\') != std::string::npos || !IsUsable(key)) return;
    RegistryKey opened;
    if (!opened.Create(HKEY_CURRENT_USER, Wide(path + "\\" + section))) return;
    const std::wstring text = Wide(value.substr(0, value.find('\0')));
    if (text.size() >= maxValueSize / sizeof(wchar_t)) return;
    // A registry that does not take it forgets; there is nobody to tell.
    static_cast<void>(::RegSetValueExW(opened.Get(), Wide(key).c_str(), 0, REG_SZ,
                                       reinterpret_cast<const BYTE*>(text.c_str()),
                                       static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))));
}

std::string WindowsUserStore::SystemValue(const std::string& root, const std::string& key,
                                          const std::string& name) const {
    const HKEY opened = RootOf(root);
    if (opened == nullptr || key.find('\0') != std::string::npos ||
        name.find('\0') != std::string::npos) {
        return {};
    }
    return TextValue(opened, Wide(key), Wide(name)).value_or("");
}

}  // namespace kivu::hosts
