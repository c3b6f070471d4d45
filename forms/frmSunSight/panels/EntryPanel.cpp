// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/EntryPanel.h"

#include "app/reading/Reading.h"
#include "forms/frmSunSight/panels/PanelParts.h"
#include "forms/frmSunSight/sight/SightBody.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "shell/controls/Options.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

/// Two options that exclude each other.
std::array<QRadioButton*, 2> makeOptions(QWidget* owner, const char* array,
                                         const std::array<const char*, 2>& captions,
                                         const std::array<const char*, 2>& words)
{
    auto* group = new QButtonGroup(owner);
    std::array<QRadioButton*, 2> made{};
    for (std::size_t i = 0; i < made.size(); ++i) {
        made[i] = new QRadioButton(captions[i], owner);
        made[i]->setObjectName(memberName(array, static_cast<int>(i)));
        made[i]->setAccessibleName(words[i]);
        group->addButton(made[i]);
    }
    made[0]->setChecked(true);
    return made;
}

template <typename Texts, std::size_t N>
void takeTexts(Texts& texts, const std::array<std::string Texts::*, N>& members,
               const FieldBoxes& boxes, std::size_t first)
{
    for (std::size_t i = 0; i < N; ++i)
        texts.*members[i] = boxes[first + i]->value();
}

template <typename Texts, std::size_t N>
void fillBoxes(const Texts& texts, const std::array<std::string Texts::*, N>& members,
               const FieldBoxes& boxes, std::size_t first)
{
    for (std::size_t i = 0; i < N; ++i)
        boxes[first + i]->setText(asQString(texts.*members[i]));
}

} // namespace

EntryPanel::EntryPanel(QWidget* parent)
    : QWidget(parent), m_body(bodyField, this), m_entry(entryFields, this),
      m_quality(qualityFields, this), m_qualityRow(new QWidget(parent))
{
    using namespace SightField;
    bodyBox()->setPlaceholderText("Sun");
    bodyBox()->setNext(m_entry[date]);
    bodyBox()->setToolTip("Empty: the Sun. A name, as much of it as no other begins with, or the "
                          "number of a star");
    m_entry[DRTime]->setToolTip("Empty: the time of the last sight that is on; a time alone: "
                                "the one nearest to that sight");
    m_entry[air]->setPlaceholderText("10");
    m_entry[sea]->setPlaceholderText("as the air");
    m_entry[pressure]->setPlaceholderText("1013");
    m_quality[0]->setPlaceholderText("1");
    m_quality[1]->setPlaceholderText("5");
    m_quality[2]->setPlaceholderText("2");
    addOptions();
    auto* column = new QVBoxLayout(this);
    layOutBody(*column, Spacing::Dense);
    column->addWidget(layOutSight());
    column->addWidget(layOutTrack());
    layOutQuality();
}

void EntryPanel::addOptions()
{
    m_optSunScale = makeOptions(this, "optSunScale", {"UTC", "SMT"},
                                {"The watch keeps UTC", "The watch keeps ship's mean time"});
    m_optSunLimb =
        makeOptions(this, "optSunLimb", {"Lower", "Upper"}, {"Lower limb", "Upper limb"});
    m_chkSunMeasured = new QCheckBox("Scale by the residuals", this);
    m_chkSunMeasured->setObjectName("chkSunMeasured");
    m_chkSunMeasured->setToolTip("Ellipse from the sigma that the residuals of three or more lines "
                                 "say, instead of the assumed one");
    for (QRadioButton* option : {m_optSunScale[1], m_optSunLimb[1]})
        connect(option, &QRadioButton::toggled, this, &EntryPanel::scaleOrLimbChanged);
    connect(m_chkSunMeasured, &QCheckBox::toggled, this, &EntryPanel::measuredChanged);
}

