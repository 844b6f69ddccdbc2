#include "hosts/windows/wide_path.h"

#include <algorithm>
#include <vector>

#include "hosts/windows/system_text.h"
#include "hosts/windows/wide_text.h"
#include "text/file_names.h"

namespace kivu::hosts {

namespace {

constexpr std::wstring_view prefix = L"\\\\?\\";
constexpr std::wstring_view networkPrefix = L"\\\\?\\UNC\\";

wchar_t UpperAscii(wchar_t letter) {
    return letter >= L'a' && letter <= L'z' ? static_cast<wchar_t>(letter - 32) : letter;
}

bool EqualsNoCase(std::wstring_view text, std::wstring_view upper) {
    return std::equal(text.begin(), text.end(), upper.begin(), upper.end(),
                      [](wchar_t a, wchar_t b) { return UpperAscii(a) == b; });
}

bool HasDrive(std::wstring_view path) {
    const wchar_t letter = path.empty() ? L'\0' : UpperAscii(path[0]);
    return path.size() >= 2 && letter >= L'A' && letter <= L'Z' && path[1] == L':';
}

// Of "C:.", "." or "\", which the system answers from its current directories.
std::wstring FullPath(const std::wstring& path) {
    return WithoutPrefix(SystemText([&](wchar_t* buffer, DWORD size) {
        return ::GetFullPathNameW(path.c_str(), size, buffer, nullptr);
    }));
}

std::wstring Absolute(const std::wstring& path) {
    if (path.starts_with(L"\\\\")) return path;
    if (HasDrive(path)) {
        if (path.size() > 2 && path[2] == L'\\') return path;
        return FullPath(path.substr(0, 2) + L".") + L"\\" + path.substr(2);
    }
    return FullPath(path.starts_with(L'\\') ? L"\\" : L".") + L"\\" + path;
}

bool IsName(std::wstring_view element) {
    return std::none_of(element.begin(), element.end(), [](wchar_t letter) {
        return letter < L' ' || std::wstring_view(L"\"*:<>?|").find(letter) != std::string::npos;
    });
}

// Takes the first name of `path` with its separator.
std::wstring_view TakeElement(std::wstring_view& path) {
    const std::wstring_view element = path.substr(0, path.find(L'\\'));
    path.remove_prefix(std::min(path.size(), element.size() + 1));
    return element;
}

// Takes "C:" or "\\server\share" from the front of an absolute path and gives its long form.
std::optional<std::wstring> TakeRoot(std::wstring_view& path) {
    if (HasDrive(path)) {
        const std::wstring_view drive = path.substr(0, 2);
        path.remove_prefix(2);
        return std::wstring(prefix).append(drive);
    }
    if (!path.starts_with(L"\\\\")) return std::nullopt;
    path.remove_prefix(2);
    const std::wstring_view server = TakeElement(path);
    const std::wstring_view share = TakeElement(path);
    if (server.empty() || share.empty() || server == L"." || !IsName(server) || !IsName(share))
        return std::nullopt;
    if (EqualsNoCase(share, L"PIPE") || EqualsNoCase(share, L"MAILSLOT")) return std::nullopt;
    return std::wstring(networkPrefix).append(server).append(L"\\").append(share);
}

}  // namespace

std::optional<std::wstring> SystemPath(std::string_view path) {
    if (path.empty() || path.find('\0') != std::string_view::npos) return std::nullopt;
    std::wstring wide = Wide(path);
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    const std::wstring absolute = Absolute(WithoutPrefix(wide));
    std::wstring_view rest = absolute;
    const auto root = TakeRoot(rest);
    if (!root) return std::nullopt;

    std::vector<std::wstring_view> elements;
    while (!rest.empty()) {
        const std::wstring_view element = TakeElement(rest);
        if (!IsName(element)) return std::nullopt;
        if (element == L"..") {
            if (!elements.empty()) elements.pop_back();
        } else if (!element.empty() && element != L".") {
            elements.push_back(element);
        }
    }
    std::wstring system = *root;
    for (const std::wstring_view element : elements)
        system.append(L"\\").append(element);
    return elements.empty() ? system + L"\\" : system;
}

std::wstring WithoutPrefix(std::wstring_view systemPath) {
    if (systemPath.starts_with(networkPrefix))
        return std::wstring(L"\\\\").append(systemPath.substr(networkPrefix.size()));
    if (systemPath.starts_with(prefix) && HasDrive(systemPath.substr(prefix.size())))
        systemPath.remove_prefix(prefix.size());
    return std::wstring(systemPath);
}

bool EndsInSeparator(std::string_view path) {
    return path.ends_with('\\') || path.ends_with('/');
}

bool EndsInDeviceName(std::wstring_view systemPath) {
    return text::IsDeviceName(Narrow(systemPath.substr(systemPath.rfind(L'\\') + 1)));
}

}  // namespace kivu::hosts
