// SPDX-License-Identifier: MIT
#include "forms/frmCompass/pages/BookPage.h"

#include "forms/frmCompass/pages/BookTable.h"
#include "shell/layout/WrappingRow.h"

#include <QVBoxLayout>

namespace korvel
{

BookPage::BookPage(QWidget* parent)
    : ScrolledBody(parent),
      m_cboBook(makeList(this, "cboBook", "Compass whose lines are shown",
                         {"All compasses", "Gyro", "Standard compass", "Steering compass"})),
      m_table(new BookTable(this)), m_lblCount(quietLabel({})),
      m_cmdTake(makeButton(this, "cmdTake", "&Take into the boxes",
                           "The chosen line back into the boxes of the observation")),
      m_cmdDelete(
          makeButton(this, "cmdDelete", "De&lete", "Deletes the chosen line, after a question")),
      m_cmdUndo(makeButton(this, "cmdUndo", "&Undo", "Takes the last change of the book back"))
{
    auto* import = makeButton(this, "cmdImport", "&Import..",
                              "Adds the lines of a saved list (CSV) that the book does not have");
    m_lblCount->setMinimumWidth(fontMetrics().horizontalAdvance("00000 of 00000 lines"));
    auto* row = new WrappingRow;
    for (QWidget* each : std::initializer_list<QWidget*>{m_cboBook, m_lblCount})
        row->addWidget(each);
    row->addStretch();
    for (QWidget* each : {m_cmdTake, m_cmdDelete, m_cmdUndo, import})
        row->addWidget(each);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(m_table, 1);

    connect(m_cboBook, &QComboBox::currentIndexChanged, this, &BookPage::showLines);
    connect(m_cmdTake, &QPushButton::clicked, this, &BookPage::takeAsked);
    connect(m_cmdDelete, &QPushButton::clicked, this, &BookPage::deleteAsked);
    connect(m_cmdUndo, &QPushButton::clicked, this, &BookPage::undoAsked);
    connect(import, &QPushButton::clicked, this, &BookPage::importAsked);
}

std::optional<CompassKind> BookPage::kind() const
{
    const int chosen = m_cboBook->currentIndex();
    if (chosen <= 0) return std::nullopt;
    return static_cast<CompassKind>(chosen - 1);
}

void BookPage::show(const CompassBook& book, bool canUndo)
{
    m_book = &book;
    m_cmdUndo->setEnabled(canUndo);
    showLines();
}

void BookPage::showLines()
{
    if (!m_book) return;
    const auto before = m_table->chosen();
    m_table->show(*m_book, kind());
    if (before) m_table->choose(*before);
    if (!m_table->chosen() && !m_table->lines().empty()) m_table->choose(m_table->lines().front());
    const bool isAny = !m_table->lines().empty();
    m_cmdTake->setEnabled(isAny);
    m_cmdDelete->setEnabled(isAny);
    const auto count = m_table->lines().size();
    m_lblCount->setText(kind() ? QString("%1 of %2 lines").arg(count).arg(m_book->size())
                               : QString("%1 lines").arg(count));
}

void BookPage::setColours(const ColourScheme& colours)
{
    tintQuietLabels(*this, colours);
}

std::optional<std::size_t> BookPage::chosen() const
{
    return m_table->chosen();
}

void BookPage::choose(std::size_t line)
{
    m_table->choose(line);
}

} // namespace korvel
