#include "view/pictures.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <algorithm>
#include <cstring>
#include <fstream>

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

std::string DenseEnough(const std::string& source, int width) {
    std::string dense = source + "@2x";
    if (!source.starts_with(":") || !QFile::exists(ToQt(dense))) return source;
    // A picture gets soft late.
    return width > QImageReader(ToQt(source)).size().width() * 1.3 ? dense : source;
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

void PictureCache::Set(const forms::Picture& value) {
    picture = value;
    loaded = false;
    original = {};
    scaled = {};
}

void PictureCache::Load() {
    loaded = true;
    if (picture.pixels) {
        original = FromBitmap(*picture.pixels);
    } else if (!picture.source.empty()) {
        original = LoadPicture(picture.source);
    }
}

const QPixmap& PictureCache::Scaled(QSize size, Fit fit) {
    if (!loaded) {
        if (!picture.pixels) picture.source = DenseEnough(picture.source, size.width());
        Load();
    }
    if (fit == Fit::contain && !original.isNull()) {
        size = original.size().scaled(size, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    }
    if (original.isNull() || size.isEmpty()) {
        scaled = {};
    } else if (scaled.size() != size) {
        QImage image = original;
        if (image.size() != size) {
            image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        scaled = QPixmap::fromImage(std::move(image));
    }
    return scaled;
}

}  // namespace kivu::view
