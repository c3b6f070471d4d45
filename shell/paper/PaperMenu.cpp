// SPDX-License-Identifier: MIT
#include "shell/paper/PaperMenu.h"

#include "app/working/Journal.h"
#include "routes/files/Gpx.h"
#include "shell/controls/Boxes.h"
#include "shell/machine/AsQString.h"
#include "shell/program/Program.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenuBar>

namespace korvel
{

PaperMenu::PaperMenu(Program& program, QMainWindow& window, Hooks hooks)
    : m_program(program), m_window(window), m_printer(program, window), m_hooks(std::move(hooks))
{
}

QMenu* PaperMenu::addTo(QMenuBar& bar, QAction* first)
{
    QMenu* menu = bar.addMenu("P&aper");
    menu->setObjectName("mnuPaper");
    if (first) {
        menu->addAction(first);
        first->setObjectName(memberName("mnuPaper", 0));
    }
    add(menu, "&Print..", ifFree(QKeySequence::Print), &PaperMenu::print);
    add(menu, "Save as P&DF..", {}, &PaperMenu::savePDF);
    add(menu, "&Copy results", ifFree(Qt::CTRL | Qt::SHIFT | Qt::Key_C), &PaperMenu::copyResults);
    add(menu, "&Keep in the journal", {}, &PaperMenu::keep);
    QAction* list = add(menu, "Save the &list as CSV..", {}, &PaperMenu::exportList);
    QAction* line = add(menu, "Save the &route or track as GPX..", {}, &PaperMenu::exportLine);
    connect(menu, &QMenu::aboutToShow, this, [this, list, line] {
        const PaperDocument document = m_hooks.document();
        list->setEnabled(document.paper().list.has_value());
        line->setEnabled(document.paper().line.has_value());
    });
    return menu;
}

/// A window that prints or copies in a way of its own keeps the key for it.
QKeySequence PaperMenu::ifFree(const QKeySequence& keys) const
{
    const QList<QAction*> others = m_window.findChildren<QAction*>();
    const bool isTaken = std::any_of(others.begin(), others.end(),
                                     [&](const QAction* each) { return each->shortcut() == keys; });
    return isTaken ? QKeySequence() : keys;
}

QAction* PaperMenu::add(QMenu* menu, const QString& caption, const QKeySequence& keys,
                        void (PaperMenu::*run)() const)
{
    // Number 0 is the entry before those of every paper, whether there is one or not.
    const bool hasFirst = !menu->actions().isEmpty() &&
                          menu->actions().first()->objectName() == memberName("mnuPaper", 0);
    const int index = static_cast<int>(menu->actions().size()) + (hasFirst ? 0 : 1);
    QAction* entry = menu->addAction(caption, this, [this, run] { (this->*run)(); });
    entry->setObjectName(memberName("mnuPaper", index));
    entry->setShortcut(keys);
    return entry;
}

void PaperMenu::save(const std::string& title, const std::string& offered,
                     const std::string& bytes) const
{
    const auto path = m_program.questions().fileToWrite(title, offered);
    if (!path || !m_printer.write(*path, bytes)) return;
    m_hooks.tell(QString("Saved as %1.").arg(QFileInfo(asQString(*path)).fileName()));
}

void PaperMenu::savePDF() const
{
    const PaperDocument document = m_hooks.document();
    save("Save the paper as PDF", offeredName(document.heading(), document.paper(), "pdf"),
         document.PDF().toStdString());
}

void PaperMenu::copyResults() const
{
    const std::string results = resultsText(m_hooks.document().paper());
    // A figure in miles says nothing without the mile that it is in.
    const bool isInMiles = results.find("nautical mile") != std::string::npos ||
                           results.find("\tnm\n") != std::string::npos;
    const char* const mile =
        m_program.saved().unitOfLatitude() ? "1nm=1' (of LATITUDE)" : "1nm=1852m";
    QApplication::clipboard()->setText(
        asQString(results + (isInMiles ? std::string("Miles\t") + mile + '\n' : "")));
    m_hooks.tell("Results copied.");
}

void PaperMenu::keep() const
{
    const PaperDocument document = m_hooks.document();
    const std::string fault =
        Journal(m_program.files())
            .keep(document.heading().SMT, paperText(document.heading(), document.paper()));
    if (fault.empty())
        m_hooks.tell("Kept in the journal of the day.");
    else
        m_program.questions().ask({fault, programTitle, Buttons::Ok});
}

void PaperMenu::exportList() const
{
    const PaperDocument document = m_hooks.document();
    if (!document.paper().list) return;
    save("Save the list", offeredName(document.heading(), document.paper(), "csv"),
         spreadsheetMark + csvText(*document.paper().list));
}

void PaperMenu::exportLine() const
{
    const PaperDocument document = m_hooks.document();
    if (!document.paper().line) return;
    save("Save for a chart program", offeredName(document.heading(), document.paper(), "gpx"),
         writeGpx(*document.paper().line, document.heading().program, document.heading().SMT));
}

} // namespace korvel
