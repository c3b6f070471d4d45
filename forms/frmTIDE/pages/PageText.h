// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QPainter>
#include <QString>

namespace korvel
{

// The pages are laid out in units of a thousandth of their width, whatever the paper and the
// printer.
inline constexpr double pageWidth = 1000;
inline constexpr int textSize = 17;
inline constexpr int headingSize = 26;

/// A size of letters on a page of this height. The page that lies is wider: letters of the same
/// share of it would be larger on the paper, and leave no room for the curve.
int sizeOn(double pageHeight, int size);

QFont pageFont(const QPainter& painter, int size, bool bold = false);

/// Height of a line in the painter's font.
double lineOf(const QPainter& painter);

/// Writes a line, left and right, and returns where the next one begins.
double writeLine(QPainter& painter, double top, const QString& left, const QString& right = {});

} // namespace korvel
