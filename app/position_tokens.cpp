// SPDX-License-Identifier: MIT
#include "app/position_tokens.h"

#include "app/reading.h"

#include <algorithm>

namespace korvel
{
namespace
{

using Kind = PositionToken::Kind;

constexpr std::size_t longestText = 400;
constexpr std::size_t mostTokens = 40;
constexpr std::size_t mostDigits = 15; // what a double can tell apart

struct Sign {
    std::string_view text;
    Kind kind;
    char letter = 0;
};

// The first that fits is taken: longer signs stand before their beginnings.
constexpr Sign signs[] = {
    {".-", Kind::OwnDegree},
    {"''", Kind::Second},
    {"′′", Kind::Second},
    {"’’", Kind::Second},
    {"-", Kind::Dash},
    {"–", Kind::Dash},
    {"—", Kind::Dash},
    {"‐", Kind::Dash},
    {"‑", Kind::Dash},
    {"ー", Kind::Dash},
    {"ｰ", Kind::Dash},
    {"+", Kind::Plus},
    {"°", Kind::Degree},
    {"º", Kind::Degree},
    {"˚", Kind::Degree},
    {"⁰", Kind::Degree},
    {"ﾟ", Kind::Degree},
    {"゜", Kind::Degree},
    {"*", Kind::Degree},
    {"度", Kind::Degree},
    {"'", Kind::Minute},
    {"′", Kind::Minute},
    {"’", Kind::Minute},
    {"‘", Kind::Minute},
    {"´", Kind::Minute},
    {"`", Kind::Minute},
    {"ʹ", Kind::Minute},
    {"ʼ", Kind::Minute},
    {"分", Kind::Minute},
    {"\"", Kind::Second},
    {"″", Kind::Second},
    {"”", Kind::Second},
    {"“", Kind::Second},
    {"ʺ", Kind::Second},
    {"〃", Kind::Second},
    {"秒", Kind::Second},
    {":", Kind::Colon},
    {"=", Kind::Colon},
    {",", Kind::Separator},
    {";", Kind::Separator},
    {"/", Kind::Separator},
    {"|", Kind::Separator},
    {"\n", Kind::Separator},
    {"\r", Kind::Separator},
    {"\t", Kind::Separator},
    {"、", Kind::Separator},
    {"北緯", Kind::Hemisphere, 'N'},
    {"南緯", Kind::Hemisphere, 'S'},
    {"東経", Kind::Hemisphere, 'E'},
    {"西経", Kind::Hemisphere, 'W'},
    {"緯度", Kind::AxisWord, 'N'},
    {"経度", Kind::AxisWord, 'E'},
};

constexpr std::string_view blanks[] = {" ",      "(",      ")",      "[",      "]",
                                       "\u00A0", "\u2009", "\u202F", "\u200B", "\uFEFF"};

// Longest first: a run of letters such as "degN" or "mN" is taken apart from the left.
constexpr Sign words[] = {
    {"longitude", Kind::AxisWord, 'E'},
    {"latitude", Kind::AxisWord, 'N'},
    {"degrees", Kind::Degree},
    {"minutes", Kind::Minute},
    {"seconds", Kind::Second},
    {"degree", Kind::Degree},
    {"minute", Kind::Minute},
    {"second", Kind::Second},
    {"north", Kind::Hemisphere, 'N'},
    {"south", Kind::Hemisphere, 'S'},
    {"east", Kind::Hemisphere, 'E'},
    {"west", Kind::Hemisphere, 'W'},
    {"long", Kind::AxisWord, 'E'},
    {"lat", Kind::AxisWord, 'N'},
    {"lon", Kind::AxisWord, 'E'},
    {"lng", Kind::AxisWord, 'E'},
    {"deg", Kind::Degree},
    {"min", Kind::Minute},
    {"sec", Kind::Second},
    {"d", Kind::Degree},
    {"m", Kind::Minute},
    {"n", Kind::Hemisphere, 'N'},
    {"s", Kind::Hemisphere, 'S'},
    {"e", Kind::Hemisphere, 'E'},
    {"w", Kind::Hemisphere, 'W'},
};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

class Lexer
{
public:
    explicit Lexer(std::string_view text) : m_rest(text)
    {
        m_anyLetter = std::any_of(text.begin(), text.end(), isLetter);
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
        const auto* blank = std::find_if(std::begin(blanks), std::end(blanks),
                                         [&](auto text) { return m_rest.starts_with(text); });
        if (blank == std::end(blanks)) return false;
        m_rest.remove_prefix(blank->size());
        return m_blankBefore = true;
    }

    PositionToken& add(Kind kind)
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
        PositionToken& number = add(Kind::Number);
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
                   (sign.kind == Kind::Degree || sign.kind == Kind::Minute ||
                    sign.kind == Kind::Second);
        });
    }

    bool takeSign()
    {
        if (m_rest.starts_with("-.") && !m_tokens.empty() && !m_blankBefore &&
            m_tokens.back().kind == Kind::Number) {
            add(Kind::OwnDegree);
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
        if (run.size() > 20) return false;
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
        const bool secondsDue = m_tokens.size() > 1 && m_tokens.back().kind == Kind::Number &&
                                m_tokens[m_tokens.size() - 2].kind == Kind::Minute &&
                                m_tokens[m_tokens.size() - 2].spelled;
        if (!secondsDue) return takeWord({"s", Kind::Hemisphere, 'S'});
        if (last && m_rest.front() == 'S') return false;
        return takeWord({"s", Kind::Second});
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
