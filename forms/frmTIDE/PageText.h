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

QFont pageFont(const QPainter& painter, int size, bool bold = false);

/// Height of a line in the painter's font.
double lineOf(const QPainter& painter);

/// Writes a line, left and right, and returns where the next one begins.
double writeLine(QPainter& painter, double top, const QString& left, const QString& right = {});

} // namespace korvel
