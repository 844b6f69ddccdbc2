#include "png/load_png.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <new>
#include <utility>

#include "png/decoder.h"

namespace kivu::png {
namespace {

constexpr std::array<std::uint8_t, 8> signature = {137, 'P', 'N', 'G', 13, 10, 26, 10};

// A picture of the greatest size has less than this in image data.
constexpr std::uintmax_t longestFile = std::uintmax_t{1} << 30;

// Length and name in front of a payload, and the check sum behind it, which is never compared.
constexpr std::size_t chunkHead = 8;
constexpr std::size_t chunkTail = 4;

constexpr std::uint32_t longestChunk = std::numeric_limits<std::int32_t>::max();

// The method and flag bytes in front of the deflated data.
constexpr std::size_t zlibHead = 2;

std::error_code OpenRegularFile(std::ifstream& file, const std::filesystem::path& fileName,
                                std::uintmax_t& size) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(fileName, error)) {
        return error ? error : std::make_error_code(std::errc::invalid_argument);
    }
    size = std::filesystem::file_size(fileName, error);
    if (error) return error;
    if (size > longestFile) return std::make_error_code(std::errc::file_too_large);
    errno = 0;
    file.open(fileName, std::ios::in | std::ios::binary);
    if (file.is_open()) return {};
    // The stream itself knows no causes.
    return errno != 0 ? std::error_code(errno, std::generic_category())
                      : std::make_error_code(std::errc::io_error);
}

