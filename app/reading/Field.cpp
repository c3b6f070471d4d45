// SPDX-License-Identifier: MIT
#include "app/reading/Field.h"

#include "app/reading/NumberField.h"

namespace korvel
{
namespace
{

NumberField numberOf(const Field& field)
{
    return {field.words, field.low, field.high, field.unit, field.kind};
}

} // namespace

std::string writingOf(const Field& field)
{
    std::string writing = field.measure;
    if (*field.note) writing.append(writing.empty() ? "" : ", ").append(field.note);
    return writing;
}

std::optional<double> readField(std::string_view text, const Field& field, Remarks& remarks)
{
    Remarks said;
    const auto value = readField(text, numberOf(field), said);
    for (const std::string& sentence : said.faults)
        remarks.fault(sentence);
    if (field.kind == FieldKind::Figure)
        for (const std::string& sentence : said.warnings)
            remarks.warn(sentence);
    return value;
}

std::optional<double> readIfTyped(std::string_view text, const Field& field, Remarks& remarks)
{
    return readIfTyped(text, numberOf(field), remarks);
}

} // namespace korvel
