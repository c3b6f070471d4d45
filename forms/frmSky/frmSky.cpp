// SPDX-License-Identifier: MIT
#include "forms/frmSky/frmSky.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "app/reading/TypedTime.h"
#include "app/records/KeyedLines.h"
#include "forms/frmSky/SkyPaper.h"
#include "forms/frmSky/pages/AlmanacPage.h"
#include "forms/frmSky/pages/AlmanacSheets.h"
#include "forms/frmSky/pages/DayPage.h"
#include "forms/frmSky/pages/SkyDisc.h"
#include "forms/frmSky/pages/StarsPage.h"
#include "forms/frmSky/pages/UnknownPage.h"
#include "shell/controls/PageParts.h"
#include "shell/layout/FollowingScrollArea.h"
#include "shell/layout/PageBar.h"
#include "shell/machine/AsQString.h"

#include <QAction>
#include <QMenu>
#include <QVBoxLayout>

#include <cmath>

namespace korvel
{
namespace
{

constexpr std::string_view recordKind = "KORVEL2000 twilight and stars ";

} // namespace

/// A choice of the record, under its key.
struct frmSky::Choice {
    const char* key;
    PageRecord::Choice choice;
};

frmSky::frmSky(Program& program)
    : CalculatorWindow(program, "frmSky", "Twilight and stars"), m_boxes(addFields(SkyFields)),
      m_pages(new PageBar), m_day(new DayPage(body(), m_boxes)),
      m_stars(new StarsPage(body(), m_boxes)), m_unknown(new UnknownPage(body(), m_boxes)),
      m_almanac(new AlmanacPage(body(), m_boxes))
{
    addPages();
    connectPages();
    addMenus();
    addCalculations();
    record().useText(
        "KV_Sky.ini", [this] { return recordText(); },
        [this](const std::string& bytes) { return take(bytes); });
    fitToScreen();
    loadSettings();
    box(SkyBox::Moment)->setFocus();
}

void frmSky::addPages()
{
    auto* area = new FollowingScrollArea(m_day);
    setScrollArea(area);
    static_cast<QVBoxLayout*>(body()->layout())->insertWidget(0, m_pages);
    pinAnswers(m_day->strip());
    m_pages->addPage("&Twilight", "cmdPage(0)", "Page of the ship and her day", area);
    const auto add = [this](QWidget* content, const char* caption, const char* name,
                            const char* words) {
        addScrolledPage(*body(), *m_pages, content, caption, name, words);
    };
    add(m_stars, "&Stars", "cmdPage(1)", "Page of the stars");
    add(m_unknown, "&Unknown body", "cmdPage(2)", "Page of an unknown body");
    add(m_almanac, "A&lmanac", "cmdPage(3)", "Page of the almanac");
    foldColumns();
}

std::vector<CatalogueEntry::Place> frmSky::pagesToGoTo()
{
    return {{"Twilight, sunrise and moonrise of the moving ship", "cmdPage(0)"},
            {"Stars, best round, disc of the sky", "cmdPage(1)"},
            {"Star finder: an unknown body", "cmdPage(2)"},
            {"Almanac pages", "cmdPage(3)"}};
}

void frmSky::connectPages()
{
    connect(m_day, &DayPage::nowAsked, this, [this] { enterNow(SkyBox::Moment); });
    connect(m_day, &DayPage::dayAsked, this, &frmSky::showDay);
    connect(m_stars, &StarsPage::choiceChanged, this, [this] {
        if (!calculations().isHeld()) calculations().run(m_dayCalculation);
    });
    connect(m_stars, &StarsPage::sendAsked, this, &frmSky::sendRound);
    connect(m_unknown, &UnknownPage::nowAsked, this, [this] { enterNow(SkyBox::UnknownAt); });
    connect(m_almanac, &AlmanacPage::printAsked, this, &frmSky::printAlmanac);
    connect(m_almanac, &AlmanacPage::saveAsked, this, &frmSky::saveAlmanac);
    connect(m_pages, &PageBar::turned, this, [this] {
        if (m_pages->page() == Almanac) calculations().run(m_almanacCalculation);
        showNotices();
    });
    connect(&program(), &Program::TDChanged, &calculations(), &CalculationRunner::runAll);
    connect(&program(), &Program::distanceUnitChanged, &calculations(), &CalculationRunner::runAll);
}

std::vector<EntryBox*> frmSky::boxes(std::initializer_list<SkyBox> which) const
{
    std::vector<EntryBox*> all;
    for (const SkyBox each : which)
        all.push_back(box(each));
    return all;
}

void frmSky::addCalculations()
{
    using enum SkyBox;
    std::vector<ResultLabel*> results = m_day->results();
    for (ResultLabel* label : m_stars->results())
        results.push_back(label);
    m_dayCalculation = calculations().add({"Twilight and stars",
                                           boxes({Moment, Latitude, Longitude, Course, Speed,
                                                  HeightOfEye, IndexError, TD, Day, StarsAt}),
                                           results, [this] { runDay(); }});
    calculations().add({"Unknown body",
                        boxes({Moment, Latitude, Longitude, Course, Speed, HeightOfEye, IndexError,
                               TD, UnknownAt, UnknownAltitude, UnknownBearing}),
                        m_unknown->results(), [this] { runUnknown(); }});
    m_almanacCalculation = calculations().add(
        {"Almanac", boxes({FirstDay, Day, Moment}), {}, [this] { runAlmanac(); }});
}

void frmSky::addMenus()
{
    QMenu* sky = menus().add("S&ky", "mnuSky");
    int index = 0;
    const auto entry = [&](const char* caption, const char* keys, std::function<void()> action) {
        menus()
            .addEntry(sky, "mnuSky", index++, caption, std::move(action))
            ->setShortcut(QKeySequence(keys));
    };
    entry("Present &time into the box", "F5",
          [this] { enterNow(m_pages->page() == Unknown ? SkyBox::UnknownAt : SkyBox::Moment); });
    entry("The day &before", "Ctrl+PgUp", [this] { showDay(-1); });
    entry("The &next day", "Ctrl+PgDown", [this] { showDay(1); });
    entry("&Round to the sights", "F6", [this] { sendRound(); });
    entry("&Print the almanac pages..", "", [this] { printAlmanac(); });
    entry("&Save the almanac pages as PDF..", "", [this] { saveAlmanac(); });
    QMenu* clear = menus().add("&Clear", "mnuAC");
    menus().addEntry(clear, "mnuAC", 0, "&Ship and day", [this] {
        clearBoxes(DayOfShip, SkyBox::Moment, placeOf(SkyBox::StarsAt) + 1);
    });
    menus().addEntry(clear, "mnuAC", 1, "&Unknown body",
                     [this] { clearBoxes(Unknown, SkyBox::UnknownAt, 3); });
    addMemoMenus();
    menus().addLinks("mnuLinks");
}

void frmSky::addMemoMenus()
{
    menus().addStorePosition(
        "&Position", [this] { return box(SkyBox::Latitude)->value(); },
        [this] { return box(SkyBox::Longitude)->value(); });
    menus().addRecallPosition("into &position", box(SkyBox::Latitude), box(SkyBox::Longitude));
    menus().addRecallSingle("into &course", box(SkyBox::Course));
    menus().addRecallSingle("into &speed", box(SkyBox::Speed));
    menus().addShipNow(WindowMenus::ShipFigure::Course, "into course", box(SkyBox::Course));
    menus().addShipNow(WindowMenus::ShipFigure::Speed, "into speed", box(SkyBox::Speed));
    menus().addShipNow(WindowMenus::ShipFigure::Zone, "into TD", box(SkyBox::TD));
}

SkyInput frmSky::input() const
{
    return {m_boxes.texts<0, SkyFields.size()>(), NavFunc113::Hours(double(program().saved().TD())),
            program().earth()};
}

void frmSky::runDay()
{
    const SkyInput asked = input();
    box(SkyBox::TD)->setPlaceholderText(asQString(Format(asked.TD, "0.##")));
    m_shownDay = CalculateDay(asked, m_places);
    SkyStars stars = CalculateStars(m_shownDay, m_stars->asked());
    m_shownStars = std::move(stars);
    m_day->show(m_shownDay);
    m_stars->show(m_shownStars, m_shownDay.ship ? m_shownDay.ship->course : NavFunc113::Degrees());
    showNotices();
}

void frmSky::runUnknown()
{
    m_shownUnknown = CalculateUnknown(input());
    m_unknown->show(m_shownUnknown);
    showNotices();
}

/// Makes three days only while they are looked at: they cost a hundred times as much as all else.
void frmSky::runAlmanac()
{
    m_page.reset();
    m_almanacNotice.clear();
    if (m_pages->page() != Almanac) return;
    hasPage();
    m_almanac->show(m_page ? &*m_page : nullptr);
    showNotices();
}

/// Makes the page that is asked for, by its own box, else by the day of the ship.
bool frmSky::hasPage()
{
    m_page.reset();
    m_almanacNotice.clear();
    Remarks remarks;
    std::optional<NavFunc113::DateTime> day;
    for (const SkyBox which : {SkyBox::FirstDay, SkyBox::Day, SkyBox::Moment}) {
        if (isBlank(box(which)->value())) continue;
        day = readShipsTime(box(which)->value(), SkyFields[placeOf(which)], {}, remarks);
        break;
    }
    if (day) {
        try {
            m_page = almanac::makeDailyPage(*day);
        } catch (const almanac::OutOfRange& fault) {
            remarks.fault("First day: " + std::string(fault.what()));
        }
    } else {
        remarks.fault("First day: nothing entered");
    }
    m_almanacNotice = remarks.text();
    return m_page.has_value();
}

/// What concerns the page that is shown.
void frmSky::showNotices()
{
    const std::size_t page = m_pages->page();
    const bool isOfUnknown = page == Unknown && !m_shownUnknown.notice.empty();
    setNotice("1 day", page == Almanac || isOfUnknown ? QString() : asQString(m_shownDay.notice),
              levelBeside(m_shownDay.hasTimes()));
    setNotice("2 stars", page == StarsOfMinute ? asQString(m_shownStars.notice) : QString(),
              levelBeside(m_shownStars.utc.has_value()));
    setNotice("3 unknown", isOfUnknown ? asQString(m_shownUnknown.notice) : QString(),
              levelBeside(!m_shownUnknown.likely.empty()));
    setNotice("4 almanac", page == Almanac ? asQString(m_almanacNotice) : QString(),
              levelBeside(m_page.has_value()));
}

void frmSky::enterNow(SkyBox which)
{
    const bool isUnknown = which == SkyBox::UnknownAt;
    Remarks remarks;
    const auto ship = readShip(input(), remarks);
    const NavFunc113::DateTime utc = program().shipsTime().UTC();
    const NavFunc113::Hours TD =
        ship ? ship->TD : NavFunc113::Hours(double(program().saved().TD()));
    box(which)->setText(asQString(Format(utc + NavFunc113::DaysOfHours(TD),
                                         isUnknown ? "yyyy/mm/dd hh:mm:ss" : "yyyy/mm/dd hh:mm")));
    m_pages->turnTo(isUnknown ? Unknown : DayOfShip);
    box(isUnknown ? SkyBox::UnknownAltitude : SkyBox::Latitude)->setFocus(Qt::TabFocusReason);
}

/// Where they are seen to be empty, and Ctrl+Z brings them back.
void frmSky::clearBoxes(std::size_t page, SkyBox first, std::size_t count)
{
    m_pages->turnTo(page);
    m_boxes.clear(placeOf(first), count);
    box(first)->setFocus(Qt::TabFocusReason);
}

/// Another day, from the one that is shown; without one from today.
void frmSky::showDay(int later)
{
    const NavFunc113::DateTime shown = m_shownDay.ship
                                           ? m_shownDay.ship->shipsTime(m_shownDay.ship->day)
                                           : program().shipsTime().SMT();
    const NavFunc113::DateTime day = std::floor(shown + 0.5 / 1440) + later;
    box(SkyBox::Day)->setText(asQString(Format(day, "yyyy/mm/dd")));
}

void frmSky::sendRound()
{
    const PlannedSights round = plannedRound(m_shownStars);
    if (round.empty()) return sayForAWhileAs(NoticeLevel::Fault, "There is no round yet.");
    const std::string fault = program().sendToSights(round);
    if (!fault.empty()) return setNotice("5 round~", asQString(fault), NoticeLevel::Fault);
    sayForAWhile(QString("%1 bodies sent to the sights.").arg(round.size()));
}

std::vector<PagePrinter::Draw> frmSky::almanacDrawings() const
{
    std::vector<PagePrinter::Draw> drawings;
    drawings.reserve(almanacSheets);
    for (int sheet = 0; sheet < almanacSheets; ++sheet)
        drawings.push_back([page = *m_page, sheet](QPainter& painter, const QRect& room) {
            drawAlmanacSheet(painter, room, page, sheet);
        });
    return drawings;
}

void frmSky::printAlmanac()
{
    m_pages->turnTo(Almanac);
    if (!m_page) return showNotices();
    printer().print("Almanac", QPageLayout::Portrait, almanacDrawings());
}

void frmSky::saveAlmanac()
{
    m_pages->turnTo(Almanac);
    if (!m_page) return showNotices();
    const std::string offered = "Almanac " + Format(m_page->firstDay, "yyyy-mm-dd") + ".pdf";
    const auto path = program().questions().fileToWrite("Save the almanac as PDF", offered);
    if (path && printer().write(*path, printer().PDF("Almanac", almanacDrawings()).toStdString()))
        sayForAWhile("Almanac saved.");
}

std::vector<frmSky::Choice> frmSky::choices() const
{
    auto all = m_stars->choices();
    return {{"twilight", all[0]}, {"round", all[1]}, {"up", all[2]}};
}

std::string frmSky::recordText() const
{
    std::string text(recordKind);
    text += "1\n";
    for (std::size_t i = 0; i < SkyFields.size(); ++i)
        addKeyedLine(text, SkyFields[i].name, m_boxes[i]->value());
    for (const Choice& each : choices())
        addKeyedLine(text, each.key, std::to_string(each.choice.get()));
    return text;
}

std::string frmSky::take(const std::string& bytes)
{
    const auto put = [this](std::string_view key, const std::string& value) {
        for (std::size_t i = 0; i < SkyFields.size(); ++i)
            if (key == SkyFields[i].name) m_boxes[i]->setText(asQString(value));
        const int chosen = value.size() == 1 ? value[0] - '0' : -1;
        for (const Choice& each : choices())
            if (key == each.key) each.choice.set(chosen);
    };
    return readKeyedLines(bytes, recordKind, "record of twilight and stars", put);
}

WorkingPaper frmSky::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.inputs.clear();
    paper.results.clear();
    const auto tellBoxes = [&](SkyBox first, SkyBox last) {
        for (std::size_t i = placeOf(first); i <= placeOf(last); ++i)
            if (!isBlank(m_boxes[i]->value())) paper.inputs.push_back(m_boxes.paperFigure(i));
    };
    const auto tellResults = [&](const std::vector<ResultLabel*>& labels) {
        for (const ResultLabel* label : labels)
            if (!label->text().isEmpty()) paper.results.push_back(paperFigure(*label));
    };
    tellBoxes(SkyBox::Moment, SkyBox::Day);
    switch (m_pages->page()) {
    case StarsOfMinute:
        tellBoxes(SkyBox::StarsAt, SkyBox::StarsAt);
        tellResults(m_stars->results());
        tellStars(paper, m_shownDay, m_shownStars);
        break;
    case Unknown:
        tellBoxes(SkyBox::UnknownAt, SkyBox::UnknownBearing);
        tellResults(m_unknown->results());
        tellUnknown(paper, m_shownUnknown);
        break;
    default:
        tellResults(m_day->answers());
        tellDay(paper, m_shownDay);
    }
    return paper;
}

std::vector<PaperPicture> frmSky::paperPictures()
{
    if (m_pages->page() != StarsOfMinute || !m_shownStars.utc) return {};
    return {paperPicture(m_stars->disc(), "The sky, zenith in the middle", QSize(480, 480))};
}

void frmSky::applyColours()
{
    CalculatorWindow::applyColours();
    m_day->setColours(program().colours());
    m_stars->setColours(program().colours());
    m_unknown->setColours(program().colours());
    m_almanac->setColours(program().colours());
}

} // namespace korvel
