// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/TankTexts.h"
#include "shell/controls/RowsModel.h"

namespace korvel
{

/// What the table of a list shows: both surveys side by side.
class TankModel : public RowsModel
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

    /// The survey of a column, and which of its four it is; nothing for those of neither.
    struct Place {
        TankSurvey survey;
        std::size_t column;
    };
    static std::optional<Place> placeOf(int column);

private:
    bool isThere(std::size_t row) const;
    Lines linesOf(std::size_t row, int column) const override;
    std::string remarkOf(std::size_t row) const override;
    bool isMarked(std::size_t row) const override { return !remarkOf(row).empty(); }
    QString headOf(int column) const override;
    bool isOfWords(int column) const override;

    const SheetInHand& m_work;
    ListKind m_kind;
};

} // namespace korvel
