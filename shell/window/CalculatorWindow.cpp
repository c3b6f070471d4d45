// SPDX-License-Identifier: MIT
#include "shell/window/CalculatorWindow.h"

#include "app/reading/Reading.h"
#include "shell/controls/ChosenOption.h"
#include "shell/controls/PictureBox.h"
#include "shell/controls/ReadingOrder.h"
#include "shell/controls/TextTable.h"
#include "shell/layout/FollowingScrollArea.h"
#include "shell/paper/PaperWindow.h"
#include "shell/screen/WidgetColours.h"
#include "shell/screen/WindowGlyphs.h"
#include "shell/screen/WindowPlaces.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

constexpr const char* doneKey = "~done"; // on no paper
constexpr auto shownFor = 6s;

} // namespace

CalculatorWindow::CalculatorWindow(Program& program, const QString& name, const QString& caption)
    : m_program(program), m_body(new QWidget), m_notices(new NoticeLine),
      m_calculations(new CalculationRunner(
          *m_notices, [this](const auto& labels, bool dimmed) { setDimmed(labels, dimmed); },
          this)),
      m_record(new WindowRecord(program, *m_notices, *this)), m_menus(program, *this),
      m_printer(program, *this),
      m_paperMenu(new PaperMenu(program, *this,
                                {[this] { return paperDocument(); },
                                 [this](const QString& said) { sayForAWhile(said); }})),
      m_sizes(program.screen().choices().zoom)
{
    setObjectName(name);
    setWindowTitle(caption);
    setWindowIcon(windowGlyph(name));
    setAttribute(Qt::WA_DeleteOnClose);
    tellResultsToAssistiveTools();

    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    column->addWidget(m_body, 1);
    column->addWidget(m_notices);
    setCentralWidget(centre);

    connect(&m_program, &Program::distanceUnitChanged, m_calculations, &CalculationRunner::runAll);
    connect(&m_program, &Program::recordsWanted, m_record, &WindowRecord::saveNow);
    connect(&m_program, &Program::coloursChanged, this, [this] { applyColours(); });
    connect(&m_program.screen(), &Screen::zoomChanged, this, &CalculatorWindow::zoom);
    new PlaceWatch(m_program.screen(), *this);
}

void CalculatorWindow::loadSettings()
{
    m_calculations->hold();
    const bool wasEntered = m_record->load();
    m_calculations->release(wasEntered);
    m_calculations->runAll();
    applyColours();
    letResultsBeStored();
    addPaperMenu();
    m_menus.addView();
    m_program.help().addMenu(*menuBar());
    setTabOrderByReading(*this);
    keepFocusAtChosenOptions(*this);
    for (const EntryBox* box : findChildren<EntryBox*>())
        connect(box, &QLineEdit::inputRejected, this, [this, box] { sayThatItIsFull(*box); });
}

/// What was left out of a paste is not seen in the box.
void CalculatorWindow::sayThatItIsFull(const EntryBox& box)
{
    sayForAWhileAs(NoticeLevel::Remark,
                   QString("%1: the box takes %2 characters, the rest was left out.")
                       .arg(box.words())
                       .arg(box.maxLength()));
}

void CalculatorWindow::letResultsBeStored()
{
    for (QWidget* each : findChildren<QWidget*>())
        if (auto* figures = dynamic_cast<StoresFigures*>(each); figures && each != m_notices)
            figures->storeInMemo = [this](const QString& figure) { storeInMemo(figure); };
}

/// A position goes into the Position Memo, a figure into the Single Memo.
void CalculatorWindow::storeInMemo(const QString& figure)
{
    const std::string text = figure.toStdString();
    if (const auto position = positionForMemo(text))
        return m_program.actions().storePosition(*position);
    m_program.actions().StoreInMemo(KORVEL2000Actions::Single, text);
}

void CalculatorWindow::goTo(const QString& place)
{
    if (auto* page = findChild<QPushButton*>(place))
        page->click();
    else if (auto* control = findChild<QWidget*>(place))
        control->setFocus(Qt::TabFocusReason);
}

void CalculatorWindow::addPaperMenu()
{
    auto* open = new QAction("&Working paper", this);
    open->setShortcut(Qt::Key_F2);
    connect(open, &QAction::triggered, this, &CalculatorWindow::openPaper);
    m_paperMenu->setParent(this);
    m_paperMenu->addTo(*menuBar(), open);
}

/// What was done is no remark on the figures: it goes after a moment.
void CalculatorWindow::sayForAWhileAs(NoticeLevel level, const QString& said)
{
    setNotice(doneKey, said, level);
    QTimer::singleShot(shownFor, this, [this] { setNotice(doneKey, {}); });
}

PaperDocument CalculatorWindow::paperDocument()
{
    return {m_program.paperHeading(), paper(), paperPictures()};
}

void CalculatorWindow::openPaper()
{
    if (m_paperWindow)
        m_paperWindow->showPaper(paperDocument());
    else
        m_paperWindow = new PaperWindow(m_program, paperDocument(), this);
}

WorkingPaper CalculatorWindow::paper() const
{
    WorkingPaper paper;
    paper.kind = windowTitle().toStdString();
    for (const FieldBoxes& fields : m_fields)
        for (std::size_t i = 0; i < fields.size(); ++i)
            paper.inputs.push_back(fields.paperFigure(i));
    for (const ResultLabel* label : m_labels)
        if (!label->text().isEmpty())
            paper.results.push_back(
                paperFigure(*label, label->paperText ? label->paperText() : std::string()));
    for (const QString& remark : m_notices->onPaper())
        paper.remarks.push_back(remark.toStdString());
    return paper;
}

