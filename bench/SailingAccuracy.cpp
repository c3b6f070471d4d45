// SPDX-License-Identifier: MIT
// Measures rhumb lines, dead reckonings and great circles, as the windows calculate them from typed
// texts, against GeographicLib on the spheroid of 1984, and prints the figures that the headers,
// the papers and the manual state.
#include "app/reading/Format.h"
#include "forms/frmCDDR/CalculateCD.h"
#include "forms/frmCDDR/CalculateDR.h"
#include "forms/frmGC2000/CalculateGC.h"
#include "navlib/angles.h"

#include <GeographicLib/Geodesic.hpp>
#include <GeographicLib/Rhumb.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <random>
#include <string>
#include <vector>

namespace
{

using namespace NavFunc113;
using GeographicLib::Geodesic;
using GeographicLib::Rhumb;

constexpr double metresPerMile = 1852;

/// Errors of one figure, and where the largest was.
class Errors
{
public:
    void add(double error, const std::string& of)
    {
        m_errors.push_back(std::fabs(error));
        if (m_errors.back() < m_worst) return;
        m_worst = m_errors.back();
        m_case = of;
    }
    void print(const std::string& what, const std::string& unit)
    {
        if (m_errors.empty()) return;
        std::sort(m_errors.begin(), m_errors.end());
        const auto quantile = [&](double q) {
            return korvel::Format(
                m_errors[static_cast<std::size_t>(q * double(m_errors.size() - 1))], "0.000");
        };
        std::cout << what << ": half within " << quantile(0.5) << unit << ", 95 % within "
                  << quantile(0.95) << unit << ", worst " << quantile(1) << unit << " of "
                  << m_errors.size() << " (" << m_case << ")\n";
    }

private:
    std::vector<double> m_errors;
    double m_worst = -1;
    std::string m_case;
};

std::mt19937 chance(1852);

double between(double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(chance);
}

/// An angle as typed, degrees.minutes with tenths, and in degrees.
struct Angle {
    explicit Angle(double about)
    {
        const int tenths = int(std::round(about * 600));
        const int size = std::abs(tenths);
        text = (tenths < 0 ? "-" : "") + std::to_string(size / 600) + "." +
               korvel::Format(size % 600, "000");
        degrees = tenths / 600.0;
    }
    std::string text;
    double degrees;
};

/// Positions anywhere, or the second one within 600 miles in latitude and in longitude.
struct Leg {
    enum class Kind { Any, Short };