QGroupBox* EntryPanel::layOutSight()
{
    using namespace SightField;
    auto* group = m_sightGroup = new QGroupBox("Sight of the Sun");
    auto* grid = m_sightGrid = gridOf(group, Spacing::Dense);
    int row = 0;
    m_body.addRow(grid, row++, 0);
    const auto addOptionRow = [&](const char* caption, const auto& buttons) {
        QHBoxLayout* line = switchOf(buttons);
        line->addStretch(1);
        grid->addWidget(new QLabel(caption), row, 0);
        grid->addLayout(line, row++, 1, 1, 2);
    };
    for (std::size_t field = 0; field < ofSight; ++field) {
        if (field == TD) addOptionRow("The watch keeps", m_optSunScale);
        if (field == indexError) addOptionRow("Limb", m_optSunLimb);
        m_entry.addRow(grid, row++, field);
    }
    m_cmdRecord = makeButton("cmdRecord", "Rec&ord (F6)", "Keeps the sight in the list", this);
    m_cmdNew = makeButton("cmdNew", "&New", "Leaves the sight in the list as it was", this);
    auto* mark = makeButton("cmdMark", "Mar&k (F5)", "Present time, to the second", this);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {mark, m_cmdRecord, m_cmdNew})
        buttons->addWidget(button);
    grid->addLayout(buttons, row, 0, 1, 3);
    connect(mark, &QPushButton::clicked, this, &EntryPanel::markAsked);
    connect(m_cmdRecord, &QPushButton::clicked, this, &EntryPanel::recordAsked);
    connect(m_cmdNew, &QPushButton::clicked, this, &EntryPanel::newAsked);
    m_cmdNew->setEnabled(false);
    return group;
}

QGroupBox* EntryPanel::layOutTrack()
{
    using namespace SightField;
    auto* group = new QGroupBox("Dead reckoning");
    auto* grid = gridOf(group, Spacing::Dense);
    m_entry.position(DRLatitude)->setBriefEcho();
    m_entry.position(DRLongitude)->setBriefEcho();
    for (std::size_t field = DRLatitude; field <= speed; ++field)
        m_entry.addRow(grid, static_cast<int>(field), field);
    m_entry[DRTime]->setMinimumWidth(
        m_entry[DRTime]->fontMetrics().horizontalAdvance("0000/00/00 00:00:00 0"));
    return group;
}

void EntryPanel::layOutQuality()
{
    auto* line = new WrappingRow(m_qualityRow);
    line->startGroup();
    line->addWidget(new QLabel("How good the lines are:"));
    line->addStretch();
    for (std::size_t i = 0; i < qualityFields.size(); ++i) {
        auto* caption = new QLabel(qualityFields[i].caption);
        caption->setBuddy(m_quality[i]);
        m_quality[i]->setMinimumWidth(0);
        m_quality[i]->setFixedWidth(m_quality[i]->fontMetrics().horizontalAdvance("00.000"));
        line->startGroup();
        line->addWidget(caption);
        line->addWidget(m_quality[i]);
        line->addWidget(new QLabel(qualityFields[i].unit));
        line->addStretch();
    }
    line->startGroup();
    line->addWidget(m_chkSunMeasured);
}

SightTexts EntryPanel::sight() const
{
    SightTexts texts;
    texts.body = bodyForRecord(bodyBox()->value());
    takeTexts(texts, sightMembers, m_entry, 0);
    texts.SMT = m_optSunScale[1]->isChecked();
    texts.upperLimb = m_optSunLimb[1]->isChecked();
    return texts;
}

TrackTexts EntryPanel::track() const
{
    TrackTexts texts;
    takeTexts(texts, trackMembers, m_entry, SightField::ofSight);
    return texts;
}

SightFixOptions EntryPanel::options() const
{
    SightFixOptions texts;
    takeTexts(texts, qualityMembers, m_quality, 0);
    texts.measured = m_chkSunMeasured->isChecked();
    return texts;
}

