// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>

#include <string>

namespace korvel
{

/// What a RowsView shows of a list that is kept elsewhere: as many rows as the list had when it was
/// last followed. Texts are made for the rows that are asked for, which are those on the screen.
class RowsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    int rowCount(const QModelIndex& parent = {}) const final;
    int columnCount(const QModelIndex& parent = {}) const final;
    QVariant data(const QModelIndex& index, int role) const final;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const final;

protected:
    struct Lines {
        std::string first, second;
    };

    RowsModel(int columns, QObject* parent) : QAbstractTableModel(parent), m_columns(columns) {}

    /// Takes rows from the end or puts them there; any of them may read otherwise now.
    void followRows(std::size_t rows);

    /// A question may be on the screen, and the table painted behind it, before the model follows:
    /// what is asked of a row that is gone is nothing.
    virtual Lines linesOf(std::size_t row, int column) const = 0;
    /// Of a whole row, told where its number stands.
    virtual std::string remarkOf(std::size_t row) const = 0;
    /// True where the number of the row is marked.
    virtual bool isMarked(std::size_t row) const = 0;
    virtual QString headOf(int column) const = 0;
    /// True of a column of words, which begins at the left.
    virtual bool isOfWords(int column) const = 0;

private:
    Qt::Alignment alignmentOf(int column) const;

    int m_columns;
    int m_rows{};
};

} // namespace korvel
