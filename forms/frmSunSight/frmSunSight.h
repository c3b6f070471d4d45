// SPDX-License-Identifier: MIT
#pragma once

#include "app/shell/CalculatorWindow.h"
#include "forms/frmSunSight/CalculateLOP.h"
#include "forms/frmSunSight/DrawLOP.h"
#include "forms/frmSunSight/SightSettings.h"

#include <optional>

class QCheckBox;
class QGroupBox;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace korvel
{

class SightPicture;

/// A sight of the Sun with its worksheet, the list of recorded sights, their plot, and the fix.
///
/// Record of "KV_SunSight.ini": see SightSettings.h. It is written when the window closes and
/// whenever the list of sights changes.
class frmSunSight : public CalculatorWindow
{
public:
    explicit frmSunSight(Program& program);

protected:
    void applyColours() override;

private:
    static constexpr std::size_t worksheetLines = 12;

    void addBoxes();
    void addOptions();
    void addResults();
    void addList();
    QPushButton* addButton(const QString& name, const QString& caption, const QString& tip,
                           void (frmSunSight::*action)());
    void addMenus();
    void addCalculations();

    void layOut();
    QGroupBox* layOutSight();
    QGroupBox* layOutTrack();
    QGroupBox* layOutWorksheet();
    QGroupBox* layOutLine();
    QGroupBox* layOutNoon();
    QWidget* layOutPlot();
    QGroupBox* layOutSights();
    QGroupBox* layOutFix();
    QGroupBox* layOutQuality();

    SightTexts sightTexts() const;
    TrackTexts trackTexts() const;
    SightFixOptions fixOptions() const;
    void showSight(const SightTexts& sight);
    void showSettings(const SightSettings& settings);
    void salvage(const std::string& bytes);

    void runLine();
    void runFix();
    void showWorksheet(const std::vector<WorksheetLine>& lines);
    void showList();
    void showLinesInList();
    void showCursor(QPointF user);

    void cmdMark_Click();
    void cmdRecord_Click();
    void cmdEdit_Click();
    void cmdNew_Click();
    void cmdDelete_Click();
    void listChanged();
    void setEditing(std::optional<std::size_t> index);
    void clearSight();
    void deleteAll();
    void fixBecomesDR();

    std::array<EntryBox*, 10> m_txtSunSight{};
    std::array<PositionBox*, 2> m_txtSunDR{};
    std::array<EntryBox*, 3> m_txtSunRun{};
    std::array<EntryBox*, 3> m_txtSunSigma{};
    std::array<QRadioButton*, 2> m_optSunScale{};
    std::array<QRadioButton*, 2> m_optSunLimb{};
    QCheckBox* m_chkSunMeasured = nullptr;

    std::array<ResultLabel*, 3> m_lblSunTime{}; ///< UTC, SMT, watch error
    std::array<QLabel*, worksheetLines> m_lblSunTerm{};
    std::array<ResultLabel*, worksheetLines> m_lblSunValue{};
    std::array<ResultLabel*, 6> m_lblSunLine{}; ///< declination, GHA, DR, Hc, intercept, Zn
    std::array<ResultLabel*, 4> m_lblSunNoon{};
    std::array<ResultLabel*, 5> m_lblSunFix{};    ///< latitude, longitude, time, ellipse, sigma
    std::array<ResultLabel*, 2> m_lblSunCursor{}; ///< latitude, longitude

    SightPicture* m_picSunSight = nullptr;
    QListWidget* m_lstSunSight = nullptr;
    QPushButton* m_cmdRecord = nullptr;
    QPushButton* m_cmdNew = nullptr;

    SightList m_list;
    std::optional<std::size_t> m_editing; ///< the recorded sight that stands in the boxes
    LOPResult m_line;
    SightFixResult m_fix;
    int m_lineCalculation = 0;
    int m_fixCalculation = 0;
};

} // namespace korvel
