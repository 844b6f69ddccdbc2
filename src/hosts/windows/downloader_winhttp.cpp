#include "hosts/windows/downloader_winhttp.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <string_view>
#include <thread>
#include <vector>

#include "hosts/windows/part_file.h"
#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"
#include "text/text.h"

// They need windows.h.
#include <shlwapi.h>
#include <winhttp.h>

namespace kivu::hosts {

namespace {

using platform::Fetched;

class InternetHandle {
 public:
    explicit InternetHandle(HINTERNET handle) : handle(handle) {}
    ~InternetHandle() {
        if (handle != nullptr) ::WinHttpCloseHandle(handle);
    }
    InternetHandle(const InternetHandle&) = delete;
    InternetHandle& operator=(const InternetHandle&) = delete;

    explicit operator bool() const { return handle != nullptr; }
    HINTERNET Get() const { return handle; }

 private:
    HINTERNET handle;
};

struct Address {
    std::wstring host, path;
    INTERNET_PORT port = 0;
    bool safe = false;
};

// Empty: neither http nor https, or no address.
std::optional<Address> Crack(const std::wstring& url) {
    URL_COMPONENTS parts{};
    parts.dwStructSize = sizeof parts;
    parts.dwHostNameLength = parts.dwUrlPathLength = parts.dwExtraInfoLength =
        static_cast<DWORD>(-1);
    if (url.find(L'\0') != url.npos ||
        ::WinHttpCrackUrl(url.c_str(), static_cast<DWORD>(url.size()), 0, &parts) == 0 ||
        parts.dwHostNameLength == 0)
        return std::nullopt;
    if (parts.nScheme != INTERNET_SCHEME_HTTP && parts.nScheme != INTERNET_SCHEME_HTTPS)
        return std::nullopt;
    Address address;
    address.host.assign(parts.lpszHostName, parts.dwHostNameLength);
    if (parts.lpszUrlPath != nullptr) address.path.assign(parts.lpszUrlPath, parts.dwUrlPathLength);
    if (parts.lpszExtraInfo != nullptr)
        address.path.append(parts.lpszExtraInfo, parts.dwExtraInfoLength);
    // What stands behind "#" is the browser's.
    address.path.resize(std::min(address.path.find(L'#'), address.path.size()));
    if (!address.path.starts_with(L'/')) address.path.insert(0, 1, L'/');
    address.port = parts.nPort;
    address.safe = parts.nScheme == INTERNET_SCHEME_HTTPS;
    return address;
}

std::wstring Header(HINTERNET request, DWORD which) {
    DWORD bytes = 0;
    ::WinHttpQueryHeaders(request, which, WINHTTP_HEADER_NAME_BY_INDEX, nullptr, &bytes, nullptr);
    if (bytes == 0 || ::GetLastError() != ERROR_INSUFFICIENT_BUFFER) return {};
    std::wstring value(bytes / sizeof(wchar_t), L'\0');
    if (::WinHttpQueryHeaders(request, which, WINHTTP_HEADER_NAME_BY_INDEX, value.data(), &bytes,
                              nullptr) == 0)
        return {};
    value.resize(bytes / sizeof(wchar_t));
    return value;
}

// -1: not announced.
std::int64_t Announced(HINTERNET request) {
    const std::wstring text = Header(request, WINHTTP_QUERY_CONTENT_LENGTH);
    std::int64_t length = 0;
    for (const wchar_t digit : text) {
        if (digit < L'0' || digit > L'9' || length > INT64_MAX / 10 - 9) return -1;
        length = length * 10 + (digit - L'0');
    }
    return text.empty() ? -1 : length;
}

// One download. It lives as long as its thread, which a call that hangs may keep beyond its end.
class Transfer {
 public:
    Transfer(std::int64_t maxBytes, std::chrono::milliseconds patience,
             std::unique_ptr<PartFile> part)
        : maxBytes(maxBytes), patience(patience), part(std::move(part)) {}

