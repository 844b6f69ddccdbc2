#include "support/url_download.h"

#include "support/web_address.h"
#include "text/file_names.h"
#include "text/text.h"

namespace kivu::support {

namespace {

// A quote at the beginning goes, and the one at the end with it.
std::string Unquoted(std::string_view text) {
    if (text.starts_with('"')) {
        text.remove_prefix(1);
        if (text.ends_with('"')) text.remove_suffix(1);
    }
    return std::string(text);
}

bool EndsInSeparator(std::string_view path) {
    return path.ends_with('/') || path.ends_with('\\');
}

// What the path of an address ends in; a query and a fragment are no part of it. Empty where the
// address has no path: a host's name is no file's.
std::string_view NameIn(std::string_view url) {
    url = url.substr(0, url.find_first_of("?#"));
    const std::size_t host = url.find("://");
    if (host == url.npos) return {};
    url.remove_prefix(host + 3);
    const std::size_t slash = url.rfind('/');
    return slash == url.npos ? std::string_view() : url.substr(slash + 1);
}

const char* NameOf(platform::Fetched result) {
    switch (result) {
        case platform::Fetched::ok:
            return "downloaded";
        case platform::Fetched::badAddress:
            return "not downloaded, no address";
        case platform::Fetched::unreachable:
            return "not downloaded, no answer";
        case platform::Fetched::refused:
            return "not downloaded, refused";
        case platform::Fetched::incomplete:
            return "not downloaded, incomplete";
        case platform::Fetched::tooLarge:
            return "not downloaded, too large";
        case platform::Fetched::cancelled:
            return "not downloaded, cancelled";
        case platform::Fetched::notWritable:
            return "not downloaded, target not writable";
    }
    return "not downloaded";
}

}  // namespace

bool UrlDownload::URLToFileDownload(const std::string& URL_Source,
                                    const std::string& Path_Destination, bool Overwrite,
                                    const platform::Downloader::GoOn& goOn) {
    const std::string url = Unquoted(URL_Source);
    std::string destination = Unquoted(Path_Destination);
    if (!IsWebAddress(url))
        return Tell("Keine http- oder https-Adresse:", "No http or https address:", url);
    if (destination.empty()) return Tell("Kein Ziel für:", "No target for:", url);
    if (!TakeName(url, destination)) return false;
    if (!Overwrite && !TakeFreeName(destination)) return false;
    const auto result = services.downloads.Fetch(
        url, destination, maxBytes, goOn ? goOn : [](std::int64_t, std::int64_t) { return true; });
    services.log.Write(std::string(NameOf(result)) + ": " + url + " to " + destination);
    if (result == platform::Fetched::badAddress)
        return Tell("Keine http- oder https-Adresse:", "No http or https address:", url);
    if (result == platform::Fetched::notWritable)
        return Tell(
            "Die Datei kann nicht geschrieben werden:", "The file cannot be written:", destination);
    return result == platform::Fetched::ok && services.files.FileExists(destination);
}

// False: the address names no file that could be made in this directory, and nowhere else.
bool UrlDownload::TakeName(const std::string& url, std::string& destination) {
    const bool closed = EndsInSeparator(destination);
    if (!closed && !services.files.IsDirectory(destination)) return true;
    const std::string_view name = NameIn(url);
    if (!text::IsSafeFileName(name))
        return Tell("Die Adresse endet in keinem Dateinamen:",
                    "The address does not end in a file name:", url);
    if (!closed) destination += services.files.Separator();
    destination += name;
    return true;
}

bool UrlDownload::TakeFreeName(std::string& destination) {
    constexpr int mostNumbers = 9999;
    if (!IsTaken(destination)) return true;
    const std::size_t separator = destination.find_last_of("\\/");
    const std::size_t name = separator == destination.npos ? 0 : separator + 1;
    const std::size_t dot = destination.rfind('.');
    const bool hasExtension = dot != destination.npos && dot >= name;
    const std::string stem = destination.substr(0, hasExtension ? dot : destination.size());
    const std::string extension = hasExtension ? destination.substr(dot) : "";
    for (int number = 1; number <= mostNumbers; ++number) {
        const std::string numbered = stem + " (" + std::to_string(number) + ")" + extension;
        if (IsTaken(numbered)) continue;
        destination = numbered;
        return true;
    }
    return Tell("Kein Dateiname ist mehr frei:", "No file name is free any more:", destination);
}

// A link counts too, also one that leads nowhere: the download would take its place.
bool UrlDownload::IsTaken(const std::string& path) const {
    return services.files.FileExists(path) || services.files.IsDirectory(path) ||
           services.files.IsLink(path);
}

bool UrlDownload::Tell(const char* german, const char* english, const std::string& what) {
    services.log.Write("download not begun: " + std::string(english) + " " + what);
    services.dialogs.MessageBox(std::string(say(german, english)) + "\r" + what,
                                "modURLDownload.URLDownload", platform::Buttons::Ok,
                                platform::Icon::Error);
    return false;
}

}  // namespace kivu::support
