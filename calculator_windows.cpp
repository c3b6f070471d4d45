// SPDX-License-Identifier: MIT
#include "calculator_windows.h"

#include "forms/conversion/ConversionWindow.h"
#include "forms/frmCDDR/frmCDDR.h"
#include "forms/frmCRUDE/frmCRUDE.h"
#include "forms/frmCompass/frmCompass.h"
#include "forms/frmETA/frmETA.h"
#include "forms/frmGC2000/frmGC2000.h"
#include "forms/frmNoon/frmNoon.h"
#include "forms/frmPassage/frmPassage.h"
#include "forms/frmPositionRecord/frmPositionRecord.h"
#include "forms/frmSky/frmSky.h"
#include "forms/frmSunMoon/frmSunMoon.h"
#include "forms/frmSunSight/frmSunSight.h"
#include "forms/frmTIDE/frmTIDE.h"
#include "forms/frmTanks/frmTanks.h"
#include "forms/frmUKC/frmUKC.h"
#include "forms/frmWeather/frmWeather.h"
#include "forms/frmWind/frmWind.h"
#include "navlib/ship/unit_tables.h"
#include "shell/machine/AsQString.h"

namespace korvel
{
namespace
{

template <typename Window>
CatalogueEntry window(const char* menu, int index, const char* name, const char* caption)
{
    return {menu, index, name, caption, [](Program& program) { return new Window(program); },
            {},   false};
}

CatalogueEntry withPlaces(CatalogueEntry entry,
                          std::function<std::vector<CatalogueEntry::Place>()> places)
{
    entry.places = std::move(places);
    return entry;
}

/// The first of a menu that came after those which the menu has always had.
CatalogueEntry behindALine(CatalogueEntry entry)
{
    entry.isBehindLine = true;
    return entry;
}

/// A conversion window, with its units by the names of their boxes.
CatalogueEntry withUnits(CatalogueEntry entry, const char* box, NavFunc113::Quantity quantity)
{
    return withPlaces(std::move(entry), [box, quantity] {
        std::vector<CatalogueEntry::Place> units;
        for (const NavFunc113::Unit& unit : NavFunc113::UnitTable(quantity))
            units.push_back({asQString(unit.caption),
                             QString("%1(%2)").arg(box).arg(static_cast<int>(units.size())),
                             asQString(unit.symbol)});
        return units;
    });
}

} // namespace

WindowCatalogue calculatorWindows()
{
    using NavFunc113::Quantity;
    return {
        window<frmCDDR>("mnuNAV", 1, "frmCDDR", "&Course, distance and dead reckoning"),
        window<frmGC2000>("mnuNAV", 2, "frmGC2000", "&Great circle"),
        window<frmSunMoon>("mnuNAV", 3, "frmSunMoon", "Sun and &moon, rise and set"),
        window<frmPositionRecord>("mnuWATCH", 1, "frmPositionRecord", "&Position record"),
        window<frmSunSight>("mnuWATCH", 2, "frmSunSight", "&Sun sight"),
        window<frmETA>("mnuWATCH", 3, "frmETA", "&ETA"),
        window<frmWind>("mnuWATCH", 4, "frmWind", "True &wind"),
        window<frmWeather>("mnuWATCH", 5, "frmWeather", "We&ather"),
        window<frmCRUDE>("mnuCONV", 1, "frmCRUDE", "Crude &oil"),
        withUnits(window<frmLength>("mnuCONV", 2, "frmLength", "&Length"), "txtLength",
                  Quantity::Length),
        withUnits(window<frmVolume>("mnuCONV", 3, "frmVolume", "&Volume"), "txtVolume",
                  Quantity::Volume),
        withUnits(window<frmArea>("mnuCONV", 4, "frmArea", "A&rea"), "txtArea", Quantity::Area),
        withUnits(window<frmWeight>("mnuCONV", 5, "frmWeight", "We&ight"), "txtWeight",
                  Quantity::Weight),
        withUnits(window<frmPressure>("mnuCONV", 6, "frmPressure", "Press&ure"), "txtPressure",
                  Quantity::Pressure),
        withPlaces(window<frmTIDE>("mnuTide", 0, "frmTIDE", "&Tide and tidal stream"),
                   frmTIDE::stationsToGoTo),
        behindALine(withPlaces(window<frmCompass>("mnuWATCH", 6, "frmCompass", "Compass error"),
                               frmCompass::pagesToGoTo)),
        // Behind the others: these keep their keys.
        behindALine(window<frmPassage>("mnuNAV", 4, "frmPassage", "Passage pla&n")),
        window<frmNoon>("mnuWATCH", 7, "frmNoon", "Noon report"),
        window<frmUKC>("mnuWATCH", 8, "frmUKC", "Under-keel clearance"),
        withPlaces(window<frmSky>("mnuNAV", 5, "frmSky", "Twilig&ht and stars"),
                   frmSky::pagesToGoTo),
        behindALine(withPlaces(window<frmTanks>("mnuCONV", 7, "frmTanks", "Tank list and bunkers"),
                               frmTanks::pagesToGoTo)),
        withUnits(window<frmTemperature>("mnuCONV", 8, "frmTemperature", "Temperature"),
                  "txtTemperature", Quantity::Temperature),
        withUnits(window<frmSpeed>("mnuCONV", 9, "frmSpeed", "Speed"), "txtSpeed", Quantity::Speed),
        withUnits(window<frmDensity>("mnuCONV", 10, "frmDensity", "Density"), "txtDensity",
                  Quantity::Density),
        withUnits(window<frmFlow>("mnuCONV", 11, "frmFlow", "Flow and consumption"), "txtFlow",
                  Quantity::Flow),
        withUnits(window<frmEnergy>("mnuCONV", 12, "frmEnergy", "Energy and power"), "txtEnergy",
                  Quantity::Energy),
        withUnits(window<frmAngle>("mnuCONV", 13, "frmAngle", "Angle and time"), "txtAngle",
                  Quantity::Angle),
    };
}

} // namespace korvel
