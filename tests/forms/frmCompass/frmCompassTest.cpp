// SPDX-License-Identifier: MIT
#include "forms/frmCompass/frmCompass.h"

#include "app/reading/Reading.h"
#include "forms/frmCompass/CompassRecord.h"
#include "forms/frmCompass/DeviationCurve.h"
#include "forms/frmCompass/pages/CoursesPicture.h"
#include "forms/frmCompass/pages/DeviationCard.h"
#include "forms/frmCompass/pages/DeviationPicture.h"
#include "shell/screen/ColourScheme.h"
#include "tests/SourceFolder.h"
#include "tests/shell/PaintedTexts.h"
#include "tests/shell/Pixels.h"
#include "tests/shell/ShellTesting.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <sstream>
#include <utility>

// A month of watches, kept as an officer keeps it: with the keys.

namespace korvel
{
namespace
{

using namespace korvel::testing;
using NavFunc113::Degrees;
using NavFunc113::DeviationCoefficients;

/// What the compasses of this ship have wrong. The officer reads to half a degree, in turn too much
/// and too little.
const DeviationCoefficients ofStandard{Degrees(1), Degrees(5), Degrees(-2), Degrees(1), Degrees(0)};
const DeviationCoefficients ofSteering{Degrees(-1.5), Degrees(-8), Degrees(4), Degrees(2.5),
                                       Degrees(-1)};
constexpr double gyroError = -0.6;

double shownFigure(const std::string& shown)
{
    const double figure = readNumber(shown.substr(shown.find_first_of("0123456789")));
    return shown.find(" W") != shown.npos ? -figure : figure;
}

std::string bearingText(Degrees bearing)
{
    const double turned = std::fmod(bearing.value() + 720, 360);
    return QString::number(turned, 'f', 1).toStdString();
}

class frmCompassTest : public WindowTest
{
protected:
    /// One watch: UTC and position, then what each compass shows of the Sun.
    void keepWatch(const QWidget& window, int number)
    {
        const int day = 1 + number / 2;
        const bool isMorning = number % 2 == 0;
        type(window, "txtCompass(0)",
             QString("2026/9/%1 %2:%3:00\r")
                 .arg(day)
                 .arg(isMorning ? 21 : 7)
                 .arg(number % 60, 2, 10, QChar('0'))
                 .toStdString());
        type(window, "txtCompass(1)", "35." + std::to_string(10 + number % 49) + "\r");
        type(window, "txtCompass(2)", "142.30\r");
        const double bearing = shownFigure(text(window, "lblCompass(0)"));
        const double variation = shownFigure(text(window, "lblCompass(15)"));
        const Degrees head(std::fmod(77.0 * number, 360)); // true; by and by on all headings
        type(window, "txtCompass(4)", bearingText(Degrees(bearing - gyroError)));
        type(window, "txtCompass(5)", bearingText(head - Degrees(gyroError)));
        typeCompass(window, 6, ofStandard, head - Degrees(variation),
                    Degrees(bearing - variation + readingError(number)));
        typeCompass(window, 8, ofSteering, head - Degrees(variation),
                    Degrees(bearing - variation - readingError(number)));
        type(window, "txtBook(0)", isMorning ? "C/O" : "2/O");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    }

    /// Bearing and head of a magnetic compass; one blunder in the month, of ten degrees.
    void typeCompass(const QWidget& window, int box, const DeviationCoefficients& curve,
                     Degrees magneticHead, Degrees magneticBearing) const
    {
        const Degrees compassHead = NavFunc113::CompassHeading(magneticHead, curve);
        type(window, memberName("txtCompass", box).toStdString(),
             bearingText(magneticBearing - curve.at(compassHead)));
        type(window, memberName("txtCompass", box + 1).toStdString(), bearingText(compassHead));
    }

    static double readingError(int number)
    {
        if (number == blunder) return 10;
        return number % 4 < 2 ? 0.4 : -0.4;
    }

    CompassBook book() const { return readCompassBook(fileText(compassBookFile)).book; }

