// SPDX-License-Identifier: MIT
#include "shell/paper/JournalWindow.h"

#include "shell/controls/Boxes.h"
#include "shell/machine/AsQString.h"
#include "shell/paper/PaperDocument.h"
#include "shell/program/Program.h"
#include "shell/screen/WindowPlaces.h"

#include <QDeadlineTimer>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

constexpr const char* widestDay = "0000-00-00 00";
constexpr auto atOnce = 50ms; // of a search, before the next key is looked at

} // namespace

JournalWindow::JournalWindow(Program& program)
    : m_program(program), m_journal(program.files()), m_printer(program, *this),
      m_menus(program, *this), m_search(new QLineEdit), m_days(new QListWidget),
      m_text(new QPlainTextEdit), m_found(new QLabel)
{
    setObjectName("frmJournal");
    setWindowTitle("Journal of kept papers");
    m_search->setObjectName("txtSearch");
    m_search->setAccessibleName("Words to be found in the journal");
    m_search->setMaxLength(EntryBox::longestText);
    m_searchOn.setSingleShot(true);
    connect(&m_searchOn, &QTimer::timeout, this, [this] {
        const QString before = day();
        searchOn();
        if (day() != before) showDay();
    });
    m_search->setPlaceholderText("Words to be found; Enter goes on to the next place");
    m_days->setObjectName("lstDays");
    m_days->setAccessibleName("Days of the journal");
    m_days->setFixedWidth(fontMetrics().horizontalAdvance(widestDay) * 3 / 2);
    m_text->setObjectName("txtDay");
    m_text->setAccessibleName("What was kept on the day");
    m_text->setReadOnly(true);
    QFont fixed; // as large as all letters
    fixed.setFamilies(QFontDatabase::systemFont(QFontDatabase::FixedFont).families());
    m_text->setFont(fixed);
    m_found->setObjectName("lblFound");
    m_found->setAccessibleName("What was found");

    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    auto* row = new QHBoxLayout;
    column->addWidget(m_search);
    column->addLayout(row, 1);
    column->addWidget(m_found);
    row->addWidget(m_days);
    row->addWidget(m_text, 1);
    setCentralWidget(centre);
    resizeForText(*this, 124, 36);
    holdInPlace(program.screen(), *this);
    addMenus(program);

    connect(m_search, &QLineEdit::textChanged, this, &JournalWindow::refresh);
    connect(m_search, &QLineEdit::returnPressed, this, &JournalWindow::findNext);
    connect(m_days, &QListWidget::currentRowChanged, this, &JournalWindow::showDay);
    refresh();
    m_search->setFocus();
}

void JournalWindow::addMenus(Program& program)
{
    QMenu* menu = menuBar()->addMenu("&Journal");
    menu->setObjectName("mnuJournal");
    const auto add = [&](const char* caption, const QKeySequence& keys, auto run) {
        QAction* entry = menu->addAction(caption, this, run);
        entry->setObjectName(QString("mnuJournal(%1)").arg(menu->actions().size() - 1));
        entry->setShortcut(keys);
    };
    add("&Print the day..", QKeySequence::Print, [this] { print(); });
    add("&Find next", Qt::Key_F3, [this] { findNext(); });
    add("&Read again", Qt::Key_F5, [this] { refresh(); });
    m_menus.addView();
    program.help().addMenu(*menuBar());
}

QString JournalWindow::day() const
{
    const QListWidgetItem* item = m_days->currentItem();
    return item ? item->text() : QString();
}

void JournalWindow::refresh()
{
    m_searchOn.stop();
    const std::string words = m_search->text().toStdString();
    m_running = words.empty() ? nullptr : std::make_unique<JournalSearch>(m_program.files(), words);
    if (m_running)
        searchOn();
    else
        showDays(m_journal.days());
    showDay();
}

/// Searches for a moment, and goes on when whatever else there is to do is done.
void JournalWindow::searchOn()
{
    const QDeadlineTimer end(atOnce);
    bool isMore = true;
    while (isMore && !end.hasExpired())
        isMore = m_running->goOn();
    showDays(m_running->found());
    if (!isMore) return;
    m_found->setText(m_found->text() + "  Searching on..");
    m_searchOn.start(0);
}

/// Lists days; the one that is shown stays where it is among them.
void JournalWindow::showDays(const std::vector<std::string>& days)
{
    const QString before = day();
    {
        const QSignalBlocker quiet(m_days);
        m_days->clear();
        for (const std::string& each : days)
            m_days->addItem(asQString(each));
        const auto same = m_days->findItems(before, Qt::MatchExactly);
        if (!same.isEmpty())
            m_days->setCurrentItem(same.first());
        else if (m_days->count() > 0)
            m_days->setCurrentRow(0);
    }
    const auto count = QString::number(days.size());
    if (days.empty())
        m_found->setText(m_running ? "On no day."
                                   : "Nothing was kept yet: \"Keep in the journal\" in the "
                                     "menu Paper of any window keeps its paper.");
    else
        m_found->setText(m_running ? "Found on days: " + count : "Days: " + count);
}

void JournalWindow::showDay()
{
    m_text->setPlainText(day().isEmpty() ? QString()
                                         : asQString(m_journal.text(day().toStdString())));
    if (!m_search->text().isEmpty()) m_text->find(m_search->text());
}

void JournalWindow::findNext()
{
    if (m_search->text().isEmpty() || m_text->find(m_search->text())) return;
    m_text->moveCursor(QTextCursor::Start);
    m_text->find(m_search->text());
}

void JournalWindow::print() const
{
    if (!day().isEmpty())
        m_printer.print(
            PaperDocument(m_program.paperHeading(), "Journal of " + day(), m_text->toPlainText()));
}

} // namespace korvel
