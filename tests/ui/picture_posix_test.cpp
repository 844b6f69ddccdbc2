// What may bear a picture's name on a real disk and is none.

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "forms/form.h"
#include "host_files.h"
#include "testing/picture_files.h"
#include "testing/scripted_host.h"
#include "testing/temporary_directory.h"
#include "ui/picture_loader.h"

namespace kivu::ui {
namespace {

using namespace kivu::testing;

class PictureOnDisk : public ::testing::Test {
 protected:
    std::string Path(const char* name) const { return directory.Root() + "/" + name; }
    void Write(const char* name, std::string_view bytes) {
        std::ofstream(Path(name), std::ios::binary) << bytes;
    }
    bool Shows(const char* name) {
        bool shown = false, told = false;
        loader.Load(Path(name), target, [&](bool is) { shown = is, told = true; });
        EXPECT_TRUE(told) << name;
        EXPECT_EQ(shown, target.GetPicture().pixels != nullptr) << name;
        return shown;
    }

    TemporaryDirectory directory;
    HostFileSystem files;
    ScriptedPictures pictures;
    ScriptedBackground background;
    ScriptedDialogs dialogs;
    core::ProgramState program;
    forms::Form form{"Form1"};
    forms::PictureBox target{&form, "GamePicture"};
    PictureLoader loader{program, {files, pictures, background, dialogs}};
};

TEST_F(PictureOnDisk, IsShownByItselfAndThroughALink) {
    Write("Game.png", PngFile(3, 2, 0xff102030));
    std::filesystem::create_symlink(Path("Game.png"), Path("Link.png"));
    EXPECT_TRUE(Shows("Game.png"));
    EXPECT_TRUE(Shows("Link.png"));
}

TEST_F(PictureOnDisk, IsNoPipeNoDirectoryNoDeviceAndNothingBehindALink) {
    ASSERT_EQ(::mkfifo(Path("Pipe.png").c_str(), 0600), 0);
    std::filesystem::create_directory(Path("Directory.png"));
    std::filesystem::create_symlink("/nowhere/at/all", Path("Dangling.png"));
    std::filesystem::create_symlink("/dev/zero", Path("Endless.png"));
    std::filesystem::create_symlink(Path("Loop.png"), Path("Loop.png"));
    Write("Empty.png", "");
    for (const char* name : {"Pipe.png", "Directory.png", "Dangling.png", "Endless.png", "Loop.png",
                             "Empty.png", "Missing.png"}) {
        EXPECT_FALSE(Shows(name)) << name;
        EXPECT_FALSE(loader.LoadSkin(Path(name), "Background", [](forms::Picture) {})) << name;
    }
}

TEST_F(PictureOnDisk, TakesAnyBytesInItsName) {
    Write("\xe4\xff'&;$ [a]*.png", PngFile(3, 2, 0xff102030));
    EXPECT_TRUE(Shows("\xe4\xff'&;$ [a]*.png"));
}

TEST_F(PictureOnDisk, MayGoBetweenTheLookAndTheLoad) {
    background.inlined = false;
    Write("Large.png", PngFile(200, 100, 0xff102030));
    int shown = 0;
    loader.Load(Path("Large.png"), target, [&](bool is) { shown += is; });
    std::filesystem::remove(Path("Large.png"));
    background.Serve(0);
    EXPECT_EQ(shown, 1);
    background.inlined = true;
    EXPECT_FALSE(Shows("Large.png"));
}

TEST_F(PictureOnDisk, MayShrinkWhileItIsRead) {
    background.inlined = false;
    Write("Large.png", PngFile(200, 100, 0xff102030));
    bool told = false;
    loader.Load(Path("Large.png"), target, [&](bool) { told = true; });
    std::filesystem::resize_file(Path("Large.png"), 100);
    background.Serve(0);
    EXPECT_TRUE(told);
}

TEST_F(PictureOnDisk, IsNotReadWholeWhenItIsTooLarge) {
    Write("Huge.png", PngHead(200, 100));
    std::filesystem::resize_file(Path("Huge.png"), std::uintmax_t{1} << 40);
    EXPECT_FALSE(Shows("Huge.png"));
}

}  // namespace
}  // namespace kivu::ui
