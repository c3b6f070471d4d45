// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankFigures.h"

#include "app/reading/NumberField.h"
#include "app/reading/Reading.h"
#include "navlib/arithmetic_error.h"

#include <algorithm>

namespace korvel
{
namespace
{

using NavFunc113::Oil;
using NavFunc113::OilTable;

std::string withoutBlanks(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string lower(std::string text)
{
    for (char& each : text)
        if (each >= 'A' && each <= 'Z') each = static_cast<char>(each - 'A' + 'a');
    return text;
}

/// "54B", "54 b" and "B" alone, which is the metric one.
const TableName* tableOf(const std::string& typed)
{
    std::string wanted = lower(asciiForms(typed));
    std::erase(wanted, ' ');
    if (wanted.size() == 1) wanted = "54" + wanted;
    const auto found = std::ranges::find_if(
        tableNames, [&wanted](const TableName& each) { return lower(each.name) == wanted; });
    return found == tableNames.end() ? nullptr : &*found;
}

/// As readIfTyped(), but what is half typed is a fault: nothing would be taken for none.
std::optional<double> readWhole(const std::string& text, const NumberField& field, Remarks& remarks)
{
    const std::size_t faults = remarks.faults.size();
    const auto value = readIfTyped(text, field, remarks);
    if (!value && !isBlank(text) && remarks.faults.size() == faults)
        remarks.fault(std::string(field.name) + ": half typed");
    return value;
}

void readOil(const GradeBoxes& boxes, const TankChoices& choices, ReadGrade& grade)
{
    const bool isGravity = grade.table->isAt60F;
    const std::string what = grade.name + (isGravity ? ", API" : ", density");
    const auto density = readWhole(boxes.density,
                                   isGravity ? NumberField{what, -20, 130, "API at 60 °F"}
                                             : NumberField{what, 400, 1300, "kg/m³ at 15 °C"},
                                   grade.remarks);
    std::optional<double> coefficient;
    if (grade.table->table == OilTable::Own) {
        coefficient =
            readWhole(boxes.coefficient, {grade.name + ", coefficient", 0.0001, 0.005, "per °C"},
                      grade.remarks);
        if (!coefficient && isBlank(boxes.coefficient))
            grade.remarks.fault(grade.name + ": table 54C needs the coefficient of expansion");
    }
    if (!density && isBlank(boxes.density)) grade.remarks.fault(what + " is missing");
    if (!density || (grade.table->table == OilTable::Own && !coefficient)) return;
    try {
        Oil oil{grade.table->table, *density, coefficient.value_or(0)};
        if (isGravity)
            oil.density15 = NavFunc113::Density15OfGravity(oil.table, *density, choices.edition);
        grade.api = isGravity ? *density : NavFunc113::GravityOfOil(oil, choices.edition);
        grade.barrel = NavFunc113::CubicMetresPerBarrel(oil, choices.edition);
        grade.oil = oil;
    } catch (const NavFunc113::ArithmeticError&) {
        grade.remarks.fault(what + " is that of no oil");
    }
}

std::optional<std::size_t> gradeOf(const std::string& typed,
                                   const std::array<ReadGrade, gradeCount>& grades,
                                   std::string& fault)
{
    const std::string wanted = withoutBlanks(typed);
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < grades.size(); ++i)
        if (grades[i].isUsed && (wanted.empty() || lower(grades[i].name) == lower(wanted)))
            found.push_back(i);
    if (found.size() == 1) return found.front();
    const auto number = readLeadingNumber(wanted);
    if (isNumeric(wanted) && *number >= 1 && *number <= double(grades.size()) &&
        *number == double(std::size_t(*number)) && grades[std::size_t(*number) - 1].isUsed)
        return static_cast<std::size_t>(*number) - 1;
    fault = wanted.empty() ? (found.empty() ? "there is no grade yet" : "which grade?")
                           : "there is no grade " + quotation(wanted);
    return std::nullopt;
}

/// The factor, and a warning where it was carried on beyond its table.
double factorOf(const ReadGrade& grade, double temperature, const TankChoices& choices,
                Remarks& remarks)
{
    const Oil& oil = *grade.oil;
    const bool at60F = grade.table->isAt60F;
    const double celsius = at60F ? NavFunc113::CelsiusOfFahrenheit(temperature) : temperature;
    if (!NavFunc113::WithinTable(oil, celsius, choices.edition))
        remarks.warn(std::string("outside table ") + grade.table->name);
    if (at60F)
        return NavFunc113::FactorTo60F(oil.table, grade.api, temperature, choices.edition,
                                       choices.rounding);
    return NavFunc113::FactorTo15C(oil, temperature, choices.edition, choices.rounding);
}

TankSums quantitiesOf(double volume, double water, const ReadGrade& grade, double factor,
                      const TankChoices& choices)
{
    const bool inBarrels = choices.volume == TankVolumeUnit::Barrels;
    // A volume stays in its unit as long as it is at the temperature of the tank: the barrel of
    // 60 degF is another one only once it is reduced.
    const double bare = inBarrels ? NavFunc113::cubicMetresPerBarrel : 1;
    TankSums sums;
    sums.observed = volume;
    sums.water = water;
    sums.gross = volume - water;
    const double reduced = sums.gross * bare * factor; // m3 at the table's own reference
    if (grade.table->isAt60F) {
        sums.barrels = reduced / NavFunc113::cubicMetresPerBarrel;
        sums.standard = sums.barrels * grade.barrel;
    } else {
        sums.standard = reduced;
        sums.barrels = reduced / grade.barrel;
    }
    sums.net = sums.standard * (1 - grade.sediment);
    sums.total = sums.standard + sums.water * bare;
    const double density = grade.oil->density15;
    sums.inVacuo = NavFunc113::MassInVacuo(sums.standard, density);
    sums.inAir = choices.air == TankAirWeight::Table56
                     ? sums.inVacuo * NavFunc113::Table56FactorAsPrinted(density)
                     : NavFunc113::WeightInAir(sums.standard, density);
    sums.netInAir = sums.inAir * (1 - grade.sediment);
    sums.longTons = NavFunc113::LongTonsOf(sums.inAir);
    return sums;
}

/// A tank being read; what is missing for its quantities is said once all boxes were looked at.
class Tank
{
public:
    Tank(const TankReading& reading, const std::array<ReadGrade, gradeCount>& grades,
         const TankChoices& choices)
        : m_reading(reading), m_grades(grades), m_choices(choices)
    {
    }

