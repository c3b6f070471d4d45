// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanBoxes.h"

#include "forms/frmPassage/PassageFields.h"
#include "forms/frmPassage/PlanReading.h"
#include "forms/frmPassage/PlanTable.h"
#include "shell/controls/Options.h"
#include "shell/controls/RowsView.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QRadioButton>

#include <algorithm>

namespace korvel
{
namespace
{

using RowText = std::string PlanRow::*;
constexpr std::array<RowText, 9> rowTexts{&PlanRow::name,   &PlanRow::latitude, &PlanRow::longitude,
                                          &PlanRow::speed,  &PlanRow::stop,     &PlanRow::zone,
                                          &PlanRow::remark, &PlanRow::step,     &PlanRow::limit};

int chosenOf(const std::vector<QRadioButton*>& options)
{
    return static_cast<int>(std::ranges::find_if(options, &QRadioButton::isChecked) -
                            options.begin());
}

void choose(const std::vector<QRadioButton*>& options, int which)
{
    options[static_cast<std::size_t>(which)]->setChecked(true);
}

/// A text that stays as it is while somebody types in it.
void put(EntryBox* box, const std::string& text)
{
    const QString shown = asQString(text);
    if (box->text() != shown) box->setText(shown);
}

void addBox(QGridLayout* grid, int row, const QString& caption, EntryBox* box, QWidget* behind)
{
    auto* label = new QLabel(caption);
    label->setBuddy(box);
    grid->addWidget(label, row, 0);
    grid->addWidget(box, row, 1);
    if (behind) grid->addWidget(behind, row, 2);
}

} // namespace

PlanBoxes::PlanBoxes(PlanInHand& work, const FieldBoxes& head, const FieldBoxes& row,
                     QObject* parent)
    : QObject(parent), m_work(work), m_head(head), m_row(row)
{
    m_optGiven = makeSwitch("optGiven", {"Departure", "Wanted arrival"}, "Time that is given",
                            &PlanBoxes::typeHead);
    m_optClock =
        makeSwitch("optClock", {"UTC", "Ship's time"}, "Clock of that time", &PlanBoxes::typeHead);
    m_optLeg = makeSwitch("optLeg", {"Rhumb line", "Great circle", "Composite"},
                          "Leg to the row in hand", &PlanBoxes::typeRow);
    m_optStepUnit =
        makeSwitch("optStepUnit", {"deg", "nm"}, "Unit of the step", &PlanBoxes::typeRow);
    m_optStepUnit[0]->setAccessibleName("Step in degrees of longitude");
    m_optStepUnit[1]->setAccessibleName("Step in miles");
    connectBoxes();
}

PlanBoxes::Switch PlanBoxes::makeSwitch(const char* name,
                                        std::initializer_list<const char*> captions,
                                        const char* accessibleName,
                                        void (PlanBoxes::*typed)(const QString&))
{
    Switch options;
    auto* group = new QWidget;
    for (const char* caption : captions) {
        auto* option = new QRadioButton(caption, group);
        option->setObjectName(memberName(name, static_cast<int>(options.size())));
        option->setAccessibleName(QString("%1: %2").arg(accessibleName, caption));
        connect(option, &QRadioButton::clicked, this, [this, typed, option] {
            (this->*typed)(option->objectName());
            m_work.endTyping();
            emit chosen();
        });
        options.push_back(option);
    }
    options.front()->setChecked(true);
    return options;
}

QWidget* PlanBoxes::layOutSwitch(const Switch& options)
{
    QWidget* group = options.front()->parentWidget();
    group->setLayout(switchOf(options));
    group->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return group;
}

void PlanBoxes::connectBoxes()
{
    const auto follow = [this](EntryBox* box, void (PlanBoxes::*typed)(const QString&)) {
        connect(box, &QLineEdit::textChanged, this, [this, box, typed] {
            if (!m_isFilling) (this->*typed)(box->objectName());
        });
        box->onLeave = [this] { m_work.endTyping(); };
        box->onUndo = [this] {
            emit undoWanted();
            return true;
        };
        box->installEventFilter(this);
    };
    for (EntryBox* box : m_head.all())
        follow(box, &PlanBoxes::typeHead);
    for (EntryBox* box : m_row.all())
        follow(box, &PlanBoxes::typeRow);
    setEntryOrder(m_row.part(RowName, RowRemark + 1)); // step and limit are for some legs alone
    for (const std::size_t field : {RowStep, RowLimit})
        m_row[field]->setNext(m_row[RowSpeed]);
    m_row[RowRemark]->onEnter = [this] { emit rowEnded(); };
}

std::vector<EntryBox*> PlanBoxes::all() const
{
    std::vector<EntryBox*> boxes = m_head.all();
    const auto ofRow = m_row.all();
    boxes.insert(boxes.end(), ofRow.begin(), ofRow.end());
    return boxes;
}

QWidget* PlanBoxes::layOutHead() const
{
    auto* line = new QWidget;
    auto* row = new WrappingRow(line);
    row->startGroup();
    auto* caption = new QLabel("Plan");
    caption->setBuddy(m_head[PlanName]);
    row->addWidget(caption);
    row->addWidget(m_head[PlanName]);
    m_head[PlanName]->setFixedWidth(line->fontMetrics().averageCharWidth() * 30);
    for (const std::size_t field : {PlanTime, WishTime})
        m_head[field]->setFixedWidth(line->fontMetrics().horizontalAdvance("0000/00/00 00:00:00"));
    row->startGroup();
    row->addWidget(layOutSwitch(m_optGiven));
    row->addWidget(m_head[PlanTime]);
    m_head[PlanTime]->setPlaceholderText("yyyy/m/d h:mm");
    row->addWidget(layOutSwitch(m_optClock));
    layOutWish(*row);
    row->addStretch();
    return line;
}

void PlanBoxes::layOutWish(WrappingRow& row) const
{
    row.startGroup();
    for (const std::size_t field : {WishFrom, WishTo, WishTime}) {
        EntryBox* box = m_head[field];
        auto* caption = new QLabel(PlanHeadFields[field].caption);
        caption->setBuddy(box);
        row.addWidget(caption);
        row.addWidget(box);
        if (field == WishTime) continue;
        box->setFixedWidth(box->fontMetrics().horizontalAdvance("0000000"));
        box->setPlaceholderText(field == WishFrom ? "first" : "last");
    }
    m_head[WishTime]->setPlaceholderText("yyyy/m/d h:mm");
}

QWidget* PlanBoxes::layOutRow() const
{
    auto* panel = new QWidget;
    auto* columns = new WrappingRow(panel);
    const auto column = [&] {
        auto* widget = new QWidget;
        auto* grid = new QGridLayout(widget);
        grid->setContentsMargins(0, 0, 0, 0);
        // Rows of one height side by side.
        for (int row = 0; row < 3; ++row)
            grid->setRowMinimumHeight(row, m_row[RowName]->sizeHint().height());
        columns->startGroup();
        columns->addWidget(widget);
        return grid;
    };
    const auto unit = [](std::size_t field) { return new QLabel(PlanRowFields[field].unit); };
    auto* place = column();
    auto* name = new QLabel("Waypoint");
    name->setBuddy(m_row[RowName]);
    place->addWidget(name, 0, 0);
    place->addWidget(m_row[RowName], 0, 1, 1, 2);
    addBox(place, 1, "Latitude", m_row[RowLatitude], m_row.position(RowLatitude)->echo());
    addBox(place, 2, "Longitude", m_row[RowLongitude], m_row.position(RowLongitude)->echo());
    auto* leg = column();
    leg->addWidget(new QLabel("Leg"), 0, 0);
    leg->addWidget(layOutSwitch(m_optLeg), 0, 1, 1, 3);
    leg->setColumnStretch(3, 1);
    addBox(leg, 1, "Step", m_row[RowStep], layOutSwitch(m_optStepUnit));
    addBox(leg, 2, "Limit", m_row[RowLimit], unit(RowLimit));
    auto* times = column();
    addBox(times, 0, "Speed", m_row[RowSpeed], unit(RowSpeed));
    addBox(times, 1, "Stop", m_row[RowStop], unit(RowStop));
    addBox(times, 2, "Zone, TD", m_row[RowZone], unit(RowZone));
    auto* remark = column();
    addBox(remark, 0, "Remark", m_row[RowRemark], nullptr);
    for (int empty : {1, 2}) // beside the other groups in their lines
        remark->addWidget(new QLabel, empty, 0);
    for (const std::size_t field : {RowSpeed, RowStop, RowZone, RowStep, RowLimit})
        m_row[field]->setMaximumWidth(m_row[field]->minimumWidth());
    for (const std::size_t field : {RowName, RowRemark})
        m_row[field]->setMinimumWidth(panel->fontMetrics().averageCharWidth() * 24);
    m_row[RowSpeed]->setPlaceholderText("as above");
    m_row[RowZone]->setPlaceholderText("as above");
    return panel;
}

void PlanBoxes::fill()
{
    m_isFilling = true;
    const PassagePlan& plan = m_work.plan();
    const PlanRow row = m_work.rowInHand();
    put(m_head[PlanName], plan.name);
    put(m_head[PlanTime], plan.times.time);
    put(m_head[WishFrom], plan.wish.from);
    put(m_head[WishTo], plan.wish.to);
    put(m_head[WishTime], plan.wish.time);
    choose(m_optGiven, static_cast<int>(plan.times.given));
    choose(m_optClock, static_cast<int>(plan.times.clock));
    for (std::size_t i = 0; i < rowTexts.size(); ++i)
        put(m_row[i], row.*rowTexts[i]);
    choose(m_optLeg, static_cast<int>(row.leg));
    choose(m_optStepUnit, static_cast<int>(row.stepUnit));
    showWhatCounts();
    m_isFilling = false;
}

/// Step and limit wait in grey while the leg has none.
void PlanBoxes::showWhatCounts()
{
    const int leg = chosenOf(m_optLeg);
    m_row[RowStep]->setEnabled(leg != static_cast<int>(LegKind::Rhumb));
    const NumberField step = stepField(static_cast<StepUnit>(chosenOf(m_optStepUnit)));
    m_row[RowStep]->setLimits(limitsInWords(step.low, step.high));
    for (QRadioButton* option : m_optStepUnit)
        option->setEnabled(m_row[RowStep]->isEnabled());
    m_row[RowLimit]->setEnabled(leg == static_cast<int>(LegKind::Composite));
}

void PlanBoxes::typeHead(const QString& box)
{
    PlanHead head = headOf(m_work.plan());
    head.name = m_head[PlanName]->value();
    head.times = {static_cast<PlanTimes::Given>(chosenOf(m_optGiven)),
                  static_cast<PlanTimes::Clock>(chosenOf(m_optClock)), m_head[PlanTime]->value()};
    head.wish = {m_head[WishFrom]->value(), m_head[WishTo]->value(), m_head[WishTime]->value()};
    m_work.typeHead(std::move(head), box.toStdString());
}

void PlanBoxes::typeRow(const QString& box)
{
    PlanRow row = m_work.rowInHand();
    for (std::size_t i = 0; i < rowTexts.size(); ++i)
        row.*rowTexts[i] = m_row[i]->value();
    row.leg = static_cast<LegKind>(chosenOf(m_optLeg));
    row.stepUnit = static_cast<StepUnit>(chosenOf(m_optStepUnit));
    m_work.typeRow(std::move(row), box.toStdString());
    showWhatCounts();
}

void PlanBoxes::typeInto(int column, const QString& text)
{
    if (column == PlanTable::Leg) {
        m_optLeg[static_cast<std::size_t>(chosenOf(m_optLeg))]->setFocus(Qt::TabFocusReason);
        return;
    }
    std::size_t field = RowName;
    if (column == PlanTable::Position) field = RowLatitude;
    if (column == PlanTable::Speed) field = RowSpeed;
    if (column == PlanTable::Zone) field = RowZone;
    m_row[field]->setFocus(Qt::TabFocusReason);
    if (!text.isEmpty()) m_row[field]->insert(text); // all is selected
}

bool PlanBoxes::isBoxOfRow(const QObject* watched) const
{
    for (std::size_t field = 0; field < m_row.size(); ++field)
        if (m_row[field] == watched) return true;
    return false;
}

bool PlanBoxes::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isOfRow = isBoxOfRow(watched);
    if (key->matches(QKeySequence::Redo)) {
        emit redoWanted();
        return true;
    }
    if (!isOfRow) return false;
    if (pastesRows(*key)) {
        emit pasteWanted();
        return true;
    }
    const int by = rowsWanted(*key);
    if (by == 0) return false;
    emit rowWanted(by);
    return true;
}

} // namespace korvel
