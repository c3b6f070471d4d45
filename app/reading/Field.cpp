// SPDX-License-Identifier: MIT
#include "app/reading/Field.h"

#include "app/reading/NumberField.h"

namespace korvel
{

std::string writingOf(const Field& field)
{
    std::string writing = field.measure;
    if (*field.note) writing.append(writing.empty() ? "" : ", ").append(field.note);
    return writing;
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
