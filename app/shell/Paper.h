// SPDX-License-Identifier: MIT
#pragma once

#include <QPageLayout>

#include <functional>

class QPainter;
class QWidget;

namespace korvel
{

class Program;

/// Printing of a window, through the system's print dialog.
class Paper
{
public:
    Paper(Program& program, QWidget& window);

    /// Prints a widget as it stands, as large as the page allows.
    void printWidget(QWidget& widget) const;

    /// Prints a page of the window's own making.
    /// @param draw gets a painter in device pixels and the room of the page in them
    using Draw = std::function<void(QPainter&, const QRect& room)>;
    void print(QPageLayout::Orientation orientation, const Draw& draw) const;

private:
    void say(const QString& text) const;

    Program& m_program;
    QWidget& m_window;
};

} // namespace korvel
