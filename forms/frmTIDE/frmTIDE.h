// SPDX-License-Identifier: MIT
#pragma once

#include "app/SettingsFile.h"
#include "app/shell/CalculatorWindow.h"
#include "forms/frmTIDE/DateControls.h"
#include "forms/frmTIDE/FullConstants.h"
#include "forms/frmTIDE/StationLines.h"
#include "forms/frmTIDE/StationList.h"
#include "forms/frmTIDE/StationMenus.h"
#include "forms/frmTIDE/TideChoice.h"
#include "forms/frmTIDE/TideDayPanel.h"
#include "forms/frmTIDE/TideExtender.h"
#include "forms/frmTIDE/TideHabits.h"
#include "forms/frmTIDE/TideReports.h"
#include "forms/frmTIDE/frmTIDEPicture.h"

#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

#include <array>
#include <memory>
#include <optional>

namespace korvel
{

/// The day's tide at a station, or its tidal stream: curve, highest and lowest, and all that an
/// officer asks of a day.
///
/// Settings: "KV_Tide.ini", TideMode (a tick), place and date (texts), written after every
/// prediction; "KV_TideOwn.ini", see TideHabits.
class frmTIDE : public CalculatorWindow
{
public:
    explicit frmTIDE(Program& program);

protected:
    void showEvent(QShowEvent* event) override;
    void applyColours() override;

private:
    /// How a fault of the data files is told: in a box once the officer has chosen something, in
    /// the notice line while the date runs.
    enum class Telling { Box, Line };

    void addControls();
    QWidget* headLine();
    QWidget* figuresLine();
    QWidget* pictureRow();
    void addFoot(QVBoxLayout* column);
    QLabel* wrappedLabel(const QString& name);
    void addMenus();
    void addOwnMenus();
    void addBarEntry(int index, const QString& caption, std::function<void()> action);

    void choose(const StationChoice& station);
    void findStation();
    void askDate();
    void chooseDate(std::int64_t date);
    void scrDate_Change(int value);
    void drawAll(bool isWanted);
    void offerUnasked();
    void readDates();

    using Report = std::function<void(const TideSubject&)>;
    /// Makes a report of the day that is shown; says so when there is none.
    void report(const Report& make);

    /// What a choice that cannot be shown leaves behind: the choice before, or itself, as when the
    /// data of what was last shown are missing today.
    enum class AfterFault { GoBack, Stay };
    void take(const TideChoice& wanted, Telling telling, AfterFault afterFault);
    void put(const TideChoice& choice);
    bool predict(const TideChoice& wanted, Telling telling);
    void showDay(const TideDayShown& day);
    void showStation();
    void showNow();
    void storeSettings(Telling telling);
    void tell(const std::string& fault, Telling telling);
    std::int64_t today();
    TideKind kind() const { return m_choice.TideMode ? TideKind::Tide : TideKind::Stream; }
    void loadHabits();
    void storeHabits();

    StationList m_list;
    FullConstants m_constants;
    TideDates m_dates;
    TideChoice m_choice;
    std::optional<TideDayShown> m_shown;
    std::unique_ptr<StationDays> m_station; ///< the station that is shown
    StationLines m_lines;
    SettingsFile m_habitsFile;
    TideHabits m_habits;
    QTimer m_save; ///< one write for a run of the scroll bar
    bool m_hasBeenShown = false;

    StationMenus m_stationMenus;
    QProgressBar* m_progress;
    TideExtender m_extender;
    TideReports m_reports;
    ResultLabel* m_lblPlace = nullptr;
    DateLabel* m_lblDate = nullptr;
    ResultLabel* m_lblTD = nullptr;
    ResultLabel* m_lblTideInfo = nullptr;
    std::array<ResultLabel*, 2> m_lblCuDirection{};
    QLabel* m_lblRemark = nullptr;
    QLabel* m_lblInUse = nullptr;
    QLabel* m_lblUncertainty = nullptr;
    QLabel* m_lblEstimates = nullptr;
    QLabel* m_lblStation = nullptr;
    QLabel* m_lblAccuracy = nullptr;
    QLabel* m_lblSource = nullptr;
    EntryBox* m_txtFind = nullptr;
    DateScrollBar* m_scrDate = nullptr;
    frmTIDEPicture* m_picTIDE = nullptr;
    TideDayPanel* m_day = nullptr;
    QAction* m_mnuDrawAll = nullptr;
    QAction* m_mnuUndo = nullptr;
};

} // namespace korvel
