// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/daily_page.h"
#include "forms/frmSky/SkyResults.h"
#include "shell/program/WindowCatalogue.h"
#include "shell/window/CalculatorWindow.h"

namespace korvel
{

class AlmanacPage;
class DayPage;
class PageBar;
class StarsPage;
class UnknownPage;

/// Twilight, stars with the best round, unknown bodies and almanac pages, for the moving ship.
///
/// Its record "KV_Sky.ini": a first line that tells kind and version, then a line for every box
/// that holds something and for every choice.
class frmSky : public CalculatorWindow
{
public:
    explicit frmSky(Program& program);

    /// The pages by what they are looked for.
    static std::vector<CatalogueEntry::Place> pagesToGoTo();

protected:
    WorkingPaper paper() const override;
    std::vector<PaperPicture> paperPictures() override;
    void applyColours() override;

private:
    enum Page : std::size_t { DayOfShip, StarsOfMinute, Unknown, Almanac };
    void addPages();
    void connectPages();
    void addCalculations();
    void addMenus();
    void addMemoMenus();

    EntryBox* box(SkyBox which) const { return m_boxes[placeOf(which)]; }
    std::vector<EntryBox*> boxes(std::initializer_list<SkyBox> which) const;
    SkyInput input() const;
    void runDay();
    void runUnknown();
    void runAlmanac();
    void showNotices();

    void enterNow(SkyBox which);
    void clearBoxes(std::size_t page, SkyBox first, std::size_t count);
    void showDay(int later);
    void sendRound();
    void printAlmanac();
    void saveAlmanac();
    std::vector<PagePrinter::Draw> almanacDrawings() const;
    bool hasPage();

    struct Choice;
    std::vector<Choice> choices() const;
    std::string recordText() const;
    std::string take(const std::string& bytes);

    FieldBoxes m_boxes;
    PageBar* m_pages;
    DayPage* m_day;
    StarsPage* m_stars;
    UnknownPage* m_unknown;
    AlmanacPage* m_almanac;
    SkyPlaces m_places;
    SkyDay m_shownDay;
    SkyStars m_shownStars;
    UnknownResult m_shownUnknown;
    std::optional<almanac::DailyPage> m_page;
    std::string m_almanacNotice;
    int m_dayCalculation{};
    int m_almanacCalculation{};
};

} // namespace korvel
