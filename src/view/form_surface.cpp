#include "view/form_surface.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <utility>

#include "view/colors.h"
#include "view/geometry.h"

namespace kivu::view {

namespace {
// A window that is being dragged larger has a new face more often.
constexpr int restAfter = 3000;  // ms
// Fewer frames a second than that are no dragging any more.
constexpr int smoothAfter = 100;  // ms
}  // namespace

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
    rest.setSingleShot(true);
    rest.setInterval(restAfter);
    QObject::connect(&rest, &QTimer::timeout, this, [this] { picture.Rest(); });
    smooth.setSingleShot(true);
    smooth.setInterval(smoothAfter);
    QObject::connect(&smooth, &QTimer::timeout, this, [this] { Renew(); });
    TakePicture();
}

void FormSurface::TakePicture() {
    picture.Set(form.GetPicture());
    picture.Prefetch(DevicePixels(isVisible() ? size() : PixelRect(form).size()));
    smooth.stop();
    Renew();
}

void FormSurface::TakeColors() {
    // What hides the colour looks as it did.
    const bool hidden = !face.isNull() && fitted.isNull() && hasPicture;
    if (!hidden && !face.isNull()) Compose(face.size());
    update();
}

QSize FormSurface::DevicePixels(QSize pixels) const {
    return (QSizeF(pixels) * devicePixelRatioF()).toSize();
}

void FormSurface::Renew() {
    fitted = {};
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
    if (!face.isNull()) smooth.start();
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

// Each row has one colour, which is worked out in a picture of one column.
QImage FormSurface::Gradient(QSize pixels) const {
    QImage column(1, pixels.height(), QImage::Format_ARGB32_Premultiplied);
    const QColor back = ToQt(form.BackColor());
    QLinearGradient gradient(0, 0, 0, pixels.height());
    gradient.setColorAt(0, Mix(back, Qt::white, 0.07));
    gradient.setColorAt(0.25, back);
    // A light one stays light: what is written and drawn on it is dark.
    gradient.setColorAt(1, Mix(back, Qt::black, IsDark(back) ? 0.42 : 0.1));
    QPainter painter(&column);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(column.rect(), gradient);
    painter.end();
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        const QRgb color = *reinterpret_cast<const QRgb*>(column.constScanLine(y));
        std::fill_n(reinterpret_cast<QRgb*>(image.scanLine(y)), image.width(), color);
    }
    return image;
}

void FormSurface::FitPicture(QSize size) {
    fitted = picture.Take(size, smooth.isActive());
    hasPicture = !fitted.isNull();
    if (picture.KeepsWhole()) rest.start();
}

// So many pixels are worth to be there once: where the picture hides the colour, all is painted
// into its own.
void FormSurface::Compose(QSize size) {
    if (!hasPicture) {
        face = Gradient(size);
    } else if (!fitted.hasAlphaChannel()) {
        face = std::exchange(fitted, {});
        face.convertTo(QImage::Format_ARGB32_Premultiplied);
    } else {
        face = QImage(size, QImage::Format_ARGB32_Premultiplied);
        face.fill(ToQt(form.BackColor()));
        QPainter(&face).drawImage(0, 0, fitted);
    }
    Paint();
}

void FormSurface::Paint() {
    face.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&face);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole(rect());
    const double radius = Radius();
    painter.setPen(Qt::NoPen);
    // Otherwise the window's mask cuts the corners.
    if (composited && radius > 0) {
        QPainterPath outside;
        outside.addRect(whole);
        outside.addRoundedRect(whole, radius, radius);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        painter.fillPath(outside, Qt::black);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    if (form.HasFrame() || form.State() == forms::WindowState::maximized) return;
    painter.setPen(QPen(windowEdge, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(whole.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
}

void FormSurface::paintEvent(QPaintEvent* event) {
    const QSize wanted = DevicePixels(size());
    if (face.size() != wanted) {
        FitPicture(wanted);
        Compose(wanted);
    }
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const double ratio = face.devicePixelRatio();
    for (const QRect& part : event->region()) {
        const QRectF source(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio);
        painter.drawImage(QRectF(part), face, source);
    }
}

}  // namespace kivu::view
