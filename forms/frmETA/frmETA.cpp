// SPDX-License-Identifier: MIT
#include "forms/frmETA/frmETA.h"

#include "app/reading/Format.h"
#include "forms/frmETA/ETAFields.h"
#include "forms/frmETA/ETAWorking.h"
#include "forms/frmETA/PassageTimes.h"
#include "forms/frmETA/Steps.h"
#include "shell/layout/Panels.h"
#include "shell/machine/AsQString.h"

#include <QAction>
#include <QGridLayout>
#include <QGroupBox>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>

namespace korvel
{
namespace
{

/// A scroll bar that the arrow and page keys of its boxes move too: the hand stays where it types.
QScrollBar* scrollBar(const QString& name, const QString& accessibleName, int low, int high,
                      int page, const std::vector<EntryBox*>& boxes)
{
    auto* bar = new QScrollBar(Qt::Horizontal);
    bar->setObjectName(name);
    bar->setAccessibleName(accessibleName);
    bar->setRange(low, high);
    bar->setPageStep(page);
    bar->setToolTip("Also with the arrow and page keys in its boxes");
    const std::pair<Qt::Key, int> keys[] = {
        {Qt::Key_Up, 1}, {Qt::Key_Down, -1}, {Qt::Key_PageUp, page}, {Qt::Key_PageDown, -page}};
    for (EntryBox* box : boxes)
        for (const auto& [key, step] : keys) {
            auto* shortcut = new QShortcut(key, box);
            shortcut->setContext(Qt::WidgetShortcut);
            QObject::connect(shortcut, &QShortcut::activated, bar,
                             [bar, by = step] { bar->setValue(bar->value() + by); });
        }
    return bar;
}

} // namespace

frmETA::frmETA(Program& program)
    : CalculatorWindow(program, "frmETA", "ETA and required speed"), m_boxes(addFields(ETAFields)),
      m_lblArrivals(addResults(arrivalResults)), m_lblRequired(addResults(requiredResults))
{
    nameBoxes();
    addBars();
    auto* columns = new QHBoxLayout(scrollBody());
    layOutBody(*columns, Spacing::Groups);
    columns->addWidget(layOutPassage(), 1);
    auto* results = new QVBoxLayout;
    layOutBody(*results, Spacing::Groups);
    results->addWidget(layOutArrivals());
    results->addWidget(layOutRequiredSpeed());
    columns->addLayout(results);
    foldColumns();
    addMenus();
    offerDefaults();

    std::vector<ResultLabel*> shown = m_lblArrivals.all();
    shown.push_back(m_lblRequired[0]);
    calculations().add({"ETA", m_boxes.all(), shown, [this] { runETA(); }});
    record().useTexts("KV_ETA.ini", m_boxes.all(), [this](Record& texts) {
        for (std::size_t end = 0; end < m_TD.size(); ++end)
            texts[ETAField::departureTD + end] = m_TD[end]->recorded();
    });
    for (FollowingTD* TD : m_TD)
        TD->awaitRecord();
    loadSettings();
    for (FollowingTD* TD : m_TD)
        TD->settle();
    m_txtTime[0]->setFocus();
}

void frmETA::nameBoxes()
{
    m_txtTime = {m_boxes[0], m_boxes[1], m_boxes[2], m_boxes[3]};
    m_txtTD = {m_boxes[4], m_boxes[5]};
    m_txtDist = m_boxes[6];
    m_txtSpeed = m_boxes[7];
}

void frmETA::addBars()
{
    for (std::size_t end = 0; end < m_txtTD.size(); ++end) {
        m_lblZD[end] = new QLabel;
        m_lblZD[end]->setObjectName(memberName("lblZD", static_cast<int>(end)));
        connect(m_txtTD[end], &QLineEdit::textChanged, this, [this, end] { showTD(end); });
    }
    addTimeBar(m_departure, 0, "scrDepTime", "Departure time, hours earlier or later");
    addTimeBar(m_arrival, 2, "scrArrTime", "Arrival time wanted, hours earlier or later");
    addSpeedBar();
}

void frmETA::addTimeBar(TimeEntry& entry, std::size_t firstBox, const QString& name,
                        const QString& accessibleName)
{
    entry.date = m_txtTime[firstBox];
    entry.time = m_txtTime[firstBox + 1];
    entry.bar = scrollBar(name, accessibleName, -timeStepLimit, timeStepLimit, 24,
                          {entry.date, entry.time});
    for (EntryBox* box : {entry.date, entry.time})
        connect(box, &QLineEdit::textChanged, this, [&entry] {
            if (entry.moving) return;
            entry.typedDate = entry.date->text();
            entry.typedTime = entry.time->text();
            const QSignalBlocker quiet(entry.bar);
            entry.bar->setValue(0);
        });
    connect(entry.bar, &QScrollBar::valueChanged, this, [this, &entry] { scrTime_Change(entry); });
}

void frmETA::addSpeedBar()
{
    m_scrSpeed =
        scrollBar("scrSpeed", "Speed in quarter knots", 0, speedStepLimit, 4, {m_txtSpeed});
    connect(m_txtSpeed, &QLineEdit::textChanged, this, [this] {
        const QSignalBlocker quiet(m_scrSpeed);
        m_scrSpeed->setValue(stepOfSpeed(m_txtSpeed->value()));
    });
    connect(m_scrSpeed, &QScrollBar::valueChanged, this, &frmETA::scrSpeed_Change);
    m_txtSpeed->onLeave = [this] {
        if (const auto rounded = speedOnLeaving(m_txtSpeed->value()))
            m_txtSpeed->setText(asQString(*rounded));
    };
}

void frmETA::offerDefaults()
{
    for (std::size_t end = 0; end < m_TD.size(); ++end)
        m_TD[end] = new FollowingTD(m_txtTD[end], program());
    EnterPresent();
}

QGroupBox* frmETA::layOutPassage()
{
    auto* group = new QGroupBox("Passage");
    auto* grid = gridOf(group);
    const auto caption = [this, grid](int row, std::size_t field) {
        auto* label = new QLabel(ETAFields[field].caption);
        label->setBuddy(m_boxes[field]);
        grid->addWidget(label, row, 0);
    };
    grid->addWidget(columnHead("Date, year/month/day"), 0, 1);
    grid->addWidget(columnHead("Local time, h:mm"), 0, 2);
    grid->addWidget(columnHead("Hours earlier or later"), 0, 3, 1, 2);
    int row = 1;
    for (const TimeEntry* entry : {&m_departure, &m_arrival}) {
        caption(row, entry == &m_departure ? ETAField::departureDate : ETAField::arrivalDate);
        grid->addWidget(entry->date, row, 1, Qt::AlignLeft);
        grid->addWidget(entry->time, row, 2, Qt::AlignLeft);
        grid->addWidget(entry->bar, row, 3);
        ++row;
    }
    auto* now = new QPushButton("&Now");
    now->setObjectName("cmdNOW");
    now->setAccessibleName("Depart now");
    now->setToolTip("The present hour into the departure");
    now->setAutoDefault(false);
    connect(now, &QPushButton::clicked, this, &frmETA::EnterPresent);
    grid->addWidget(now, 1, 4);

    for (std::size_t end = 0; end < m_txtTD.size(); ++end, ++row) {
        caption(row, ETAField::departureTD + end);
        grid->addWidget(m_txtTD[end], row, 1, Qt::AlignLeft);
        grid->addWidget(new QLabel("hours"), row, 2);
        grid->addWidget(m_lblZD[end], row, 3);
    }
    caption(row, ETAField::distance);
    grid->addWidget(m_txtDist, row, 1, Qt::AlignLeft);
    grid->addWidget(new QLabel("miles"), row++, 2);
    caption(row, ETAField::speed);
    grid->addWidget(m_txtSpeed, row, 1, Qt::AlignLeft);
    grid->addWidget(new QLabel("knots"), row, 2);
    grid->addWidget(m_scrSpeed, row++, 3);
    const int ofTD = fontMetrics().horizontalAdvance("TD +9.5, ZD -9.5");
    grid->setColumnMinimumWidth(3, ofTD);
    // Bars that are easy to hit, where there is room.
    grid->addItem(new QSpacerItem(ofTD * 3 / 2, 0, QSizePolicy::Preferred), row, 3);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(row, 1);
    return group;
}

QGroupBox* frmETA::layOutArrivals()
{
    auto* group = new QGroupBox("Arrival at five speeds");
    auto* grid = gridOf(group);
    grid->addWidget(columnHead("Knots"), 0, 0);
    grid->addWidget(columnHead("Local time at arrival, month/day"), 0, 1);
    for (std::size_t i = 0; i < firstArrival; ++i) {
        const int row = static_cast<int>(i) + 1;
        grid->addWidget(m_lblArrivals[i], row, 0);
        grid->addWidget(m_lblArrivals[firstArrival + i], row, 1);
    }
    // Room for the longest texts, so that nothing moves while the officer types.
    const QFontMetrics metrics(m_lblArrivals[firstArrival]->font());
    grid->setColumnMinimumWidth(0, metrics.horizontalAdvance("00.00 "));
    grid->setColumnMinimumWidth(1, metrics.horizontalAdvance("00/00 00:00LT "));
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(6, 1);
    return group;
}

QGroupBox* frmETA::layOutRequiredSpeed()
{
    auto* group = new QGroupBox("Required for the arrival wanted");
    auto* answers = new AnswerStrip;
    m_lblRequired.addAnswer(answers, 0, "0000.00");
    gridOf(group)->addWidget(answers, 0, 0);
    return group;
}

void frmETA::addMenus()
{
    const auto store = [this](const std::string& text) {
        program().actions().StoreInMemo(KORVEL2000Actions::Single, text);
    };
    QMenu* memo = menus().add("&Memo", "mnuETA");
    menus().addEntry(memo, "mnuETA", 0, "&Distance", [=, this] { store(m_txtDist->value()); });
    menus().addEntry(memo, "mnuETA", 1, "&Speed", [=, this] { store(m_txtSpeed->value()); });
    menus().addEntry(memo, "mnuETA", 2, "&Required speed",
                     [=, this] { store(m_required.speed.value_or("")); });
    QMenu* recall = menus().add("&Recall", "mnuRem");
    menus().addEntry(recall, "mnuETA", 3, "into &distance",
                     [this] { menus().recallSingle(m_txtDist); });
    menus().addEntry(recall, "mnuETA", 4, "into &speed",
                     [this] { menus().recallSingle(m_txtSpeed); });
    using ShipFigure = WindowMenus::ShipFigure;
    menus().addShipNow(ShipFigure::Speed, "into speed", m_txtSpeed);
    menus().addShipNow(ShipFigure::Zone, "into TD at departure", m_txtTD[0]);
    menus().addShipNow(ShipFigure::Zone, "into TD at arrival", m_txtTD[1]);
    menus().addPlanLeg("into the passage", [this](const PlanExchange::Leg& leg) { takeLeg(leg); });
    menus().addLinks("mnuWindows");
}

/// Local times of the plan, with the zones that they belong to.
void frmETA::takeLeg(const PlanExchange::Leg& leg)
{
    const std::optional<Instant> moments[] = {leg.leaves, leg.arrives};
    for (std::size_t end = 0; end < 2; ++end) {
        m_txtTD[end]->setText(asQString(Format(hoursOf(leg.zones[end]), "0.0#")));
        if (!moments[end]) continue;
        const auto local = dateTimeOf(nearestMinute(*moments[end] + leg.zones[end]));
        m_txtTime[2 * end]->setText(asQString(Format(local, "yyyy/mm/dd")));
        m_txtTime[2 * end + 1]->setText(asQString(Format(local, "hh:mm")));
    }
    m_txtDist->setText(asQString(Format(leg.distance, "0.0#")));
    if (leg.speed) m_txtSpeed->setText(asQString(Format(*leg.speed, "0.0#")));
}

void frmETA::runETA()
{
    m_arrivals = CalculateETA({m_txtTime[0]->value(), m_txtTime[1]->value(), m_boxes.texts<4, 2>(),
                               m_txtDist->value(), m_txtSpeed->value()});
    m_required =
        CalculateReqSpd({m_boxes.texts<0, 4>(), m_boxes.texts<4, 2>(), m_txtDist->value()});
    const ETAResult& arrivals = m_arrivals;
    const ReqSpdResult& required = m_required;

    if (arrivals.labels) m_lblArrivals.show(*arrivals.labels);
    setDimmed({m_lblArrivals.all().begin(), m_lblArrivals.all().end()}, !arrivals.labels);
    m_lblRequired.show(required);
    setDimmed({m_lblRequired[0]}, !required.speed);
    setNotice("arrivals", asQString(arrivals.notice), levelBeside(arrivals.labels.has_value()));
    // What disturbs both is said once.
    setNotice("required speed",
              required.notice == arrivals.notice ? "" : asQString(required.notice),
              levelBeside(required.speed.has_value()));
}

WorkingPaper frmETA::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.results.clear(); // labels may show results of older inputs
    if (m_required.speed) paper.results.push_back(paperFigure(*m_lblRequired[0]));
    if (m_arrivals.passage) paper.tables = {arrivalsTable(m_arrivals)};
    paper.workings = {arrivalsWorking(m_arrivals), requiredSpeedWorking(m_required)};
    paper.limits = {"The speed is that made good over the whole distance"};
    return paper;
}