PaperPicture CalculatorWindow::paperPicture(PictureBox& picture, const QString& caption,
                                            const QSize& size)
{
    return makePaperPicture(caption, size, [&picture](QPainter& painter, const QSize& room) {
        picture.drawOn(painter, room, ColourScheme::day());
    });
}

PaperFigure CalculatorWindow::paperFigure(const ResultLabel& label, const std::string& inFull)
{
    const std::string shown = label.text().toStdString();
    const bool isOther = !inFull.empty() && inFull != shown;
    return {label.words().toStdString(), isOther ? inFull : shown, label.unit().toStdString(),
            isOther ? shown : ""};
}

FieldBoxes CalculatorWindow::addFields(std::span<const Field> table)
{
    m_fields.emplace_back(table, m_body);
    return m_fields.back();
}

ResultLabel* CalculatorWindow::addLabel(const QString& name)
{
    auto* label = new ResultLabel(m_body);
    label->setObjectName(name);
    m_labels.push_back(label);
    return label;
}

QWidget* CalculatorWindow::scrollBody()
{
    auto* content = new ScrolledBody;
    setScrollArea(new FollowingScrollArea(content));
    return content;
}

void CalculatorWindow::setScrollArea(FollowingScrollArea* area)
{
    m_scrollArea = area;
    fitToScreen();
    auto* column = new QVBoxLayout(m_body);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(area);
}

void CalculatorWindow::foldColumns()
{
    m_scrollArea->foldColumns();
}

void CalculatorWindow::pinAnswers(QWidget* answers)
{
    m_scrollArea->setAnswers(answers);
}

void CalculatorWindow::addBelow(QWidget* widget)
{
    auto* column = static_cast<QVBoxLayout*>(centralWidget()->layout());
    column->insertWidget(column->count() - 1, widget);
}

void CalculatorWindow::addStrip(QWidget* content)
{
    m_strip = new FollowingScrollArea(content);
    m_strip->setFixedHeight(content->sizeHint().height());
    addBelow(m_strip);
}

void CalculatorWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    placeStrip();
}

void CalculatorWindow::placeStrip()
{
    if (!m_strip) return;
    constexpr int part = 3;
    // The window's own, for what is in it is laid out later.
    const QMargins around = centralWidget()->layout()->contentsMargins();
    const int room = width() - around.left() - around.right();
    m_strip->setFixedHeight(std::min(m_strip->widget()->heightForWidth(room), height() / part));
}

void CalculatorWindow::setDimmed(const std::vector<QLabel*>& labels, bool dimmed)
{
    for (QLabel* label : labels)
        setDimmed(*label, dimmed);
}

void CalculatorWindow::setDimmed(QWidget& result, bool dimmed)
{
    if (dimmed == isDimmed(&result)) return;
    if (dimmed) {
        m_dimmed.insert(&result);
        setTextColour(&result, m_program.colours().dimmed);
    } else {
        m_dimmed.erase(&result);
        resetTextColour(&result);
    }
    // Seen without colours too.
    QFont letters = result.font();
    letters.setItalic(dimmed);
    result.setFont(letters);
}

void CalculatorWindow::applyColours()
{
    const ColourScheme& colours = m_program.colours();
    m_notices->setColours({colours.echo, colours.done, colours.notice, colours.fault});
    for (PositionBox* box : findChildren<PositionBox*>())
        setTextColour(box->echo(), colours.echo);
    for (PictureBox* picture : findChildren<PictureBox*>())
        picture->setColours(colours);
    for (QWidget* result : m_dimmed)
        setTextColour(result, colours.dimmed);
}

void CalculatorWindow::closeEvent(QCloseEvent* event)
{
    m_record->saveAtClose();
    keepPlace(m_program.screen(), *this, false);
    m_program.tellClosed(*this);
    event->accept();
}

void CalculatorWindow::showEvent(QShowEvent* event)
{
    // The toolkit gives a new window two thirds of the screen at most; a window that can scroll, or
    // whose picture can shrink, would take that where all of it could be shown.
    if (!m_wasShown) { // once; afterwards the officer's size and place hold
        m_wasShown = true;
        if (m_fitsScreen) fit();
        putInPlace(m_program.screen(), *this);
        m_notices->hintAt(focusWidget()); // also behind another window
    }
    QMainWindow::showEvent(event);
}

void CalculatorWindow::fit()
{
    const QSize room = roomOnScreen(*this);
    const QSize menus(menuBar()->sizeHint().width(), 0); // all of them in sight
    if (!m_scrollArea) {
        settleLayouts(*this);
        resize(sizeHint().expandedTo(menus).boundedTo(room));
        return;
    }
    m_scrollArea->foldByHand(true);
    m_scrollArea->foldFor(QWIDGETSIZE_MAX);
    if (m_strip) m_strip->setFixedHeight(m_strip->widget()->sizeHint().height());
    settleLayouts(*this);
    const QSize around = sizeHint() - m_scrollArea->sizeHint();
    QSize wanted = m_scrollArea->sizeFor(room.width() - around.width()) + around;
    // Tables of other pages scroll up and down only where the screen has the room.
    for (const TextTable* table : m_body->findChildren<TextTable*>())
        wanted = wanted.expandedTo(QSize(table->widthOfColumns() + around.width(), 0));
    settleLayouts(*this);
    m_scrollArea->foldByHand(false);
    resize(wanted.expandedTo(menus).boundedTo(room));
    placeStrip();
}

void CalculatorWindow::zoom()
{
    m_sizes.follow(*this, m_program.screen().choices().zoom);
    fit();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    if (isVisible()) placeAfterZoom(*this);
}

} // namespace korvel
