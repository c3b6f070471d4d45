// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/frmSunSight.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmSunSight/SightLayout.h"
#include "forms/frmSunSight/panels/EntryPanel.h"
#include "forms/frmSunSight/panels/FixPanel.h"
#include "forms/frmSunSight/panels/LinePanel.h"
#include "forms/frmSunSight/panels/SightListPanel.h"
#include "forms/frmSunSight/paper/SightPaper.h"
#include "forms/frmSunSight/sight/SightBodies.h"
#include "shell/machine/AsQString.h"

#include <QMenu>

#include <algorithm>

namespace korvel
{

frmSunSight::frmSunSight(Program& program)
    : CalculatorWindow(program, "frmSunSight", "Sun sight"), m_entry(new EntryPanel(body())),
      m_lines(new LinePanel(body())), m_fixes(new FixPanel(body())),
      m_sights(new SightListPanel(body())),
      m_habits(program.files(), program.questions(), program.clock(), "KV_SunSightOwn.ini",
               {FieldKind::Tick}),
      m_bodies(program.files(), program.questions(), program.clock(), sightBodiesFile)
{
    m_entry->setBodyLabel(m_lines->bodyLabel());
    layOut({*m_entry, *m_lines, *m_fixes, *m_sights}, *scrollBody());
    m_fixes->addAnswers(*m_lines->answers());
    pinAnswers(m_lines->answers());
    foldColumns();
    connectPanels();
    rememberDetails();
    addSightMenu();
    addMemoMenus();
    menus().addLinks("mnuSunSight");
    addCalculations();
    followTD();
    useRecord();
    loadSettings();
    loadBodies();
    showPlanned();
    offerDate();
    if (!m_list.list().sights().empty()) calculations().run(m_fixCalculation);
    m_entry->box(SightField::date)->setFocus();
    m_entry->box(SightField::date)->selectAll();
}

void frmSunSight::connectPanels()
{
    const auto run = [this](int& number) {
        return [this, &number] {
            if (!calculations().isHeld()) calculations().run(number);
        };
    };
    connect(m_entry, &EntryPanel::scaleOrLimbChanged, this, [this] { offerDate(); });
    connect(&program(), &Program::minuteChanged, this, &frmSunSight::offerDate);
    connect(m_entry, &EntryPanel::scaleOrLimbChanged, this, run(m_lineCalculation));
    connect(m_entry, &EntryPanel::measuredChanged, this, run(m_fixCalculation));
    connect(m_entry, &EntryPanel::markAsked, this, &frmSunSight::cmdMark_Click);
    connect(m_entry, &EntryPanel::recordAsked, this, &frmSunSight::cmdRecord_Click);
    connect(m_entry, &EntryPanel::newAsked, this, &frmSunSight::cmdNew_Click);
    connect(m_sights, &SightListPanel::switched, this, &frmSunSight::switchSight);
    connect(m_sights, &SightListPanel::editAsked, this, &frmSunSight::cmdEdit_Click);
    connect(m_sights, &SightListPanel::deleteAsked, this, &frmSunSight::cmdDelete_Click);
    connect(m_sights, &SightListPanel::undoAsked, this, &frmSunSight::undo);
    connect(&program(), &Program::sightsPlanned, this, &frmSunSight::showPlanned);
    connect(&program(), &Program::TDChanged, this, &frmSunSight::followTD);
    m_fixes->onView = [this](const std::string& outside) {
        setNotice("3 plot", asQString(outside));
    };
}

void frmSunSight::rememberDetails()
{
    const auto habits = m_habits.load();
    m_lines->details().open(habits && tickOf(habits->front()));
    m_lines->details().onFold = [this](bool isOpen) {
        setNotice("habits~", asQString(m_habits.saveQuietly({isOpen})), NoticeLevel::Fault);
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
    menus().addEntry(sight, "mnuSight", 5, "&Print", [this] { printPaper(); });
    m_series = menus().addEntry(sight, "mnuSight", 6, "&Series: shots of one body are one line",
                                [this] { listChanged(); });
    m_series->setCheckable(true);
    add(sight, "mnuSight", 7, "Fi&x into the position record", &frmSunSight::fixIntoRecord);
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
    m_lineCalculation = calculations().add(
        {"Line of position", m_entry->lineBoxes(), m_lines->results(), [this] { runLine(); }});
    m_fixCalculation =
        calculations().add({"Fix", m_entry->fixBoxes(), m_fixes->results(), [this] { runFix(); }});
}

void frmSunSight::useRecord()
{
    record().use(
        "KV_SunSight.ini", sightKinds(),
        [this] {
            SightTexts sight = m_entry->sight();
            // The day of a sight that is not begun is that of the next opening.
            if (!sight.isBegun() && asQString(sight.date) == m_offeredDate) sight.date.clear();
            return recordOf({sight, m_entry->track(), options(), m_list.list()});
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
    m_list.take(settings.list);
    if (const std::size_t count = settings.list.unreadable().size())
        setNotice("list", QString("%1 of the recorded sights cannot be read; the file keeps them "
                                  "as they stand.")
                              .arg(count));
}

/// After the record, whose sights they belong to.
void frmSunSight::loadBodies()
{
    const FileStore::Content file = m_bodies.read();
    if (file.status != FileStore::Content::Status::Read) return;
    m_bodiesOnDisk = file.bytes;
    SightSettings settings{m_entry->sight(), m_entry->track(), options(), m_list.list()};
    const std::string damage = takeSightBodies(file.bytes, settings);
    if (!damage.empty()) m_bodies.report("is damaged: " + damage, true);
    m_list.take(settings.list);
    m_series->setChecked(settings.options.series);
    m_entry->bodyBox()->setText(asQString(settings.sight.body));
    calculations().runAll();
}

void frmSunSight::saveBodies()
{
    const std::string bytes =
        sightBodiesText({m_entry->sight(), m_entry->track(), options(), m_list.list()});
    // Who never took another body than the Sun has no such file.
    const bool isFirst = m_bodiesOnDisk.empty() && bytes.find('=') == std::string::npos;
    if (bytes == m_bodiesOnDisk || isFirst) return;
    const std::string fault = m_bodies.saveQuietly(bytes);
    if (fault.empty()) m_bodiesOnDisk = bytes;
    setNotice("bodies~", asQString(fault), NoticeLevel::Fault);
}

void frmSunSight::salvage(const std::string& bytes)
{
    m_list.take(SightList::salvaged(bytes));
    setNotice("list", QString("Found in the damaged settings file: %1 recorded sights. Check them.")
                          .arg(m_list.list().sights().size()));
}

SightContext frmSunSight::context()
{
    return {m_list.list().lastOn(m_list.edited()), program().shipsTime().UTC(),
            NavFunc113::Hours(readNumber(m_shipsTD.toStdString()))};
}

void frmSunSight::runLine()
{
    m_line = {};
    m_noon = {};
    const SightTexts sight = m_entry->sight();
    const TrackTexts track = m_entry->track();
    m_line = CalculateLOP(sight, track, context());
    m_noon = CalculateMeridian(sight, track, context());
    m_lines->showResults(m_line, m_noon);
    m_entry->showBody(m_line.figures.observation.body);
    saveBodies();
    setNotice("1 sight", asQString(m_line.notice), m_line.level);
}

void frmSunSight::runFix()
{
    m_fix = {};
    m_fix = CalculateFix(m_list.list(), m_entry->track(), options(), program().shipsTime().UTC());
    const std::string outside = m_fixes->showFix(m_fix);
    m_sights->showSights(m_list.list(), m_fix);
    setNotice("2 fix", asQString(m_fix.notice), m_fix.level);
    setNotice("3 plot", asQString(outside));
}

SightFixOptions frmSunSight::options() const
{
    SightFixOptions options = m_entry->options();
    options.series = m_series->isChecked();
    return options;
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
    if (!isBodyMeant()) return;
    const auto outcome = m_list.put(m_entry->sight());
    if (outcome != SightList::Outcome::Recorded) {
        program().questions().ask({outcomeText(outcome), programTitle, Buttons::Ok});
        return;
    }
    showEditing();
    listChanged();
    strikeOffPlan(m_entry->sight().body.empty() ? "Sun" : m_entry->sight().body);
    const auto& sights = m_list.list().sights();
    const auto recorded = std::ranges::find(sights, m_entry->sight(), &RecordedSight::texts);
    if (recorded != sights.end())
        m_sights->choose(static_cast<std::size_t>(recorded - sights.begin()));
    // The next star of a round is another one, the next sight of the Sun is not.
    if (m_entry->sight().body.empty())
        m_entry->turnTo(SightField::time);
    else
        m_entry->bodyBox()->setFocus(Qt::TabFocusReason);
}

/// Asks about a body that can hardly be the one that was observed.
bool frmSunSight::isBodyMeant()
{
    const BodyDoubt& doubt = m_line.doubt;
    if (m_entry->sight().body.empty() || doubt.why.empty()) return true;
    std::string question = doubt.why + ".";
    if (!doubt.likely.empty()) question += "\rLikeliest other: " + doubt.likely + ".";
    question += "\r\rRecord it as " + m_entry->sight().body + " all the same?";
    return program().questions().ask({question, confirmationTitle, Buttons::YesNo}) == Answer::Yes;
}

void frmSunSight::cmdEdit_Click()
{
    if (const auto planned = chosenPlanned()) return takePlanned(*planned);
    const auto chosen = m_sights->chosen();
    if (!chosen) return;
    m_list.edit(chosen);
    showEditing();
    m_entry->fill(m_list.list().sights()[*chosen].texts);
    m_entry->turnTo(SightField::time);
}

void frmSunSight::cmdNew_Click()
{
    m_list.edit({});
    showEditing();
    m_entry->turnTo(SightField::time);
}

void frmSunSight::cmdDelete_Click()
{
    if (const auto planned = chosenPlanned()) return deletePlanned(*planned);
    const auto chosen = m_sights->chosen();
    if (!chosen) return;
    const Message question{"Delete this sight?\r\r" + listLine(m_list.list().sights()[*chosen]),
                           confirmationTitle, Buttons::YesNo};
    if (program().questions().ask(question) != Answer::Yes) return;
    m_list.remove(*chosen);
    showEditing();
    listChanged();
}

void frmSunSight::switchSight(std::size_t index, bool on)
{
    m_list.setOn(index, on);
    listChanged();
}

void frmSunSight::clearSight()
{
    m_list.edit({});
    showEditing();
    m_entry->clearSight();
    offerDate();
    m_entry->box(SightField::date)->setFocus(Qt::TabFocusReason);
}

/// A new sight is one of today: until it is begun its date follows the day, unless another one was
/// typed.
void frmSunSight::offerDate()
{
    EntryBox* box = m_entry->box(SightField::date);
    const SightTexts sight = m_entry->sight();
    const bool isOffered = box->text().isEmpty() || box->text() == m_offeredDate;
    if (calculations().isHeld() || sight.isBegun() || !isOffered) return;
    const ShipsTime& time = program().shipsTime();
    m_offeredDate = asQString(Format(sight.SMT ? time.SMT() : time.UTC(), "yyyy/mm/dd"));
    if (box->text() != m_offeredDate) box->setText(m_offeredDate);
}

void frmSunSight::deleteAll()
{
    if (program().questions().ask({"Are you sure to clear all contents?", confirmationTitle,
                                   Buttons::YesNo}) != Answer::Yes)
        return;
    m_list.clear(m_entry->sight());
    clearSight();
    setNotice("list", {});
    listChanged();
}

void frmSunSight::undo()
{
    if (!m_list.canUndo()) return;
    if (const auto cleared = m_list.undo(!m_entry->sight().isBegun())) m_entry->fill(*cleared);
    showEditing();
    setNotice("undo~", m_list.list().canTakeBack()
                           ? "The list is full: not all of the deleted sights could come back."
                           : QString());
    listChanged();
}

void frmSunSight::fixBecomesDR()
{
    if (m_fix.fix) m_entry->fill(trackFrom(m_fix, m_entry->track()));
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
    m_sights->setUndo(m_list.canUndo());
    record().saveNow();
}

void frmSunSight::showEditing()
{
    const auto index = m_list.edited();
    m_entry->setEditing(index.has_value());
    setNotice("0 edit~", index ? "The sight of " +
                                     asQString(listLine(m_list.list().sights()[*index])) +
                                     " is being edited: put it back, or start a new one."
                               : QString());
}

WorkingPaper frmSunSight::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.inputs = m_entry->paperFigures();
    leaveOutTwice(paper.remarks);
    addSights({m_entry->sight(), m_line, m_noon, m_list.list(), m_fix}, paper);
    return paper;
}

std::vector<PaperPicture> frmSunSight::paperPictures()
{
    return m_fixes->paperPictures();
}

} // namespace korvel
