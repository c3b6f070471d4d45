// SPDX-License-Identifier: MIT
#include "shell/paper/PaperWindow.h"

#include "shell/program/Program.h"
#include "shell/screen/ColourScheme.h"
#include "shell/screen/NightSheet.h"
#include "shell/screen/WindowPlaces.h"

#include <QEvent>
#include <QMenuBar>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTimer>

namespace korvel
{

PaperWindow::PaperWindow(Program& program, const PaperDocument& paper, QWidget* parent)
    : QMainWindow(parent, Qt::Window), m_program(program), m_paper(paper), m_text(new QTextBrowser),
      m_menu(program, *this,
             {[this] { return m_paper; },
              [this](const QString& said) { statusBar()->showMessage(said); }}),
      m_menus(program, *this)
{
    setObjectName("frmPaper");
    setAttribute(Qt::WA_DeleteOnClose);
    m_text->setObjectName("txtPaper");
    m_text->setAccessibleName("Working paper");
    m_text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // its coming would change the width
    // Paper is black on white, whatever the colours of the screen; the night only sees it
    // otherwise.
    QPalette blackOnWhite = ColourScheme::day().palette;
    blackOnWhite.setColor(QPalette::Base, Qt::white);
    blackOnWhite.setColor(QPalette::Text, Qt::black);
    m_text->setPalette(blackOnWhite);
    m_text->setGraphicsEffect(new NightSheet(m_text));
    m_text->viewport()->installEventFilter(this);
    setCentralWidget(m_text);
    m_menu.addTo(*menuBar(), nullptr);
    m_menus.addView();
    program.help().addMenu(*menuBar());
    connect(&program.screen(), &Screen::zoomChanged, this, &PaperWindow::zoom);
    // Its palette stays, so nothing else shows the sheet anew.
    connect(&program, &Program::coloursChanged, m_text->viewport(), qOverload<>(&QWidget::update));
    resizeForText(*this, 118, 50);
    holdInPlace(program.screen(), *this);
    showPaper(paper);
}

void PaperWindow::showPaper(const PaperDocument& paper)
{
    m_paper = paper;
    setWindowTitle("Paper: " + paper.title());
    // Shown first: then the document knows its width before it is written.
    m_text->clear();
    show();
    raise();
    activateWindow();
    m_rest = m_paper.fillBeginning(*m_text->document(), m_program.screen().choices().zoom);
    m_text->moveCursor(QTextCursor::Start);
}

void PaperWindow::zoom()
{
    m_text->document()->setDefaultFont(PaperDocument::letters(m_program.screen().choices().zoom));
    resizeForText(*this, 118, 50);
    placeAfterZoom(*this);
}

void PaperWindow::finish()
{
    if (m_rest > 0) m_paper.fillRest(*m_text->document(), m_rest);
    m_rest = 0;
}

bool PaperWindow::eventFilter(QObject*, QEvent* event)
{
    // A long paper is read from its beginning: what does not show comes after what does.
    if (event->type() == QEvent::Paint && m_rest > 0)
        QTimer::singleShot(0, this, &PaperWindow::finish);
    return false;
}

} // namespace korvel
