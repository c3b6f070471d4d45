// SPDX-License-Identifier: MIT
#pragma once

#include "shell/layout/ColumnFold.h"
#include "shell/layout/FocusFollower.h"

#include <QLayout>
#include <QScrollArea>

#include <memory>

namespace korvel
{

/// Content that lets its pictures shrink before anything scrolls: a scroll area would ask for the
/// height that is preferred.
class ScrolledBody : public QWidget
{
public:
    using QWidget::QWidget;

    int heightForWidth(int width) const override
    {
        return layout() ? layout()->totalMinimumHeightForWidth(width)
                        : QWidget::heightForWidth(width);
    }
};

/// A scroll area that asks for as much room as its content wants, and where there is less keeps the
/// control with the focus in sight, whatever moved the focus: Tab, Enter or a menu.
class FollowingScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit FollowingScrollArea(QWidget* content);

    /// Puts a heading above the content. It moves sideways with it and never up.
    void setHeading(QWidget* heading);
    /// The same for the answers of the content: they are in sight whatever one types below.
    void setAnswers(QWidget* answers);
    QWidget* heading() const { return m_heading; } ///< nullptr: there is none

    /// Puts the groups that stand side by side in the content one below the other where the area is
    /// too narrow for them.
    void foldColumns();
    /// Folds or unfolds them for a width of the area.
    void foldFor(int width);
    /// Leaves them as they are whatever width the area gets, while a window measures itself.
    void foldByHand(bool byHand) { m_isFoldedByHand = byHand; }

    /// What the area wants at a width and at that width or less.
    QSize sizeFor(int width);
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(QWidget* focus);
    void bringIntoView(const QWidget& part, QSize around);
    void placeHeading();
    int headingHeight(int width) const;

    QWidget* m_heading = nullptr;
    std::unique_ptr<ColumnFold> m_fold;
    bool m_isFoldedByHand = false;
    FocusFollower m_focus;
};

} // namespace korvel
