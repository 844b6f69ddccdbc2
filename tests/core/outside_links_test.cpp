#include "core/outside_links.h"

#include <gmock/gmock.h>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::core {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

struct OutsideLinksTest : ::testing::Test {
    OutsideLinksTest() {
        files.AddDirectory("/k");
        form.AppDir = "/k/";
        form.EXE = "Kivu";
        form.ConfigPath = "/k/Config/";
        form.StartPfad = "/k/Config/Amiga/";
        form.CurrentLanguage = 2;
        link.SetCaption("Online update");
    }
    OutsideLinks& Links() {
        if (!links)
            links.emplace(form,
                          OutsideLinks::Services{files, host.starter, host.dialogs, host.events,
                                                 host.downloads, host.log},
                          build);
        return *links;
    }
    void ExpectInformation(const char* title, const char* text) {
        ASSERT_THAT(host.dialogs.shown, SizeIs(1));
        EXPECT_EQ(host.dialogs.shown[0].title, title);
        EXPECT_EQ(host.dialogs.shown[0].text, text);
        EXPECT_EQ(host.dialogs.shown[0].icon, platform::Icon::Information);
        EXPECT_EQ(host.dialogs.shown[0].buttons, platform::Buttons::Ok);
        host.dialogs.shown.clear();
    }
    void ExpectOpened(const char* address) {
        ASSERT_THAT(host.starter.runs, SizeIs(1));
        EXPECT_TRUE(host.starter.runs[0].opened);
        EXPECT_EQ(host.starter.runs[0].request.command, address);
        host.starter.runs.clear();
    }
    // The least that passes for a program of Windows.
    void ServeUpdater() {
        build.updateBase = "https://h";
        build.replacesItself = true;
        host.downloads.served["https://h/Update.exe"] =
            "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0PE\0\0", 8);
    }

    testing::MemoryFileSystem files;
    testing::ScriptedHost host{files};
    Form1 form{forms::Toolkit{}};
    forms::Form settings{"SettingsForm", forms::Toolkit{}};
    forms::Label link{&settings, "Label5"};
    platform::Build build;
    std::optional<OutsideLinks> links;
};

TEST_F(OutsideLinksTest, TheHomePageOpensInTheBrowser) {
    build.homePage = "http://kivu.example/";
    Links().ShowHomePage();
    ExpectOpened("http://kivu.example/");
    EXPECT_THAT(host.dialogs.shown, IsEmpty());
}

TEST_F(OutsideLinksTest, WithoutAHomePageThisIsToldAndNothingOpened) {
    for (const char* page : {"", "C:\\evil.exe", "file:///etc/passwd", "https://h/ -x"}) {
        build.homePage = page;
        links.reset();
        form.CurrentLanguage = 2;
        Links().ShowHomePage();
        ExpectInformation("Homepage", "No home page is set in this version.");
        form.CurrentLanguage = 1;
        Links().ShowHomePage();
        ExpectInformation("Homepage", "Für diese Version ist keine Homepage hinterlegt.");
    }
    EXPECT_THAT(host.starter.runs, IsEmpty());
}

TEST_F(OutsideLinksTest, DonationsAreHiddenWithoutASafeAddress) {
    for (const char* address : {"", "http://pay.example/", "pay.example", "https://h/\"x"}) {
        build.donateUrl = address;
        links.reset();
        EXPECT_FALSE(Links().HasDonations()) << address;
        EXPECT_FALSE(form.DonateBtn.Visible()) << address;
        Links().Donate();
    }
    EXPECT_THAT(host.starter.runs, IsEmpty());
}

TEST_F(OutsideLinksTest, DonationsOpenWithTheButtonOffMeanwhile) {
    build.donateUrl = "https://pay.example/cgi-bin/webscr?cmd=_xclick&business=a";
    EXPECT_TRUE(Links().HasDonations());
    EXPECT_TRUE(form.DonateBtn.Visible());
    form.DonateBtn.SetFocus();
    std::vector<bool> enabled;
    form.DonateBtn.onLostFocus = [&] { enabled.push_back(form.DonateBtn.Enabled()); };
    Links().Donate();
    EXPECT_THAT(enabled, ElementsAre(false));
    EXPECT_TRUE(form.DonateBtn.Enabled());
    EXPECT_TRUE(form.DonateBtn.HasFocus());
    ExpectOpened("https://pay.example/cgi-bin/webscr?cmd=_xclick&business=a");
}

TEST_F(OutsideLinksTest, AnUpdateShowsItsPercentsOnADisabledLink) {
    ServeUpdater();
    std::vector<std::string> shown;
    host.events.onEvents = [&] {
        EXPECT_FALSE(link.Enabled());
        shown.push_back(link.Caption());
        // A second click that gets through is none.
        Links().UpdateProgram(link, [] { return false; });
    };
    Links().UpdateProgram(link, [] { return false; });
    // Once in front of the download, and with each look at it.
    EXPECT_THAT(shown, ElementsAre("Online update", "0 %", "100 %"));
    EXPECT_EQ(link.Caption(), "Online update");
    EXPECT_TRUE(link.Enabled());
    EXPECT_THAT(host.downloads.requests, SizeIs(1));
    ASSERT_THAT(host.starter.runs, SizeIs(1));
    EXPECT_EQ(host.starter.runs[0].request.command,
              "/k/Updater.exe /k/Kivu.exe [PATH] https://h/Kivu/Kivu.exe [URL]");
    EXPECT_THAT(host.dialogs.shown, IsEmpty());
}

