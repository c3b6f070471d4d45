// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanInHand.h"
#include "forms/frmPassage/PlanTexts.h"
#include "shell/controls/RowsModel.h"

namespace korvel
{

/// What the table of a plan shows.
class PlanModel : public RowsModel
{
    Q_OBJECT

public:
    PlanModel(const PlanInHand& work, QObject* parent);

    /// The plan is another.
    void follow();

private:
    bool isThere(std::size_t row) const;
    const PlanRowTexts& textsOf(std::size_t row) const;
    Lines legOf(std::size_t row) const;
    Lines linesOf(std::size_t row, int column) const override;
    std::string remarkOf(std::size_t row) const override;
    bool isMarked(std::size_t row) const override;
    QString headOf(int column) const override;
    bool isOfWords(int column) const override;

    const PlanInHand& m_work;
    mutable std::vector<std::optional<PlanRowTexts>> m_texts;
};

} // namespace korvel