    Leg(double limit, Kind kind)
        : lat1(between(-limit, limit)), long1(between(-180, 180)), lat2(between(-limit, limit)),
          long2(between(-180, 180))
    {
        if (kind == Kind::Any) return;
        lat2 = Angle(std::clamp(lat1.degrees + between(-10, 10), -limit, limit));
        const double change = between(-10, 10) / std::cos(lat1.degrees * Pi() / 180);
        long2 = Angle(std::remainder(long1.degrees + change, 360));
    }
    std::string text() const
    {
        return lat1.text + " " + long1.text + " to " + lat2.text + " " + long2.text;
    }
    Angle lat1, long1, lat2, long2;
};

double percent(double value, double truth)
{
    return 100 * (value - truth) / truth;
}

const char* nameOf(Earth earth)
{
    return earth == Earth::Sphere ? "minutes of latitude" : "miles of 1852 m";
}

void measureRhumbLines(Earth earth, double limit, Leg::Kind kind, int count)
{
    Errors distances, courses;
    for (int i = 0; i < count; ++i) {
        const Leg leg(limit, kind);
        const auto shown = korvel::CalculateCD(
            {{leg.lat1.text, leg.long1.text, leg.lat2.text, leg.long2.text}, earth});
        double metres = 0, course = 0;
        Rhumb::WGS84().Inverse(leg.lat1.degrees, leg.long1.degrees, leg.lat2.degrees,
                               leg.long2.degrees, metres, course);
        // Between opposite meridians either way round is as good.
        const double change = std::fabs(leg.long2.degrees - leg.long1.degrees);
        if (!shown.leg || metres < metresPerMile || std::fabs(change - 180) < 1e-6) continue;
        distances.add(percent(shown.leg->distance.value(), metres / metresPerMile), leg.text());
        courses.add(std::remainder(shown.leg->course.value() - course, 360), leg.text());
    }
    const std::string where =
        std::string(kind == Leg::Kind::Short ? "Short rhumb line in " : "Rhumb line in ") +
        nameOf(earth) + ", latitudes to " + korvel::Format(limit, "0");
    distances.print(where + ", distance", " %");
    courses.print(where + ", course", " degrees");
}

/// The distance between the position shown and the true one.
void measureDeadReckoning(Earth earth, double limit, double longest, int count)
{
    Errors positions, ofRun;
    for (int i = 0; i < count; ++i) {
        const Angle lat(between(-limit, limit)), longitude(between(-180, 180));
        const std::string course = korvel::Format(between(0, 359.9), "0.0");
        const std::string run = korvel::Format(between(1, longest), "0.0");
        const auto shown = korvel::CalculateDR({{lat.text, longitude.text, course, run}, earth});
        if (!shown.longitudeReached) continue;
        const double phi = DegMinToDeg(*shown.latitudeReached).value();
        if (std::fabs(phi) > limit) continue;
        double phi2 = 0, lambda2 = 0, metres = 0;
        Rhumb::WGS84().Direct(lat.degrees, longitude.degrees, std::stod(course),
                              std::stod(run) * metresPerMile, phi2, lambda2);
        Geodesic::WGS84().Inverse(phi, DegMinToDeg(*shown.longitudeReached).value(), phi2, lambda2,
                                  metres);
        const std::string of = lat.text + " " + longitude.text + ", " + course + ", " + run;
        positions.add(metres / metresPerMile, of);
        ofRun.add(percent(metres / metresPerMile + std::stod(run), std::stod(run)), of);
    }
    const std::string where = std::string("Dead reckoning in ") + nameOf(earth) +
                              ", latitudes to " + korvel::Format(limit, "0") + ", runs to " +
                              korvel::Format(longest, "0");
    positions.print(where + ", position", " miles");
    ofRun.print(where + ", position", " % of the run");
}

void measureGreatCircles(Earth earth, double limit, int count)
{
    Errors distances, sums, courses, rhumbLines;
    for (int i = 0; i < count; ++i) {
        const Leg leg(limit, Leg::Kind::Any);
        korvel::GCResult shown;
        try {
            shown = korvel::CalculateGC(
                {{leg.lat1.text, leg.long1.text, leg.lat2.text, leg.long2.text}, earth});
        } catch (const ArithmeticError&) {
            continue;
        }
        double metres = 0, initial = 0, final = 0, rhumbMetres = 0, rhumbCourse = 0;
        Geodesic::WGS84().Inverse(leg.lat1.degrees, leg.long1.degrees, leg.lat2.degrees,
                                  leg.long2.degrees, metres, initial, final);
        Rhumb::WGS84().Inverse(leg.lat1.degrees, leg.long1.degrees, leg.lat2.degrees,
                               leg.long2.degrees, rhumbMetres, rhumbCourse);
        if (!shown.figures || metres < 60 * metresPerMile) continue;
        distances.add(percent(shown.figures->greatCircle.value(), metres / metresPerMile),
                      leg.text());
        sums.add(percent(shown.figures->sumOfLegs.value(), metres / metresPerMile), leg.text());
        rhumbLines.add(
            percent(shown.figures->rhumbLine.distance.value(), rhumbMetres / metresPerMile),
            leg.text());
        // Near the opposite point of the earth any course leads there.
        if (metres < 10000 * metresPerMile && shown.figures->track)
            courses.add(std::remainder(shown.figures->track->initialCourse.value() - initial, 360),
                        leg.text());
    }
    const std::string where = std::string("Great circle in ") + nameOf(earth) + ", latitudes to " +
                              korvel::Format(limit, "0");
    distances.print(where + ", distance", " %");
    sums.print(where + ", sum of the legs", " %");
    rhumbLines.print(where + ", rhumb line", " %");
    courses.print(where + ", initial course to 10000 miles", " degrees");
}

} // namespace

int main()
{
    for (Earth earth : {Earth::Spheroid, Earth::Sphere}) {
        for (Leg::Kind kind : {Leg::Kind::Any, Leg::Kind::Short})
            for (double limit : {60, 75, 89})
                measureRhumbLines(earth, limit, kind, 100000);
        for (double longest : {600, 10800})
            for (double limit : {60, 75})
                measureDeadReckoning(earth, limit, longest, 100000);
        measureGreatCircles(earth, 65, 30000);
    }
}
