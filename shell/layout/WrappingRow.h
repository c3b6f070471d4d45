// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace korvel
{

/// A line of controls that goes on in the next line where the room ends, as words do. A window
/// whose rows are wider than the screen then scrolls up and down only.
///
/// Where the room is hardly too narrow the gaps give way first. What room is left goes to the
/// stretches and the controls of a line that may be wider.
class WrappingRow : public QLayout
{
    Q_OBJECT

public:
    explicit WrappingRow(QWidget* parent = nullptr);
    ~WrappingRow() override;

    /// Gap between two controls in pixels; without one of its own that of the style.
    void setGap(int gap);
    /// The controls to come begin a group: where the row does not fit into one line, a group begins
    /// the next one rather than end in it. Without groups every control is one.
    void startGroup() { m_startsGroup = m_hasGroups = true; }
    /// The next control belongs to the one before it: a third of the gap, and the same group.
    void stayClose() { m_staysClose = true; }
    /// Room that is left goes here.
    void addStretch();
    void addLayout(QLayout* layout);

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_parts.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    /// Between the parts of layouts in it.
    int spacing() const override;
    /// All in one line, each as wide as it has to be.
    QSize sizeHint() const override;
    /// The widest control alone.
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    void setGeometry(const QRect& room) override;

private:
    struct Part {
        std::unique_ptr<QLayoutItem> item;
        bool startsGroup;
        bool staysClose;
    };
    struct Line {
        std::size_t first, end;
        int width;  ///< of the controls alone
        int thirds; ///< of gaps between them
        int height;
    };
    int gap() const;
    bool fits(const Line& line, int width) const;
    Line with(const Line& line, std::size_t part) const;
    Line groupFrom(std::size_t part) const;
    std::vector<Line> linesFor(int width) const;
    void place(const Line& line, QPoint at, int width);

    std::vector<Part> m_parts;
    int m_gap = -1;
    bool m_hasGroups = false;
    bool m_startsGroup = false;
    bool m_staysClose = false;
};

} // namespace korvel
