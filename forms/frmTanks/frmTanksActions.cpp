// SPDX-License-Identifier: MIT
// What the menus and keys of the tank list do.
#include "forms/frmTanks/TankCsv.h"
#include "forms/frmTanks/TankFields.h"
#include "forms/frmTanks/TankListPage.h"
#include "forms/frmTanks/frmTanks.h"
#include "shell/layout/PageBar.h"
#include "shell/machine/AsQString.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QMenu>

namespace korvel
{
namespace
{

QString fileName(const std::string& path)
{
    return QFileInfo(asQString(path)).fileName();
}

} // namespace

void frmTanks::addMenus()
{
    addListMenu();
    addRowMenu();
    menus().addStoreSingle("&Weight loaded or discharged", [this] { return m_shown.moved; });
    menus().addStoreSingle("&Volume loaded or discharged", [this] { return m_shown.movedVolume; });
    menus().addRecallSingle("into &volume", m_tanks->box(TankVolume));
    menus().addRecallSingle("into &temperature", m_tanks->box(TankTemperature));
    menus().addLinks("mnuLinks");
}

void frmTanks::addListMenu()
{
    QMenu* menu = menus().add("&List", "mnuTankList");
    int index = 0;
    const auto entry = [&](const char* caption, const char* keys, std::function<void()> action) {
        menus()
            .addEntry(menu, "mnuTankList", index++, caption, std::move(action))
            ->setShortcut(QKeySequence(keys));
    };
    entry("&New list", "", [this] { newList(); });
    entry("&Open a list of tanks (CSV)..", "Ctrl+O", [this] { openList(); });
    entry("&Save the list of tanks (CSV)..", "Ctrl+S", [this] { saveList(); });
    entry("&Begin the next survey", "", [this] { beginNextSurvey(); });
    entry("Ullage report of the survey be&fore..", "", [this] { printSurvey(TankSurvey::First); });
    entry("Ullage report of the survey &after..", "", [this] { printSurvey(TankSurvey::Last); });
    entry("&Undo", "Ctrl+Z", [this] { undo(); });
    entry("Re&do", "Ctrl+Y", [this] { redo(); });
}

void frmTanks::addRowMenu()
{
    QMenu* menu = menus().add("R&ow", "mnuTankRow");
    int index = 0;
    // With Shift: the boxes have Ctrl+D, Ctrl+U and the like for their own editing.
    const auto entry = [&](const char* caption, const char* keys, std::function<void()> action) {
        menus()
            .addEntry(menu, "mnuTankRow", index++, caption, std::move(action))
            ->setShortcut(QKeySequence(keys));
    };
    entry("&Insert a row", "Ctrl+Shift+I", [this] { insertRow(); });
    entry("&Delete the row", "Ctrl+Shift+D", [this] { deleteRow(); });
    entry("&Paste rows of a spreadsheet", "Ctrl+Shift+V", [this] { paste(); });
    entry("&Other survey", "Ctrl+Shift+S", [this] {
        const ListKind kind = listInHand();
        pageOf(kind).goToSurvey(m_work.survey(kind) == TankSurvey::First ? TankSurvey::Last
                                                                         : TankSurvey::First);
    });
}

void frmTanks::insertRow()
{
    if (m_work.insertRow(listInHand())) return refresh();
    tellRefused("No row was inserted", "a list has " + std::to_string(mostTanks) + " at most");
}

void frmTanks::deleteRow()
{
    m_work.deleteRow(listInHand());
    refresh();
}

void frmTanks::undo()
{
    const std::string name = m_work.undo();
    if (name.empty()) return;
    refresh();
    sayForAWhile("Taken back: " + asQString(name) + ".");
}

void frmTanks::redo()
{
    const std::string name = m_work.redo();
    if (name.empty()) return;
    refresh();
    sayForAWhile("Done again: " + asQString(name) + ".");
}

void frmTanks::beginNextSurvey()
{
    m_work.beginNextSurvey(listInHand());
    refresh();
    sayForAWhile("The last survey is the one before now; List, Undo takes it back.");
}

void frmTanks::newList()
{
    TankSheet sheet = m_work.sheet();
    sheet.list(listInHand()) = {};
    m_work.replace(std::move(sheet), "New list");
    refresh();
}

void frmTanks::tellRefused(const std::string& what, const std::string& why)
{
    program().questions().ask(
        {what + ": " + why + ".\rThe list is as it was.", programTitle, Buttons::Ok});
}

void frmTanks::openList()
{
    const auto path = program().questions().fileToRead("Open a list of tanks", "csv");
    if (!path) return;
    const FileStore::Content file = program().files().readAnywhere(*path);
    if (file.status != FileStore::Content::Status::Read)
        return tellRefused('"' + *path + "\" was not opened",
                           file.reason.empty() ? "it is missing" : file.reason);
    takeList(file.bytes, fileName(*path).toStdString());
}

void frmTanks::paste()
{
    takeList(QApplication::clipboard()->text().toStdString(), "the clipboard");
}

void frmTanks::takeList(const std::string& text, const std::string& from)
{
    const ListKind kind = listInHand();
    ReadTanks read =
        readTanks(text, m_work.list(kind), m_work.sheet().choices, m_work.survey(kind));
    if (!read.fault.empty()) return tellRefused(from + " was not taken", read.fault);
    const std::size_t tanks = read.rows.size();
    TankSheet sheet = m_work.sheet();
    sheet.list(kind).rows = std::move(read.rows);
    m_work.replace(std::move(sheet), "Open " + from);
    refresh();
    sayForAWhile(QString("%1 taken, the list has %2 tanks; List, Undo brings back what was there.")
                     .arg(asQString(from))
                     .arg(tanks));
}

void frmTanks::saveList()
{
    WorkingPaper named;
    named.kind = listInHand() == ListKind::Cargo ? "Tank list" : "Bunker tanks";
    const auto path = program().questions().fileToWrite(
        "Save the list of tanks", offeredName(program().paperHeading(), named, "csv"));
    if (!path) return; // the window may have gone under the question
    const ExportTable table = tankTable(m_work.list(listInHand()), m_work.sheet().choices);
    if (!printer().write(*path, spreadsheetMark + csvText(table))) return;
    sayForAWhile("Saved as " + fileName(*path) + ".");
}

/// The report of a survey is that of the page of tanks, of the list in hand.
void frmTanks::printSurvey(TankSurvey survey)
{
    const ListKind kind = listInHand();
    if (kind == ListKind::Cargo) m_pages->turnTo(Tanks);
    pageOf(kind).goToSurvey(survey);
    printPaper();
}

} // namespace korvel
