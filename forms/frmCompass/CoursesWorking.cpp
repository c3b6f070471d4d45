// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CoursesWorking.h"

#include "forms/frmCompass/CompassWorking.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

using NavFunc113::Degrees;

constexpr int anglePlaces = 4;
constexpr int speedPlaces = 4;

std::string degrees(Degrees angle)
{
    return angleTerm(angle, anglePlaces);
}

std::string shown(Degrees angle)
{
    return directionFigure(angle, anglePlaces);
}

/// The steps of one calculation.
class CoursesWorking
{
public:
    CoursesWorking(const CourseInput& input, const CourseResult& result, const std::string& curve)
        : m_input(input), m_result(result), m_of(result.worked), m_curve(curve)
    {
    }

    std::vector<Working> workings()
    {
        m_working.title = "Courses";
        m_working.method = {"True = compass + deviation + variation = gyro + gyro error; E is +",
                            "The deviation is that of the head by the compass itself; leeway and "
                            "current are added as vectors"};
        if (!m_result.head) {
            m_working.whyNone = "Nothing was entered, or the remarks say why there is no course.";
            return {m_working};
        }
        addHead();
        addGyro();
        addCompass();
        addWater();
        if (m_result.triangle) addMadeGood();
        return {m_working};
    }

private:
    void addSum(const std::string& name, const std::string& formula, Degrees a, Degrees b,
                bool isLess = false)
    {
        const Degrees sum = isLess ? a - b : a + b;
        m_working.step(name, formula,
                       degrees(a) + (isLess ? " - " : " + ") + degrees(b) + turnToCircle(sum),
                       shown(within(sum)), "°");
    }

    static Degrees within(Degrees angle)
    {
        if (angle >= NavFunc113::fullTurn) return angle - NavFunc113::fullTurn;
        return angle < Degrees(0) ? angle + NavFunc113::fullTurn : angle;
    }

    void addHead()
    {
        switch (m_input.given) {
        case CourseGiven::TrueHead:
            break;
        case CourseGiven::GyroHead:
            addSum("True head", "gyro head + gyro error", m_of.course, *m_of.gyroError);
            break;
        case CourseGiven::CompassHead:
            addSum("Magnetic head", "compass head + deviation", m_of.course, *m_of.deviation);
            addSum("True head", "magnetic head + variation", *m_of.magnetic, *m_of.variation);
            break;
        case CourseGiven::Track:
            addSteered();
            break;
        }
        m_working.resultStep("True head", "to a tenth of a degree", m_result.trueHead);
    }

    void addSteered()
    {
        if (!m_result.triangle || m_result.triangle->current.speed == NavFunc113::Knots(0)) {
            addSum("True head", "track - leeway", m_of.course, m_of.leeway, true);
            return;
        }
        const NavFunc113::HorizontalMotion& water = m_result.triangle->throughWater;
        const NavFunc113::HorizontalMotion& current = m_result.triangle->current;
        const std::string T = degrees(m_of.course), S = degrees(current.direction),
                          d = figure(current.speed, 2), V = figure(water.speed, 2);
        const Degrees drift = NavFunc113::WithinHalfTurn(m_of.course - water.direction);
        m_working.step("Angle that stems the current", "sin α = d sin (S - T) / V",
                       "arcsin(" + d + " × sin (" + S + " - " + T + ") / " + V + ")", shown(drift),
                       "°");
        addSum("Course through the water", "T - α", m_of.course, drift, true);
        addSum("True head", "course through the water - leeway", water.direction, m_of.leeway,
               true);
    }

    void addGyro()
    {
        if (!m_of.gyroError) return;
        addSum("Gyro head", "true head - gyro error", *m_result.head, *m_of.gyroError, true);
        m_working.resultStep("Gyro head", "to a tenth of a degree", m_result.gyroHead);
    }

    void addCompass()
    {
        if (!m_of.magnetic) return;
        addSum("Magnetic head", "true head - variation", *m_result.head, *m_of.variation, true);
        m_working.resultStep("Magnetic head", "to a tenth of a degree", m_result.magneticHead);
        if (!m_of.compassHead) return;
        m_working.step("Deviation", "of the compass head that it belongs to", m_curve,
                       shown(*m_of.deviation), "°");
        m_working.resultStep("Deviation on that head", "to a tenth of a degree",
                             m_result.deviation);
        addSum("Compass head", "magnetic head - deviation", *m_of.magnetic, *m_of.deviation, true);
        m_working.resultStep("Compass head", "to a tenth of a degree", m_result.compassHead);
    }

    void addWater()
    {
        addSum("Course through the water", "true head + leeway", *m_result.head, m_of.leeway);
        m_working.resultStep("Course through the water", "to a tenth of a degree",
                             m_result.waterCourse);
        if (!m_result.triangle && !m_result.track.empty())
            m_working.resultStep("Track made good", "without a current the same", m_result.track);
    }

    void addMadeGood()
    {
        const NavFunc113::HorizontalMotion& water = m_result.triangle->throughWater;
        const NavFunc113::HorizontalMotion& current = m_result.triangle->current;
        const NavFunc113::HorizontalMotion& madeGood = m_result.triangle->madeGood;
        const auto part = [&](const char* name, const char* formula, const std::string& of,
                              double value) {
            m_working.step(name, formula,
                           figure(water.speed, 2) + " × " + of + " " + degrees(water.direction) +
                               " + " + figure(current.speed, 2) + " × " + of + " " +
                               degrees(current.direction),
                           figure(value, speedPlaces), "knots");
        };
        const double north = madeGood.speed.value() * cos(madeGood.direction);
        const double east = madeGood.speed.value() * sin(madeGood.direction);
        part("Made good northwards", "n = V cos W + d cos S", "cos", north);
        part("Made good eastwards", "e = V sin W + d sin S", "sin", east);
        if (!m_result.track.empty()) {
            m_working.step("Track", "tan T = e / n, T in the quadrant of n and e",
                           "arctan(" + term(east, speedPlaces) + " / " + term(north, speedPlaces) +
                               ")",
                           shown(madeGood.direction), "°");
            m_working.resultStep("Track made good", "to a tenth of a degree", m_result.track);
        }
        m_working.step("Speed made good", "√(n² + e²)",
                       "√(" + term(north, speedPlaces) + "² + " + term(east, speedPlaces) + "²)",
                       figure(madeGood.speed, speedPlaces), "knots");
        m_working.resultStep("Speed made good", "to a tenth of a knot", m_result.speed, "knots");
        if (m_result.time.empty()) return;
        m_working.step("Time", "distance / speed made good",
                       figure(*m_of.distance, 2) + " / " + figure(madeGood.speed, speedPlaces),
                       figure(*m_of.distance / madeGood.speed.value(), 3), "hours");
        m_working.resultStep("Time for the distance", "to the minute", m_result.time);
    }

    const CourseInput& m_input;
    const CourseResult& m_result;
    const CourseResult::Worked& m_of;
    const std::string& m_curve;
    Working m_working;
};

} // namespace

std::vector<Working> coursesWorkings(const CourseInput& input, const CourseResult& result,
                                     const std::string& curve)
{
    return CoursesWorking(input, result, curve).workings();
}

} // namespace korvel
