// SPDX-License-Identifier: MIT
#include "forms/frmTanks/frmTanks.h"

#include "forms/frmTanks/SheetPages.h"
#include "forms/frmTanks/TankFields.h"
#include "forms/frmTanks/TankListPage.h"
#include "forms/frmTanks/TankPaper.h"
#include "forms/frmTanks/TankRecord.h"
#include "shell/controls/PageParts.h"
#include "shell/layout/FollowingScrollArea.h"
#include "shell/layout/PageBar.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"

#include <QVBoxLayout>

namespace korvel
{

frmTanks::frmTanks(Program& program)
    : CalculatorWindow(program, "frmTanks", "Tank list and bunkers"),
      m_binding(new SheetBinding(m_work, this)), m_fields(addFields(SheetFields)),
      m_results(addResults(TanksResults)), m_pages(new PageBar), m_tanks(makeList(ListKind::Cargo)),
      m_grades(new GradesPage(m_work, *m_binding, m_fields)), m_totals(nullptr),
      m_bunkers(makeList(ListKind::Bunkers)), m_experience(nullptr)
{
    for (std::size_t i = 0; i < TanksResults.size(); ++i)
        m_results[i]->setRoom(TanksRooms[i]);
    bindFields();
    addPages();
    connectParts();
    addMenus();
    std::vector<EntryBox*> boxes = m_tanks->boxes();
    for (const auto& more : {m_binding->boxes(), m_bunkers->boxes()})
        boxes.insert(boxes.end(), more.begin(), more.end());
    m_calculation = calculations().add(
        {"Tank list", std::move(boxes), m_results.all(), [this] { run(); }, true});
    record().useText(
        tankFile, [this] { return tankRecordText(m_work.sheet()); },
        [this](const std::string& bytes) {
            ReadTankRecord read = readTankRecord(bytes);
            m_work.take(std::move(read.sheet));
            refresh();
            return read.damage;
        });
    m_work.goToSurvey(ListKind::Bunkers, TankSurvey::Last);
    loadSettings();
    refresh();
    m_tanks->box(TankNameBox)->setFocus();
}

TankListPage* frmTanks::makeList(ListKind kind)
{
    const auto captions = [](const auto& table) {
        std::vector<QString> all;
        all.reserve(table.size());
        for (const auto& each : table)
            all.push_back(*each.unit ? QString(each.caption) + ", " + each.unit
                                     : QString(each.caption));
        return all;
    };
    if (kind == ListKind::Cargo)
        return new TankListPage(program(), m_work,
                                {kind, "tblTanks", "optSurvey", addFields(CargoTankFields),
                                 addResults(CargoTankResults), captions(CargoTankResults)});
    return new TankListPage(program(), m_work,
                            {kind, "tblBunkers", "optBunkerSurvey", addFields(BunkerTankFields),
                             addResults(BunkerTankResults), captions(BunkerTankResults)});
}

void frmTanks::bindFields()
{
    m_binding->bind(m_fields[PortBox], [](TankSheet& sheet) -> std::string& { return sheet.port; });
    for (std::size_t i = 0; i < surveyCount; ++i) {
        m_binding->bind(m_fields[CargoTimes + i], [i](TankSheet& sheet) -> std::string& {
            return sheet.list(ListKind::Cargo).times[i];
        });
        m_binding->bind(m_fields[BunkerTimes + i], [i](TankSheet& sheet) -> std::string& {
            return sheet.list(ListKind::Bunkers).times[i];
        });
    }
}

/// Answers stand above what a page scrolls: those about the cargo on each that is about it.
void frmTanks::addAnswers(QVBoxLayout& column)
{
    const auto strip = [&](std::initializer_list<std::size_t> labels, Page first, Page last) {
        auto* answers = new AnswerStrip;
        for (const std::size_t each : labels)
            m_results.addAnswer(answers, each, TanksRooms[each]);
        column.insertWidget(1, answers);
        m_answers.push_back({answers, first, last});
    };
    strip({LabelMoved, LabelMovedVolume, LabelPercent}, Tanks, Totals);
    strip({LabelConsumed, LabelConsumed + 1, LabelConsumed + 2}, Bunkers, Bunkers);
    strip({LabelFactors, LabelFactors + 1}, Experience, Experience);
}

QWidget* frmTanks::layOutBunkers()
{
    auto* page = new ScrolledBody;
    auto* column = new QVBoxLayout(page);
    layOutBody(*column);
    auto* fuels = new QWidget;
    auto* row = new WrappingRow(fuels);
    row->setGap(2 * page->fontMetrics().averageCharWidth());
    for (std::size_t i = 0; i < fuelCount; ++i) {
        row->startGroup();
        row->addWidget(new QLabel(TanksResults[LabelFuels + i].caption));
        row->stayClose();
        row->addWidget(m_results[LabelFuels + i]);
    }
    for (std::size_t i = BunkerTimes; i < BunkerTimes + surveyCount; ++i) {
        auto* caption = new QLabel(SheetFields[i].caption);
        caption->setBuddy(m_fields[i]);
        m_fields[i]->setFixedWidth(page->fontMetrics().horizontalAdvance("2038/08/04 20:38 "));
        row->startGroup();
        row->addWidget(caption);
        row->stayClose();
        row->addWidget(m_fields[i]);
    }
    row->addStretch();
    m_fields.all().back()->setNext(m_bunkers->box(TankNameBox));
    column->addWidget(fuels);
    column->addWidget(m_bunkers, 1);
    column->addWidget(sectionHead("Parcels, and what was received"));
    auto* parcels = new GradesTable(ListKind::Bunkers, *m_binding);
    column->addWidget(parcels->makeHeading());
    column->addWidget(parcels);
    return page;
}

void frmTanks::addPages()
{
    auto* area = new FollowingScrollArea(m_tanks);
    setScrollArea(area);
    auto* column = static_cast<QVBoxLayout*>(body()->layout());
    column->insertWidget(0, m_pages);
    addAnswers(*column);
    m_pages->addPage("&Tanks", "cmdTankPage(0)", "Page of the tanks", area);
    int index = 1;
    const auto add = [this, &index](QWidget* content, const char* caption, const char* words) {
        addScrolledPage(*body(), *m_pages, content, caption,
                        QString("cmdTankPage(%1)").arg(index++), words);
    };
    m_totals = new TotalsPage(m_results);
    m_experience = new ExperiencePage(*m_binding, m_results);
    add(m_grades, "&Grades", "Page of the grades and bills");
    add(m_totals, "Totals an&d bill", "Page of the totals and of ship against bill of lading");
    add(layOutBunkers(), "Bun&kers", "Page of the bunkers");
    add(m_experience, "E&xperience", "Page of the vessel experience factor");
}

std::vector<CatalogueEntry::Place> frmTanks::pagesToGoTo()
{
    return {{"Grades, volume correction", "cmdTankPage(1)"},
            {"Ship against bill of lading", "cmdTankPage(2)"},
            {"Bunkers on board", "cmdTankPage(3)"},
            {"Vessel experience factor", "cmdTankPage(4)"}};
}

void frmTanks::connectParts()
{
    const auto again = [this] { calculations().run(m_calculation); };
    for (TankListPage* list : {m_tanks, m_bunkers}) {
        connect(list, &TankListPage::changed, this, again);
        connect(list, &TankListPage::deleteWanted, this, &frmTanks::deleteRow);
        connect(list, &TankListPage::pasteWanted, this, &frmTanks::paste);
        connect(list, &TankListPage::undoWanted, this, &frmTanks::undo);
        connect(list, &TankListPage::redoWanted, this, &frmTanks::redo);
    }
    connect(m_binding, &SheetBinding::undoWanted, this, &frmTanks::undo);
    connect(m_binding, &SheetBinding::redoWanted, this, &frmTanks::redo);
    connect(m_grades, &GradesPage::chosen, this, again);
    connect(m_totals, &TotalsPage::chosen, this, again);
    connect(m_pages, &PageBar::turned, this, again);
}

void frmTanks::run()
{
    if (m_tanks->isFilling() || m_bunkers->isFilling() || m_binding->isFilling()) return;
    m_shown = tanksShown(m_work);
    m_results.show(m_shown);
    showPage();
    record().changed();
}

/// The page that is seen, and what it has to say.
void frmTanks::showPage()
{
    const auto say = [this](const char* key, ListKind kind, bool isSeen) {
        const auto list = static_cast<std::size_t>(kind);
        setNotice(key, isSeen ? asQString(m_shown.notices[list]) : QString(),
                  levelBeside(m_shown.isWhole[list]));
    };
    const std::size_t page = m_pages->page();
    for (const Answers& each : m_answers)
        each.strip->setVisible(page >= each.first && page <= each.last);
    say("cargo", ListKind::Cargo, page <= Totals);
    say("bunkers", ListKind::Bunkers, page == Bunkers);
    QStringList factors;
    for (const ExperienceShown& each : m_shown.experience)
        if (!each.notice.empty()) factors << asQString(each.notice);
    setNotice("factor", page == Experience ? factors.join("; ") : QString());
    switch (page) {
    case Tanks:
        return m_tanks->show();
    case Totals:
        return m_totals->show(m_work.reckoning(ListKind::Cargo));
    case Bunkers:
        return m_bunkers->show();
    case Experience:
        return m_experience->show(m_shown);
    default:
        return;
    }
}

/// The sheet changed by other means than keys in its boxes.
void frmTanks::refresh()
{
    m_tanks->fill();
    m_bunkers->fill();
    m_binding->fill();
    m_grades->fill();
    calculations().run(m_calculation);
}

ListKind frmTanks::listInHand() const
{
    return m_pages->page() == Bunkers ? ListKind::Bunkers : ListKind::Cargo;
}

TankListPage& frmTanks::pageOf(ListKind kind) const
{
    return kind == ListKind::Cargo ? *m_tanks : *m_bunkers;
}

WorkingPaper frmTanks::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    switch (m_pages->page()) {
    case Bunkers:
        tellBunkers(paper, m_work, m_shown);
        break;
    case Experience:
        tellExperience(paper, m_work, m_shown);
        break;
    case Totals:
        tellMoved(paper, m_work, m_shown);
        break;
    default:
        tellSurvey(paper, m_work, m_shown, ListKind::Cargo);
    }
    return paper;
}

} // namespace korvel
