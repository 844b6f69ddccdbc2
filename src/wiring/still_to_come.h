#pragma once

#include "core/ports.h"

// What the settings window asks of routines that are not built yet. Whoever builds one puts it in
// the place of the member of the same name in routines.h, and takes it off here.
namespace kivu::wiring {

struct QuietStartHelpers final : core::StartHelpers {
    bool MountGameImage(const std::string&) override { return true; }
    void RunStartScript() override {}
    void EditStartScript() override {}
};

struct QuietLoadingScreen final : core::LoadingScreen {
    void ShowLoadingInfo(forms::Form*) override {}
    bool IsShown() const override { return false; }
    void Unload() override {}
};

struct QuietLinks final : core::ProgramLinks {
    void ShowHomePage() override {}
    bool HasDonations() const override { return false; }
    void Donate() override {}
    void UpdateProgram(forms::Label&, const std::function<bool()>&) override {}
    std::string EmuDownloadCaption() override { return {}; }
    void OpenEmuDownload() override {}
};

}  // namespace kivu::wiring
