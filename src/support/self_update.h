#pragma once

#include <string>

#include "platform/event_pump.h"
#include "platform/program_starter.h"
#include "support/url_download.h"

namespace kivu::support {

// Replaces the program with a newer one, by handing over to an updater, a program of its own.
//
// Where updates come from is settled when the program is built, and stands in no profile: profiles
// travel with collections, and would choose a program for us to run.
class SelfUpdate {
 public:
    struct Services {
        platform::FileSystem& files;
        platform::ProgramStarter& starter;
        platform::Dialogs& dialogs;
        platform::EventPump& events;
        platform::Log& log;
    };

    struct Build {
        std::string base;         // "https://host", where "/Update.exe" and "/Kivu/Kivu.exe" lie
        std::string updaterHash;  // SHA-256 of the updater; empty: any will do, for tests alone
        bool replacesItself = false;  // false: the system's packages do it, or nobody
    };

    // `defaultTitle` is that of boxes without a title of their own.
    SelfUpdate(Services services, UrlDownload& download, Build build, std::string defaultTitle,
               Say say)
        : services(services),
          download(download),
          build(std::move(build)),
          defaultTitle(std::move(defaultTitle)),
          say(std::move(say)) {}

    // What the user asks for: updates the program in this directory, or tells why not. `installed`:
    // the system's packages have brought it. True: an updater is at work.
    bool UpdateProgram(const std::string& directory, const std::string& programName, bool installed,
                       const platform::Downloader::GoOn& goOn = {});

    // Fetches the updater where there is no good one, and runs it. True: it runs.
    bool DownloadUpdateWithUpdater(const std::string& URLFileToDownload,
                                   const std::string& LocalFileToUpdate,
                                   const std::string& LocalUpdaterEXE,
                                   const std::string& URLUpdaterEXE,
                                   const std::string& ProgramParam,
                                   const platform::Downloader::GoOn& goOn = {});

 private:
    void Tell(const char* german, const char* english);
    bool TellFailedDownload(const std::string& url);
    bool IsGood(const std::string& updater) const;
    bool Fetch(const std::string& url, const std::string& updater,
               const platform::Downloader::GoOn& goOn);

    Services services;
    UrlDownload& download;
    Build build;
    std::string defaultTitle;
    Say say;
};

// Programs of Windows begin like this: the head of a DOS program, and where that says so the mark
// of a PE file.
bool LooksLikeWindowsProgram(std::string_view bytes);

// The updater's command line. Its markers stand behind each value; the values need no quotes, since
// each reaches to its marker.
std::string UpdaterCommand(std::string_view updater, std::string_view fileToUpdate,
                           std::string_view url, std::string_view programParameter);

}  // namespace kivu::support
