// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QPrinter;
class QPrintPreviewWidget;

namespace korvel
{

class PaperDocument;

/// The pages as they will be printed, before they are. Accepted when the officer wants them.
class PrintPreview : public QDialog
{
public:
    /// @param document, printer must outlive the dialog
    PrintPreview(const PaperDocument& document, QPrinter& printer, QWidget* parent);

private:
    void turn(int pages);

    QPrintPreviewWidget* m_pages;
};

} // namespace korvel
