// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <vector>

class QButtonGroup;
class QHBoxLayout;

namespace korvel
{

/// The names of the pages of a window, of which one is shown at a time. They are one stop of the
/// Tab key: the arrow keys go from page to page, Alt and the letter of a name into its page.
class PageBar : public QWidget
{
    Q_OBJECT

public:
    PageBar();

    /// Adds a page. The first one is shown.
    /// @param name  of its button, "cmdPage(0)"
    /// @param words for assistive tools
    /// @param page  has its place in the window's layout already
    void addPage(const QString& caption, const QString& name, const QString& words, QWidget* page);

    std::size_t pages() const { return m_pages.size(); }
    std::size_t page() const { return m_page; }
    /// Shows a page; a number that is none leaves the page as it is.
    void turnTo(std::size_t page);
    /// Whether a control stands on another page than the one that is shown.
    bool isTurnedAway(const QWidget& control) const;
    /// Puts the focus where it was in the page; at first onto its first box.
    void enterPage();

signals:
    void turned(std::size_t page);

private:
    QHBoxLayout* m_row;
    QButtonGroup* m_buttons;
    std::vector<QWidget*> m_pages;
    std::size_t m_page{};
};

} // namespace korvel