    static constexpr int blunder = 23;
    static constexpr int watches = 60;
};

TEST_F(frmCompassTest, aMonthOfWatchesKeptByKeys)
{
    auto& window = open<frmCompass>();
    for (int number = 0; number < watches; ++number) {
        keepWatch(window, number);
        ASSERT_EQ(book().size(), static_cast<std::size_t>(number + 1)) << "on the disk at once";
        const bool isTold = window.notice().contains("lies");
        EXPECT_EQ(isTold, number == blunder) << number << ": " << window.notice().toStdString();
    }
    for (const CompassLine& line : book()) {
        EXPECT_NEAR(line.readings[0].error->value(), gyroError, 0.1);
        EXPECT_EQ(line.variationSource, "WMM-2025");
    }
    for (const auto& [kind, wanted] : {std::pair(CompassKind::Standard, ofStandard),
                                       std::pair(CompassKind::Steering, ofSteering)}) {
        const DeviationCurve curve = deviationCurve(book(), kind);
        ASSERT_TRUE(curve.fit);
        for (int head = 0; head < 360; head += 5)
            EXPECT_NEAR(curve.fit->coefficients().at(Degrees(head)).value(),
                        wanted.at(Degrees(head)).value(), 0.3)
                << head;
        EXPECT_EQ(std::ranges::count_if(curve.points, &DeviationCurve::Point::isBlunder), 1);
        EXPECT_TRUE(curve.points[blunder].isBlunder);
    }
    click(window, "cmdPage(2)");
    const auto figure = [&](int i) {
        return text(window, memberName("lblDeviation", i).toStdString());
    };
    EXPECT_EQ(figure(1).substr(0, 2), "B ");
    EXPECT_NEAR(shownFigure(figure(1)), 5, 0.3);
    EXPECT_NEAR(shownFigure(figure(2)), -2, 0.3);
    EXPECT_THAT(window.notice().toStdString(), ::testing::HasSubstr("Left out: 2026/09/12 07:23"));
    const auto& lines = dynamic_cast<QAbstractItemView&>(control(window, "tblDeviation"));
    EXPECT_EQ(lines.model()->rowCount(), watches);
    click(window, "cmdPage(1)");
    const auto& list = dynamic_cast<QAbstractItemView&>(control(window, "tblBook"));
    EXPECT_EQ(list.model()->rowCount(), watches);
    EXPECT_EQ(list.model()->index(0, 0).data().toString(), "2026/09/30 21:58")
        << "the latest first";
    EXPECT_EQ(list.currentIndex().row(), 1) << "what was recorded last, of 07:59, is in hand";
}

TEST_F(frmCompassTest, aLineOfTheBookComesBackIntoTheBoxes)
{
    auto& window = open<frmCompass>();
    keepWatch(window, 0);
    type(window, "txtCompass(10)", "-7");
    keepWatch(window, 1);
    const auto takeBack = [&](int row) {
        click(window, "cmdPage(1)");
        auto& list = dynamic_cast<QAbstractItemView&>(control(window, "tblBook"));
        list.setCurrentIndex(list.model()->index(row, 0));
        click(window, "cmdTake");
    };
    takeBack(1); // the earlier one
    EXPECT_EQ(text(window, "txtCompass(10)"), "-7.0");
    EXPECT_EQ(text(window, "lblCompass(15)"), "7.0 W");
    takeBack(0);
    EXPECT_EQ(text(window, "txtCompass(10)"), "");
    EXPECT_THAT(text(window, "lblCompass(15)"), ::testing::HasSubstr("(WMM-2025)"));
    const auto hint = [&] {
        return dynamic_cast<QLineEdit&>(control(window, "txtCompass(10)")).placeholderText();
    };
    EXPECT_TRUE(QString::fromStdString(text(window, "lblCompass(15)")).startsWith(hint() + " ±"));
    click(window, "optVariation(1)");
    EXPECT_EQ(hint(), "");
    click(window, "optVariation(0)");
    EXPECT_EQ(text(window, "txtCompass(1)"), "35.1");
    type(window, "txtCourses(0)", "100");
    choose(window, "mnuAC(1)");
    EXPECT_EQ(text(window, "txtCourses(0)"), "");
    EXPECT_EQ(text(window, "txtCompass(1)"), "35.1") << "the observation is another's to clear";
    choose(window, "mnuAC(0)");
    EXPECT_EQ(text(window, "txtCompass(1)"), "");
}

/// Coefficients of 2025 as another edition, in their producer's format.
std::string otherEdition()
{
    std::istringstream rows(contentOf(sourceFile("data/sky/wmm2025.csv")));
    std::string file = "    2030.0            WMM-2030     11/13/2029\n", row;
    std::getline(rows, row);
    while (std::getline(rows, row)) {
        std::ranges::replace(row, ',', ' ');
        file += "  " + row + "\n";
    }
    return file + std::string(48, '9') + "\n" + std::string(48, '9') + "\n";
}

TEST_F(frmCompassTest, anotherEditionOfTheModelServesItsYearsAndIsNamed)
{
    writeFile("WMM.COF", otherEdition());
    auto& window = open<frmCompass>();
    EXPECT_EQ(window.notice(), "");
    type(window, "txtCompass(0)", "2031/7/1 3:00:00\r35\r140\r");
    EXPECT_THAT(text(window, "lblCompass(15)"), ::testing::HasSubstr("(WMM-2030)"));
    type(window, "txtCompass(0)", "2026/7/1 3:00:00");
    EXPECT_THAT(text(window, "lblCompass(15)"), ::testing::HasSubstr("(WMM-2025)"));
}

/// Five years of watches: a key still answers, and the book comes back whole.
/// Lines of every four hours.
CompassBook bookOf(std::size_t lines)
{
    CompassBook book;
    for (std::size_t i = 0; i < lines; ++i) {
        CompassLine line;
        line.UTC = *readIso("2021-01-01T04:00:00Z") + std::chrono::hours(4 * i);
        line.body = "Sun";
        line.observer = "2/O";
        line.latitude = line.longitude = Degrees(35.0 + 1.0 / 3);
        line.trueBearing = line.variation = Degrees(100.0 / 3);
        for (CompassReading& reading : line.readings) {
            reading.head = Degrees(static_cast<double>(77 * i % 360) + 0.1);
            reading.bearing = Degrees(100.0 / 7);
            reading.error = Degrees(5.0 / 7);
            reading.deviation = ofStandard.at(*reading.head) + Degrees(i % 2 == 0 ? 0.4 : -0.4);
        }
        book.push_back(std::move(line));
    }
    return book;
}

TEST_F(frmCompassTest, aFullBookIsReadKeptAndRefusesMore)
{
    const CompassBook full = bookOf(mostCompassLines);
    writeFile(compassBookFile, compassBookText(full));
    auto& window = open<frmCompass>();
    keepWatch(window, 0);
    EXPECT_THAT(window.notice().toStdString(), ::testing::HasSubstr("The book is full with 12000"));
    click(window, "cmdPage(2)");
    EXPECT_NEAR(shownFigure(text(window, "lblDeviation(1)")), 5, 0.1);
    close(window);
    EXPECT_EQ(book(), full);
}

TEST(DeviationCard, hasWhatBelongsToIt)
{
    const CompassBook book = bookOf(40);
    const DeviationCurve curve = deviationCurve(book, CompassKind::Standard);
    PaintedTexts sheet({794, 1123});
    QPainter painter(&sheet);
    drawDeviationCard(painter, {0, 0, 794, 1123},
                      {"Standard", "Example", "2021-02-01 12:00", PaperPicture()}, curve, book);
    painter.end();
    const auto rows = sheet.rows();
    EXPECT_EQ(rows.at(0), "Deviation card, standard compass");
    EXPECT_THAT(rows, ::testing::IsSupersetOf(
                          {"Ship\u00a0\u00a0\u00a0 Example",
                           "Observations\u00a0\u00a0\u00a0 40 lines of the compass book, "
                           "2021/01/01 04:00 to 2021/01/07 16:00 UTC",
                           "Card of\u00a0\u00a0\u00a0 2021-02-01 12:00"}));
    std::ptrdiff_t at = 0;
    for (const auto& line : deviationCard(curve)) {
        const auto found = std::ranges::find(rows, line[0] + " " + line[1] + " " + line[2]);
        ASSERT_NE(found, rows.end()) << line[0];
        EXPECT_GT(found - rows.begin(), std::exchange(at, found - rows.begin()));
    }
    EXPECT_THAT(rows.back(), ::testing::StartsWith("Date ___"));
}

} // namespace
} // namespace korvel
