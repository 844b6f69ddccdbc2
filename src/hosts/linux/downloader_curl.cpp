#include "hosts/linux/downloader_curl.h"

#define CURL_DISABLE_TYPECHECK
#include <algorithm>
#include <atomic>
#include <csignal>
#include <curl/curl.h>
#include <dlfcn.h>
#include <future>
#include <optional>
#include <string_view>
#include <thread>

#include "hosts/linux/part_file.h"
#include "text/text.h"

namespace kivu::hosts {

namespace {

using platform::Fetched;
using Time = std::chrono::steady_clock;

struct Curl {
    decltype(&::curl_global_init) globalInit = nullptr;
    decltype(&::curl_easy_init) init = nullptr;
    decltype(&::curl_easy_setopt) setopt = nullptr;
    decltype(&::curl_easy_perform) perform = nullptr;
    decltype(&::curl_easy_getinfo) getinfo = nullptr;
    decltype(&::curl_easy_cleanup) cleanup = nullptr;
};

std::optional<Curl> LoadCurl() {
    void* library = nullptr;
    // The same calls over one or the other library for TLS.
    for (const char* name : {"libcurl.so.4", "libcurl-gnutls.so.4"}) {
        if (library == nullptr) library = ::dlopen(name, RTLD_NOW | RTLD_LOCAL);
    }
    if (library == nullptr) return std::nullopt;
    Curl curl;
    const auto take = [&](auto& call, const char* name) {
        call = reinterpret_cast<std::remove_reference_t<decltype(call)>>(::dlsym(library, name));
        return call != nullptr;
    };
    const bool complete =
        take(curl.globalInit, "curl_global_init") && take(curl.init, "curl_easy_init") &&
        take(curl.setopt, "curl_easy_setopt") && take(curl.perform, "curl_easy_perform") &&
        take(curl.getinfo, "curl_easy_getinfo") && take(curl.cleanup, "curl_easy_cleanup");
    if (!complete || curl.globalInit(CURL_GLOBAL_DEFAULT) != CURLE_OK) return std::nullopt;
    return curl;
}

// Null: there is no libcurl.
const Curl* LoadedCurl() {
    static const std::optional<Curl> curl = LoadCurl();
    return curl ? &*curl : nullptr;
}

bool HasScheme(std::string_view url, std::string_view scheme) {
    return url.size() > scheme.size() && text::EqualsNoCase(url.substr(0, scheme.size()), scheme);
}
bool IsSafe(std::string_view url) {
    return HasScheme(url, "https://");
}
bool IsWeb(std::string_view url) {
    return HasScheme(url, "http://") || IsSafe(url);
}

// One download, on a thread of its own. The caller reads the counts and may cancel it.
class Transfer {
 public:
    struct Limits {
        std::int64_t maxBytes;
        std::chrono::milliseconds patience;
    };

    Transfer(const Curl& curl, const std::string& certificates, Limits limits, PartFile& part)
        : curl(curl), handle(curl.init()), limits(limits), part(part) {
        if (handle == nullptr) return;
        // A name that takes long to look up must not hold up the end.
        Set(CURLOPT_QUICK_EXIT, 1L);
        // No signal handler of the whole program's is touched.
        Set(CURLOPT_NOSIGNAL, 1L);
        Set(CURLOPT_PROTOCOLS_STR, "http,https");
        Set(CURLOPT_FAILONERROR, 1L);
        const curl_off_t mostBytes = limits.maxBytes;
        Set(CURLOPT_MAXFILESIZE_LARGE, mostBytes);
        const long milliseconds = limits.patience.count();
        Set(CURLOPT_CONNECTTIMEOUT_MS, milliseconds);
        Set(CURLOPT_USERAGENT, "Kivu");
        if (!certificates.empty()) Set(CURLOPT_CAINFO, certificates.c_str());
        Set(CURLOPT_WRITEFUNCTION, &Transfer::OnBytes);
        Set(CURLOPT_WRITEDATA, this);
        Set(CURLOPT_NOPROGRESS, 0L);
        Set(CURLOPT_XFERINFOFUNCTION, &Transfer::OnProgress);
        Set(CURLOPT_XFERINFODATA, this);
    }
    ~Transfer() {
        if (handle != nullptr) curl.cleanup(handle);
    }
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;

    Fetched Run(std::string url);

    std::atomic<std::int64_t> got = 0, total = 0;
    std::atomic<bool> cancelled = false;

