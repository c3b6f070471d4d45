// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCompass/CompassResults.h"
#include "shell/controls/PageParts.h"
#include "shell/controls/ResultLabels.h"
#include "shell/layout/FollowingScrollArea.h"

class QGridLayout;
class QLayout;

namespace korvel
{

/// The bearing of a body and what it says of the compasses.
class ErrorPage : public ScrolledBody
{
    Q_OBJECT

public:
    explicit ErrorPage(QWidget* parent);

    /// @param TD    by which ship's time is understood
    /// @param model by which the variation is found
    CompassInput input(NavFunc113::Hours TD, const almanac::MagneticModel& model) const;
    std::string observer() const { return m_txtBook[0]->value(); }
    std::string remark() const { return m_txtBook[1]->value(); }

    void show(const CompassResult& result);
    void setColours(const ColourScheme& colours);

    EntryBox* box(CompassBox which) const;
    /// The boxes that the errors rest on.
    std::vector<EntryBox*> boxes() const { return m_txtCompass.all(); }
    const std::vector<ResultLabel*>& results() const { return m_lblCompass.all(); }
    PageRecord kept();
    std::vector<PaperFigure> paperFigures() const;

    /// Empties the boxes of the observation; Ctrl+Z in one of them brings all of it back.
    void clear() { m_txtCompass.clear(0, m_txtCompass.size()); }
    /// Puts texts into the boxes of an observation; an empty list empties them.
    void fill(const std::array<std::string, CompassFields.size()>& texts);
    bool isShipsTime() const { return m_optClock->chosen() == 1; }
    void choose(CompassClock clock, CompassMethod method, bool usesModel);

    /// Errors and deviations, for above what scrolls.
    QWidget* answers() const { return m_answers; }

signals:
    void choiceChanged();
    void nowAsked();
    void recordAsked();

private:
    void makeControls();
    QLayout* layOutObservation();
    QLayout* layOutBearings();
    QLayout* layOutRecord();
    void layOutAnswers();
    QLayout* layOutDetails();
    void showVariation();
    void showChoices();

    FieldBoxes m_txtCompass;
    FieldBoxes m_txtBook;
    Options* m_optClock;
    Options* m_optMethod;
    Options* m_optVariation;
    QString m_typedVariation; ///< while that of the model is shown
    QComboBox* m_cboHorizon;
    QComboBox* m_cboSide;
    QPushButton* m_cmdNow;
    QPushButton* m_cmdRecord;
    ResultLabels<CompassResult> m_lblCompass;
    QWidget* m_answers;
};

} // namespace korvel
