#pragma once

#include <QImage>
#include <QPixmap>
#include <string>

#include "forms/types.h"

namespace kivu::view {

// A control's picture fitted to the size in which it is drawn. It is loaded when it is first
// drawn, and kept in that size.
class PictureCache {
 public:
    enum class Fit {
        stretch,  // fills the place
        contain,  // as large as fits into the place with its proportions
    };

    void Set(const forms::Picture& picture);
    // Device pixels. Null: there is no picture, or it cannot be loaded.
    const QPixmap& Scaled(QSize size, Fit fit = Fit::stretch);

 private:
    void Load();

    forms::Picture picture;
    bool loaded = false;
    QImage original;
    QPixmap scaled;
};

// A file that cannot be read, is no picture or is far too large gives a null image.
QImage LoadPicture(const std::string& source);

// A resource may come with twice the pixels as well: of the two the one that a picture drawn so
// wide needs to be sharp.
std::string DenseEnough(const std::string& source, int width);

QImage FromBitmap(const forms::Bitmap& bitmap);

}  // namespace kivu::view
