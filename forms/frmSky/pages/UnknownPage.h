// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSky/SkyResults.h"
#include "shell/controls/FieldBoxes.h"
#include "shell/controls/PageParts.h"
#include "shell/controls/ResultLabels.h"
#include "shell/layout/FollowingScrollArea.h"

namespace korvel
{

class TextTable;

/// An unknown body by its altitude and bearing.
class UnknownPage : public ScrolledBody
{
    Q_OBJECT

public:
    UnknownPage(QWidget* parent, const FieldBoxes& boxes);

    void show(const UnknownResult& found);
    void setColours(const ColourScheme& colours);
    std::vector<ResultLabel*> results() const { return m_labels.all(); }

signals:
    void nowAsked();

private:
    ResultLabels<UnknownResult> m_labels;
    TextTable* m_table;
    std::array<UnknownLine, likelyCount> m_lines;
};

} // namespace korvel
