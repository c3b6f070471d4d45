// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/sheet/CurvePainter.h"
#include "shell/controls/PictureBox.h"

#include <QLabel>

#include <array>
#include <optional>
#include <vector>

namespace korvel
{

/// picTIDE: the day's curve with its axis labels, and what the pointer reads of it. With the focus,
/// Left and Right move the reading by ten minutes, Home and End to the day's ends, Escape takes it
/// away.
class frmTIDEPicture : public PictureBox
{
public:
    explicit frmTIDEPicture(QWidget* parent = nullptr);

    /// @param all  half-hourly values of the sum of all constituents, drawn as a thin second curve
    /// @param mark before what is read from the curve: "~" for an estimated level
    void showPrediction(const TidePrediction& prediction,
                        const std::optional<NavFunc113::TideValues>& all = {},
                        const std::string& mark = {});

    /// Marks instants of the curve and a level across it; nothing takes the marks away.
    void mark(const std::vector<NavFunc113::Hours>& times, std::optional<double> level);

    /// Draws the curve for paper: in the colours of the day, without a reading.
    void drawForPaper(QPainter& painter, const QSize& size);

    void setColours(const ColourScheme& colours) override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void draw(QPainter& painter) override;
    void placeMargins() override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addAxisLabels();
    CurvePlace place() const;
    void placeLabels();
    void placeReading();
    void readAt(std::optional<double> hour);

    void drawScreen(QPainter& painter);
    QRegion labelsOnGrid() const;
    std::vector<CurvePoint> marks() const;

    std::optional<TidePrediction> m_prediction;
    CurvePicture m_picture;
    std::optional<NavFunc113::TideValues> m_all;
    std::string m_mark;
    std::vector<NavFunc113::Hours> m_markedTimes;
    std::optional<double> m_markedLevel;
    std::optional<double> m_hour; ///< where the curve is read
    std::optional<CurveReading> m_reading;
    std::array<QLabel*, 6> m_lblHeight{};
    std::array<QLabel*, 11> m_lblTime{};
    QLabel* m_lblReading;
};

} // namespace korvel
