// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/pages/TableDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

namespace korvel
{

TableDialog::TableDialog(QWidget* parent, const QString& name, const QString& title,
                         const QString& summary, const QStringList& columns,
                         const std::vector<QStringList>& rows, const std::function<void()>& print)
    : QDialog(parent), m_table(new QTableWidget(static_cast<int>(rows.size()),
                                                static_cast<int>(columns.size()), this))
{
    setObjectName(name);
    setWindowTitle(title);
    m_table->setObjectName("tblRows");
    m_table->setAccessibleName(title);
    m_table->setHorizontalHeaderLabels(columns);
    m_table->verticalHeader()->hide();
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    for (int row = 0; const QStringList& cells : rows) {
        for (int column = 0; column < cells.size(); ++column)
            m_table->setItem(row, column, new QTableWidgetItem(cells[column]));
        ++row;
    }
    m_table->resizeColumnsToContents();
    m_table->resizeRowsToContents();
    m_table->horizontalHeader()->setStretchLastSection(true);
    auto* copying = new QShortcut(QKeySequence::Copy, m_table);
    connect(copying, &QShortcut::activated, this, [this] { copy(); });

    auto* label = new QLabel(summary);
    label->setObjectName("lblSummary");
    label->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (print) {
        auto* button = buttons->addButton("&Print", QDialogButtonBox::ActionRole);
        button->setObjectName("cmdPrint");
        connect(button, &QPushButton::clicked, this, print);
    }
    auto* column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(m_table, 1);
    column->addWidget(buttons);
    const int width = m_table->horizontalHeader()->length() + 4 * fontMetrics().height();
    const int height = m_table->verticalHeader()->length() + 9 * fontMetrics().height();
    const QSize room = screen()->availableSize() * 0.9;
    resize(QSize(width, height).boundedTo(room));
}

/// The selected cells: tabs between columns, a line a row.
void TableDialog::copy() const
{
    QString text;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < m_table->columnCount(); ++column)
            if (const auto* item = m_table->item(row, column); item && item->isSelected())
                cells << item->text();
        if (!cells.isEmpty()) text += cells.join('\t') + '\n';
    }
    QApplication::clipboard()->setText(text);
}

} // namespace korvel
