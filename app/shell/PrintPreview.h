// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QPrinter;
class QPrintPreviewWidget;

namespace korvel
{

class PaperDocument;

/// The pages as they will be printed, before they are.
class PrintPreview : public QDialog
{
public:
    /// @param document, printer must outlive the dialog
    PrintPreview(const PaperDocument& document, QPrinter& printer, QWidget* parent);

    /// Shows the pages. @return true when the officer wants them printed
    bool isWanted() { return exec() == Accepted; }

private:
    void turn(int pages);

    QPrintPreviewWidget* m_pages;
};

} // namespace korvel
