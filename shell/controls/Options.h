// SPDX-License-Identifier: MIT
#pragma once

#include <QButtonGroup>

#include <utility>
#include <vector>

class QLayout;

namespace korvel
{

/// Options of which one is chosen, as buttons in a row; the first at the start.
class Options : public QButtonGroup
{
public:
    using Words = std::pair<const char*, const char*>;
    /// @param array   of their names, "optClock"
    /// @param options caption and words for assistive tools
    Options(QWidget* parent, const char* array, const std::vector<Words>& options);

    int chosen() const { return checkedId(); }
    void choose(int option);
    /// Adds the buttons to a row.
    void addTo(QLayout& row) const;
};

} // namespace korvel
