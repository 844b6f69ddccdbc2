#include "support/self_update.h"

#include <gmock/gmock.h>

#include "support/sha256.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_downloads.h"
#include "testing/scripted_host.h"

namespace kivu::support {
namespace {

using platform::Fetched;
using platform::Icon;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// The least that passes for a program of Windows.
std::string Program(const std::string& rest) {
    std::string bytes = "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0PE\0\0", 8);
    return bytes + rest;
}

class SelfUpdateTest : public ::testing::Test {
 protected:
    SelfUpdateTest() {
        files.AddDirectory("C:\\Kivu");
        build.base = "https://h";
        build.updaterHash = Sha256::Of(good);
        build.replacesItself = true;
        downloads.served["https://h/Update.exe"] = good;
    }

    SelfUpdate Update() {
        return {{files, starter, dialogs, events, log}, download, build, "Kivu 1.4b", Say()};
    }
    support::Say Say() {
        return [this](const char* inGerman, const char* inEnglish) {
            return german ? inGerman : inEnglish;
        };
    }
    bool UpdateProgram(bool installed = false) {
        return Update().UpdateProgram("C:\\Kivu\\", "Kivu", installed);
    }
    void ExpectBox(const std::string& text, const std::string& title, Icon icon) {
        ASSERT_EQ(dialogs.shown.size(), 1U);
        EXPECT_EQ(dialogs.shown[0].text, text);
        EXPECT_EQ(dialogs.shown[0].title, title);
        EXPECT_EQ(dialogs.shown[0].icon, icon);
        EXPECT_EQ(dialogs.shown[0].buttons, platform::Buttons::Ok);
        dialogs.shown.clear();
    }
    void ExpectFailedDownload(const std::string& url) {
        ExpectBox("Download Failed! \r\r" + url, "Kivu 1.4b", Icon::Error);
        EXPECT_THAT(starter.runs, IsEmpty());
    }
    void ExpectStart(const std::string& command) {
        ASSERT_EQ(starter.runs.size(), 1U);
        EXPECT_EQ(starter.runs[0].request.command, command);
        EXPECT_EQ(starter.runs[0].request.style, platform::WindowStyle::Normal);
        EXPECT_FALSE(starter.runs[0].request.wait);
        EXPECT_THAT(dialogs.shown, IsEmpty());
    }