    bool OpenTarget(const std::string& path) { return part->Open(path); }
    // On a thread of its own.
    void Run(const std::wstring& url) {
        const Fetched outcome = Follow(url);
        const bool late = outcome == Fetched::ok;
        const Fetched ended = cancelled && !late ? Fetched::cancelled : outcome;
        // Before the caller hears of the end: nothing is left beside the target.
        part.reset();
        const std::scoped_lock lock(mutex);
        result = ended;
        over.notify_all();
    }
    std::optional<Fetched> Wait(std::chrono::milliseconds time) {
        std::unique_lock lock(mutex);
        over.wait_for(lock, time, [&] { return result.has_value(); });
        return result;
    }
    // Ends the call that is under way.
    void Cancel() {
        cancelled = true;
        const std::scoped_lock lock(mutex);
        if (request != nullptr) ::WinHttpCloseHandle(std::exchange(request, nullptr));
    }

    std::atomic<std::int64_t> got = 0, total = 0;

 private:
    // The request while it may be cancelled from the caller's thread.
    class Open {
     public:
        Open(Transfer& transfer, HINTERNET handle) : transfer(transfer), handle(handle) {
            const std::scoped_lock lock(transfer.mutex);
            transfer.request = handle;
        }
        ~Open() {
            const std::scoped_lock lock(transfer.mutex);
            if (transfer.request != nullptr)
                ::WinHttpCloseHandle(std::exchange(transfer.request, nullptr));
        }
        Open(const Open&) = delete;
        Open& operator=(const Open&) = delete;
        HINTERNET Get() const { return handle; }

     private:
        Transfer& transfer;
        HINTERNET handle;
    };

    Fetched Follow(std::wstring url);
    Fetched Ask(HINTERNET session, const Address& address, std::wstring& next);
    Fetched Take(HINTERNET opened);
    Fetched Finish(std::int64_t announced);

