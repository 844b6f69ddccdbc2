#pragma once

#include <QImage>
#include <future>

#include "forms/types.h"

namespace kivu::view {

// A picture that fills a place whole and keeps its proportions; what sticks out is cut. The place
// is a window's, so that the picture takes many pixels: who draws it gets them as his own, and the
// whole picture is kept only while the place changes its size.
class CoverPicture {
 public:
    void Set(const forms::Picture& picture);
    // Begins to load and to fit it on another thread for a place that will be drawn soon.
    void Prefetch(QSize size);
    // The picture for a place of that many device pixels, in premultiplied ARGB, or in RGB where it
    // hides all that lies below. Null: there is no picture, or it cannot be loaded. Roughly: at
    // once, for a place that will soon have another size.
    QImage Take(QSize size, bool roughly = false);
    // The place keeps its size: the whole picture goes, and is loaded again for another size.
    void Rest() { whole = {}; }
    bool KeepsWhole() const { return !whole.isNull(); }

 private:
    void LoadWhole(QSize size);

    forms::Picture picture;
    std::future<QImage> coming;
    QSize comingSize;
    bool taken = false;
    QImage whole;
    std::string wholeSource;
};

// Begins to load on another thread the picture that the first control to prefetch this source will
// take: for a program whose window is not built yet.
void PreloadPicture(const std::string& source);

// The middle of a picture, as large as a place of that size shows of it, in the place's pixels.
QImage Covering(QImage image, QSize size, bool roughly = false);

}  // namespace kivu::view
