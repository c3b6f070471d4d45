// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/RecordFile.h"
#include "app/records/SettingsFile.h"
#include "forms/frmSunSight/fix/SightFix.h"
#include "forms/frmSunSight/sight/CalculateLOP.h"
#include "forms/frmSunSight/sight/MeridianPassage.h"
#include "forms/frmSunSight/sight/SightEditing.h"
#include "forms/frmSunSight/sight/SightSettings.h"
#include "shell/window/CalculatorWindow.h"

#include <optional>

namespace korvel
{

class EntryPanel;
class FixPanel;
class LinePanel;
class SightListPanel;

/// A sight of the Sun or of any other body with its worksheet, the list of recorded sights, their
/// plot, and the fix.
///
/// Record of "KV_SunSight.ini": see SightSettings.h. It is written at once whenever the list of
/// sights changes. "KV_SunSightOwn.ini": whether the details are open. "KV_SightBodies.ini": of
/// which body each sight is, see SightBodies.h.
class frmSunSight : public CalculatorWindow
{
public:
    explicit frmSunSight(Program& program);

protected:
    WorkingPaper paper() const override;
    std::vector<PaperPicture> paperPictures() override;

private:
    void connectPanels();
    void rememberDetails();
    void loadBodies();
    void saveBodies();
    bool isBodyMeant();
    void addSightMenu();
    void addMemoMenus();
    void addCalculations();
    void useRecord();

    void takeOver(const SightSettings& settings);
    void salvage(const std::string& bytes);

    void runLine();
    void runFix();
    SightContext context();
    SightFixOptions options() const;

    void cmdMark_Click();
    void cmdRecord_Click();
    void cmdEdit_Click();
    void cmdNew_Click();
    void cmdDelete_Click();
    void switchSight(std::size_t index, bool on);
    void clearSight();
    void deleteAll();
    void undo();
    void fixBecomesDR();
    void fixIntoRecord();
    void followTD();
    void offerDate();

    void showPlanned();
    std::optional<std::size_t> chosenPlanned();
    void takePlanned(std::size_t index);
    void deletePlanned(std::size_t index);
    void strikeOffPlan(const std::string& body);
    void plan(const PlannedSights& sights);

    void listChanged();
    void showEditing();

    EntryPanel* m_entry;
    LinePanel* m_lines;
    FixPanel* m_fixes;
    SightListPanel* m_sights;

    SettingsFile m_habits;
    RecordFile m_bodies;
    std::string m_bodiesOnDisk;
    SightEditing m_list;
    QString m_shipsTD;     ///< as it was put into the box
    QString m_offeredDate; ///< of a sight that is not begun, as it was put into the box
    LOPResult m_line;
    MeridianResult m_noon;
    SightFixResult m_fix;
    QAction* m_series = nullptr; ///< shots of one body are one line
    int m_lineCalculation{};
    int m_fixCalculation{};
};

} // namespace korvel
