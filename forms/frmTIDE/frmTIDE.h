// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/SettingsFile.h"
#include "forms/frmTIDE/TideExtender.h"
#include "forms/frmTIDE/data/FullConstants.h"
#include "forms/frmTIDE/day/StationLines.h"
#include "forms/frmTIDE/day/TideChoice.h"
#include "forms/frmTIDE/pages/TideReports.h"
#include "forms/frmTIDE/sheet/TideMenus.h"
#include "forms/frmTIDE/sheet/TideSheet.h"
#include "forms/frmTIDE/stations/StationList.h"
#include "forms/frmTIDE/stations/TideHabits.h"
#include "shell/program/WindowCatalogue.h"
#include "shell/window/CalculatorWindow.h"

#include <QTimer>

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

    /// Every station, as goTo() takes it.
    static std::vector<CatalogueEntry::Place> stationsToGoTo();
    void goTo(const QString& place) override;

protected:
    WorkingPaper paper() const override;
    std::vector<PaperPicture> paperPictures() override;
    void changeEvent(QEvent* event) override;

private:
    /// How a fault of the data files is told: in a box once the officer has chosen something, in
    /// the notice line while the date runs.
    enum class Telling { Box, Line };

    void addControls();
    TideActions actions();

    void choose(const StationChoice& station);
    void findStation(const std::string& typed);
    void openKeel();
    void askDate();
    void chooseDate(std::int64_t date);
    void stepTo(std::int64_t date);
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
    /// Declined: the officer does not want to use what is doubtful.
    enum class Outcome { Shown, Nothing, Declined };
    Outcome predict(const TideChoice& wanted, Telling telling);
    bool isToBeUsed(const std::string& doubts, Telling telling);
    void showDay(const TideDayShown& day);
    void showNow();
    void storeSettings(Telling telling);
    void tell(const std::string& fault, Telling telling);
    std::int64_t today();
    TideKind kind() const { return m_choice.TideMode ? TideKind::Tide : TideKind::Stream; }
    TideHabits loadedHabits();
    void storeHabits();

    StationList m_list;
    FullConstants m_constants;
    TideDates m_dates;
    TideChoice m_choice;
    std::optional<TideDayShown> m_shown;
    std::unique_ptr<StationDays> m_station; ///< the station that is shown
    std::string m_doubts;                   ///< of the check of its file
    std::string m_agreedTo;                 ///< doubts in spite of which figures are used
    StationLines m_lines;
    SettingsFile m_habitsFile;
    TideHabits m_habits;
    QTimer m_save; ///< one write for a run of the scroll bar
    bool m_hasBeenSeen = false;

    TideSheet* m_sheet;
    TideExtender m_extender;
    TideReports m_reports;
    TideMenus m_tideMenus;
};

} // namespace korvel
