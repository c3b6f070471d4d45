// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PassageShown.h"
#include "forms/frmPassage/PlanChart.h"
#include "forms/frmPassage/PlanFiles.h"
#include "forms/frmPassage/PlanSun.h"
#include "forms/frmPassage/PlanTide.h"
#include "shell/window/CalculatorWindow.h"

namespace korvel
{

class PlanBoxes;
class PlanPicture;
class PlanTable;

/// The passage plan: waypoints and the legs between them, with courses, distances and times.
///
/// Its record "KV_Passage.ini" has a form of its own, see PlanRecord.h.
class frmPassage : public CalculatorWindow
{
    Q_OBJECT

public:
    explicit frmPassage(Program& program);
    ~frmPassage() override;

protected:
    WorkingPaper paper() const override;
    std::vector<PaperPicture> paperPictures() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* layOutAnswers() const;
    QWidget* layOutFigures();
    void connectParts();
    void addMenus();
    void addPlanMenu();
    void addRowMenu();
    void takeFilesDropped();

    PlanConditions conditions() const;
    void run();
    void findSunAndTide();
    void tellLeg();
    void takeCircle();
    void refresh();
    void goToRow(std::size_t row);
    void insertRow();
    void endRow();
    void undo();
    void redo();
    void paste();
    void openFile();
    void open(const std::string& path);
    void save(PlanFormat format);
    void tellRefused(const std::string& what, const std::string& why);
    void copyAsText() const;

    PlanInHand m_work;
    PlanTide m_tide;
    PassageShown m_shown;
    PlanChartMaker m_chart;
    PlanBoxes* m_boxes;
    PlanTable* m_table;
    PlanPicture* m_picture;
    int m_calculation{};

    ResultLabels<PassageShown> m_results;
    struct {
        NavFunc113::GeoPoint at;
        Instant day; ///< of the zone
        Span zone{};
        SunOfDay events;
    } m_sun; ///< as it was found last
    struct {
        NavFunc113::GeoPoint at;
        Instant minute{};
        std::string text;
    } m_water; ///< the same
};

} // namespace korvel
