// SPDX-License-Identifier: MIT
#pragma once

#include "app/shell/CalculatorWindow.h"
#include "forms/frmTIDE/DateControls.h"
#include "forms/frmTIDE/StationLines.h"
#include "forms/frmTIDE/Stations.h"
#include "forms/frmTIDE/TideChoice.h"
#include "forms/frmTIDE/frmTIDEPicture.h"

#include <QTimer>

#include <array>
#include <optional>

namespace korvel
{

/// The day's tide at a station, or its tidal stream: curve, highest and lowest.
///
/// Settings: "KV_Tide.ini", TideMode (a tick), place and date (texts), written after every
/// prediction.
class frmTIDE : public CalculatorWindow
{
public:
    explicit frmTIDE(Program& program);

private:
    /// How a fault of the data files is told: in a box once the officer has chosen something, in
    /// the notice line while the date runs.
    enum class Telling { Box, Line };

    void addControls();
    void fitToScreen();
    QWidget* headLine();
    QWidget* figuresLine();
    QWidget* pictureRow();
    QLabel* wrappedLabel(const QString& name);
    void addMenus();
    void addAreas(QMenu* menu, const QString& array, std::span<const StationArea> areas,
                  bool TideMode);
    void addBarEntry(int index, const QString& caption, std::function<void()> action);

    void place_Click(bool TideMode, std::string_view place);
    void askDate();
    void scrDate_Change(int value);
    void printDay();

    void take(const TideChoice& wanted, Telling telling);
    void put(const TideChoice& choice);
    std::optional<TidePrediction> predict();
    void showPrediction(const TidePrediction& prediction);
    void showStation();
    void storeSettings(Telling telling);
    void tell(const std::string& fault, Telling telling);

    TideDates m_dates;
    TideChoice m_choice;
    std::optional<TidePrediction> m_shown;
    StationLines m_lines;
    QTimer m_save; ///< one write for a run of the scroll bar

    ResultLabel* m_lblPlace = nullptr;
    DateLabel* m_lblDate = nullptr;
    ResultLabel* m_lblTD = nullptr;
    ResultLabel* m_lblTideInfo = nullptr;
    std::array<ResultLabel*, 2> m_lblCuDirection{};
    QLabel* m_lblUncertainty = nullptr;
    QLabel* m_lblStation = nullptr;
    QLabel* m_lblSource = nullptr;
    DateScrollBar* m_scrDate = nullptr;
    frmTIDEPicture* m_picTIDE = nullptr;

    void applyColours() override;
};

} // namespace korvel
