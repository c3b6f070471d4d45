// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSky/SkyResults.h"
#include "shell/controls/FieldBoxes.h"
#include "shell/controls/PageParts.h"
#include "shell/controls/ResultLabels.h"
#include "shell/layout/FollowingScrollArea.h"

class QLayout;

namespace korvel
{

class SkyDisc;
class TextTable;

/// Stars and planets of a minute, the round that is best, and the disc of the sky.
class StarsPage : public ScrolledBody
{
    Q_OBJECT

public:
    StarsPage(QWidget* parent, const FieldBoxes& boxes);

    SkyStarsAsked asked() const;
    /// @param stars outlives the page, or others are shown before they go
    void show(const SkyStars& stars, NavFunc113::Degrees course);
    void setColours(const ColourScheme& colours);
    std::vector<ResultLabel*> results() const { return m_labels.all(); }
    std::vector<PageRecord::Choice> choices();
    SkyDisc& disc() const { return *m_disc; }

signals:
    void choiceChanged();
    void sendAsked();

private:
    QLayout* layOutQuestion();
    QLayout* layOutFigures();

    FieldBoxes m_boxes;
    ResultLabels<SkyStars> m_labels;
    Options* m_optTwilight;
    Options* m_optCount;
    Options* m_optUp;
    QPushButton* m_cmdSend;
    TextTable* m_table;
    SkyDisc* m_disc;
    std::vector<SkyBodyTexts> m_rows;
};

} // namespace korvel
