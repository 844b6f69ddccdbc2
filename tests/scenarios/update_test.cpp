#include "scenarios/scenario.h"
#include "support/sha256.h"

namespace kivu::scenarios {
namespace {

// Single files from the web, and the updater.
class Update : public Scenario {
 protected:
    Update() {
        options.build.updateBase = "https://h";
        options.build.replacesItself = true;
        options.build.updaterHash = support::Sha256::Of(updater);
    }
    void Serve(const std::string& url, const std::string& text) {
        Do("download", "serve", url, text);
    }
    // With the arguments that the settings window's link has.
    Json Run(const std::string& parameter = "") {
        return Call("DownloadUpdateWithUpdater", "https://h/Kivu/Kivu.exe", tree.Path("Kivu.exe"),
                    tree.Path("Updater.exe"), "https://h/Update.exe", parameter);
    }
    Json Boxes() { return Do("boxes")["value"]; }
    Json Runs() { return Do("runs")["value"]; }
    Json Downloads() { return Do("downloads")["value"]; }
    // The least that passes for a program of Windows.
    static std::string Program(const std::string& rest) {
        return "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0PE\0\0", 8) + rest;
    }
    std::string Command() const {
        return tree.Path("Updater.exe") + " " + tree.Path("Kivu.exe") +
               " [PATH] https://h/Kivu/Kivu.exe [URL]";
    }
    void ExpectFailure(const std::string& url) {
        const Json boxes = Boxes();
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_EQ(boxes[0]["title"], "Kivu 1.4b");
        EXPECT_EQ(boxes[0]["text"], "Download Failed! \r\r" + url);
        EXPECT_EQ(boxes[0]["icon"], "Error");
        EXPECT_EQ(Runs(), Json::array());
        EXPECT_FALSE(tree.Exists("Updater.exe"));
    }

    const std::string updater = Program("the updater");
};

TEST_F(Update, FetchesTheUpdaterAndHandsOver) {
    Start();
    Serve("https://h/Update.exe", updater);
    EXPECT_EQ(Run(), true);
    Json runs = Runs();
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0]["command"], Command());
    EXPECT_EQ(runs[0]["style"], "Normal");
    EXPECT_EQ(runs[0]["wait"], false);
    EXPECT_EQ(runs[0]["watched"], false);
    const Json downloads = Downloads();
    ASSERT_EQ(downloads.size(), 1U);
    EXPECT_EQ(downloads[0]["url"], "https://h/Update.exe");
    EXPECT_EQ(downloads[0]["path"], tree.Path("Updater.exe"));
    EXPECT_EQ(downloads[0]["result"], "ok");
    EXPECT_EQ(Boxes(), Json::array());
    EXPECT_EQ(tree.Read("Updater.exe"), updater);
    EXPECT_FALSE(tree.Exists("Kivu.exe")) << "the updater's to write";

    // The second one downloads nothing, and the launcher has stayed open.
    EXPECT_EQ(Run("-x"), true);
    EXPECT_EQ(Downloads(), Json::array());
    runs = Runs();
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0]["command"], Command() + " -x [PARAM1] ");
}

TEST_F(Update, WithoutAServerTheDownloadHasFailed) {
    Start();
    EXPECT_EQ(Run(), false);
    ExpectFailure("https://h/Update.exe");
    for (const char* ending : {"unreachable", "refused", "incomplete", "tooLarge", "cancelled"}) {
        Do("download", "fail", ending);
        EXPECT_EQ(Run(), false) << ending;
        ExpectFailure("https://h/Update.exe");
    }
}

TEST_F(Update, WhatComesInItsPlaceIsStillNoUpdater) {
    Start();
    for (const std::string& text : {std::string("<html>Sorry</html>"), Program("another"),
                                    updater.substr(0, updater.size() - 1), std::string()}) {
        Serve("https://h/Update.exe", text);
        EXPECT_EQ(Run(), false) << text;
        ExpectFailure("https://h/Update.exe");
    }
}

TEST_F(Update, AnUpdaterThatIsNotOursIsFetchedAnew) {
    tree.Write("Updater.exe", Program("somebody else's"));
    Start();
    Serve("https://h/Update.exe", updater);
    EXPECT_EQ(Run(), true);
    EXPECT_EQ(tree.Read("Updater.exe"), updater);
    EXPECT_EQ(Runs().size(), 1U);
}

