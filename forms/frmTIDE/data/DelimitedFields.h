// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/DelimitedText.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace korvel
{

/// Takes fields one after the other from a data file's text: separated by commas, blanks or line
/// ends, numbers with a decimal point, a text quoted or ending at the next comma or line end.
/// Every fault is a TideDataFault that names file, line and field.
class FieldReader
{
public:
    /// @param file name for faults
    /// @param content must outlive the reader
    /// @param line number of the content's first line
    FieldReader(std::string file, std::string_view content, std::int64_t line);

    std::string text();
    /// @return a number that can be computed with, 1e8 at most
    double number();

    /// True when nothing but blanks and line ends is left.
    bool atEnd();

private:
    DelimitedText::Item next(bool blanksPart);
    [[noreturn]] void fault(const std::string& trouble) const;

    std::string m_file;
    DelimitedText m_text;
    std::int64_t m_line;
    int m_field{};
};

} // namespace korvel
