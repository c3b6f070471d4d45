// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Result.h"
#include "forms/frmCRUDE/CalculateCrude.h"

#include <array>

namespace korvel
{

/// A figure of the cargo, on the screen and on paper.
struct CrudeFigure {
    Result<CrudeResult> shown;     ///< no caption: beside the figure before it
    const char* onPaper = nullptr; ///< its name there; nullptr: another figure tells it
    const char* unit = "";         ///< there, in front of what the method says; beside it too
    std::string CrudeResult::*method = nullptr;
};

/// The member of a cargo's tons.
template <CrudeTons CrudeResult::*Tons, std::string CrudeTons::*Text>
const std::string& tonsOf(const CrudeResult& result)
{
    return result.*Tons.*Text;
}

namespace CrudeTable
{
using R = CrudeResult;
using T = CrudeTons;
constexpr Weight answer = Weight::Answer, figure = Weight::Figure, remark = Weight::Remark;

/// In the order of the window, which is that of the paper.
inline constexpr CrudeFigure figures[] = {
    {{"lblDensity15", "Density at 15 °C", "kg/m³", figure, &R::density15},
     "Density at 15 °C",
     "kg/m³"},
    {{"lblAPI60", "API at 60 °F", "", figure, &R::api60}, "API at 60 °F", "°API"},
    {{"lblVCF", "VCF", "", figure, &R::vcf}, "VCF", "", &R::vcfMethod},
    {{"lblVCFMethod", nullptr, "", remark, &R::vcfMethod, "Method of the VCF"}},
    {{"lblRangeFlag", "", "", remark, &R::rangeFlag, "Range of the table"}, "Range"},

    {{"lblTotalObserved", "Total observed", "", figure, &R::totalObserved},
     "Total observed",
     "",
     &R::observedUnit},
    {{"lblFreeWater", "Free water", "", figure, &R::freeWater, "Free water taken off"},
     "Free water",
     "",
     &R::observedUnit},
    {{"lblGrossObserved", "Gross observed", "", figure, &R::grossObserved},
     "Gross observed",
     "",
     &R::observedUnit},
    {{"lblGrossStandard", "Gross standard", "", figure, &R::grossStandard},
     "Gross standard",
     "",
     &R::standardMethod},
    {{"lblStandardMethod", nullptr, "", remark, &R::standardMethod,
      "Method of the standard volume"}},
    {{"lblNetStandard", "Net standard", "", figure, &R::netStandard},
     "Net standard",
     "",
     &R::standardMethod},
    {{"lblBarrels", "Barrels", "", answer, &R::barrels}, "Barrels", "", &R::barrelsMethod},
    {{"lblBarrelsMethod", nullptr, "", remark, &R::barrelsMethod, "Method of the barrels"}},
    {{"lblKilolitres", "Kilolitres", "", answer, &R::kilolitres},
     "Kilolitres",
     "",
     &R::kilolitresMethod},
    {{"lblKilolitresMethod", nullptr, "", remark, &R::kilolitresMethod,
      "Method of the kilolitres"}},

    {{"lblKilolitres15", "Kilolitres", "at 15 °C", figure, &R::kilolitres15,
      "Kilolitres by density"},
     "Kilolitres by density, net",
     "kL at 15 °C"},
    {{"lblKilolitres60", nullptr, "at 60 °F", figure, &R::kilolitres60, "Kilolitres by density"},
     "Kilolitres by density, net",
     "kL at 60 °F"},
    {{"lblBarrels15", "Barrels", "at 15 °C", figure, &R::barrels15, "Barrels by density"},
     "Barrels by density, net",
     "bbl at 15 °C"},
    {{"lblBarrels60", nullptr, "at 60 °F", figure, &R::barrels60, "Barrels by density"},
     "Barrels by density, net",
     "bbl at 60 °F"},

    {{"lblGrossMetricTonsInAir", "Metric tons, gross", "in air", figure,
      tonsOf<&R::gross, &T::metricInAir>, "Metric tons gross"},
     "Gross in air",
     "t, ",
     &R::weightMethod},
    {{"lblGrossMetricTonsInVacuo", nullptr, "in vacuo", figure,
      tonsOf<&R::gross, &T::metricInVacuo>, "Metric tons gross"},
     "Gross in vacuo",
     "t"},
    {{"lblWeightMethod", nullptr, "", remark, &R::weightMethod, "Method of the weight"}},
    {{"lblMetricTonsInAir", "Metric tons, net", "in air", answer, tonsOf<&R::net, &T::metricInAir>,
      "Metric tons net"},
     "Net in air",
     "t, ",
     &R::weightMethod},
    {{"lblMetricTonsInVacuo", nullptr, "in vacuo", figure, tonsOf<&R::net, &T::metricInVacuo>,
      "Metric tons net"},
     "Net in vacuo",
     "t"},
    {{"lblGrossLongTonsInAir", "Long tons, gross", "in air", figure,
      tonsOf<&R::gross, &T::longInAir>, "Long tons gross"},
     "Gross in air",
     "long tons"},
    {{"lblGrossLongTonsInVacuo", nullptr, "in vacuo", figure, tonsOf<&R::gross, &T::longInVacuo>,
      "Long tons gross"},
     "Gross in vacuo",
     "long tons"},
    {{"lblLongTonsInAir", "Long tons, net", "in air", answer, tonsOf<&R::net, &T::longInAir>,
      "Long tons net"},
     "Net in air",
     "long tons"},
    {{"lblLongTonsInVacuo", nullptr, "in vacuo", figure, tonsOf<&R::net, &T::longInVacuo>,
      "Long tons net"},
     "Net in vacuo",
     "long tons"},
};
inline constexpr std::size_t count = std::size(figures);
} // namespace CrudeTable

/// The same without what papers write, for the labels.
inline constexpr auto CrudeShown = [] {
    std::array<Result<CrudeResult>, CrudeTable::count> shown{};
    for (std::size_t i = 0; i < shown.size(); ++i)
        shown[i] = CrudeTable::figures[i].shown;
    return shown;
}();

} // namespace korvel
