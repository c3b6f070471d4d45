// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cmath>
#include <cstddef>

/// The little of vectors that the room needs.
namespace almanac
{

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>; ///< rows

inline Vector operator+(const Vector& a, const Vector& b)
{
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}

inline Vector operator*(double factor, const Vector& a)
{
    return {factor * a[0], factor * a[1], factor * a[2]};
}

inline Vector operator-(const Vector& a, const Vector& b)
{
    return a + (-1.0) * b;
}

inline double dot(const Vector& a, const Vector& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

inline double length(const Vector& a)
{
    return std::sqrt(dot(a, a));
}

/// @param a not the zero vector
inline Vector unit(const Vector& a)
{
    return (1 / length(a)) * a;
}

inline Vector operator*(const Matrix& m, const Vector& a)
{
    return {dot(m[0], a), dot(m[1], a), dot(m[2], a)};
}

/// Vector of a longitude, a latitude (radians) and a distance.
inline Vector fromPolar(double longitude, double latitude, double distance)
{
    return {distance * std::cos(latitude) * std::cos(longitude),
            distance * std::cos(latitude) * std::sin(longitude), distance * std::sin(latitude)};
}

} // namespace almanac
