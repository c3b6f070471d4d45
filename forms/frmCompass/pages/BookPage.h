// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCompass/CompassBook.h"
#include "shell/controls/PageParts.h"
#include "shell/layout/FollowingScrollArea.h"

namespace korvel
{

class BookTable;

/// The lines of the compass book, of all compasses or of one.
class BookPage : public ScrolledBody
{
    Q_OBJECT

public:
    explicit BookPage(QWidget* parent);

    /// Shows the book, the chosen line kept in sight where it is still there.
    /// @param book outlives the page
    void show(const CompassBook& book, bool canUndo);
    void setColours(const ColourScheme& colours);

    /// The compass whose lines are shown; nothing: all.
    std::optional<CompassKind> kind() const;
    std::optional<std::size_t> chosen() const;
    void choose(std::size_t line);
    PageRecord kept() { return {{}, {choiceOf(m_cboBook)}}; }

signals:
    void takeAsked();
    void deleteAsked();
    void undoAsked();
    void importAsked();

private:
    void showLines();

    const CompassBook* m_book = nullptr;
    QComboBox* m_cboBook;
    BookTable* m_table;
    QLabel* m_lblCount;
    QPushButton* m_cmdTake;
    QPushButton* m_cmdDelete;
    QPushButton* m_cmdUndo;
};

} // namespace korvel
