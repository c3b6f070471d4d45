// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanReading.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/PositionText.h"
#include "app/reading/Reading.h"
#include "app/reading/TypedTime.h"
#include "forms/frmPassage/PassageFields.h"
#include "navlib/angles.h"

#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::DegMin;
using NavFunc113::Hours;

/// Its range is that of the box.
constexpr NumberField fieldOf(PlanRowField box, const char* name, const char* unit)
{
    return {name, PlanRowFields[box].low, PlanRowFields[box].high, unit, PlanRowFields[box].kind};
}

constexpr NumberField latitudeField = fieldOf(RowLatitude, "Latitude", "degrees");
constexpr NumberField longitudeField = fieldOf(RowLongitude, "Longitude", "degrees");
constexpr NumberField limitField = fieldOf(RowLatitude, "Limiting latitude", "degrees");
constexpr NumberField speedField = fieldOf(RowSpeed, "Speed", "knots");
constexpr NumberField stopField = fieldOf(RowStop, "Stop", "hours");
constexpr NumberField zoneField = fieldOf(RowZone, "Zone", "hours");

bool isBlank(const std::string& box)
{
    return box.find_first_not_of(" \t") == std::string::npos;
}

void readPosition(const PlanRow& row, ReadPlanRow& read)
{
    const auto latitude = readAngleIfTyped(row.latitude, latitudeField, read.remarks);
    const auto longitude = readAngleIfTyped(row.longitude, longitudeField, read.remarks);
    if (latitude && longitude) read.position = {*latitude, *longitude};
}

void readSpeed(const PlanRow& row, ReadPlanRow& read)
{
    if (isBlank(row.speed)) return;
    const auto speed = readIfTyped(row.speed, speedField, read.remarks);
    read.hasUsableSpeed = speed && *speed > 0;
    if (read.hasUsableSpeed) read.speed = NavFunc113::Knots(*speed);
    if (speed && *speed == 0) read.remarks.fault("Speed: at 0 knots nobody arrives");
}

void readZone(const PlanRow& row, ReadPlanRow& read)
{
    const auto zone = readIfTyped(row.zone, zoneField, read.remarks);
    if (!zone) return;
    read.zone = spanOf(Hours(*zone));
    // Zones differ by whole quarters of an hour: 9.3 was hardly meant as 9 h 18 min.
    if (std::fabs(*zone * 4 - std::round(*zone * 4)) > 1e-9)
        read.remarks.warn("Zone: " + Format(*zone, "0.####") + " hours are " +
                          spanText(*read.zone));
}

void readStep(const PlanRow& row, ReadPlanRow& read)
{
    if (row.leg == LegKind::Rhumb) return;
    const bool inDegrees = row.stepUnit == StepUnit::Degrees;
    const auto step = readIfTyped(row.step, stepField(row.stepUnit), read.remarks);
    if (step && inDegrees) read.step.degrees = NavFunc113::Degrees(*step);
    if (step && !inDegrees) read.step.miles = NavFunc113::Miles(*step);
}

void readLimit(const PlanRow& row, ReadPlanRow& read)
{
    if (row.leg != LegKind::Composite) return;
    const std::string ascii = asciiForms(row.limit);
    if (ascii.find_first_of("NSns") != std::string::npos) {
        const auto named = parsePosition(ascii, Axis::Latitude);
        if (named && named->latitude && !named->longitude) {
            read.limit = DegMin(readNumber(*named->latitude));
            read.limitNamesItsSide = true;
        }
    }
    if (!read.limit) {
        read.limit = readAngleIfTyped(row.limit, limitField, read.remarks);
        read.limitNamesItsSide = ascii.find_first_of("+-") != std::string::npos;
    }
    const bool isTyped = !isBlank(row.limit);
    if (!isTyped) read.remarks.fault("Limiting latitude: a composite leg needs one");
    if (!read.limit) return;
    if (*read.limit == DegMin() ||
        fabs(NavFunc113::DegMinToDeg(*read.limit)) >= NavFunc113::quarterTurn) {
        if (isTyped) read.remarks.fault("Limiting latitude: more than 0 and less than 90 degrees");
        read.limit.reset();
    }
}

} // namespace

NumberField stepField(StepUnit unit)
{
    return unit == StepUnit::Degrees ? NumberField{"Step", 1, 90, "degrees"}
                                     : NumberField{"Step", 30, 5400, "miles"};
}

ReadPlanRow readPlanRow(const PlanRow& row)
{
    ReadPlanRow read;
    read.isEmpty = row.isEmpty();
    if (read.isEmpty) return read;
    readPosition(row, read);
    readSpeed(row, read);
    if (const auto stop = readIfTyped(row.stop, stopField, read.remarks))
        read.stop = spanOf(Hours(*stop)).value_or(Span(0));
    readZone(row, read);
    readStep(row, read);
    readLimit(row, read);
    return read;
}

std::optional<Instant> readPlanTime(const PlanTimes& times, Remarks& remarks)
{
    const TypedTime typed = readTypedTime(times.time, Due::DateAndTime);
    const char* const name =
        times.given == PlanTimes::Given::Departure ? "Departure" : "Wanted arrival";
    if (!typed.value) {
        remarks.fault(std::string(name) + ": " + typed.remark);
        return std::nullopt;
    }
    return instantOf(*typed.value);
}

} // namespace korvel
