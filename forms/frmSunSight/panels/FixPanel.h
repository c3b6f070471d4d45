// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/fix/DrawLOP.h"
#include "shell/controls/ResultLabels.h"
#include "shell/paper/PaperDocument.h"

#include <array>
#include <functional>

class QGroupBox;
class QScrollArea;

namespace korvel
{

class SeriesPicture;
class SightPicture;

/// The fix from the recorded sights: its plot and, in a group beside it, its position and how good
/// it is.
class FixPanel : public QWidget
{
public:
    explicit FixPanel(QWidget* parent);

    /// @return what lies outside the plot
    std::string showFix(const SightFixResult& fix);
    /// The plot for a working paper; nothing before there is a DR position.
    std::vector<PaperPicture> paperPictures();

    /// Called with what lies outside the plot when the officer has looked at another part of it.
    std::function<void(const std::string&)> onView;

    /// The series of shots: residuals drawn and in words; hidden while there is none.
    QWidget* seriesPart() const { return m_seriesPart; }
    /// Adds the position of the fix to the answers of the window.
    void addAnswers(AnswerStrip& strip) const;
    QGroupBox* fixPart() const { return m_fixPart; }
    const std::vector<ResultLabel*>& results() const { return m_lblSunFix.all(); }

private:
    void layOutPlot();
    void layOutFix();
    void layOutSeries();
    void copyFixWhole();
    QWidget* sentences();
    void showCursor(QPointF user);
    void showView(const PlotView& view);

    QGroupBox* m_fixPart;
    QScrollArea* m_sentences = nullptr; ///< of the fix
    QWidget* m_seriesPart;
    SeriesPicture* m_picSeries;
    SightFixResult m_fix;
    PlotView m_view;
    SightPicture* m_picSunSight;
    ResultLabels<SightFixResult> m_lblSunFix;
    ResultLabels<CursorTexts> m_lblSunCursor;
};

} // namespace korvel
