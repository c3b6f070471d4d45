// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>

namespace korvel
{

/// The list of the recorded sights: a line each, two where the list is too narrow for that.
class SightLines : public QListWidget
{
public:
    explicit SightLines(QWidget* parent);

    /// Shows a sight in a row.
    /// @param sight  what was observed
    /// @param result what came of it; empty before there is a fix
    void showSight(int row, const QString& sight, const QString& result, const QString& tip);

    /// Everything in one line.
    QSize sizeHint() const override;
    /// Two lines side by side are no narrower than the longer of them.
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void measure();
    void write(QListWidgetItem& item) const;

    QSize m_oneLine;
    QSize m_twoLines;
    bool m_inTwo = false;
};

} // namespace korvel
