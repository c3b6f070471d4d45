// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmUKC/CalculateUKC.h"
#include "shell/window/CalculatorWindow.h"

class QComboBox;
class QGridLayout;

namespace korvel
{

class KeelPicture;

/// Under-keel clearance, as the column of a company's form, with the hours of a station's tide when
/// the minimum is kept.
///
/// Its record "KV_UKC.ini": a first line that tells kind and version, then a line a box that holds
/// something, then the two lists by their index.
class frmUKC : public CalculatorWindow
{
public:
    explicit frmUKC(Program& program);

    /// "station Yokohama" chooses that station; any other place is a control's name.
    void goTo(const QString& place) override;

protected:
    WorkingPaper paper() const override;
    std::vector<PaperPicture> paperPictures() override;
    void applyColours() override;
    void changeEvent(QEvent* event) override;

private:
    void addChoices();
    void giveRoom();
    QWidget* layOutAnswers();
    QWidget* layOutInputs();
    void addGroup(QGridLayout& grid, const char* title, std::size_t first, std::size_t end,
                  QComboBox* choice = nullptr, const char* caption = "") const;
    QWidget* layOutResults();
    QWidget* layOutColumn();
    void addLine(QGridLayout& grid, std::size_t result, QWidget* remark = nullptr) const;
    void addSum(QGridLayout& grid, std::size_t result) const;
    QWidget* layOutTide();
    void addMenus();
    void connectChoices();
    void takeStation();
    void clear();

    UKCInput input() const;
    std::string recordText() const;
    std::string take(const std::string& bytes);
    void run();

    FieldBoxes m_boxes;
    ResultLabels<UKCResult> m_results;
    QComboBox* m_cboWater;
    QComboBox* m_cboSurvey;
    KeelPicture* m_picture;
    TideWeeks m_weeks;
    TideWeek m_week; ///< that of the results
    UKCResult m_shown;
    int m_calculation{};
};

} // namespace korvel
