// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class QTextDocument;

namespace korvel
{

/// A stretch of a document, from one height to another.
struct PaperSlice {
    double top{};
    double bottom{};

    double height() const { return bottom - top; }
};

/// What stands on a page, and above it the heading of a table that goes on from the page before.
struct PaperPage {
    PaperSlice heading; ///< empty when no table goes on
    PaperSlice body;
};

/// Parts a document that was laid out in one piece into pages. A row of a table, a sentence and a
/// line of a longer text are never cut, a title and the heading of a table stay with what follows
/// them, and the last page has more than its last line. What is taller than a page is cut where the
/// page ends.
/// @param height of a page, in units of the document
std::vector<PaperPage> pagesOf(const QTextDocument& document, double height);

} // namespace korvel
