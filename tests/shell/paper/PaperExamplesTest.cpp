// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "calculator_windows.h"
#include "navlib/sky/ephemeris_series.h"
#include "shell/controls/PictureBox.h"
#include "shell/controls/ResultLabel.h"
#include "shell/paper/PaperWindow.h"
#include "tests/SourceFolder.h"
#include "tests/shell/PaintedTexts.h"
#include "tests/shell/paper/StepFigures.h"
#include "tools/papers/ExamplePaper.h"

#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTableView>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// The worked examples of the manual: the program works each anew as the manual has it, and every
// result that its window shows is a step of the working. (papers docs/manual data writes them.)

namespace korvel
{
namespace
{

TEST(PaperExamples, theManualHasWhatTheProgramWorks)
{
    const QDir examples(QString::fromStdString(sourceFile("docs/manual/examples")));
    const QStringList all = examples.entryList({"*.example"}, QDir::Files, QDir::Name);
    ASSERT_FALSE(all.isEmpty());
    for (const QString& each : all) {
        SCOPED_TRACE(each.toStdString());
        const auto made = workExample(contentOf(examples.filePath(each).toStdString()),
                                      QString::fromStdString(sourceFile("data")));
        EXPECT_THAT(made.missing, ::testing::IsEmpty());
        EXPECT_EQ(made.text, contentOf(sourceFile("docs/manual/papers/") +
                                       each.chopped(7).toStdString() + "md"));
    }
}

/// What a step says: a plain number, and how far its last digit reaches.
struct SaidValue {
    double value = 0;
    double rounding = 0;
};

/// @return nothing for a text, a packed angle, a time or a direction in brackets
std::optional<SaidValue> saidBy(const WorkingStep& step)
{
    static const QRegularExpression plain("^-?[0-9]+(\\.([0-9]+))?$");
    const auto match = plain.match(QString::fromStdString(step.value));
    if (!match.hasMatch()) return std::nullopt;
    return SaidValue{match.captured(0).toDouble(),
                     0.5 * std::pow(10, -static_cast<double>(match.captured(2).size()))};
}

const std::string shownInTheWindow = "shown in the window as";

/// Name, formula, figures and value stand each in its own column: a name is words, a formula has
/// letters for its figures, a value is worked out.
void expectInItsColumns(const WorkingStep& step)
{
    static const QRegularExpression signs("^\\S+ = | [×/+] |√|[0-9] - [0-9]");
    const QString name = QString::fromStdString(step.name);
    const QString value = QString::fromStdString(step.value);
    EXPECT_TRUE(name.isEmpty() || name.front().isUpper() || name.front().isDigit()) << step.name;
    EXPECT_FALSE(signs.match(name).hasMatch()) << "a formula for a name: " << step.name;
    EXPECT_FALSE(worked(step.formula)) << "figures for a formula: " << step.formula;
    EXPECT_NE(step.formula, step.figures);
    if (step.formula == shownInTheWindow) return;
    EXPECT_FALSE(signs.match(value).hasMatch()) << "not worked out: " << step.value;
}

/// A formula for the mean of three has no figures of a mean of two.
void expectDivisorsIn(const WorkingStep& step)
{
    static const QRegularExpression divisor("/ [0-9]+(\\.[0-9]+)?(?! °)\\b");
    const QString formula = QString::fromStdString(step.formula).section(',', 0, 0);
    for (const auto& each : divisor.globalMatch(formula))
        EXPECT_TRUE(QString::fromStdString(step.figures).contains(each.captured()))
            << step.name << ": " << step.formula << " by " << step.figures;
}

/// How far two figures are apart; an arctan leaves out half turns.
double apart(const WorkedFigures& figures, double said)
{
    const double difference = figures.value - said;
    return std::fabs(figures.isDirection ? std::remainder(difference, 90) : difference);
}

/// Those of the manual, and those that are tests alone.
QFileInfoList allExamples()
{
    QFileInfoList examples;
    for (const char* folder : {"tests/papers", "docs/manual/examples"})
        examples += QDir(QString::fromStdString(sourceFile(folder))).entryInfoList({"*.example"});
    return examples;
}

TEST(PaperExamples, everyStepHasFiguresThatLeadToItsValue)
{
    int reckoned = 0;
    for (const QFileInfo& each : allExamples()) {
        SCOPED_TRACE(each.fileName().toStdString());
        const WorkedExample example(contentOf(each.filePath().toStdString()),
                                    QString::fromStdString(sourceFile("data")));
        for (const Working& working : example.openPaper().paper().paper().workings)
            for (const WorkingStep& step : working.steps) {
                EXPECT_NE(step.figures, "") << working.title << ": " << step.name;
                expectInItsColumns(step);
                const auto said = saidBy(step);
                const auto figures = worked(step.figures);
                if (!said || !figures) continue;
                ++reckoned;
                expectDivisorsIn(step);
                EXPECT_LE(apart(*figures, said->value),
                          figures->rounding + 1.01 * said->rounding + 1e-9)
                    << working.title << ": " << step.name << ": " << step.figures << " = "
                    << figures->value << ", not " << step.value;
            }
    }
    EXPECT_GE(reckoned, 250);
}

TEST(PaperExamples, anEmptyWindowSaysWhyNothingIsWorked)
{
    for (const CatalogueEntry& window : calculatorWindows()) {
        SCOPED_TRACE(window.name.toStdString());
        const WorkedExample example("window " + window.name.toStdString(),
                                    QString::fromStdString(sourceFile("data")));
        const WorkingPaper& paper = example.openPaper().paper().paper();
        for (const Working& working : paper.workings)
            EXPECT_TRUE(!working.steps.empty() || !working.whyNone.empty()) << working.title;
    }
}

// What is written in the pictures, in the order in which it is drawn, and how many lines there are.
TEST(PaperExamples, picturesSayWhatTheyShow)
{
    const struct {
        const char *example, *picture, *texts;
        std::size_t lines;
    } pictures[] = {
        {"frmCompass by heads", "picDeviation",
         "N 000|NE 045|E 090|SE 135|S 180|SW 225|W 270|NW 315|N 000|1° W|0|1° E|line|", 12},
        {"frmCompass courses", "picCourses",
         "2|4|6|8 kn|N|E|S|W|Through the water|Current|Made good|", 10},
        {"frmGC2000 south", "picGC",
         "1|2|3|4|5|6|7|8|9|10|11|12|13|10°E|30°E|50°E|70°E|90°E|110°E|130°E|150°E|60°S|55°S|50°S|"
         "45°S|40°S|35°S|Departure|Waypoint|Arrival|Great circle|Rhumb line|",
         148},
        {"frmPassage", "picPlan",
         "70°W|60°W|50°W|40°W|30°W|20°W|10°W|0°|15°N|20°N|25°N|30°N|35°N|40°N|45°N|50°N|55°N|60°N|"
         "1|2|1000 nm|",
         63},
        {"frmSky stars", "picSky",
         "N|030|060|E|120|150|S|210|240|W|300|330|Mirfak|Saturn|Fomalhaut|Altair|Vega|Capella|Moon|"
         "Deneb|",
         38},
        {"frmSunSight round", "picSunSight",
         "046-.00'0W|045-.40'0W|045-.20'0W|045-.00'0W|044-.40'0W|26-.20'0N|26-.30'0N|26-.40'0N|"
         "26-.50'0N|27-.00'0N|27-.10'0N|27-.20'0N|27-.30'0N|N|10 nm|FIX 2047|DR 2047|Vega "
         "2039-2047 "
         "x3|Altair 2043-2047|Fomalhaut 2046|Saturn 2049-2047|Mirfak 2052-2047|",
         1045},
        {"frmSunSight round", "picSunSeries", "-1.0' |0' |+1.0' |-2 min|0 min|+2 min|Vega|", 6},
        {"frmTIDE stream", "picTIDE",
         "-3 kn.|-2 kn.|-1 kn.|0 kn.|1 kn.|2 kn.|3 kn.|4 kn.|2|4|6|8|10|12|14|16|18|20|22|", 149},
        {"frmTIDE", "picTIDE",
         "0 m|1 m|2 m|3 m|2|4|6|8|10|12|14|16|18|20|22|thin: all constituents|", 175},
        {"frmWind", "picWind",
         "0|90|180|-90|10|20|30|40 kn|Ship's heading|Apparent wind|True wind|", 20},
    };
    for (const auto& [name, picture, texts, lines] : pictures) {
        const std::string file = std::string(name) + ".example";
        std::string path = sourceFile("tests/papers/" + file);
        if (!QFile::exists(QString::fromStdString(path)))
            path = sourceFile("docs/manual/examples/" + file);
        const WorkedExample example(contentOf(path), QString::fromStdString(sourceFile("data")));
        constexpr QSize size(640, 480);
        testing::PaintedTexts paper(size);
        QPainter painter(&paper);
        example.window().findChild<PictureBox*>(picture)->drawOn(painter, size,
                                                                 ColourScheme::day());
        painter.end();
        std::string written;
        for (const testing::PaintedText& each : paper.texts())
            written += each.text.toStdString() + "|";
        EXPECT_EQ(written, texts) << name;
        EXPECT_EQ(paper.lines().size(), lines) << name << " " << picture;
    }
}

// A result that is painted in pieces, in letters of several sizes, says what its text says.
TEST(PaperExamples, everyResultIsPaintedAsItStands)
{
    std::size_t seen = 0;
    for (const QFileInfo& each : allExamples()) {
        const WorkedExample example(contentOf(each.filePath().toStdString()),
                                    QString::fromStdString(sourceFile("data")));
        for (ResultLabel* label : example.window().findChildren<ResultLabel*>()) {
            if (label->text().isEmpty()) continue;
            label->resize(1000, 100);
            testing::PaintedTexts paper(label->size());
            label->render(&paper);
            if (label->size().isEmpty()) continue; // its layout has no room for it now
            QString painted;
            for (const testing::PaintedText& piece : paper.texts())
                painted += piece.text;
            EXPECT_EQ(painted.remove(' ').toStdString(), label->text().remove(' ').toStdString())
                << each.fileName().toStdString() << " " << label->objectName().toStdString();
            ++seen;
        }
    }
    EXPECT_GT(seen, 500U);
}

/// Digits and letters alone: a paper says "35°30.5' N" where a window has "35-.30'5N".
QString bare(const QString& text)
{
    QString kept;
    for (const QChar each : text)
        if (each.isLetterOrNumber()) kept += each;
    return kept + '|';
}

/// All that labels, boxes and tables of a window say.
QString wordsOf(const QWidget& window)
{
    QString words = "|";
    for (const auto* label : window.findChildren<QLabel*>())
        words += bare(label->text());
    for (const auto* box : window.findChildren<QLineEdit*>())
        words += bare(box->text());
    for (const auto* list : window.findChildren<QAbstractItemView*>())
        for (int row = 0; row < list->model()->rowCount(); ++row)
            for (int column = 0; column < list->model()->columnCount(); ++column)
                words += bare(list->model()->index(row, column).data().toString());
    return words;
}

bool hasDigit(const std::string& text)
{
    return text.find_first_of("0123456789") != std::string::npos;
}

/// Whether a table of the paper has a row that begins like one of the window.
bool hasRow(const WorkingPaper& paper, const QString& begin)
{
    return std::ranges::any_of(paper.tables, [&begin](const PaperTable& table) {
        return std::ranges::any_of(table.rows, [&begin](const auto& row) {
            return bare(QString::fromStdString(row.front())) == bare(begin);
        });
    });
}

/// Words of the paper that stand in several places of the window, or for a choice.
constexpr std::array<std::string_view, 7> putTogether{
    "Height of the Sun", "Weight in air by", "Clocks, in all",       "Gasoline",
    "Gas oil",           "Squat by",         "Quality of the survey"};

// A result of the paper that is another's, or has lost a letter; longitude before latitude.
TEST(PaperExamples, everyResultStandsInTheWindowToo)
{
    for (const QFileInfo& each : allExamples()) {
        SCOPED_TRACE(each.fileName().toStdString());
        const WorkedExample example(contentOf(each.filePath().toStdString()),
                                    QString::fromStdString(sourceFile("data")));
        const QString window = wordsOf(example.window());
        const WorkingPaper& paper = example.openPaper().paper().paper();
        std::vector<PaperFigure> figures = paper.results;
        std::ranges::copy_if(paper.inputs, std::back_inserter(figures), [](const auto& input) {
            return hasDigit(input.value) &&
                   input.value.find("nothing entered") == std::string::npos;
        });
        std::set<std::string> names;
        for (const PaperFigure& result : paper.results)
            EXPECT_TRUE(names.insert(result.name + result.unit).second) << "two of " << result.name;
        for (const PaperFigure& result : figures) {
            if (std::ranges::count(putTogether, result.name)) continue;
            const std::string& shown = result.shown.empty() ? result.value : result.shown;
            QString wanted = bare(QString::fromStdString(shown));
            wanted.chop(1);
            const auto whole = [&wanted, &window](qsizetype at) {
                return !window[at - 1].isLetterOrNumber() ||
                       (wanted.front().isDigit() && !window[at - 1].isDigit());
            };
            qsizetype at = window.indexOf(wanted, 1);
            while (at > 0 && !whole(at))
                at = window.indexOf(wanted, at + 1);
            EXPECT_GT(at, 0) << result.name << ": " << shown;
        }
        for (const auto* list : example.window().findChildren<QTableView*>())
            for (int row = 0; list->isVisible() && row < list->model()->rowCount(); ++row) {
                const auto cell = [list, row](int column) {
                    return list->model()->index(row, column).data().toString();
                };
                // The last row of a plan waits for what is to be typed.
                EXPECT_TRUE(cell(1).isEmpty() || hasRow(paper, cell(0)))
                    << list->objectName().toStdString() << ": " << cell(0).toStdString();
            }
        if (!hasDigit(paper.place)) continue; // a port or a station
        const auto place = parsePosition(paper.place, Axis::Latitude);
        EXPECT_TRUE(place && place->latitude && place->longitude) << paper.place;
    }
}

template <typename Terms>
void expectListed(const std::string& manual, const Terms& terms)
{
    for (const NavFunc113::SeriesTerm& term : terms) {
        const std::string power = term.power == 0 ? "" : term.power == 1 ? " × T" : " × T²";
        const auto number = [](double value) { return Format(value, "0.########"); };
        EXPECT_THAT(manual,
                    ::testing::HasSubstr("| " + number(term.amplitude) + power + " | " +
                                         number(term.rate) + " | " + number(term.phase) + " |\n"));
    }
}

TEST(PaperExamples, theManualListsTheSeriesThatPapersName)
{
    const std::string manual = contentOf(sourceFile("docs/manual/frmSunMoon.md"));
    expectListed(manual, NavFunc113::sunLongitudeTerms);
    expectListed(manual, NavFunc113::sunDistanceTerms);
    expectListed(manual, NavFunc113::moonLongitudeTerms);
    expectListed(manual, NavFunc113::moonLatitudeTerms);
}

} // namespace
} // namespace korvel
