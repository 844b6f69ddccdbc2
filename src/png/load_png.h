#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "png/blending.h"
#include "png/bytes.h"
#include "png/drawing_target.h"
#include "png/header.h"
#include "png/inflate.h"
#include "png/picture.h"
#include "png/row_conversion.h"

namespace kivu::png {

// What the reader asks of the launcher around it.
struct LoadPNGHooks {
    // Shows a message box; at most once for each file. May be empty.
    std::function<void(std::string_view text)> showMessage;
    // 8-bit text of the system code page as UTF-8. If empty, WidenText serves.
    std::function<std::string(std::string_view bytes)> widenText;
    // Asked now and then while a file is decoded: true means that nobody wants the picture any
    // more, and nothing is drawn. May be empty.
    std::function<bool()> givenUp = {};
};

enum PngErrors : std::int32_t {
    NoError = 0,
    NoSignature = 1,
    ChunkBeyondFile = 3,
    NoImageData = 4,
};

// Shows a PNG file on a picture control: one call of OpenPNG reads, decodes and draws. An object
// serves one file at a time; targets that it was given must outlive their use.
class LoadPNG {
 public:
    explicit LoadPNG(LoadPNGHooks launcherHooks = {});
    LoadPNG(const LoadPNG&) = delete;
    LoadPNG& operator=(const LoadPNG&) = delete;

    // Reads fileName and draws it on PicBox. The outcome is in ErrorNumber; what can't be drawn
    // leaves the control as it was. The result is set only for a file that can't be opened, is no
    // regular file, is larger than any picture within the limits can be (1 GiB), or needs more
    // memory than there is. After errors
    // 1, 3 and 4 the file stays open until the next call or the object's end.
    std::error_code OpenPNG(const std::filesystem::path& fileName);

    // The image header, as the file has it.
    std::uint32_t Width() const { return header.width; }
    std::uint32_t Height() const { return header.height; }
    std::uint8_t Bitdepht() const { return header.bitDepth; }
    std::uint8_t ColorType() const { return header.colorType; }
    std::uint8_t Compression() const { return header.compression; }
    std::uint8_t Filter() const { return header.filter; }
    std::uint8_t Interlacing() const { return header.interlacing; }

    // Colour tables for the CreateBitmap calls. Entries that are not named are black.
    // Grey from black to white for 1, 2, 4 or 8 bits; returns its colours, three bytes each. Any
    // other number of bits returns nothing and leaves the table as it is.
    std::vector<std::uint8_t> InitColorTable_Grey(int bits);
    // Mode 0: white, black. Mode 1: black, white.
    void InitColorTable_1(int mode);
    // The two colours of a palette (red, green, blue each); with one, the other is black. A
    // palette of any other length gives black and white.
    void InitColorTable_1Palette(std::span<const std::uint8_t> colors);
    // Up to 256 colours of a palette.
    void InitColorTable_8(std::span<const std::uint8_t> colors);
    // Up to 16.
    void InitColorTable_4(std::span<const std::uint8_t> colors);

    // Make a bitmap for DrawBitmap from rows of that many bits per pixel, each padded to 4 bytes.
    // topDown: the first row is the top one, otherwise the bottom one. usedColors: entries of the
    // colour table that count, 0 for all. Bytes that data lacks are zeros. A size that is not
    // above 0, or beyond the reader's limits, makes no bitmap.
    void CreateBitmap_1(std::span<const std::uint8_t> data, int width, int height, bool topDown,
                        int usedColors = 0);
    void CreateBitmap_2(std::span<const std::uint8_t> data, int width, int height, bool topDown,
                        int usedColors = 0);
    void CreateBitmap_4(std::span<const std::uint8_t> data, int width, int height, bool topDown,
                        int usedColors = 0);
    void CreateBitmap_8(std::span<const std::uint8_t> data, int width, int height, bool topDown,
                        int usedColors = 0);
    // Draws the bitmap, if there is one, and gives it away. width and height: its size in pixels.
    // Scalierung: the control takes that size, unless setToBkgrnd is set. x, y: where the top left
    // pixel goes. setToBkgrnd: the control keeps its own size.
    void DrawBitmap(int width, int height, DrawingTarget* newPicBox, bool Scalierung, int x, int y,
                    bool setToBkgrnd);
    // bitsPerPixel: 24 (blue, green, red) or 32 (a fourth byte that is ignored).
    void CreateBitmap_24(std::span<const std::uint8_t> data, int width, int height, bool topDown,
                         int usedColors = 0, int bitsPerPixel = 24);
    // Five bits each for red, green and blue.
    void CreateBitmap_16(std::span<const std::uint8_t> data, int width, int height, bool topDown,
                         int usedColors = 0);

