// SPDX-License-Identifier: MIT
#include "shell/controls/Options.h"

#include "shell/controls/Boxes.h"

#include <QLayout>
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

void Options::addTo(QLayout& row) const
{
    for (QAbstractButton* each : buttons())
        row.addWidget(each);
}

} // namespace korvel
