// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/frmTIDE.h"

#include "forms/frmTIDE/TideData.h"
#include "forms/frmTIDE/frmTIDEPage.h"
#include "navlib/arithmetic_error.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <cmath>
#include <cstdint>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

constexpr auto scrollPause = 300ms; // the date has come to rest

QString shown(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::filesystem::path folderOf(Program& program)
{
    return std::filesystem::path(program.files().path("AF2005.txt")).parent_path();
}

} // namespace

frmTIDE::frmTIDE(Program& program)
    : CalculatorWindow(program, "frmTIDE", "TIDE"), m_dates(TideDates::ofFolder(folderOf(program)))
{
    addControls();
    addMenus();
    m_save.setSingleShot(true);
    connect(&m_save, &QTimer::timeout, this, [this] { record().saveNow(); });

    put(m_choice);
    record().use(
        "KV_Tide.ini", {Kind::Tick, Kind::Text, Kind::Text}, [this] { return recordOf(m_choice); },
        [this](const Record& record) {
            const SavedChoice saved = choiceOf(record, m_dates);
            m_choice = saved.choice;
            setNotice("saved", QString::fromStdString(saved.notice));
        });
    loadSettings();
    take(m_choice, Telling::Box);
    m_scrDate->setFocus();
    fitToScreen();
}

void frmTIDE::addControls()
{
    auto* column = new QVBoxLayout(body());
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(headLine());
    column->addWidget(figuresLine());
    m_lblUncertainty = wrappedLabel("lblUncertainty");
    m_lblUncertainty->hide();
    column->addWidget(m_lblUncertainty);
    column->addWidget(pictureRow(), 1);
    m_lblStation = wrappedLabel("lblStation");
    m_lblSource = wrappedLabel("lblSource");
    column->addWidget(m_lblStation);
    column->addWidget(m_lblSource);
    setTabOrder(m_scrDate, m_picTIDE);
    setTabOrder(m_picTIDE, m_lblDate);
}

QWidget* frmTIDE::headLine()
{
    m_lblPlace = addLabel("lblPlace");
    m_lblPlace->setAccessibleName("Place");
    QFont bold = m_lblPlace->font();
    bold.setBold(true);
    m_lblPlace->setFont(bold);
    m_lblDate = new DateLabel(body());
    m_lblDate->setObjectName("lblDate");
    m_lblDate->setAccessibleName("Date; Enter asks for another one");
    m_lblDate->setToolTip("Choose the date");
    m_lblDate->onClick = [this] { askDate(); };
    m_lblTD = addLabel("lblTD");
    m_lblTD->setAccessibleName("Zone time of the station, hours");

    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_lblPlace);
    row->addWidget(m_lblDate);
    row->addStretch(1);
    row->addWidget(new QLabel("Zone time"));
    row->addWidget(m_lblTD);
    return line;
}

QWidget* frmTIDE::figuresLine()
{
    m_lblTideInfo = addLabel("lblTideInfo");
    m_lblTideInfo->setAccessibleName("Highest and lowest of the day with their zone times");
    m_lblTideInfo->setToolTip("Zone time in hours and minutes, highest first");
    m_lblCuDirection = addLabels<2>("lblCuDirection");
    m_lblCuDirection[0]->setAccessibleName("Direction of the flood stream");
    m_lblCuDirection[1]->setAccessibleName("Direction of the ebb stream");

    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new QLabel("Highest, lowest"));
    row->addWidget(m_lblTideInfo);
    row->addStretch(1);
    row->addWidget(m_lblCuDirection[0]);
    row->addWidget(m_lblCuDirection[1]);
    return line;
}

QWidget* frmTIDE::pictureRow()
{
    m_picTIDE = new frmTIDEPicture(program(), body());
    m_scrDate = new DateScrollBar(body());
    m_scrDate->setObjectName("scrDate");
    m_scrDate->setAccessibleName("Date, a step is a day");
    m_scrDate->setRange(m_dates.scrollMinimum(), m_dates.scrollMaximum());
    connect(m_scrDate, &QScrollBar::valueChanged, this, &frmTIDE::scrDate_Change);

    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_picTIDE, 1);
    row->addWidget(m_scrDate);
    return line;
}

