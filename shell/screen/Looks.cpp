// SPDX-License-Identifier: MIT
#include "shell/screen/Looks.h"

#include "app/records/KV_Savedvalue.h"
#include "app/records/RecoveryFile.h"
#include "app/records/ScreenChoices.h"
#include "shell/screen/ScreenStyle.h"

#include <QApplication>
#include <QFileInfo>
#include <QToolTip>
#include <QWidget>

#include <cmath>

namespace korvel
{
namespace
{

/// @return a record of what was never set where there is no such file
Record quietlyRead(const QString& path, const std::vector<FieldKind>& kinds)
{
    constexpr qint64 longest = 1 << 16;
    QFile file(path);
    const bool isFile = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
    return readRecord(isFile ? file.read(longest).toStdString() : "", kinds).record;
}

/// Letters that widgets have in a size of their own keep it in proportion.
void scaleOwnLetters(double before, double now)
{
    // Proportions are of two decimals: there and back is the same size again.
    const auto scaled = [=](double size) { return std::round(size / before * 100) / 100 * now; };
    for (QWidget* widget : QApplication::allWidgets()) {
        QFont font = widget->font();
        if (!widget->testAttribute(Qt::WA_SetFont) || !(font.resolveMask() & QFont::SizeResolved) ||
            font.pointSizeF() <= 0)
            continue;
        font.setPointSizeF(scaled(font.pointSizeF()));
        widget->setFont(font);
    }
}

void applyZoom(int percent)
{
    static const double own = QApplication::font().pointSizeF();
    QFont font = QApplication::font();
    const double wanted = own * percent / 100;
    if (own <= 0 || qFuzzyCompare(font.pointSizeF(), wanted)) return;
    if (auto* style = dynamic_cast<ScreenStyle*>(QApplication::style())) style->setZoom(percent);
    const double before = font.pointSizeF();
    font.setPointSizeF(wanted);
    QApplication::setFont(font);
    // At once: whoever hears of the zoom measures by the letters in force.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::ApplicationFontChange);
    QToolTip::setFont(font);
    scaleOwnLetters(before, wanted);
}

} // namespace

Looks looksOfLastRun(const QString& folder)
{
    const auto pathOf = [&](const char* name) { return folder + '/' + name; };
    KV_Savedvalue saved;
    saved.take(quietlyRead(pathOf(KV_Savedvalue::file), KV_Savedvalue::kinds()));
    if (QFileInfo::exists(pathOf(RecoveryFile::name))) {
        std::vector<FieldKind> kinds = KV_Savedvalue::kinds();
        kinds.insert(kinds.begin(), FieldKind::Text); // when it was kept
        Record record = quietlyRead(pathOf(RecoveryFile::name), kinds);
        record.erase(record.begin());
        saved.take(record);
    }
    const auto screen =
        ScreenChoices::of(quietlyRead(pathOf(ScreenChoices::file), ScreenChoices::kinds()));
    return {saved.nightColours(), screen.dimStep, screen.zoom};
}

void applyLooks(const Looks& looks, const ColourScheme& colours)
{
    if (QApplication::palette() != colours.palette) {
        QApplication::setPalette(colours.palette);
        QToolTip::setPalette(colours.palette);
    }
    applyZoom(looks.zoom);
}

} // namespace korvel
