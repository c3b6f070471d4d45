// SPDX-License-Identifier: MIT
#include "tidedata/factors.h"

#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "tidedata/text.h"

#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace tidedata
{
namespace
{

constexpr std::int64_t firstSerial = 37530; // 2002-10-01
constexpr std::int64_t serial2000 = 36526;  // 2000-01-01

struct Member {
    std::string_view carrier;
    std::string_view name;
    double ratio; // amplitude to the carrier's
    double lag;   // degrees, phase lag minus the carrier's
};

// Weighted means of the constants of 65 single-record stations of sources.json, referred to zone
// time: r exp(-i l) = sum w conj(P) C / sum w |P|^2, P and C the complex constants of carrier and
// member, w = 1/(H_M2^2 + H_S2^2 + H_K1^2 + H_O1^2).
constexpr Member members[] = {
    {"M2", "M2", 1, 0},
    {"M2", "N2", 0.1930, -17.5},
    {"M2", "NU2", 0.0374, -16.4},
    {"M2", "MU2", 0.0264, -21.2},
    {"M2", "2N2", 0.0245, -35.2},
    {"M2", "L2", 0.0305, 13.1},
    {"M2", "LAMBDA2", 0.0096, 3.7},
    {"S2", "S2", 1, 0},
    {"S2", "K2", 0.2806, -4.0},
    {"S2", "T2", 0.0613, -2.7},
    {"S2", "R2", 0.0068, -21.9},
    {"K1", "K1", 1, 0},
    {"K1", "P1", 0.3165, -3.1},
    {"K1", "J1", 0.0482, 19.2},
    {"K1", "OO1", 0.0316, 47.2},
    {"O1", "O1", 1, 0},
    {"O1", "Q1", 0.1998, -15.8},
    {"O1", "RHO1", 0.0394, -17.0},
    {"O1", "2Q1", 0.0266, -28.4},
};

NavFunc113::DailyFactor groupOf(std::string_view carrier, const MeanLongitudes& at)
{
    double X = 0;
    double Y = 0;
    for (const Member& member : members) {
        if (member.carrier != carrier) continue;
        const Argument argument = argumentOf(constituentOf(member.name), at);
        const Degrees angle = argument.angle - Degrees(member.lag);
        X += member.ratio * argument.factor * cos(angle);
        Y += member.ratio * argument.factor * sin(angle);
    }
    return {reduced(-NavFunc113::RadToDeg(NavFunc113::Radians(std::atan2(Y, X)))),
            std::sqrt(X * X + Y * Y)};
}

} // namespace

NavFunc113::DailyFactors dailyFactorsAt(Days2000 day)
{
    const MeanLongitudes at = meanLongitudesAt(day);
    return {groupOf("M2", at), groupOf("S2", at), groupOf("K1", at), groupOf("O1", at)};
}

std::string factorsLine(std::int64_t serial)
{
    const NavFunc113::CivilDate date = NavFunc113::DateOfSerial(serial);
    std::string line = std::to_string(date.year * 10000 + date.month * 100 + date.day);
    for (const auto& [angle, factor] : dailyFactorsAt(static_cast<double>(serial - serial2000)))
        line += "," + wholeDegrees(angle, 3) + "," + fixed(factor, 2);
    return line + "\r\n";
}

std::string factorsFile(int lastYear, const std::function<void(int percent)>& progress)
{
    if (lastYear < firstFactorYear || lastYear > lastFactorYear)
        throw std::out_of_range("the last year must lie in 2005 to 2060");
    std::string text;
    const std::int64_t lastSerial = NavFunc113::DaySerial({lastYear + 1, 1, 1});
    constexpr std::int64_t year = 365;
    for (std::int64_t serial = firstSerial; serial <= lastSerial; ++serial) {
        text += factorsLine(serial);
        if (progress && (serial - firstSerial) % year == 0)
            progress(static_cast<int>(100 * (serial - firstSerial) / (lastSerial - firstSerial)));
    }
    return text;
}

} // namespace tidedata
