#include "view/scaling.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace kivu::view {

namespace {

constexpr double largestSmoothGrowth = 1.5;

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

}  // namespace

QImage MiddleFor(const QImage& image, QSize place) {
    if (image.isNull() || place.isEmpty()) return {};
    const QSize whole = image.size();
    const QSize part = place.scaled(whole, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    const QPoint corner((whole.width() - part.width()) / 2, (whole.height() - part.height()) / 2);
    // Parts begin at whole pixels of four bytes.
    if (image.depth() == 32) return Part(image, QRect(corner, part));
    return image.copy(QRect(corner, part));
}

QSize Contained(QSize picture, QSize place) {
    return picture.scaled(place, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QImage Sharp(const QImage& image, QSize size) {
    if (image.isNull() || size.isEmpty()) return {};
    const double across = double(size.width()) / image.width();
    const double down = double(size.height()) / image.height();
    const double least = std::min(across, down), most = std::max(across, down);
    QImage from = image;
    // One that is distorted so much has no squares to keep, and might take any memory on the way.
    constexpr double mostDistortion = 2;
    if (least > largestSmoothGrowth && most < mostDistortion * least) {
        const int factor = static_cast<int>(std::ceil(most));
        from = image.scaled(image.size() * factor, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    }
    if (from.size() == size) return from;
    return from.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace kivu::view
