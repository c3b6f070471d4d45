// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>

#include <functional>
#include <vector>

class QTableWidget;

namespace korvel
{

/// A table to read, to copy from and perhaps to print, in a box of its own.
class TableDialog : public QDialog
{
public:
    /// @param print what the button "Print" does; empty: there is none
    TableDialog(QWidget* parent, const QString& name, const QString& title, const QString& summary,
                const QStringList& columns, const std::vector<QStringList>& rows,
                const std::function<void()>& print = {});

private:
    void copy() const;

    QTableWidget* m_table;
};

} // namespace korvel