 private:
    template <typename Value>
    void Set(CURLoption option, Value value) {
        (void)curl.setopt(handle, option, value);
    }
    long Status() const {
        long status = 0;
        (void)curl.getinfo(handle, CURLINFO_RESPONSE_CODE, &status);
        return status;
    }
    std::string NextAddress() const {
        const char* address = nullptr;
        (void)curl.getinfo(handle, CURLINFO_REDIRECT_URL, &address);
        return address != nullptr ? address : "";
    }
    static std::size_t OnBytes(char* bytes, std::size_t one, std::size_t count, void* self);
    static int OnProgress(void* self, curl_off_t total, curl_off_t, curl_off_t, curl_off_t);
    std::size_t Take(const char* bytes, std::size_t size);
    bool GoesOn();
    Fetched ResultOf(CURLcode code) const;

    const Curl& curl;
    CURL* handle;
    Limits limits;
    PartFile& part;
    std::int64_t seen = 0;  // bytes of all answers, those of redirections too
    Time::time_point lastData = Time::now();
    std::optional<Fetched> reason;  // why a callback has ended it
};

// Redirections are followed here: the library would also go from http to https and back to http.
Fetched Transfer::Run(std::string url) {
    constexpr int mostRedirections = 5;
    if (handle == nullptr) return Fetched::unreachable;
    for (int redirections = 0; redirections <= mostRedirections; ++redirections) {
        Set(CURLOPT_URL, url.c_str());
        lastData = Time::now();
        const CURLcode code = curl.perform(handle);
        if (code != CURLE_OK) return ResultOf(code);
        const long status = Status();
        if (status == 200) {
            if (got == 0) return Fetched::incomplete;
            return part.Finish() ? Fetched::ok : Fetched::notWritable;
        }
        const std::string next = NextAddress();
        if (!IsWeb(next) || (IsSafe(url) && !IsSafe(next))) return Fetched::refused;
        url = next;
    }
    return Fetched::refused;
}

std::size_t Transfer::OnBytes(char* bytes, std::size_t one, std::size_t count, void* self) {
    return static_cast<Transfer*>(self)->Take(bytes, one * count);
}

int Transfer::OnProgress(void* self, curl_off_t total, curl_off_t, curl_off_t, curl_off_t) {
    auto& transfer = *static_cast<Transfer*>(self);
    transfer.total = total;
    return transfer.GoesOn() ? 0 : 1;
}

// Any other number than that of the bytes ends the transfer.
std::size_t Transfer::Take(const char* bytes, std::size_t size) {
    lastData = Time::now();
    seen += static_cast<std::int64_t>(size);
    if (seen > limits.maxBytes) {
        reason = Fetched::tooLarge;
        return 0;
    }
    if (Status() != 200) return size;
    if (!part.Write(bytes, size)) {
        reason = Fetched::notWritable;
        return 0;
    }
    got += static_cast<std::int64_t>(size);
    return size;
}

bool Transfer::GoesOn() {
    if (cancelled) {
        reason = Fetched::cancelled;
    } else if (Time::now() - lastData > limits.patience) {
        reason = Status() != 0 ? Fetched::incomplete : Fetched::unreachable;
    }
    return !reason;
}

Fetched Transfer::ResultOf(CURLcode code) const {
    if (reason) return *reason;
    switch (code) {
        case CURLE_URL_MALFORMAT:
            return Fetched::badAddress;
        case CURLE_HTTP_RETURNED_ERROR:
            return Fetched::refused;
        case CURLE_FILESIZE_EXCEEDED:
            return Fetched::tooLarge;
        default:
            // An answer had begun.
            return Status() != 0 ? Fetched::incomplete : Fetched::unreachable;
    }
}

// On a thread where no signal counts: a connection that the other end has closed raises SIGPIPE.
Fetched RunQuietly(Transfer& transfer, const std::string& url) {
    sigset_t all;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_BLOCK, &all, nullptr);
    return transfer.Run(url);
}

}  // namespace

Fetched CurlDownloader::Fetch(const std::string& url, const std::string& path,
                              std::int64_t maxBytes, const GoOn& goOn) {
    if (!IsWeb(url) || url.find('\0') != std::string::npos) return Fetched::badAddress;
    const Curl* curl = LoadedCurl();
    if (curl == nullptr) return Fetched::unreachable;
    PartFile part;
    if (!part.Open(path)) return Fetched::notWritable;
    underWay.push_back(&part);
    Transfer transfer(*curl, certificates, {maxBytes, patience}, part);
    auto result = std::async(std::launch::async, [&] { return RunQuietly(transfer, url); });
    while (result.wait_for(std::chrono::milliseconds(100)) != std::future_status::ready) {
        if (!transfer.cancelled && goOn && !goOn(transfer.got, transfer.total))
            transfer.cancelled = true;
    }
    const Fetched ended = result.get();
    underWay.pop_back();
    return ended;
}

void CurlDownloader::Abandon() {
    for (PartFile* part : underWay)
        part->Abandon();
}

}  // namespace kivu::hosts
