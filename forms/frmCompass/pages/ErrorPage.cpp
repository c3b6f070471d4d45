// SPDX-License-Identifier: MIT
#include "forms/frmCompass/pages/ErrorPage.h"

#include "forms/frmCompass/CompassTexts.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QHBoxLayout>

namespace korvel
{
namespace
{

constexpr std::array<Field, 2> bookFields = {{
    {"txtBook(0)", "B&y", "By whom the bearing was taken", "", FieldKind::Text},
    {"txtBook(1)", "Remar&k", "Remark for the book", "", FieldKind::Text},
}};

constexpr const char* widestBox = "0000/00/00 00:00:00 0";

/// Places of CompassResults.
enum : std::size_t {
    True,
    GyroError,
    StandardError,
    StandardDeviation,
    SteeringError,
    SteeringDeviation,
    StandardCurve,
    SteeringCurve,
    Altitude,
    Change,
    RiseOrSet,
    Celestial,
    VisibleCentre,
    UpperLimb,
    TrueHead,
    Variation,
    SpeedError
};

/// The widest text of each.
constexpr std::array<const char*, CompassResults.size()> widestResults{
    "<000.0>",
    "000.0 W (high)",
    "000.0 W",
    "000.0 W",
    "000.0 W",
    "000.0 W",
    "Curve 00.0 W on 000: 00.0° off",
    "Curve 00.0 W on 000: 00.0° off",
    "-00°00.0'",
    "-000.00°",
    "Rise 0000/00/00 00:00:00 UTC",
    "<000.0>",
    "<000.0>",
    "<000.0>",
    "<000.0>",
    "000.0 W ±000.0 (WMM-0000)",
    "000.0 W (high)"};

} // namespace

ErrorPage::ErrorPage(QWidget* parent)
    : ScrolledBody(parent), m_txtCompass(CompassFields, this), m_txtBook(bookFields, this),
      m_lblCompass(CompassResults, this), m_answers(new QWidget(this))
{
    makeControls();
    layOutAnswers();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(pageGap);
    grid->setVerticalSpacing(pageGroupGap);
    grid->addLayout(layOutObservation(), 0, 0);
    grid->addLayout(layOutBearings(), 0, 1);
    grid->addLayout(layOutRecord(), 1, 0, 1, 2);
    grid->addLayout(layOutDetails(), 2, 0, 1, 2);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(1, 1);
}

void ErrorPage::makeControls()
{
    box(CompassBox::Body)->setPlaceholderText("Sun");
    box(CompassBox::Variation)->setAlignment(Qt::AlignRight); // a figure, with E or W behind it
    m_optClock = new Options(this, "optClock",
                             {{"UTC", "The time is UTC"}, {"SMT", "The time is ship's mean time"}});
    m_optMethod =
        new Options(this, "optMethod",
                    {{"Azimuth", "Bearing by azimuth"}, {"Amplitude", "Bearing by amplitude"}});
    m_optVariation = new Options(
        this, "optVariation",
        {{"by the model", "Variation by the model"}, {"as typed", "Variation as typed"}});
    QStringList horizons;
    for (const char* name : amplitudeHorizonNames)
        horizons << name;
    m_cboHorizon = makeList(this, "cboHorizon", "Where the body stood", horizons);
    m_cboSide = makeList(this, "cboSide", "Rise or set", {"nearest in time", "rising", "setting"});
    m_cmdNow = makeButton(this, "cmdNow", "&Now (F5)", "The present time into the box");
    m_cmdRecord = makeButton(this, "cmdRecord", "Recor&d (F6)", "Keeps the line in the book");
    for (std::size_t i = 0; i < widestResults.size(); ++i)
        m_lblCompass[i]->setRoom(widestResults[i]);
    for (const std::size_t remark : {StandardCurve, SteeringCurve})
        m_lblCompass[remark]->setFont(font());
    connect(m_optVariation, &QButtonGroup::idToggled, this, [this](int, bool chosen) {
        if (chosen) showVariation();
    });
    for (Options* each : {m_optClock, m_optMethod, m_optVariation})
        connect(each, &QButtonGroup::idToggled, this, [this](int, bool chosen) {
            if (!chosen) return;
            showChoices();
            emit choiceChanged();
        });
    for (QComboBox* each : {m_cboHorizon, m_cboSide})
        connect(each, &QComboBox::currentIndexChanged, this, &ErrorPage::choiceChanged);
    // One that is typed, or recalled from a memory, is one that counts.
    connect(box(CompassBox::Variation), &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!text.isEmpty()) m_optVariation->choose(1);
    });
    connect(m_cmdNow, &QPushButton::clicked, this, &ErrorPage::nowAsked);
    connect(m_cmdRecord, &QPushButton::clicked, this, &ErrorPage::recordAsked);
    showChoices();
}

EntryBox* ErrorPage::box(CompassBox which) const
{
    return m_txtCompass[static_cast<std::size_t>(which)];
}

