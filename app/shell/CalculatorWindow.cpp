// SPDX-License-Identifier: MIT
#include "app/shell/CalculatorWindow.h"

#include "app/shell/FollowingScrollArea.h"
#include "navlib/arithmetic_error.h"

#include <QAction>
#include <QCloseEvent>
#include <QGridLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr QMarginsF pageMargins(15, 15, 15, 15); // millimetres

void tint(QWidget* widget, const QColor& colour)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, colour);
    widget->setPalette(palette);
}

} // namespace

CalculatorWindow::CalculatorWindow(Program& program, const QString& name, const QString& caption)
    : m_program(program), m_body(new QWidget), m_notice(new ResultLabel)
{
    setObjectName(name);
    setWindowTitle(caption);
    setAttribute(Qt::WA_DeleteOnClose);

    m_notice->setObjectName("lblNotice");
    m_notice->setAccessibleName("Notice");
    m_notice->setWordWrap(true);
    m_notice->setFont(font()); // copied like a result, read like a caption
    // Two lines are kept free, so that a notice never moves the boxes under the officer's hand.
    m_notice->setMinimumHeight(2 * m_notice->fontMetrics().lineSpacing());
    m_notice->setAlignment(Qt::AlignLeft | Qt::AlignBottom);

    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    column->addWidget(m_body, 1);
    column->addWidget(m_notice);
    setCentralWidget(centre);

    connect(&m_program, &Program::distanceUnitChanged, this, &CalculatorWindow::calculateAll);
    connect(&m_program, &Program::coloursChanged, this, [this] { applyColours(); });
}

QString CalculatorWindow::notice() const
{
    return m_notice->text();
}

EntryBox* CalculatorWindow::addTextBox(const QString& name, const QString& accessibleName)
{
    auto* box = new EntryBox(m_body);
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    return box;
}

KeyUpBox* CalculatorWindow::addKeyUpBox(const QString& name, const QString& accessibleName)
{
    auto* box = new KeyUpBox(m_body);
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    return box;
}

PositionBox* CalculatorWindow::addPositionBox(const QString& name, Axis axis,
                                              const QString& accessibleName)
{
    auto* box = new PositionBox(axis, m_body);
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    return box;
}

ResultLabel* CalculatorWindow::addLabel(const QString& name)
{
    auto* label = new ResultLabel(m_body);
    label->setObjectName(name);
    return label;
}

void CalculatorWindow::addEntryRow(QGridLayout* grid, int row, const QString& caption,
                                   EntryBox* box, const QString& unit)
{
    auto* label = new QLabel(caption);
    label->setBuddy(box);
    grid->addWidget(label, row, 0);
    grid->addWidget(box, row, 1);
    grid->addWidget(new QLabel(unit), row, 2, 1, -1);
}

void CalculatorWindow::addResultRow(QGridLayout* grid, int row, const QString& caption,
                                    ResultLabel* label, const QString& unit)
{
    grid->addWidget(new QLabel(caption), row, 0);
    grid->addWidget(label, row, 1);
    grid->addWidget(new QLabel(unit), row, 2, 1, -1);
}

