#pragma once

#include <functional>
#include <string>

#include "core/ports.h"
#include "platform/build.h"
#include "platform/dialogs.h"
#include "platform/downloader.h"
#include "platform/event_pump.h"
#include "platform/file_system.h"
#include "platform/log.h"
#include "platform/program_starter.h"
#include "support/self_update.h"
#include "support/url_download.h"

namespace kivu::core {

struct Form1;

// What leads out of the launcher: pages for the browser, single files from the web, and the
// program's own renewal. Addresses of the program are settled when it is built; the only one that
// comes from a file is that of an emulator's download page, and it reaches nothing but the browser.
class OutsideLinks final : public ProgramLinks {
 public:
    struct Services {
        platform::FileSystem& files;
        platform::ProgramStarter& starter;
        platform::Dialogs& dialogs;
        platform::EventPump& events;
        platform::Downloader& downloads;
        platform::Log& log;
    };

    // Shows DonateBtn where there is something behind it.
    OutsideLinks(Form1& form, Services services, platform::Build build);

    // Without one the user is told so.
    void ShowHomePage() override;
    bool HasDonations() const override;
    // The main window's button is off meanwhile.
    void Donate() override;
    void UpdateProgram(forms::Label& link, const std::function<bool()>& cancelled) override;
    std::string EmuDownloadCaption() override;
    void OpenEmuDownload() override;

    // What the loaded emulator's profile says about its download page, as a text to read.
    std::string getEmuDownloadPath() const;
    // False: nothing has been opened.
    bool ShowHtmlWithBrowser(const std::string& address);

    support::UrlDownload& Download() { return download; }
    support::SelfUpdate& Update() { return update; }

 private:
    std::string EmulatorName() const;

    Form1& form;
    Services services;
    platform::Build build;
    support::UrlDownload download;
    support::SelfUpdate update;
    bool updating = false;
};

}  // namespace kivu::core
