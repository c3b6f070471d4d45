// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmPositionRecord/FixTime.h"
#include "forms/frmPositionRecord/RecordPaper.h"
#include "forms/frmPositionRecord/frmPositionRecord.h"
#include "navlib/datetime.h"
#include "shell/machine/AsQString.h"

#include <algorithm>
#include <utility>

/// Fixes by observation that another window hands over, and what is kept of them beside the record.
namespace korvel
{
namespace
{

/// Its row, time by a zone.
PositionRow rowOf(const ObservedFix& fix, double TD)
{
    const NavFunc113::DateTime SMT =
        dateTimeOf(fix.utc) + NavFunc113::DaysOfHours(NavFunc113::Hours(TD));
    return {fixTimeText(SMT), Format(TD, "0.0#####"), Format(fix.latitude, "0.000"),
            Format(fix.longitude, "0.000")};
}

} // namespace

void frmPositionRecord::loadFixes()
{
    const FileStore::Content file = m_fixesFile.read();
    if (file.status != FileStore::Content::Status::Read) return;
    const ReadObservedFixes read = readObservedFixes(file.bytes);
    m_observed = read.fixes;
    if (!read.damage.empty()) m_fixesFile.report("is damaged: " + read.damage, !read.fixes.empty());
}

/// Takes the fix that waits, if one does, into the row below the last one in use.
void frmPositionRecord::takeFix()
{
    const auto fix = std::exchange(program().fixForRecord, std::nullopt);
    if (!fix) return;
    const PositionRows rows = m_table->texts();
    std::size_t at = rows.size();
    while (at > 0 && rows[at - 1].isEmpty())
        --at;
    if (at == rows.size()) {
        refuse("Row 29 is in use: the fix was not taken, there is no row for it.",
               [this] { return !m_table->texts().back().isEmpty(); });
        return;
    }
    m_observed.push_back(*fix);
    const std::string fault = m_fixesFile.saveQuietly(observedFixesText(m_observed));
    setNotice("fixes~", asQString(fault), NoticeLevel::Fault);
    m_row = at;
    changeRows(RowChange::Kind::Replaced, [&](PositionRows& changed) {
        changed[at] = rowOf(*fix, double(program().saved().TD()));
    });
    m_table->row(at).satelliteSMT->setFocus(Qt::TabFocusReason);
    record().saveNow();
    tellFixOfRow();
}

/// What is kept of the fix in a row: the row says the same time and place.
const ObservedFix* frmPositionRecord::fixOfRow(std::size_t row) const
{
    const auto read = std::ranges::find(m_shown.fixes, row, &RecordedFix::row);
    if (read == m_shown.fixes.end()) return nullptr;
    const auto same = [&](const ObservedFix& fix) {
        constexpr double halfASecond = 0.5 / 86400, digit = 1e-6;
        return std::abs(dateTimeOf(fix.utc) - read->utc) < halfASecond &&
               std::abs(fix.latitude.packed() - read->latitude.packed()) < digit &&
               std::abs(fix.longitude.packed() - read->longitude.packed()) < digit;
    };
    const auto found = std::ranges::find_if(m_observed, same);
    return found == m_observed.end() ? nullptr : &*found;
}

void frmPositionRecord::tellFixOfRow()
{
    const ObservedFix* fix = fixOfRow(m_row);
    setNotice("fix~",
              fix ? "Row " + QString::number(m_row + 1) + ": " + asQString(observedFixText(*fix))
                  : QString());
}

void frmPositionRecord::addFixes(WorkingPaper& paper) const
{
    PaperTable table{"Fixes by observation", {"Row", "Kind", "Ellipse"}, {}};
    for (const RecordedFix& each : m_shown.fixes)
        if (const ObservedFix* fix = fixOfRow(each.row))
            table.rows.push_back({std::to_string(each.row + 1), fix->kind, fix->ellipse});
    if (!table.rows.empty()) paper.tables.push_back(table);
}

} // namespace korvel
