// SPDX-License-Identifier: MIT
#pragma once

#include <QPicture>
#include <QSize>
#include <QString>

#include <functional>

class QPainter;

namespace korvel
{

/// A picture of a paper: what was drawn, as vectors, at the moment of drawing.
struct PaperPicture {
    QString caption;
    QSize size; ///< in pixels of a screen of 96 dots an inch
    QPicture drawing;
};

/// Draws a picture for a paper. Fonts are set in pixels, so that letters grow with the lines.
PaperPicture makePaperPicture(const QString& caption, const QSize& size,
                              const std::function<void(QPainter&, const QSize&)>& draw);

} // namespace korvel
