// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/frmSunSight.h"

#include "app/Format.h"
#include "forms/frmSunSight/MeridianPassage.h"
#include "forms/frmSunSight/SightPicture.h"

#include <QCheckBox>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

namespace korvel
{
namespace
{

/// Boxes of the sight, in the order of txtSunSight, and where their texts belong.
constexpr std::array sightFields = {
    &SightTexts::date, &SightTexts::time,       &SightTexts::TD,          &SightTexts::watchError,
    &SightTexts::Hs,   &SightTexts::indexError, &SightTexts::heightOfEye, &SightTexts::air,
    &SightTexts::sea,  &SightTexts::pressure};
constexpr std::size_t timeBox = 1, TDBox = 2, altitudeBox = 4;

QString text(const std::string& value)
{
    return QString::fromStdString(value);
}

template <std::size_t N>
std::vector<ResultLabel*> asLabels(const std::array<ResultLabel*, N>& labels)
{
    return {labels.begin(), labels.end()};
}

} // namespace

frmSunSight::frmSunSight(Program& program) : CalculatorWindow(program, "frmSunSight", "Sun sight")
{
    addBoxes();
    addOptions();
    addResults();
    addList();
    layOut();
    addMenus();
    addCalculations();
    m_txtSunSight[TDBox]->setText(text(Format(program.saved().TD(), "0.##")));
    record().use(
        "KV_SunSight.ini", sightKinds(),
        [this] {
            return recordOf({sightTexts(), trackTexts(), fixOptions(), m_list});
        },
        [this](const Record& record) { showSettings(settingsOf(record)); },
        [this](const std::string& bytes) { salvage(bytes); });
    loadSettings();
    showList();
    m_txtSunSight[0]->setFocus();
    m_txtSunSight[0]->selectAll();
}

void frmSunSight::addCalculations()
{
    std::vector<EntryBox*> track(m_txtSunDR.begin(), m_txtSunDR.end());
    track.insert(track.end(), m_txtSunRun.begin(), m_txtSunRun.end());

    std::vector<EntryBox*> ofLine(m_txtSunSight.begin(), m_txtSunSight.end());
    ofLine.insert(ofLine.end(), track.begin(), track.end());
    std::vector<ResultLabel*> results = asLabels(m_lblSunTime);
    for (const auto& labels :
         {asLabels(m_lblSunValue), asLabels(m_lblSunLine), asLabels(m_lblSunNoon)})
        results.insert(results.end(), labels.begin(), labels.end());
    m_lineCalculation =
        calculations().add({"Line of position", ofLine, results, [this] { runLine(); }});

    std::vector<EntryBox*> ofFix = track;
    ofFix.insert(ofFix.end(), m_txtSunSigma.begin(), m_txtSunSigma.end());
    m_fixCalculation =
        calculations().add({"Fix", ofFix, asLabels(m_lblSunFix), [this] { runFix(); }});

    const auto again = [this](int& number) {
        return [this, &number] {
            if (!calculations().isHeld()) calculations().run(number);
        };
    };
    for (QRadioButton* option : {m_optSunScale[1], m_optSunLimb[1]})
        connect(option, &QRadioButton::toggled, this, again(m_lineCalculation));
    connect(m_chkSunMeasured, &QCheckBox::toggled, this, again(m_fixCalculation));
}

SightTexts frmSunSight::sightTexts() const
{
    SightTexts texts;
    for (std::size_t i = 0; i < sightFields.size(); ++i)
        texts.*sightFields[i] = m_txtSunSight[i]->value();
    texts.SMT = m_optSunScale[1]->isChecked();
    texts.upperLimb = m_optSunLimb[1]->isChecked();
    return texts;
}

TrackTexts frmSunSight::trackTexts() const
{
    return {m_txtSunDR[0]->value(), m_txtSunDR[1]->value(), m_txtSunRun[0]->value(),
            m_txtSunRun[1]->value(), m_txtSunRun[2]->value()};
}

SightFixOptions frmSunSight::fixOptions() const
{
    return {m_txtSunSigma[0]->value(), m_txtSunSigma[1]->value(), m_txtSunSigma[2]->value(),
            m_chkSunMeasured->isChecked()};
}

void frmSunSight::showSight(const SightTexts& sight)
{
    for (std::size_t i = 0; i < sightFields.size(); ++i)
        m_txtSunSight[i]->setText(text(sight.*sightFields[i]));
    m_optSunScale[sight.SMT ? 1 : 0]->setChecked(true);
    m_optSunLimb[sight.upperLimb ? 1 : 0]->setChecked(true);
}

void frmSunSight::showSettings(const SightSettings& settings)
{
    showSight(settings.sight);
    const TrackTexts& track = settings.track;
    m_txtSunDR[0]->setText(text(track.latitude));
    m_txtSunDR[1]->setText(text(track.longitude));
    m_txtSunRun[0]->setText(text(track.time));
    m_txtSunRun[1]->setText(text(track.course));
    m_txtSunRun[2]->setText(text(track.speed));
    m_txtSunSigma[0]->setText(text(settings.options.sigma));
    m_txtSunSigma[1]->setText(text(settings.options.runAlong));
    m_txtSunSigma[2]->setText(text(settings.options.runCourse));
    m_chkSunMeasured->setChecked(settings.options.measured);
    m_list = settings.list;
    if (const std::size_t count = m_list.unreadable().size())
        setNotice("list", QString("%1 of the recorded sights cannot be read; the file keeps them "
                                  "as they stand.")
                              .arg(count));
}

void frmSunSight::salvage(const std::string& bytes)
{
    m_list = SightList::salvaged(bytes);
    setNotice("list", QString("Found in the damaged settings file: %1 recorded sights. Check them; "
                              "the file itself is left as it is.")
                          .arg(m_list.sights().size()));
}

void frmSunSight::runLine()
{
    m_line = {};
    m_line = CalculateLOP(sightTexts(), trackTexts());
    const MeridianResult noon = CalculateMeridian(sightTexts(), trackTexts());
    const auto fill = [](const auto& labels, const auto& texts) {
        for (std::size_t i = 0; i < labels.size(); ++i)
            labels[i]->setText(text(texts[i]));
    };
    fill(m_lblSunTime, std::array{m_line.UTC, m_line.SMT, m_line.watchError});
    showWorksheet(m_line.worksheet);
    fill(m_lblSunLine, std::array{m_line.declination, m_line.GHA, m_line.DR, m_line.Hc,
                                  m_line.intercept, m_line.Zn});
    fill(m_lblSunNoon, std::array{noon.noon, noon.greatest, noon.latitude, noon.note});
    setNotice("1 sight", text(m_line.notice));
}

void frmSunSight::showWorksheet(const std::vector<WorksheetLine>& lines)
{
    for (std::size_t i = 0; i < worksheetLines; ++i) {
        const bool used = i < lines.size();
        m_lblSunTerm[i]->setText(used ? text(lines[i].caption) : QString());
        m_lblSunValue[i]->setText(used ? text(lines[i].text) : QString());
    }
}

void frmSunSight::runFix()
{
    m_fix = {};
    m_fix = CalculateFix(m_list, trackTexts(), fixOptions());
    const SightPlot plot = DrawLOP(m_fix);
    const std::array texts{m_fix.latitude, m_fix.longitude, m_fix.time, m_fix.ellipseText,
                           m_fix.sigmaText};
    for (std::size_t i = 0; i < texts.size(); ++i)
        m_lblSunFix[i]->setText(text(texts[i]));
    m_picSunSight->show(plot);
    m_picSunSight->setAccessibleDescription(
        text(m_fix.time + " " + m_fix.latitude + " " + m_fix.longitude + " " + m_fix.ellipseText));
    showLinesInList();
    setNotice("2 fix", text(m_fix.notice));
    setNotice("3 plot", text(plot.notice));
}

void frmSunSight::showList()
{
    const QSignalBlocker quiet(m_lstSunSight);
    const int row = m_lstSunSight->currentRow();
    m_lstSunSight->clear();
    for (const RecordedSight& sight : m_list.sights()) {
        auto* item = new QListWidgetItem(m_lstSunSight);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(sight.on ? Qt::Checked : Qt::Unchecked);
    }
    if (m_lstSunSight->count() > 0)
        m_lstSunSight->setCurrentRow(std::clamp(row, 0, m_lstSunSight->count() - 1));
    showLinesInList();
}

/// Each sight with its line below, as far as it is on.
void frmSunSight::showLinesInList()
{
    const QSignalBlocker quiet(m_lstSunSight);
    std::vector<std::string> lines(m_list.sights().size());
    for (const FixLine& line : m_fix.lines)
        if (line.index < lines.size()) lines[line.index] = line.text;
    for (int row = 0; row < m_lstSunSight->count(); ++row) {
        const auto at = static_cast<std::size_t>(row);
        const std::string second = lines[at].empty() ? "off" : lines[at];
        m_lstSunSight->item(row)->setText(text(listLine(m_list.sights()[at]) + "\n" + second));
    }
}

void frmSunSight::showCursor(QPointF user)
{
    const CursorTexts texts = cursorTexts(m_picSunSight->plot(), {user.x(), user.y()});
    m_lblSunCursor[0]->setText(text(texts.latitude));
    m_lblSunCursor[1]->setText(text(texts.longitude));
}

void frmSunSight::cmdMark_Click()
{
    SightTexts sight = sightTexts();
    Mark(sight, program().shipsTime().UTC());
    showSight(sight);
    m_txtSunSight[altitudeBox]->setFocus(Qt::TabFocusReason);
}

void frmSunSight::cmdRecord_Click()
{
    const auto outcome =
        m_editing ? m_list.replace(*m_editing, sightTexts()) : m_list.record(sightTexts());
    if (outcome != SightList::Outcome::Recorded) {
        program().questions().ask({outcomeText(outcome), programTitle, Buttons::Ok});
        return;
    }
    setEditing({});
    listChanged();
    m_txtSunSight[timeBox]->setFocus(Qt::TabFocusReason);
}

void frmSunSight::cmdEdit_Click()
{
    const int row = m_lstSunSight->currentRow();
    if (row < 0) return;
    setEditing(static_cast<std::size_t>(row));
    showSight(m_list.sights()[*m_editing].texts);
    m_txtSunSight[timeBox]->setFocus(Qt::TabFocusReason);
}

void frmSunSight::cmdNew_Click()
{
    setEditing({});
    m_txtSunSight[timeBox]->setFocus(Qt::TabFocusReason);
}

void frmSunSight::cmdDelete_Click()
{
    const int row = m_lstSunSight->currentRow();
    if (row < 0) return;
    const auto at = static_cast<std::size_t>(row);
    const Message question{"Delete this sight?\r\r" + listLine(m_list.sights()[at]), programTitle,
                           Buttons::YesNo};
    if (program().questions().ask(question) != Answer::Yes) return;
    m_list.remove(at);
    setEditing({});
    listChanged();
}

void frmSunSight::listChanged()
{
    showList();
    calculations().run(m_fixCalculation);
    record().saveNow();
}

void frmSunSight::setEditing(std::optional<std::size_t> index)
{
    m_editing = index;
    m_cmdRecord->setText(index ? "P&ut back" : "Rec&ord (F6)");
    m_cmdNew->setEnabled(index.has_value());
    setNotice("0 edit", index ? "The sight of " + text(listLine(m_list.sights()[*index])) +
                                    " is being edited: put it back, or start a new one."
                              : QString());
}

void frmSunSight::clearSight()
{
    setEditing({});
    SightTexts empty;
    empty.SMT = m_optSunScale[1]->isChecked();
    empty.TD = m_txtSunSight[TDBox]->value();
    showSight(empty);
    m_txtSunSight[0]->setFocus(Qt::TabFocusReason);
}

void frmSunSight::deleteAll()
{
    if (program().questions().ask(
            {"Are you sure to clear all contents?", programTitle, Buttons::YesNo}) != Answer::Yes)
        return;
    m_list = {};
    clearSight();
    setNotice("list", {});
    listChanged();
}

void frmSunSight::fixBecomesDR()
{
    if (!m_fix.fix) return;
    // All three are taken first: filling the boxes changes the fix.
    const QString latitude = text(m_fix.memoLatitude), longitude = text(m_fix.memoLongitude);
    const QString time = text(Format(*m_fix.UTC, "yyyy/mm/dd hh:mm:ss"));
    m_txtSunDR[0]->setText(latitude);
    m_txtSunDR[1]->setText(longitude);
    m_txtSunRun[0]->setText(time);
}

void frmSunSight::applyColours()
{
    CalculatorWindow::applyColours();
    m_picSunSight->setColours(program().colours());
}

} // namespace korvel
