// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmCRUDE/CalculateCrude.h"

namespace korvel
{

/// Density at 15 °C and Table 54A, and not API gravity and Table 6A.
bool isMetric(const CrudeInput& input);

/// A density, volume or factor with every digit that the next step uses.
std::string cargoFigure(double value);

/// Factor to 60 °F of the oil at 15 °C, by Table 54A.
double factorOf60F(const CrudeInput& input, double density15);

/// The steps to density at 15 °C and gravity at 60 °F.
void addOil(Working& working, const CrudeInput& input, const CrudeResult& result);

/// The steps to the volume correction factor.
void addCorrection(Working& working, const CrudeInput& input, const CrudeResult& result);

} // namespace korvel
