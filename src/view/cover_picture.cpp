#include "view/cover_picture.h"

#include <memory>
#include <utility>

#include "view/pictures.h"

namespace kivu::view {

namespace {

struct Preloaded {
    std::string source;
    std::future<QImage> image;
};

Preloaded& ThePreloaded() {
    static Preloaded preloaded;
    return preloaded;
}

// A part of a picture over the same pixels, to be read alone.
QImage Part(const QImage& image, const QRect& part) {
    if (part == image.rect()) return image;
    auto owner = std::make_unique<QImage>(image);
    const uchar* begin =
        owner->constScanLine(part.top()) + static_cast<std::size_t>(part.left()) * sizeof(QRgb);
    return {begin,           part.width(),
            part.height(),   owner->bytesPerLine(),
            owner->format(), [](void* pixels) { delete static_cast<QImage*>(pixels); },
            owner.release()};
}

// Read in fewer pixels a PNG picture would take thrice the time: the toolkit's reader makes it
// smaller by slow means.
QImage LoadFitted(const std::string& source, QSize size) {
    return Covering(LoadPicture(DenseEnough(source, size.width())), size);
}

}  // namespace

void PreloadPicture(const std::string& source) {
    ThePreloaded() = {source, std::async(std::launch::async, LoadPicture, source)};
}

QImage Covering(QImage image, QSize size) {
    if (image.isNull() || size.isEmpty()) return {};
    if (image.depth() != 32) image.convertTo(QImage::Format_ARGB32_Premultiplied);
    // The part that is seen, so that no more than that is scaled.
    const QSize whole = image.size();
    const QSize part = size.scaled(whole, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    const QPoint corner((whole.width() - part.width()) / 2, (whole.height() - part.height()) / 2);
    QImage seen = Part(image, QRect(corner, part));
    if (part != size) {
        seen = seen.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    } else if (part != whole) {
        seen = seen.copy();
    }
    seen.convertTo(QImage::Format_ARGB32_Premultiplied);
    return seen;
}

void CoverPicture::Set(const forms::Picture& value) {
    picture = value;
    coming = {};
    taken = false;
    whole = {};
    wholeSource = {};
}

void CoverPicture::Prefetch(QSize size) {
    if (taken || picture.pixels || picture.source.empty() || size.isEmpty()) return;
    if (coming.valid() && comingSize == size) return;
    comingSize = size;
    Preloaded& preloaded = ThePreloaded();
    const std::string& source = picture.source;
    if (preloaded.image.valid() && preloaded.source == source &&
        DenseEnough(source, size.width()) == source) {
        coming = std::async(
            std::launch::async,
            [size](std::future<QImage> image) { return Covering(image.get(), size); },
            std::move(preloaded.image));
    } else {
        coming = std::async(std::launch::async, LoadFitted, source, size);
    }
}

void CoverPicture::LoadWhole(QSize size) {
    if (picture.pixels) {
        if (whole.isNull()) whole = FromBitmap(*picture.pixels);
        return;
    }
    if (picture.source.empty()) return;
    const std::string source = DenseEnough(picture.source, size.width());
    if (!whole.isNull() && source == wholeSource) return;
    whole = LoadPicture(source);
    wholeSource = source;
    if (whole.isNull()) picture = {};
}

QImage CoverPicture::Take(QSize size) {
    if (size.isEmpty()) return {};
    const bool first = !std::exchange(taken, true);
    if (coming.valid()) {
        QImage image = coming.get();
        if (comingSize == size) return image;
    } else if (first && !picture.pixels && !picture.source.empty()) {
        return LoadFitted(picture.source, size);
    }
    LoadWhole(size);
    return Covering(whole, size);
}

}  // namespace kivu::view
