// SPDX-License-Identifier: MIT
#include "shell/paper/PaperPicture.h"

#include <QPainter>

namespace korvel
{
namespace
{

constexpr int pictureLetters = 11; // pixels

} // namespace

PaperPicture makePaperPicture(const QString& caption, const QSize& size,
                              const std::function<void(QPainter&, const QSize&)>& draw)
{
    PaperPicture picture{caption, size, QPicture()};
    QPainter painter(&picture.drawing);
    QFont font = painter.font();
    font.setPixelSize(pictureLetters);
    painter.setFont(font);
    draw(painter, size);
    return picture;
}

} // namespace korvel
