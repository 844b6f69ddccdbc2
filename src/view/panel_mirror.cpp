#include "view/panel_mirror.h"

#include <QBasicTimer>
#include <QPainter>

#include "forms/controls.h"
#include "forms/form.h"
#include "view/colors.h"
#include "view/form_surface.h"
#include "view/geometry.h"
#include "view/style_parts.h"
#include "view/text.h"

namespace kivu::view {

namespace {

constexpr int smoothAfter = 100;  // ms since the last new size

bool IsRaised(const forms::Control& control) {
    const auto* frame = dynamic_cast<const forms::Frame*>(&control);
    return frame && frame->IsRaised();
}

bool IsDraggable(const forms::Control& control) {
    return control.onMouseDown && !control.Tag().empty();
}

class PanelWidget : public QWidget {
 public:
    PanelWidget(const forms::Control& control, QWidget* parent)
        : QWidget(parent), control(control) {
        setMouseTracking(true);
    }

    void TakePicture() {
        picture.Set(control.GetPicture());
        resizing.stop();
        update();
    }

 protected:
    void resizeEvent(QResizeEvent*) override {
        if (picture.IsInUse()) resizing.start(smoothAfter, this);
    }
    void timerEvent(QTimerEvent*) override {
        resizing.stop();
        update();
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const bool image = control.GetKind() == forms::Kind::image;
        if (IsDraggable(control) || IsRaised(control)) DrawPlate(painter);
        const QColor back = ToQt(control.BackColor());
        if (!image && control.BackColor() != control.ParentForm()->BackColor()) {
            painter.fillRect(rect(), back);
        }
        if (const auto* frame = dynamic_cast<const forms::Frame*>(&control)) {
            if (!frame->Caption().empty()) DrawCaption(painter, ToQt(frame->Caption()));
        }
        DrawPicture(painter);
        if (CoversWindow()) DrawWindowEdge(painter);
    }

 private:
    // A picture behind all of a window hides the edge that the window has drawn.
    bool CoversWindow() const {
        const forms::Form& form = *control.ParentForm();
        return control.GetKind() == forms::Kind::pictureBox && control.Parent() == &form &&
               control.GetPicture() != forms::Picture() && !form.HasFrame() &&
               control.Left() <= 0 && control.Top() <= 0 && control.Right() >= form.Width() &&
               control.Bottom() >= form.Height();
    }

    void DrawWindowEdge(QPainter& painter) {
        const QRectF window = QRectF(-pos(), parentWidget()->size());
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(windowEdge, 1));
        painter.setBrush(Qt::NoBrush);
        const double radius = control.ParentForm()->CornerRadius() - 0.5;
        painter.drawRoundedRect(window.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    }

    PictureCache::Fit HowToFit() const {
        if (control.GetKind() != forms::Kind::image) return PictureCache::Fit::cover;
        return static_cast<const forms::Image&>(control).KeepsProportions()
                   ? PictureCache::Fit::contain
                   : PictureCache::Fit::stretch;
    }

    void DrawPicture(QPainter& painter) {
        if (!isEnabled()) painter.setOpacity(0.5);
        if (IsDraggable(control)) {
            DrawOnPlate(painter);
            return;
        }
        picture.Draw(painter, ShownPlace(), devicePixelRatioF(), HowToFit(), resizing.isActive());
    }

    // Something may lie on the lower part of it.
    QRect ShownPlace() const {
        QRect place = rect();
        if (control.GetKind() != forms::Kind::image) return place;
        const int most = static_cast<const forms::Image&>(control).MostShownHeight();
        if (most >= 0) place.setHeight(qMin(place.height(), ToPixels(most)));
        return place;
    }

    // In the plate's round corners, with its line.
    void DrawOnPlate(QPainter& painter) {
        const double ratio = devicePixelRatioF();
        const QImage& image = picture.Scaled((QSizeF(size()) * ratio).toSize(), HowToFit());
        if (image.isNull()) return;
        QBrush brush(image);
        brush.setTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
        FillRounded(painter, QRectF(rect()), cornerRadius, brush, PlateLine());
    }

    QColor PlateLine() const {
        QColor line = ToQt(control.ForeColor());
        line.setAlphaF(0.3F);
        return line;
    }

    // A panel on a light window is lighter still: what stands on it is made for that one's colour.
    QColor Plate(const QColor& back, const QColor& ink) const {
        if (!IsDraggable(control) && !IsDark(back)) return Mix(back, Qt::white, 0.6);
        return Mix(back.darker(135), ink, 0.05);
    }

    // What lies over others stands out, and what can be dragged about has a grip at its edge. It
    // may lie over a list, whose rows must not show through.
    void DrawPlate(QPainter& painter) {
        const QColor ink = ToQt(control.ForeColor());
        const QColor plate = Plate(ToQt(control.BackColor()), ink);
        QColor dots = ink;
        dots.setAlphaF(underMouse() ? 0.9F : 0.5F);
        FillRounded(painter, QRectF(rect()), cornerRadius, plate, PlateLine());
        if (!IsDraggable(control) || control.GetPicture() != forms::Picture()) return;
        constexpr int step = 5;  // pixels
        const int rows = qBound(1, (height() - 6) / step, 4);
        const int top = (height() - (rows - 1) * step) / 2;
        for (int dot = 0; dot < 2 * rows; ++dot) {
            const int column = dot % 2, row = dot / 2;
            const QRectF place(5 + step * column, top - 1 + step * row, 2, 2);
            FillRounded(painter, place, 1, dots);
        }
    }

    void DrawCaption(QPainter& painter, const QString& caption) {
        const QColor text = ToQt(control.ForeColor());
        const int height = fontMetrics().height();
        QColor line = text;
        line.setAlphaF(0.3F);
        const QRect place(12, 0, fontMetrics().horizontalAdvance(caption) + 8, height);
        const QRectF box = QRectF(rect()).adjusted(0, height / 2.0, 0, 0);
        FillRounded(painter, box, cornerRadius, QColor(0, 0, 0, 20));
        // The line leaves room for the caption, behind which the window may be of any colour.
        painter.setClipRegion(QRegion(rect()) - place);
        FillRounded(painter, box, cornerRadius, Qt::transparent, line);
        painter.setClipping(false);
        painter.setPen(text);
        painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, caption);
    }

    const forms::Control& control;
    PictureCache picture;
    QBasicTimer resizing;
};

}  // namespace

PanelMirror::PanelMirror(forms::Control& control, QWidget* parent, MirrorHost& host)
    : Mirror(control, host) {
    Adopt(new PanelWidget(control, parent));
    Apply(forms::Aspect::picture);
}

void PanelMirror::Apply(forms::Aspect aspect) {
    Mirror::Apply(aspect);
    if (!widget) return;
    if (aspect == forms::Aspect::picture) static_cast<PanelWidget*>(widget.data())->TakePicture();
    if (aspect == forms::Aspect::text) widget->update();
    if (aspect == forms::Aspect::geometry && control.onClick) {
        widget->setCursor(Qt::PointingHandCursor);
    }
    if (aspect == forms::Aspect::geometry && IsDraggable(control)) {
        widget->setCursor(Qt::SizeAllCursor);
        widget->setAttribute(Qt::WA_Hover);
    }
}

void PanelMirror::ApplyColors() {
    Mirror::ApplyColors();
    widget->update();
}

}  // namespace kivu::view
