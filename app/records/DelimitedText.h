// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korvel
{

/// Takes items one after the other from delimited text: settings records and the tide's data. An
/// item ends at a comma or a line end (CR LF, LF or CR) and may stand between double quotes, where
/// commas belong to it; blanks around it do not.
class DelimitedText
{
public:
    struct Item {
        enum class Flaw { None, NotClosed, GoesOn }; ///< GoesOn: more text behind the closing quote
        std::string_view text;                       ///< without quotes
        bool quoted = false;
        Flaw flaw = Flaw::None;
    };

    /// @param text must outlive the items; a byte-order mark in front is passed over
    explicit DelimitedText(std::string_view text);

    /// True when no item is left: a line end behind the last one begins none.
    bool atEnd() const { return m_rest.empty(); }

    /// Takes the next item together with the one comma or line end behind it. An item
    /// that is not closed ends at the latest with its line.
    /// @param blanksPart whether a blank parts items too
    Item next(bool blanksPart = false);

    /// True when another item stands on the line of the last one taken; behind a last comma an
    /// empty one does.
    bool lineGoesOn() const { return m_lineGoesOn; }

    /// True when the next item stands between quotes.
    bool atQuote();

    /// Passes over what is left of the line of the last item taken.
    void skipLine();

    /// Passes over blanks and empty lines, for texts in which they mean nothing.
    void skipEmptyLines();

    /// The line on which the last item taken began, 1 for the first; before that 1.
    int line() const { return m_itemLine; }

private:
    void skipBlanks();
    void takeSeparator();

    std::string_view m_rest;
    int m_line = 1;
    int m_itemLine = 1;
    bool m_lineGoesOn = false; ///< the last item taken did not end its line
};

/// A number that takes up the whole text, its point a point; nothing for anything else, infinities
/// included.
std::optional<double> wholeNumber(std::string_view text);

} // namespace korvel
