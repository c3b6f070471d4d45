// SPDX-License-Identifier: MIT
#pragma once

#include "shell/paper/PaperPicture.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPicture>
#include <QTextDocument>
#include <QTextObjectInterface>

#include <utility>
#include <vector>

namespace korvel
{

inline constexpr double screenDots = 96; // an inch

enum { PictureObject = QTextFormat::UserObject + 1, PictureNumber = QTextFormat::UserProperty + 1 };

/// Draws the pictures of a document, as large as its device needs them.
class PictureObjects : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    PictureObjects(std::vector<PaperPicture> pictures, QObject* parent)
        : QObject(parent), m_pictures(std::move(pictures))
    {
    }

    QSizeF intrinsicSize(QTextDocument* document, int, const QTextFormat& format) override
    {
        const QPaintDevice* device = document->documentLayout()->paintDevice();
        const double scale = device ? device->logicalDpiX() / screenDots : 1;
        const QSizeF size = QSizeF(pictureOf(format).size) * scale;
        const double width = document->textWidth() - 2 * document->documentMargin();
        return width > 0 && size.width() > width ? size * (width / size.width()) : size;
    }

    void drawObject(QPainter* painter, const QRectF& room, QTextDocument*, int,
                    const QTextFormat& format) override
    {
        const PaperPicture& picture = pictureOf(format);
        painter->save();
        painter->setClipRect(room, Qt::IntersectClip);
        painter->translate(room.topLeft());
        // A recorded picture grows with the dots of its device by itself.
        const double dots = painter->device()->logicalDpiX() / screenDots;
        const double scale = room.width() / picture.size.width() / dots;
        painter->scale(scale, scale);
        QPicture(picture.drawing).play(painter);
        painter->restore();
    }

private:
    const PaperPicture& pictureOf(const QTextFormat& format) const
    {
        return m_pictures.at(static_cast<std::size_t>(format.intProperty(PictureNumber)));
    }

    std::vector<PaperPicture> m_pictures;
};

} // namespace korvel