    std::int32_t ErrorNumber() const { return errorNumber; }
    bool HaveAlpha() const { return haveAlpha; }
    bool HaveTransparence() const { return haveTransparence; }
    // Whether the file's transparency data are honoured; true at first.
    void SetTrans(bool honour) { transparencyRequest = honour; }
    // Whether pictures with alpha are blended with their background; true at first.
    void SetAlpha(bool blend) { blendRequest = blend; }
    bool HasBKGDChunk() const { return hasBackground; }
    // Colour number, red in the lowest byte.
    std::uint32_t BkgdColor() const { return backgroundColor; }
    // Keyword, 0, text, 0 for each text chunk, as UTF-8. At most 16 MiB.
    const std::string& Text() const { return text; }
    // Keyword, 0, compressed bytes widened to text, 0. At most 16 MiB.
    const std::string& zText() const { return compressedText; }
    // dd.mm.yyyy hh:mm:ss, empty if the file doesn't say.
    const std::string& ModiTime() const { return time; }
    // 0 if the file doesn't say.
    double gama() const { return gamma / 100000.0; }
    // What alpha is blended with, from the picture's place on; null for a uniform background. If
    // it is PicBox itself, its back colour is the background.
    void BackgroundPicture(DrawingTarget* newPicBox) { backgroundPicture = newPicBox; }
    // A colour number to blend with where no background picture is set. While own is false the
    // file's own background colour serves.
    void SetOwnBkgndColor(std::uint32_t color, bool own) {
        ownBackground = own;
        ownColor = color;
    }
    void PicBox(DrawingTarget* newPicBox) { picBox = newPicBox; }
    // Places the picture at x, y (pixels) of a control that keeps its size. While place is false
    // the picture is at 0, 0, and the control takes its size.
    void SetToBkgrnd(bool place, int x, int y) {
        placeOnBackground = place;
        targetX = x;
        targetY = y;
    }

    // As OpenPNG, for a file that is in memory.
    std::error_code OpenBytes(ByteBuffer bytes);

 private:
    struct Chunk {
        std::string_view name;
        std::span<const std::uint8_t> payload;
        // The last payload that was not empty.
        std::span<const std::uint8_t> lastPayload;
    };

    void Reset();
    // The joined image data, which lie in bytes itself; nothing where no picture can be drawn.
    std::optional<std::span<std::uint8_t>> WalkChunks(std::span<std::uint8_t> bytes);
    void KeepChunk(const Chunk& chunk);
    void KeepHeader(std::span<const std::uint8_t> payload);
    void KeepBackground(std::span<const std::uint8_t> payload);
    void KeepTime(std::span<const std::uint8_t> payload);
    void KeepCompressedText(std::span<const std::uint8_t> payload);
    std::uint32_t WorkOutBackground(std::span<const std::uint8_t> background) const;
    std::uint32_t BackgroundChannel(std::uint16_t sample) const;
    std::uint32_t BackgroundGrey(std::uint32_t sample) const;
    void AppendText(std::string& to, std::span<const std::uint8_t> bytes) const;

    void Decode(std::span<std::uint8_t> imageData);
    bool GivenUp() const { return hooks.givenUp && hooks.givenUp(); }
    Picture DecodeInflated(std::span<std::uint8_t> rows);
    void DrawDecoded();
    void PrepareTable(bool transparent);
    void MakeEntriesTransparent();
    std::optional<ColorKey> TransparentColor() const;
    Backdrop PrepareBackdrop();
    void ReportTreeFailure();

    bool BeginBitmap(int width, int height);
    void CreateIndexed(unsigned bits, std::span<const std::uint8_t> data, int width, int height,
                       bool topDown, int usedColors);

    LoadPNGHooks hooks;
    std::ifstream file;
    Inflater inflater;

    ImageHeader header;
    bool headerSeen = false;
    std::vector<std::uint8_t> palette;
    std::int32_t errorNumber = NoError;
    bool blendRequest = true;
    bool haveAlpha = false;
    std::vector<std::uint8_t> transparency;
    bool haveTransparence = false;
    bool transparencyRequest = true;
    bool hasBackground = false;
    std::uint32_t backgroundColor = 0;
    std::string text;
    std::string time;
    std::string compressedText;
    std::uint32_t gamma = 0;
    int targetX = 0;
    int targetY = 0;
    DrawingTarget* backgroundPicture = nullptr;
    bool ownBackground = false;
    std::uint32_t ownColor = 0;
    DrawingTarget* picBox = nullptr;
    bool placeOnBackground = false;

    bool messageShown = false;
    PixelTable colorTable{};
    std::optional<Picture> bitmap;
};

}  // namespace kivu::png
