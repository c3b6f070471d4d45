// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/LinePanel.h"

#include "forms/frmSunSight/panels/PanelParts.h"
#include "shell/controls/Boxes.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr std::array<const char*, 6> lineCaptions = {
    "Declination (south -)", "Greenwich hour angle", "DR at the sight",
    "Computed altitude Hc",  "Intercept, nm",        "Azimuth Zn, true"};

} // namespace

LinePanel::LinePanel(QWidget* parent)
    : QWidget(parent), m_noon(new QGroupBox("Meridian passage", parent)),
      m_lblSunTime(makeResults<3>("lblSunTime",
                                  {"Time of the sight, UTC", "Time of the sight, ship's mean time",
                                   "Watch error as applied"},
                                  this)),
      m_lblSunLine(makeResults("lblSunLine", lineCaptions, this)),
      m_lblSunNoon(makeResults<4>("lblSunNoon",
                                  {"Local apparent noon", "Greatest altitude",
                                   "Latitude by the sight", "The sight and the meridian"},
                                  this))
{
    auto* column = new QVBoxLayout(this);
    layOutBody(*column, Spacing::Dense);
    column->addWidget(layOutWorksheet());
    column->addWidget(layOutLine());
    column->addStretch(1);
    layOutNoon();
}

QGroupBox* LinePanel::layOutWorksheet()
{
    auto* group = new QGroupBox("Worksheet");
    auto* grid = gridOf(group, Spacing::Dense);
    int row = 0;
    for (ResultLabel* label : m_lblSunTime) {
        makeSentence(label, 1);
        grid->addWidget(label, row++, 0, 1, 2);
    }
    for (std::size_t i = 0; i < worksheetLines; ++i, ++row) {
        m_lblSunTerm[i] = new QLabel;
        // A room of its own: what a line is about changes while one types.
        const QFontMetrics letters = m_lblSunTerm[i]->fontMetrics();
        m_lblSunTerm[i]->setFixedSize(letters.horizontalAdvance("Upper limb: less the diameter"),
                                      letters.lineSpacing());
        m_lblSunTerm[i]->setObjectName(memberName("lblSunTerm", static_cast<int>(i)));
        m_lblSunValue[i] = makeResult("lblSunValue", static_cast<int>(i), "Worksheet", this);
        m_lblSunValue[i]->setFont(QFont()); // a column of figures that is added up, not results
        m_lblSunValue[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        setRoom(m_lblSunValue[i], "000.-00'0");
        grid->addWidget(m_lblSunTerm[i], row, 0);
        grid->addWidget(m_lblSunValue[i], row, 1);
    }
    return group;
}

QGroupBox* LinePanel::layOutLine()
{
    auto* group = new QGroupBox("Line of position");
    auto* grid = gridOf(group, Spacing::Dense);
    for (std::size_t i = 0; i < m_lblSunLine.size(); ++i) {
        setRoom(m_lblSunLine[i], "00-.00'0N 000-.00'0W");
        grid->addWidget(new QLabel(lineCaptions[i]), static_cast<int>(i), 0);
        grid->addWidget(m_lblSunLine[i], static_cast<int>(i), 1);
    }
    m_lblSunLine[4]->setToolTip("T: towards the Sun, A: away");
    return group;
}

void LinePanel::layOutNoon()
{
    auto* grid = gridOf(m_noon, Spacing::Dense);
    makeSentence(m_lblSunNoon[0], 1);
    makeSentence(m_lblSunNoon[1], 1);
    makeSentence(m_lblSunNoon[3], 2);
    setRoom(m_lblSunNoon[2], "00-.00'0N");
    grid->addWidget(new QLabel("Local apparent noon"), 0, 0);
    grid->addWidget(m_lblSunNoon[1], 0, 1);
    grid->addWidget(m_lblSunNoon[0], 1, 0, 1, 2);
    grid->addWidget(new QLabel("Latitude by the sight"), 2, 0);
    grid->addWidget(m_lblSunNoon[2], 2, 1);
    grid->addWidget(m_lblSunNoon[3], 3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
}

std::vector<ResultLabel*> LinePanel::results() const
{
    std::vector<ResultLabel*> all(m_lblSunTime.begin(), m_lblSunTime.end());
    all.insert(all.end(), m_lblSunValue.begin(), m_lblSunValue.end());
    all.insert(all.end(), m_lblSunLine.begin(), m_lblSunLine.end());
    all.insert(all.end(), m_lblSunNoon.begin(), m_lblSunNoon.end());
    return all;
}

void LinePanel::showResults(const LOPResult& line, const MeridianResult& noon)
{
    const auto fill = [](const auto& labels, const auto& texts) {
        for (std::size_t i = 0; i < labels.size(); ++i)
            showText(labels[i], texts[i]);
    };
    fill(m_lblSunTime, std::array{line.UTC, line.SMT, line.watchError});
    showWorksheet(line.worksheet);
    fill(m_lblSunLine,
         std::array{line.declination, line.GHA, line.DR, line.Hc, line.intercept, line.Zn});
    fill(m_lblSunNoon, std::array{noon.noon, noon.greatest, noon.latitude, noon.note});
}

void LinePanel::showWorksheet(const std::vector<WorksheetLine>& lines)
{
    for (std::size_t i = 0; i < worksheetLines; ++i) {
        const WorksheetLine line = i < lines.size() ? lines[i] : WorksheetLine{};
        m_lblSunTerm[i]->setText(QString::fromStdString(line.caption));
        m_lblSunValue[i]->setAccessibleName(line.caption.empty() ? "Worksheet"
                                                                 : m_lblSunTerm[i]->text());
        showText(m_lblSunValue[i], line.text);
    }
}

} // namespace korvel
