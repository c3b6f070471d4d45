// SPDX-License-Identifier: MIT
#include "navlib/ship/propulsion.h"

#include "navlib/arithmetic_error.h"
#include "navlib/exact_factors.h"

namespace NavFunc113
{
namespace
{

constexpr double metresOfMile = exact::metresPerMile;

} // namespace

Miles EngineMiles(Metres pitch, double revolutions)
{
    return Miles(pitch.value() * revolutions / metresOfMile);
}

double ApparentSlip(Miles engine, Miles run)
{
    return Quotient(engine.value() - run.value(), engine.value());
}

double RealSlip(Miles engine, Miles run, double wakeFraction)
{
    return Quotient(engine.value() - run.value() * (1 - wakeFraction), engine.value());
}

} // namespace NavFunc113
