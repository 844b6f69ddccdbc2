#include "view/pictures.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <utility>

#include "view/scaling.h"
#include "view/text.h"

namespace kivu::view {

namespace {

bool IsResource(const std::string& source) {
    return source.starts_with(":");
}

}  // namespace

QImage LoadPicture(const std::string& source) {
    QFile resource(ToQt(source));
    if (!IsResource(source) || !resource.open(QIODevice::ReadOnly)) return {};
    // Not by its name, which would give pixels of a dense one another size.
    QByteArray bytes = resource.readAll();
    QBuffer buffer(&bytes);
    return QImageReader(&buffer).read();
}

std::string DenseEnough(const std::string& source, int width) {
    std::string dense = source + "@2x";
    if (!IsResource(source) || !QFile::exists(ToQt(dense))) return source;
    // A picture gets soft late.
    return width > QImageReader(ToQt(source)).size().width() * 1.3 ? dense : source;
}

QImage OverPixels(std::shared_ptr<const forms::Bitmap> bitmap) {
    if (!bitmap || bitmap->width <= 0 || bitmap->height <= 0) return {};
    const auto needed =
        static_cast<std::size_t>(bitmap->width) * static_cast<std::size_t>(bitmap->height);
    if (bitmap->pixels.size() < needed) return {};
    using Owner = std::shared_ptr<const forms::Bitmap>;
    const auto* pixels = reinterpret_cast<const uchar*>(bitmap->pixels.data());
    const auto format = bitmap->opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32;
    const int width = bitmap->width, height = bitmap->height;
    return {pixels,
            width,
            height,
            width * qsizetype{sizeof(std::uint32_t)},
            format,
            [](void* owner) { delete static_cast<Owner*>(owner); },
            new Owner(std::move(bitmap))};
}

void PictureCache::Set(const forms::Picture& value) {
    picture = value;
    loaded = false;
    original = {};
    scaled = {};
}

void PictureCache::Load(int width) {
    if (std::exchange(loaded, true)) return;
    original = picture.pixels ? OverPixels(picture.pixels)
                              : LoadPicture(DenseEnough(picture.source, width));
}

QImage PictureCache::Fitted(QSize size, Fit fit) const {
    const QImage from = fit == Fit::cover ? MiddleFor(original, size) : original;
    if (from.isNull() || size.isEmpty()) return {};
    if (fit == Fit::contain) size = Contained(from.size(), size);
    QImage image = picture.pixels
                       ? Sharp(from, size)
                       : from.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // What the screen takes without another look at each pixel.
    if (image.hasAlphaChannel()) image.convertTo(QImage::Format_ARGB32_Premultiplied);
    return image;
}

const QImage& PictureCache::Scaled(QSize size, Fit fit) {
    Load(size.width());
    if (scaled.isNull() || scaledFor != size || scaledAs != fit) {
        scaled = Fitted(size, fit);
        scaledFor = size;
        scaledAs = fit;
    }
    return scaled;
}

void PictureCache::Draw(QPainter& painter, const QRect& place, double ratio, Fit fit,
                        bool roughly) {
    const QSize pixels = (QSizeF(place.size()) * ratio).toSize();
    Load(pixels.width());
    QImage image = roughly ? original : Scaled(pixels, fit);
    if (roughly && fit == Fit::cover) image = MiddleFor(original, pixels);
    if (image.isNull()) return;
    QRectF to(place);
    if (fit == Fit::contain) {
        const QSizeF shown(roughly ? Contained(image.size(), pixels) : image.size());
        to.setSize(shown / ratio);
        to.moveLeft(place.left() + (place.width() - to.width()) / 2);
    }
    painter.drawImage(to, image, QRectF(image.rect()));
}

}  // namespace kivu::view
