// SPDX-License-Identifier: MIT
#include "app/reading/Field.h"

#include "app/reading/NumberField.h"

namespace korvel
{
namespace
{

NumberField::Form formOf(FieldKind kind)
{
    switch (kind) {
    case FieldKind::Latitude:
        return NumberField::Form::Latitude;
    case FieldKind::Longitude:
        return NumberField::Form::Longitude;
    case FieldKind::Text:
    case FieldKind::Moment:
    case FieldKind::Number:
    case FieldKind::KeyUp:
        break;
    }
    return NumberField::Form::Plain;
}

} // namespace

std::optional<double> readField(std::string_view text, const Field& field, Remarks& remarks)
{
    const std::string_view name = field.accessibleName;
    const NumberField number{name.substr(0, name.find(',')), field.low, field.high, field.unit,
                             formOf(field.kind)};
    Remarks said;
    const auto value = readField(text, number, said);
    for (const std::string& sentence : said.faults)
        remarks.fault(sentence);
    if (number.form == NumberField::Form::Plain)
        for (const std::string& sentence : said.warnings)
            remarks.warn(sentence);
    return value;
}

} // namespace korvel
