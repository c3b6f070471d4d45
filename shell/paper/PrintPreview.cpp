// SPDX-License-Identifier: MIT
#include "shell/paper/PrintPreview.h"

#include "shell/screen/NightSheet.h"
#include "shell/screen/WindowPlaces.h"

#include <QDialogButtonBox>
#include <QGraphicsView>
#include <QPainter>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr QRgb aroundPages = qRgb(208, 212, 216); // a shade that stays dim by night

} // namespace

PrintPreview::PrintPreview(const QString& title, const DrawPages& draw, QPrinter& printer,
                           QWidget* parent)
    : QDialog(parent), m_pages(new QPrintPreviewWidget(&printer))
{
    setObjectName("dlgPreview");
    setWindowTitle("Pages of \"" + title + '"');
    connect(m_pages, &QPrintPreviewWidget::paintRequested, this, [&draw](QPrinter* onto) {
        QPainter painter(onto);
        draw(*onto, painter);
    });
    m_pages->fitToWidth();
    if (auto* view = m_pages->findChild<QGraphicsView*>()) {
        view->scene()->setBackgroundBrush(QColor(aroundPages));
        view->viewport()->setGraphicsEffect(new NightSheet(view->viewport()));
    }

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    const auto add = [&](const char* caption, const char* name, QDialogButtonBox::ButtonRole role) {
        QPushButton* button = buttons->addButton(caption, role);
        button->setObjectName(name);
        return button;
    };
    connect(add("P&revious page", "cmdPrevious", QDialogButtonBox::ActionRole),
            &QPushButton::clicked, this, [this] { turn(-1); });
    connect(add("&Next page", "cmdNext", QDialogButtonBox::ActionRole), &QPushButton::clicked, this,
            [this] { turn(1); });
    QPushButton* print = add("&Print..", "cmdPrint", QDialogButtonBox::AcceptRole);
    print->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addWidget(m_pages, 1);
    column->addWidget(buttons);
    resizeForText(*this, 104, 50);
    print->setFocus();
}

void PrintPreview::turn(int pages)
{
    m_pages->setCurrentPage(m_pages->currentPage() + pages);
}

} // namespace korvel
