// SPDX-License-Identifier: MIT
#include "app/records/DelimitedText.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace korvel
{
namespace
{

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view spaceAndTab = " \t";

} // namespace

DelimitedText::DelimitedText(std::string_view text) : m_rest(text)
{
    if (m_rest.starts_with(byteOrderMark)) m_rest.remove_prefix(byteOrderMark.size());
}

DelimitedText::Item DelimitedText::next(bool blanksPart)
{
    skipBlanks();
    m_itemLine = m_line;
    Item item;
    if (m_rest.starts_with('"')) {
        item.quoted = true;
        const std::size_t close = m_rest.find_first_of("\"\r\n", 1);
        item.text = m_rest.substr(1, std::min(close, m_rest.size()) - 1);
        m_rest.remove_prefix(std::min(item.text.size() + 1, m_rest.size()));
        if (!m_rest.starts_with('"')) {
            item.flaw = Item::Flaw::NotClosed;
        } else {
            m_rest.remove_prefix(1);
            skipBlanks();
            if (!blanksPart && !m_rest.empty() && m_rest.find_first_of(",\r\n") != 0)
                item.flaw = Item::Flaw::GoesOn;
        }
    } else {
        item.text = m_rest.substr(0, m_rest.find_first_of(blanksPart ? ", \t\r\n" : ",\r\n"));
        m_rest.remove_prefix(item.text.size());
        item.text = item.text.substr(0, item.text.find_last_not_of(spaceAndTab) + 1);
        skipBlanks();
    }
    takeSeparator();
    return item;
}

bool DelimitedText::atQuote()
{
    skipBlanks();
    return m_rest.starts_with('"');
}

void DelimitedText::skipLine()
{
    if (!m_lineGoesOn) return;
    m_rest.remove_prefix(std::min(m_rest.find_first_of("\r\n"), m_rest.size()));
    takeSeparator();
}

void DelimitedText::skipEmptyLines()
{
    for (skipBlanks(); m_rest.starts_with('\r') || m_rest.starts_with('\n'); skipBlanks())
        takeSeparator();
}

void DelimitedText::skipBlanks()
{
    m_rest.remove_prefix(std::min(m_rest.find_first_not_of(spaceAndTab), m_rest.size()));
}

void DelimitedText::takeSeparator()
{
    if (m_rest.starts_with(',')) {
        m_rest.remove_prefix(1);
        m_lineGoesOn = true;
        return;
    }
    const std::size_t lineEnd = m_rest.starts_with("\r\n")                             ? 2
                                : m_rest.starts_with('\r') || m_rest.starts_with('\n') ? 1
                                                                                       : 0;
    m_rest.remove_prefix(lineEnd);
    if (lineEnd > 0) ++m_line;
    m_lineGoesOn = lineEnd == 0 && !m_rest.empty(); // the text may end without a line end
}

std::optional<double> wholeNumber(std::string_view text)
{
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    double number = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    if (error != std::errc() || end != last || !std::isfinite(number)) return std::nullopt;
    return number;
}

} // namespace korvel
