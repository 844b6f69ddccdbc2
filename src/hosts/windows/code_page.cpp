#include "hosts/windows/code_page.h"

#include <limits>

#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"
#include "text/text.h"

namespace kivu::hosts {

namespace {

// The calls count in int; no text of the launcher comes near it.
bool Fits(std::size_t size) {
    return size <= static_cast<std::size_t>(std::numeric_limits<int>::max() / 4);
}

// In bytes, or 0: the call does not know the code page, or not these arguments with it.
int ToBytes(unsigned codePage, DWORD flags, const char* replacement, std::wstring_view wide,
            std::string& bytes) {
    const int length = static_cast<int>(wide.size());
    const int needed = ::WideCharToMultiByte(codePage, flags, wide.data(), length, nullptr, 0,
                                             replacement, nullptr);
    if (needed <= 0) return 0;
    bytes.resize(static_cast<std::size_t>(needed));
    return ::WideCharToMultiByte(codePage, flags, wide.data(), length, bytes.data(), needed,
                                 replacement, nullptr);
}

}  // namespace

std::string DecodeFromCodePage(std::string_view bytes, unsigned codePage) {
    if (bytes.empty()) return {};
    if (codePage == CP_UTF8)
        return text::IsUtf8(bytes) ? std::string(bytes) : text::FromWindows1252(bytes);
    if (!Fits(bytes.size())) return text::FromWindows1252(bytes);
    const int size = static_cast<int>(bytes.size());
    const int length = ::MultiByteToWideChar(codePage, 0, bytes.data(), size, nullptr, 0);
    if (length <= 0) return text::FromWindows1252(bytes);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    ::MultiByteToWideChar(codePage, 0, bytes.data(), size, wide.data(), length);
    return Narrow(wide);
}

std::string EncodeInCodePage(std::string_view text, unsigned codePage) {
    if (text.empty() || codePage == CP_UTF8) return std::string(text);
    const std::wstring wide = Wide(text);
    if (!Fits(wide.size())) return text::ToWindows1252(text);
    std::string bytes;
    if (ToBytes(codePage, WC_NO_BEST_FIT_CHARS, "?", wide, bytes) > 0) return bytes;
    // A few code pages hold every character and refuse to be told what to do without one.
    if (ToBytes(codePage, 0, nullptr, wide, bytes) > 0) return bytes;
    return text::ToWindows1252(text);
}

}  // namespace kivu::hosts
