#include "view/form_surface.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <utility>

#include "view/colors.h"

namespace kivu::view {

QRegion RoundedRegion(QSize size, int radius) {
    const int r = std::min({radius, size.width() / 2, size.height() / 2});
    QRegion region(0, r, size.width(), size.height() - 2 * r);
    for (int y = 0; y < r; ++y) {
        const double up = r - (y + 1);
        const int inset = static_cast<int>(std::floor(r - std::sqrt(double(r) * r - up * up)));
        const int width = size.width() - 2 * inset;
        region += QRect(inset, y, width, 1);
        region += QRect(inset, size.height() - 1 - y, width, 1);
    }
    return region;
}

FormSurface::FormSurface(const forms::Form& form) : form(form) {
    // Corners that blend into what lies behind the window, where the screen can do that.
    setAttribute(Qt::WA_TranslucentBackground);
    setMouseTracking(true);
    TakePicture();
}

void FormSurface::TakePicture() {
    picture.Set(form.GetPicture());
    picture.Prefetch();
    Renew();
}

void FormSurface::Renew() {
    face = {};
    CutCorners();
    update();
}

void FormSurface::SetComposited(bool value) {
    if (std::exchange(composited, value) != value) Renew();
}

int FormSurface::Radius() const {
    const bool square = form.HasFrame() || form.State() == forms::WindowState::maximized;
    return square ? 0 : std::max(0, form.CornerRadius());
}

void FormSurface::resizeEvent(QResizeEvent*) {
    Renew();
}

void FormSurface::CutCorners() {
    const int radius = Radius();
    if (radius > 0) {
        setMask(RoundedRegion(size(), radius));
    } else if (!mask().isEmpty()) {
        clearMask();
    }
}

void FormSurface::Paint() {
    const double ratio = devicePixelRatioF();
    face = QPixmap((QSizeF(size()) * ratio).toSize());
    face.setDevicePixelRatio(ratio);
    face.fill(Qt::transparent);
    QPainter painter(&face);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole(rect());
    const QColor back = ToQt(form.BackColor());
    const QPixmap& pixels = picture.Scaled(face.size(), PictureCache::Fit::cover);
    QBrush brush;
    if (pixels.isNull()) {
        QLinearGradient gradient(whole.topLeft(), whole.bottomLeft());
        gradient.setColorAt(0, Mix(back, Qt::white, 0.07));
        gradient.setColorAt(0.25, back);
        gradient.setColorAt(1, Mix(back, Qt::black, 0.42));
        brush = gradient;
    } else {
        brush.setTexture(pixels);
        brush.setTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
    }
    const double radius = Radius();
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    if (composited) {
        painter.drawRoundedRect(whole, radius, radius);
    } else {
        // The window's mask cuts the corners.
        painter.drawRect(whole);
    }
    if (form.HasFrame() || form.State() == forms::WindowState::maximized) return;
    // A hairline sets the window off from what lies behind it.
    painter.setPen(QPen(QColor(255, 255, 255, 56), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(whole.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
}

void FormSurface::paintEvent(QPaintEvent* event) {
    const QSize wanted = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (face.size() != wanted) Paint();
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const double ratio = face.devicePixelRatio();
    for (const QRect& part : event->region()) {
        const QRectF source(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio);
        painter.drawPixmap(QRectF(part), face, source);
    }
}

}  // namespace kivu::view
