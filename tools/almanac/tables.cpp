// SPDX-License-Identifier: MIT
#include "tools/almanac/tables.h"
#include "almanac/sky.h"
#include "app/reading/Format.h"
#include "app/records/DelimitedText.h"
#include "tools/almanac/instant_text.h"
#include "tools/almanac/table_input.h"

#include <array>
#include <map>
#include <ostream>

namespace almanac
{
namespace
{

constexpr int mostFaults = 20;

std::string sixDecimals(double value)
{
    const std::string text = korvel::Format(value, "0.000000");
    return text == "-0.000000" ? "0.000000" : text;
}

/// An angle that would round to a whole turn is 0.
std::string turnText(Degrees angle)
{
    const std::string text = sixDecimals(angle.value());
    return text == "360.000000" ? "0.000000" : text;
}

double minutesOf(Degrees angle)
{
    return angle.value() * 60;
}

/// Does a piece of work for every row and names the rows for which it could not be done.
template <typename Work>
bool forEveryRow(TableInput& table, std::ostream& faults, Work work)
{
    int count = 0;
    for (bool goesOn = true; goesOn && count < mostFaults;) {
        try {
            const auto row = table.next();
            goesOn = row.has_value();
            if (row) work(*row);
            continue;
        } catch (const RowFault& fault) {
            faults << "almanac: line " << table.line() << ": " << fault.what() << "\n";
        } catch (const OutOfRange& fault) {
            faults << "almanac: line " << table.line() << ": " << fault.what() << "\n";
        }
        if (++count == mostFaults)
            faults << "almanac: " << mostFaults << " lines are wrong; the rest was not read\n";
    }
    return count == 0;
}

void writePlace(std::ostream& output, const std::string& ut, const Sky& sky, Body body)
{
    const BodyEntry& entry = entryOf(body);
    const Place place = sky.place(body);
    const bool isStar = entry.kind == BodyKind::Star;
    output << ut << "," << entry.name << "," << turnText(place.gha) << ","
           << sixDecimals(place.declination.value()) << ",";
    if (isStar)
        output << turnText(place.sha) << ",,";
    else
        output << "," << sixDecimals(minutesOf(place.horizontalParallax)) << ","
               << sixDecimals(minutesOf(place.semiDiameter));
    output << "," << turnText(sky.ghaAries()) << "\n";
}

double numberOf(const std::string& cell, std::string_view column)
{
    const auto value = korvel::wholeNumber(cell);
    if (!value) throw RowFault(inQuotes(cell) + " is no number for " + std::string(column));
    return *value;
}

} // namespace

bool writePlaces(std::istream& input, std::ostream& output, std::ostream& faults)
{
    TableInput table(input, {"ut", "body"});
    output << "ut,body,gha_deg,dec_deg,sha_deg,hp_min,sd_min,gha_aries_deg\n";
    // Rows of one instant mostly follow each other, and the instant costs more than the body.
    std::optional<Sky> sky;
    return forEveryRow(table, faults, [&](const std::vector<std::string>& row) {
        const auto ut = readInstant(row[0]);
        if (!ut)
            throw RowFault(inQuotes(row[0]) + " is no date and time like 2026-11-22T04:10:00Z");
        const auto body = findBody(row[1]);
        if (!body) throw RowFault(inQuotes(row[1]) + " is no body of the almanac");
        if (!sky || sky->instant() != *ut) sky.emplace(*ut);
        writePlace(output, row[0], *sky, *body);
    });
}

bool writeVariations(std::istream& input, const MagneticModel& model, std::ostream& output,
                     std::ostream& faults)
{
    const std::vector<std::string_view> columns{"decimal_year", "height_km", "lat", "lon"};
    TableInput table(input, columns);
    output << "decimal_year,height_km,lat,lon,d_deg,uncertainty_deg\n";
    std::map<CompassZone, std::pair<int, int>> zones; // first line, lines
    const bool isRight = forEveryRow(table, faults, [&](const std::vector<std::string>& row) {
        std::array<double, 4> figures{};
        for (std::size_t i = 0; i < figures.size(); ++i)
            figures[i] = numberOf(row[i], columns[i]);
        const Variation at =
            model.variation({figures[0], figures[1], Degrees(figures[2]), Degrees(figures[3])});
        for (const std::string& cell : row)
            output << cell << ",";
        output << sixDecimals(at.variation.value()) << "," << sixDecimals(at.uncertainty.value())
               << "\n";
        auto& [first, count] = zones[at.zone];
        if (count++ == 0) first = table.line();
    });
    zones.erase(CompassZone::Reliable);
    for (const auto& [zone, lines] : zones)
        faults << "almanac: line " << lines.first
               << (lines.second > 1 ? " and " + std::to_string(lines.second - 1) + " more" : "")
               << ": " << describe(zone) << "\n";
    return isRight;
}

void writeBodies(std::ostream& output)
{
    output << "body,number,magnitude\n";
    for (const BodyEntry& entry : bodies()) {
        output << entry.name << "," << (entry.number > 0 ? std::to_string(entry.number) : "") << ","
               << (entry.magnitude ? korvel::Format(*entry.magnitude, "0.00") : "") << "\n";
    }
}

} // namespace almanac
