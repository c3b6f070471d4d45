// SPDX-License-Identifier: MIT
#include "forms/frmCompass/pages/BookTable.h"

#include "shell/machine/AsQString.h"

#include <algorithm>
#include <array>

namespace korvel
{
namespace
{

using Texts = CompassLineTexts;
using Column = TextTable::Column;

constexpr const char* ofErrors = "000.0 W";
constexpr Column UTC{"UTC", "0000/00/00 00:00"};
constexpr Column position{"Position", "00°00.0' N 000°00.0' W"};
constexpr Column body{"Body", "Sun, amplitude", false};
constexpr Column trueBearing{"True", "000.0"};
constexpr Column variation{"Variation", ofErrors};
constexpr Column by{"By", "2/O Smith", false};
constexpr Column remark{"Remark", "a word or two", false};

constexpr std::array ofAll{UTC,
                           position,
                           body,
                           trueBearing,
                           variation,
                           Column{"Gyro", ofErrors},
                           Column{"Standard", ofErrors},
                           Column{"deviation", ofErrors},
                           Column{"Steering", ofErrors},
                           Column{"deviation", ofErrors},
                           by,
                           remark};
constexpr std::array ofOne{UTC,
                           position,
                           body,
                           trueBearing,
                           Column{"Bearing", "by heads"},
                           Column{"Head", "000.0"},
                           Column{"Error", ofErrors},
                           variation,
                           Column{"Deviation", ofErrors},
                           by,
                           remark};

/// The texts of a row, in the order of its columns.
std::vector<std::string> rowOf(const CompassLine& line, std::optional<CompassKind> kind)
{
    const Texts texts = compassLineTexts(line);
    return kind ? rowOfOne(texts, *kind) : rowOfAll(texts);
}

} // namespace

BookTable::BookTable(QWidget* parent) : TextTable(parent, "tblBook", "Lines of the compass book") {}

void BookTable::show(const CompassBook& book, std::optional<CompassKind> kind)
{
    m_order = compassLines(book, kind);
    const auto columns = kind ? std::span<const Column>(ofOne) : std::span<const Column>(ofAll);
    showRows(columns, m_order.size(), [this, &book, kind](std::size_t row, std::size_t column) {
        return asQString(rowOf(book[m_order[row]], kind)[column]);
    });
}

std::optional<std::size_t> BookTable::chosen() const
{
    const auto row = chosenRow();
    if (!row) return std::nullopt;
    return m_order.at(*row);
}

void BookTable::choose(std::size_t line)
{
    const auto at = std::ranges::find(m_order, line);
    if (at != m_order.end()) chooseRow(static_cast<std::size_t>(at - m_order.begin()));
}

} // namespace korvel