void frmETA::showTD(std::size_t end)
{
    m_lblZD[end]->setText(asQString(TDAndZDText(m_txtTD[end]->value())));
}

void frmETA::EnterPresent()
{
    const TimeTexts present = korvel::EnterPresent(program().shipsTime().UTC(), m_txtTD[0]->value(),
                                                   double(program().saved().TD()));
    m_departure.date->setText(asQString(present.date));
    m_departure.time->setText(asQString(present.time));
}

void frmETA::scrTime_Change(TimeEntry& entry)
{
    const int hours = entry.bar->value();
    TimeTexts texts{entry.typedDate.toStdString(), entry.typedTime.toStdString()};
    if (hours != 0) { // in the middle stands what was typed, minutes included
        const auto moved = steppedTime(texts.date, texts.time, hours);
        if (!moved) {
            const QSignalBlocker quiet(entry.bar);
            entry.bar->setValue(0);
            return;
        }
        texts = *moved;
    }
    entry.moving = true;
    entry.date->setText(asQString(texts.date));
    entry.time->setText(asQString(texts.time));
    entry.moving = false;
    for (EntryBox* box : {entry.date, entry.time})
        if (box->hasFocus()) box->selectAll(); // the next digit replaces it, as after every step in
}

void frmETA::scrSpeed_Change()
{
    m_txtSpeed->setText(asQString(speedOfStep(m_scrSpeed->value())));
    if (m_txtSpeed->hasFocus()) m_txtSpeed->selectAll();
}

} // namespace korvel
