// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankModel.h"

#include "app/reading/Remarks.h"

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
    : RowsModel(Columns, parent), m_work(work), m_kind(kind)
{
    follow();
}

void TankModel::follow()
{
    followRows(m_work.shownRows(m_kind));
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

QString TankModel::headOf(int column) const
{
    if (column == Number) return "No.";
    if (column == Tank) return "Tank";
    const auto place = placeOf(column);
    if (!place) return {};
    const char* const head = headsOfSurvey[place->column];
    if (place->column > 0) return head;
    return QString(surveyHeads[static_cast<std::size_t>(m_kind)]
                              [static_cast<std::size_t>(place->survey)]) +
           ": " + head;
}

bool TankModel::isOfWords(int column) const
{
    const auto place = placeOf(column);
    return column == Tank || (place && place->column == 0);
}

} // namespace korvel
