// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankModel.h"

#include "app/reading/Remarks.h"
#include "shell/controls/RowsView.h"
#include "shell/machine/AsQString.h"

namespace korvel
{
namespace
{

constexpr std::array<std::array<const char*, surveyCount>, 2> surveyHeads = {
    {{"Before", "After"}, {"Previous", "Now"}}};
constexpr std::array headsOfSurvey{"sounding\ngrade", "TOV\nfree water", "temp.\nVCF",
                                   "GSV m³\nt in air"};

} // namespace

TankModel::TankModel(const SheetInHand& work, ListKind kind, QObject* parent)
    : QAbstractTableModel(parent), m_work(work), m_kind(kind)
{
    follow();
}

void TankModel::follow()
{
    const int rows = static_cast<int>(m_work.shownRows(m_kind));
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    }
    emit dataChanged(index(0, 0), index(m_rows - 1, Columns - 1));
}

int TankModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int TankModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

std::optional<TankModel::Place> TankModel::placeOf(int column)
{
    if (column < FirstSurvey || column == Gap) return std::nullopt;
    if (column < Gap) return Place{TankSurvey::First, std::size_t(column - FirstSurvey)};
    return Place{TankSurvey::Last, std::size_t(column - LastSurvey)};
}

bool TankModel::isThere(std::size_t row) const
{
    return row < m_work.list(m_kind).rows.size() && row < m_work.reckoning(m_kind).rows();
}

TankModel::Lines TankModel::linesOf(std::size_t row, int column) const
{
    if (column == Number) return {std::to_string(row + 1), ""};
    if (!isThere(row)) return {};
    const TankRow& typed = m_work.list(m_kind).rows[row];
    if (column == Tank) return {typed.tank, ""};
    const auto place = placeOf(column);
    if (!place) return {};
    const TankSurvey survey = place->survey;
    const TankReckoning& reckoning = m_work.reckoning(m_kind);
    const TankTexts texts = tankTexts(typed.surveys[static_cast<std::size_t>(survey)],
                                      reckoning.tank(row, survey), reckoning);
    switch (place->column) {
    case 0:
        return {texts.sounding, texts.grade};
    case 1:
        return {texts.volume, texts.water};
    case 2:
        return {texts.temperature, texts.factor};
    default:
        return {texts.standard, texts.inAir};
    }
}

std::string TankModel::remarkOf(std::size_t row) const
{
    if (!isThere(row)) return {};
    const TankReckoning& reckoning = m_work.reckoning(m_kind);
    return joined({reckoning.tank(row, TankSurvey::First).remark,
                   reckoning.tank(row, TankSurvey::Last).remark});
}

QVariant TankModel::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    const int column = index.column();
    if (role == RowsView::HasRemark) return !remarkOf(row).empty();
    if (role == Qt::ToolTipRole && column == Number) return asQString(remarkOf(row));
    if (role == Qt::DisplayRole) return asQString(linesOf(row, column).first);
    if (role == RowsView::SecondLine) return asQString(linesOf(row, column).second);
    if (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole) {
        const Lines lines = linesOf(row, column);
        return asQString(joined({lines.first, lines.second}));
    }
    if (role != Qt::TextAlignmentRole) return {};
    const auto place = placeOf(column);
    const bool isText = column == Tank || (place && place->column == 0);
    return static_cast<int>(isText ? Qt::AlignLeft : Qt::AlignRight);
}

QVariant TankModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole)
        return data(index(0, section), role).toInt() | int(Qt::AlignBottom);
    if (role != Qt::DisplayRole) return {};
    if (section == Number) return "No.";
    if (section == Tank) return "Tank";
    const auto place = placeOf(section);
    if (!place) return {};
    const QString head = headsOfSurvey[place->column];
    if (place->column > 0) return head;
    return QString(surveyHeads[static_cast<std::size_t>(m_kind)]
                              [static_cast<std::size_t>(place->survey)]) +
           ": " + head;
}

} // namespace korvel
