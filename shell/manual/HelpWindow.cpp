// SPDX-License-Identifier: MIT
#include "shell/manual/HelpWindow.h"

#include "shell/controls/Boxes.h"
#include "shell/manual/FoundLines.h"
#include "shell/manual/Manual.h"
#include "shell/screen/WindowPlaces.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTextDocument>

namespace korvel
{
namespace
{

constexpr int pageRole = Qt::UserRole;
constexpr int positionRole = Qt::UserRole + 1;
constexpr int mostFound = 200;

QPushButton* button(const char* name, const QString& caption, const QString& keys)
{
    auto* made = new QPushButton(caption);
    made->setObjectName(name);
    made->setToolTip(keys);
    made->setAutoDefault(false);
    return made;
}

} // namespace

HelpWindow::HelpWindow(const Manual& manual, QWidget* parent)
    : QWidget(parent, Qt::Window), m_manual(manual), m_view(new HelpView(manual)),
      m_cmdBack(button("cmdBack", "&Back", "Alt+Left")),
      m_cmdForward(button("cmdForward", "For&ward", "Alt+Right")), m_txtFind(new QLineEdit),
      m_lstFound(new QListWidget), m_foundLines(new FoundLines(this)),
      m_contentLines(m_lstFound->itemDelegate())
{
    setObjectName("frmHelp");
    setAttribute(Qt::WA_DeleteOnClose);
    m_txtFind->setObjectName("txtFindHelp");
    m_txtFind->setAccessibleName("Find in the manual");
    m_txtFind->setMaxLength(EntryBox::longestText);
    m_lstFound->setObjectName("lstHelp");
    m_lstFound->setAccessibleName("Contents, or what was found");
    m_lstFound->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_lstFound->setTextElideMode(Qt::ElideRight);
    m_cmdBack->setEnabled(false);
    m_cmdForward->setEnabled(false);
    layOut();
    addKeys();

    connect(m_view, &QTextBrowser::backwardAvailable, m_cmdBack, &QWidget::setEnabled);
    connect(m_view, &QTextBrowser::forwardAvailable, m_cmdForward, &QWidget::setEnabled);
    connect(m_cmdBack, &QPushButton::clicked, m_view, &QTextBrowser::backward);
    connect(m_cmdForward, &QPushButton::clicked, m_view, &QTextBrowser::forward);
    connect(m_view, &HelpView::pageShown, this, [this](const QString& page) {
        setWindowTitle(m_manual.title(page) + " – KORVEL2000 manual");
        if (m_txtFind->text().trimmed().isEmpty()) showContents();
    });
    connect(m_txtFind, &QLineEdit::textChanged, this, &HelpWindow::showList);
    connect(m_txtFind, &QLineEdit::returnPressed, this, [this] { findInPage(false); });
    connect(m_lstFound, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { go(*item); });
    connect(m_lstFound, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { go(*item); });
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::layOut()
{
    auto* find = new QLabel("&Find");
    find->setBuddy(m_txtFind);
    auto* top = new QHBoxLayout;
    for (QWidget* each : {static_cast<QWidget*>(m_cmdBack), static_cast<QWidget*>(m_cmdForward),
                          static_cast<QWidget*>(find), static_cast<QWidget*>(m_txtFind)})
        top->addWidget(each);
    auto* beside = new QSplitter;
    beside->addWidget(m_lstFound);
    beside->addWidget(m_view);
    beside->setChildrenCollapsible(false);
    beside->setStretchFactor(1, 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(beside, 1);

    resizeForText(*this, 126, 36);
    const int list = std::min(34 * fontMetrics().averageCharWidth(), width() * 3 / 10);
    beside->setSizes({list, width() - list});
}

void HelpWindow::addKeys()
{
    const auto key = [this](const QKeySequence& keys, auto run) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
    };
    key(Qt::Key_Escape, [this] { close(); });
    key(QKeySequence("Ctrl+W"), [this] { close(); });
    key(QKeySequence("Alt+Left"), [this] { m_view->backward(); });
    key(QKeySequence("Alt+Right"), [this] { m_view->forward(); });
    key(QKeySequence("Ctrl+F"), [this] {
        m_txtFind->setFocus(Qt::ShortcutFocusReason);
        m_txtFind->selectAll();
    });
    key(Qt::Key_F3, [this] { findInPage(false); });
    key(QKeySequence("Shift+F3"), [this] { findInPage(true); });
}

void HelpWindow::openAt(const QStringList& pages, const QString& name)
{
    m_txtFind->clear();
    for (const QString& page : pages)
        if (m_manual.has(page) && placeOf(document(page), name)) {
            m_view->openAt(page, name);
            m_view->setFocus(Qt::OtherFocusReason);
            return;
        }
    m_view->openAt(pages.front(), QString());
    m_view->setFocus(Qt::OtherFocusReason);
}

void HelpWindow::showList()
{
    const QString words = m_txtFind->text().trimmed();
    m_view->mark(words);
    if (words.isEmpty())
        showContents();
    else
        showFound(words);
}

void HelpWindow::showContents()
{
    m_lstFound->clear();
    m_lstFound->setItemDelegate(m_contentLines);
    m_lstFound->setWordWrap(true);
    for (const QString& page : Manual::pages()) {
        if (!m_manual.has(page)) continue;
        addItem(m_manual.title(page), page, 0);
        if (page != m_view->page()) continue;
        m_lstFound->setCurrentRow(m_lstFound->count() - 1);
        for (const PagePlace& section : sectionsOf(*m_view->document()))
            addItem("    " + section.text, page, section.position);
    }
}

void HelpWindow::showFound(const QString& words)
{
    m_lstFound->clear();
    m_lstFound->setWordWrap(false);
    if (m_lines.empty()) readAll();
    const QStringList wanted = wordsToFind(words);
    m_foundLines->setWords(wanted);
    m_lstFound->setItemDelegate(m_foundLines);
    int found = 0;
    QString title;
    for (const Line& line : m_lines) {
        if (!holdsWords(line.place.text, wanted)) continue;
        if (found == mostFound) {
            addHead("There is more: add a word");
            break;
        }
        if (std::exchange(title, line.title) != line.title) addHead(line.title);
        const QString shown = foundLine(line.place.text, wanted);
        QListWidgetItem* item = addItem(shown, line.page, line.place.position);
        item->setToolTip(line.place.text);
        item->setData(Qt::AccessibleTextRole, line.title + ": " + line.place.text);
        if (++found == 1) m_lstFound->setCurrentItem(item);
    }
    if (found == 0) addHead("Nothing found");
}

/// A key of a search must not wait for pages and tables to be read.
void HelpWindow::readAll()
{
    for (const QString& page : Manual::pages()) {
        if (!m_manual.has(page)) continue;
        const QString title = m_manual.title(page);
        for (PagePlace& place : linesOf(document(page)))
            m_lines.push_back({page, title, std::move(place)});
    }
}

QListWidgetItem* HelpWindow::addItem(const QString& text, const QString& page, int position)
{
    auto* item = new QListWidgetItem(text, m_lstFound);
    item->setToolTip(text.trimmed());
    item->setData(pageRole, page);
    item->setData(positionRole, position);
    return item;
}

void HelpWindow::addHead(const QString& text)
{
    (new QListWidgetItem(text, m_lstFound))->setFlags(Qt::NoItemFlags);
}

void HelpWindow::go(const QListWidgetItem& item)
{
    const QString page = item.data(pageRole).toString();
    if (page.isEmpty()) return;
    // The list is made anew with the page, and the item with it.
    const PagePlace place{item.data(positionRole).toInt(), {}};
    m_view->openAt(page, place, m_txtFind->text().trimmed());
}

void HelpWindow::findInPage(bool backwards)
{
    const QString words = m_txtFind->text().trimmed();
    // What is not in this page is in the list: the first that was found elsewhere is opened.
    if (words.isEmpty() || m_view->findNext(words, backwards)) return;
    for (int row = 0; row < m_lstFound->count(); ++row)
        if (m_lstFound->item(row)->flags() & Qt::ItemIsSelectable)
            return go(*m_lstFound->item(row));
}

QTextDocument& HelpWindow::document(const QString& page)
{
    std::unique_ptr<QTextDocument>& made = m_documents[page];
    if (!made) {
        made = std::make_unique<QTextDocument>();
        made->setMarkdown(m_manual.text(page));
    }
    return *made;
}

} // namespace korvel
