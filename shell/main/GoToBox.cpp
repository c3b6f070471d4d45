// SPDX-License-Identifier: MIT
#include "shell/main/GoToBox.h"

#include "shell/controls/Boxes.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr int listHeight = 12; // lines
constexpr int listWidth = 60;  // letters

} // namespace

GoToBox::GoToBox(QWidget& from, std::vector<GoToPlace> places)
    : QDialog(&from), m_places(std::move(places)), m_txtGoTo(new QLineEdit(this)),
      m_lstGoTo(new QListWidget(this))
{
    setObjectName("dlgGoTo");
    setWindowTitle("Go to");
    setAttribute(Qt::WA_DeleteOnClose);
    m_txtGoTo->setObjectName("txtGoTo");
    m_txtGoTo->setAccessibleName("Go to, three letters of a name and Enter");
    m_txtGoTo->setPlaceholderText("three letters of a window, entry, station, unit or manual head");
    m_txtGoTo->setMaxLength(EntryBox::longestFigure);
    m_lstGoTo->setObjectName("lstGoTo");
    m_lstGoTo->setAccessibleName("Places found");
    m_lstGoTo->setFocusPolicy(Qt::NoFocus); // the box keeps the keyboard, its arrow keys move here
    m_lstGoTo->setMinimumSize(listWidth * fontMetrics().averageCharWidth(),
                              listHeight * fontMetrics().lineSpacing());
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_txtGoTo);
    column->addWidget(m_lstGoTo);
    m_txtGoTo->installEventFilter(this);
    connect(m_txtGoTo, &QLineEdit::textChanged, this, [this] { find(); });
    connect(m_lstGoTo, &QListWidget::itemClicked, this, [this] { go(); });
    m_txtGoTo->setFocus();
    find();
}

void GoToBox::find()
{
    m_found = findPlaces(m_places, m_txtGoTo->text());
    m_lstGoTo->clear();
    for (const GoToPlace* place : m_found)
        m_lstGoTo->addItem(place->name + "  –  " + place->where);
    if (!m_found.empty()) m_lstGoTo->setCurrentRow(0);
}

void GoToBox::go()
{
    const int row = m_lstGoTo->currentRow();
    if (row < 0 || static_cast<std::size_t>(row) >= m_found.size()) return;
    // What it goes to may be a question of its own: this box is closed by then.
    const std::function<void()> goes = m_found[static_cast<std::size_t>(row)]->go;
    accept();
    QTimer::singleShot(0, qApp, goes);
}

bool GoToBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        go();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QApplication::sendEvent(m_lstGoTo, key);
        return true;
    default:
        return QDialog::eventFilter(watched, event);
    }
}

} // namespace korvel
