// SPDX-License-Identifier: MIT
#include "app/reading/PositionTokens.h"

#include "app/reading/Ascii.h"
#include "app/reading/Reading.h"

#include <algorithm>

namespace korvel
{
namespace
{

using TokenKind = PositionToken::Kind;

constexpr std::size_t longestText = 400;
constexpr std::size_t mostTokens = 40;
constexpr std::size_t mostDigits = 15; // what a double can tell apart

struct Sign {
    std::string_view text;
    TokenKind kind;
    char letter = 0;
};

// The first that fits is taken: longer signs stand before their beginnings.
constexpr Sign signs[] = {
    {".-", TokenKind::OwnDegree},
    {"''", TokenKind::Second},
    {"′′", TokenKind::Second},
    {"’’", TokenKind::Second},
    {"-", TokenKind::Dash},
    {"–", TokenKind::Dash},
    {"—", TokenKind::Dash},
    {"‐", TokenKind::Dash},
    {"‑", TokenKind::Dash},
    {"ー", TokenKind::Dash},
    {"ｰ", TokenKind::Dash},
    {"+", TokenKind::Plus},
    {"°", TokenKind::Degree},
    {"º", TokenKind::Degree},
    {"˚", TokenKind::Degree},
    {"⁰", TokenKind::Degree},
    {"ﾟ", TokenKind::Degree},
    {"゜", TokenKind::Degree},
    {"*", TokenKind::Degree},
    {"度", TokenKind::Degree},
    {"'", TokenKind::Minute},
    {"′", TokenKind::Minute},
    {"’", TokenKind::Minute},
    {"‘", TokenKind::Minute},
    {"´", TokenKind::Minute},
    {"`", TokenKind::Minute},
    {"ʹ", TokenKind::Minute},
    {"ʼ", TokenKind::Minute},
    {"分", TokenKind::Minute},
    {"\"", TokenKind::Second},
    {"″", TokenKind::Second},
    {"”", TokenKind::Second},
    {"“", TokenKind::Second},
    {"ʺ", TokenKind::Second},
    {"〃", TokenKind::Second},
    {"秒", TokenKind::Second},
    {":", TokenKind::Colon},
    {"=", TokenKind::Colon},
    {",", TokenKind::Separator},
    {";", TokenKind::Separator},
    {"/", TokenKind::Separator},
    {"|", TokenKind::Separator},
    {"\n", TokenKind::Separator},
    {"\r", TokenKind::Separator},
    {"\t", TokenKind::Separator},
    {"、", TokenKind::Separator},
    {"北緯", TokenKind::Hemisphere, 'N'},
    {"南緯", TokenKind::Hemisphere, 'S'},
    {"東経", TokenKind::Hemisphere, 'E'},
    {"西経", TokenKind::Hemisphere, 'W'},
    {"緯度", TokenKind::AxisWord, 'N'},
    {"経度", TokenKind::AxisWord, 'E'},
};

constexpr std::string_view blankSigns[] = {" ",      "(",      ")",      "[",      "]",
                                           "\u00A0", "\u2009", "\u202F", "\u200B", "\uFEFF"};

// Longest first: a run of letters such as "degN" or "mN" is taken apart from the left.
constexpr Sign words[] = {
    {"longitude", TokenKind::AxisWord, 'E'},
    {"latitude", TokenKind::AxisWord, 'N'},
    {"degrees", TokenKind::Degree},
    {"minutes", TokenKind::Minute},
    {"seconds", TokenKind::Second},
    {"degree", TokenKind::Degree},
    {"minute", TokenKind::Minute},
    {"second", TokenKind::Second},
    {"north", TokenKind::Hemisphere, 'N'},
    {"south", TokenKind::Hemisphere, 'S'},
    {"east", TokenKind::Hemisphere, 'E'},
    {"west", TokenKind::Hemisphere, 'W'},
    {"long", TokenKind::AxisWord, 'E'},
    {"lat", TokenKind::AxisWord, 'N'},
    {"lon", TokenKind::AxisWord, 'E'},
    {"lng", TokenKind::AxisWord, 'E'},
    {"deg", TokenKind::Degree},
    {"min", TokenKind::Minute},
    {"sec", TokenKind::Second},
    {"d", TokenKind::Degree},
    {"m", TokenKind::Minute},
    {"n", TokenKind::Hemisphere, 'N'},
    {"s", TokenKind::Hemisphere, 'S'},
    {"e", TokenKind::Hemisphere, 'E'},
    {"w", TokenKind::Hemisphere, 'W'},
};

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

class Lexer
{
public:
    explicit Lexer(std::string_view text) : m_rest(text)
    {
        m_anyLetter = std::ranges::any_of(text, isLetter);
    }

