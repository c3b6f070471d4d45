// SPDX-License-Identifier: MIT
#include "almanac/frame.h"

namespace almanac
{
namespace
{

constexpr double julianDayOfSerialZero = 2415018.5;
constexpr double julianDayOf2000 = 2451545.0;

Vector vectorOf(const double (&a)[3])
{
    return {a[0], a[1], a[2]};
}

} // namespace

// One precession-nutation matrix and one place of the earth serve all bodies: they cost more than
// all else together. The calls are those inside eraApci13 and eraGst06a, so the figures are theirs.
Frame::Frame(DateTime instant)
    : ut(instant), deltaT(deltaTAt(instant)),
      daysTT(instant + deltaT.seconds / 86400 + (julianDayOfSerialZero - julianDayOf2000))
{
    double heliocentric[2][3], barycentric[2][3];
    eraEpv00(julianDayOf2000, daysTT, heliocentric, barycentric);
    earth = vectorOf(heliocentric[0]);
    earthVelocity = vectorOf(barycentric[1]);
    sunVelocity = earthVelocity - vectorOf(heliocentric[1]);

    double matrix[3][3], x = 0, y = 0;
    eraPnm06a(julianDayOf2000, daysTT, matrix);
    toDate = {vectorOf(matrix[0]), vectorOf(matrix[1]), vectorOf(matrix[2])};
    eraBpn2xy(matrix, &x, &y);
    const double s = eraS06(julianDayOf2000, daysTT, x, y);
    equationOfOrigins = eraEors(matrix, s);
    ghaAries = eraAnp(eraEra00(julianDayOfSerialZero, ut) - equationOfOrigins);
    eraApci(julianDayOf2000, daysTT, barycentric, heliocentric[0], x, y, s, &starParameters);
}

} // namespace almanac
