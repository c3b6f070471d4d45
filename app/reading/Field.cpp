// SPDX-License-Identifier: MIT
#include "app/reading/Field.h"

#include "app/reading/NumberField.h"

namespace korvel
{

std::string accessibleName(const Field& field)
{
    std::string name = field.words;
    for (const char* part : {field.measure, field.note})
        if (*part) name.append(", ").append(part);
    return name;
}

std::optional<double> readField(std::string_view text, const Field& field, Remarks& remarks)
{
    const NumberField number{field.words, field.low, field.high, field.unit, field.kind};
    Remarks said;
    const auto value = readField(text, number, said);
    for (const std::string& sentence : said.faults)
        remarks.fault(sentence);
    if (field.kind == FieldKind::Figure)
        for (const std::string& sentence : said.warnings)
            remarks.warn(sentence);
    return value;
}

} // namespace korvel
