// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/frmSunSight.h"
#include "app/shell/asQString.h"

#include "app/Format.h"
#include "app/reading.h"
#include "forms/frmSunSight/EntryPanel.h"
#include "forms/frmSunSight/FixPanel.h"
#include "forms/frmSunSight/LinePanel.h"
#include "forms/frmSunSight/SightListPanel.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>

namespace korvel
{
namespace
{

} // namespace

frmSunSight::frmSunSight(Program& program)
    : CalculatorWindow(program, "frmSunSight", "Sun sight"), m_entry(new EntryPanel(body())),
      m_lines(new LinePanel(body())), m_fixes(new FixPanel(body())),
      m_sights(new SightListPanel(body()))
{
    layOut();
    connectPanels();
    addSightMenu();
    addMemoMenus();
    menus().addLinks("mnuSunSight");
    addCalculations();
    followTD();
    useRecord();
    loadSettings();
    if (!m_list.sights().empty()) calculations().run(m_fixCalculation);
    m_entry->box(SightField::date)->setFocus();
    m_entry->box(SightField::date)->selectAll();
}

void frmSunSight::layOut()
{
    auto* grid = new QGridLayout(scrollBody());
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(4);
    auto* typed = new QVBoxLayout;
    typed->setSpacing(4);
    typed->addWidget(m_entry);
    typed->addWidget(m_lines->noon());
    typed->addStretch(1);
    grid->addLayout(typed, 0, 0, 3, 1);
    grid->addWidget(m_lines, 0, 1);
    grid->addWidget(m_fixes, 0, 2);
    grid->addWidget(m_sights, 1, 1, 1, 2);
    grid->addWidget(m_entry->qualityRow(), 2, 1, 1, 2);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(0, 3);
    grid->setRowStretch(1, 1);
    foldColumns();
}

void frmSunSight::connectPanels()
{
    const auto run = [this](int& number) {
        return [this, &number] {
            if (!calculations().isHeld()) calculations().run(number);
        };
    };
    connect(m_entry, &EntryPanel::scaleOrLimbChanged, this, run(m_lineCalculation));
    connect(m_entry, &EntryPanel::measuredChanged, this, run(m_fixCalculation));
    connect(m_entry, &EntryPanel::markAsked, this, &frmSunSight::cmdMark_Click);
    connect(m_entry, &EntryPanel::recordAsked, this, &frmSunSight::cmdRecord_Click);
    connect(m_entry, &EntryPanel::newAsked, this, &frmSunSight::cmdNew_Click);
    connect(m_sights, &SightListPanel::switched, this, &frmSunSight::switchSight);
    connect(m_sights, &SightListPanel::editAsked, this, &frmSunSight::cmdEdit_Click);
    connect(m_sights, &SightListPanel::deleteAsked, this, &frmSunSight::cmdDelete_Click);
    connect(m_sights, &SightListPanel::undoAsked, this, &frmSunSight::undo);
    connect(&program(), &Program::TDChanged, this, &frmSunSight::followTD);
    m_fixes->onView = [this](const std::string& outside) {
        setNotice("3 plot", asQString(outside));
    };
}

void frmSunSight::addSightMenu()
{
    QMenu* sight = menus().add("&Sight", "mnuSight");
    const auto add = [this](QMenu* menu, const char* array, int index, const char* caption,
                            void (frmSunSight::*action)()) {
        return menus().addEntry(menu, array, index, caption, [this, action] { (this->*action)(); });
    };
    add(sight, "mnuSight", 0, "&Mark: present time into the sight", &frmSunSight::cmdMark_Click)
        ->setShortcut(Qt::Key_F5);
    add(sight, "mnuSight", 1, "&Record the sight", &frmSunSight::cmdRecord_Click)
        ->setShortcut(Qt::Key_F6);
    add(sight, "mnuSight", 2, "&Edit the chosen sight", &frmSunSight::cmdEdit_Click);
    add(sight, "mnuSight", 3, "&Delete the chosen sight", &frmSunSight::cmdDelete_Click);
    add(sight, "mnuSight", 4, "&Fix becomes the DR position", &frmSunSight::fixBecomesDR);
    menus().addEntry(sight, "mnuSight", 5, "&Print", [this] { printForm(); });
    QMenu* clear = menus().add("&Clear", "mnuAC");
    add(clear, "mnuAC", 0, "&Sight being entered", &frmSunSight::clearSight);
    add(clear, "mnuAC", 1, "&All recorded sights", &frmSunSight::deleteAll);
    add(clear, "mnuAC", 2, "&Undo: bring back what was deleted last", &frmSunSight::undo);
}

void frmSunSight::addMemoMenus()
{
    EntryBox* latitude = m_entry->box(SightField::DRLatitude);
    EntryBox* longitude = m_entry->box(SightField::DRLongitude);
    menus().addStorePosition(
        "&Fix", [this] { return m_fix.memoLatitude; }, [this] { return m_fix.memoLongitude; });
    menus().addStorePosition(
        "&DR position", [latitude] { return latitude->value(); },
        [longitude] { return longitude->value(); });
    menus().addStoreSingle("&Azimuth Zn", [this] {
        return m_line.azimuth ? memoText(*m_line.azimuth) : std::string();
    });
    menus().addRecallPosition("into &DR position", latitude, longitude);
}

void frmSunSight::addCalculations()
{
    std::vector<EntryBox*> ofLine = m_entry->sightBoxes(), ofFix = m_entry->qualityBoxes();
    for (EntryBox* box : m_entry->trackBoxes()) {
        ofLine.push_back(box);
        ofFix.push_back(box);
    }
    m_lineCalculation =
        calculations().add({"Line of position", ofLine, m_lines->results(), [this] { runLine(); }});
    m_fixCalculation = calculations().add({"Fix", ofFix, m_fixes->results(), [this] { runFix(); }});
}

void frmSunSight::useRecord()
{
    record().use(
        "KV_SunSight.ini", sightKinds(),
        [this] {
            return recordOf({m_entry->sight(), m_entry->track(), m_entry->options(), m_list});
        },
        [this](const Record& record) { takeOver(settingsOf(record)); },
        [this](const std::string& bytes) { salvage(bytes); });
}

void frmSunSight::takeOver(const SightSettings& settings)
{
    SightTexts sight = settings.sight;
    // A TD belongs to the sight that it was typed with; the next one is taken by the ship's.
    if (!sight.isBegun()) sight.TD = m_shipsTD.toStdString();
    m_entry->fill(sight);
    m_entry->fill(settings.track);
    m_entry->fill(settings.options);
    m_list = settings.list;
    if (const std::size_t count = m_list.unreadable().size())
        setNotice("list", QString("%1 of the recorded sights cannot be read; the file keeps them "
                                  "as they stand.")
                              .arg(count));
}

void frmSunSight::salvage(const std::string& bytes)
{
    m_list = SightList::salvaged(bytes);
    setNotice("list", QString("Found in the damaged settings file: %1 recorded sights. Check them.")
                          .arg(m_list.sights().size()));
}

SightContext frmSunSight::context()
{
    return {m_list.lastOn(m_editing), program().shipsTime().UTC(),
            NavFunc113::Hours(readNumber(m_shipsTD.toStdString()))};
}

void frmSunSight::runLine()
{
    m_line = {};
    const SightTexts sight = m_entry->sight();
    const TrackTexts track = m_entry->track();
    m_line = CalculateLOP(sight, track, context());
    m_lines->showResults(m_line, CalculateMeridian(sight, track, context()));
    setNotice("1 sight", asQString(m_line.notice));
}

void frmSunSight::runFix()
{
    m_fix = {};
    m_fix = CalculateFix(m_list, m_entry->track(), m_entry->options(), program().shipsTime().UTC());
    const std::string outside = m_fixes->showFix(m_fix);
    m_sights->showSights(m_list, m_fix);
    setNotice("2 fix", asQString(m_fix.notice));
    setNotice("3 plot", asQString(outside));
}

void frmSunSight::cmdMark_Click()
{
    SightTexts sight = m_entry->sight();
    Mark(sight, program().shipsTime().UTC());
    m_entry->fill(sight);
    m_entry->turnTo(SightField::Hs);
}

void frmSunSight::cmdRecord_Click()
{
    const SightTexts sight = m_entry->sight();
    const auto outcome = m_editing ? m_list.replace(*m_editing, sight) : m_list.record(sight);
    if (outcome != SightList::Outcome::Recorded) {
        program().questions().ask({outcomeText(outcome), programTitle, Buttons::Ok});
        return;
    }
    setEditing({});
    listChanged();
    m_entry->turnTo(SightField::time);
}

void frmSunSight::cmdEdit_Click()
{
    const auto chosen = m_sights->chosen();
    if (!chosen) return;
    setEditing(chosen);
    m_entry->fill(m_list.sights()[*chosen].texts);
    m_entry->turnTo(SightField::time);
}

void frmSunSight::cmdNew_Click()
{
    setEditing({});
    m_entry->turnTo(SightField::time);
}

void frmSunSight::cmdDelete_Click()
{
    const auto chosen = m_sights->chosen();
    if (!chosen) return;
    const Message question{"Delete this sight?\r\r" + listLine(m_list.sights()[*chosen]),
                           programTitle, Buttons::YesNo};
    if (program().questions().ask(question) != Answer::Yes) return;
    const auto before = edited();
    m_list.remove(*chosen);
    m_cleared.reset();
    keepEditing(before);
    listChanged();
}

void frmSunSight::switchSight(std::size_t index, bool on)
{
    m_list.setOn(index, on);
    listChanged();
}

void frmSunSight::clearSight()
{
    setEditing({});
    SightTexts empty;
    empty.SMT = m_entry->sight().SMT;
    empty.TD = m_entry->sight().TD;
    m_entry->fill(empty);
    m_entry->box(SightField::date)->setFocus(Qt::TabFocusReason);
}

void frmSunSight::deleteAll()
{
    if (program().questions().ask(
            {"Are you sure to clear all contents?", programTitle, Buttons::YesNo}) != Answer::Yes)
        return;
    m_list.clear();
    m_cleared = m_entry->sight();
    clearSight();
    setNotice("list", {});
    listChanged();
}

void frmSunSight::undo()
{
    if (!m_list.canTakeBack() && !m_cleared) return;
    const auto before = edited();
    m_list.takeBack();
    keepEditing(before);
    // What was typed since the clearing is not written over.
    if (m_cleared && !m_entry->sight().isBegun()) m_entry->fill(*m_cleared);
    m_cleared.reset();
    setNotice("list", m_list.canTakeBack()
                          ? "The list is full: not all of the deleted sights could come back."
                          : QString());
    listChanged();
}

void frmSunSight::fixBecomesDR()
{
    if (!m_fix.fix) return;
    m_entry->fill(TrackTexts{m_fix.memoLatitude, m_fix.memoLongitude,
                             Format(*m_fix.UTC, "yyyy/mm/dd hh:mm:ss"), m_entry->track().course,
                             m_entry->track().speed});
}

void frmSunSight::followTD()
{
    EntryBox* box = m_entry->box(SightField::TD);
    const bool follows = box->text() == m_shipsTD;
    m_shipsTD = asQString(Format(program().saved().TD(), "0.##"));
    if (follows) box->setText(m_shipsTD);
    if (!calculations().isHeld()) calculations().runAll();
}

void frmSunSight::listChanged()
{
    calculations().run(m_fixCalculation);
    calculations().run(m_lineCalculation);
    m_sights->setUndo(m_list.canTakeBack() || m_cleared.has_value());
    record().saveNow();
}

std::optional<SightTexts> frmSunSight::edited() const
{
    if (!m_editing) return std::nullopt;
    return m_list.sights()[*m_editing].texts;
}

/// After sights came or went: the one being edited may stand elsewhere, or be gone.
void frmSunSight::keepEditing(const std::optional<SightTexts>& edited)
{
    const auto& sights = m_list.sights();
    const auto at = std::ranges::find_if(
        sights, [&](const RecordedSight& sight) { return edited && sight.texts == *edited; });
    setEditing(at == sights.end()
                   ? std::nullopt
                   : std::optional(static_cast<std::size_t>(std::distance(sights.begin(), at))));
}

void frmSunSight::setEditing(std::optional<std::size_t> index)
{
    m_editing = index;
    m_entry->setEditing(index.has_value());
    setNotice("0 edit", index ? "The sight of " + asQString(listLine(m_list.sights()[*index])) +
                                    " is being edited: put it back, or start a new one."
                              : QString());
}

void frmSunSight::applyColours()
{
    CalculatorWindow::applyColours();
    m_fixes->setColours(program().colours());
}

} // namespace korvel
