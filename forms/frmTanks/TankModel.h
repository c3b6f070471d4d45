// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/TankTexts.h"

#include <QAbstractTableModel>

namespace korvel
{

/// What the table of a list shows: both surveys side by side. Texts are made for the rows that are
/// asked for, which are those on the screen.
class TankModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        Number,
        Tank,
        FirstSurvey,
        Gap = FirstSurvey + 4,
        LastSurvey,
        Columns = LastSurvey + 4
    };

    TankModel(const SheetInHand& work, ListKind kind, QObject* parent);

    /// The list is another.
    void follow();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The survey of a column, and which of its four it is; nothing for those of neither.
    struct Place {
        TankSurvey survey;
        std::size_t column;
    };
    static std::optional<Place> placeOf(int column);

private:
    struct Lines {
        std::string first, second;
    };
    /// A question may be on the screen, and the table painted behind it, before the model follows.
    bool isThere(std::size_t row) const;
    Lines linesOf(std::size_t row, int column) const;
    std::string remarkOf(std::size_t row) const;

    const SheetInHand& m_work;
    ListKind m_kind;
    int m_rows{};
};

} // namespace korvel
