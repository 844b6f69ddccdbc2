#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>

#include "forms/form.h"
#include "view/cover_picture.h"

namespace kivu::view {

// The window's own face: its picture, or a gradient in its back colour, with smooth round corners.
class FormSurface : public QWidget {
 public:
    explicit FormSurface(const forms::Form& form);

    void TakePicture();
    // The face has to be made anew: another colour, other corners.
    void Renew();
    // False: what is not drawn whole would be black, so that the corners are cut and not smooth.
    void SetComposited(bool value);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    int Radius() const;
    QSize DevicePixels(QSize size) const;
    QImage Gradient(QSize size) const;
    void Paint();
    void CutCorners();

    const forms::Form& form;
    CoverPicture picture;
    QTimer rest;  // since the last new face
    bool composited = true;
    QImage face;  // the whole surface in device pixels
};

// The pixels of a rounded rectangle that its line touches at all.
QRegion RoundedRegion(QSize size, int radius);

}  // namespace kivu::view
