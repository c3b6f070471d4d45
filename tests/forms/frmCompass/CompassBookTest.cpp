// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CompassBook.h"
#include "forms/frmCompass/CompassList.h"
#include "forms/frmCompass/CompassRecord.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

CompassLine recorded(const char* moment, const char* standard, const char* gyro,
                     std::string remark = {})
{
    CompassInput input;
    input.txtCompass = {moment, "44.31", "69.42", "Sun", gyro, "", standard, "10.2"};
    input.usesModel = false;
    input.txtCompass[static_cast<std::size_t>(CompassBox::Variation)] = "8E";
    return lineOf(input, CalculateCompass(input), "2/O", std::move(remark)).value();
}

CompassBook threeLines()
{
    return {recorded("2008/7/20 4:06:12", "100", "", "haze, \"thin\"\nline \\n =\t"),
            recorded("2008/7/21 4:06:12", "", "103"), recorded("2008/7/19 4:06:12", "101", "102")};
}

TEST(CompassBook, lineKeepsWhatWasFoundAndNothingIsRecordedWithoutAnError)
{
    const CompassLineTexts texts = compassLineTexts(threeLines()[0]);
    EXPECT_EQ(texts.UTC, "2008/07/20 04:06");
    EXPECT_EQ(texts.position, "44°31.0'N 069°42.0'E");
    EXPECT_EQ(texts.trueBearing, "103.1");
    EXPECT_EQ(texts.variation, "8.0 E");
    const auto& standard = texts.compasses[1];
    EXPECT_EQ(standard.bearing + standard.head + standard.error + standard.deviation,
              "100.0010.23.1 E4.9 W");
    EXPECT_EQ(texts.compasses[0].error, "");
    CompassInput withoutBearing;
    withoutBearing.txtCompass = {"2008/7/20 4:06:12", "44.31", "69.42", "Sun"};
    EXPECT_FALSE(lineOf(withoutBearing, CalculateCompass(withoutBearing), "", ""));
}

TEST(CompassBook, filterByCompassLatestFirst)
{
    const CompassBook book = threeLines();
    EXPECT_THAT(compassLines(book, std::nullopt), ElementsAre(1u, 0u, 2u));
    EXPECT_THAT(compassLines(book, CompassKind::Gyro), ElementsAre(1u, 2u));
    EXPECT_THAT(compassLines(book, CompassKind::Standard), ElementsAre(0u, 2u));
    EXPECT_TRUE(compassLines(book, CompassKind::Steering).empty());
    EXPECT_THAT(compassLines({book[0], book[0]}, std::nullopt), ElementsAre(0u, 1u));
}

TEST(CompassBook, listForOtherPrograms)
{
    const CompassBook book = threeLines();
    const std::string list = csvText(compassList(book, {0}));
    EXPECT_THAT(list, HasSubstr("2008-07-20T04:06:12Z,44.516667,69.7,Sun,azimuth,103.1"));
    EXPECT_THAT(list, HasSubstr(",8.0,typed,,,,,100.0,10.2,3.1"));
    for (const auto& row : compassList(book, {0, 1, 2}).rows)
        EXPECT_EQ(row.size(), compassList(book, {}).headings.size());
}

TEST(CompassList, comesBackToTheLastDigitThatItHas)
{
    CompassBook book = threeLines();
    book[0].remark = "haze, \"thin\"; =1+1";
    book[1].readings[1] = {{}, Degrees(12.5), Degrees(3.25), Degrees(-4.75), true};
    book[2].method = CompassMethod::Amplitude;
    book[2].longitude.reset();
    const std::string text = csvText(compassList(book, {0, 1, 2}));
    const ReadCompassList read = readCompassList(text);
    EXPECT_EQ(read.fault, "");
    EXPECT_EQ(csvText(compassList(read.lines, {0, 1, 2})), text);
    EXPECT_EQ(read.lines[0].remark, book[0].remark);
    EXPECT_TRUE(read.lines[1].readings[1].byHeads);
    EXPECT_FALSE(read.lines[0].readings[1].byHeads) << "of which nothing was read";
    EXPECT_EQ(
        readCompassList(csvText(compassList(book, std::vector<std::size_t>(mostCompassLines, 0))))
            .lines.size(),
        mostCompassLines);
    CompassBook grown = {book[0]};
    EXPECT_EQ(addNewLines(grown, read.lines), 2u) << "the first stands there already";
    EXPECT_EQ(addNewLines(grown, read.lines), 0u);
    ASSERT_EQ(grown.size(), 3u);
    EXPECT_EQ(grown[0], book[0]) << "with all its digits";
}

