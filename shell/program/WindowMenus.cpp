// SPDX-License-Identifier: MIT
#include "shell/program/WindowMenus.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "navlib/angles.h"
#include "shell/controls/Boxes.h"
#include "shell/machine/AsQString.h"
#include "shell/program/Program.h"
#include "shell/program/Shortcuts.h"

#include <QMenuBar>

namespace korvel
{

WindowMenus::WindowMenus(Program& program, QMainWindow& window)
    : m_program(program), m_window(window)
{
}

QMenu* WindowMenus::add(const QString& caption, const QString& name)
{
    QMenu* menu = m_window.menuBar()->addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

QAction* WindowMenus::addEntry(QMenu* menu, const QString& array, int index, const QString& caption,
                               std::function<void()> action)
{
    QAction* entry = menu->addAction(caption, &m_window, std::move(action));
    entry->setObjectName(memberName(array, index));
    return entry;
}

QAction* WindowMenus::addMemoEntry(QMenu*& menu, const QString& title, const QString& array,
                                   const QString& caption, std::function<void()> action)
{
    if (!menu) menu = add(title, array);
    return addEntry(menu, array, static_cast<int>(menu->actions().size()), caption,
                    std::move(action));
}

QAction* WindowMenus::addStoreSingle(const QString& caption, Text value)
{
    return addMemoEntry(m_mnuMemo, "&Memo", "mnuMemo", caption, [this, value = std::move(value)] {
        m_program.actions().StoreInMemo(KORVEL2000Actions::Single, value());
    });
}

QAction* WindowMenus::addStorePosition(const QString& caption, Text latitude, Text longitude)
{
    return addMemoEntry(m_mnuMemo, "&Memo", "mnuMemo", caption,
                        [this, latitude = std::move(latitude), longitude = std::move(longitude)] {
                            m_program.actions().storePosition({latitude(), longitude()});
                        });
}

void WindowMenus::addRecallSingle(const QString& caption, QLineEdit* box)
{
    addMemoEntry(m_mnuRem, "&Recall", "mnuRem", caption, [this, box] { recallSingle(box); });
}

void WindowMenus::addRecallPosition(const QString& caption, QLineEdit* latitude,
                                    QLineEdit* longitude)
{
    addRecallPosition(caption, [=] { return std::pair(latitude, longitude); });
}

void WindowMenus::addRecallPosition(const QString& caption, PositionBoxes boxes)
{
    m_ship.push_back({caption,
                      [this] {
                          const auto at = m_program.shipsPosition();
                          return at ? asQString(positionInFull(at->latitude, Axis::Latitude) + " " +
                                                positionInFull(at->longitude, Axis::Longitude) +
                                                ", " + at->how)
                                    : QString();
                      },
                      [this, boxes] {
                          const auto at = m_program.shipsPosition();
                          const auto [latitude, longitude] = boxes();
                          latitude->setText(asQString(packedText(DegMinToDeg(at->latitude))));
                          longitude->setText(asQString(packedText(DegMinToDeg(at->longitude))));
                      }});
    addMemoEntry(m_mnuRem, "&Recall", "mnuRem", caption, [this, boxes = std::move(boxes)] {
        const auto [latitude, longitude] = boxes();
        recallPosition(latitude, longitude);
    });
}

void WindowMenus::recallSingle(QLineEdit* box)
{
    if (m_program.actions().ConfirmMemoRecall(KORVEL2000Actions::SinM) == Answer::Yes)
        box->setText(asQString(memoText(m_program.saved().singleMemo())));
}

void WindowMenus::recallPosition(QLineEdit* latitude, QLineEdit* longitude)
{
    if (m_program.actions().ConfirmMemoRecall(KORVEL2000Actions::PsnM) != Answer::Yes) return;
    latitude->setText(asQString(memoText(m_program.saved().memoLatitude())));
    longitude->setText(asQString(memoText(m_program.saved().memoLongitude())));
}

void WindowMenus::addShipNow(ShipFigure which, const QString& caption, QLineEdit* box)
{
    const auto figure = [this, which]() -> QString {
        if (which == ShipFigure::Zone)
            return asQString(Format(double(m_program.saved().TD()), "0.0"));
        const auto& motion = m_program.shipNow.motion();
        if (!motion) return {};
        return asQString(which == ShipFigure::Course ? Format(motion->course, "0.#")
                                                     : Format(motion->speed, "0.0#"));
    };
    m_ship.push_back({caption, figure, [box, figure] { box->setText(figure()); }});
}

void WindowMenus::addPlanLeg(const QString& caption,
                             std::function<void(const PlanExchange::Leg&)> take)
{
    m_ship.push_back({caption,
                      [this] {
                          const auto& leg = m_program.plan.legInHand;
                          return leg ? asQString(leg->name) : QString();
                      },
                      [this, take = std::move(take)] { take(*m_program.plan.legInHand); }, nullptr,
                      "Leg of the plan, "});
}

/// Behind the memories, so that these keep their numbers.
void WindowMenus::addShipEntries()
{
    if (m_ship.empty()) return;
    auto* menu = m_window.findChild<QMenu*>("mnuRem");
    if (!menu) menu = add("&Recall", "mnuRem");
    menu->addSeparator();
    int index = 0;
    for (ShipEntry& each : m_ship) {
        each.caption.remove('&');
        each.entry = addEntry(menu, "mnuShip", index++, {}, each.take);
    }
    showShipFigures();
    QObject::connect(menu, &QMenu::aboutToShow, &m_window, [this] { showShipFigures(); });
    QObject::connect(&m_program, &Program::shipNowChanged, &m_window,
                     [this] { showShipFigures(); });
    QObject::connect(&m_program, &Program::TDChanged, &m_window, [this] { showShipFigures(); });
}

void WindowMenus::showShipFigures()
{
    for (const ShipEntry& each : m_ship) {
        const QString figure = each.figure();
        each.entry->setText(each.from + each.caption + ": " +
                            (figure.isEmpty() ? "not known" : figure));
        each.entry->setEnabled(!figure.isEmpty());
    }
}

void WindowMenus::addLinks(const QString& array)
{
    fillWithLinks(add("&Windows", array), array);
}

void WindowMenus::fillWithLinks(QMenu* menu, const QString& array)
{
    m_hasLinks = true;
    int index = 0;
    int key = 0;
    for (const WindowLink& link : m_program.links) {
        const QString keys = windowKey(link.name, key++);
        if (link.name == m_window.objectName()) continue;
        addEntry(menu, array, index++, link.caption, [this, name = link.name] {
            m_program.openWindow(name);
        })->setShortcut(QKeySequence(keys));
    }
}

void WindowMenus::addView()
{
    addShipEntries();
    QMenu* view = add("&View", "mnuView");
    addShortcuts(*view, m_program, m_window, false);
    if (m_hasLinks) return;
    QMenu* links = view->addMenu("&Windows");
    links->setObjectName("mnuViewWindows");
    fillWithLinks(links, "mnuViewWindows");
}

} // namespace korvel
