// SPDX-License-Identifier: MIT
#include "shell/screen/Looks.h"

#include "app/records/KV_Savedvalue.h"
#include "app/records/RecoveryFile.h"
#include "app/records/ScreenChoices.h"
#include "shell/screen/ScreenStyle.h"

#include <QApplication>
#include <QToolTip>
#include <QWidget>

#include <cmath>

namespace korvel
{
namespace
{

/// @return empty where there is no such file
std::string quietlyRead(FileStore& files, const char* name)
{
    constexpr std::size_t longest = 1 << 16;
    return files.readAt(name, 0, longest).bytes;
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
    if (own <= 0 || qFuzzyIsNull(font.pointSizeF() - wanted)) return;
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

Looks looksOfLastRun(FileStore& files)
{
    KV_Savedvalue saved;
    saved.take(readRecord(quietlyRead(files, KV_Savedvalue::file), KV_Savedvalue::kinds()).record);
    if (files.look(RecoveryFile::name).status != FileStore::Content::Status::Missing)
        saved.take(recoveredValues(quietlyRead(files, RecoveryFile::name)));
    const auto screen = ScreenChoices::of(
        readRecord(quietlyRead(files, ScreenChoices::file), ScreenChoices::kinds()).record);
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