TEST_F(OutsideLinksTest, ACancelledUpdateLeavesNothingAndTheLinkAsItWas) {
    ServeUpdater();
    int asked = 0;
    Links().UpdateProgram(link, [&] { return ++asked == 2; });
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(link.Caption(), "Online update");
    EXPECT_TRUE(link.Enabled());
    EXPECT_FALSE(files.FileExists("/k/Updater.exe"));
    EXPECT_THAT(host.starter.runs, IsEmpty());
    ASSERT_THAT(host.dialogs.shown, SizeIs(1));
    EXPECT_EQ(host.dialogs.shown[0].text, "Download Failed! \r\rhttps://h/Update.exe");
    EXPECT_EQ(host.dialogs.shown[0].title, "Kivu 1.4b");
    // And the next click is one again.
    Links().UpdateProgram(link, {});
    EXPECT_THAT(host.starter.runs, SizeIs(1));
}

TEST_F(OutsideLinksTest, ALengthThatNobodyKnowsIsToldInKilobytes) {
    struct Slow : platform::Downloader {
        platform::Fetched Fetch(const std::string&, const std::string&, std::int64_t,
                                const GoOn& goOn) override {
            for (const std::int64_t got : {0, 1500, 300 * 1024})
                EXPECT_TRUE(goOn(got, 0));
            EXPECT_TRUE(goOn(5, 3));
            EXPECT_TRUE(goOn(std::int64_t{1} << 40, std::int64_t{1} << 41));
            return platform::Fetched::unreachable;
        }
    } slow;
    ServeUpdater();
    OutsideLinks many(form, {files, host.starter, host.dialogs, host.events, slow, host.log},
                      build);
    std::vector<std::string> shown;
    link.onChange = [&] { shown.push_back(link.Caption()); };
    many.UpdateProgram(link, {});
    EXPECT_THAT(shown, ElementsAre("0 %", "1 KB", "300 KB", "100 %", "50 %", "Online update"));
}

TEST_F(OutsideLinksTest, WhatDoesNotUpdateItselfSaysSo) {
    Links().UpdateProgram(link, {});
    ExpectInformation("Online-Update", "This version does not update itself.");
    build.replacesItself = true;
    links.reset();
    Links().UpdateProgram(link, {});
    ExpectInformation("Online-Update", "No update address is set in this version.");
    build.replacesItself = false;
    build.installed = true;
    links.reset();
    Links().UpdateProgram(link, {});
    ExpectInformation("Online-Update", "Kivu is updated with the system's packages.");
    ServeUpdater();
    build.installed = build.replacesItself = false;
    links.reset();
    Links().UpdateProgram(link, {});
    ExpectInformation("Online-Update", "This version does not update itself.");
    EXPECT_THAT(host.downloads.requests, IsEmpty());
    EXPECT_EQ(link.Caption(), "Online update");
    EXPECT_TRUE(link.Enabled());
}

TEST_F(OutsideLinksTest, AnEmulatorsPageIsNamedByItsDirectory) {
    form.DownloadURL = "http://a.b/c";
    EXPECT_EQ(Links().getEmuDownloadPath(), "Amiga Download: a.b/c");
    EXPECT_EQ(Links().EmuDownloadCaption(), "Download: Amiga");
    Links().OpenEmuDownload();
    ExpectOpened("http://a.b/c");
    form.DownloadURL = "a.b/c";
    Links().OpenEmuDownload();
    ExpectOpened("http://a.b/c");
    form.DownloadURL = "https://a.b";
    EXPECT_EQ(Links().getEmuDownloadPath(), "Amiga Download: https://a.b");
    Links().OpenEmuDownload();
    ExpectOpened("https://a.b");
}

TEST_F(OutsideLinksTest, WithoutAnAddressOrAnEmulatorThereIsNoPage) {
    EXPECT_EQ(Links().getEmuDownloadPath(), "");
    EXPECT_EQ(Links().EmuDownloadCaption(), "");
    form.DownloadURL = "http://a.b";
    for (const char* directory : {"/k/Config/", ""}) {
        form.StartPfad = directory;
        EXPECT_EQ(Links().getEmuDownloadPath(), "");
        EXPECT_EQ(Links().EmuDownloadCaption(), "");
        Links().OpenEmuDownload();
    }
    EXPECT_THAT(host.starter.runs, IsEmpty());
}

TEST_F(OutsideLinksTest, AProfileCannotHaveAProgramRun) {
    for (const char* stored : {"C:\\evil.exe", "file:///bin/sh", "\\\\server\\evil.exe",
                               "javascript:alert(1)", "http://a -x", "a b", "http://a\"b", " "}) {
        form.DownloadURL = stored;
        host.log.lines.clear();
        Links().OpenEmuDownload();
        EXPECT_THAT(host.starter.runs, IsEmpty()) << stored;
        EXPECT_THAT(host.log.lines, SizeIs(1)) << stored;
    }
}

}  // namespace
}  // namespace kivu::core
