#include "core/outside_links.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/disabled_meanwhile.h"
#include "core/form1.h"
#include "core/raised.h"
#include "support/web_address.h"
#include "text/paths.h"

namespace kivu::core {

namespace {

// The user's language as it is at the moment of the message.
support::Say SayOf(const Form1& form) {
    return [&form](const char* german, const char* english) { return form.Say(german, english); };
}

support::SelfUpdate::Build UpdateOf(const platform::Build& build) {
    return {build.updateBase, build.updaterHash, build.replacesItself};
}

// Shows something else for as long as this lives.
class OtherCaption {
 public:
    explicit OtherCaption(forms::Label& label) : label(label), caption(label.Caption()) {}
    ~OtherCaption() { label.SetCaption(caption); }
    OtherCaption(const OtherCaption&) = delete;
    OtherCaption& operator=(const OtherCaption&) = delete;

 private:
    forms::Label& label;
    std::string caption;
};

// In percent, or in kilobytes where nobody knows how much is to come.
std::string ProgressText(std::int64_t got, std::int64_t total) {
    constexpr std::int64_t kilobyte = 1024;
    if (total <= 0) return got > 0 ? std::to_string(got / kilobyte) + " KB" : "0 %";
    return std::to_string(100 * std::clamp<std::int64_t>(got, 0, total) / total) + " %";
}

}  // namespace

OutsideLinks::OutsideLinks(Form1& form, Services services, platform::Build build)
    : form(form),
      services(services),
      build(std::move(build)),
      download({services.downloads, services.files, services.dialogs, services.log}, SayOf(form)),
      update({services.files, services.starter, services.dialogs, services.events, services.log},
             download, UpdateOf(this->build), defaultTitle, SayOf(form)) {
    form.DonateBtn.SetVisible(HasDonations());
}

void OutsideLinks::ShowHomePage() {
    if (support::IsWebAddress(build.homePage)) {
        // Whether it opens shows on the screen.
        (void)ShowHtmlWithBrowser(build.homePage);
        return;
    }
    services.dialogs.MessageBox(form.Say("Für diese Version ist keine Homepage hinterlegt.",
                                         "No home page is set in this version."),
                                "Homepage", platform::Buttons::Ok, platform::Icon::Information);
}

bool OutsideLinks::HasDonations() const {
    return support::IsSafeWebAddress(build.donateUrl);
}

void OutsideLinks::Donate() {
    if (!HasDonations()) return;
    const DisabledMeanwhile meanwhile(form.DonateBtn);
    (void)ShowHtmlWithBrowser(build.donateUrl);
}

void OutsideLinks::UpdateProgram(forms::Label& link, const std::function<bool()>& cancelled) {
    if (updating) return;
    const Raised once(updating);
    const OtherCaption percent(link);
    const DisabledMeanwhile meanwhile(link);
    const auto goOn = [&](std::int64_t got, std::int64_t total) {
        link.SetCaption(ProgressText(got, total));
        services.events.DoEvents();
        return !cancelled || !cancelled();
    };
    (void)update.UpdateProgram(form.AppDir, form.EXE, build.installed, goOn);
}

std::string OutsideLinks::EmulatorName() const {
    const std::string_view path = form.StartPfad;
    if (path.empty() || path == form.ConfigPath) return {};
    return text::GetFileNameOnly(path.substr(0, path.size() - 1));
}

std::string OutsideLinks::getEmuDownloadPath() const {
    return support::getEmuDownloadPath(EmulatorName(), form.DownloadURL);
}

std::string OutsideLinks::EmuDownloadCaption() {
    return getEmuDownloadPath().empty() ? std::string() : "Download: " + EmulatorName();
}

void OutsideLinks::OpenEmuDownload() {
    if (getEmuDownloadPath().empty()) return;
    const auto address = support::DownloadAddress(form.DownloadURL);
    (void)ShowHtmlWithBrowser(address.value_or(form.DownloadURL));
}

bool OutsideLinks::ShowHtmlWithBrowser(const std::string& address) {
    if (support::ShowHtmlWithBrowser(services.starter, address)) return true;
    if (!support::IsWebAddress(address))
        services.log.Write("not opened, no address of a page: " + address);
    return false;
}

}  // namespace kivu::core
