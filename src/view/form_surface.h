#pragma once

#include <QWidget>

#include "forms/form.h"
#include "view/pictures.h"

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
    void Paint();
    void CutCorners();

    const forms::Form& form;
    PictureCache picture;
    bool composited = true;
    QPixmap face;  // the whole surface in device pixels
};

// The pixels of a rounded rectangle that its line touches at all.
QRegion RoundedRegion(QSize size, int radius);

}  // namespace kivu::view
