// SPDX-License-Identifier: MIT
#include "almanac/magnetic_model.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

namespace almanac
{
namespace
{

constexpr double largestCoefficient = 100000; // nT; the first, of the dipole, is near 30000
constexpr double largestChange = 1000;        // nT a year

std::vector<std::string_view> wordsOf(std::string_view line)
{
    constexpr std::string_view blanks = " \t\r";
    std::vector<std::string_view> words;
    std::size_t at = line.find_first_not_of(blanks);
    while (at != std::string_view::npos) {
        const std::size_t end = std::min(line.find_first_of(blanks, at), line.size());
        words.push_back(line.substr(at, end - at));
        at = line.find_first_not_of(blanks, end);
    }
    return words;
}

bool isPrintable(std::string_view word)
{
    return std::ranges::all_of(word, [](char letter) { return letter > ' ' && letter <= '~'; });
}

} // namespace

/// Reads a coefficient file line by line and names the line that is wrong.
class CoefficientFile
{
public:
    explicit CoefficientFile(std::string_view file) : m_rest(file) {}

    MagneticModel read()
    {
        if (m_rest.size() > MagneticModel::largestFile)
            throw ModelFault("the coefficient file has more than 64 KiB: it is another file");
        readHead();
        for (int n = 1; n <= MagneticModel::degree; ++n)
            for (int m = 0; m <= n; ++m)
                readCoefficient(n, m);
        readEnd();
        return std::move(m_model);
    }

private:
    [[noreturn]] void fail(const std::string& why) const
    {
        throw ModelFault("line " + std::to_string(m_line) + " of the coefficient file: " + why);
    }

    std::vector<std::string_view> nextLine()
    {
        ++m_line;
        if (m_rest.empty()) fail("the file ends too early");
        const std::size_t end = std::min(m_rest.find('\n'), m_rest.size());
        auto words = wordsOf(m_rest.substr(0, end));
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        return words;
    }

    double number(std::string_view word, double largest) const
    {
        double value = 0;
        const char* end = word.data() + word.size();
        const auto [rest, fault] = std::from_chars(word.data(), end, value);
        if (fault != std::errc{} || rest != end || !isPrintable(word))
            fail("what should be a number is none");
        if (!(std::fabs(value) <= largest)) fail(std::string(word) + " is too large");
        return value;
    }

    void readHead()
    {
        const auto words = nextLine();
        constexpr std::size_t longestWord = 40;
        const auto isText = [](std::string_view word) {
            return word.size() <= longestWord && isPrintable(word);
        };
        if (words.size() != 3 || !std::ranges::all_of(words, isText))
            fail("epoch, name and date of release are due");
        m_model.m_epoch = number(words[0], 2200);
        if (m_model.m_epoch < 1900) fail(std::string(words[0]) + " is no year of an edition");
        m_model.m_name = words[1];
    }

    void readCoefficient(int n, int m)
    {
        const std::string due = std::to_string(n) + " " + std::to_string(m);
        const auto words = nextLine();
        if (words.size() != 6) fail("degree, order and four numbers are due (" + due + ")");
        if (number(words[0], 1000) != n || number(words[1], 1000) != m)
            fail("degree and order " + due + " are due");
        m_model.m_coefficients[MagneticModel::indexOf(n, m)] = {
            number(words[2], largestCoefficient), number(words[3], largestCoefficient),
            number(words[4], largestChange), number(words[5], largestChange)};
    }

    // Without its end a file may have been cut within the last number.
    void readEnd()
    {
        const auto words = nextLine();
        constexpr std::size_t fewestNines = 8;
        const bool isEnd = words.size() == 1 && words[0].size() >= fewestNines &&
                           words[0].find_first_not_of('9') == std::string_view::npos;
        if (!isEnd) fail("the line of 9s that ends the coefficients of degree 12 is due");
    }

    MagneticModel m_model;
    std::string_view m_rest;
    int m_line{};
};

MagneticModel MagneticModel::read(std::string_view file)
{
    return CoefficientFile(file).read();
}

} // namespace almanac
