// SPDX-License-Identifier: MIT
#include "app/reading/PositionCoordinate.h"

#include <utility>

namespace korvel
{
namespace
{

using TokenKind = PositionToken::Kind;

class CoordinateReader
{
public:
    explicit CoordinateReader(std::vector<PositionToken> tokens) : m_tokens(std::move(tokens)) {}

    bool atEnd() const { return m_next == m_tokens.size(); }
    bool skip(TokenKind kind)
    {
        if (!is(kind)) return false;
        ++m_next;
        return true;
    }

    std::optional<Coordinate> coordinate()
    {
        Coordinate c;
        takePrefix(c);
        if (is(TokenKind::Dash) || is(TokenKind::Plus)) {
            c.sign = true;
            c.negative = is(TokenKind::Dash);
            ++m_next;
        }
        if (!is(TokenKind::Number)) return std::nullopt;
        c.numbers.push_back(m_tokens[m_next++]);
        if (isOwnForm(c)) {
            takeOwnForm(c);
        } else {
            c.degreeSign = skip(TokenKind::Degree);
            if (c.numbers[0].decimals.empty()) takeMinutes(c);
        }
        if (is(TokenKind::Minute) || is(TokenKind::Second))
            return std::nullopt; // belongs to no number
        takeSuffix(c);
        if (c.letter && (c.sign || (c.word && axisOfLetter(c.word) != axisOfLetter(c.letter))))
            return std::nullopt;
        return c;
    }

private:
    bool is(TokenKind kind, std::size_t ahead = 0) const
    {
        return m_next + ahead < m_tokens.size() && m_tokens[m_next + ahead].kind == kind;
    }

    void takePrefix(Coordinate& c)
    {
        if (is(TokenKind::AxisWord)) {
            c.word = m_tokens[m_next++].letter;
            while (is(TokenKind::Colon) || is(TokenKind::Separator))
                ++m_next;
        }
        if (is(TokenKind::Hemisphere)) {
            c.letter = m_tokens[m_next++].letter;
            skip(TokenKind::Colon);
        }
    }

    /// What the program's own labels show: 35.30'5N, 35-.30'5N, 35.-30'5N.
    bool isOwnForm(const Coordinate& c) const
    {
        const auto fractionAt = [&](std::size_t ahead) {
            return is(TokenKind::Number, ahead) && m_tokens[m_next + ahead].attached &&
                   m_tokens[m_next + ahead].decimals.empty();
        };
        if (is(TokenKind::OwnDegree))
            return is(TokenKind::Number, 1) && is(TokenKind::Minute, 2) && fractionAt(3);
        return c.numbers[0].decimals.size() == 2 && is(TokenKind::Minute) && fractionAt(1);
    }

    void takeOwnForm(Coordinate& c)
    {
        if (skip(TokenKind::OwnDegree)) {
            c.numbers.push_back(m_tokens[m_next++]);
        } else {
            PositionToken minutes = c.numbers[0];
            minutes.digits = std::exchange(minutes.decimals, {});
            c.numbers[0].decimals.clear();
            c.numbers.push_back(minutes);
        }
        ++m_next; // the minute sign, which stands where the point is
        c.numbers[1].decimals = m_tokens[m_next++].digits;
    }

    void takeMinutes(Coordinate& c)
    {
        const bool dash = is(TokenKind::Dash) && is(TokenKind::Number, 1);
        c.colon = !c.degreeSign && is(TokenKind::Colon) && is(TokenKind::Number, 1);
        if (dash || c.colon) ++m_next;
        if (!startsPart()) return;
        c.onlyBlanks = !c.degreeSign && !dash && !c.colon;
        c.numbers.push_back(m_tokens[m_next++]);
        const bool minuteSign = takeUnit(TokenKind::Minute, c.numbers.back());
        c.onlyBlanks = c.onlyBlanks && !minuteSign;
        if (!c.numbers.back().decimals.empty()) return;

        // Seconds follow as the minutes did; 35-30 139-45 are two coordinates.
        if (!minuteSign && (dash || c.colon)) {
            if (!is(dash ? TokenKind::Dash : TokenKind::Colon) || !is(TokenKind::Number, 1)) return;
            ++m_next;
        }
        if (!startsPart()) return;
        c.numbers.push_back(m_tokens[m_next++]);
        takeUnit(TokenKind::Second, c.numbers.back());
    }

    /// A number that is not the degrees of the next coordinate.
    bool startsPart() const
    {
        return is(TokenKind::Number) && !is(TokenKind::Degree, 1) && !is(TokenKind::OwnDegree, 1);
    }

    /// The unit of a number; 30'.5 means 30.5'.
    bool takeUnit(TokenKind unit, PositionToken& number)
    {
        if (!skip(unit)) return false;
        if (number.decimals.empty() && is(TokenKind::Number) && m_tokens[m_next].attached &&
            m_tokens[m_next].digits.empty())
            number.decimals = m_tokens[m_next++].decimals;
        return true;
    }

    void takeSuffix(Coordinate& c)
    {
        if (c.letter) return;
        // Instruments' sentences set the letter apart: 3530.5,N,13945.2,E
        const bool apart = is(TokenKind::Separator) && is(TokenKind::Hemisphere, 1) &&
                           (is(TokenKind::Separator, 2) || m_next + 2 == m_tokens.size());
        if (apart) ++m_next;
        if (!is(TokenKind::Hemisphere)) return;
        c.letter = m_tokens[m_next++].letter;
        c.suffix = true;
    }

    std::vector<PositionToken> m_tokens;
    std::size_t m_next = 0;
};

} // namespace

Axis axisOfLetter(char letter)
{
    return letter == 'N' || letter == 'S' ? Axis::Latitude : Axis::Longitude;
}

std::optional<std::vector<Coordinate>> readCoordinates(std::string_view text)
{
    auto tokens = positionTokens(text);
    if (!tokens) return std::nullopt;
    while (!tokens->empty() && tokens->back().kind == TokenKind::Separator)
        tokens->pop_back();
    CoordinateReader reader(std::move(*tokens));
    std::vector<Coordinate> found;
    while (reader.skip(TokenKind::Separator)) {
    }
    while (!reader.atEnd()) {
        const auto coordinate = reader.coordinate();
        if (!coordinate || found.size() == 2) return std::nullopt;
        found.push_back(*coordinate);
        while (reader.skip(TokenKind::Separator)) {
        }
        if (coordinate->suffix) reader.skip(TokenKind::Dash); // 35-30.5N - 139-45.2E
    }
    if (found.empty()) return std::nullopt;
    return found;
}

} // namespace korvel