    TankFigures figures()
    {
        readBoxes();
        if (m_volume) {
            m_figures.isMeasured = true;
            findGrade();
        }
        if (m_volume && m_remarks.faults.empty()) calculate();
        m_figures.remark = m_remarks.text();
        m_figures.isFault = !m_remarks.faults.empty();
        return m_figures;
    }

private:
    void readBoxes()
    {
        NumberField volume{"volume", 0, 1e7, unitOf(m_choices.volume)};
        m_volume = readWhole(m_reading.volume, volume, m_remarks);
        volume.name = "free water";
        m_water = readWhole(m_reading.water, volume, m_remarks).value_or(0);
        m_typedTemperature =
            readIfTyped(m_reading.temperature, temperatureField(m_choices.temperature), m_remarks);
        if (m_volume && m_water > *m_volume) m_remarks.fault("more water than volume");
    }

    /// An empty tank, or one with water alone, needs neither a grade nor a temperature.
    bool isWithoutOil() const { return *m_volume <= m_water; }

    void findGrade()
    {
        std::string fault;
        m_figures.grade = gradeOf(m_reading.grade, m_grades, fault);
        if (isWithoutOil()) return;
        if (!fault.empty()) return m_remarks.fault(fault);
        if (isBlank(m_reading.temperature)) m_remarks.fault("the temperature is missing");
        m_grade = &m_grades[*m_figures.grade];
        if (!m_grade->oil) m_remarks.fault(m_grade->name + " cannot be used yet");
        if (!m_typedTemperature && m_remarks.faults.empty())
            m_remarks.fault("the temperature is half typed");
    }

    void calculate()
    {
        const bool inBarrels = m_choices.volume == TankVolumeUnit::Barrels;
        if (!m_grade) {
            m_figures.quantities = TankSums();
            m_figures.quantities->observed = *m_volume;
            m_figures.quantities->water = m_water;
            m_figures.quantities->total =
                m_water * (inBarrels ? NavFunc113::cubicMetresPerBarrel : 1);
            return;
        }
        const bool inF = m_choices.temperature == TankTemperatureUnit::Fahrenheit;
        const bool at60F = m_grade->table->isAt60F;
        double temperature = *m_typedTemperature;
        if (inF && !at60F) temperature = NavFunc113::CelsiusOfFahrenheit(temperature);
        if (!inF && at60F) temperature = NavFunc113::FahrenheitOfCelsius(temperature);
        m_figures.temperature = temperature;
        m_figures.factor = factorOf(*m_grade, temperature, m_choices, m_remarks);
        m_figures.quantities =
            quantitiesOf(*m_volume, m_water, *m_grade, *m_figures.factor, m_choices);
    }

