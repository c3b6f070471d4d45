// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <string>

class QLabel;

namespace korvel
{

struct ColourScheme;

/// What the main window shows: clocks, memories, distance unit, and what is to be said about the
/// computer's clock.
class MainPanel : public QWidget
{
public:
    MainPanel();

    void showClock(const std::string& text);
    void showMemories(const std::string& text);
    void showUnit(const std::string& text);
    /// Lines that are there only while they have something to say.
    void showOffset(const std::string& text);
    void showZoneNotice(const std::string& text);
    void showFault(const std::string& text);

    void applyColours(const ColourScheme& colours);

private:
    QLabel* addLabel(const QString& name, const QString& accessibleName, double size);

    QLabel* m_lblTime;
    QLabel* m_lblOffset;
    QLabel* m_lblZone;
    QLabel* m_lblMEMO;
    QLabel* m_lbl1NM;
    QLabel* m_lblFault;
};

} // namespace korvel