QWidget* CalculatorWindow::scrollBody()
{
    auto* content = new QWidget;
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

void CalculatorWindow::showEvent(QShowEvent* event)
{
    // The toolkit gives a new window two thirds of the screen at most; a window that can scroll, or
    // whose picture can shrink, would take that where all of it could be shown.
    if (m_fitsScreen) {
        m_fitsScreen = false; // once; afterwards the officer's size holds
        for (QLayout* each : {m_body->layout(), centralWidget()->layout(), layout()})
            each->invalidate(); // what they remember is from before the controls had their fonts
        const int frame = style()->pixelMetric(QStyle::PM_TitleBarHeight);
        const QSize room = screen()->availableSize() - QSize(frame, 2 * frame);
        QSize wanted = sizeHint();
        if (wanted.width() > room.width())
            wanted.rheight() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        resize(wanted.boundedTo(room));
    }
    QMainWindow::showEvent(event);
}

void CalculatorWindow::addBelow(QWidget* widget)
{
    auto* column = static_cast<QVBoxLayout*>(centralWidget()->layout());
    column->insertWidget(column->count() - 1, widget);
}

int CalculatorWindow::addCalculation(Calculation calculation)
{
    const int number = static_cast<int>(m_calculations.size());
    const auto run = [this, number] {
        if (!m_loading) calculate(number);
    };
    for (QLineEdit* box : calculation.inputs) {
        if (auto* keyUp = dynamic_cast<KeyUpBox*>(box))
            keyUp->onKeyUp = run;
        else
            connect(box, &QLineEdit::textChanged, this, run);
    }
    m_calculations.push_back(std::move(calculation));
    return number;
}

void CalculatorWindow::calculate(int number)
{
    const Calculation& calculation = m_calculations.at(static_cast<std::size_t>(number));
    try {
        calculation.run();
        setNotice(calculation.title, {});
    } catch (const NavFunc113::ArithmeticError& error) {
        for (QLabel* label : calculation.results)
            label->clear();
        setNotice(calculation.title, QString("%1 cannot be calculated from these figures (%2).")
                                         .arg(calculation.title, error.what()));
    }
}

void CalculatorWindow::calculateAll()
{
    for (std::size_t i = 0; i < m_calculations.size(); ++i)
        calculate(static_cast<int>(i));
}

void CalculatorWindow::setDimmed(const std::vector<QLabel*>& labels, bool dimmed)
{
    for (QLabel* label : labels) {
        if (dimmed == (m_dimmed.count(label) > 0)) continue;
        if (dimmed) {
            m_dimmed.insert(label);
            tint(label, m_program.colours().dimmed);
        } else {
            m_dimmed.erase(label);
            label->setPalette(QPalette());
        }
    }
}

void CalculatorWindow::setNotice(const QString& key, const QString& text)
{
    if (text.isEmpty())
        m_notices.erase(key);
    else
        m_notices[key] = text;
    QStringList lines;
    for (const auto& [each, line] : m_notices)
        lines << line;
    const QString shown = lines.join("  ");
    if (m_notice->text() != shown) m_notice->setText(shown);
}

void CalculatorWindow::useSettings(const std::string& file, std::vector<Kind> kinds, Save save,
                                   Load load, Salvage salvage)
{
    m_settings = std::make_unique<SettingsFile>(m_program.files(), m_program.questions(), file,
                                                std::move(kinds));
    m_save = std::move(save);
    m_load = std::move(load);
    m_salvage = std::move(salvage);
}

void CalculatorWindow::useTextSettings(const std::string& file, std::vector<QLineEdit*> boxes)
{
    std::vector<Kind> kinds(boxes.size(), Kind::Text);
    useSettings(
        file, std::move(kinds),
        [boxes] {
            Record record;
            for (const QLineEdit* box : boxes)
                record.push_back(box->text().toStdString());
            return record;
        },
        [boxes](const Record& record) {
            for (std::size_t i = 0; i < boxes.size(); ++i)
                boxes[i]->setText(QString::fromStdString(textOf(record[i])));
        });
}

void CalculatorWindow::loadSettings()
{
    m_loading = true;
    if (m_settings) {
        if (const auto record = m_settings->load())
            m_load(*record);
        else if (m_salvage && m_settings->damagedText())
            m_salvage(*m_settings->damagedText());
    }
    m_loading = false;
    calculateAll();
    applyColours();
}

void CalculatorWindow::saveSettingsNow()
{
    if (m_settings && !m_loading)
        setNotice("save", QString::fromStdString(m_settings->saveQuietly(m_save())));
}

void CalculatorWindow::saveSettingsAsked()
{
    if (!m_settings->isProtected()) {
        saveSettingsNow();
        return;
    }
    if (!m_overwriteRefused) m_settings->saveAtClose(m_save());
    m_overwriteRefused = m_settings->isProtected();
    setNotice("save", m_overwriteRefused ? QString("\"%1\" is left as it was found: nothing of "
                                                   "this window is on the disk yet.")
                                               .arg(QString::fromStdString(m_settings->name()))
                                         : QString());
}

void CalculatorWindow::saveSettingsSoon()
{
    if (m_savingSoon) return;
    m_savingSoon = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_savingSoon = false;
            saveSettingsNow();
        },
        Qt::QueuedConnection);
}