QLabel* frmTIDE::wrappedLabel(const QString& name)
{
    auto* label = new QLabel(body());
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

void frmTIDE::addMenus()
{
    QMenu* tide = menus().add("Place for &Tide..", "mnuFrmTIDE(0)");
    addAreas(tide, "mnuArea", tideAreas(), true);
    QMenu* stream = menus().add("Place for Tidal &Current..", "mnuFrmTIDE(1)");
    addAreas(stream, "mnuCuArea", streamAreas(), false);
    addBarEntry(2, "&Date", [this] { askDate(); });
    addBarEntry(3, "&Print", [this] { printDay(); });
    QMenu* end = menus().add("&End..", "mnuFrmTIDE(4)");
    menus().addEntry(end, "mnuEND", 0, "&END", [this] { close(); });
    end->addSeparator()->setObjectName("mnuEND(1)");
    menus().addEntry(end, "mnuEND", 2, "&About Tide/Current Calcuration", [this] {
        program().questions().ask({m_dates.aboutNotice(), programTitle, Buttons::Ok});
    });
}

void frmTIDE::addAreas(QMenu* menu, const QString& array, std::span<const StationArea> areas,
                       bool TideMode)
{
    for (int index = 0; const StationArea& area : areas) {
        QMenu* submenu = menu->addMenu(shown(area.caption));
        submenu->setObjectName(memberName(array, index++));
        submenu->setEnabled(!area.places.empty());
        for (int item = 0; std::string_view place : area.places)
            menus().addEntry(submenu, shown(area.itemArray), item++, shown(place),
                             [this, TideMode, place] { place_Click(TideMode, place); });
    }
}

/// An entry that stands in the menu bar itself.
void frmTIDE::addBarEntry(int index, const QString& caption, std::function<void()> action)
{
    QAction* entry = menuBar()->addAction(caption);
    entry->setObjectName(memberName("mnuFrmTIDE", index));
    connect(entry, &QAction::triggered, this, std::move(action));
}

void frmTIDE::place_Click(bool TideMode, std::string_view place)
{
    take({TideMode, std::string(place), m_choice.lblDate}, Telling::Box);
}

void frmTIDE::askDate()
{
    const std::int64_t today = static_cast<std::int64_t>(std::floor(program().shipsTime().SMT()));
    std::optional<std::int64_t> date;
    while (!date)
        date = TideDates::dateIn(
            program()
                .questions()
                .input(std::string(tideDatePrompt), programTitle, TideDates::defaultAnswer(today))
                .value_or(""));
    if (!m_dates.contains(*date)) {
        program().questions().ask({m_dates.refusal(), programTitle, Buttons::Ok});
        return;
    }
    take({m_choice.TideMode, m_choice.lblPlace, TideDates::label(*date)}, Telling::Box);
}

void frmTIDE::scrDate_Change(int value)
{
    const std::int64_t date = m_dates.serialOfScrollValue(value);
    take({m_choice.TideMode, m_choice.lblPlace, TideDates::label(date)}, Telling::Line);
}

/// Takes a choice over and predicts. When that fails, place and date go back with the curve that
/// stays: what is written above a curve is always what it shows.
void frmTIDE::take(const TideChoice& wanted, Telling telling)
{
    const TideChoice before = m_choice;
    put(wanted);
    std::string fault;
    try {
        if (const auto prediction = predict()) {
            showPrediction(*prediction);
            storeSettings(telling);
        }
    } catch (const TideDataFault& error) {
        fault = error.what();
    } catch (const NavFunc113::ArithmeticError& error) {
        fault = "The figures of " + wanted.lblPlace + " cannot be computed: " + error.what() + ".";
    }
    if (!fault.empty() && m_shown) put(before);
    const bool refused = !fault.empty() && telling == Telling::Line;
    tell(refused ? wanted.lblDate + " cannot be shown: " + fault : fault, telling);
}

void frmTIDE::put(const TideChoice& choice)
{
    m_choice = choice;
    m_lblPlace->setText(QString::fromStdString(choice.lblPlace));
    m_lblDate->setText(QString::fromStdString(choice.lblDate));
    if (const auto date = TideDates::dateIn(choice.lblDate)) {
        const QSignalBlocker quiet(m_scrDate);
        m_scrDate->setValue(m_dates.scrollValueOf(*date));
    }
}

std::optional<TidePrediction> frmTIDE::predict()
{
    const auto routine = m_choice.TideMode ? PredictTide : PredictCurrent;
    return routine(folderOf(program()), m_choice.lblPlace, m_choice.lblDate,
                   m_shown.value_or(TidePrediction{}));
}

void frmTIDE::showPrediction(const TidePrediction& prediction)
{
    m_shown = prediction;
    setNotice("saved", {});
    m_lblTD->setText(QString::fromStdString(prediction.lblTD));
    m_lblTideInfo->setText(QString::fromStdString(prediction.lblTideInfo));
    for (std::size_t i = 0; i < m_lblCuDirection.size(); ++i) {
        m_lblCuDirection[i]->setText(QString::fromStdString(prediction.lblCuDirection[i]));
        m_lblCuDirection[i]->setVisible(prediction.kind == TideKind::Stream);
    }
    showStation();
    m_picTIDE->showPrediction(prediction);
}

void frmTIDE::showStation()
{
    // The notes are about tide stations; a stream station may bear the same name.
    const auto notes =
        m_choice.TideMode ? readStationNotes(folderOf(program()), m_choice.lblPlace) : std::nullopt;
    m_lines = describeStation(*m_shown, notes);
    m_lblUncertainty->setText(QString::fromStdString(m_lines.uncertainty));
    m_lblUncertainty->setVisible(!m_lines.uncertainty.empty());
    m_lblStation->setText(QString::fromStdString(m_lines.station) + ".  Not for navigation.");
    m_lblSource->setText(QString::fromStdString(m_lines.source));
}

void frmTIDE::storeSettings(Telling telling)
{
    if (telling == Telling::Line) {
        m_save.start(scrollPause);
        return;
    }
    m_save.stop();
    record().saveNow();
}

void frmTIDE::tell(const std::string& fault, Telling telling)
{
    const bool box = telling == Telling::Box;
    setNotice("data", box ? QString() : QString::fromStdString(fault));
    if (box && !fault.empty()) program().questions().ask({fault, programTitle, Buttons::Ok});
}

void frmTIDE::printDay()
{
    if (!m_shown) {
        program().questions().ask({"Choose a place and a date first: there is nothing to print.",
                                   programTitle, Buttons::Ok});
        return;
    }
    const frmTIDEPage page{
        m_lblPlace->text(), m_lblDate->text(), *m_shown, m_lines,
        [this](QPainter& painter, const QSize& size) { m_picTIDE->drawForPaper(painter, size); }};
    paper().print(QPageLayout::Portrait,
                  [&page](QPainter& painter, const QRect& room) { page.draw(painter, room); });
}

void frmTIDE::applyColours()
{
    CalculatorWindow::applyColours();
    m_picTIDE->applyColours();
}

} // namespace korvel
