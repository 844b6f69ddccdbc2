#include "view/panel_mirror.h"

#include <QPainter>

#include "forms/controls.h"
#include "forms/form.h"
#include "view/colors.h"
#include "view/style_parts.h"
#include "view/text.h"

namespace kivu::view {

namespace {

class PanelWidget : public QWidget {
 public:
    PanelWidget(const forms::Control& control, QWidget* parent)
        : QWidget(parent), control(control) {
        setMouseTracking(true);
    }

    void TakePicture() {
        picture.Set(control.GetPicture());
        update();
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const bool image = control.GetKind() == forms::Kind::image;
        const QColor back = ToQt(control.BackColor());
        if (!image && control.BackColor() != control.ParentForm()->BackColor()) {
            painter.fillRect(rect(), back);
        }
        if (const auto* frame = dynamic_cast<const forms::Frame*>(&control)) {
            if (!frame->Caption().empty()) DrawCaption(painter, ToQt(frame->Caption()));
        }
        const auto fit = PictureCache::Fit::stretch;
        const QPixmap& pixels = picture.Scaled(size() * devicePixelRatioF(), fit);
        if (!pixels.isNull()) {
            if (!isEnabled()) painter.setOpacity(0.5);
            painter.drawPixmap(QRectF(rect()), pixels, QRectF(pixels.rect()));
        }
    }

 private:
    void DrawCaption(QPainter& painter, const QString& caption) {
        const QColor text = ToQt(control.ForeColor());
        const int height = fontMetrics().height();
        QColor line = text;
        line.setAlphaF(0.3F);
        FillRounded(painter, QRectF(rect()).adjusted(0, height / 2.0, 0, 0), cornerRadius,
                    QColor(0, 0, 0, 20), line);
        const QRect place(12, 0, fontMetrics().horizontalAdvance(caption) + 8, height);
        painter.fillRect(place, ToQt(control.BackColor()));
        painter.setPen(text);
        painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, caption);
    }

    const forms::Control& control;
    PictureCache picture;
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
}

void PanelMirror::ApplyColors() {
    Mirror::ApplyColors();
    widget->update();
}

}  // namespace kivu::view
