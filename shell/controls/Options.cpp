// SPDX-License-Identifier: MIT
#include "shell/controls/Options.h"

#include "shell/controls/Boxes.h"
#include "shell/screen/ScreenStyle.h"

#include <QHBoxLayout>
#include <QRadioButton>

namespace korvel
{

Options::Options(QWidget* parent, const char* array, const std::vector<Words>& options)
    : QButtonGroup(parent)
{
    for (const auto& [caption, words] : options) {
        const int id = static_cast<int>(buttons().size());
        auto* button = new QRadioButton(caption, parent);
        button->setObjectName(memberName(array, id));
        button->setAccessibleName(words);
        addButton(button, id);
    }
    button(0)->setChecked(true);
}

void Options::choose(int option)
{
    if (QAbstractButton* chosen = button(option)) chosen->setChecked(true);
}

QWidget* Options::makeSwitch() const
{
    std::vector<QRadioButton*> options;
    for (QAbstractButton* each : buttons())
        options.push_back(static_cast<QRadioButton*>(each));
    auto* line = new QWidget(options.front()->parentWidget());
    line->setLayout(switchOf(options));
    line->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return line;
}

QHBoxLayout* switchOf(std::span<QRadioButton* const> options)
{
    auto* parts = new QHBoxLayout;
    parts->setContentsMargins(0, 0, 0, 0);
    parts->setSpacing(0);
    for (QRadioButton* option : options) {
        drawAsSwitchPart(*option);
        option->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        parts->addWidget(option);
    }
    return parts;
}

} // namespace korvel
