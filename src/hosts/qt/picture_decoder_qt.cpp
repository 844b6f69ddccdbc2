#include "hosts/qt/picture_decoder_qt.h"

#include <QImage>
#include <QImageReader>
#include <algorithm>
#include <cstring>
#include <new>

#include "hosts/qt/bounded_bytes.h"
#include "text/picture_format.h"

namespace kivu::hosts {

namespace {

using text::PictureFormat;

constexpr int longestSide = 32767;
constexpr qint64 mostPixels = qint64{1} << 26;
// Of one picture: so many pixels of 16 bits for each colour.
constexpr int mostMegabytes = 512;

const char* ReaderOf(PictureFormat format) {
    switch (format) {
        case PictureFormat::png:
            return "png";
        case PictureFormat::jpeg:
            return "jpeg";
        case PictureFormat::gif:
            return "gif";
        case PictureFormat::bmp:
            return "bmp";
        case PictureFormat::ico:
            return "ico";
        case PictureFormat::webp:
            return "webp";
    }
    return "";
}

bool IsWithinLimits(QSize size) {
    return !size.isEmpty() && size.width() <= longestSide && size.height() <= longestSide &&
           qint64{size.width()} * size.height() <= mostPixels;
}

// An icon's file holds it in several sizes.
void GoToLargest(QImageReader& reader) {
    constexpr int mostLookedAt = 64;
    const int count = std::min(reader.imageCount(), mostLookedAt);
    int best = 0, largest = 0;
    for (int i = 0; i < count; ++i) {
        if (!reader.jumpToImage(i)) continue;
        const QSize size = reader.size();
        if (size.width() * size.height() <= largest) continue;
        largest = size.width() * size.height();
        best = i;
    }
    reader.jumpToImage(best);
}

bool IsPlain(QImage::Format format) {
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32;
}

std::size_t PixelsOf(QSize size) {
    return static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
}

// `image` lies over the pixels of `picture`, or the reader has made one of its own.
void TakePixels(QImage& image, bool isJpeg, platform::DecodedPicture& picture) {
    picture.width = image.width();
    picture.height = image.height();
    const bool own = image.constBits() == reinterpret_cast<const uchar*>(picture.pixels.data());
    if (own && image.format() == QImage::Format_ARGB32) return;
    if (own && image.format() == QImage::Format_RGB32) {
        // Readers may leave the fourth byte as it is; that of JPEG files sets it.
        if (isJpeg) return;
        for (std::uint32_t& pixel : picture.pixels)
            pixel |= 0xff000000U;
        return;
    }
    image.convertTo(QImage::Format_ARGB32);
    picture.pixels.resize(PixelsOf(image.size()));
    const auto rowPixels = static_cast<std::size_t>(image.width());
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(picture.pixels.data() + static_cast<std::size_t>(y) * rowPixels,
                    image.constScanLine(y), rowPixels * sizeof(std::uint32_t));
}

std::optional<platform::DecodedPicture> Read(QImageReader& reader, int largestSide,
                                             const BoundedBytes& file) {
    QSize size = reader.size();
    if (!IsWithinLimits(size)) return std::nullopt;
    if (largestSide > 0 && std::max(size.width(), size.height()) > largestSide) {
        size = size.scaled(largestSide, largestSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
        reader.setScaledSize(size);
    }
    platform::DecodedPicture picture;
    QImage image;
    if (IsPlain(reader.imageFormat())) {
        // Most readers write into an image of the right kind that they are given.
        picture.pixels.resize(PixelsOf(size));
        image = QImage(reinterpret_cast<uchar*>(picture.pixels.data()), size.width(), size.height(),
                       size.width() * qsizetype{sizeof(std::uint32_t)}, reader.imageFormat());
    }
    if (!reader.read(&image) || image.isNull() || file.IsOver()) return std::nullopt;
    TakePixels(image, reader.format() == "jpeg", picture);
    return picture;
}

}  // namespace

QtPictureDecoder::QtPictureDecoder(std::chrono::milliseconds longest) : longest(longest) {
    QImageReader::setAllocationLimit(mostMegabytes);
}

std::optional<platform::DecodedPicture> QtPictureDecoder::Decode(
    std::string_view bytes, int largestSide, const std::atomic<bool>& cancelled) {
    const auto format = text::PictureFormatOf(bytes);
    if (!format) return std::nullopt;
    BoundedBytes file(bytes, longest, cancelled);
    QImageReader reader(&file, ReaderOf(*format));
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    if (*format == PictureFormat::ico) GoToLargest(reader);
    try {
        return Read(reader, largestSide, file);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

}  // namespace kivu::hosts
