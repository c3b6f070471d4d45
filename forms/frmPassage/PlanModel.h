// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanInHand.h"
#include "forms/frmPassage/PlanTexts.h"

#include <QAbstractTableModel>

namespace korvel
{

/// What the table of a plan shows. Texts are made for the rows that are asked for, which are those
/// on the screen.
class PlanModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    PlanModel(const PlanInHand& work, QObject* parent);

    /// The plan is another.
    void follow();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Lines {
        std::string first, second;
    };
    /// A question about the plan may be on the screen, and the table painted behind it, before the
    /// model follows.
    bool isThere(std::size_t row) const;
    const PlanRowTexts& textsOf(std::size_t row) const;
    Lines linesOf(std::size_t row, int column) const;
    Lines legOf(std::size_t row) const;

    const PlanInHand& m_work;
    int m_rows{};
    mutable std::vector<std::optional<PlanRowTexts>> m_texts;
};

} // namespace korvel
