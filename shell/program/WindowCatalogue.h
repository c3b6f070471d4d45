// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace korvel
{

class CalculatorWindow;
class Program;

/// A calculator window as the main window's menus, the links of the other windows and whoever makes
/// it know it.
struct CatalogueEntry {
    QString menu;    ///< the menu that holds its entry, "mnuNAV"; for index 0 the entry itself
    int index;       ///< number in the menu's array, from 1; 0: an entry that is no array
    QString name;    ///< class name, "frmGC2000"
    QString caption; ///< menu caption; no two of a program's windows share a mnemonic, because the
                     ///< links menu of a window holds all the others
    std::function<CalculatorWindow*(Program&)> make;

    /// A place in the window that can be gone to by its name.
    struct Place {
        QString caption;     ///< "Yokohama", "Nautical miles"
        QString place;       ///< as the window calls it
        QString symbol = {}; ///< "nm", which finds it whole
    };
    std::function<std::vector<Place>()> places = nullptr;
    bool isBehindLine = false; ///< a line parts its entry from those before it

    QString entryName() const { return index > 0 ? QString("%1(%2)").arg(menu).arg(index) : menu; }
};

/// The calculator windows of a program, in menu order.
using WindowCatalogue = std::vector<CatalogueEntry>;

} // namespace korvel
