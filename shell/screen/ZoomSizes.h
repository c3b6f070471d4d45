// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

#include <map>
#include <utility>

class QLayout;
class QSpacerItem;
class QWidget;

namespace korvel
{

/// A control that knows the room that its letters and those of its parts need.
class SizedByLetters
{
public:
    virtual ~SizedByLetters() = default;
    /// The letters are of another size.
    virtual void sizeByLetters() = 0;
};

/// Gives everything in a window that has a size or a gap of its own the size that goes with letters
/// of another size. Controls that ask for room by their content do so by themselves. A size is kept
/// as it is at 100 %, so that the window comes back from every zoom as it was.
class ZoomSizes
{
public:
    /// @param zoom per cent of the letters that the window was made with
    explicit ZoomSizes(int zoom) : m_zoom(zoom) {}

    /// @param window is left as large as it is
    /// @param zoom   per cent of the letters in force
    void follow(QWidget& window, int zoom);

private:
    enum Which { LeastWidth, LeastHeight, MostWidth, MostHeight, Row, Column };
    using Owner = std::pair<const void*, int>;
    struct Size {
        double normal; ///< at 100 %
        int given;     ///< what was made of it last; another one was set by somebody else
    };

    int sized(Owner owner, int size, const QFont& letters);
    int limited(Owner owner, int size, const QFont& letters);
    double widthOf(QFont letters, int zoom);
    void followIn(QWidget& widget);
    void followOf(QWidget& widget);
    void followIn(QLayout& layout, const QFont& letters);
    void followOf(QSpacerItem& gap, const QFont& letters);

    int m_zoom;
    int m_before{};
    std::map<Owner, Size> m_known;
    std::map<Owner, Size> m_kept; ///< of what is still there
    std::map<std::pair<QFont, int>, double> m_widths;
};

/// Lays a window out from the innermost control to itself, so that every control asks for what it
/// needs by the letters and texts that are there.
void settleLayouts(QWidget& window);

} // namespace korvel
