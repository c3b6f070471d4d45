// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/data/DelimitedFields.h"

#include "forms/frmTIDE/data/TideData.h"

#include <cmath>

namespace korvel
{
namespace
{

// Powers and products of such figures can still be computed. A day key may be 20021001.
constexpr double largestNumber = 1e8;

} // namespace

FieldReader::FieldReader(std::string file, std::string_view content, std::int64_t line)
    : m_file(std::move(file)), m_text(content), m_line(line)
{
}

std::string FieldReader::text()
{
    m_text.skipEmptyLines();
    // A blank belongs to a plain name, and parts a quoted one from the figure behind it.
    const DelimitedText::Item item = next(m_text.atQuote());
    if (item.flaw == DelimitedText::Item::Flaw::NotClosed) fault("the closing quote is missing.");
    return std::string(item.text);
}

double FieldReader::number()
{
    const DelimitedText::Item item = next(true);
    if (item.text.empty()) fault("the field is empty.");
    const std::optional<double> value = item.quoted ? std::nullopt : wholeNumber(item.text);
    if (!value) fault("\"" + std::string(item.text) + "\" is not a number.");
    if (std::fabs(*value) > largestNumber)
        fault("\"" + std::string(item.text) + "\" is no figure of a tide.");
    return *value;
}

bool FieldReader::atEnd()
{
    m_text.skipEmptyLines();
    return m_text.atEnd();
}

DelimitedText::Item FieldReader::next(bool blanksPart)
{
    ++m_field;
    if (atEnd()) fault("the field is missing.");
    return m_text.next(blanksPart);
}

void FieldReader::fault(const std::string& trouble) const
{
    throw TideDataFault(m_file, m_line + m_text.line() - 1, m_field, trouble);
}

} // namespace korvel
