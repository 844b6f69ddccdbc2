#include "ui/skins.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <vector>

#include "core/form1.h"
#include "testing/memory_file_system.h"

namespace kivu::ui {
namespace {

// Gives each picture by its path, at once or when it is asked to.
struct Reader : PictureLoading {
    void Load(const std::string&, forms::PictureBox&, std::function<void(bool)>) override {}
    void Drop(forms::PictureBox&) override {}
    bool LoadSkin(const std::string& path, const std::string& purpose,
                  std::function<void(forms::Picture)> receive) override {
        waiting.erase(purpose);
        if (path.empty()) return false;
        asked.push_back(path);
        if (damaged.contains(path)) return false;
        auto give = [path, receive = std::move(receive)] { receive({path, nullptr}); };
        if (late) {
            waiting[purpose] = give;
        } else {
            give();
        }
        return true;
    }
    void Finish() {
        const auto ready = std::exchange(waiting, {});
        for (const auto& [purpose, give] : ready)
            give();
    }

    bool late = false;
    std::set<std::string> damaged;
    std::map<std::string, std::function<void()>> waiting;
    std::vector<std::string> asked;
};

struct SkinsTest : ::testing::Test {
    SkinsTest() {
        form.StartPfad = "/k/Config/A/";
        form.SettingsSubPicture.SetPicture({"drives", nullptr});
        skins.KeepDesignPictures();
    }
    void Add(const std::string& name, const std::string& emulator = "A") {
        files.AddFile("/k/Config/" + emulator + "/Skin/" + name, "x");
    }
    void Select(const std::string& emulator) {
        form.StartPfad = "/k/Config/" + emulator + "/";
        skins.LoadSkinPictures();
    }
    std::string Window() const { return form.GetPicture().source; }
    std::string Drives() const { return form.SettingsSubPicture.GetPicture().source; }
    std::string Corner() const { return form.TopRightPic.GetPicture().source; }

    kivu::testing::MemoryFileSystem files;
    Reader reader;
    core::Form1 form{forms::Toolkit{}};
    Skins skins{form, files, reader};
};

TEST_F(SkinsTest, WithoutADirectoryTheDesignStays) {
    skins.LoadSkinPictures();
    EXPECT_EQ(Window(), ":/background");
    EXPECT_EQ(Corner(), ":/top-right");
    EXPECT_EQ(Drives(), "drives");
    EXPECT_TRUE(reader.asked.empty());
}

TEST_F(SkinsTest, EachPictureHasItsPlace) {
    Add("Background.png");
    Add("drivebox.JPG");
    Add("BackgroundTopRight.bmp");
    skins.LoadSkinPictures();
    EXPECT_EQ(Window(), "/k/Config/A/Skin/Background.png");
    EXPECT_EQ(Drives(), "/k/Config/A/Skin/drivebox.JPG");
    EXPECT_EQ(Corner(), "/k/Config/A/Skin/BackgroundTopRight.bmp");
}

TEST_F(SkinsTest, NextEmulatorFallsBackToTheDesignButForTheDrives) {
    Add("Background.png");
    Add("Drivebox.png");
    Add("BackgroundTopRight.png");
    Select("A");
    Select("B");
    EXPECT_EQ(Window(), ":/background");
    EXPECT_EQ(Corner(), ":/top-right");
    EXPECT_EQ(Drives(), "/k/Config/A/Skin/Drivebox.png");
    Select("A");
    EXPECT_EQ(Window(), "/k/Config/A/Skin/Background.png");
}

TEST_F(SkinsTest, CornersPictureIsNoBackground) {
    Add("BackgroundTopRight.png");
    skins.LoadSkinPictures();
    EXPECT_EQ(Window(), ":/background");
    EXPECT_EQ(Corner(), "/k/Config/A/Skin/BackgroundTopRight.png");
}

TEST_F(SkinsTest, DamagedFileLeavesThePictureBefore) {
    Add("Background.png", "A");
    Add("Background.png", "B");
    reader.damaged = {"/k/Config/B/Skin/Background.png"};
    Select("A");
    Select("B");
    EXPECT_EQ(Window(), "/k/Config/A/Skin/Background.png");
    Select("C");
    EXPECT_EQ(Window(), ":/background");
    Select("B");
    EXPECT_EQ(Window(), ":/background");
}

TEST_F(SkinsTest, PictureThatComesLateIsNotShownOverALaterOne) {
    reader.late = true;
    Add("Background.png", "A");
    Add("Background.png", "B");
    Select("A");
    Select("C");
    reader.Finish();
    EXPECT_EQ(Window(), ":/background");
    Select("A");
    EXPECT_EQ(Window(), ":/background");
    Select("B");
    reader.Finish();
    EXPECT_EQ(Window(), "/k/Config/B/Skin/Background.png");
}

TEST_F(SkinsTest, FilesAreFoundWhateverTheCaseOfTheDirectory) {
    files.AddFile("/k/Config/A/skin/LOADING.jpeg", "x");
    EXPECT_EQ(FindSkinFile(files, "/k/Config/A/", "Loading"), "/k/Config/A/skin/LOADING.jpeg");
    EXPECT_EQ(FindSkinFile(files, "/k/Config/A", "Loading"), "/k/Config/A/skin/LOADING.jpeg");
}

TEST_F(SkinsTest, OfTwoDirectoriesTheExactNameCountsThenTheFirst) {
    files.AddFile("/k/Config/A/skin/Loading.png", "x");
    files.AddFile("/k/Config/A/SKIN/Loading.png", "x");
    EXPECT_EQ(FindSkinFile(files, "/k/Config/A/", "Loading"), "/k/Config/A/SKIN/Loading.png");
    files.AddFile("/k/Config/A/Skin/Loading.png", "x");
    EXPECT_EQ(FindSkinFile(files, "/k/Config/A/", "Loading"), "/k/Config/A/Skin/Loading.png");
}

TEST_F(SkinsTest, FileOfTheDirectorysNameHidesNoDirectory) {
    files.AddFile("/k/Config/A/Skin", "x");
    files.AddFile("/k/Config/A/skin/Loading.png", "x");
    EXPECT_EQ(FindSkinFile(files, "/k/Config/A/", "Loading"), "/k/Config/A/skin/Loading.png");
}

TEST_F(SkinsTest, OlderPictureOfNearlyTheNameIsPassedOver) {
    Add("Background.old.png");
    Add("Background.png");
    EXPECT_EQ(FindSkinFile(files, "/k/Config/A/", "Background"), "/k/Config/A/Skin/Background.png");
}

TEST_F(SkinsTest, PicturesComeFirst) {
    Add("Loading.bak");
    EXPECT_EQ(FindSkinFile(files, "/k/Config/A/", "Loading"), "/k/Config/A/Skin/Loading.bak");
    Add("Loading.png");
    Add("Loading.gif");
    EXPECT_EQ(FindSkinFile(files, "/k/Config/A/", "Loading"), "/k/Config/A/Skin/Loading.gif");
}

TEST_F(SkinsTest, DirectoryOfThatNameIsNoFile) {
    files.AddDirectory("/k/Config/A/Skin/Loading.png");
    Add("Loading");
    Add("Loadings.png");
    EXPECT_EQ(FindSkinFile(files, "/k/Config/A/", "Loading"), "");
}

}  // namespace
}  // namespace kivu::ui
