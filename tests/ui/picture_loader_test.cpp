#include <algorithm>
#include <random>

#include "ui/picture_loader_room.h"

namespace kivu::ui {
namespace {

struct PictureLoaderTest : PictureLoaderRoom {};

TEST_F(PictureLoaderTest, ShowsAPngInItsNaturalSize) {
    files.AddFile("/a/Game.png", PngFile(20, 10, 0xff804020));
    Load("/a/Game.png");
    EXPECT_EQ(told, std::vector<bool>{true});
    EXPECT_EQ(ShownSource(), "/a/Game.png");
    EXPECT_EQ(FirstPixel(), 0x804020);
    EXPECT_TRUE(target.GetPicture().pixels->opaque);
    EXPECT_EQ(target.Left(), 30);
    EXPECT_EQ(target.Top(), 45);
    EXPECT_EQ(target.Width(), 300);
    EXPECT_EQ(target.Height(), 150);
    EXPECT_EQ(pictures.count, 0);  // by the reader of its own
}

TEST_F(PictureLoaderTest, BlendsAPngWithTheTargetsBackColour) {
    target.SetBackColor(0x0000ff);
    files.AddFile("/Game.png", PngFile(2, 2, 0x00ffffff));
    Load("/Game.png");
    EXPECT_EQ(FirstPixel(), 0xff0000);
}

TEST_F(PictureLoaderTest, NothingShinesThroughAPreview) {
    target.SetBackColor(0x0000ff);
    files.AddFile("/Game.gif", GifFile(2, 2, {0}));
    files.AddFile("/X.PNG", PngFile(2, 2, 0));
    for (const char* path : {"/Game.gif", "/X.PNG"}) {
        pictures.color = 0x00ffffff;
        Load(path);
        EXPECT_EQ(FirstPixel(), 0xff0000) << path;
        EXPECT_TRUE(target.GetPicture().pixels->opaque) << path;
        pictures.color = 0x80ffffff;
        Load(path);
        EXPECT_EQ(FirstPixel(), 0xff8080) << path;
    }
    // As the reader of its own blends.
    files.AddFile("/Half.png", PngFile(2, 2, 0x80ffffff));
    Load("/Half.png");
    EXPECT_EQ(FirstPixel(), 0xff8080);
}

TEST_F(PictureLoaderTest, TakesTheHostsDecoderForAllElse) {
    files.AddFile("/Game.jpg", JpegHead(64, 48));
    Load("/Game.jpg");
    EXPECT_EQ(told, std::vector<bool>{true});
    EXPECT_EQ(pictures.count, 1);
    EXPECT_EQ(target.Width(), 64 * 15);
    EXPECT_EQ(target.Height(), 48 * 15);
    EXPECT_EQ(ShownSource(), "/Game.jpg");
}

TEST_F(PictureLoaderTest, TurnsPhotographsUpright) {
    files.AddFile("/Game.jpg", JpegHead(64, 48, ExifSegment(6)));
    Load("/Game.jpg");
    EXPECT_EQ(target.Width(), 48 * 15);
    EXPECT_EQ(target.Height(), 64 * 15);
}

TEST_F(PictureLoaderTest, GoesByThePathAndThenByTheContent) {
    files.AddFile("/png.jpg", PngFile(3, 3, 0xff000000));
    files.AddFile("/X.PNG", PngFile(3, 3, 0xff000000));
    files.AddFile("/jpeg.png", JpegHead(3, 3));
    files.AddFile("/my.png.files/a.jpg", JpegHead(3, 3));
    files.AddFile("/my.png.files/b.jpg", PngFile(3, 3, 0xff000000));
    Load("/png.jpg");
    Load("/X.PNG");
    EXPECT_EQ(pictures.count, 2);
    Load("/jpeg.png");
    Load("/my.png.files/a.jpg");
    EXPECT_EQ(told, (std::vector<bool>{true, true, false, false}));
    EXPECT_EQ(pictures.count, 2);
    Load("/my.png.files/b.jpg");
    EXPECT_TRUE(told.back());
    EXPECT_EQ(pictures.count, 2);
}

TEST_F(PictureLoaderTest, BlanksTheTargetBeforeEachLoad) {
    files.AddFile("/good.png", PngFile(3, 3, 0xff000000));
    files.AddFile("/bad.png", "no picture");
    files.AddFile("/empty.gif", "");
    files.AddDirectory("/dir.png");
    files.AddFile("/huge.png", PngHead(65500, 65500));
    files.AddFile("/huge.jpg", JpegHead(65500, 65500));
    files.AddLink("/dangling.png", "/nowhere");
    files.AddFile("/damaged.bmp", BmpHead(5, 5));
    files.AddFile("/locked.png", PngFile(3, 3, 0xff000000));
    files.SetUnreadable("/locked.png");
    for (const char* path : {"/bad.png", "/empty.gif", "/dir.png", "/huge.png", "/huge.jpg",
                             "/dangling.png", "/missing.png", "", "/damaged.bmp", "/locked.png"}) {
        undecodable = false;
        Load("/good.png");
        ASSERT_TRUE(told.back());
        undecodable = true;
        Load(path);
        EXPECT_FALSE(told.back()) << path;
        EXPECT_EQ(target.GetPicture(), forms::Picture()) << path;
    }
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(PictureLoaderTest, RefusesFilesOfMoreThan64Megabytes) {
    std::string file = JpegHead(3, 3);
    file.resize(std::size_t{64} << 20);
    files.AddFile("/most.jpg", file);
    files.AddFile("/more.jpg", file + "x");
    Load("/most.jpg");
    Load("/more.jpg");
    EXPECT_EQ(told, (std::vector<bool>{true, false}));
    EXPECT_EQ(pictures.count, 1);
}

TEST_F(PictureLoaderTest, CutAnywhereShowsThePictureOrNone) {
    const std::string file = PngFile(5, 4, 0xff123456);
    for (std::size_t length = 0; length < file.size(); ++length) {
        files.AddFile("/cut.png", std::string_view(file).substr(0, length));
        Load("/cut.png");
        EXPECT_EQ(told.back(), target.GetPicture().pixels != nullptr) << length;
        if (told.back()) {
            EXPECT_EQ(target.Width(), 75) << length;
        }
    }
}

TEST_F(PictureLoaderTest, TellsOfABadTreeOnceAFile) {
    files.AddFile("/one.png", PngWithBadTree(4, 4));
    files.AddFile("/two.png", PngWithBadTree(4, 4));
    Load("/one.png");
    ASSERT_EQ(dialogs.shown.size(), 1u);
    EXPECT_EQ(dialogs.shown[0].text, "Error in tree creation (Static)");
    Load("/one.png");
    EXPECT_EQ(dialogs.shown.size(), 1u);
    Load("/two.png");
    EXPECT_EQ(dialogs.shown.size(), 2u);
}

TEST_F(PictureLoaderTest, TellsOfABadTreeWhenAllElseIsDone) {
    files.AddFile("/one.png", PngWithBadTree(4, 4));
    std::size_t toldBefore = 0;
    dialogs.onShow = [&] { toldBefore = told.size(); };
    Load("/one.png");
    EXPECT_EQ(toldBefore, 1u);
}

TEST_F(PictureLoaderTest, TellsOfABadTreeWhenTheCallerHasReturned) {
    background.inlined = false;
    files.AddFile("/one.png", PngWithBadTree(4, 4));
    Load("/one.png");
    Load("/one.png");
    EXPECT_EQ(told.size(), 2u) << "a small file is there at once";
    EXPECT_TRUE(dialogs.shown.empty());
    ASSERT_EQ(background.waiting.size(), 1u);
    background.Serve(0);
    EXPECT_EQ(dialogs.shown.size(), 1u);
}

TEST_F(PictureLoaderTest, TellsOfNoTreeAfterTheEnd) {
    background.inlined = false;
    files.AddFile("/one.png", PngWithBadTree(4, 4));
    files.AddFile("/two.png", PngWithBadTree(4, 4));
    Load("/one.png");
    program.Ended = true;
    background.Serve(0);
    program.Ended = false;
    Load("/two.png");
    loader.reset();
    background.Serve(0);
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(PictureLoaderTest, LeavesLargeFilesToTheWorker) {
    background.inlined = false;
    files.AddFile("/small.png", PngFile(20, 20, 0xff000000));
    files.AddFile("/large.png", LargePng(0xff010203));
    files.AddFile("/wide.gif", GifFile(1, 1, {0}).replace(6, 4, Little(2000, 2) + Little(2000, 2)));
    Load("/small.png");
    EXPECT_TRUE(background.waiting.empty());
    EXPECT_EQ(told.size(), 1u);
    // A small file may hold a large picture.
    Load("/wide.gif");
    EXPECT_EQ(background.waiting.size(), 1u);
    Load("/large.png");
    ASSERT_EQ(background.waiting.size(), 2u);
    EXPECT_EQ(told.size(), 1u);
    EXPECT_EQ(target.GetPicture(), forms::Picture());
    // It was open already.
    files.Remove("/large.png");
    background.Serve(1);
    EXPECT_EQ(told, (std::vector<bool>{true, true}));
    EXPECT_EQ(FirstPixel(), 0x010203);
    background.Serve(0);
    EXPECT_EQ(told.size(), 2u);
    EXPECT_EQ(ShownSource(), "/large.png");
    EXPECT_EQ(pictures.count, 0);  // nobody wanted the gif any more
}

TEST_F(PictureLoaderTest, LeavesPicturesInPassesToTheWorker) {
    background.inlined = false;
    files.AddFile("/small.jpg", JpegHead(20, 20));
    files.AddFile("/passes.jpg", JpegHead(20, 20, {}, '\xc2'));
    std::string scans = JpegHead(20, 20);
    for (int i = 0; i < 20; ++i)
        scans += std::string("\xff\xda\0\x8\1\1\0\0\x3f\0", 10);
    files.AddFile("/scans.jpg", scans);
    Load("/small.jpg");
    EXPECT_EQ(told.size(), 1u);
    Load("/passes.jpg");
    EXPECT_EQ(told.size(), 1u);
    EXPECT_EQ(pictures.count, 1);
    EXPECT_EQ(target.GetPicture(), forms::Picture());
    ASSERT_EQ(background.waiting.size(), 1u);
    background.Serve(0);
    EXPECT_EQ(told.size(), 2u);
    EXPECT_EQ(ShownSource(), "/passes.jpg");
    Load("/scans.jpg");
    EXPECT_EQ(told.size(), 2u);
    background.Serve(0);
    EXPECT_EQ(told.size(), 3u);
    int received = 0;
    EXPECT_TRUE(loader->LoadSkin("/passes.jpg", "Corner", [&](auto) { ++received; }));
    EXPECT_EQ(received, 0);
    background.Serve(0);
    EXPECT_EQ(received, 1);
}

TEST_F(PictureLoaderTest, ShowsTheLastOfTwoHundredInWhateverOrderTheyCome) {
    background.inlined = false;
    for (std::uint32_t i = 0; i < 200; ++i)
        files.AddFile("/" + std::to_string(i) + ".png", LargePng(0xff000000 | i));
    std::mt19937 random(7);
    for (int round = 0; round < 3; ++round) {
        told.clear();
        for (int i = 0; i < 200; ++i) {
            Load("/" + std::to_string(i) + ".png");
            // Some come back while the user goes on.
            if (random() % 3 == 0) background.Serve(random() % background.waiting.size());
        }
        while (!background.waiting.empty())
            background.Serve(random() % background.waiting.size());
        EXPECT_EQ(FirstPixel(), 199);
        EXPECT_EQ(ShownSource(), "/199.png");
        EXPECT_TRUE(std::count(told.begin(), told.end(), false) == 0);
    }
}

TEST_F(PictureLoaderTest, TellsNothingOfWhatIsDropped) {
    background.inlined = false;
    files.AddFile("/large.png", LargePng(0xff000000));
    Load("/large.png");
    loader->Drop(target);
    background.Serve(0);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(target.GetPicture(), forms::Picture());
    loader->Drop(target);
}

TEST_F(PictureLoaderTest, ServesTargetsByThemselves) {
    background.inlined = false;
    forms::PictureBox other(&form, "Other");
    files.AddFile("/large.png", LargePng(0xff000000));
    Load("/large.png");
    bool shown = false;
    loader->Load("/large.png", other, [&](bool is) { shown = is; });
    background.Serve(0);
    background.Serve(0);
    EXPECT_TRUE(shown);
    EXPECT_EQ(told, std::vector<bool>{true});
}

TEST_F(PictureLoaderTest, DoesNothingAfterTheProgramsEnd) {
    background.inlined = false;
    files.AddFile("/large.png", LargePng(0xff000000));
    files.AddFile("/small.png", PngFile(3, 3, 0xff000000));
    Load("/large.png");
    int skins = 0;
    EXPECT_TRUE(loader->LoadSkin("/large.png", "Background", [&](auto) { ++skins; }));
    program.Ended = true;
    Load("/small.png");
    EXPECT_FALSE(loader->LoadSkin("/small.png", "Corner", [&](auto) { ++skins; }));
    while (!background.waiting.empty())
        background.Serve(0);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(skins, 0);
    EXPECT_EQ(target.GetPicture(), forms::Picture());
}

TEST_F(PictureLoaderTest, IsOutlivedByItsWork) {
    background.inlined = false;
    files.AddFile("/large.jpg", JpegHead(2000, 2000));
    Load("/large.jpg");
    loader.reset();
    background.Serve(0);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(pictures.count, 0);
}

TEST_F(PictureLoaderTest, MayLoadTheNextOneWhenOneIsThere) {
    files.AddFile("/one.png", PngFile(3, 3, 0xff000001));
    files.AddFile("/two.png", PngFile(3, 3, 0xff000002));
    loader->Load("/one.png", target, [this](bool) { Load("/two.png"); });
    EXPECT_EQ(FirstPixel(), 2);
    EXPECT_EQ(told, std::vector<bool>{true});
}

}  // namespace
}  // namespace kivu::ui
