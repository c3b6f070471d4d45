// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCRUDE/CalculateCrude.h"
#include "shell/controls/ResultLabel.h"

#include <vector>

class QGridLayout;

namespace korvel
{

/// The result side of the crude-oil window: one label a figure of CrudeResult, named after it.
class CrudeResults : public QWidget
{
public:
    CrudeResults();

    void show(const CrudeResult& result);
    std::vector<ResultLabel*> labels() const;

    /// The label that shouts when the oil is outside its table.
    ResultLabel* rangeFlag() const { return m_rangeFlag; }

private:
    using Figure = const std::string& (*)(const CrudeResult&);

    ResultLabel* add(const char* name, const QString& words, Figure figure);
    ResultLabel* addNote(const char* name, const QString& words,
                         Figure figure); ///< words beside a figure
    ResultLabel* addLongNote(const char* name, const QString& words, Figure figure);
    void layOutVolumes(QGridLayout* grid, int& row);
    void layOutByDensity(QGridLayout* grid, int& row);
    void layOutTons(QGridLayout* grid, int& row);

    std::vector<std::pair<ResultLabel*, Figure>> m_figures;
    ResultLabel* m_rangeFlag = nullptr;
};

} // namespace korvel
