// SPDX-License-Identifier: MIT
#include "shell/layout/WrappedText.h"

#include <QFontMetrics>
#include <QTextLayout>

#include <algorithm>

namespace korvel
{
namespace
{

/// The blank or line break that a line was wrapped at is not seen.
QString withoutEnd(const QString& words)
{
    return words.endsWith('\n') || words.endsWith(' ') ? words.chopped(1) : words;
}

} // namespace

ShownLines shownLines(const QString& text, const QFont& letters, QSize room)
{
    const QFontMetrics metrics(letters);
    const auto most = std::max(1, room.height() / metrics.lineSpacing());
    QString broken = text;
    broken.replace('\n', QChar::LineSeparator);
    QTextLayout layout(broken, letters);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    ShownLines shown;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room.width());
        const QString words = text.mid(line.textStart(), line.textLength());
        const qsizetype end = line.textStart() + line.textLength();
        if (shown.lines.size() + 1 < most || end >= text.size()) {
            shown.lines << withoutEnd(words);
            if (shown.lines.size() < most) continue;
            break;
        }
        const QString rest = text.mid(line.textStart()).replace('\n', ' ');
        shown.lines << metrics.elidedText(
            rest + ' ', Qt::ElideRight,
            std::min(room.width(), metrics.horizontalAdvance(rest) - 1));
        shown.isWhole = false;
        break;
    }
    layout.endLayout();
    return shown;
}

} // namespace korvel