TEST_F(Update, AnUncheckedUpdaterIsStartedAtOnce) {
    options.build.updaterHash.clear();
    tree.Write("Updater.exe", Program("any"));
    Start();
    EXPECT_EQ(Run(), true);
    EXPECT_EQ(Downloads(), Json::array());
    EXPECT_EQ(Runs().size(), 1U);
}

TEST_F(Update, AnAddressThatCouldAddWordsIsNotRun) {
    tree.Write("Updater.exe", updater);
    Start();
    for (const char* url : {"http://h/k", "https://h/k [URL] -x", "https://h/\"k", "C:\\k.exe"}) {
        EXPECT_EQ(Call("DownloadUpdateWithUpdater", url, tree.Path("Kivu.exe"),
                       tree.Path("Updater.exe"), "https://h/Update.exe"),
                  false);
        EXPECT_EQ(Runs(), Json::array()) << url;
        EXPECT_EQ(Boxes()[0]["text"], std::string("Download Failed! \r\r") + url);
    }
}

TEST_F(Update, AnUpdaterThatCannotBeStartedIsTold) {
    tree.Write("Updater.exe", updater);
    Start();
    Host().starter.result = std::make_error_code(std::errc::permission_denied);
    EXPECT_EQ(Run(), false);
    const Json boxes = Boxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0]["text"], "File not found!\rUpdater.exe not found!\rUpdate Cancled!");
    EXPECT_EQ(boxes[0]["icon"], "Error");
}

TEST_F(Update, AFullDiskIsTold) {
    Start();
    Serve("https://h/Update.exe", updater);
    Do("disk", "full", "Updater.exe");
    EXPECT_EQ(Run(), false);
    const Json boxes = Boxes();
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0]["title"], "modURLDownload.URLDownload");
    EXPECT_EQ(boxes[1]["text"], "Download Failed! \r\rhttps://h/Update.exe");
    EXPECT_EQ(Runs(), Json::array());
}

TEST_F(Update, ADownloadGetsTheNameOfItsAddressAndANumber) {
    Start();
    tree.Write("Pictures/other.txt", "");
    const std::string url = "http://h/a.b/x.zip?v=1";
    Serve(url, "zip");
    for (const char* name : {"x.zip", "x (1).zip", "x (2).zip"}) {
        EXPECT_EQ(Call("URLToFileDownload", url, tree.Path("Pictures") + "/", false), true);
        EXPECT_EQ(tree.Read(std::string("Pictures/") + name), "zip") << name;
    }
    Serve(url, "new");
    EXPECT_EQ(Call("URLToFileDownload", url, tree.Path("Pictures/x.zip"), true), true);
    EXPECT_EQ(tree.Read("Pictures/x.zip"), "new");
    EXPECT_EQ(tree.Read("Pictures/x (1).zip"), "zip");
    EXPECT_EQ(Boxes(), Json::array());
}

TEST_F(Update, AnAddressWithoutAFileNameIsToldAndNotFetched) {
    Start();
    for (const char* url :
         {"http://h/", "http://h", "http://h/..\\e.exe", "http://h/..", "http://h/con",
          "http://h/a:b", "http://h/a.", "ftp://h/a", "C:\\a.txt", ""}) {
        EXPECT_EQ(Call("URLToFileDownload", url, tree.Root(), false), false) << url;
        const Json boxes = Boxes();
        ASSERT_EQ(boxes.size(), 1U) << url;
        EXPECT_EQ(boxes[0]["title"], "modURLDownload.URLDownload");
        EXPECT_EQ(Downloads(), Json::array()) << url;
    }
}

TEST_F(Update, ATransferThatFailsLeavesTheOldFileAndShowsNoBox) {
    tree.Write("x.zip", "old");
    Start();
    EXPECT_EQ(Call("URLToFileDownload", "https://h/x.zip", tree.Path("x.zip"), true), false);
    EXPECT_EQ(tree.Read("x.zip"), "old");
    EXPECT_EQ(Boxes(), Json::array());
    EXPECT_EQ(Downloads()[0]["result"], "unreachable");
}

}  // namespace
}  // namespace kivu::scenarios
