// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSky/SkyResults.h"
#include "shell/controls/AnswerStrip.h"
#include "shell/controls/FieldBoxes.h"
#include "shell/controls/PageParts.h"
#include "shell/controls/ResultLabels.h"
#include "shell/controls/RowTable.h"
#include "shell/layout/FollowingScrollArea.h"

class QLayout;

namespace korvel
{

/// The ship, and twilight, Sun and Moon of a day.
class DayPage : public ScrolledBody
{
    Q_OBJECT

public:
    /// @param boxes of SkyFields; those of the ship get their places here
    DayPage(QWidget* parent, const FieldBoxes& boxes);

    void show(const SkyDay& day);
    void setColours(const ColourScheme& colours);
    QSize sizeHint() const override;
    std::vector<ResultLabel*> results() const;
    /// Those that are not in the table of the times.
    const std::vector<ResultLabel*>& answers() const { return m_labels.all(); }
    /// What stays in sight above the page.
    QWidget* strip() const { return m_strip; }

signals:
    void nowAsked();
    /// Another day is wanted, so many later.
    void dayAsked(int later);

private:
    QLayout* layOutShip();
    QLayout* layOutDay();
    void layOutAnswers();

    FieldBoxes m_boxes;
    ResultLabels<SkyDay> m_labels;
    AnswerStrip* m_strip;
    RowTable* m_events;
};

} // namespace korvel
