// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/SheetBinding.h"
#include "forms/frmTanks/TankTexts.h"
#include "shell/program/WindowCatalogue.h"
#include "shell/window/CalculatorWindow.h"

class QVBoxLayout;

namespace korvel
{

class ExperiencePage;
class GradesPage;
class PageBar;
class TankListPage;
class TotalsPage;

/// Tank list and bunkers: cargo and fuel tank by tank in two surveys, what was loaded, discharged
/// or consumed, and the ship's figures against those of the shore.
///
/// Its record "KV_Tanks.ini" has a form of its own, see TankRecord.h.
class frmTanks : public CalculatorWindow
{
    Q_OBJECT

public:
    explicit frmTanks(Program& program);

    static std::vector<CatalogueEntry::Place> pagesToGoTo();

protected:
    WorkingPaper paper() const override;

private:
    enum Page : std::size_t { Tanks, Grades, Totals, Bunkers, Experience };
    /// Answers of the pages from the first to the last.
    struct Answers {
        AnswerStrip* strip;
        Page first;
        Page last;
    };

    TankListPage* makeList(ListKind kind);
    void addAnswers(QVBoxLayout& column);
    QWidget* layOutBunkers();
    void addPages();
    void bindFields();
    void connectParts();
    void addMenus();
    void addListMenu();
    void addRowMenu();

    void run();
    void showPage();
    void refresh();
    ListKind listInHand() const;
    TankListPage& pageOf(ListKind kind) const;

    void insertRow();
    void deleteRow();
    void undo();
    void redo();
    void beginNextSurvey();
    void newList();
    void openList();
    void paste();
    void takeList(const std::string& text, const std::string& from);
    void saveList();
    void printSurvey(TankSurvey survey);
    void tellRefused(const std::string& what, const std::string& why);

    SheetInHand m_work;
    TanksShown m_shown;
    SheetBinding* m_binding;
    FieldBoxes m_fields;
    ResultLabels<TanksShown> m_results;
    PageBar* m_pages;
    std::vector<Answers> m_answers;
    TankListPage* m_tanks;
    GradesPage* m_grades;
    TotalsPage* m_totals;
    TankListPage* m_bunkers;
    ExperiencePage* m_experience;
    int m_calculation{};
};

} // namespace korvel
