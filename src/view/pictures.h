#pragma once

#include <QImage>
#include <QPixmap>
#include <future>
#include <string>

#include "forms/types.h"

namespace kivu::view {

// A control's picture in the size in which it is drawn. It is loaded when it is first drawn, and
// kept in that size.
class PictureCache {
 public:
    enum class Fit {
        stretch,  // fills the place
        cover,    // fills the place and keeps its proportions; what sticks out is cut
        contain,  // as large as fits into the place with its proportions
    };

    void Set(const forms::Picture& picture);
    // Begins to load on another thread a picture that will be drawn soon.
    void Prefetch();
    // Device pixels. Null: there is no picture, or it cannot be loaded.
    const QPixmap& Scaled(QSize size, Fit fit);

 private:
    void Load();
    void TakeDense(QSize wanted);

    forms::Picture picture;
    bool loaded = false;
    std::future<QImage> coming;
    QImage original;
    QPixmap scaled;
};

// Begins to load on another thread the picture that the first control to prefetch this source will
// take: for a program whose window is not built yet.
void PreloadPicture(const std::string& source);

// A file that cannot be read, is no picture or is far too large gives a null image.
QImage LoadPicture(const std::string& source);

}  // namespace kivu::view
