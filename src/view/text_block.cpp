#include "view/text_block.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>

namespace kivu::view {

namespace {

void BreakLine(QStringList& lines, const QString& line, const QFont& font, double width,
               int limit) {
    QTextLayout layout(line, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine next = layout.createLine(); next.isValid(); next = layout.createLine()) {
        next.setLineWidth(width);
        if (lines.size() + 1 == limit) {
            // The rest goes into the last line, to be cut there.
            lines.append(line.mid(next.textStart()));
            break;
        }
        lines.append(line.mid(next.textStart(), next.textLength()));
    }
    layout.endLayout();
}

}  // namespace

QStringList SplitLines(const QString& text) {
    QString even = text;
    even.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    return even.split(u'\n');
}

QStringList BreakText(const QString& text, const QFont& font, double width, double height) {
    const QFontMetricsF metrics(font);
    const int limit = std::max(1, static_cast<int>(height / metrics.height() + 0.05));
    const QStringList wanted = SplitLines(text);
    QStringList lines;
    for (qsizetype i = 0; i < wanted.size() && lines.size() < limit; ++i) {
        const bool last = lines.size() + 1 == limit;
        if (last || metrics.horizontalAdvance(wanted[i]) <= width + 0.01) {
            const bool more = last && i + 1 < wanted.size() && !wanted[i + 1].isEmpty();
            lines.append(more ? wanted[i] + QStringLiteral("…") : wanted[i]);
        } else {
            BreakLine(lines, wanted[i], font, width, limit);
        }
    }
    for (QString& line : lines) {
        // Blanks at a break hang over the edge, and the layout rounds otherwise than the metrics.
        qsizetype end = line.size();
        while (end > 0 && line[end - 1].isSpace())
            --end;
        if (metrics.horizontalAdvance(line.left(end)) > width + 1) {
            line = metrics.elidedText(line, Qt::ElideRight, width);
        }
    }
    return lines;
}

}  // namespace kivu::view
