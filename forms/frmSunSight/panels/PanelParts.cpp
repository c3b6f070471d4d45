// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/PanelParts.h"

#include <QPushButton>

namespace korvel
{

void makeSentence(ResultLabel* label, int lines)
{
    label->setFont(QFont());
    label->setRoom({}, lines);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    if (lines == 1) label->setEliding();
}

void tellSentencesInTips(const std::vector<ResultLabel*>& labels)
{
    for (ResultLabel* label : labels)
        if (label->wordWrap()) label->setToolTip(label->text());
}

QPushButton* makeButton(const QString& name, const QString& caption, const QString& tip,
                        QWidget* parent)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    return button;
}

} // namespace korvel
