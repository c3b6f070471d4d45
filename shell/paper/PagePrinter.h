// SPDX-License-Identifier: MIT
#pragma once

#include "shell/paper/PdfBytes.h"

#include <functional>
#include <string>
#include <vector>

class QPrinter;
class QWidget;

namespace korvel
{

class PaperDocument;
class Program;

/// Printing from a window, through the system's print dialog.
class PagePrinter
{
public:
    /// @param program, window must outlive this object
    PagePrinter(Program& program, QWidget& window);

    /// Shows the pages of a paper, and prints them when the officer wants it.
    void print(const PaperDocument& document) const;

    /// Shows a page of the window's own making in the frame of all papers, and prints it when the
    /// officer wants it.
    /// @param title below on the page
    /// @param draw gets a painter in device pixels and the room within the frame in them
    using Draw = std::function<void(QPainter&, const QRect& room)>;
    void print(const QString& title, QPageLayout::Orientation orientation, const Draw& draw) const;
    /// The same for several pages.
    void print(const QString& title, QPageLayout::Orientation orientation,
               const std::vector<Draw>& pages) const;
    /// The same pages, upright, as the bytes of a PDF file.
    QByteArray PDF(const QString& title, const std::vector<Draw>& pages) const;

    /// Writes a file that the officer chose, whole or not at all, and tells when it cannot be.
    bool write(const std::string& path, const std::string& bytes) const;

private:
    void setUp(QPrinter& printer, QPageLayout::Orientation orientation) const;
    bool letChoose(const QString& title, QPrinter& printer, const DrawPages& draw) const;
    void paint(QPrinter& printer, const DrawPages& draw) const;
    DrawPages framed(const QString& title, const std::vector<Draw>& pages) const;
    void say(const std::string& text) const;

    Program& m_program;
    QWidget& m_window;
};

} // namespace korvel
