// SPDX-License-Identifier: MIT
#include "shell/layout/PageBar.h"
#include "tests/shell/WholeProgram.h"

#include <QPoint>
#include <QRect>

#include <fstream>
#include <map>
#include <set>
#include <utility>
#include <vector>

// Whatever is typed, no control leaves its place.

namespace korvel
{
namespace
{

using namespace korvel::testing;

using Rooms = std::vector<std::pair<const QWidget*, QRect>>;

/// Adds what is shown inside a control, which stands at a point of its window. It is asked after
/// every key, so it goes down once and leaves out what is hidden with all that is in it.
void addPlaces(const QWidget& within, const QPoint& at, Rooms& all)
{
    for (const QObject* child : within.children()) {
        if (!child->isWidgetType()) continue;
        const auto& each = static_cast<const QWidget&>(*child);
        if (each.isWindow() || !each.isVisible()) continue;
        const QPoint place = at + each.pos();
        all.emplace_back(&each, QRect(place, each.size()));
        addPlaces(each, place, all);
    }
}

/// Where every control that is shown stands in its window. What a control is made of is its own
/// matter, but for the bars that come and go.
Rooms placesIn(const QWidget& window)
{
    Rooms all = {{&window, window.geometry()}};
    addPlaces(window, QPoint(), all);
    return all;
}

std::vector<QString> awkwardTexts()
{
    std::ifstream file(sourceFile("tests/shell/window/awkward-texts.txt"));
    std::vector<QString> texts;
    for (std::string line; std::getline(file, line);)
        texts.push_back(QString::fromStdString(line));
    return texts;
}

enum class Painting { Always, WhenAllIsTyped };

/// A box has each so many-th of the texts, the next box others: boxes of one window are much alike.
constexpr std::size_t share = 3;

class StillnessTest : public WholeProgram
{
protected:
    /// Types one text; what has moved is told once a window.
    void typeInto(EntryBox& box, const QString& text)
    {
        box.selectAll();
        box.insert(text);
        if (auto* keyUp = dynamic_cast<KeyUpBox*>(&box); keyUp && keyUp->onKeyUp) keyUp->onKeyUp();
    }

    void expectStill(const QWidget& window, const Rooms& before, const std::string& after)
    {
        QApplication::sendPostedEvents();
        const Rooms now = placesIn(window);
        if (now != before) tellWhatMoved({before.begin(), before.end()}, now, after);
    }

    void tellWhatMoved(const std::map<const QWidget*, QRect>& before, const Rooms& now,
                       const std::string& after)
    {
        std::map<const QWidget*, QRect> gone = before;
        for (const auto& [control, place] : now) {
            gone.erase(control);
            const auto found = before.find(control);
            if (found != before.end() && found->second == place) continue;
            if (!m_told.insert(control).second) continue;
            ADD_FAILURE() << after << " brings or moves " << nameOf(*control) << " from "
                          << textOf(found == before.end() ? QRect() : found->second) << " to "
                          << textOf(place);
        }
        for (const auto& [control, place] : gone)
            if (m_told.insert(control).second)
                ADD_FAILURE() << after << " takes away " << nameOf(*control) << " at "
                              << textOf(place);
    }

    /// Rows of a table are alike: the first and the last stand for all.
    static std::vector<EntryBox*> boxesOf(const QWidget& window)
    {
        std::vector<EntryBox*> boxes;
        const auto all = window.findChildren<EntryBox*>();
        std::map<QString, int> rows;
        for (const EntryBox* box : all)
            ++rows[arrayOf(*box)];
        for (EntryBox* box : all) {
            const int row = box->objectName().section('(', 1).section(')', 0, 0).toInt();
            const int count = rows[arrayOf(*box)];
            const bool isInTable = all.size() > 40 && count >= fewestRows;
            if (box->isVisible() && (!isInTable || row == 0 || row == count - 1))
                boxes.push_back(box);
        }
        return boxes;
    }

    static constexpr int fewestRows = 8;
    static QString arrayOf(const EntryBox& box) { return box.objectName().section('(', 0, 0); }

    /// So that every key has all results change: "frmCDDR txtCDDR(0) 35.08".
    void fillWithWorkedFigures(const QWidget& window)
    {
        std::ifstream file(sourceFile("tests/shell/window/worked-texts.txt"));
        std::string name, box, text;
        while (file >> name >> box && std::getline(file >> std::ws, text))
            if (name == window.objectName().toStdString())
                typeInto(dynamic_cast<EntryBox&>(control(window, box)),
                         QString::fromStdString(text));
        QTest::qWait(10);
    }

    /// Each text in each box, then all boxes at once. Painting is no part of where things stand:
    /// without it the first, long part is typed unseen.
    void typeEverything(QWidget& window, Painting painting)
    {
        fillWithWorkedFigures(window);
        window.setUpdatesEnabled(painting == Painting::Always);
        const std::vector<EntryBox*> boxes = boxesOf(window);
        const std::vector<QString> texts = awkwardTexts();
        ASSERT_EQ(texts.size(), 60u);
        const Rooms before = placesIn(window);
        std::vector<QString> were;
        were.reserve(boxes.size());
        for (const EntryBox* box : boxes)
            were.push_back(box->text());
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            for (std::size_t j = i % share; j < texts.size(); j += share) {
                typeInto(*boxes[i], texts[j]);
                expectStill(window, before,
                            boxes[i]->objectName().toStdString() + " '" + texts[j].toStdString() +
                                "'");
            }
            typeInto(*boxes[i], were[i]);
        }
        expectStill(window, before, "putting it right");
        window.setUpdatesEnabled(true);
        // All at once, each another one.
        for (std::size_t round = 0; round < texts.size(); round += 7) {
            for (std::size_t i = 0; i < boxes.size(); ++i)
                typeInto(*boxes[i], texts[(round + 11 * i) % texts.size()]);
            expectStill(window, before, "all boxes");
        }
        for (std::size_t i = 0; i < boxes.size(); ++i)
            typeInto(*boxes[i], were[i]);
    }

    void zoomTo(int percent)
    {
        Screen& screen = main.program().screen();
        while (screen.choices().zoom != percent)
            screen.zoom(screen.choices().zoom < percent ? 1 : -1);
        QTest::qWait(20);
    }

    void typeInAllWindows(Painting painting)
    {
        for (const CatalogueEntry& entry : calculatorWindows()) {
            QWidget& opened = window(entry.name);
            QTest::qWait(10);
            auto* bar = opened.findChild<PageBar*>();
            for (std::size_t page = 0; page < (bar ? bar->pages() : 1); ++page) {
                if (bar) bar->turnTo(page);
                QTest::qWait(20);
                typeEverything(opened, painting);
            }
            opened.close();
        }
    }

private:
    std::set<const QWidget*> m_told;
};

TEST_F(StillnessTest, nothingMovesWhileOneTypes)
{
    typeInAllWindows(Painting::Always);
}

TEST_F(StillnessTest, norAtTwiceTheSize)
{
    zoomTo(200);
    typeInAllWindows(Painting::WhenAllIsTyped); // every text was painted at its usual size
    zoomTo(100);                                // the letters are the whole program's
}

} // namespace
} // namespace korvel
