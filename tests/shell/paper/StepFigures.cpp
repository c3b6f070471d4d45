// SPDX-License-Identifier: MIT
#include "tests/shell/paper/StepFigures.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace korvel
{
namespace
{

constexpr double degree = std::numbers::pi / 180;

struct NotFigures {
};

/// Reads a sum of products; one number of it can be taken a little larger than it is written.
class Figures
{
public:
    Figures(std::string text, int changed) : m_text(std::move(text)), m_changed(changed) {}

    double value()
    {
        const double all = sum();
        if (!isAt("") || m_at != m_text.size()) throw NotFigures();
        return all;
    }

    int numbers() const { return m_numbers; }
    bool isDirection() const { return m_isDirection; }

private:
    bool isAt(const std::string& sign)
    {
        while (m_at < m_text.size() && m_text[m_at] == ' ')
            ++m_at;
        return m_text.compare(m_at, sign.size(), sign) == 0;
    }

    bool take(const std::string& sign)
    {
        const bool isThere = isAt(sign);
        if (isThere) m_at += sign.size();
        return isThere;
    }

    void need(const std::string& sign)
    {
        if (!take(sign)) throw NotFigures();
    }

    double sum()
    {
        double all = product();
        for (;;)
            if (take("+"))
                all += product();
            else if (take("-"))
                all -= product();
            else
                return all;
    }

    double product()
    {
        double all = power();
        for (;;)
            if (take("×"))
                all *= power();
            else if (take("/"))
                all /= power();
            else
                return all;
    }

    double power()
    {
        if (take("-")) return -power();
        double base = atom();
        for (;;)
            if (take("²"))
                base *= base;
            else if (!take("°") && !take("'"))
                return base;
    }

    double function(double (*of)(double), double scale)
    {
        const bool isSquare = take("²");
        const double value = of(power() * scale);
        return isSquare ? value * value : value;
    }

    double atom()
    {
        const auto plain = [this](double (*of)(double)) { return of(power()); };
        if (take("arcsin")) return plain([](double x) { return std::asin(x) / degree; });
        if (take("arccos")) return plain([](double x) { return std::acos(x) / degree; });
        if (take("arctan")) {
            m_isDirection = true;
            return plain([](double x) { return std::atan(x) / degree; });
        }
        if (take("sin")) return function(std::sin, degree);
        if (take("cos")) return function(std::cos, degree);
        if (take("tan")) return function(std::tan, degree);
        if (take("log")) return plain(std::log10);
        if (take("exp")) return plain(std::exp);
        if (take("erfc")) return plain(std::erfc);
        if (take("√")) return plain(std::sqrt);
        if (take("min(1,")) return std::min(1.0, closed(")"));
        if (take("(")) return closed(")");
        if (take("|")) return std::fabs(closed("|"));
        return number();
    }

    double closed(const std::string& end)
    {
        const double inside = sum();
        need(end);
        return inside;
    }

    double number()
    {
        std::size_t end = m_at;
        while (end < m_text.size() && (std::isdigit(static_cast<unsigned char>(m_text[end])) ||
                                       (m_text[end] == '.' && end > m_at)))
            ++end;
        if (end == m_at) throw NotFigures();
        const std::string digits = m_text.substr(m_at, end - m_at);
        m_at = end;
        const std::size_t point = digits.find('.');
        double read = std::stod(digits);
        // A whole number and a short one are exact.
        if (m_numbers++ == m_changed && point != digits.npos && digits.size() - point > 3)
            read += 0.5 * std::pow(10, -static_cast<double>(digits.size() - point - 1));
        return read;
    }

    std::string m_text;
    int m_changed;
    int m_numbers = 0;
    std::size_t m_at = 0;
    bool m_isDirection = false;
};

} // namespace

std::optional<WorkedFigures> worked(const std::string& figures)
{
    try {
        Figures plain(figures, -1);
        WorkedFigures found{plain.value(), 0, plain.isDirection()};
        for (int changed = 0; changed < plain.numbers(); ++changed)
            found.rounding += std::fabs(Figures(figures, changed).value() - found.value);
        return found;
    } catch (const NotFigures&) {
        return std::nullopt;
    }
}

} // namespace korvel
