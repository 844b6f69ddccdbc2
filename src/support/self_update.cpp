#include "support/self_update.h"

#include <utility>

#include "support/log_reason.h"
#include "support/sha256.h"
#include "support/web_address.h"
#include "support/writable.h"
#include "text/paths.h"
#include "text/text.h"

namespace kivu::support {

bool LooksLikeWindowsProgram(std::string_view bytes) {
    constexpr std::size_t place = 0x3C;  // of the PE head's own place, 32 bits
    constexpr std::string_view mark("PE\0\0", 4);
    if (!bytes.starts_with("MZ") || bytes.size() < place + 4) return false;
    std::uint32_t at = 0;
    for (std::size_t byte = 4; byte-- > 0;)
        at = at << 8 | static_cast<unsigned char>(bytes[place + byte]);
    return at <= bytes.size() && bytes.substr(at).starts_with(mark);
}

std::string UpdaterCommand(std::string_view updater, std::string_view fileToUpdate,
                           std::string_view url, std::string_view programParameter) {
    std::string command = text::QuoteIfNeeded(updater);
    command.append(" ").append(fileToUpdate).append(" [PATH] ").append(url).append(" [URL]");
    if (!text::Trim(programParameter).empty())
        command.append(" ").append(programParameter).append(" [PARAM1] ");
    return command;
}

bool SelfUpdate::UpdateProgram(const std::string& directory, const std::string& programName,
                               bool installed, const platform::Downloader::GoOn& goOn) {
    // Whatever the base: its directory need not hold the program.
    if (!build.replacesItself && installed) {
        Tell("Kivu wird mit den Paketen des Systems aktualisiert.",
             "Kivu is updated with the system's packages.");
        return false;
    }
    if (!build.replacesItself) {
        Tell("Diese Version aktualisiert sich nicht selbst.",
             "This version does not update itself.");
        return false;
    }
    if (build.base.empty()) {
        Tell("Für diese Version ist keine Update-Adresse hinterlegt.",
             "No update address is set in this version.");
        return false;
    }
    const std::string inside = text::AddPathSeparator(directory);
    if (!CanWriteIn(services.files, inside)) {
        Tell("In das Verzeichnis des Programms kann nicht geschrieben werden.",
             "The program's directory cannot be written to.");
        return false;
    }
    return DownloadUpdateWithUpdater(build.base + "/Kivu/Kivu.exe", inside + programName + ".exe",
                                     inside + "Updater.exe", build.base + "/Update.exe", "", goOn);
}

bool SelfUpdate::DownloadUpdateWithUpdater(const std::string& URLFileToDownload,
                                           const std::string& LocalFileToUpdate,
                                           const std::string& LocalUpdaterEXE,
                                           const std::string& URLUpdaterEXE,
                                           const std::string& ProgramParam,
                                           const platform::Downloader::GoOn& goOn) {
    platform::FileSystem& files = services.files;
    // It goes onto a command line, where a blank in it would be the updater's to make sense of.
    if (!IsSafeWebAddress(URLFileToDownload)) return TellFailedDownload(URLFileToDownload);
    if (!IsGood(LocalUpdaterEXE)) {
        services.events.DoEvents();
        if (!Fetch(URLUpdaterEXE, LocalUpdaterEXE, goOn)) return TellFailedDownload(URLUpdaterEXE);
    }
    const std::string directory =
        text::GetFilePath(LocalUpdaterEXE, [](const auto&) { return false; });
    platform::StartRequest request;
    request.command =
        UpdaterCommand(LocalUpdaterEXE, LocalFileToUpdate, URLFileToDownload, ProgramParam);
    request.words = {LocalUpdaterEXE, LocalFileToUpdate, "[PATH]", URLFileToDownload, "[URL]"};
    if (!text::Trim(ProgramParam).empty())
        request.words.insert(request.words.end(), {ProgramParam, "[PARAM1]"});
    request.directory = directory;
    if (files.FileExists(LocalUpdaterEXE) && !services.starter.Run(request)) return true;
    services.dialogs.MessageBox("File not found!\r" + text::GetFileNameOnly(LocalUpdaterEXE) +
                                    " not found!\rUpdate Cancled!",
                                defaultTitle, platform::Buttons::Ok, platform::Icon::Error);
    return false;
}

// A plain file that is the updater we know. A link would lead to a program that somebody else
// chooses.
bool SelfUpdate::IsGood(const std::string& updater) const {
    if (services.files.IsLink(updater) || !services.files.FileExists(updater)) return false;
    if (build.updaterHash.empty()) return true;
    const auto hash = Sha256::OfFile(services.files, updater);
    return hash && text::EqualsNoCase(*hash, build.updaterHash);
}

// False: there is no updater afterwards. One that is not ours must not be left to be run by hand.
bool SelfUpdate::Fetch(const std::string& url, const std::string& updater,
                       const platform::Downloader::GoOn& goOn) {
    if (!IsSafeWebAddress(url) || services.files.IsDirectory(updater)) return false;
    if (!download.URLToFileDownload(url, updater, true, goOn)) return false;
    constexpr std::size_t headSize = 4096;
    std::string head(headSize, '\0');
    if (const auto reader = services.files.OpenFile(updater))
        head.resize(reader->Read(head.data(), head.size()));
    if (LooksLikeWindowsProgram(head) && IsGood(updater)) return true;
    services.log.Write("not the updater, and deleted: " + url);
    if (const auto failure = services.files.DeleteFile(updater))
        services.log.Write("not deleted, " + LogReason(failure) + ": " + updater);
    return false;
}

bool SelfUpdate::TellFailedDownload(const std::string& url) {
    services.dialogs.MessageBox("Download Failed! \r\r" + url, defaultTitle, platform::Buttons::Ok,
                                platform::Icon::Error);
    return false;
}

void SelfUpdate::Tell(const char* german, const char* english) {
    services.dialogs.MessageBox(say(german, english), "Online-Update", platform::Buttons::Ok,
                                platform::Icon::Information);
}

}  // namespace kivu::support