std::vector<PaperFigure> EntryPanel::paperFigures() const
{
    using namespace SightField;
    const bool isSun = sight().body.empty();
    Remarks unheard;
    const auto body = readBody(bodyBox()->value(), unheard);
    std::vector<PaperFigure> figures;
    if (!isSun) figures.push_back({"Body", sight().body});
    figures.push_back(
        {"The watch keeps", m_optSunScale[1]->isChecked() ? "SMT, ship's mean time" : "UTC"});
    if (body && almanac::hasLimbs(*body))
        figures.push_back({"Limb", m_optSunLimb[1]->isChecked() ? "upper" : "lower"});
    const auto add = [&](const FieldBoxes& boxes, std::size_t field, const QString& empty) {
        PaperFigure figure = boxes.paperFigure(field);
        if (boxes[field]->value().empty() && !empty.isEmpty()) {
            const std::string assumed = empty.toStdString();
            const bool isNumber = readLeadingNumber(assumed).has_value();
            figure.value = figureText(assumed, isNumber ? boxes.unitOnPaper(field) : "") +
                           " (nothing entered)";
        }
        figures.push_back(figure);
    };
    for (std::size_t field = 0; field < m_entry.size(); ++field) {
        if (field == TD && !m_optSunScale[1]->isChecked()) continue;
        const bool isZero = field == TD || field == watchError || field == indexError ||
                            field == heightOfEye || field == course || field == speed;
        add(m_entry, field,
            isZero            ? QString("0")
            : field == DRTime ? QString("time of the last sight")
                              : m_entry[field]->placeholderText());
        const auto altitude = readLeadingNumber(m_entry[field]->value());
        if (field == Hs && altitude)
            figures.back() = {figures.back().name, angleInFull(NavFunc113::DegMin(*altitude)), "",
                              m_entry[field]->value()};
    }
    for (std::size_t field = 0; field < m_quality.size(); ++field)
        add(m_quality, field, m_quality[field]->placeholderText());
    figures.push_back({"Ellipse", m_chkSunMeasured->isChecked() ? "scaled by the residuals"
                                                                : "with the assumed sigma"});
    return figures;
}

void EntryPanel::fill(const SightTexts& sight)
{
    bodyBox()->setText(asQString(sight.body));
    fillBoxes(sight, sightMembers, m_entry, 0);
    m_optSunScale[sight.SMT ? 1 : 0]->setChecked(true);
    m_optSunLimb[sight.upperLimb ? 1 : 0]->setChecked(true);
}

void EntryPanel::setBodyLabel(QWidget* label)
{
    m_sightGrid->addWidget(label, 0, 2);
}

void EntryPanel::showBody(almanac::Body body)
{
    m_sightGroup->setTitle("Sight of " + asQString(almanac::bodyInSentence(body)));
    for (QRadioButton* limb : m_optSunLimb)
        limb->setEnabled(almanac::hasLimbs(body));
}

std::vector<EntryBox*> EntryPanel::lineBoxes() const
{
    std::vector<EntryBox*> boxes = m_entry.all();
    boxes.push_back(bodyBox());
    return boxes;
}

void EntryPanel::clearSight()
{
    SightTexts empty;
    empty.SMT = sight().SMT;
    empty.TD = sight().TD;
    const SightTexts before = sight();
    fill(empty);
    if (!before.isBegun()) return;
    for (EntryBox* box : m_entry.part(0, SightField::ofSight))
        box->onUndo = [this, before] {
            const SightTexts now = sight(); // its date may be the one that is offered
            if (!now.time.empty() || !now.Hs.empty()) return false;
            fill(before);
            return true;
        };
}

void EntryPanel::fill(const TrackTexts& track)
{
    fillBoxes(track, trackMembers, m_entry, SightField::ofSight);
}

void EntryPanel::fill(const SightFixOptions& options)
{
    fillBoxes(options, qualityMembers, m_quality, 0);
    m_chkSunMeasured->setChecked(options.measured);
}

std::vector<EntryBox*> EntryPanel::fixBoxes() const
{
    std::vector<EntryBox*> boxes = m_quality.all();
    for (EntryBox* box : m_entry.part(SightField::ofSight, SightField::ofTrack))
        boxes.push_back(box);
    return boxes;
}

void EntryPanel::turnTo(std::size_t field)
{
    m_entry[field]->setFocus(Qt::TabFocusReason);
}

void EntryPanel::setEditing(bool isEditing)
{
    m_cmdRecord->setText(isEditing ? "Put &back" : "Rec&ord (F6)");
    m_cmdNew->setEnabled(isEditing);
}

} // namespace korvel
