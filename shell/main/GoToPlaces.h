// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <vector>

class QWidget;

namespace korvel
{

class CalculatorWindows;
class HelpDesk;

/// Somewhere that can be gone to by its name.
struct GoToPlace {
    QString name;             ///< "Yokohama"
    QString where;            ///< "Tide and tidal stream"
    std::function<void()> go; ///< after the box has closed
    QString symbol = {};      ///< a short name, which is found whole: "nm"
};

/// Everywhere: windows, the menu entries of the window in hand that can be chosen now, stations and
/// units, heads of the manual.
/// @param windows, help must outlive what is gone to
/// @param from     the window in hand; its entries are those of a menu bar
std::vector<GoToPlace> placesToGo(CalculatorWindows& windows, QWidget& from, HelpDesk& help);

/// The places whose name holds all the typed words, those that begin with them first, then those
/// with a word that does. A whole symbol comes before them; less than three letters find windows
/// and symbols alone.
std::vector<const GoToPlace*> findPlaces(const std::vector<GoToPlace>& places,
                                         const QString& typed);

} // namespace korvel
