#pragma once

#include <QImage>
#include <QSize>

namespace kivu::view {

// The middle of a picture in the proportions of a place that it is to cover, over the same pixels.
QImage MiddleFor(const QImage& image, QSize place);

// As large as fits into the place without being distorted, and at least a pixel.
QSize Contained(QSize picture, QSize place);

// In that size, smooth. A picture that gets more than half as large again is first enlarged by the
// next whole factor without being smoothed: what old machines have drawn stays sharp.
QImage Sharp(const QImage& image, QSize size);

}  // namespace kivu::view
