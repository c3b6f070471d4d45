// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CalculateCourses.h"

#include "app/reading/Format.h"
#include "app/reading/Instant.h"
#include "forms/frmCompass/CompassTexts.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using NavFunc113::HorizontalMotion;
using NavFunc113::Knots;
using PerhapsAngleBox = std::optional<Degrees>;

Degrees withinCircle(Degrees course)
{
    return NavFunc113::CourseOfParts(sin(course), cos(course));
}

/// The steps of one calculation; each fills in what it can.
class Courses
{
public:
    explicit Courses(const CourseInput& input) : m_input(input) {}

    CourseResult result()
    {
        readBoxes();
        if (m_course && m_remarks.faults.empty()) findHead();
        if (m_head) tell();
        m_result.notice = m_remarks.text();
        return m_result;
    }

private:
    static const Field& fieldOfCourse(CourseBox which)
    {
        return CourseFields[static_cast<std::size_t>(which)];
    }
    std::optional<double> number(CourseBox which)
    {
        return readFilled(m_input.box(which), fieldOfCourse(which), m_remarks);
    }
    PerhapsAngleBox eastWest(CourseBox which)
    {
        return readEastWest(m_input.box(which), fieldOfCourse(which), m_remarks);
    }

    void readBoxes()
    {
        if (const auto course = number(CourseBox::Course)) m_course = Degrees(*course);
        if (const auto speed = number(CourseBox::Speed)) m_speed = Knots(*speed);
        m_leeway = Degrees(number(CourseBox::Leeway).value_or(0));
        const auto set = number(CourseBox::Set), drift = number(CourseBox::Drift);
        m_current = {Degrees(set.value_or(0)), Knots(drift.value_or(0))};
        if (drift && *drift > 0 && !set) m_remarks.fault("Set: a drift needs it");
        m_gyroError = eastWest(CourseBox::GyroError);
        m_variation = eastWest(CourseBox::Variation);
        m_deviation = m_input.curve ? std::nullopt : eastWest(CourseBox::Deviation);
        m_distance = number(CourseBox::Distance);
    }

    void findHead()
    {
        switch (m_input.given) {
        case CourseGiven::TrueHead:
            m_head = m_course;
            break;
        case CourseGiven::GyroHead:
            if (m_gyroError) m_head = *m_course + *m_gyroError;
            if (!m_gyroError) m_remarks.fault("Gyro error: a gyro course needs it");
            break;
        case CourseGiven::CompassHead:
            findHeadOfCompass();
            break;
        case CourseGiven::Track:
            findHeadOfTrack();
            break;
        }
        if (m_head) m_head = withinCircle(*m_head);
    }

    void findHeadOfCompass()
    {
        if (!m_variation) return m_remarks.fault("Variation: a compass course needs it");
        if (!m_input.curve && !m_deviation)
            return m_remarks.fault("Deviation: a compass course needs it");
        const Degrees deviation = m_input.curve ? m_input.curve->at(*m_course) : *m_deviation;
        m_head = *m_course + deviation + *m_variation;
    }

    void findHeadOfTrack()
    {
        if (m_current.speed == Knots(0)) {
            m_head = *m_course - m_leeway;
            return;
        }
        if (!m_speed) return m_remarks.fault("Speed: a course through a current needs it");
        const auto steered = NavFunc113::CourseThroughCurrent(*m_course, *m_speed, m_current);
        if (!steered)
            return m_remarks.fault("The current is too strong: this track cannot be kept at " +
                                   Format(*m_speed, "0.0#") + " knots");
        m_head = steered->course - m_leeway;
    }

    void tell()
    {
        m_result.head = m_head;
        m_result.worked = {*m_course, m_leeway, m_gyroError, m_variation, {}, {}, {}, m_distance};
        m_result.trueHead = courseText(*m_head);
        if (m_gyroError) m_result.gyroHead = courseText(withinCircle(*m_head - *m_gyroError));
        tellCompass();
        const Degrees water = withinCircle(*m_head + m_leeway);
        m_result.waterCourse = courseText(water);
        // Without a current the track is the course, whatever the speed.
        if (m_current.speed == Knots(0)) m_result.track = m_result.waterCourse;
        if (!m_speed) {
            if (m_current.speed > Knots(0)) m_remarks.fault("Speed: the track needs it");
            return;
        }
        const HorizontalMotion ship{water, *m_speed};
        const HorizontalMotion made = NavFunc113::MadeGood(ship, m_current);
        if (made.speed > Knots(0)) m_result.track = courseText(made.direction);
        m_result.speed = Format(made.speed, "0.0");
        m_result.triangle = CourseTriangle{ship, m_current, made};
        tellTime(made.speed);
    }

    void tellTime(Knots speed)
    {
        if (!m_distance || speed <= Knots(0)) return;
        const auto span = spanOf(NavFunc113::Hours(*m_distance / speed.value()));
        if (span) m_result.time = spanText(*span);
    }

    void tellCompass()
    {
        if (!m_variation) return;
        const Degrees magnetic = withinCircle(*m_head - *m_variation);
        m_result.magneticHead = courseText(magnetic);
        m_result.worked.magnetic = magnetic;
        if (!m_input.curve && !m_deviation) return;
        try {
            const Degrees head = m_input.curve
                                     ? NavFunc113::CompassHeading(magnetic, *m_input.curve)
                                     : withinCircle(magnetic - *m_deviation);
            m_result.compassHead = courseText(head);
            m_result.worked.compassHead = head;
            m_result.worked.deviation = NavFunc113::WithinHalfTurn(magnetic - head);
            m_result.deviation = eastWestText(*m_result.worked.deviation);
        } catch (const NavFunc113::ArithmeticError&) {
            m_remarks.fault("Deviation: the curve is so steep that a course is not one alone");
        }
    }

    const CourseInput& m_input;
    CourseResult m_result;
    Remarks m_remarks;
    PerhapsAngleBox m_course, m_gyroError, m_variation, m_deviation, m_head;
    std::optional<Knots> m_speed;
    std::optional<double> m_distance; ///< miles
    Degrees m_leeway;
    HorizontalMotion m_current;
};

} // namespace

CourseResult CalculateCourses(const CourseInput& input)
{
    return Courses(input).result();
}

} // namespace korvel
