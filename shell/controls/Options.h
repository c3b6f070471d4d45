// SPDX-License-Identifier: MIT
#pragma once

#include <QButtonGroup>

#include <span>
#include <utility>
#include <vector>

class QHBoxLayout;
class QRadioButton;

namespace korvel
{

/// Options of which one is chosen; the first at the start.
class Options : public QButtonGroup
{
public:
    using Words = std::pair<const char*, const char*>;
    /// @param array   of their names, "optClock"
    /// @param options caption and words for assistive tools
    Options(QWidget* parent, const char* array, const std::vector<Words>& options);

    int chosen() const { return checkedId(); }
    void choose(int option);
    /// The buttons as one switch, made for whoever lays it out.
    QWidget* makeSwitch() const;
};

/// Options of one line as the parts of one switch, which touch each other.
QHBoxLayout* switchOf(std::span<QRadioButton* const> options);

} // namespace korvel