ByteBuffer ReadAll(std::ifstream& file, std::uintmax_t size) {
    ByteBuffer bytes(size);
    file.read(reinterpret_cast<char*>(bytes.Data()), static_cast<std::streamsize>(size));
    bytes.CutTo(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

}  // namespace

LoadPNG::LoadPNG(LoadPNGHooks launcherHooks)
    : hooks(std::move(launcherHooks)),
      inflater([this] { ReportTreeFailure(); }, [this] { return GivenUp(); }) {
}

std::error_code LoadPNG::OpenPNG(const std::filesystem::path& fileName) {
    Reset();
    std::uintmax_t size = 0;
    if (const std::error_code error = OpenRegularFile(file, fileName, size)) return error;
    try {
        ByteBuffer bytes = ReadAll(file, size);
        if (const auto imageData = WalkChunks(bytes.Span())) {
            file.close();
            Decode(*imageData);
        }
    } catch (const std::bad_alloc&) {
        return std::make_error_code(std::errc::not_enough_memory);
    }
    DrawDecoded();
    return {};
}

std::error_code LoadPNG::OpenBytes(ByteBuffer bytes) {
    Reset();
    try {
        if (const auto imageData = WalkChunks(bytes.Span())) Decode(*imageData);
    } catch (const std::bad_alloc&) {
        return std::make_error_code(std::errc::not_enough_memory);
    }
    DrawDecoded();
    return {};
}

void LoadPNG::Reset() {
    file.close();
    file.clear();
    headerSeen = false;
    hasBackground = false;
    backgroundColor = 0;
    haveTransparence = false;
    errorNumber = PngErrors::NoError;
    messageShown = false;
    bitmap.reset();
}

std::optional<std::span<std::uint8_t>> LoadPNG::WalkChunks(std::span<std::uint8_t> bytes) {
    if (bytes.size() < signature.size() ||
        !std::equal(signature.begin(), signature.end(), bytes.begin())) {
        errorNumber = PngErrors::NoSignature;
        return std::nullopt;
    }
    std::span<std::uint8_t> imageData;
    std::span<const std::uint8_t> lastPayload;
    std::size_t at = signature.size();
    for (;;) {
        errorNumber = PngErrors::ChunkBeyondFile;
        if (bytes.size() - at < chunkHead) return std::nullopt;
        const std::uint32_t length = NetworkLong(&bytes[at]);
        const std::string_view name(reinterpret_cast<const char*>(&bytes[at + 4]), 4);
        at += chunkHead;
        if (length > longestChunk || length > bytes.size() - at) return std::nullopt;
        errorNumber = PngErrors::NoError;

        std::span<std::uint8_t> payload = bytes.subspan(at, length);
        at += std::min<std::size_t>(length + chunkTail, bytes.size() - at);
        if (name == "IEND") break;
        if (name == "IDAT" && length != 0) {
            // Joined in place: what lies between the pieces has been looked at already.
            std::uint8_t* end = imageData.data() + imageData.size();
            if (imageData.empty()) {
                imageData = payload;
            } else {
                std::memmove(end, payload.data(), length);
                payload = {end, length};
                imageData = {imageData.data(), imageData.size() + length};
            }
        }
        if (length != 0) lastPayload = payload;
        KeepChunk({name, payload, lastPayload});
    }
    if (imageData.empty()) {
        errorNumber = PngErrors::NoImageData;
        return std::nullopt;
    }
    return imageData;
}

void LoadPNG::Decode(std::span<std::uint8_t> imageData) {
    haveAlpha = false;
    if (!headerSeen || !IsDrawable(header)) return;
    haveAlpha = HasAlphaChannel(header);
    std::span<std::uint8_t> rows = imageData.subspan(std::min(zlibHead, imageData.size()));
    ByteBuffer inflated;
    if (header.compression == 0) {
        inflated = inflater.Inflate(rows, ExpectedBytes(header)).bytes;
        rows = inflated.Span();
    }
    if (GivenUp()) return;
    bitmap = DecodeInflated(rows);
    if (GivenUp()) bitmap.reset();
}

void LoadPNG::DrawDecoded() {
    if (!bitmap) return;
    DrawBitmap(bitmap->Width(), bitmap->Height(), picBox, true, placeOnBackground ? targetX : 0,
               placeOnBackground ? targetY : 0, placeOnBackground);
}

Picture LoadPNG::DecodeInflated(std::span<std::uint8_t> rows) {
    const bool transparent = !haveAlpha && haveTransparence && transparencyRequest;
    AlphaUse alphaUse = AlphaUse::None;
    if (transparent || (haveAlpha && blendRequest)) {
        alphaUse = AlphaUse::Blend;
    } else if (haveAlpha) {
        alphaUse = AlphaUse::Ignore;
    }
    PrepareTable(transparent);
    std::optional<ColorKey> key;
    if (transparent) key = TransparentColor();

    Backdrop backdrop(opaqueBlack);
    if (alphaUse == AlphaUse::Blend) backdrop = PrepareBackdrop();
    // Over one colour a table can be blended in place of the pixels that it gives.
    if (transparent && backdrop.IsUniform() && IsTabled(header)) {
        for (Pixel& entry : colorTable) {
            entry = BlendPixel(entry, backdrop.Color());
        }
        alphaUse = AlphaUse::None;
    }
    return DecodeRows(header, rows, RowConverter(header, colorTable, key), {alphaUse, backdrop},
                      [this] { return GivenUp(); });
}

void LoadPNG::PrepareTable(bool transparent) {
    if (!IsTabled(header)) return;
    if (header.colorType == ColorTypes::Grey) {
        InitColorTable_Grey(header.bitDepth);
    } else if (header.bitDepth == 1 && !transparent) {
        InitColorTable_1Palette(palette);
    } else if (header.bitDepth == 4) {
        InitColorTable_4(palette);
    } else {
        InitColorTable_8(palette);
    }
    if (transparent) MakeEntriesTransparent();
}

void LoadPNG::MakeEntriesTransparent() {
    if (header.colorType == ColorTypes::Palette) {
        const std::size_t count = std::min(transparency.size(), colorTable.size());
        for (std::size_t i = 0; i < count; ++i) {
            colorTable[i] = (colorTable[i] & ~opaqueBlack) | Pixel{transparency[i]} << 24;
        }
        return;
    }
    const std::optional<ColorKey> key = TransparentColor();
    if (key && key->samples[0] >> header.bitDepth == 0) {
        colorTable[key->samples[0]] &= ~opaqueBlack;
    }
}

std::optional<ColorKey> LoadPNG::TransparentColor() const {
    const std::size_t samples = header.colorType == ColorTypes::Rgb ? 3 : 1;
    if (transparency.size() < samples * 2) return std::nullopt;
    ColorKey key;
    for (std::size_t i = 0; i < samples; ++i) {
        key.samples[i] = NetworkShort(&transparency[i * 2]);
    }
    return key;
}

Backdrop LoadPNG::PrepareBackdrop() {
    if (backgroundPicture == nullptr) {
        return Backdrop(PixelOfColor(ownBackground ? ownColor : backgroundColor));
    }
    // The target shows the last picture still, which must not shine through this one.
    if (backgroundPicture == picBox) return Backdrop(PixelOfColor(picBox->BackColor()));

    // Twips that a background picture gets beyond the image that it is too small for.
    constexpr int reserve = 100;
    const int twips = backgroundPicture->TwipsPerPixel();
    const Extent image{static_cast<int>(header.width) * twips,
                       static_cast<int>(header.height) * twips};
    const Extent old = backgroundPicture->OuterSize();
    Extent grown = old;
    if (old.width < image.width) grown.width = image.width + reserve;
    if (old.height < image.height) grown.height = image.height + reserve;
    if (grown.width != old.width || grown.height != old.height) {
        backgroundPicture->SetOuterSize(grown);
    }
    return placeOnBackground ? Backdrop(*backgroundPicture, targetX, targetY)
                             : Backdrop(*backgroundPicture, 0, 0);
}

void LoadPNG::ReportTreeFailure() {
    if (std::exchange(messageShown, true) || !hooks.showMessage) return;
    hooks.showMessage("Error in tree creation (Static)");
}

}  // namespace kivu::png