    const std::string good = Program("the updater");
    const std::string updater = "C:\\Kivu\\Updater.exe";
    const std::string command =
        "C:\\Kivu\\Updater.exe C:\\Kivu\\Kivu.exe [PATH] https://h/Kivu/Kivu.exe [URL]";
    testing::MemoryFileSystem files{'\\'};
    testing::ScriptedDownloads downloads{files};
    testing::ScriptedDialogs dialogs;
    testing::ScriptedStarter starter;
    testing::ScriptedEvents events;
    testing::ScriptedLog log;
    bool german = false;
    UrlDownload download{{downloads, files, dialogs, log}, Say()};
    SelfUpdate::Build build;
};

TEST_F(SelfUpdateTest, FetchesTheUpdaterAndRunsIt) {
    EXPECT_TRUE(UpdateProgram());
    ExpectStart(command);
    EXPECT_EQ(files.BytesOf(updater), good);
    ASSERT_EQ(downloads.requests.size(), 1U);
    EXPECT_EQ(downloads.requests[0].url, "https://h/Update.exe");
    EXPECT_EQ(events.count, 1);
}

TEST_F(SelfUpdateTest, AGoodUpdaterIsStartedAtOnce) {
    files.AddFile(updater, good);
    EXPECT_TRUE(UpdateProgram());
    ExpectStart(command);
    EXPECT_THAT(downloads.requests, IsEmpty());
}

TEST_F(SelfUpdateTest, AnotherFileOfItsNameIsFetchedAnew) {
    files.AddFile(updater, Program("somebody else's"));
    EXPECT_TRUE(UpdateProgram());
    ExpectStart(command);
    EXPECT_EQ(files.BytesOf(updater), good);
}

TEST_F(SelfUpdateTest, TheHashMayHaveCapitals) {
    for (char& letter : build.updaterHash)
        letter = letter >= 'a' && letter <= 'f' ? static_cast<char>(letter - 32) : letter;
    EXPECT_TRUE(UpdateProgram());
    ExpectStart(command);
}

TEST_F(SelfUpdateTest, ALinkIsNoUpdater) {
    files.AddFile("C:\\other.exe", good);
    files.AddLink(updater, "C:\\other.exe");
    downloads.served.clear();
    EXPECT_FALSE(UpdateProgram());
    EXPECT_EQ(downloads.requests.size(), 1U);
    ExpectFailedDownload("https://h/Update.exe");
}

TEST_F(SelfUpdateTest, ADirectoryOfItsNameTakesNoDownload) {
    files.AddDirectory(updater);
    EXPECT_FALSE(UpdateProgram());
    EXPECT_THAT(downloads.requests, IsEmpty());
    ExpectFailedDownload("https://h/Update.exe");
}

TEST_F(SelfUpdateTest, WithoutAServerTheDownloadHasFailed) {
    for (const Fetched result : {Fetched::unreachable, Fetched::refused, Fetched::incomplete,
                                 Fetched::tooLarge, Fetched::cancelled}) {
        downloads.served.clear();
        downloads.otherwise = result;
        EXPECT_FALSE(UpdateProgram());
        ExpectFailedDownload("https://h/Update.exe");
        EXPECT_EQ(files.BytesOf(updater), "(no file)");
    }
}

TEST_F(SelfUpdateTest, WhatIsNotTheUpdaterIsStillMissing) {
    for (const std::string& bytes :
         {std::string("<html>Not found</html>"), Program("another"),
          good.substr(0, good.size() - 1), good.substr(0, 3), std::string("MZ")}) {
        downloads.served["https://h/Update.exe"] = bytes;
        EXPECT_FALSE(UpdateProgram());
        ExpectFailedDownload("https://h/Update.exe");
        EXPECT_EQ(files.BytesOf(updater), "(no file)");
    }
}

TEST_F(SelfUpdateTest, UncheckedItMustBeAProgramAtLeast) {
    build.updaterHash.clear();
    downloads.served["https://h/Update.exe"] = "<html>Not found</html>";
    EXPECT_FALSE(UpdateProgram());
    ExpectFailedDownload("https://h/Update.exe");
    downloads.served["https://h/Update.exe"] = Program("any");
    EXPECT_TRUE(UpdateProgram());
    ExpectStart(command);
}

TEST_F(SelfUpdateTest, OnlySafeAddressesAreTaken) {
    for (const std::string& base :
         {std::string("http://h"), std::string("https://h/a b"), std::string("https://h/\"a"),
          std::string("https://h\r"), std::string("file:///C:/a"), std::string("h")}) {
        build.base = base;
        files.AddFile(updater, good);
        EXPECT_FALSE(UpdateProgram()) << base;
        ExpectFailedDownload(base + "/Kivu/Kivu.exe");
        EXPECT_THAT(downloads.requests, IsEmpty());
    }
    EXPECT_FALSE(Update().DownloadUpdateWithUpdater("https://h/k", "C:\\Kivu\\Kivu.exe",
                                                    "C:\\Kivu\\Other.exe", "http://h/u", ""));
    ExpectFailedDownload("http://h/u");
}

TEST_F(SelfUpdateTest, AnUpdaterThatCannotBeStartedIsTold) {
    starter.result = std::make_error_code(std::errc::permission_denied);
    EXPECT_FALSE(UpdateProgram());
    ExpectBox("File not found!\rUpdater.exe not found!\rUpdate Cancled!", "Kivu 1.4b", Icon::Error);
}

TEST_F(SelfUpdateTest, WithoutAnAddressThisIsToldAndNothingElseDone) {
    build.base.clear();
    EXPECT_FALSE(UpdateProgram());
    ExpectBox("No update address is set in this version.", "Online-Update", Icon::Information);
    german = true;
    EXPECT_FALSE(UpdateProgram());
    ExpectBox("Für diese Version ist keine Update-Adresse hinterlegt.", "Online-Update",
              Icon::Information);
    EXPECT_THAT(files.changes, IsEmpty());
}

TEST_F(SelfUpdateTest, AProgramThatOthersReplaceSaysSo) {
    build.replacesItself = false;
    build.base.clear();
    EXPECT_FALSE(UpdateProgram(true));
    ExpectBox("Kivu is updated with the system's packages.", "Online-Update", Icon::Information);
    EXPECT_FALSE(UpdateProgram(false));
    ExpectBox("This version does not update itself.", "Online-Update", Icon::Information);
    build.base = "https://h";
    EXPECT_FALSE(UpdateProgram(true));
    ExpectBox("Kivu is updated with the system's packages.", "Online-Update", Icon::Information);
    EXPECT_FALSE(UpdateProgram(false));
    ExpectBox("This version does not update itself.", "Online-Update", Icon::Information);
    german = true;
    EXPECT_FALSE(UpdateProgram(true));
    ExpectBox("Kivu wird mit den Paketen des Systems aktualisiert.", "Online-Update",
              Icon::Information);
    EXPECT_FALSE(UpdateProgram(false));
    ExpectBox("Diese Version aktualisiert sich nicht selbst.", "Online-Update", Icon::Information);
    EXPECT_THAT(downloads.requests, IsEmpty());
    EXPECT_THAT(files.changes, IsEmpty());
}

TEST_F(SelfUpdateTest, AReadOnlyDirectoryIsToldBeforeAnythingIsFetched) {
    files.SetReadOnly("C:\\Kivu");
    EXPECT_FALSE(UpdateProgram());
    ExpectBox("The program's directory cannot be written to.", "Online-Update", Icon::Information);
    EXPECT_THAT(downloads.requests, IsEmpty());
}

TEST_F(SelfUpdateTest, LookingWhetherTheDirectoryCanBeWrittenToLeavesNothing) {
    files.AddFile("C:\\Kivu\\Kivu0.tmp", "the user's");
    EXPECT_TRUE(UpdateProgram());
    EXPECT_EQ(files.BytesOf("C:\\Kivu\\Kivu0.tmp"), "the user's");
    EXPECT_EQ(files.BytesOf("C:\\Kivu\\Kivu1.tmp"), "(no file)");
}

TEST_F(SelfUpdateTest, CancellingIsAFailedDownload) {
    EXPECT_FALSE(Update().UpdateProgram("C:\\Kivu\\", "Kivu", false,
                                        [](std::int64_t, std::int64_t) { return false; }));
    ExpectFailedDownload("https://h/Update.exe");
}

TEST(UpdaterCommandTest, MarkersStandBehindTheirValues) {
    EXPECT_EQ(UpdaterCommand("C:\\Kivu\\Updater.exe", "C:\\Kivu\\Kivu.exe",
                             "https://h/Kivu/Kivu.exe", ""),
              "C:\\Kivu\\Updater.exe C:\\Kivu\\Kivu.exe [PATH] https://h/Kivu/Kivu.exe [URL]");
    EXPECT_THAT(UpdaterCommand("u", "k", "a", "-x"), "u k [PATH] a [URL] -x [PARAM1] ");
    EXPECT_THAT(UpdaterCommand("u", "k", "a", "  "), "u k [PATH] a [URL]");
}

// Bare, "C:\My Kivu\.." would run "C:\My.exe".
TEST(UpdaterCommandTest, TheUpdaterAloneIsQuoted) {
    EXPECT_THAT(UpdaterCommand("C:\\My Kivu\\Updater.exe", "C:\\My Kivu\\Kivu.exe", "a", ""),
                "\"C:\\My Kivu\\Updater.exe\" C:\\My Kivu\\Kivu.exe [PATH] a [URL]");
}

TEST(WindowsProgramTest, HasBothMarks) {
    EXPECT_TRUE(LooksLikeWindowsProgram(Program("")));
    EXPECT_FALSE(LooksLikeWindowsProgram(""));
    EXPECT_FALSE(LooksLikeWindowsProgram("MZ"));
    std::string bytes = Program("");
    bytes.pop_back();
    EXPECT_FALSE(LooksLikeWindowsProgram(bytes));
    bytes = Program("");
    bytes[0x3F] = '\x7F';  // far behind the end
    EXPECT_FALSE(LooksLikeWindowsProgram(bytes));
    bytes = Program("");
    bytes[0] = 'N';
    EXPECT_FALSE(LooksLikeWindowsProgram(bytes));
}

}  // namespace
}  // namespace kivu::support
