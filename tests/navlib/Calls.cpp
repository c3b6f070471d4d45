// SPDX-License-Identifier: MIT
#include "tests/navlib/Calls.h"

#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/sailing/compass.h"
#include "navlib/sailing/composite_sailing.h"
#include "navlib/sailing/deviation.h"
#include "navlib/sailing/great_circle.h"
#include "navlib/sailing/sailing.h"
#include "navlib/sea/current.h"
#include "navlib/sea/tide.h"
#include "navlib/sea/weather_terms.h"
#include "navlib/sea/wind.h"
#include "navlib/ship/cargo.h"
#include "navlib/ship/oil_tables.h"
#include "navlib/ship/unit_tables.h"
#include "navlib/ship/vessel_experience.h"
#include "navlib/sky/ephemeris.h"
#include "navlib/sky/meridian_passage.h"
#include "navlib/sky/rise_set.h"
#include "navlib/sky/sight_fix.h"
#include "navlib/sky/sight_reduction.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <map>
#include <sstream>
#include <stdexcept>

namespace NavFunc113::calls
{
namespace
{

template <typename Unit>
std::vector<Unit> all(const Arguments& texts, std::size_t from = 0)
{
    std::vector<Unit> values;
    for (std::size_t i = from; i < texts.size(); ++i)
        values.push_back(argumentOf<Unit>(texts[i]));
    return values;
}

template <typename... Parts>
Result parts(const Parts&... part)
{
    Result result;
    (addPart(result, part), ...);
    return result;
}

Position positionAt(const Arguments& texts, std::size_t from)
{
    return {argumentOf<Degrees>(texts.at(from)), argumentOf<Degrees>(texts.at(from + 1))};
}

Result interpolated(const Arguments& texts)
{
    const auto numbers = all<double>(texts);
    std::vector<TablePair> table; // "nan" stands for a coordinate that is not there
    const auto coordinate = [](double number) {
        return std::isnan(number) ? std::nullopt : std::optional(number);
    };
    for (std::size_t i = 1; i + 1 < numbers.size(); i += 2)
        table.push_back({coordinate(numbers[i]), coordinate(numbers[i + 1])});
    const auto value = InterpolateLagrange(numbers.at(0), table);
    return value ? parts(*value) : parts("nothing");
}

Result track(const Arguments& texts)
{
    const auto at = all<DegMin>(texts);
    const auto found = TrackOfGreatCircle(at.at(0), at.at(1), at.at(2), at.at(3));
    if (!found) return parts("nothing");
    Result result = parts(found->initialCourse, found->finalCourse);
    if (!found->vertex) return result;
    addPart(result, found->vertex->lat);
    addPart(result, found->vertex->longitude);
    addPart(result, found->vertex->onRoute ? "on the route" : "beyond");
    return result;
}

/// Kind; miles of circle, parallel, circle and of all; those of the full circle and of leaving it;
/// initial and final course; the longitudes of the tangent points.
Result composite(const Arguments& texts)
{
    const auto at = all<DegMin>({texts.begin(), texts.begin() + 5});
    const auto track = CompositeSailing({at.at(0), at.at(1)}, {at.at(2), at.at(3)}, at.at(4),
                                        argumentOf<Earth>(texts.at(5)));
    constexpr const char* kinds[] = {"not binding", "two tangents", "one tangent",
                                     "along the parallel", "end beyond the limit"};
    Result result = parts(kinds[static_cast<int>(track.kind)]);
    for (const Miles miles : {track.firstCircle, track.alongParallel, track.secondCircle,
                              track.distance, track.fullCircle, track.leavingTheCircle})
        addPart(result, miles);
    addPart(result, track.initialCourse);
    addPart(result, track.finalCourse);
    if (!track.joins) return result;
    addPart(result, track.joins->longitude);
    addPart(result, track.leaves->longitude);
    return result;
}

Result madeGood(const Arguments& texts)
{
    const auto n = all<double>(texts);
    const HorizontalMotion made =
        MadeGood({Degrees(n.at(0)), Knots(n.at(1))}, {Degrees(n.at(2)), Knots(n.at(3))});
    return parts(made.direction, made.speed);
}

Result throughCurrent(const Arguments& texts)
{
    const auto n = all<double>(texts);
    const auto steered =
        CourseThroughCurrent(Degrees(n.at(0)), Knots(n.at(1)), {Degrees(n.at(2)), Knots(n.at(3))});
    return steered ? parts(steered->course, steered->madeGood) : parts("nothing");
}

Result compassHeading(const Arguments& texts)
{
    const auto d = all<Degrees>(texts);
    return parts(CompassHeading(d.at(0), {d.at(1), d.at(2), d.at(3), d.at(4), d.at(5)}));
}

Result terms(const Arguments& texts)
{
    const auto n = all<double>(texts);
    const auto t = SunAltitudeTerms(DegMin(n.at(0)), static_cast<float>(n.at(1)), Metres(n.at(2)),
                                    n.at(3), n.at(4), static_cast<float>(n.at(5)));
    return parts(t.dip, t.refraction, t.semiDiameter, t.parallax, t.temperature, t.pressure,
                 t.semiDiameterOfMonth, t.airSea);
}

template <typename... Parameters>
Routine refined(std::optional<DateTime> (*function)(Parameters...))
{
    return [function](const Arguments& texts) {
        const auto n = all<double>(texts);
        const auto time = function(n.at(0), Hours(n.at(1)), DegMin(n.at(2)), DegMin(n.at(3)),
                                   n.size() > 4 ? n[4] : 0);
        return time ? parts(*time) : parts("nothing");
    };
}

Result converted(const Arguments& texts)
{
    const std::map<std::string, Quantity> quantities = {
        {"length", Quantity::Length}, {"area", Quantity::Area},
        {"volume", Quantity::Volume}, {"pressure", Quantity::Pressure},
        {"weight", Quantity::Weight}, {"temperature", Quantity::Temperature},
        {"speed", Quantity::Speed},   {"density", Quantity::Density},
        {"flow", Quantity::Flow},     {"energy", Quantity::Energy},
        {"angle", Quantity::Angle}};
    const auto unit = [&](std::string symbol) -> const Unit& {
        std::replace(symbol.begin(), symbol.end(), '_', ' ');
        for (const Unit& each : UnitTable(quantities.at(texts.at(0))))
            if (each.symbol == symbol) return each;
        throw std::invalid_argument(symbol);
    };
    UnitConditions known; // density, power, hours
    for (std::size_t i = 4; i < texts.size(); ++i)
        (i == 4 ? known.density : i == 5 ? known.power : known.hours) = numberOf(texts[i]);
    return parts(ConvertUnits(numberOf(texts.at(1)), unit(texts.at(2)), unit(texts.at(3)), known));
}

/// t; phase and amplitude of M2, S2, K1, O1; angle and factor of each this day and the next;
/// quarter- and sixth-diurnal phase and coefficient.
Result tide(const Arguments& texts)
{
    const auto n = all<double>(texts);
    TideConstituents station;
    DailyFactors thisDay, nextDay;
    for (std::size_t j = 0; j < station.size(); ++j) {
        station[j] = {Degrees(n.at(1 + 2 * j)), n.at(2 + 2 * j)};
        thisDay[j] = {Degrees(n.at(9 + 2 * j)), n.at(10 + 2 * j)};
        nextDay[j] = {Degrees(n.at(17 + 2 * j)), n.at(18 + 2 * j)};
    }
    const ShallowWaterTerms shallow{Degrees(n.at(25)), n.at(26), Degrees(n.at(27)), n.at(28)};
    return parts(TideHarmonicSum(Hours(n[0]), station, thisDay, nextDay, shallow));
}

Result dates(const Arguments& texts)
{
    const auto n = all<int>(texts);
    const CivilDate date{n.at(0), n.at(1), n.at(2)};
    if (!IsCivilDate(date)) return parts("no date");
    const auto serial = DaySerial(date);
    const CivilDate back = DateOfSerial(serial);
    return parts(serial, back.year, back.month, back.day);
}

Result dateAndTime(const Arguments& texts)
{
    const DateTime value = numberOf(texts.at(0));
    const CivilDate date = DateOf(value);
    const TimeOfDay time = TimeOf(value);
    return parts(date.year, date.month, date.day, time.hour, time.minute, time.second);
}

Result picked(const Arguments& texts)
{
    const auto n = all<double>(texts, 1);
    return parts(PickItem<double>(argumentOf<int>(texts.at(0)), n));
}

/// "crude 870", "own 870 0.00085": the arguments that an oil takes.
Oil oilOf(const Arguments& texts)
{
    Oil oil{argumentOf<OilTable>(texts.at(0)), numberOf(texts.at(1)), 0};
    if (oil.table == OilTable::Own) oil.coefficient = numberOf(texts.at(2));
    return oil;
}

/// The argument so many behind those of the oil.
const std::string& behindOil(const Arguments& texts, std::size_t place)
{
    const std::size_t ofOil = argumentOf<OilTable>(texts.at(0)) == OilTable::Own ? 3 : 2;
    return texts.at(ofOil + place);
}

Result factorTo15C(const Arguments& texts)
{
    return parts(FactorTo15C(oilOf(texts), numberOf(behindOil(texts, 0)),
                             argumentOf<CrudeEdition>(behindOil(texts, 1)),
                             argumentOf<FactorRounding>(behindOil(texts, 2))));
}

Result correction15(const Arguments& texts)
{
    return parts(CorrectionTo15C(oilOf(texts), numberOf(behindOil(texts, 0)),
                                 argumentOf<CrudeEdition>(behindOil(texts, 1)))
                     .factor);
}

Result correction60(const Arguments& texts)
{
    return parts(CorrectionTo60F(argumentOf<OilTable>(texts.at(0)), numberOf(texts.at(1)),
                                 numberOf(texts.at(2)), argumentOf<CrudeEdition>(texts.at(3)))
                     .factor);
}

Result withinTable(const Arguments& texts)
{
    return parts(WithinTable(oilOf(texts), numberOf(behindOil(texts, 0)),
                             argumentOf<CrudeEdition>(behindOil(texts, 1))));
}

/// Ships and shores in turn. The factor, or 0 for none, the mean, how many count, and a sign a
/// voyage: 0 counts, 1 gross, 2 off the mean.
Result vesselExperience(const Arguments& texts)
{
    const auto numbers = all<double>(texts);
    std::vector<VoyageQuantities> voyages;
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2)
        voyages.push_back({numbers[i], numbers[i + 1]});
    const VesselExperience found = VesselExperienceFactor(voyages);
    std::string standings = "of";
    for (const VoyageRatio& voyage : found.voyages)
        standings += std::to_string(static_cast<int>(voyage.standing));
    Result result = parts(found.factor.value_or(0), found.mean, static_cast<double>(found.counted));
    result.add(standings);
    return result;
}

const std::map<std::string, Routine>& routines()
{
    static const std::map<std::string, Routine> table = {
        {"DegMinToDeg", routine(DegMinToDeg)},
        {"DegToDegMin", routine(DegToDegMin)},
        {"DegToRad", routine(DegToRad)},
        {"RadToDeg", routine(RadToDeg)},
        {"ArcTan2", routine<Radians, double&, double>(ArcTan2)},
        {"ArcCos", routine(ArcCos)},
        {"ArcSin", routine(ArcSin)},
        {"Log10", routine(Log10)},
        {"SumDegMin", [](const Arguments& a) { return parts(SumDegMin(all<DegMin>(a))); }},
        {"InterpolateLagrange", interpolated},
        {"PickItem", picked},
        {"Date", dates},
        {"DateAndTime", dateAndTime},
        {"NearestSecond", routine(NearestSecond)},
        {"ChangeOfLongitude", routine(ChangeOfLongitude)},
        {"EastWest",
         [](const Arguments& a) {
             const auto at = all<DegMin>(a);
             return parts(NameOf(EastWest(at.at(0), at.at(1))));
         }},
        {"MeridionalParts", routine(MeridionalParts)},
        {"LatitudeFactor", routine(LatitudeFactor)},
        {"ParallelFactor", routine(ParallelFactor)},
        {"RhumbCourse", routine(RhumbCourse)},
        {"RhumbDistance", routine(RhumbDistance)},
        {"DRLatitude", routine(DRLatitude)},
        {"DRLongitude", routine<DegMin, DegMin, DegMin, Degrees, Miles, Earth>(DRLongitude)},
        {"GCDistance", routine(GCDistance)},
        {"GCLatitudeAt", routine(GCLatitudeAt)},
        {"TrackOfGreatCircle", track},
        {"CompositeSailing", composite},
        {"DipOfHorizon", routine(DipOfHorizon)},
        {"BearingAtAltitude", routine(BearingAtAltitude)},
        {"BearingChangeOfMinute", routine(BearingChangeOfMinute)},
        {"GyroSpeedError", routine(GyroSpeedError)},
        {"MadeGood", madeGood},
        {"CourseThroughCurrent", throughCurrent},
        {"CompassHeading", compassHeading},
        {"TrueWindDirection", routine(TrueWindDirection)},
        {"TrueWindSpeed", routine(TrueWindSpeed)},
        {"TrueWindName", routine(TrueWindName)},
        {"CompassName", routine(CompassName)},
        {"BeaufortNumber", routine(BeaufortNumber)},
        {"SeaStateCode", routine(SeaStateCode)},
        {"SeaStateName", routine(SeaStateName)},
        {"VisibilityCode", routine(VisibilityCode)},
        {"VisibilityName", routine(VisibilityName)},
        {"SwellTerm", routine(SwellTerm)},
        {"WeatherName", routine(WeatherName)},
        {"ConvertUnits", converted},
        {"JulianDay", routine(JulianDay)},
        {"SunLongitude", routine(SunLongitude)},
        {"SunDistance", routine(SunDistance)},
        {"SunAberration", routine(SunAberration)},
        {"NutationLongitude", routine(NutationLongitude)},
        {"NutationObliquity", routine(NutationObliquity)},
        {"MoonLongitude", routine(MoonLongitude)},
        {"MoonLatitude", routine(MoonLatitude)},
        {"SunDeclination", routine(SunDeclination)},
        {"SunRightAscension", routine(SunRightAscension)},
        {"MoonDeclination", routine(MoonDeclination)},
        {"MoonRightAscension", routine(MoonRightAscension)},
        {"GreenwichSiderealTime", routine(GreenwichSiderealTime)},
        {"SunGHA", routine(SunGHA)},
        {"MoonGHA", routine(MoonGHA)},
        {"SunHourAngleOffset", routine(SunHourAngleOffset)},
        {"MoonHourAngleOffset", routine(MoonHourAngleOffset)},
        {"MoonAge", routine(MoonAge)},
        {"LastNewMoon", routine(LastNewMoon)},
        {"SunRiseHour", routine(SunRiseHour)},
        {"SunSetHour", routine(SunSetHour)},
        {"MoonRiseHour", routine(MoonRiseHour)},
        {"MoonSetHour", routine(MoonSetHour)},
        {"SunRiseAzimuth", routine(SunRiseAzimuth)},
        {"SunSetAzimuth", routine(SunSetAzimuth)},
        {"SunRiseSearch", routine(SunRiseSearch)},
        {"SunSetSearch", routine(SunSetSearch)},
        {"MoonRiseSearch", routine(MoonRiseSearch)},
        {"MoonSetSearch", routine(MoonSetSearch)},
        {"RefinedSunRise", refined(RefinedSunRise)},
        {"RefinedSunSet", refined(RefinedSunSet)},
        {"RefinedMoonRise", refined(RefinedMoonRise)},
        {"RefinedMoonSet", refined(RefinedMoonSet)},
        {"ComputedAltitude", routine(ComputedAltitude)},
        {"ComputedAzimuth", routine(ComputedAzimuth)},
        {"SunAltitudeTerms", terms},
        {"SunAltitudeCorrection", routine(SunAltitudeCorrection)},
        {"Advanced",
         [](const Arguments& a) {
             const auto [lat, longitude] = Advanced(
                 positionAt(a, 0), {argumentOf<Degrees>(a.at(2)), argumentOf<Knots>(a.at(3))},
                 argumentOf<Hours>(a.at(4)));
             return parts(lat, longitude);
         }},
        {"PlaceAboveHorizon",
         [](const Arguments& a) {
             const auto [altitude, azimuth] = PlaceAboveHorizon(
                 argumentOf<Degrees>(a.at(0)), argumentOf<Degrees>(a.at(1)), positionAt(a, 2));
             return parts(altitude, azimuth);
         }},
        {"Intercept", routine(Intercept)},
        {"EllipseOf",
         [](const Arguments& a) {
             const auto n = all<double>(a);
             const ErrorEllipse e = EllipseOf({n.at(0), n.at(1), n.at(2)}, n.at(3), n.at(4));
             return parts(e.semiMajor, e.semiMinor, e.majorAxis, e.sigmaNorth, e.sigmaEast);
         }},
        {"AssumedSigmaFactor", routine(AssumedSigmaFactor)},
        {"MeasuredSigmaFactor", routine(MeasuredSigmaFactor)},
        {"CutAngle", [](const Arguments& a) { return parts(CutAngle(all<Degrees>(a))); }},
        {"MeridianLatitude", routine(MeridianLatitude)},
        {"GreatestAltitudeDelay", routine(GreatestAltitudeDelay)},
        {"MeanRefraction", routine(MeanRefraction)},
        {"SemidiurnalChange", routine(SemidiurnalChange)},
        {"DiurnalChange", routine(DiurnalChange)},
        {"TideHarmonicSum", tide},
        {"CelsiusOfFahrenheit", routine(CelsiusOfFahrenheit)},
        {"FahrenheitOfCelsius", routine(FahrenheitOfCelsius)},
        {"WaterDensity60F", routine(WaterDensity60F)},
        {"Density60FromAPI", routine(Density60FromAPI)},
        {"APIFromDensity60", routine(APIFromDensity60)},
        {"Density15FromAPI", routine(Density15FromAPI)},
        {"APIFromDensity15", routine(APIFromDensity15)},
        {"VCF54A", routine(VCF54A)},
        {"VCF6A", routine(VCF6A)},
        {"WithinTable54A", routine(WithinTable54A)},
        {"WithinTable6A", routine(WithinTable6A)},
        {"Density15FromObserved", routine(Density15FromObserved)},
        {"API60FromObserved", routine(API60FromObserved)},
        {"KilolitresPerBarrel", routine(KilolitresPerBarrel)},
        {"MassInVacuo", routine(MassInVacuo)},
        {"WeightInAir", routine(WeightInAir)},
        {"LongTonsOf", routine(LongTonsOf)},
        {"Table56Factor", routine(Table56Factor)},
        {"Table56FactorAsPrinted", routine(Table56FactorAsPrinted)},
        {"FactorTo15C", factorTo15C},
        {"FactorTo60F", routine(FactorTo60F)},
        {"Correction15", correction15},
        {"Correction60", correction60},
        {"Density15OfGravity", routine(Density15OfGravity)},
        {"GravityOfOil", [](const Arguments& a) { return parts(GravityOfOil(oilOf(a))); }},
        {"CubicMetresPerBarrel",
         [](const Arguments& a) { return parts(CubicMetresPerBarrel(oilOf(a))); }},
        {"WithinTable", withinTable},
        {"VesselExperienceFactor", vesselExperience},
    };
    return table;
}

/// 2024-06-21 or 2024-06-21T11:45:00; nothing for any other text.
std::optional<double> dateTimeOf(const std::string& text)
{
    CivilDate date;
    TimeOfDay time;
    char dash = 0, letter = 0;
    std::istringstream stream(text);
    stream >> date.year >> dash >> date.month >> dash >> date.day;
    if (!stream || dash != '-') return std::nullopt;
    if (stream >> letter >> time.hour >> dash >> time.minute >> dash >> time.second)
        return MakeDateTime(date, time.hour * 3600 + time.minute * 60 + time.second);
    return MakeDateTime(date);
}

} // namespace

