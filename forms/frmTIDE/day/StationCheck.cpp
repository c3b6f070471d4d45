// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/day/StationCheck.h"

#include "app/reading/Format.h"
#include "forms/frmTIDE/data/DelimitedFields.h"

#include <algorithm>

namespace korvel
{
namespace
{

struct FieldRule {
    std::string name;
    std::string unit;
    double low;
    double high;
};

constexpr const char* months[] = {"January",   "February", "March",    "April",
                                  "May",       "June",     "July",     "August",
                                  "September", "October",  "November", "December"};

// Wider than any port needs, narrow enough to catch a slipped point or a field left out.
std::vector<FieldRule> rulesOf(TideKind kind)
{
    const bool tide = kind == TideKind::Tide;
    const std::string unit = tide ? "m" : "kn";
    const std::string amplitude = tide ? "Amplitude of " : "Rate of ";
    std::vector<FieldRule> rules = {{"Zone time, east positive", "h", -12, 14}};
    rules.push_back(tide ? FieldRule{"Mean level above chart datum", unit, -1, 12}
                         : FieldRule{"Mean stream, flood positive", unit, -5, 5});
    for (const char* constituent : {"M2", "S2", "K1", "O1"}) {
        rules.push_back({std::string("Phase of ") + constituent, "degrees", 0, 360});
        rules.push_back({amplitude + constituent, unit, 0, tide ? 6.0 : 12.0});
    }
    for (const char* term : {"quarter-diurnal", "sixth-diurnal"}) {
        rules.push_back({std::string("Phase of the ") + term + " term", "degrees", 0, 360});
        // Where the tide is small the sixth-diurnal one is large.
        const bool isQuarter = term[0] == 'q';
        rules.push_back({std::string("Coefficient of the ") + term + " term",
                         (isQuarter ? "per " : "per square ") + unit, 0, isQuarter ? 2.0 : 6.0});
    }
    if (!tide) {
        rules.push_back({"Direction of the flood", "degrees true", 0, 360});
        return rules;
    }
    for (const char* month : months)
        rules.push_back({std::string("Correction of ") + month, unit, -1, 1});
    return rules;
}

CheckedField titleField(FieldReader& reader)
{
    CheckedField field{1, "Title", reader.text(), "", "good", true};
    if (field.value.empty()) {
        field.verdict = "is empty";
        field.isGood = false;
    }
    return field;
}

CheckedField numberField(FieldReader& reader, int number, const FieldRule& rule)
{
    const double value = reader.number();
    CheckedField field{number, rule.name, Format(value, "0.####"), rule.unit, "good", true};
    if (value < rule.low || value > rule.high) {
        field.isGood = false;
        field.verdict = "not within " + Format(rule.low, "0.##") + " to " +
                        Format(rule.high, "0.##") + " " + rule.unit;
    }
    return field;
}

} // namespace

int StationCheck::questionable() const
{
    return static_cast<int>(
        std::ranges::count_if(fields, [](const CheckedField& field) { return !field.isGood; }));
}

std::string StationCheck::summary() const
{
    if (!fault.empty()) return fault;
    const int count = questionable();
    if (count == 0) return file + ": all " + std::to_string(fields.size()) + " fields are good.";
    return file + ": " + std::to_string(count) + " of " + std::to_string(fields.size()) +
           (count == 1 ? " fields lies" : " fields lie") + " outside what such a figure can be.";
}

std::string StationCheck::doubts() const
{
    if (!isReadable || (questionable() == 0 && fault.empty())) return {};
    std::string text = summary();
    for (const CheckedField& field : fields)
        if (!field.isGood)
            text += " Field " + std::to_string(field.number) + ", " + field.name +
                    (field.value.empty() ? "" : " " + field.value) + ": " + field.verdict + ".";
    return text;
}

StationCheck checkStation(FileStore& files, TideKind kind, const std::string& place)
{
    const bool tide = kind == TideKind::Tide;
    StationCheck check{tide ? tideFileName(place) : streamFileName(place), {}, {}, true};
    try {
        const std::string bytes =
            tide ? tideStationBytes(files, place) : streamStationBytes(files, place);
        FieldReader reader(check.file, bytes, 1);
        check.fields.push_back(titleField(reader));
        for (int number = 2; const FieldRule& rule : rulesOf(kind))
            check.fields.push_back(numberField(reader, number++, rule));
        if (!reader.atEnd())
            check.fault = check.file + ": there is more in the file than its " +
                          std::to_string(check.fields.size()) + " fields.";
    } catch (const TideDataFault& fault) {
        check.fault = fault.what();
        check.isReadable = false;
    }
    return check;
}

} // namespace korvel
