// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace korvel
{

/// A line of controls that goes on in the next line where the room ends, as words do. A table whose
/// rows are wider than the screen then scrolls up and down only.
class WrappingRow : public QLayout
{
    Q_OBJECT

public:
    explicit WrappingRow(QWidget* parent);
    ~WrappingRow() override;

    void addSpacing(int width);

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    /// All in one line, each as wide as it has to be.
    QSize sizeHint() const override;
    /// The widest control alone, or the whole row while it stays in one line.
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    void setGeometry(const QRect& room) override;

private:
    struct Line {
        std::size_t first, end; ///< items, gaps at the ends left out
        int width, height;
    };
    bool staysWhole() const;
    std::vector<Line> linesFor(int width) const;
    void place(const Line& line, QPoint at, int width);

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace korvel
