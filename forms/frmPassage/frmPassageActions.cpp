// SPDX-License-Identifier: MIT
// What the menus and keys of the passage plan do.
#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "forms/frmPassage/PassageFields.h"
#include "forms/frmPassage/PlanBoxes.h"
#include "forms/frmPassage/PlanTable.h"
#include "forms/frmPassage/frmPassage.h"
#include "navlib/angles.h"
#include "shell/machine/AsQString.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>

namespace korvel
{
namespace
{

/// The one file that is being dropped; empty when it is none.
QString fileOf(const QMimeData& dropped)
{
    const QList<QUrl> urls = dropped.urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

QString baseName(const std::string& path)
{
    return QFileInfo(asQString(path)).fileName();
}

} // namespace

void frmPassage::addMenus()
{
    addPlanMenu();
    addRowMenu();
    const auto rowText = [this](std::string PlanRow::*box) {
        return [this, box] { return m_work.rowInHand().*box; };
    };
    menus().addStorePosition("&Position of the row", rowText(&PlanRow::latitude),
                             rowText(&PlanRow::longitude));
    menus().addStoreSingle("&Distance of the plan", [this] { return m_shown.distance; });
    menus().addRecallPosition("&Position into the row", m_boxes->box(RowLatitude),
                              m_boxes->box(RowLongitude));
    menus().addRecallSingle("into &speed", m_boxes->box(RowSpeed));
    using ShipFigure = WindowMenus::ShipFigure;
    menus().addShipNow(ShipFigure::Speed, "into speed", m_boxes->box(RowSpeed));
    menus().addShipNow(ShipFigure::Zone, "into zone", m_boxes->box(RowZone));
    menus().addLinks("mnuLinks");
}

void frmPassage::addPlanMenu()
{
    QMenu* menu = menus().add("&Plan", "mnuPlan");
    int index = 0;
    const auto entry = [&](const char* caption, const char* keys, std::function<void()> action) {
        menus()
            .addEntry(menu, "mnuPlan", index++, caption, std::move(action))
            ->setShortcut(QKeySequence(keys));
    };
    entry("&New plan", "", [this] {
        m_work.replace({}, "New plan");
        refresh();
    });
    entry("&Open an RTZ, GPX or CSV file..", "Ctrl+O", [this] { openFile(); });
    entry("&Save as RTZ..", "Ctrl+S", [this] { save(PlanFormat::RTZ); });
    entry("Save as RTZ &1.0..", "", [this] { save(PlanFormat::RTZ1_0); });
    entry("Save as RTZ 1.&2..", "", [this] { save(PlanFormat::RTZ1_2); });
    entry("Save as &GPX..", "", [this] { save(PlanFormat::GPX); });
    entry("Save as CS&V..", "", [this] { save(PlanFormat::CSV); });
    entry("&Copy as a table", "Ctrl+Shift+C", [this] { copyAsText(); });
    entry("&Reverse", "", [this] {
        m_work.reverse();
        refresh();
    });
    entry("&Undo", "Ctrl+Z", [this] { undo(); });
    entry("Re&do", "Ctrl+Y", [this] { redo(); });
}

void frmPassage::addRowMenu()
{
    QMenu* menu = menus().add("R&ow", "mnuRow");
    int index = 0;
    // With Shift: the boxes have Ctrl+D, Ctrl+U and the like for their own editing.
    const auto entry = [&](const char* caption, const char* keys, std::function<void()> action) {
        menus()
            .addEntry(menu, "mnuRow", index++, caption, std::move(action))
            ->setShortcut(QKeySequence(keys));
    };
    entry("&Insert a row", "Ctrl+Shift+I", [this] { insertRow(); });
    entry("&Delete the row", "Ctrl+Shift+D", [this] {
        m_work.deleteRow();
        refresh();
    });
    entry("Move &up", "Ctrl+Shift+Up", [this] {
        m_work.moveRow(-1);
        refresh();
    });
    entry("Move do&wn", "Ctrl+Shift+Down", [this] {
        m_work.moveRow(1);
        refresh();
    });
    entry("&Paste rows of a spreadsheet", "Ctrl+Shift+V", [this] { paste(); });
}

/// The plan changed by other means than keys in its boxes.
void frmPassage::refresh()
{
    m_boxes->fill();
    calculations().run(m_calculation);
}

void frmPassage::goToRow(std::size_t row)
{
    m_work.goToRow(row);
    refresh();
    if (auto* box = dynamic_cast<EntryBox*>(focusWidget())) box->selectAll();
}

void frmPassage::insertRow()
{
    if (m_work.insertRows({PlanRow{}})) return refresh();
    tellRefused("No row was inserted", "a plan has " + std::to_string(mostPlanRows) + " at most");
}

/// Enter behind the last box of a row: the next one, made where there is none.
void frmPassage::endRow()
{
    goToRow(m_work.row() + 1);
}

void frmPassage::undo()
{
    const std::string name = m_work.undoName();
    if (!m_work.undo()) return;
    refresh();
    sayForAWhile(QString("Taken back: %1.").arg(asQString(name)));
}

void frmPassage::redo()
{
    const std::string name = m_work.redoName();
    if (!m_work.redo()) return;
    refresh();
    sayForAWhile(QString("Done again: %1.").arg(asQString(name)));
}

/// The leg to the row in hand, for the windows that take one.
void frmPassage::tellLeg()
{
    const PlanReckoning& plan = m_work.reckoning();
    auto& told = program().plan.legInHand;
    told.reset();
    const std::size_t row = m_work.row();
    const PlanLeg* leg = row < plan.size() ? plan.leg(row) : nullptr;
    if (!leg) return;
    const std::size_t from = *plan.rowBefore(row);
    const auto& left = *plan.read(from).position;
    const auto& reached = *plan.read(row).position;
    const auto nameOf = [this](std::size_t at) {
        const std::string& name = m_work.plan().rows[at].name;
        return name.empty() ? "row " + std::to_string(at + 1) : name;
    };
    told = PlanExchange::Leg{nameOf(from) + " to " + nameOf(row),
                             {left.lat, reached.lat},
                             {left.longitude, reached.longitude},
                             leg->distance,
                             plan.figures(row).speed,
                             plan.figures(from).etd,
                             plan.figures(row).eta,
                             {plan.figures(from).zone, plan.figures(row).zone}};
}

/// A great circle from the great-circle window: behind the last row, which is its departure where
/// it lies there already.
void frmPassage::takeCircle()
{
    const auto circle = std::exchange(program().plan.circleForPlan, std::nullopt);
    if (!circle) return;
    PlanRows rows(2);
    for (std::size_t end = 0; end < 2; ++end) {
        rows[end].latitude = packedText(DegMinToDeg(circle->latitudes[end]));
        rows[end].longitude = packedText(DegMinToDeg(circle->longitudes[end]));
    }
    rows[1].leg = LegKind::GreatCircle;
    rows[1].step = Format(circle->step, "0.##");
    const PlanReckoning& plan = m_work.reckoning();
    const auto last = plan.lastRow();
    const bool goesOn = last && plan.read(*last).position &&
                        plan.read(*last).position->lat == circle->latitudes[0] &&
                        plan.read(*last).position->longitude == circle->longitudes[0];
    if (goesOn) rows.erase(rows.begin());
    m_work.goToRow(last ? *last + 1 : 0);
    if (!m_work.insertRows(rows))
        return tellRefused("The circle was not taken",
                           "a plan has " + std::to_string(mostPlanRows) + " rows at most");
    m_work.goToRow(m_work.row() + rows.size() - 1);
    refresh();
    sayForAWhile("The great circle is the leg in hand; Plan, Undo takes it back.");
}

void frmPassage::tellRefused(const std::string& what, const std::string& why)
{
    program().questions().ask(
        {what + ": " + why + ".\rThe plan is as it was.", programTitle, Buttons::Ok});
}

void frmPassage::paste()
{
    const std::string text = QApplication::clipboard()->text().toStdString();
    OpenedPlan rows = rowsOfText(text, conditions());
    if (!rows.fault.empty()) return tellRefused("The rows were not taken", rows.fault);
    if (!m_work.insertRows(rows.plan.rows))
        return tellRefused("The rows were not taken",
                           "a plan has " + std::to_string(mostPlanRows) + " at most");
    refresh();
    rows.remarks.insert(rows.remarks.begin(),
                        std::to_string(rows.plan.rows.size()) + " rows pasted");
    sayForAWhile(asQString(joined(rows.remarks)));
}

void frmPassage::openFile()
{
    if (const auto path = program().questions().fileToRead("Open a route", "rtz gpx csv"))
        open(*path);
}

void frmPassage::open(const std::string& path)
{
    OpenedPlan opened = openPlan(path, conditions());
    if (!opened.fault.empty()) return tellRefused('"' + path + "\" was not opened", opened.fault);
    opened.plan.wish = m_work.plan().wish;
    m_work.replace(opened.plan, "Open " + baseName(path).toStdString());
    refresh();
    std::vector<std::string> said = {baseName(path).toStdString() + " opened, " +
                                     std::to_string(opened.plan.rows.size()) +
                                     " rows; Plan, Undo brings back what was there"};
    said.insert(said.end(), opened.remarks.begin(), opened.remarks.end());
    sayForAWhile(asQString(joined(said) + "."));
}

void frmPassage::save(PlanFormat format)
{
    const WrittenRoute written = writtenPlan(m_work.plan(), m_work.reckoning(), format);
    if (!written.fault.empty()) return tellRefused("Nothing was saved", written.fault);
    WorkingPaper named;
    named.kind = m_work.plan().name.empty() ? "Passage plan" : m_work.plan().name;
    const auto path = program().questions().fileToWrite(
        "Save the plan", offeredName(program().paperHeading(), named, endingOf(format)));
    if (!path || !printer().write(*path, written.bytes)) return;
    std::vector<std::string> said = {"Saved as " + baseName(*path).toStdString()};
    said.insert(said.end(), written.remarks.begin(), written.remarks.end());
    sayForAWhile(asQString(joined(said) + "."));
}

void frmPassage::copyAsText() const
{
    QApplication::clipboard()->setText(asQString(planAsText(m_work.plan(), m_work.reckoning())));
}

/// A file may be dropped anywhere in the window, also on a box, which would take its name for a
/// text.
void frmPassage::takeFilesDropped()
{
    setAcceptDrops(true);
    installEventFilter(this);
    for (QWidget* each : findChildren<QWidget*>())
        if (each->acceptDrops()) each->installEventFilter(this);
}

bool frmPassage::eventFilter(QObject* watched, QEvent* event)
{
    const bool comes = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
    if (!comes && event->type() != QEvent::Drop)
        return CalculatorWindow::eventFilter(watched, event);
    auto* drop = static_cast<QDropEvent*>(event); // of which the other two are kinds
    const QString file = fileOf(*drop->mimeData());
    if (file.isEmpty()) return CalculatorWindow::eventFilter(watched, event);
    drop->acceptProposedAction();
    // The file manager waits for the drop to end: a question must not stand in its way.
    if (!comes)
        QMetaObject::invokeMethod(
            this, [this, file] { open(file.toStdString()); }, Qt::QueuedConnection);
    return true;
}

} // namespace korvel