TEST(CompassList, aFaultIsNamedByLineAndColumnAndNothingIsRead)
{
    const std::string head = csvText(compassList({}, {}));
    const std::string rest(13, ',');
    const auto faultOf = [&](const std::string& lines) {
        const ReadCompassList read = readCompassList(lines);
        EXPECT_TRUE(read.lines.empty());
        return read.fault;
    };
    EXPECT_EQ(faultOf("utc,lat\n"), "line 1: it is not the heading of a compass book");
    EXPECT_EQ(faultOf(""), "line 1: it is not the heading of a compass book");
    EXPECT_EQ(faultOf(head), "line 2: there is no line of a book");
    EXPECT_EQ(faultOf(head + "2026-01-01T00:00:00Z,1,2\n"), "line 2: it has 3 fields, not 22");
    const std::string good = "2026-01-01T00:00:00Z,1,2,Sun,azimuth,,,typed" + rest + ",\n";
    EXPECT_EQ(readCompassList(head + good).fault, "");
    EXPECT_EQ(faultOf(head + "\"2026\n"), "line 2: its quotation marks do not match");
    std::string many = head;
    for (std::size_t i = 0; i <= mostCompassLines; ++i)
        many += good;
    EXPECT_EQ(faultOf(many), "line 12002: more than 12000 lines");
    EXPECT_EQ(faultOf(head + good + "1.2.2026,1,2,Sun,azimuth,,,typed" + rest + ",\n"),
              "line 3, utc: \"1.2.2026\" is no date and time of the form 2026-11-21T16:00:00Z");
    EXPECT_EQ(faultOf(head + "2026-01-01T00:00:00Z,91,2,Sun,azimuth,,,typed" + rest + ",\n"),
              "line 2, lat_deg: \"91\" is no angle within 90");
    const std::pair<const char*, bool> places[] = {
        {"-90,-180", true}, {"90,180", true},   {"90.1,0", false},
        {"-90.1,0", false}, {"0,180.1", false}, {"0,-180.1", false},
    };
    for (const auto& [place, isGood] : places)
        EXPECT_EQ(readCompassList(head + "2026-01-01T00:00:00Z," + place +
                                  ",Sun,azimuth,360,-180,typed,360" + rest.substr(1) + ",\n")
                      .fault.empty(),
                  isGood)
            << place;
    for (const auto& [figures, why] :
         {std::pair(",360.1,0,typed,", "true_bearing_deg: \"360.1\" is no angle within 360"),
          std::pair(",0,180.1,typed,", "variation_deg: \"180.1\" is no angle within 180"),
          std::pair(",0,0,typed,nan", "gyro_bearing_deg: \"nan\" is no angle within 360")})
        EXPECT_EQ(faultOf(head + "2026-01-01T00:00:00Z,1,2,Sun,azimuth" + figures + rest.substr(1) +
                          ",\n"),
                  std::string("line 2, ") + why);
    EXPECT_EQ(faultOf(head + "2026-01-01T00:00:00Z,1,2,Sun,by eye,,,typed" + rest + ",\n"),
              "line 2, method: \"by eye\" is neither azimuth nor amplitude");
}

TEST(CompassRecord, everythingComesBack)
{
    CompassBook book = threeLines();
    book[1].readings[1].byHeads = true;
    book[2].method = CompassMethod::Amplitude;
    book[2].longitude.reset();
    const ReadCompassBook read = readCompassBook(compassBookText(book));
    EXPECT_EQ(read.damage, "");
    EXPECT_EQ(read.book, book);
    EXPECT_EQ(readCompassBook(compassBookText({})).book, CompassBook{});
}

TEST(CompassRecord, damageIsNamedAndTheRestRead)
{
    const std::string head = "KORVEL2000 compass book 1\r\n", time = "utc=2026-01-02T03:04:05Z\n";
    const auto damageOf = [](const std::string& text) { return readCompassBook(text).damage; };
    EXPECT_FALSE(readCompassBook("KORVEL2000 passage plan 1\n").isBook);
    EXPECT_FALSE(readCompassBook("").isBook);
    EXPECT_EQ(damageOf(head + "line\n" + time + "colour=blue\n"), "") << "of a later version";
    EXPECT_EQ(damageOf(head + "line\n" + time + "rubbish\n"), "line 4: it cannot be read");
    EXPECT_EQ(damageOf(head + "line\n" + time + "utc=soon\n"), "line 4: no time");
    EXPECT_EQ(damageOf(head + "line\n" + time + "latitude=91\n"), "line 4: no angle within 90");
    EXPECT_EQ(damageOf(head + "line\n" + time + "gyro head=nan\n"), "line 4: no angle within 360");
    EXPECT_EQ(damageOf(head + "line\n" + time + "remark=\xff\n"), "line 4: it cannot be read");
    const ReadCompassBook early =
        readCompassBook(head + "body=Sun\nline\n" + time + "gyro by=eye\ngyro colour=heads\n");
    EXPECT_EQ(early.damage, "") << "a value of no line is none's";
    ASSERT_EQ(early.book.size(), 1u);
    EXPECT_EQ(early.book[0].body, "");
    EXPECT_FALSE(early.book[0].readings[0].byHeads || early.book[0].readings[1].byHeads);
    const ReadCompassBook timeless = readCompassBook(head + "line\nbody=Sun\nline\n" + time);
    EXPECT_EQ(timeless.damage, "line 2: an observation without a time");
    EXPECT_EQ(timeless.book.size(), 1u);
    std::string many = head;
    for (std::size_t i = 0; i <= mostCompassLines; ++i)
        many += "line\n" + time;
    EXPECT_EQ(readCompassBook(many).book.size(), mostCompassLines);
    EXPECT_EQ(damageOf(many), "line 24002: more than 12000 lines");
}

} // namespace
} // namespace korvel
