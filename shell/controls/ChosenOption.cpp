// SPDX-License-Identifier: MIT
#include "shell/controls/ChosenOption.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QRadioButton>

#include <algorithm>
#include <vector>

namespace korvel
{
namespace
{

using WindowOptions = std::vector<QRadioButton*>;

/// The options that one is chosen among, itself included.
WindowOptions groupOf(const QRadioButton& option)
{
    WindowOptions group;
    const auto take = [&](const auto& buttons) {
        for (QAbstractButton* each : buttons)
            if (auto* member = qobject_cast<QRadioButton*>(each);
                member && member->group() == option.group())
                group.push_back(member);
    };
    if (option.group())
        take(option.group()->buttons());
    else if (option.parentWidget())
        take(option.parentWidget()->findChildren<QRadioButton*>(QString(),
                                                                Qt::FindDirectChildrenOnly));
    return group;
}

/// The toolkit looks after the stop only once the group has the focus: Tab came to the first
/// option, and Space there made E of the W that was chosen.
void stopTabAtChosen(const WindowOptions& group)
{
    const auto isChosen = [](const QRadioButton* option) { return option->isChecked(); };
    const auto chosen = std::ranges::find_if(group, isChosen);
    QRadioButton* stop = chosen == group.end() ? group.front() : *chosen;
    const bool hasFocus =
        std::ranges::any_of(group, [](const QRadioButton* option) { return option->hasFocus(); });
    for (QRadioButton* option : group)
        option->setFocusPolicy(option == stop ? Qt::StrongFocus : Qt::NoFocus);
    if (hasFocus && !stop->hasFocus()) stop->setFocus(Qt::OtherFocusReason);
}

class OptionWatch : public QObject
{
public:
    explicit OptionWatch(QRadioButton& option) : QObject(&option), m_option(option)
    {
        connect(&option, &QRadioButton::toggled, this, [this](bool chosen) {
            if (chosen) stopTabAtChosen(groupOf(m_option));
        });
        // A press on an option that is then not chosen leaves the focus where it is.
        connect(&option, &QRadioButton::clicked, this,
                [this] { m_option.setFocus(Qt::OtherFocusReason); });
        option.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress) return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->text().size() != 1 || key->modifiers() & ~Qt::ShiftModifier) return false;
        for (QRadioButton* option : groupOf(m_option)) {
            if (option->text().compare(key->text(), Qt::CaseInsensitive) != 0) continue;
            option->click();
            return true;
        }
        return false;
    }

private:
    QRadioButton& m_option;
};

} // namespace

void keepFocusAtChosenOptions(QWidget& window)
{
    for (QRadioButton* option : window.findChildren<QRadioButton*>()) {
        new OptionWatch(*option);
        stopTabAtChosen(groupOf(*option));
    }
}

} // namespace korvel