void Result::add(double figure)
{
    texts.emplace_back(std::to_string(figure));
    figures.push_back(figure);
}

void Result::add(std::string_view text)
{
    texts.emplace_back(text);
    figures.push_back(std::numeric_limits<double>::quiet_NaN());
}

double numberOf(const std::string& argument)
{
    static const std::map<std::string, double> names = {
        {"sphere", static_cast<double>(Earth::Sphere)},
        {"spheroid", static_cast<double>(Earth::Spheroid)},
        {"of1980", static_cast<double>(CrudeEdition::Of1980)},
        {"of2004", static_cast<double>(CrudeEdition::Of2004)},
        {"hydrometer", static_cast<double>(ReadWith::Hydrometer)},
        {"other", static_cast<double>(ReadWith::OtherMeans)},
        {"crude", static_cast<double>(OilTable::Crude)},
        {"products", static_cast<double>(OilTable::Products)},
        {"own", static_cast<double>(OilTable::Own)},
        {"lubricating", static_cast<double>(OilTable::Lubricating)},
        {"five", static_cast<double>(FactorRounding::FiveDecimals)},
        {"four", static_cast<double>(FactorRounding::FourDecimals)},
        {"procedure", static_cast<double>(FactorRounding::Procedure1980)},
        {"south", 1},
        {"north", 0},
        {"rising", 1},
        {"setting", 0},
    };
    const auto named = names.find(argument);
    if (named != names.end()) return named->second;
    double value = 0;
    const char* const end = argument.data() + argument.size();
    const auto read = std::from_chars(argument.data(), end, value);
    if (read.ec == std::errc() && read.ptr == end) return value;
    if (const auto instant = dateTimeOf(argument)) return *instant;
    throw std::invalid_argument("no argument: " + argument);
}

Result resultOf(const std::string& call)
{
    std::istringstream stream(call);
    std::string name;
    stream >> name;
    Arguments arguments;
    for (std::string text; stream >> text;)
        arguments.push_back(text == "''" ? std::string() : text);
    const auto found = routines().find(name);
    if (found == routines().end()) throw std::invalid_argument("no routine " + name);
    return found->second(arguments);
}

} // namespace NavFunc113::calls
