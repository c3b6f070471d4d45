// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/bodies.h"
#include "forms/frmSunSight/sight/SightFields.h"
#include "shell/controls/FieldBoxes.h"

#include <QWidget>

class QCheckBox;
class QGridLayout;
class QGroupBox;
class QPushButton;
class QRadioButton;

namespace korvel
{

/// The boxes of the sun sight window: the sight being entered, its body first, and the track; on a
/// row of their own how good the lines are held to be.
class EntryPanel : public QWidget
{
    Q_OBJECT

public:
    explicit EntryPanel(QWidget* parent);

    SightTexts sight() const;
    TrackTexts track() const;
    SightFixOptions options() const;
    void fill(const SightTexts& sight);
    /// Empties the sight; scale and TD stay for the next one.
    void clearSight();
    void fill(const TrackTexts& track);
    void fill(const SightFixOptions& options);

    /// All that is typed, as it is understood; empty boxes with what they stand for.
    std::vector<PaperFigure> paperFigures() const;

    EntryBox* box(std::size_t field) const { return m_entry[field]; }
    /// What the line of position depends on: sight and track.
    std::vector<EntryBox*> lineBoxes() const;
    /// What the fix depends on: how good the lines are, and the track.
    std::vector<EntryBox*> fixBoxes() const;

    /// The row of boxes that lies beside the fix.
    QWidget* qualityRow() const { return m_qualityRow; }

    /// The box of the body, before all others.
    EntryBox* bodyBox() const { return m_body[0]; }
    /// Says beside it what the body is.
    void setBodyLabel(QWidget* label);
    /// What can be entered of a sight of this body.
    void showBody(almanac::Body body);

    /// Moves the focus to a box, its text selected.
    void turnTo(std::size_t field);
    /// What the buttons offer while a recorded sight stands in the boxes, and otherwise.
    void setEditing(bool isEditing);

signals:
    void scaleOrLimbChanged();
    void measuredChanged();
    void markAsked();
    void recordAsked();
    void newAsked();

private:
    void addOptions();
    QGroupBox* layOutSight();
    QGroupBox* layOutTrack();
    void layOutQuality();

    FieldBoxes m_body;
    FieldBoxes m_entry;
    FieldBoxes m_quality;
    std::array<QRadioButton*, 2> m_optSunScale{}; ///< UTC, SMT
    std::array<QRadioButton*, 2> m_optSunLimb{};  ///< lower, upper
    QCheckBox* m_chkSunMeasured = nullptr;
    QGroupBox* m_sightGroup = nullptr;
    QGridLayout* m_sightGrid = nullptr;
    QWidget* m_qualityRow;
    QPushButton* m_cmdRecord = nullptr;
    QPushButton* m_cmdNew = nullptr;
};

} // namespace korvel
