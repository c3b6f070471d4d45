// SPDX-License-Identifier: MIT
#include "shell/main/CalculatorWindows.h"

#include "shell/program/Program.h"
#include "shell/window/CalculatorWindow.h"

#include <QApplication>

#include <algorithm>

namespace korvel
{
namespace
{

/// The windows on the screen that are neither among some nor questions, by their titles.
std::vector<QWidget*> othersThan(const std::vector<QWidget*>& windows)
{
    std::vector<QWidget*> others;
    for (QWidget* each : QApplication::topLevelWidgets())
        if (each->isVisible() && each->windowType() == Qt::Window &&
            std::find(windows.begin(), windows.end(), each) == windows.end())
            others.push_back(each);
    std::sort(others.begin(), others.end(), [](const QWidget* one, const QWidget* other) {
        return one->windowTitle() < other->windowTitle();
    });
    return others;
}

} // namespace

CalculatorWindows::CalculatorWindows(Program& program, WindowCatalogue catalogue)
    : m_program(program), m_catalogue(std::move(catalogue))
{
    for (const CatalogueEntry& entry : m_catalogue)
        m_program.links.push_back({entry.name, entry.caption});
    connect(&m_program, &Program::windowWanted, this, &CalculatorWindows::open);
    connect(&m_program, &Program::placeWanted, this, &CalculatorWindows::openAt);
    connect(&m_program, &Program::windowClosed, this, &CalculatorWindows::forget);
}

CalculatorWindows::~CalculatorWindows()
{
    // A window that goes says so to nobody any more.
    m_program.disconnect(this);
    for (const auto& [name, window] : m_open)
        delete window;
    for (const auto& window : m_leaving)
        delete window;
}

void CalculatorWindows::open(const QString& name)
{
    QPointer<CalculatorWindow>& window = m_open[name];
    const auto entry = std::find_if(m_catalogue.begin(), m_catalogue.end(),
                                    [&](const CatalogueEntry& each) { return each.name == name; });
    if (!window && entry != m_catalogue.end()) window = entry->make(m_program);
    if (!window) return;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
    emit opened(name);
}

void CalculatorWindows::openAt(const QString& name, const QString& place)
{
    open(name);
    if (CalculatorWindow* window = m_open[name]) window->goTo(place);
}

std::vector<CalculatorWindow*> CalculatorWindows::all() const
{
    std::vector<CalculatorWindow*> windows;
    for (const CatalogueEntry& entry : m_catalogue) {
        const auto window = m_open.find(entry.name);
        if (window != m_open.end() && window->second) windows.push_back(window->second);
    }
    return windows;
}

void CalculatorWindows::openNext(const QWidget& from, QWidget& mainWindow)
{
    std::vector<QWidget*> windows = {&mainWindow};
    for (CalculatorWindow* each : all())
        windows.push_back(each);
    for (QWidget* each : othersThan(windows))
        windows.push_back(each);
    const auto here = std::find(windows.begin(), windows.end(), &from);
    const bool isLast = here == windows.end() || here + 1 == windows.end();
    QWidget* next = isLast ? windows.front() : *(here + 1);
    next->setWindowState(next->windowState() & ~Qt::WindowMinimized);
    next->raise();
    next->activateWindow();
}

void CalculatorWindows::forget(const QString& name)
{
    // The window lives until the event loop comes round. Chosen again before that, it is made anew.
    const auto window = m_open.find(name);
    if (window == m_open.end()) return;
    m_leaving.erase(std::remove(m_leaving.begin(), m_leaving.end(), nullptr), m_leaving.end());
    m_leaving.push_back(window->second);
    m_open.erase(window);
    emit closed(name);
}

void CalculatorWindows::closeAll()
{
    const auto open = m_open; // closing takes them out
    for (const auto& [name, window] : open)
        if (window) window->close();
}

} // namespace korvel
