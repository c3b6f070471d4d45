// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "shell/paper/PaperPicture.h"

#include <QFont>
#include <QString>

#include <vector>

class QPagedPaintDevice;
class QPainter;
class QTextDocument;

namespace korvel
{

/// A working paper as a document of the toolkit: real text with pictures of lines, black on white
/// whatever the colours of the screen.
class PaperDocument
{
public:
    PaperDocument(PaperHeading heading, WorkingPaper paper, std::vector<PaperPicture> pictures);
    /// A plain text as a paper: a day of the journal.
    PaperDocument(PaperHeading heading, QString title, QString plainText);

    const PaperHeading& heading() const { return m_heading; }
    const WorkingPaper& paper() const { return m_paper; }
    QString title() const { return m_title; }

    /// Writes the paper into an empty document. One that knows its width already is laid out once
    /// only, which is most of the time that a paper takes.
    void fill(QTextDocument& document) const;

    /// Writes as much of it into an empty document as a window shows at first.
    /// @param zoom percent of the letters' size on paper
    /// @return the part that fillRest() goes on with; 0 when nothing is left
    std::size_t fillBeginning(QTextDocument& document, int zoom) const;
    void fillRest(QTextDocument& document, std::size_t from) const;

    /// The letters of a paper.
    /// @param zoom percent of their size on paper
    static QFont letters(int zoom);

    /// Draws pages, each with its number, onto paper or into a file.
    /// @param painter is active on the device
    /// @param last page, 0 for all
    void drawPages(QPagedPaintDevice& device, QPainter& painter, int first = 1, int last = 0) const;

    /// The whole paper as the bytes of a PDF file, its fonts embedded.
    QByteArray PDF() const;

private:
    QString htmlFrom(std::size_t part) const;
    void write(QTextDocument& document, const QString& html, int zoom = 100) const;

    QString m_title;
    PaperHeading m_heading{};
    WorkingPaper m_paper;
    std::vector<PaperPicture> m_pictures;
    QString m_plainText;
};

} // namespace korvel
