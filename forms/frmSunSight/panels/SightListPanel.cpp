// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/SightListPanel.h"

#include "app/reading/Format.h"
#include "app/reading/PackedText.h"
#include "forms/frmSunSight/panels/PanelParts.h"
#include "forms/frmSunSight/panels/SightLines.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QPushButton>
#include <QSignalBlocker>

#include <utility>

namespace korvel
{
namespace
{

/// What was observed.
QString sightOf(const RecordedSight& sight)
{
    return asQString(listLine(sight) + (sight.on ? "" : "  off"));
}

} // namespace

SightListPanel::SightListPanel(QWidget* parent)
    : QWidget(parent), m_lstSunSight(new SightLines(this)),
      m_cmdUndo(makeButton("cmdUndo", "&Undo", "Brings back what was deleted last", this))
{
    m_lstSunSight->setObjectName("lstSunSight");
    m_lstSunSight->setAccessibleName("Recorded sights; the space bar switches one on and off");
    connect(m_lstSunSight, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        emit switched(static_cast<std::size_t>(m_lstSunSight->row(item)),
                      item->checkState() == Qt::Checked);
    });

    auto* edit = makeButton("cmdEdit", "&Edit", "The chosen sight back into the boxes", this);
    auto* remove =
        makeButton("cmdDelete", "&Delete", "Deletes the chosen sight, after a question", this);
    connect(edit, &QPushButton::clicked, this, &SightListPanel::editAsked);
    connect(remove, &QPushButton::clicked, this, &SightListPanel::deleteAsked);
    connect(m_cmdUndo, &QPushButton::clicked, this, &SightListPanel::undoAsked);
    m_cmdUndo->setEnabled(false);
    auto* grid = new QGridLayout(this);
    layOutBody(*grid, Spacing::Dense);
    auto* caption = new QLabel("Recorded\nsi&ghts");
    caption->setBuddy(m_lstSunSight);
    grid->addWidget(m_lstSunSight, 0, 0, 5, 1);
    grid->addWidget(caption, 0, 1);
    grid->addWidget(edit, 1, 1);
    grid->addWidget(remove, 2, 1);
    grid->addWidget(m_cmdUndo, 3, 1);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(0, 1);
}

void SightListPanel::showSights(const SightList& list, const SightFixResult& fix)
{
    const QSignalBlocker quiet(m_lstSunSight);
    std::vector<std::string> lines(list.sights().size());
    for (const FixLine& line : fix.lines)
        if (line.index < lines.size()) lines[line.index] = line.text;
    for (const SightSeries& series : fix.series)
        for (const SeriesShot& shot : series.shots) {
            std::string& line = lines.at(shot.index);
            std::string words = "shot " + Format(shot.residual, "+0.0';-0.0'");
            if (shot.isWild) words += " wild";
            if (!line.empty()) words += "  ";
            words += line;
            line = std::move(words);
        }
    const int count = m_recorded = static_cast<int>(lines.size());
    while (m_lstSunSight->count() > count)
        delete m_lstSunSight->takeItem(m_lstSunSight->count() - 1);
    while (m_lstSunSight->count() < count)
        m_lstSunSight->addItem(QString());
    for (int row = 0; row < count; ++row) {
        const RecordedSight& sight = list.sights()[static_cast<std::size_t>(row)];
        QListWidgetItem* item = m_lstSunSight->item(row);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setFont(m_lstSunSight->font()); // the row may have been one of the plan
        item->setCheckState(sight.on ? Qt::Checked : Qt::Unchecked);
        const QString result = asQString(lines[static_cast<std::size_t>(row)]);
        const QString whole = sightOf(sight) + "  " + result;
        m_lstSunSight->showSight(row, sightOf(sight), result,
                                 asQString(inFullForm(whole.trimmed().toStdString())));
    }
    writePlanned();
    if (m_lstSunSight->currentRow() < 0) m_lstSunSight->setCurrentRow(0);
}

void SightListPanel::showPlanned(const std::vector<std::string>& lines)
{
    const QSignalBlocker quiet(m_lstSunSight);
    m_planned = lines;
    while (m_lstSunSight->count() > m_recorded)
        delete m_lstSunSight->takeItem(m_lstSunSight->count() - 1);
    writePlanned();
}

void SightListPanel::writePlanned()
{
    for (const std::string& line : m_planned) {
        const int row = m_lstSunSight->count();
        m_lstSunSight->addItem(QString());
        QListWidgetItem* item = m_lstSunSight->item(row);
        item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
        QFont letters = m_lstSunSight->font();
        letters.setItalic(true);
        item->setFont(letters);
        m_lstSunSight->showSight(row, asQString(line), {}, asQString(inFullForm(line)));
    }
}

std::optional<std::size_t> SightListPanel::chosen() const
{
    const int row = m_lstSunSight->currentRow();
    if (row < 0) return std::nullopt;
    return static_cast<std::size_t>(row);
}

void SightListPanel::choose(std::size_t index)
{
    m_lstSunSight->setCurrentRow(static_cast<int>(index));
}

void SightListPanel::setUndo(bool canUndo)
{
    m_cmdUndo->setEnabled(canUndo);
}

} // namespace korvel