QMenu* CalculatorWindow::addMenu(const QString& caption, const QString& name)
{
    QMenu* menu = menuBar()->addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

QAction* CalculatorWindow::addEntry(QMenu* menu, const QString& array, int index,
                                    const QString& caption, std::function<void()> action)
{
    QAction* entry = menu->addAction(caption, this, std::move(action));
    entry->setObjectName(memberName(array, index));
    return entry;
}

QMenu* CalculatorWindow::memoMenu(QMenu*& menu, const QString& caption, const QString& name)
{
    if (!menu) menu = addMenu(caption, name);
    return menu;
}

QAction* CalculatorWindow::addMemoEntry(QMenu*& menu, const QString& title, const QString& array,
                                        const QString& caption, std::function<void()> action)
{
    QMenu* into = memoMenu(menu, title, array);
    return addEntry(into, array, static_cast<int>(into->actions().size()), caption,
                    std::move(action));
}

void CalculatorWindow::addStoreSingle(const QString& caption, Text value)
{
    addMemoEntry(m_mnuMemo, "&Memo", "mnuMemo", caption, [this, value = std::move(value)] {
        program().actions().StoreInMemo(KORVEL2000Actions::Single, value());
    });
}

QAction* CalculatorWindow::addStorePosition(const QString& caption, Text latitude, Text longitude)
{
    return addMemoEntry(m_mnuMemo, "&Memo", "mnuMemo", caption,
                        [this, latitude = std::move(latitude), longitude = std::move(longitude)] {
                            program().actions().storePosition(latitude(), longitude());
                        });
}

void CalculatorWindow::addRecallSingle(const QString& caption, QLineEdit* box)
{
    addMemoEntry(m_mnuRem, "&Recall", "mnuRem", caption, [this, box] { recallSingle(box); });
}

void CalculatorWindow::recallSingle(QLineEdit* box)
{
    if (program().actions().ConfirmMemoRecall("SinM") == "Yes")
        box->setText(QString::fromStdString(memoText(program().saved().singleMemo())));
}

void CalculatorWindow::addRecallPosition(const QString& caption, QLineEdit* latitude,
                                         QLineEdit* longitude)
{
    addRecallPosition(caption, [=] { return std::pair(latitude, longitude); });
}

void CalculatorWindow::addRecallPosition(const QString& caption, PositionBoxes boxes)
{
    addMemoEntry(m_mnuRem, "&Recall", "mnuRem", caption, [this, boxes = std::move(boxes)] {
        if (program().actions().ConfirmMemoRecall("PsnM") != "Yes") return;
        const auto [latitude, longitude] = boxes();
        latitude->setText(QString::fromStdString(memoText(program().saved().memoLatitude())));
        longitude->setText(QString::fromStdString(memoText(program().saved().memoLongitude())));
    });
}

void CalculatorWindow::addLinksMenu(const QString& array)
{
    QMenu* menu = addMenu("&Windows", array);
    int index = 0;
    for (const WindowLink& link : m_program.links)
        if (link.name != objectName())
            addEntry(menu, array, index++, link.caption,
                     [this, name = link.name] { m_program.openWindow(name); });
}

void CalculatorWindow::printForm()
{
    printPage([this](QPainter& painter, const QRect& room) {
        QWidget* page = m_scrollArea ? m_scrollArea->widget() : centralWidget();
        const double scale =
            std::min(double(room.width()) / page->width(), double(room.height()) / page->height());
        painter.scale(scale, scale);
        page->render(&painter);
    });
}

void CalculatorWindow::printPage(const std::function<void(QPainter&, const QRect&)>& draw)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(windowTitle());
    printer.setPageMargins(pageMargins, QPageLayout::Millimeter);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted) return;
    QPainter painter;
    if (!painter.begin(&printer)) {
        m_program.questions().ask({"The printer cannot be used.", programTitle, Buttons::Ok});
        return;
    }
    draw(painter, painter.viewport());
}

void CalculatorWindow::closeEvent(QCloseEvent* event)
{
    if (m_settings) m_settings->saveAtClose(m_save());
    emit m_program.windowClosed(objectName());
    event->accept();
}

void CalculatorWindow::applyColours()
{
    const ColourScheme& colours = m_program.colours();
    tint(m_notice, colours.notice);
    for (QLabel* label : m_body->findChildren<QLabel*>())
        if (label->objectName().startsWith("echo ")) tint(label, colours.echo);
    for (QLabel* label : m_dimmed)
        tint(label, colours.dimmed);
}

} // namespace korvel