    const TankReading& m_reading;
    const std::array<ReadGrade, gradeCount>& m_grades;
    const TankChoices& m_choices;
    TankFigures m_figures;
    Remarks m_remarks;
    std::optional<double> m_volume;
    double m_water = 0;
    std::optional<double> m_typedTemperature;
    const ReadGrade* m_grade = nullptr; ///< of the oil; none for an empty tank
};

} // namespace

const char* unitOf(TankVolumeUnit unit)
{
    return unit == TankVolumeUnit::Barrels ? "bbl" : "m³";
}

const char* unitOf(TankTemperatureUnit unit)
{
    return unit == TankTemperatureUnit::Fahrenheit ? "°F" : "°C";
}

NumberField temperatureField(TankTemperatureUnit unit)
{
    return unit == TankTemperatureUnit::Fahrenheit ? NumberField{"temperature", -76, 400, "°F"}
                                                   : NumberField{"temperature", -60, 200, "°C"};
}

ReadGrade readGrade(const GradeBoxes& boxes, std::size_t number, ListKind kind,
                    const TankChoices& choices)
{
    ReadGrade grade;
    grade.isUsed = !boxes.isEmpty();
    grade.name = isBlank(boxes.name)
                     ? (kind == ListKind::Cargo ? "Grade " : "Parcel ") + std::to_string(number)
                     : withoutBlanks(boxes.name);
    if (!grade.isUsed) return grade;
    const bool isUsual = kind == ListKind::Bunkers && isBlank(boxes.table);
    grade.table = tableOf(isUsual ? "54B" : boxes.table);
    if (grade.table)
        readOil(boxes, choices, grade);
    else
        grade.remarks.fault(grade.name + ", table: one of 54A, 54B, 54C, 54D, 6A, 6B, 6D");
    const auto read = [&](const std::string& box, const char* what, double high,
                          std::string_view unit) {
        return readWhole(box, {grade.name + ", " + what, 0, high, unit}, grade.remarks);
    };
    grade.sediment = read(boxes.sediment, "sediment and water", 100, "per cent").value_or(0) / 100;
    grade.billVolume = read(boxes.billVolume, "bill of lading in m³", 1e7, "m³");
    grade.billBarrels = read(boxes.billBarrels, "bill of lading in barrels", 1e8, "barrels");
    grade.billWeight = read(boxes.billWeight, "bill of lading in tons", 1e7, "t");
    grade.received = read(boxes.received, "received", 1e6, "t");
    const auto fuel =
        readWhole(boxes.fuel, {grade.name + ", fuel", 1, fuelCount, ""}, grade.remarks);
    if (fuel && *fuel != double(std::size_t(*fuel)))
        grade.remarks.fault(grade.name + ", fuel: 1, 2 or 3");
    else if (fuel)
        grade.fuel = static_cast<std::size_t>(*fuel) - 1;
    return grade;
}

TankSums& TankSums::operator+=(const TankSums& other)
{
    observed += other.observed;
    water += other.water;
    gross += other.gross;
    standard += other.standard;
    net += other.net;
    total += other.total;
    barrels += other.barrels;
    inVacuo += other.inVacuo;
    inAir += other.inAir;
    netInAir += other.netInAir;
    longTons += other.longTons;
    return *this;
}

TankSums TankSums::operator-(const TankSums& other) const
{
    TankSums less;
    less.observed = observed - other.observed;
    less.water = water - other.water;
    less.gross = gross - other.gross;
    less.standard = standard - other.standard;
    less.net = net - other.net;
    less.total = total - other.total;
    less.barrels = barrels - other.barrels;
    less.inVacuo = inVacuo - other.inVacuo;
    less.inAir = inAir - other.inAir;
    less.netInAir = netInAir - other.netInAir;
    less.longTons = longTons - other.longTons;
    return less;
}

TankFigures tankFigures(const TankReading& reading, const std::array<ReadGrade, gradeCount>& grades,
                        const TankChoices& choices)
{
    if (reading == TankReading()) return {};
    return Tank(reading, grades, choices).figures();
}

} // namespace korvel
