#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "no_more_files.h"
#include "open_files.h"
#include "png/generator/opened.h"
#include "png/generator/recording_target.h"
#include "png/generator/temporary_file.h"
#include "png/load_png.h"

namespace kivu::png {
namespace {

using testing::Bytes;
using testing::PngRecipe;
using testing::RecordingTarget;

TEST(OpenPNG, ReadsAFileLikeItsBytes) {
    PngRecipe recipe;
    recipe.colorType = 2;
    recipe.width = recipe.height = 90;
    const Bytes bytes = WritePng(recipe);
    const testing::TemporaryFile file(bytes);
    RecordingTarget fromFile;
    RecordingTarget fromBytes;
    LoadPNG reader;
    reader.PicBox(&fromFile);
    EXPECT_FALSE(reader.OpenPNG(file.Path()));
    reader.PicBox(&fromBytes);
    reader.OpenBytes(testing::BufferOf(bytes));
    ASSERT_TRUE(fromFile.painted && fromBytes.painted);
    for (int y = 0; y < 90; ++y) {
        EXPECT_TRUE(std::ranges::equal(fromFile.painted->Row(y), fromBytes.painted->Row(y)));
    }
}

// Asked before each block, before the rows, between them and behind them: whenever the answer
// comes, nothing is drawn.
TEST(OpenPNG, DrawsNothingThatIsGivenUp) {
    PngRecipe recipe;
    recipe.colorType = 2;
    recipe.width = 9;
    recipe.height = 200;
    for (const bool interlaced : {false, true}) {
        recipe.interlaced = interlaced;
        const Bytes bytes = WritePng(recipe);
        int asked = 0, patience = 1000;
        LoadPNG reader({{}, {}, [&] { return ++asked > patience; }});
        const auto opened = [&](int times) {
            RecordingTarget target;
            reader.PicBox(&target);
            asked = 0;
            patience = times;
            EXPECT_FALSE(reader.OpenBytes(testing::BufferOf(bytes)));
            EXPECT_EQ(reader.ErrorNumber(), 0);
            return target.WasTouched();
        };
        ASSERT_TRUE(opened(1000));
        const int questions = asked;
        EXPECT_GE(questions, 6) << "the rows too";
        for (int times = 0; times < questions; ++times) {
            EXPECT_FALSE(opened(times)) << times;
            EXPECT_LE(asked, times + 10) << "it ends soon";
        }
        EXPECT_TRUE(opened(questions));
    }
}

TEST(OpenPNG, WhatCantBeOpenedIsToldToTheCaller) {
    RecordingTarget target;
    LoadPNG reader;
    reader.PicBox(&target);
    EXPECT_TRUE(reader.OpenPNG("/no/such/file.png"));
    EXPECT_TRUE(reader.OpenPNG(std::filesystem::temp_directory_path()));
    EXPECT_EQ(reader.ErrorNumber(), 0);
    EXPECT_FALSE(target.WasTouched());
}

TEST(OpenPNG, CauseOfAFailedOpenIsTold) {
    const testing::TemporaryFile file(WritePng(PngRecipe{}));
    LoadPNG reader;
    EXPECT_EQ(reader.OpenPNG("/no/such/file.png"), std::errc::no_such_file_or_directory);
    std::error_code error;
    {
        const kivu::testing::NoMoreFiles none;
        error = reader.OpenPNG(file.Path());
    }
    // Windows' runtime passes some of the system's causes on as an error of input and output.
    EXPECT_TRUE(error == std::errc::too_many_files_open ||
                error == std::errc::too_many_files_open_in_system || error == std::errc::io_error)
        << error.message();
    EXPECT_FALSE(reader.OpenPNG(file.Path()));
}

TEST(OpenPNG, EndlessDeviceIsNoFile) {
    if (!std::filesystem::exists("/dev/zero")) GTEST_SKIP() << "there is no such device";
    LoadPNG reader;
    EXPECT_TRUE(reader.OpenPNG("/dev/zero"));
}

TEST(OpenPNG, FileStaysOpenAfterAnErrorUntilTheObjectIsGone) {
    const testing::TemporaryFile noPng(testing::BytesOf("GIF89a"));
    Bytes bytes = testing::pngSignature;
    const testing::TemporaryFile cut(bytes);
    testing::Append(bytes, testing::MakeChunk("IEND", {}));
    const testing::TemporaryFile noData(bytes);
    const testing::TemporaryFile right(WritePng(PngRecipe{}));
    {
        LoadPNG reader;
        EXPECT_FALSE(reader.OpenPNG(noPng.Path()));
        EXPECT_EQ(reader.ErrorNumber(), 1);
        EXPECT_TRUE(kivu::testing::IsOpen(noPng.Path()));
        EXPECT_FALSE(reader.OpenPNG(noData.Path()));
        EXPECT_EQ(reader.ErrorNumber(), 4);
        EXPECT_FALSE(kivu::testing::IsOpen(noPng.Path()));
        EXPECT_TRUE(kivu::testing::IsOpen(noData.Path()));
        EXPECT_FALSE(reader.OpenPNG(right.Path()));
        EXPECT_FALSE(kivu::testing::IsOpen(noData.Path()));
        EXPECT_FALSE(kivu::testing::IsOpen(right.Path()));
        EXPECT_FALSE(reader.OpenPNG(cut.Path()));
        EXPECT_EQ(reader.ErrorNumber(), 3);
        EXPECT_TRUE(kivu::testing::IsOpen(cut.Path()));
    }
    EXPECT_FALSE(kivu::testing::IsOpen(cut.Path()));
}

}  // namespace
}  // namespace kivu::png