    std::optional<std::vector<PositionToken>> run()
    {
        while (!m_rest.empty()) {
            if (takeBlank()) continue;
            if (m_tokens.size() == mostTokens) return std::nullopt;
            if (!(startsNumber()             ? takeNumber()
                  : isLetter(m_rest.front()) ? takeWords()
                                             : takeSign()))
                return std::nullopt;
            m_blankBefore = false;
        }
        return std::move(m_tokens);
    }

private:
    bool takeBlank()
    {
        const auto* blank = std::find_if(std::begin(blankSigns), std::end(blankSigns),
                                         [&](auto text) { return m_rest.starts_with(text); });
        if (blank == std::end(blankSigns)) return false;
        m_rest.remove_prefix(blank->size());
        return m_blankBefore = true;
    }

    PositionToken& add(TokenKind kind)
    {
        m_tokens.push_back({.kind = kind, .digits = {}, .decimals = {}});
        m_tokens.back().attached = !m_blankBefore && m_tokens.size() > 1;
        return m_tokens.back();
    }

    bool startsNumber() const
    {
        return isDigit(m_rest[0]) || (m_rest[0] == '.' && m_rest.size() > 1 && isDigit(m_rest[1]));
    }

    std::string takeDigits()
    {
        std::size_t length = 0;
        while (length < m_rest.size() && isDigit(m_rest[length]))
            ++length;
        std::string digits(m_rest.substr(0, length));
        m_rest.remove_prefix(length);
        return digits;
    }

    bool takeNumber()
    {
        PositionToken& number = add(TokenKind::Number);
        number.digits = takeDigits();
        if (m_rest.size() > 1 && isDigit(m_rest[1]) && (m_rest[0] == '.' || isDecimalComma())) {
            m_rest.remove_prefix(1);
            number.decimals = takeDigits();
        } else if (m_rest == ".") {
            m_rest = {};
        }
        return number.digits.size() + number.decimals.size() <= mostDigits;
    }

    /// Half the world writes 35°30,5'N. A comma between digits is a point when a unit or letter
    /// follows; between the two halves of a pair another number does.
    bool isDecimalComma() const
    {
        if (m_rest[0] != ',') return false;
        std::string_view after = m_rest.substr(1);
        while (!after.empty() && isDigit(after.front()))
            after.remove_prefix(1);
        while (after.starts_with(' '))
            after.remove_prefix(1);
        if (after.empty() || isLetter(after.front())) return m_anyLetter;
        return std::any_of(std::begin(signs), std::end(signs), [&](const Sign& sign) {
            return after.starts_with(sign.text) &&
                   (sign.kind == TokenKind::Degree || sign.kind == TokenKind::Minute ||
                    sign.kind == TokenKind::Second);
        });
    }

    bool takeSign()
    {
        if (m_rest.starts_with("-.") && !m_tokens.empty() && !m_blankBefore &&
            m_tokens.back().kind == TokenKind::Number) {
            add(TokenKind::OwnDegree);
            m_rest.remove_prefix(2);
            return true;
        }
        for (const Sign& sign : signs) {
            if (!m_rest.starts_with(sign.text)) continue;
            add(sign.kind).letter = sign.letter;
            m_rest.remove_prefix(sign.text.size());
            return true;
        }
        return false;
    }

    bool takeWords()
    {
        std::string run;
        while (run.size() < m_rest.size() && isLetter(m_rest[run.size()]))
            run += lower(m_rest[run.size()]);
        for (std::string_view left = run; !left.empty();) {
            const auto* word = std::find_if(std::begin(words), std::end(words), [&](const Sign& w) {
                return left.starts_with(w.text);
            });
            if (word == std::end(words)) return false;
            const bool last = left.size() == word->text.size();
            if (word->text == "s" ? !takeLetterS(last) : !takeWord(*word)) return false;
            left.remove_prefix(word->text.size());
            m_rest.remove_prefix(word->text.size());
            m_blankBefore = false;
        }
        return true;
    }

    bool takeWord(const Sign& word)
    {
        PositionToken& token = add(word.kind);
        token.letter = word.letter;
        token.spelled = true;
        return true;
    }

    /// South, or seconds in 35d30m30s. What could be either is refused: it decides a hemisphere.
    bool takeLetterS(bool last)
    {
        const bool secondsDue = m_tokens.size() > 1 && m_tokens.back().kind == TokenKind::Number &&
                                m_tokens[m_tokens.size() - 2].kind == TokenKind::Minute &&
                                m_tokens[m_tokens.size() - 2].spelled;
        if (!secondsDue) return takeWord({"s", TokenKind::Hemisphere, 'S'});
        if (last && m_rest.front() == 'S') return false;
        return takeWord({"s", TokenKind::Second});
    }

    std::string_view m_rest;
    std::vector<PositionToken> m_tokens;
    bool m_blankBefore = false;
    bool m_anyLetter = false;
};

} // namespace

std::optional<std::vector<PositionToken>> positionTokens(std::string_view text)
{
    if (text.size() > longestText) return std::nullopt;
    return Lexer(asciiForms(text)).run();
}

} // namespace korvel
