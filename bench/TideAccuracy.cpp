// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "forms/frmTIDE/day/TideTables.h"
#include "forms/frmTIDE/stations/Stations.h"
#include "navlib/datetime.h"
#include "shell/machine/ProgramFolder.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iostream>
#include <numeric>
#include <string_view>
#include <vector>

/// How far the program's half-hourly heights are from the full harmonic prediction of the same
/// records over 2003 to 2005.
///
///   tide_accuracy                        the table of all stations with a record, in Markdown
///   tide_accuracy --list                 the same figures as data/accuracy.txt holds them
///   tide_accuracy Yokohama 2003/07/15    one day, half hour by half hour
namespace
{

using korvel::TidePrediction;
using NavFunc113::TideExtremes;
using NavFunc113::TideValues;

korvel::FileStore& data()
{
    static korvel::ProgramFolder folder(QStringLiteral(KORVEL_SOURCE_DIR "/data"));
    return folder;
}

// A day's highest or lowest that lies this far from the full prediction's is another one of the
// day's tides, of almost the same height; its time says nothing about the error in time.
constexpr NavFunc113::Hours anotherTide(3);

struct ExtremeErrors {
    double squares = 0;
    double minutes = 0;
    int same = 0;
    int days = 0;

    void add(double height, double fullHeight, NavFunc113::Hours time, NavFunc113::Hours fullTime)
    {
        ++days;
        squares += (height - fullHeight) * (height - fullHeight);
        if (fabs(time - fullTime) > anotherTide) return;
        ++same;
        minutes += fabs(time - fullTime).value() * 60;
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

// The station as the window reads it.
korvel::StationDays daysOf(const std::string& place)
{
    static const korvel::StationList list(data());
    static const korvel::FullConstants constants(data());
    return {data(), korvel::TideKind::Tide, place, list, constants};
}

// The true extremes of the samples, without the bounds that the program's search starts with.
TideExtremes extremesOf(const TideValues& values)
{
    const auto high = std::max_element(values.begin() + 1, values.end());
    const auto low = std::min_element(values.begin() + 1, values.end());
    return {*high, NavFunc113::Hours(static_cast<double>(high - values.begin()) / 2), *low,
            NavFunc113::Hours(static_cast<double>(low - values.begin()) / 2)};
}

Accuracy measure(const korvel::StationNotes& notes)
{
    const korvel::StationDays station = daysOf(notes.place);
    Accuracy result;
    result.place = notes.place;
    result.grade = notes.grade;
    double sum = 0;
    double squares = 0;
    double errorSquares = 0;
    double count = 0;
    const std::int64_t end = NavFunc113::DaySerial({2006, 1, 1});
    for (std::int64_t serial = NavFunc113::DaySerial({2003, 1, 1}); serial < end; ++serial) {
        const korvel::TideDayShown day = station.day(serial);
        const TidePrediction& shown = day.four;
        const TideValues truth = day.all.value().halfHourly();
        for (std::size_t i = 0; i + 1 < truth.size(); ++i) {
            const double error = shown.values[i] - truth[i];
            sum += truth[i];
            squares += truth[i] * truth[i];
            errorSquares += error * error;
            ++count;
        }
        const TideExtremes found = extremesOf(shown.values);
        const TideExtremes real = extremesOf(truth);
        result.high.add(found.highest, real.highest, found.timeHigh, real.timeHigh);
        result.low.add(found.lowest, real.lowest, found.timeLow, real.timeLow);
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

std::vector<Accuracy> measureAll()
{
    const korvel::StationList list(data());
    std::vector<Accuracy> all;
    for (const korvel::StationNotes& notes : list.all()) {
        // A modelled place has no record whose minor constituents could be predicted in full.
        if (notes.grade == "none" || notes.source.starts_with("modelled")) continue;
        all.push_back(measure(notes));
    }
    return all;
}

void printTable()
{
    std::cout
        << "| station | grade | standard deviation of the tide, m | RMS error, m (relative) | "
           "highest / lowest of the day: RMS error, m | their times: mean error, minutes | "
           "days with another highest / lowest, % |\n|---|---|---|---|---|---|---|\n";
    const std::vector<Accuracy> all = measureAll();
    for (const Accuracy& a : all)
        printRow(a);
    printSummary(all);
}

void printList()
{
    std::cout
        << "# The four-constituent method against the sum of all constituents, 2003 to 2005: "
           "place,\n# RMS error (m) of the half hours, of the day's highest and of its lowest, "
           "mean error of\n# their times (minutes) (tabs). tide_accuracy --list writes it.\n";
    for (const Accuracy& a : measureAll())
        std::cout << a.place << "\t" << metres(a.rms) << "\t" << metres(a.high.rms()) << "\t"
                  << metres(a.low.rms()) << "\t" << korvel::Format(a.high.meanMinutes(), "0")
                  << "\t" << korvel::Format(a.low.meanMinutes(), "0") << "\n";
}

int printDay(const std::string& place, const std::string& date)
{
    const auto serial = korvel::TideDates::dateIn(date);
    if (!korvel::isTideStation(place) || !serial) {
        std::cerr << "usage: tide_accuracy [--list | PLACE yyyy/m/d]\n";
        return 2;
    }
    const korvel::TideDayShown day = daysOf(place).day(*serial);
    const TideValues truth =
        day.all ? day.all->halfHourly() : TideValues{}; // 0 for a modelled place
    std::cout << day.four.title << "  " << day.four.lblTideInfo << "\nhour   program  full\n";
    for (std::size_t i = 0; i < truth.size(); ++i)
        std::cout << korvel::Format(static_cast<double>(i) / 2, "00.0") << "   "
                  << metres(day.four.values[i]) << "   " << metres(truth[i]) << "\n";
    return 0;
}

} // namespace

int main(int argc, char** argv)
try {
    if (argc == 3) return printDay(argv[1], argv[2]);
    if (argc == 2 && std::string_view(argv[1]) == "--list")
        printList();
    else
        printTable();
    return 0;
} catch (const std::exception& fault) {
    std::cerr << "tide_accuracy: " << fault.what() << "\n";
    return 1;
}
