// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/DelimitedFields.h"

#include "forms/frmTIDE/TideData.h"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace korvel
{
namespace
{

constexpr std::string_view separators = ", \t\r\n";

} // namespace

FieldReader::FieldReader(std::string file, std::string_view content, std::int64_t line)
    : m_file(std::move(file)), m_rest(content), m_line(line)
{
}

std::string FieldReader::text()
{
    ++m_field;
    skipLineEnds();
    if (m_rest.empty()) fault("the field is missing.");
    if (m_rest.front() == '"') {
        m_rest.remove_prefix(1);
        const std::string quoted(takeUntil("\""));
        if (m_rest.empty()) fault("the closing quote is missing.");
        m_rest.remove_prefix(1);
        skipSeparator();
        return quoted;
    }
    std::string_view plain = takeUntil(",\r\n");
    while (plain.ends_with(' ') || plain.ends_with('\t'))
        plain.remove_suffix(1);
    skipSeparator();
    return std::string(plain);
}

double FieldReader::number()
{
    ++m_field;
    skipLineEnds();
    if (m_rest.empty()) fault("the field is missing.");
    if (m_rest.front() == ',') fault("the field is empty.");
    std::string_view digits = m_rest;
    if (digits.starts_with('+') && !digits.starts_with("+-")) digits.remove_prefix(1);
    double value = 0;
    const char* const last = digits.data() + digits.size();
    const auto [end, error] = std::from_chars(digits.data(), last, value);
    const bool whole = end == last || separators.find(*end) != separators.npos;
    if (error != std::errc{} || !whole || !std::isfinite(value))
        fault("\"" + std::string(takeUntil(separators)) + "\" is not a number.");
    m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
    skipSeparator();
    return value;
}

bool FieldReader::atEnd()
{
    skipLineEnds();
    return m_rest.empty();
}

std::string_view FieldReader::takeUntil(std::string_view ends)
{
    const std::string_view taken = m_rest.substr(0, m_rest.find_first_of(ends));
    m_rest.remove_prefix(taken.size());
    return taken;
}

void FieldReader::skipBlanks()
{
    while (m_rest.starts_with(' ') || m_rest.starts_with('\t'))
        m_rest.remove_prefix(1);
}

void FieldReader::skipLineEnds()
{
    for (skipBlanks(); m_rest.starts_with('\r') || m_rest.starts_with('\n'); skipBlanks()) {
        if (m_rest.front() == '\n') ++m_line;
        m_rest.remove_prefix(1);
    }
}

// One comma at most: two in a row enclose an empty field.
void FieldReader::skipSeparator()
{
    skipBlanks();
    if (m_rest.starts_with(',')) m_rest.remove_prefix(1);
}

void FieldReader::fault(const std::string& trouble) const
{
    throw TideDataFault(m_file, m_line, m_field, trouble);
}

} // namespace korvel