QLayout* ErrorPage::layOutObservation()
{
    auto* grid = newGrid();
    grid->addWidget(sectionHead("Observation"), 0, 0, 1, 3);
    int row = 1;
    for (const CompassBox which :
         {CompassBox::Moment, CompassBox::Latitude, CompassBox::Longitude, CompassBox::Body}) {
        const auto field = static_cast<std::size_t>(which);
        EntryBox* entry = box(which);
        entry->setFixedWidth(entry->fontMetrics().horizontalAdvance(widestBox));
        grid->addWidget(quietLabel(CompassFields[field].caption, entry), row, 0);
        grid->addWidget(entry, row, 1);
        if (auto* position = dynamic_cast<PositionBox*>(entry))
            grid->addWidget(position->echo(), row, 2);
        ++row;
    }
    auto* clock = new QHBoxLayout;
    clock->addWidget(m_cmdNow);
    clock->addWidget(m_optClock->makeSwitch());
    clock->addStretch();
    grid->addLayout(clock, 1, 2);
    grid->addWidget(quietLabel("name, or number of a star"), 4, 2);
    auto* method = new QHBoxLayout;
    method->addWidget(m_optMethod->makeSwitch());
    method->addStretch();
    grid->addWidget(quietLabel("Method"), row, 0);
    grid->addLayout(method, row++, 1, 1, 2);
    grid->addWidget(quietLabel("It stood with its"), row, 0);
    grid->addWidget(m_cboHorizon, row++, 1, 1, 2, Qt::AlignLeft);
    grid->addWidget(quietLabel("Rise or set"), row, 0);
    grid->addWidget(m_cboSide, row, 1, 1, 2, Qt::AlignLeft);
    return grid;
}

QLayout* ErrorPage::layOutBearings()
{
    auto* grid = newGrid();
    grid->addWidget(sectionHead("Bearings and heads"), 0, 0, 1, 4);
    grid->addWidget(quietLabel("bearing °"), 1, 1);
    grid->addWidget(quietLabel("head °"), 1, 2);
    constexpr std::array<const char*, compassCount> rows{"Gyro", "Standard compass",
                                                         "Steering compass"};
    const auto narrow = [](EntryBox* entry) {
        entry->setFixedWidth(entry->fontMetrics().horizontalAdvance("000000000000"));
        return entry;
    };
    int row = 2;
    for (std::size_t i = 0; i < rows.size(); ++i, ++row) {
        const auto first = static_cast<std::size_t>(CompassBox::GyroBearing) + 2 * i;
        grid->addWidget(quietLabel(rows[i], m_txtCompass[first]), row, 0);
        grid->addWidget(narrow(m_txtCompass[first]), row, 1);
        grid->addWidget(narrow(m_txtCompass[first + 1]), row, 2);
    }
    for (const CompassBox which :
         {CompassBox::Variation, CompassBox::HeightOfEye, CompassBox::Speed}) {
        const Field& field = CompassFields[static_cast<std::size_t>(which)];
        grid->addWidget(quietLabel(field.caption, box(which)), row, 0);
        grid->addWidget(narrow(box(which)), row, 1);
        if (which != CompassBox::Variation) grid->addWidget(quietLabel(field.unit), row, 2);
        ++row;
    }
    auto* variation = new QHBoxLayout;
    variation->addWidget(m_optVariation->makeSwitch());
    variation->addStretch();
    grid->addLayout(variation, 5, 2, 1, 2);
    grid->setColumnStretch(3, 1);
    return grid;
}

QLayout* ErrorPage::layOutRecord()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    for (std::size_t i = 0; i < bookFields.size(); ++i) {
        row->addWidget(quietLabel(bookFields[i].caption, m_txtBook[i]));
        row->addWidget(m_txtBook[i], i == 0 ? 1 : 3);
    }
    m_txtBook[0]->setMinimumWidth(0);
    row->addWidget(m_cmdRecord);
    return row;
}

/// Two lines for each compass, and what the book says below: with large letters on a small screen
/// they leave the boxes more than half of the room.
void ErrorPage::layOutAnswers()
{
    struct Part {
        std::vector<std::size_t> answers;
        std::size_t curve;
    };
    auto* row = new WrappingRow(m_answers);
    row->setGap(pageGap);
    for (const Part& part : {Part{{True}, 0}, Part{{GyroError}, 0},
                             Part{{StandardError, StandardDeviation}, StandardCurve},
                             Part{{SteeringError, SteeringDeviation}, SteeringCurve}}) {
        auto* grid = newGrid();
        grid->setHorizontalSpacing(pageGap);
        grid->setVerticalSpacing(0);
        int column = 0;
        for (const std::size_t answer : part.answers) {
            grid->addWidget(quietLabel(CompassResults[answer].caption), 0, column);
            grid->addWidget(m_lblCompass[answer], 1, column++);
        }
        if (part.curve) grid->addWidget(m_lblCompass[part.curve], 2, 0, 1, column);
        grid->setRowStretch(3, 1);
        row->addLayout(grid);
    }
    row->addStretch();
}

