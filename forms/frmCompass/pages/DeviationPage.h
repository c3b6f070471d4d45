// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Remarks.h"
#include "forms/frmCompass/CompassResults.h"
#include "shell/controls/PageParts.h"
#include "shell/controls/ResultLabels.h"
#include "shell/layout/FollowingScrollArea.h"

class QLayout;

namespace korvel
{

class DeviationPicture;
class TextTable;

/// The deviation of a magnetic compass as the lines of the book have it.
class DeviationPage : public ScrolledBody
{
    Q_OBJECT

public:
    explicit DeviationPage(QWidget* parent);

    /// The compass that is shown.
    CompassKind kind() const;
    /// From when on the lines of each compass count.
    CountsSinceByCompass since(Remarks& remarks) const;

    void show(const DeviationCurve& curve, const CompassBook& book);
    void showInHand(const CompassReading& reading);
    void setColours(const ColourScheme& colours);

    std::vector<EntryBox*> boxes() const { return m_txtSince.all(); }
    const std::vector<ResultLabel*>& results() const { return m_lblDeviation.all(); }
    PageRecord kept();
    std::vector<PaperFigure> paperFigures() const;
    DeviationPicture& picture() const { return *m_picture; }

signals:
    void compassChosen();
    void cardAsked();

private:
    QLayout* layOutChoice();
    QLayout* layOutCoefficients();

    Options* m_optDeviation;
    FieldBoxes m_txtSince;
    ResultLabels<DeviationCurve> m_lblDeviation;
    QPushButton* m_cmdCard;
    TextTable* m_table;
    DeviationPicture* m_picture;
    std::vector<std::array<std::string, 6>> m_lines;
};

} // namespace korvel
