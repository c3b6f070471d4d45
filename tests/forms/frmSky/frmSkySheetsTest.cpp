// SPDX-License-Identifier: MIT
#include "forms/frmSky/pages/AlmanacSheets.h"

#include "almanac/page_text.h"
#include "tests/shell/PaintedTexts.h"

#include <gmock/gmock.h>

#include <QPainter>

#include <algorithm>
#include <regex>
#include <set>
#include <sstream>

namespace korvel
{
namespace
{

std::string simplified(const std::string& text)
{
    return QString::fromStdString(text).simplified().toStdString();
}

/// What the page as text has in a row of the sheets: an hour, a star, a planet, a latitude in the
/// morning and in the evening, a day.
std::vector<std::vector<std::string>> rowsOf(const std::string& page)
{
    static const std::regex hour(R"((?:.{3} )?(\d\d) \| (.*))"), day(R"(.*\) +([-+].*)% (.*))"),
        planet(R"((?:Aries -|Venus|Mars|Jupiter|Saturn)( .*))"),
        latitude(R"((0|[NS] \d\d) \|(.*)\|(.*)\|(.*)\|(.*))"),
        star(R"([A-Z][A-Za-z' ]+ \d+ \d\d\.\d [NS] \d+ \d\d\.\d)");
    std::vector<std::vector<std::string>> rows(6);
    std::istringstream lines(page);
    for (std::string line; std::getline(lines, line);) {
        line = simplified(line);
        std::smatch found;
        if (std::regex_match(line, found, latitude)) {
            rows[0].push_back(simplified(found.str(1) + " " + found.str(2) + found.str(3)));
            rows[1].push_back(simplified(found.str(1) + " " + found.str(4) + found.str(5)));
        } else if (std::regex_match(line, found, hour))
            rows[2].push_back(found.str(1) + " " + found.str(2));
        else if (std::regex_match(line, found, planet))
            rows[3].push_back(simplified(found.str(1)));
        else if (std::regex_match(line, found, day))
            rows[4].push_back(found.str(1) + " " + found.str(2));
        for (std::sregex_iterator each(line.begin(), line.end(), star), end; each != end; ++each)
            rows[5].push_back(each->str());
    }
    return rows;
}

TEST(AlmanacSheets, haveTheRowsOfThePageAsText)
{
    const auto page = almanac::makeDailyPage(NavFunc113::MakeDateTime({2026, 11, 22}, 0));
    std::string sheets;
    for (int sheet = 0; sheet < almanacSheets; ++sheet) {
        testing::PaintedTexts paper({4000, 2800});
        QPainter painter(&paper);
        drawAlmanacSheet(painter, {0, 0, 4000, 2800}, page, sheet);
        painter.end();
        for (const std::string& row : paper.rows())
            sheets += simplified(row) + "\n";
        std::set<int> letters, heights;
        for (const testing::PaintedText& each : paper.texts()) {
            letters.insert(each.letters);
            EXPECT_TRUE(QRect(0, 0, 4000, 2800).contains(each.at.toPoint()))
                << each.text.toStdString();
        }
        EXPECT_THAT(letters, ::testing::ElementsAre(::testing::Gt(20))) << "as high as the lines";
        for (const QLineF& rule : paper.lines())
            heights.insert(qRound(rule.y1()));
        EXPECT_EQ(heights.size(), sheet == 0 ? 8U : 10U) << "days and tables are ruled off";
    }
    for (const char* row : {
             "2026 November 22, 23, 24 (Sun, Mon, Tue) Aries, planets, stars\n",
             "UT taken as UTC; Delta T 69.2 s\n",
             "Aries Venus Mars Jupiter Saturn Stars, noon of the middle day\n",
             "GHA GHA Dec GHA Dec GHA Dec GHA Dec Name SHA Dec\nSun 00 60 59.9",
             "\n22 01 76 02.4",
             "\nMon 00 61 59.0",
             "\n24 01 78 00.6",
             "\nPlanets, middle day\n",
             "\nMag. SHA Pass. HP′ v′ d′\n",
             "\nVenus -4.9 157 08.1",
             "(Sun, Mon, Tue) Sun, Moon, twilight\n",
             "\nSun Moon Moonrise\nGHA Dec GHA v′ Dec d′ HP′ Lat. Naut. ",
             " HP′ Lat. Naut. Civil Sunrise 22 23 24 25\n",
             "\nMoonset\n",
             "\nLat. Sunset Civil Naut. 22 23 24 25\n",
             "\nEquation of time Passage Moon\n",
             "\nDay 00h 12h Sun Moon lower age lit % SD′\n",
             "\n22 +14 01",
             "\nSun: SD 16.2′, d -0.5′ of the middle day",
         })
        EXPECT_THAT(sheets, ::testing::HasSubstr(row));
    std::ranges::replace(sheets, '\n', ' ');
    const auto kinds = rowsOf(almanac::pageText(page));
    std::string counts;
    for (const auto& rows : kinds) {
        counts += std::to_string(rows.size()) + " ";
        for (const std::string& row : rows)
            EXPECT_NE(sheets.find(" " + row), sheets.npos) << row;
    }
    EXPECT_EQ(counts, "31 31 144 5 3 58 ");
}

} // namespace
} // namespace korvel
