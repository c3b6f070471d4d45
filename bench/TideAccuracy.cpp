// SPDX-License-Identifier: MIT
#include "bench/FullPrediction.h"

#include "app/Format.h"
#include "forms/frmTIDE/PredictTide.h"
#include "forms/frmTIDE/TideDates.h"
#include "navlib/datetime.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <numeric>
#include <string_view>
#include <vector>

/// How far the program's half-hourly heights are from the full harmonic prediction of the same
/// records over 2003 to 2005.
///
///   tide_accuracy                        the table of all stations with a record, in Markdown
///   tide_accuracy Yokohama 2003/07/15    one day, half hour by half hour
namespace
{

using NavFunc113::TideExtremes;
using NavFunc113::TideValues;

const std::filesystem::path root = KORVEL_SOURCE_DIR;

// A day's highest or lowest that lies this far from the full prediction's is another one of the
// day's tides, of almost the same height; its time says nothing about the error in time.
constexpr double anotherTide = 3; // hours

struct ExtremeErrors {
    double squares = 0;
    double minutes = 0;
    int same = 0;
    int days = 0;

    void add(double height, double fullHeight, double time, double fullTime)
    {
        ++days;
        squares += (height - fullHeight) * (height - fullHeight);
        if (std::fabs(time - fullTime) > anotherTide) return;
        ++same;
        minutes += std::fabs(time - fullTime) * 60;
    }
    double rms() const { return std::sqrt(squares / days); }
    double meanMinutes() const { return minutes / same; }
    double otherShare() const { return 100.0 * (days - same) / days; }
};

struct Accuracy {
    std::string place;
    std::string grade;
    double deviation = 0; // of the full prediction, metres
    double rms = 0;       // metres
    ExtremeErrors high;
    ExtremeErrors low;

