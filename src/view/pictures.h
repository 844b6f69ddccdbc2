#pragma once

#include <QImage>
#include <QPainter>
#include <memory>
#include <string>

#include "forms/types.h"

namespace kivu::view {

// A control's picture fitted to the size in which it is drawn. A resource is loaded when it is
// first drawn; pixels are drawn as they are, without a copy of their own where they fit.
class PictureCache {
 public:
    enum class Fit {
        stretch,  // fills the place
        cover,    // fills the place in its proportions; what sticks out is cut
        contain,  // as large as fits into the place in its proportions
    };

    void Set(const forms::Picture& picture);
    // Device pixels. Null: there is no picture, or it cannot be loaded.
    const QImage& Scaled(QSize size, Fit fit = Fit::stretch);
    // It has been asked for in a size since it was set.
    bool IsInUse() const { return !scaled.isNull(); }
    // What is contained stands at the top of the place, in its middle. `ratio` is that of the
    // screen; roughly: at once, for a place that will soon have another size.
    void Draw(QPainter& painter, const QRect& place, double ratio, Fit fit, bool roughly = false);

 private:
    void Load(int width);
    QImage Fitted(QSize size, Fit fit) const;

    forms::Picture picture;
    bool loaded = false;
    QImage original;
    QImage scaled;
    QSize scaledFor;
    Fit scaledAs = Fit::stretch;
};

// A resource; null for anything else, also for a file: those are not the window's to wait for.
QImage LoadPicture(const std::string& source);

// A resource may come with twice the pixels as well: of the two the one that a picture drawn so
// wide needs to be sharp.
std::string DenseEnough(const std::string& source, int width);

// Over the bitmap's own pixels, to be read alone. Null if some of them are missing.
QImage OverPixels(std::shared_ptr<const forms::Bitmap> bitmap);

}  // namespace kivu::view
