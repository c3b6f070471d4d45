// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/AnswerStrip.h"
#include "shell/controls/ResultLabel.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>

#include <span>

namespace korvel
{

/// The labels of a window's table of results.
template <typename Source>
class ResultLabels
{
public:
    /// @param table  outlives this object
    /// @param parent of the labels; they have no place yet, put them into layouts
    /// @param make   a label of a kind of its own; null where the usual one will do
    ResultLabels(std::span<const Result<Source>> table, QWidget* parent,
                 const std::function<ResultLabel*(std::size_t result)>& make = {})
        : m_table(table)
    {
        for (const Result<Source>& result : table) {
            ResultLabel* label = make ? make(m_labels.size()) : nullptr;
            if (!label) label = new ResultLabel(parent);
            label->setObjectName(result.name);
            label->declare(result.inWords(), result.unit, result.weight);
            m_labels.push_back(label);
        }
    }

    ResultLabel* operator[](std::size_t result) const { return m_labels.at(result); }
    const std::vector<ResultLabel*>& all() const { return m_labels; }

    /// Shows all texts; what the source does not have stays as it was.
    void show(const Source& source) const
    {
        for (std::size_t i = 0; i < m_labels.size(); ++i)
            if (const std::string* text = m_table[i].textIn(source))
                m_labels[i]->setText(asQString(*text));
    }

    /// Puts results of this many letters into a strip of answers.
    void addAnswer(AnswerStrip* strip, std::size_t result, const QString& widest) const
    {
        m_labels.at(result)->setRoom(widest);
        strip->add(m_table[result].caption, m_labels.at(result), m_table[result].unit);
    }

    /// A row of a grid: caption, figure, unit.
    void addRow(QGridLayout* grid, int row, std::size_t result) const
    {
        grid->addWidget(new QLabel(m_table[result].caption), row, 0);
        grid->addWidget(m_labels.at(result), row, 1);
        if (*m_table[result].unit) grid->addWidget(new QLabel(m_table[result].unit), row, 2, 1, -1);
    }

private:
    std::span<const Result<Source>> m_table;
    std::vector<ResultLabel*> m_labels;
};

} // namespace korvel