QLayout* ErrorPage::layOutDetails()
{
    auto* row = new WrappingRow;
    row->setGap(pageGap);
    const auto part = [&](const char* head, const std::vector<std::size_t>& results) {
        auto* grid = newGrid();
        grid->addWidget(sectionHead(head), 0, 0, 1, 2);
        int line = 1;
        for (const std::size_t each : results)
            addResultLine(grid, line++, CompassResults[each].caption, m_lblCompass[each]);
        grid->setRowStretch(line, 1);
        row->addLayout(grid);
    };
    part("Body", {Altitude, Change, RiseOrSet});
    part("Bearing if it stood with its", {Celestial, VisibleCentre, UpperLimb});
    part("Ship", {TrueHead, Variation, SpeedError});
    row->addStretch();
    return row;
}

/// By the model the box has that of the model, as a hint; the typed one comes back with its choice.
void ErrorPage::showVariation()
{
    EntryBox* variation = box(CompassBox::Variation);
    const bool isTyped = m_optVariation->chosen() == 1;
    if (!isTyped && !variation->text().isEmpty()) m_typedVariation = variation->text();
    if (!isTyped)
        variation->clear();
    else if (variation->text().isEmpty())
        variation->setText(m_typedVariation);
}

/// The choices that count with the method that is chosen.
void ErrorPage::showChoices()
{
    const bool isAmplitude = m_optMethod->chosen() == 1;
    m_cboHorizon->setEnabled(isAmplitude);
    m_cboSide->setEnabled(isAmplitude);
}

CompassInput ErrorPage::input(NavFunc113::Hours TD, const almanac::MagneticModel& model) const
{
    CompassInput typed;
    typed.txtCompass = m_txtCompass.texts<0, CompassFields.size()>();
    typed.clock = static_cast<CompassClock>(m_optClock->chosen());
    typed.TD = TD;
    typed.method = static_cast<CompassMethod>(m_optMethod->chosen());
    typed.horizon = static_cast<AmplitudeHorizon>(m_cboHorizon->currentIndex());
    typed.side = static_cast<AmplitudeSide>(m_cboSide->currentIndex());
    typed.usesModel = m_optVariation->chosen() == 0;
    typed.model = &model;
    return typed;
}

void ErrorPage::show(const CompassResult& result)
{
    const bool isByModel = m_optVariation->chosen() == 0 && result.magnetic;
    box(CompassBox::Variation)
        ->setPlaceholderText(isByModel ? asQString(eastWestText(result.magnetic->variation))
                                       : QString());
    m_lblCompass.show(result);
}

void ErrorPage::setColours(const ColourScheme& colours)
{
    tintQuietLabels(*this, colours);
    tintQuietLabels(*m_answers, colours); // they have left the page
}

PageRecord ErrorPage::kept()
{
    PageRecord kept{m_txtCompass.all(), {}};
    kept.boxes.push_back(m_txtBook[0]);
    kept.boxes.push_back(m_txtBook[1]);
    kept.choices = {choiceOf(m_optClock), choiceOf(m_optMethod), choiceOf(m_cboHorizon),
                    choiceOf(m_cboSide), choiceOf(m_optVariation)};
    return kept;
}

void ErrorPage::fill(const std::array<std::string, CompassFields.size()>& texts)
{
    for (std::size_t i = 0; i < texts.size(); ++i)
        m_txtCompass[i]->setText(asQString(texts[i]));
}

void ErrorPage::choose(CompassClock clock, CompassMethod method, bool usesModel)
{
    m_optClock->choose(static_cast<int>(clock));
    m_optMethod->choose(static_cast<int>(method));
    m_optVariation->choose(usesModel ? 0 : 1);
}

std::vector<PaperFigure> ErrorPage::paperFigures() const
{
    std::vector<PaperFigure> figures;
    const auto add = [&](const FieldBoxes& boxes, std::size_t field) {
        if (!boxes[field]->text().trimmed().isEmpty()) figures.push_back(boxes.paperFigure(field));
    };
    add(m_txtCompass, static_cast<std::size_t>(CompassBox::Moment));
    figures.push_back({"The time is", isShipsTime() ? "SMT, ship's mean time" : "UTC"});
    for (std::size_t i = 1; i < m_txtCompass.size(); ++i) {
        const bool isBody = i == static_cast<std::size_t>(CompassBox::Body);
        const bool isVariation = i == static_cast<std::size_t>(CompassBox::Variation);
        if (isVariation && m_optVariation->chosen() == 0)
            figures.push_back({"Variation", "by the model"});
        else if (isBody && m_txtCompass[i]->text().trimmed().isEmpty())
            figures.push_back({"Body", "Sun (nothing entered)"});
        else
            add(m_txtCompass, i);
    }
    figures.push_back({"Method", m_optMethod->chosen() == 1 ? "amplitude" : "azimuth"});
    if (m_optMethod->chosen() == 1) {
        figures.push_back({"Where the body stood", m_cboHorizon->currentText().toStdString()});
        figures.push_back({"Rise or set", m_cboSide->currentText().toStdString()});
    }
    for (std::size_t i = 0; i < m_txtBook.size(); ++i)
        add(m_txtBook, i);
    return figures;
}

} // namespace korvel
