// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/PanelParts.h"

#include "shell/controls/Boxes.h"

#include <QPushButton>

namespace korvel
{

ResultLabel* makeResult(const QString& array, int index, const QString& words, QWidget* parent)
{
    auto* label = new ResultLabel(parent);
    label->setObjectName(memberName(array, index));
    label->declare(words);
    return label;
}

void makeSentence(ResultLabel* label, int lines)
{
    label->setFont(QFont());
    label->setRoom({}, lines);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    if (lines == 1) label->setEliding();
}

void setRoom(ResultLabel* label, const char* sample)
{
    label->setRoom(sample);
}

void showText(ResultLabel* label, const std::string& text)
{
    const QString shown = QString::fromStdString(text);
    label->setText(shown);
    if (label->wordWrap()) label->setToolTip(shown);
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
