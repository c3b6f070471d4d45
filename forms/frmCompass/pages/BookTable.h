// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCompass/CompassBook.h"
#include "shell/controls/TextTable.h"

namespace korvel
{

/// The lines of the compass book as a table, the latest first; of one compass what it showed, of
/// all what is wrong with each.
class BookTable : public TextTable
{
public:
    explicit BookTable(QWidget* parent);

    /// @param book outlives the table, and is shown again after every change
    void show(const CompassBook& book, std::optional<CompassKind> kind);

    /// Line of the book that is chosen; nothing when there is none.
    std::optional<std::size_t> chosen() const;
    void choose(std::size_t line);
    const std::vector<std::size_t>& lines() const { return m_order; }

private:
    std::vector<std::size_t> m_order; ///< lines of the book by rows
};

} // namespace korvel