    double relative() const { return 100 * rms / deviation; }
};

TideValues fullValues(const bench::FullPrediction& full, std::int64_t serial)
{
    const auto waves = full.wavesOf(serial);
    TideValues values;
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = full.height(waves, static_cast<double>(i) / 2);
    return values;
}

// The true extremes of the samples, without the bounds that the program's search starts with.
TideExtremes extremesOf(const TideValues& values)
{
    const auto high = std::max_element(values.begin() + 1, values.end());
    const auto low = std::min_element(values.begin() + 1, values.end());
    const auto timeOf = [&](auto sample) {
        return NavFunc113::Hours(static_cast<double>(sample - values.begin()) / 2);
    };
    return {*high, timeOf(high), *low, timeOf(low)};
}

Accuracy measure(const tidedata::Station& station)
{
    const bench::FullPrediction full(station);
    Accuracy result;
    result.place = station.place;
    result.grade = station.grade;
    double sum = 0;
    double squares = 0;
    double errorSquares = 0;
    double count = 0;
    const std::int64_t end = NavFunc113::DaySerial({2006, 1, 1});
    for (std::int64_t serial = NavFunc113::DaySerial({2003, 1, 1}); serial < end; ++serial) {
        const auto shown =
            korvel::PredictTide(root / "data", station.place, korvel::TideDates::label(serial), {});
        const TideValues truth = fullValues(full, serial);
        for (std::size_t i = 0; i + 1 < truth.size(); ++i) {
            const double error = shown->values[i] - truth[i];
            sum += truth[i];
            squares += truth[i] * truth[i];
            errorSquares += error * error;
            ++count;
        }
        const TideExtremes found = extremesOf(shown->values);
        const TideExtremes real = extremesOf(truth);
        result.high.add(found.highest, real.highest, found.timeHigh.value(), real.timeHigh.value());
        result.low.add(found.lowest, real.lowest, found.timeLow.value(), real.timeLow.value());
    }
    result.deviation = std::sqrt(squares / count - sum / count * sum / count);
    result.rms = std::sqrt(errorSquares / count);
    return result;
}

std::string metres(double value)
{
    return korvel::Format(value, "0.000");
}

std::string pair(double high, double low, std::string_view format)
{
    return korvel::Format(high, format) + " / " + korvel::Format(low, format);
}

void printRow(const Accuracy& a)
{
    std::cout << "| " << a.place << " | " << a.grade << " | " << metres(a.deviation) << " | "
              << metres(a.rms) << " (" << korvel::Format(a.relative(), "0.0") << " %) | "
              << pair(a.high.rms(), a.low.rms(), "0.000") << " | "
              << pair(a.high.meanMinutes(), a.low.meanMinutes(), "0") << " | "
              << pair(a.high.otherShare(), a.low.otherShare(), "0.0") << " |\n";
}

// Of values in ascending order, linear between two of them.
double quantile(const std::vector<double>& values, double share)
{
    const double rank = share * static_cast<double>(values.size() - 1);
    const auto below = static_cast<std::size_t>(rank);
    const double next = values[std::min(below + 1, values.size() - 1)];
    return values[below] + (rank - static_cast<double>(below)) * (next - values[below]);
}

void printSummary(const std::vector<Accuracy>& all)
{
    std::vector<double> relative;
    for (const Accuracy& a : all)
        relative.push_back(a.relative());
    std::ranges::sort(relative);
    const auto mean = [&all](auto figure) {
        double sum = 0;
        for (const Accuracy& a : all)
            sum += figure(a);
        return sum / static_cast<double>(all.size());
    };
    const auto percent = [](double value) { return korvel::Format(value, "0.0") + " %"; };
    const double meanRelative =
        std::accumulate(relative.begin(), relative.end(), 0.0) / static_cast<double>(all.size());
    std::cout << "\nAll " << all.size() << " stations: RMS error relative to the tide's standard "
              << "deviation: mean " << percent(meanRelative) << ", median "
              << percent(quantile(relative, 0.5)) << ", 90th percentile "
              << percent(quantile(relative, 0.9)) << ", worst " << percent(relative.back())
              << ".\nDay's highest / lowest: RMS error on average "
              << pair(mean([](const Accuracy& a) { return a.high.rms(); }),
                      mean([](const Accuracy& a) { return a.low.rms(); }), "0.000")
              << " m, time on average "
              << pair(mean([](const Accuracy& a) { return a.high.meanMinutes(); }),
                      mean([](const Accuracy& a) { return a.low.meanMinutes(); }), "0")
              << " minutes.\n";
}

void printTable(const tidedata::Sources& sources)
{
    std::cout
        << "| station | grade | standard deviation of the tide, m | RMS error, m (relative) | "
           "highest / lowest of the day: RMS error, m | their times: mean error, minutes | "
           "days with another highest / lowest, % |\n|---|---|---|---|---|---|---|\n";
    std::vector<Accuracy> all;
    for (const tidedata::Station& station : sources.stations) {
        // A modelled place has no record whose minor constituents could be predicted in full.
        if (station.source.starts_with("modelled")) continue;
        all.push_back(measure(station));
        printRow(all.back());
    }
    printSummary(all);
}

int printDay(const tidedata::Sources& sources, const std::string& place, const std::string& date)
{
    const auto station = std::ranges::find(sources.stations, place, &tidedata::Station::place);
    const auto serial = korvel::TideDates::dateIn(date);
    if (station == sources.stations.end() || !serial) {
        std::cerr << "usage: tide_accuracy [PLACE yyyy/m/d]\n";
        return 2;
    }
    const auto shown = korvel::PredictTide(root / "data", place, date, {});
    const TideValues truth = fullValues(bench::FullPrediction(*station), *serial);
    std::cout << shown->title << "  " << shown->lblTideInfo << "\nhour   program  full\n";
    for (std::size_t i = 0; i < truth.size(); ++i)
        std::cout << korvel::Format(static_cast<double>(i) / 2, "00.0") << "   "
                  << metres(shown->values[i]) << "   " << metres(truth[i]) << "\n";
    return 0;
}

} // namespace

int main(int argc, char** argv)
try {
    const tidedata::Sources sources = tidedata::readSources(root / "tools/tidedata/sources.json");
    if (argc == 3) return printDay(sources, argv[1], argv[2]);
    printTable(sources);
    return 0;
} catch (const std::exception& fault) {
    std::cerr << "tide_accuracy: " << fault.what() << "\n";
    return 1;
}
