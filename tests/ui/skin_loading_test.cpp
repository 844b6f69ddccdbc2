// Pictures of skins, on their way from a file to whoever asked for them.

#include "ui/picture_loader_room.h"

namespace kivu::ui {
namespace {

struct SkinLoading : PictureLoaderRoom {};

TEST_F(SkinLoading, TheWindowShinesThroughASkin) {
    pictures.color = 0x40ffffff;
    files.AddFile("/Background.gif", GifFile(2, 2, {0}));
    forms::Picture received;
    EXPECT_TRUE(loader->LoadSkin("/Background.gif", "Background",
                                 [&](forms::Picture picture) { received = std::move(picture); }));
    ASSERT_TRUE(received.pixels);
    EXPECT_FALSE(received.pixels->opaque);
    EXPECT_EQ(received.pixels->pixels.at(0), 0x40ffffff);
}

TEST_F(SkinLoading, SaysAtOnceWhetherASkinCanBeShown) {
    background.inlined = false;
    files.AddFile("/Background.png", PngFile(4, 4, 0x80ff0000));
    files.AddFile("/Background.jpg", JpegHead(2000, 1000));
    files.AddFile("/Background.nfo", "text");
    std::vector<forms::Picture> received;
    const auto receive = [&](forms::Picture picture) { received.push_back(std::move(picture)); };
    // Also a PNG file by the host's decoder, which keeps what is transparent.
    EXPECT_TRUE(loader->LoadSkin("/Background.png", "Background", receive));
    ASSERT_EQ(received.size(), 1u);
    EXPECT_EQ(received[0].source, "/Background.png");
    EXPECT_EQ(received[0].pixels->width, 4);
    EXPECT_EQ(pictures.count, 1);
    EXPECT_TRUE(loader->LoadSkin("/Background.jpg", "Background", receive));
    EXPECT_EQ(received.size(), 1u);
    EXPECT_FALSE(loader->LoadSkin("/Background.nfo", "Corner", receive));
    EXPECT_FALSE(loader->LoadSkin("/missing.png", "Corner", receive));
    background.Serve(0);
    ASSERT_EQ(received.size(), 2u);
    EXPECT_EQ(received[1].source, "/Background.jpg");
}

TEST_F(SkinLoading, GivesOnlyTheLastSkinOfAPurpose) {
    background.inlined = false;
    files.AddFile("/a.jpg", JpegHead(2000, 1000));
    files.AddFile("/b.jpg", JpegHead(1000, 2000));
    std::vector<std::string> received;
    const auto receive = [&](const forms::Picture& picture) { received.push_back(picture.source); };
    EXPECT_TRUE(loader->LoadSkin("/a.jpg", "Background", receive));
    EXPECT_TRUE(loader->LoadSkin("/b.jpg", "Background", receive));
    EXPECT_TRUE(loader->LoadSkin("/a.jpg", "Corner", receive));
    EXPECT_TRUE(loader->LoadSkin("/a.jpg", "Drivebox", receive));
    EXPECT_FALSE(loader->LoadSkin("", "Drivebox", receive));
    while (!background.waiting.empty())
        background.Serve(background.waiting.size() - 1);
    EXPECT_EQ(received, (std::vector<std::string>{"/a.jpg", "/b.jpg"}));
}

TEST_F(SkinLoading, KeepsTheSkinUnderWayWhenTheNextOneIsNone) {
    background.inlined = false;
    files.AddFile("/a.jpg", JpegHead(2000, 1000));
    files.AddFile("/bad.png", "no picture");
    std::vector<std::string> received;
    const auto receive = [&](const forms::Picture& picture) { received.push_back(picture.source); };
    EXPECT_TRUE(loader->LoadSkin("/a.jpg", "Background", receive));
    EXPECT_FALSE(loader->LoadSkin("/bad.png", "Background", receive));
    background.Serve(0);
    EXPECT_EQ(received, std::vector<std::string>{"/a.jpg"});
}

TEST_F(SkinLoading, FindsTheSizeOfASkinBehindItsColourProfile) {
    const std::string profile = "\xff\xe2" + Big(65535, 2) + std::string(65533, 'x');
    files.AddFile("/a.jpg", JpegHead(20, 10, profile + profile + profile));
    int received = 0;
    EXPECT_TRUE(loader->LoadSkin("/a.jpg", "Background", [&](auto) { ++received; }));
    EXPECT_EQ(received, 1);
    Load("/a.jpg");
    EXPECT_EQ(told, std::vector<bool>{true});
}

}  // namespace
}  // namespace kivu::ui