    const std::int64_t maxBytes;
    const std::chrono::milliseconds patience;
    std::unique_ptr<PartFile> part;
    std::atomic<bool> cancelled = false;
    std::mutex mutex;
    std::condition_variable over;
    std::optional<Fetched> result;
    HINTERNET request = nullptr;
};

// Redirections are followed here, each of them looked at.
Fetched Transfer::Follow(std::wstring url) {
    constexpr int mostRedirections = 5;
    constexpr DWORD automaticProxy = 4;  // of Windows 8.1 and later
    HINTERNET opened =
        ::WinHttpOpen(L"Kivu", automaticProxy, WINHTTP_NO_PROXY_NAME, WINHTTP_NO_PROXY_BYPASS, 0);
    if (opened == nullptr)
        opened = ::WinHttpOpen(L"Kivu", WINHTTP_ACCESS_TYPE_DEFAULT_PROXY, WINHTTP_NO_PROXY_NAME,
                               WINHTTP_NO_PROXY_BYPASS, 0);
    const InternetHandle session(opened);
    if (!session) return Fetched::unreachable;
    const int time = static_cast<int>(patience.count());
    ::WinHttpSetTimeouts(session.Get(), time, time, time, time);
    auto address = Crack(url);
    for (int redirections = 0; address && redirections <= mostRedirections; ++redirections) {
        std::wstring location;
        const Fetched answer = Ask(session.Get(), *address, location);
        if (location.empty()) return answer;
        constexpr DWORD mostLetters = 8192;
        std::wstring next(mostLetters, L'\0');
        DWORD letters = mostLetters;
        if (FAILED(::UrlCombineW(url.c_str(), location.c_str(), next.data(), &letters, 0)))
            return Fetched::refused;
        next.resize(letters);
        const bool wasSafe = address->safe;
        address = Crack(next);
        if (address && wasSafe && !address->safe) return Fetched::refused;
        url = next;
    }
    return Fetched::refused;
}

// `next`: where the answer redirects to.
Fetched Transfer::Ask(HINTERNET session, const Address& address, std::wstring& next) {
    const InternetHandle connection(
        ::WinHttpConnect(session, address.host.c_str(), address.port, 0));
    if (!connection) return Fetched::unreachable;
    const Open opened(*this, ::WinHttpOpenRequest(
                                 connection.Get(), L"GET", address.path.c_str(), nullptr,
                                 WINHTTP_NO_REFERER, WINHTTP_DEFAULT_ACCEPT_TYPES,
                                 WINHTTP_FLAG_REFRESH | (address.safe ? WINHTTP_FLAG_SECURE : 0)));
    if (opened.Get() == nullptr || cancelled) return Fetched::unreachable;
    // No server is given the user's name and password.
    DWORD without = WINHTTP_DISABLE_REDIRECTS | WINHTTP_DISABLE_AUTHENTICATION;
    ::WinHttpSetOption(opened.Get(), WINHTTP_OPTION_DISABLE_FEATURE, &without, sizeof without);
    if (::WinHttpSendRequest(opened.Get(), WINHTTP_NO_ADDITIONAL_HEADERS, 0, nullptr, 0, 0, 0) ==
            0 ||
        ::WinHttpReceiveResponse(opened.Get(), nullptr) == 0)
        return Fetched::unreachable;
    DWORD status = 0, size = sizeof status;
    ::WinHttpQueryHeaders(opened.Get(), WINHTTP_QUERY_STATUS_CODE | WINHTTP_QUERY_FLAG_NUMBER,
                          WINHTTP_HEADER_NAME_BY_INDEX, &status, &size, nullptr);
    if (status == 200) return Take(opened.Get());
    if (status >= 300 && status < 400) next = Header(opened.Get(), WINHTTP_QUERY_LOCATION);
    return Fetched::refused;
}

Fetched Transfer::Take(HINTERNET opened) {
    const std::int64_t announced = Announced(opened);
    if (announced > maxBytes) return Fetched::tooLarge;
    total = std::max<std::int64_t>(announced, 0);
    std::vector<char> block(std::size_t{1} << 16);
    while (!cancelled) {
        DWORD waiting = 0, read = 0;
        if (::WinHttpQueryDataAvailable(opened, &waiting) == 0) return Fetched::incomplete;
        if (waiting == 0) return Finish(announced);
        const DWORD most = std::min(waiting, static_cast<DWORD>(block.size()));
        if (::WinHttpReadData(opened, block.data(), most, &read) == 0) return Fetched::incomplete;
        if (read == 0) return Finish(announced);
        if (got + read > maxBytes) return Fetched::tooLarge;
        if (!part->Write(block.data(), read)) return Fetched::notWritable;
        got += read;
    }
    return Fetched::cancelled;
}

Fetched Transfer::Finish(std::int64_t announced) {
    if (got == 0 || (announced >= 0 && got != announced)) return Fetched::incomplete;
    if (cancelled) return Fetched::cancelled;
    return part->Finish() ? Fetched::ok : Fetched::notWritable;
}

bool HasScheme(std::string_view url, std::string_view scheme) {
    return url.size() > scheme.size() && text::EqualsNoCase(url.substr(0, scheme.size()), scheme);
}

}  // namespace

std::unique_ptr<PartFile> WinHttpDownloader::NewPart() const {
    return std::make_unique<PartFile>();
}

Fetched WinHttpDownloader::Fetch(const std::string& url, const std::string& path,
                                 std::int64_t maxBytes, const GoOn& goOn) {
    const std::wstring wide = Wide(url);
    if (!(HasScheme(url, "http://") || HasScheme(url, "https://")) || !Crack(wide))
        return Fetched::badAddress;
    const auto transfer = std::make_shared<Transfer>(maxBytes, patience, NewPart());
    if (!transfer->OpenTarget(path)) return Fetched::notWritable;
    std::thread([transfer, wide] { transfer->Run(wide); }).detach();
    for (;;) {
        if (const auto result = transfer->Wait(std::chrono::milliseconds(100))) return *result;
        if (goOn && !goOn(transfer->got, transfer->total)) break;
    }
    transfer->Cancel();
    // A look-up of a name cannot be cancelled; it ends by itself, and its file goes with it.
    const auto result = transfer->Wait(std::chrono::milliseconds(500));
    return result.value_or(Fetched::cancelled);
}

}  // namespace kivu::hosts
