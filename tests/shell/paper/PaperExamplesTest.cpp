// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "navlib/sky/ephemeris_series.h"
#include "shell/paper/PaperWindow.h"
#include "tests/SourceFolder.h"
#include "tests/shell/paper/StepFigures.h"
#include "tools/papers/ExamplePaper.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

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

/// How far two figures are apart; an arctan leaves out half turns.
double apart(const WorkedFigures& figures, double said)
{
    const double difference = figures.value - said;
    return std::fabs(figures.isDirection ? std::remainder(difference, 90) : difference);
}

TEST(PaperExamples, everyStepHasFiguresThatLeadToItsValue)
{
    QFileInfoList examples;
    for (const char* folder : {"tests/papers", "docs/manual/examples"})
        examples += QDir(QString::fromStdString(sourceFile(folder))).entryInfoList({"*.example"});
    int reckoned = 0;
    for (const QFileInfo& each : examples) {
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
                EXPECT_LE(apart(*figures, said->value),
                          figures->rounding + 1.01 * said->rounding + 1e-9)
                    << working.title << ": " << step.name << ": " << step.figures << " = "
                    << figures->value << ", not " << step.value;
            }
    }
    EXPECT_GE(reckoned, 250);
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
