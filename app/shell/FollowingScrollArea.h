// SPDX-License-Identifier: MIT
#pragma once

#include "app/shell/ColumnFold.h"
#include "app/shell/FocusFollower.h"

#include <QScrollArea>

#include <memory>

namespace korvel
{

/// A scroll area that asks for as much room as its content wants, and where there is less keeps the
/// control with the focus in sight, whatever moved the focus: Tab, Enter or a menu.
class FollowingScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit FollowingScrollArea(QWidget* content);

    /// Puts a heading above the content. It moves sideways with it and never up.
    void setHeading(QWidget* heading);

    /// Makes it a strip: always as high as its content, scrolling sideways only.
    void setStrip();

    /// Puts the groups that stand side by side in the content one below the other where the area is
    /// too narrow for them.
    void foldColumns();
    /// Folds or unfolds them for a width of the area.
    void foldFor(int width);

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void follow(QWidget* focus);
    void placeHeading();
    int headingHeight() const;

    QWidget* m_heading = nullptr;
    bool m_isStrip = false;
    std::unique_ptr<ColumnFold> m_fold;
    FocusFollower m_focus;
};

} // namespace korvel
