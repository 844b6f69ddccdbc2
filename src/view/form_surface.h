#pragma once

#include <QColor>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include "forms/form.h"
#include "view/cover_picture.h"

namespace kivu::view {

// A hairline sets a window off from what lies behind it.
inline const QColor windowEdge(255, 255, 255, 56);

// The window's own face: its picture, or a gradient in its back colour, with smooth round corners.
class FormSurface : public QWidget {
 public:
    explicit FormSurface(const forms::Form& form);

    void TakePicture();
    // The face has to be made anew: another size, other corners.
    void Renew();
    // The back colour lies below the picture, which keeps its size.
    void TakeColors();
    // False: what is not drawn whole would be black, so that the corners are cut and not smooth.
    void SetComposited(bool value);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    int Radius() const;
    QSize DevicePixels(QSize size) const;
    QImage Gradient(QSize size) const;
    void FitPicture(QSize size);
    void Compose(QSize size);
    void Paint();
    void CutCorners();

    const forms::Form& form;
    CoverPicture picture;
    QTimer rest;    // since the last new face
    QTimer smooth;  // since the last new size
    bool composited = true;
    bool hasPicture = false;  // that can be shown
    // In device pixels.
    QImage fitted;  // the picture; null where the face has it, or there is none
    QImage face;    // the whole surface
};

// The pixels of a rounded rectangle that its line touches at all.
QRegion RoundedRegion(QSize size, int radius);

}  // namespace kivu::view
