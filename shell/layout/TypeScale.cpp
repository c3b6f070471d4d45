// SPDX-License-Identifier: MIT
#include "shell/layout/TypeScale.h"

#include <QApplication>

namespace korvel
{
namespace
{

// In captions; of two decimals, as the zoom keeps them.
constexpr double figureSize = 1.22, answerSize = 1.89;

} // namespace

QFont lettersOf(Weight weight)
{
    QFont letters = QApplication::font();
    if (weight == Weight::Remark) return letters;
    letters.setPointSizeF(letters.pointSizeF() *
                          (weight == Weight::Answer ? answerSize : figureSize));
    if (weight == Weight::Answer) letters.setWeight(QFont::DemiBold);
    // Figures are drawn side by side: pairs that stand closer when measured (LT) would be cut off.
    letters.setKerning(false);
    return letters;
}

QFont lettersOfRowInHand()
{
    QFont letters = lettersOf(Weight::Figure);
    letters.setWeight(QFont::DemiBold);
    return letters;
}

} // namespace korvel
