// SPDX-License-Identifier: MIT
#pragma once

#include "shell/paper/PdfBytes.h"

#include <QDialog>

class QPrinter;
class QPrintPreviewWidget;

namespace korvel
{

/// The pages as they will be printed, before they are. Accepted when the officer wants them.
class PrintPreview : public QDialog
{
public:
    /// @param draw, printer must outlive the dialog
    PrintPreview(const QString& title, const DrawPages& draw, QPrinter& printer, QWidget* parent);

private:
    void turn(int pages);

    QPrintPreviewWidget* m_pages;
};

} // namespace korvel
