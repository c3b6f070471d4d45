// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace korvel
{

class EntryPanel;
class FixPanel;
class LinePanel;
class SightListPanel;

/// The panels of the sun sight window.
struct SightPanels {
    EntryPanel& entry;
    LinePanel& lines;
    FixPanel& fixes;
    SightListPanel& sights;
};

/// Lays the panels out: what is typed to the left, the answers beside it, then the plot; the
/// list below.
void layOut(const SightPanels& panels, QWidget& content);

} // namespace korvel
