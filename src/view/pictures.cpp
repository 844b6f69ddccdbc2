#include "view/pictures.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>

#include "view/text.h"

namespace kivu::view {

namespace {

constexpr std::streamoff largestFile = 64 << 20;
constexpr int largestSide = 4096;  // device pixels; more is never shown

QByteArray ReadSource(const std::string& source) {
    if (source.starts_with(":")) {
        QFile resource(ToQt(source));
        return resource.open(QIODevice::ReadOnly) ? resource.readAll() : QByteArray();
    }
    // Not through the toolkit's file names: these keep every byte of a name.
    std::ifstream file(source, std::ios::binary | std::ios::ate);
    const std::streamoff size = file ? std::streamoff(file.tellg()) : 0;
    if (size <= 0 || size > largestFile) return {};
    QByteArray bytes(static_cast<qsizetype>(size), Qt::Uninitialized);
    file.seekg(0);
    if (!file.read(bytes.data(), size)) return {};
    return bytes;
}

QImage FromBitmap(const forms::Bitmap& bitmap) {
    const auto needed = static_cast<std::size_t>(std::max(0, bitmap.width)) *
                        static_cast<std::size_t>(std::max(0, bitmap.height));
    if (needed == 0 || bitmap.pixels.size() < needed) return {};
    QImage image(bitmap.width, bitmap.height, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        const auto width = static_cast<std::size_t>(bitmap.width);
        std::memcpy(image.scanLine(y), bitmap.pixels.data() + static_cast<std::size_t>(y) * width,
                    width * sizeof(std::uint32_t));
    }
    return image;
}

}  // namespace

QImage LoadPicture(const std::string& source) {
    QByteArray bytes = ReadSource(source);
    if (bytes.isEmpty()) return {};
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > largestSide || size.height() > largestSide) {
        reader.setScaledSize(size.scaled(largestSide, largestSide, Qt::KeepAspectRatio));
    }
    return reader.read();
}

namespace {

struct Preloaded {
    std::string source;
    std::future<QImage> image;
};

Preloaded& ThePreloaded() {
    static Preloaded preloaded;
    return preloaded;
}

}  // namespace

void PreloadPicture(const std::string& source) {
    ThePreloaded() = {source, std::async(std::launch::async, LoadPicture, source)};
}

void PictureCache::Set(const forms::Picture& value) {
    picture = value;
    loaded = false;
    coming = {};
    original = {};
    scaled = {};
}

void PictureCache::Prefetch() {
    if (loaded || picture.pixels || picture.source.empty() || coming.valid()) return;
    Preloaded& preloaded = ThePreloaded();
    if (preloaded.image.valid() && preloaded.source == picture.source) {
        coming = std::move(preloaded.image);
    } else {
        coming = std::async(std::launch::async, LoadPicture, picture.source);
    }
}

void PictureCache::TakeDense(QSize wanted) {
    // Resources may come with twice the pixels as well; soft pictures need them late.
    const bool coarse = wanted.width() > original.width() * 1.3;
    const std::string dense = picture.source + "@2x";
    if (!coarse || !picture.source.starts_with(":") || !QFile::exists(ToQt(dense))) return;
    picture.source = dense;
    original = LoadPicture(dense);
}

void PictureCache::Load() {
    loaded = true;
    if (coming.valid()) {
        original = coming.get();
    } else if (picture.pixels) {
        original = FromBitmap(*picture.pixels);
    } else if (!picture.source.empty()) {
        original = LoadPicture(picture.source);
    }
}

const QPixmap& PictureCache::Scaled(QSize size, Fit fit) {
    if (!loaded) {
        Load();
        if (!original.isNull()) TakeDense(size);
    }
    if (fit == Fit::contain && !original.isNull()) {
        size = original.size().scaled(size, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    }
    if (original.isNull() || size.isEmpty()) {
        scaled = {};
    } else if (scaled.size() != size) {
        QImage image = original;
        if (fit == Fit::cover && image.size() != size) {
            // The part that is seen is cut out first, so that no more than that is scaled.
            const QSize part = size.scaled(image.size(), Qt::KeepAspectRatio);
            image = image.copy((image.width() - part.width()) / 2,
                               (image.height() - part.height()) / 2, part.width(), part.height());
        }
        if (image.size() != size) {
            image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        scaled = QPixmap::fromImage(std::move(image));
    }
    return scaled;
}

}  // namespace kivu::view
