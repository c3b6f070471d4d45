// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanLeg.h"

#include <span>

namespace korvel
{

/// What the plan needs of the program.
struct PlanConditions {
    NavFunc113::Earth earth = NavFunc113::Earth::Sphere;
    NavFunc113::Hours shipsTD; ///< zone of the rows before the first that names one
};

/// The figures of a row, in full. Nothing where they cannot be had.
struct PlanFigures {
    std::optional<NavFunc113::Knots> speed; ///< on the leg to the row
    std::optional<Span> underWay;           ///< on that leg
    std::optional<NavFunc113::Miles> run;   ///< from the departure
    std::optional<NavFunc113::Miles> toGo;
    std::optional<Span> sinceDeparture; ///< at the arrival, stops before it included
    std::optional<Instant> eta;         ///< UTC; at the first row the departure
    std::optional<Instant> etd;         ///< UTC; after the stop
    Span zone{};                        ///< time difference in force
    Span clockChange{};                 ///< against the row before, put forward positive
};

/// Sums of the whole plan. Nothing where a leg of it cannot be had.
struct PlanTotals {
    std::optional<NavFunc113::Miles> distance;
    std::optional<Span> underWay;
    std::optional<Span> stopped;
    std::optional<Span> elapsed;             ///< from departure to arrival
    std::optional<NavFunc113::Miles> saving; ///< of circles against rhumb lines
    Span clockChange{};
};

/// What a speed was asked for, or why there is none.
struct SpeedNeeded {
    std::optional<NavFunc113::Knots> speed;
    std::string why;
};

/// A plan worked out, and kept up to date key by key: a row that changes costs two legs at most,
/// and one pass of sums over the plan.
///
/// Times are added in UTC as counts; zones are only carried along to be shown. A row that is empty
/// is passed over. Where a position or a speed is missing, what depends on it is blank and the
/// notice says why.
class PlanReckoning
{
public:
    PlanReckoning(const PassagePlan& plan, const PlanConditions& conditions);

    /// After any change of the plan, or of the conditions.
    void takeAll(const PassagePlan& plan, const PlanConditions& conditions);
    /// After a change of one row alone.
    void takeRow(const PassagePlan& plan, std::size_t index);
    /// After a change of the plan's times alone.
    void takeTimes(const PassagePlan& plan);

    std::size_t size() const { return m_rows.size(); }
    const ReadPlanRow& read(std::size_t row) const { return m_rows[row].read; }
    /// The leg that leads to a row. @return nullptr when there is none
    const PlanLeg* leg(std::size_t row) const;
    const PlanFigures& figures(std::size_t row) const { return m_rows[row].figures; }
    const PlanTotals& totals() const { return m_totals; }
    std::optional<Instant> departure() const { return m_departure; }
    NavFunc113::Earth earth() const { return m_conditions.earth; }
    /// The row before one that is not empty. @return nothing for the first
    std::optional<std::size_t> rowBefore(std::size_t row) const;
    std::optional<std::size_t> firstRow() const; ///< that is not empty
    std::optional<std::size_t> lastRow() const;  ///< that is not empty

    /// What is wrong with a row, and what should be known of it; empty when nothing is.
    std::string remark(std::size_t row) const;
    /// Whether a box of the row, or the leg that leads to it, is in doubt.
    bool isDoubtful(std::size_t row) const;
    /// The same of the plan: its times, then the first rows that have faults.
    std::string notice() const;

    /// Speed on all legs between two rows that leads to the second at a wanted time, the first left
    /// as planned and the stops between them kept.
    /// @param from a row whose departure is known
    /// @param arrival UTC
    SpeedNeeded speedNeeded(std::size_t from, std::size_t to, Instant arrival) const;

private:
    struct Row {
        ReadPlanRow read;
        LegKind kind = LegKind::Rhumb;
        PlannedLeg planned; ///< to this row
        PlanFigures figures;
    };

    void readRow(const PassagePlan& plan, std::size_t index);
    void reckonLegTo(std::size_t row);
    void addUp();
    void addDistances();
    void addToGo();
    void addTimes();
    void setZones();
    void setInstants();
    std::optional<Instant> departureOfTimes() const;
    std::string whyBlank() const;

    PlanConditions m_conditions;
    PlanTimes m_times;
    std::optional<Instant> m_typedTime;
    Remarks m_timeRemarks;
    std::vector<Row> m_rows;
    std::optional<Instant> m_departure;
    PlanTotals m_totals;
};

} // namespace korvel
