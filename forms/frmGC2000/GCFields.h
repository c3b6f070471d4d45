// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "app/reading/Result.h"
#include "forms/frmGC2000/CalculateGC.h"

#include <array>

namespace korvel
{

/// The chart ends at 75 degrees; great circles between higher latitudes would leave it.
inline constexpr double highestLatitude = 65;

/// The boxes of the great-circle window; in this order in the record.
inline constexpr std::array<Field, 4> GCFields = {{
    {"txtGC(0)", "Departure latitude", "Departure latitude", "degrees.minutes", FieldKind::Latitude,
     "degrees", -highestLatitude, highestLatitude, "north positive"},
    {"txtGC(1)", "Departure longitude", "Departure longitude", "degrees.minutes",
     FieldKind::Longitude, "degrees", -180, 180, "east positive"},
    {"txtGC(2)", "Arrival latitude", "Arrival latitude", "degrees.minutes", FieldKind::Latitude,
     "degrees", -highestLatitude, highestLatitude, "north positive"},
    {"txtGC(3)", "Arrival longitude", "Arrival longitude", "degrees.minutes", FieldKind::Longitude,
     "degrees", -180, 180, "east positive"},
}};

/// What the great-circle window shows beside its table, in this order.
namespace GCShown
{
enum : std::size_t {
    rhumbLine,
    greatCircle,
    sumOfLegs,
    initialCourse,
    finalCourse,
    vertexLat,
    vertexLong,
    vertexRemark,
    saving
};
}
inline constexpr std::array<Result<GCResult>, 9> GCResults = {{
    {"lblGC2000(0)", "Rhumb line", "miles", Weight::Figure, textAt<&GCResult::lblGC2000, 0>},
    {"lblGC2000(1)", "Great circle", "miles", Weight::Answer, textAt<&GCResult::lblGC2000, 1>},
    {"lblGC2000(2)", "Sum of the legs", "miles", Weight::Figure, textAt<&GCResult::lblGC2000, 2>},
    {"lblInitialCourse", "Initial course", "degrees true", Weight::Answer,
     &GCResult::initialCourse},
    {"lblFinalCourse", "Final course", "degrees true", Weight::Figure, &GCResult::finalCourse},
    {"lblVertexLat", "Vertex", "", Weight::Figure, &GCResult::vertexLat, "Latitude of the vertex"},
    {"lblVertexLong", "", "", Weight::Figure, &GCResult::vertexLong, "Longitude of the vertex"},
    {"lblVertexRemark", "", "", Weight::Remark, &GCResult::vertexRemark, "Place of the vertex"},
    {"lblSaving", "Saves", "miles against the rhumb line", Weight::Answer, &GCResult::saving},
}};

} // namespace korvel
