// SPDX-License-Identifier: MIT
#include "shell/controls/MeantFigure.h"

#include "shell/controls/Boxes.h"
#include "shell/machine/AsQString.h"

#include <QMenu>

namespace korvel
{
namespace
{

EntryBox* halfReadBoxOf(const QWidget& window)
{
    auto* inHand = qobject_cast<EntryBox*>(window.focusWidget());
    if (inHand && inHand->halfRead()) return inHand;
    for (EntryBox* box : window.findChildren<EntryBox*>())
        if (box->isVisible() && box->isEnabled() && box->halfRead()) return box;
    return nullptr;
}

void askWhich(EntryBox& box, const std::vector<std::string>& meant)
{
    auto* menu = new QMenu(&box);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const std::string& figure : meant) {
        const QString text = asQString(figure);
        menu->addAction(text, &box, [&box, text] { box.setText(text); });
    }
    menu->popup(box.mapToGlobal(QPoint(0, box.height())));
}

} // namespace

void writeMeantFigure(const QWidget& window)
{
    EntryBox* box = halfReadBoxOf(window);
    if (!box) return;
    const std::vector<std::string> meant = box->halfRead()->meant;
    box->setFocus(Qt::TabFocusReason);
    if (meant.size() == 1)
        box->setText(asQString(meant.front()));
    else if (!meant.empty())
        askWhich(*box, meant);
    box->selectAll();
}

} // namespace korvel
