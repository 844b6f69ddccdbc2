#include "view/label_mirror.h"

#include <QEvent>
#include <QPainter>

#include "forms/access_keys.h"
#include "forms/form.h"
#include "view/accessible_parts.h"
#include "view/colors.h"
#include "view/fonts.h"
#include "view/style_parts.h"
#include "view/text.h"
#include "view/text_block.h"

namespace kivu::view {

namespace {

constexpr QMargins tabAir(8, 4, 8, 6);

const std::string& TextOf(const forms::Label& label) {
    return label.ShownText().empty() ? label.Caption() : label.ShownText();
}

class LabelWidget : public QWidget {
 public:
    LabelWidget(const forms::Label& label, const Mirror& mirror, QWidget* parent)
        : QWidget(parent), label(label), mirror(mirror) {
        setMouseTracking(true);
        setAttribute(Qt::WA_Hover);
    }

    void Forget() {
        lines.clear();
        brokenFor = {};
        update();
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QColor back = ToQt(label.BackColor());
        const QColor window = ToQt(label.ParentForm()->BackColor());
        const bool tab = IsClickable(label);
        const bool marked = IsMarked(label);
        // A label over a whole area is no tab, and would light it up.
        const bool oneLine =
            rect().marginsRemoved(mirror.Overhang()).height() < 2 * QFontMetrics(font()).height();
        QColor text = ToQt(label.ForeColor());
        if (marked && oneLine) {
            FillRounded(painter, rect(), cornerRadius, back);
            FillRounded(painter, QRectF(8, height() - 3, width() - 16, 3), 1.5, AccentOn(back));
            text = Readable(text, back);
        } else if (label.IsOpaque() || marked) {
            FillRounded(painter, rect(), cornerRadius, back);
            text = Readable(text, back);
        } else {
            // A picture may lie below: only what the window itself would swallow is changed.
            constexpr double swallowed = 1.5;
            text = Readable(text, window, swallowed);
        }
        if (tab && !marked && oneLine && underMouse() && isEnabled()) {
            const QColor veil = InkOn(window, 34);
            text = Readable(text, Mix(window, InkOn(window, 255), veil.alphaF()));
            FillRounded(painter, rect(), cornerRadius, veil);
        }
        if (!isEnabled()) {
            text = MixFor(3.5, Ground(), Readable(text, Ground(), 3.5), 0.5);
        }
        if (label.IsLink()) MarkLink(painter);
        painter.setPen(text);
        DrawLines(painter);
    }

    // What lies on a hidden or moved edge must not hold an old break.
    void resizeEvent(QResizeEvent*) override { Forget(); }

 private:
    // What the text lies on.
    QColor Ground() const {
        const bool own = label.IsOpaque() || IsMarked(label);
        return ToQt(own ? label.BackColor() : label.ParentForm()->BackColor());
    }
    // A link is underlined, and in a frame while it has the focus.
    void MarkLink(QPainter& painter) {
        QFont underlined = font();
        underlined.setUnderline(true);
        painter.setFont(underlined);
        const QColor window = ToQt(label.ParentForm()->BackColor());
        if (underMouse() && isEnabled())
            FillRounded(painter, rect(), cornerRadius, InkOn(window, 34));
        if (hasFocus())
            FillRounded(painter, rect(), cornerRadius, Qt::transparent, AccentOn(window));
    }

    // The text as it is read, and with the letter that Alt wants underlined.
    QString ReadText() const {
        const std::string& shown = TextOf(label);
        return ToQt(label.MarksLetter() ? forms::PlainCaption(shown) : shown);
    }
    bool UnderlinesLetter() const {
        return label.MarksLetter() && lines.size() == 1 && lines.front() == ReadText() &&
               forms::AccessKeyOf(TextOf(label)) != '\0';
    }

    void DrawLines(QPainter& painter) {
        const std::string& shown = TextOf(label);
        // Blanks that do not fit leave nothing to tell of.
        if (shown.find_first_not_of(' ') == std::string::npos) return;
        const QRect place = rect().marginsRemoved(mirror.Overhang()).adjusted(1, 0, -1, 0);
        if (brokenFor != place.size()) {
            brokenFor = place.size();
            lines = BreakText(ReadText(), font(), place.width(), place.height());
        }
        static constexpr Qt::Alignment sides[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
        const Qt::Alignment side = sides[static_cast<int>(label.GetAlignment())];
        const double step = QFontMetricsF(font()).height();
        QRectF line(place.left(), place.top(), place.width(), step);
        const bool letter = UnderlinesLetter();
        const int flags = letter ? Qt::TextShowMnemonic : 0;
        for (const QString& text : lines) {
            // Nothing is cut that was measured to fit.
            painter.drawText(line,
                             int(side | Qt::AlignVCenter) | Qt::TextSingleLine | Qt::TextDontClip |
                                 Qt::TextIncludeTrailingSpaces | flags,
                             letter ? ToQt(shown) : text);
            line.translate(0, step);
        }
        DrawHint(painter, line.top());
    }

    // Below the text, with air above and at the sides.
    void DrawHint(QPainter& painter, double top) {
        if (label.Hint().empty()) return;
        const QRectF place = QRectF(rect()).adjusted(24, 0, -24, 0);
        painter.setFont(HintFont(font()));
        painter.setPen(MixFor(textContrast, Ground(), painter.pen().color(), 0.75));
        const QRectF below(place.left(), top + 12, place.width(), place.bottom() - top - 12);
        if (below.isEmpty()) return;
        const QStringList lines =
            BreakText(ToQt(label.Hint()), painter.font(), below.width(), below.height());
        painter.drawText(below, int(Qt::AlignHCenter | Qt::AlignTop), lines.join(u'\n'));
    }

    const forms::Label& label;
    const Mirror& mirror;
    QStringList lines;
    QSize brokenFor;
};

}  // namespace

LabelMirror::LabelMirror(forms::Label& control, QWidget* parent, MirrorHost& host)
    : Mirror(control, host), label(control) {
    Adopt(new LabelWidget(control, *this, parent));
}

QMargins LabelMirror::Overhang() const {
    return IsClickable(label) ? tabAir : QMargins();
}

void LabelMirror::Apply(forms::Aspect aspect) {
    Mirror::Apply(aspect);
    if (!widget) return;
    if (aspect == forms::Aspect::geometry) {
        widget->setCursor(label.onClick || label.IsLink() ? Qt::PointingHandCursor
                                                          : Qt::ArrowCursor);
    }
    if (aspect == forms::Aspect::font) widget->setFont(ToQt(label.ShownFont()));
    if (aspect == forms::Aspect::text || aspect == forms::Aspect::font) {
        static_cast<LabelWidget*>(widget.data())->Forget();
    }
}

void LabelMirror::ApplyColors() {
    widget->update();
}

}  // namespace kivu::view
