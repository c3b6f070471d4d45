// SPDX-License-Identifier: MIT
#include "app/alarms.h"

#include "app/Format.h"
#include "navlib/datetime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <deque>
#include <map>
#include <random>
#include <set>

namespace korvel
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/// Answers from a list; "Esc" for Cancel, "Y" and "N" for the buttons. Writes down what was asked.
class Script : public Questions
{
public:
    explicit Script(std::deque<std::string> answers) : m_answers(std::move(answers)) {}

    Answer ask(const Message& message) override
    {
        asked.push_back(message.text);
        EXPECT_EQ(message.title, programTitle);
        if (message.buttons == Buttons::Ok) return Answer::Ok;
        const std::string answer = next();
        return answer == "Y" ? Answer::Yes : answer == "N" ? Answer::No : Answer::Cancel;
    }
    std::optional<std::string> input(const std::string& prompt, const std::string&,
                                     const std::string& defaultAnswer) override
    {
        asked.push_back(prompt + " <" + defaultAnswer + ">");
        const std::string answer = next();
        return answer == "Esc" ? std::nullopt : std::optional(answer);
    }
    void beep() override {}

    std::vector<std::string> asked;

private:
    std::string next()
    {
        if (m_answers.empty()) throw std::runtime_error("unexpected: " + asked.back());
        std::string answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }
    std::deque<std::string> m_answers;
};

std::vector<std::string> alarmDialog(KV_Savedvalue& saved, std::deque<std::string> answers)
{
    Script script(std::move(answers));
    std::string menu = alarmCaption(2, saved) + (saved.alarmEnabled(2) ? " ticked" : "");
    setUpAlarm(2, saved, script,
               [&] { menu = alarmCaption(2, saved) + (saved.alarmEnabled(2) ? " ticked" : ""); });
    EXPECT_EQ(menu, alarmCaption(2, saved) + (saved.alarmEnabled(2) ? " ticked" : ""));
    return script.asked;
}

TEST(AlarmSetUp, asksInOrderAndStores)
{
    KV_Savedvalue saved;
    saved.setAlarmComment(2, "old");
    EXPECT_THAT(alarmDialog(saved, {"Y", "6:00", "wake 2/O", "Y", "N"}),
                ElementsAre("Do you want to set ALARM-2?", "Input ALARM Time( hh:mm ) <00:00>",
                            "Input the comments appear when alarming. <old>",
                            "Do you set this alarm enabled？",
                            "Completed the setting of ALARM-2\rTime：06:00\rComment：wake 2/O\r"
                            "Use：Enabled\rAre you sure to use alarm in above settings？"));
    EXPECT_TRUE(saved.alarmEnabled(2)) << "the last answer changes nothing";
    EXPECT_EQ(alarmCaption(2, saved), "Alarm&2: 06:00");
    EXPECT_THAT(alarmDialog(saved, {"Y", "06:30", "", "N", "Y"}).back(),
                testing::HasSubstr("Comment：\rUse：Unable\r"));
    EXPECT_FALSE(saved.alarmEnabled(2));
    EXPECT_THAT(alarmDialog(saved, {"N"}), ElementsAre("Do you want to set ALARM-2?"));
}

TEST(AlarmSetUp, asksAgainForWhatIsNoTime)
{
    for (const char* wrong : {"24:00", "6:60", "630", "6", "05/03/14 06:30"}) {
        KV_Savedvalue saved;
        saved.setAlarmTime(2, "05:15");
        const auto asked = alarmDialog(saved, {"Y", wrong, "２３：５９", "c", "Y", "Y"});
        ASSERT_GE(asked.size(), 4u) << wrong;
        EXPECT_EQ(asked[2], "Incorrect value.") << wrong;
        EXPECT_EQ(asked[3], "Input ALARM Time( hh:mm ) <05:15>") << wrong;
        EXPECT_EQ(saved.alarmTime(2), "23:59") << wrong;
    }
}

TEST(AlarmSetUp, cancelAnywhereLeavesTheAlarmAsItWas)
{
    const std::vector<std::deque<std::string>> answers = {{"N"},
                                                          {"Esc"},
                                                          {"Y", "Esc"},
                                                          {"Y", ""},
                                                          {"Y", "9:00x", "Esc"},
                                                          {"Y", "6:00", "Esc"},
                                                          {"Y", "6:00", "new", "Esc"}};
    for (const auto& each : answers) {
        KV_Savedvalue saved;
        saved.setAlarmTime(2, "05:15");
        saved.setAlarmComment(2, "old");
        saved.setAlarmEnabled(2, true);
        std::string caption;
        Script script(each);
        setUpAlarm(2, saved, script, [&] { caption = alarmCaption(2, saved); });
        EXPECT_EQ(saved.alarmTime(2) + saved.alarmComment(2), "05:15old") << each.size();
        EXPECT_TRUE(saved.alarmEnabled(2)) << each.size();
        EXPECT_TRUE(caption.empty() || caption == "Alarm&2: 05:15") << caption;
    }
}

TEST(AlarmSetUp, timeSignal)
{
    KV_Savedvalue saved;
    Script wrong({"Y", "60", "-1", "5.5", "five", "59"});
    setUpTimeSignal(saved, wrong);
    EXPECT_EQ(wrong.asked[2], "60 is incorrect value.");
    EXPECT_EQ(wrong.asked.size(), 10u);
    EXPECT_TRUE(saved.timeSignal());
    EXPECT_EQ(saved.timeSignalMinutes(), 59);
    for (const std::deque<std::string>& cancelled :
         {std::deque<std::string>{"Esc"}, {"Y", "Esc"}, {"Y", ""}}) {
        Script script(cancelled);
        setUpTimeSignal(saved, script);
        EXPECT_TRUE(saved.timeSignal());
        EXPECT_EQ(saved.timeSignalMinutes(), 59);
    }
    Script off({"N"});
    setUpTimeSignal(saved, off);
    EXPECT_FALSE(saved.timeSignal());
}

/// 2005/03/day hh:mm:ss
NavFunc113::DateTime at(int day, int hour, int minute, int second = 0)
{
    return NavFunc113::MakeDateTime({2005, 3, day}, hour * 3600 + minute * 60 + second);
}

/// One ship with alarm 1 at 06:30 and whatever else a test sets.
struct Ship {
    Ship() { set(1, "06:30", "wake"); }

    void set(int n, const char* time, const char* comment)
    {
        saved.setAlarmTime(n, time);
        saved.setAlarmComment(n, comment);
        saved.setAlarmEnabled(n, true);
    }
    std::vector<std::string> check(NavFunc113::DateTime smt)
    {
        std::vector<std::string> texts;
        for (const Due& due : alarms.check(smt))
            texts.push_back(due.text);
        return texts;
    }
    /// Whether alarm 1 rings on the last of a row of readings, and is silent on the others.
    bool ringsAtLast(const std::vector<NavFunc113::DateTime>& readings)
    {
        for (std::size_t i = 0; i + 1 < readings.size(); ++i)
            EXPECT_THAT(check(readings[i]), IsEmpty());
        return check(readings.back()) == std::vector<std::string>{"06:30 wake"};
    }

    KV_Savedvalue saved;
    Alarms alarms{saved};
};

TEST(Alarms, rings)
{
    const struct {
        const char* fault;
        std::vector<NavFunc113::DateTime> readings;
        bool rings;
    } rows[] = {
        {"not in its minute", {at(14, 6, 29), at(14, 6, 30)}, true},
        {"not when the program starts in its minute", {at(14, 6, 30, 59)}, true},
        {"for what was over before the program started", {at(14, 6, 31)}, false},
        {"not late after sleep", {at(14, 6, 29), at(14, 7, 29, 59)}, true},
        {"after an hour", {at(14, 6, 29), at(14, 7, 30)}, false},
        {"not late after days", {at(14, 6, 29), at(17, 7, 0)}, true},
        {"not after the clock was set back before it",
         {at(14, 9, 0), at(14, 6, 0), at(14, 6, 30)},
         true},
        {"on a clock set back to after it", {at(14, 9, 0), at(14, 7, 0)}, false},
        {"not when a wrong clock ran ahead of it and was put right",
         {at(14, 6, 0), at(14, 12, 0), at(14, 6, 45)},
         true},
        {"not over a month end", {at(31, 23, 59), at(32, 6, 31)}, true},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Ship().ringsAtLast(row.readings), row.rings) << row.fault;
}

TEST(Alarms, neverTwiceForOneMinuteOfOneDay)
{
    Ship ship;
    EXPECT_TRUE(ship.ringsAtLast({at(14, 6, 29), at(14, 6, 30)}));
    for (const auto& again : {at(14, 6, 30, 30), at(14, 6, 31), at(14, 5, 30), at(14, 6, 30),
                              at(13, 6, 31), at(14, 6, 40)})
        EXPECT_THAT(ship.check(again), IsEmpty());
    EXPECT_THAT(ship.check(at(13, 6, 30)), ElementsAre("06:30 wake")) << "date line: another day";
    EXPECT_THAT(ship.check(at(15, 6, 30)), ElementsAre("06:30 wake")) << "every day";
}

TEST(Alarms, inTheOrderOfTheirTimes)
{
    Ship ship;
    ship.set(2, "06:25", "call");
    ship.set(3, "00:00", "midnight");
    ship.set(5, "06:30", "pilot");
    ship.set(4, "06:60", "no time");
    ship.saved.setTimeSignal(true);
    ship.saved.setTimeSignalMinutes(25);
    EXPECT_THAT(ship.check(at(14, 6, 20)), IsEmpty());
    EXPECT_THAT(ship.alarms.check(at(14, 6, 35)),
                ElementsAre(Due{"06:25 call", true}, Due{"06:30 wake", true},
                            Due{"06:30 pilot", true}, Due{"Time Signal before 25minutes", false}));
    EXPECT_THAT(ship.check(at(14, 23, 59)), IsEmpty());
    EXPECT_THAT(ship.check(at(15, 0, 0) - 0.3 / 86400), ElementsAre("00:00 midnight"))
        << "the nearest second counts";
}

TEST(Alarms, honourWhatIsSetBetweenChecks)
{
    Ship ship;
    EXPECT_THAT(ship.check(at(14, 6, 0)), IsEmpty());
    ship.set(1, "05:45", "just gone");
    ship.set(2, "06:00", "this minute");
    ship.set(3, "06:01", "next minute");
    EXPECT_THAT(ship.check(at(14, 6, 1)), ElementsAre("06:01 next minute"));
    ship.saved.setAlarmEnabled(3, false);
    EXPECT_THAT(ship.check(at(14, 6, 5)), IsEmpty());
    ship.set(4, "06:10", "off when its time came");
    ship.saved.setAlarmEnabled(4, false);
    EXPECT_THAT(ship.check(at(14, 6, 12)), IsEmpty());
    ship.saved.setAlarmEnabled(4, true);
    EXPECT_THAT(ship.check(at(14, 6, 13)), IsEmpty());
    ship.saved.setAlarmTime(4, "06:14");
    ship.saved.setAlarmComment(4, "moved");
    EXPECT_THAT(ship.check(at(14, 6, 14)), ElementsAre("06:14 moved"));
    EXPECT_THAT(ship.check(at(15, 5, 50)), ElementsAre("05:45 just gone")) << "tomorrow";
}

TEST(Alarms, clocksAdvancedByAnHourLoseNone)
{
    // TD is put forward at 06:29:30. By the next check 06:30 is a whole hour gone.
    Ship ship;
    EXPECT_THAT(ship.check(at(14, 6, 29)), IsEmpty());
    ship.alarms.clockChanged(at(14, 7, 29, 30));
    EXPECT_THAT(ship.check(at(14, 7, 30)), ElementsAre("06:30 wake"));
    EXPECT_THAT(ship.check(at(14, 7, 31)), IsEmpty());
}

TEST(Alarms, timeSignal)
{
    const struct {
        const char* fault;
        int before;
        std::vector<NavFunc113::DateTime> readings;
        std::vector<std::string> last;
    } rows[] = {
        {"O'clock", 0, {at(14, 8, 0)}, {"Time Signal O'clock"}},
        {"before", 5, {at(14, 8, 54), at(14, 8, 55)}, {"Time Signal before 5minutes"}},
        {"59 is the first minute", 59, {at(14, 8, 1)}, {"Time Signal before 59minutes"}},
        {"on the hour though minutes are set", 5, {at(14, 9, 0)}, {}},
        {"late", 0, {at(14, 7, 59), at(14, 8, 1)}, {}},
    };
    for (const auto& row : rows) {
        Ship ship;
        ship.saved.setTimeSignal(true);
        ship.saved.setTimeSignalMinutes(row.before);
        std::vector<std::string> last;
        for (const auto& reading : row.readings)
            last = ship.check(reading);
        EXPECT_EQ(last, row.last) << row.fault;
        EXPECT_THAT(ship.check(row.readings.back()), IsEmpty()) << row.fault;
    }
}

/// Feeds an alarm watch as the main window's clock does: a check at each change of "hh:mm".
class Clock
{
public:
    explicit Clock(Alarms& alarms) : m_alarms(alarms) {}

    void tick(long utcSecond, float TD)
    {
        if (utcSecond / 60 == m_minute) return;
        m_minute = utcSecond / 60;
        const double smt = static_cast<double>(utcSecond) / 86400 + double(TD) / 24;
        for (const Due& due : m_alarms.check(smt))
            if (due.text.substr(0, 6) == Format(smt, "hh:mm "))
                ++rung[due.text];
            else
                ++late;
    }

    std::map<std::string, long> rung;
    long late = 0;

private:
    Alarms& m_alarms;
    long m_minute = -1;
};

/// How often an alarm's minute begins, or has begun, in the minutes first .. last.
long timesDue(long first, long last, int minuteOfDay)
{
    const auto upTo = [&](long minute) { return (minute - minuteOfDay + 1440) / 1440; };
    return upTo(last) - upTo(first - 1);
}

TEST(Alarms, tenYearsOfSecondsMissNoneAndDoubleNone)
{
    // The 241 TDs share ten years, each a fortnight of them and a fresh start. Every tick of a
    // second is made on the first day of a fortnight; after it one tick a minute, at a
    // second drawn at random, is enough: the watch is told minutes, and the other 59 ticks of a
    // minute end in the comparison of minutes that is made here too.
    const int minutes[] = {0, 1, 390, 719, 1439};
    const long start = NavFunc113::DaySerial({2001, 1, 1}) * 86400;
    const long end = NavFunc113::DaySerial({2011, 1, 1}) * 86400;
    std::mt19937 random(1);
    std::uniform_int_distribution<long> second(0, 59);
    long days = 0;
    for (int tenths = -120; tenths <= 120; ++tenths) {
        const float TD = static_cast<float>(tenths) / 10;
        const auto share = [&](int i) { return start + (end - start) / 60 * i / 241 * 60; };
        const long from = share(tenths + 120);
        const long to = share(tenths + 121);
        Ship ship;
        for (int n = 1; n <= 5; ++n)
            ship.set(n, Format(minutes[n - 1] / 1440.0, "hh:mm").c_str(), "");
        Clock clock(ship.alarms);
        for (long s = from; s < to;) {
            clock.tick(s, TD);
            const bool everySecond = s < from + 86400;
            s = everySecond ? s + 1 : (s / 60 + 1) * 60 + second(random);
        }
        const long offset = tenths * 6;
        for (const int minute : minutes) {
            const long due = timesDue(from / 60 + offset, (to - 1) / 60 + offset, minute);
            ASSERT_EQ(clock.rung[Format(minute / 1440.0, "hh:mm ")], due) << TD;
            days += due;
        }
        ASSERT_EQ(clock.late, 0) << TD;
    }
    EXPECT_NEAR(static_cast<double>(days), 5 * 3652, 5 * 241);
}

/// The rule in other words: walks over every day that a step of the clock crosses, and keeps lists
/// of what was passed and what was rung.
class Model
{
public:
    void set(int alarm, std::optional<long> minuteOfDay)
    {
        m_time[alarm] = minuteOfDay;
        m_passed[alarm].clear();
    }

    std::multiset<std::string> step(long now)
    {
        std::multiset<std::string> texts;
        const long before = m_now && now > *m_now ? *m_now : m_now && now == *m_now ? now : now - 1;
        for (const auto& [alarm, time] : m_time) {
            if (!time) continue;
            for (long day = before / 1440; day <= now / 1440; ++day)
                if (day * 1440 + *time > before && day * 1440 + *time <= now)
                    m_passed[alarm].insert(day * 1440 + *time);
            for (const long own : m_passed[alarm])
                if (own <= now && now - own < 60 && m_rung.insert({alarm, own}).second)
                    texts.insert(std::to_string(alarm) + " " + std::to_string(*time));
        }
        m_now = now;
        return texts;
    }

private:
    std::map<int, std::optional<long>> m_time;
    std::map<int, std::set<long>> m_passed;
    std::set<std::pair<int, long>> m_rung;
    std::optional<long> m_now;
};

TEST(Alarms, thousandSequencesOfClockJumpsFollowTheRule)
{
    int rung = 0;
    for (unsigned seed = 0; seed < 1000; ++seed) {
        std::mt19937 random(seed);
        const auto draw = [&](long low, long high) {
            return std::uniform_int_distribution<long>(low, high)(random);
        };
        Ship ship;
        Model model;
        const auto setAlarm = [&](int n) {
            const long minute = draw(0, 3) ? draw(0, 1439) : draw(0, 1) * 1439;
            const std::string time = Format(double(minute) / 1440, "hh:mm");
            const bool enabled = draw(0, 4) != 0;
            if (time == ship.saved.alarmTime(n) && enabled == ship.saved.alarmEnabled(n)) return;
            const std::string comment = std::to_string(n) + " " + std::to_string(minute);
            ship.set(n, time.c_str(), comment.c_str());
            ship.saved.setAlarmEnabled(n, enabled);
            model.set(n, enabled ? std::optional(minute) : std::nullopt);
        };
        for (int n = 1; n <= 5; ++n)
            setAlarm(n);
        // Near month ends, leap day and new year, at any second.
        const NavFunc113::CivilDate dates[] = {
            {2004, 2, 28}, {2005, 2, 28}, {2009, 12, 31}, {2007, 4, 30}};
        long second = NavFunc113::DaySerial(dates[seed % 4]) * 86400 + draw(0, 86399);
        for (int step = 0; step < 150; ++step) {
            const long jumps[] = {draw(1, 90),
                                  draw(1, 90),
                                  draw(1, 3599),
                                  draw(-3700, 3700),
                                  draw(0, 1) * 7200 - 3600, // TD
                                  draw(-43200, 43200),
                                  draw(0, 1) * 172800 - 86400, // date line
                                  draw(-864000, 864000),
                                  draw(3500, 40000)}; // sleep
            second += jumps[draw(0, 8)];
            if (draw(0, 20) == 0) setAlarm(static_cast<int>(draw(1, 5)));
            std::multiset<std::string> texts;
            for (const Due& due : ship.alarms.check(static_cast<double>(second) / 86400)) {
                const std::string comment = due.text.substr(6);
                const long minute = std::stol(comment.substr(2));
                ASSERT_EQ(due.text.substr(0, 6), Format(double(minute) / 1440, "hh:mm "));
                texts.insert(comment);
            }
            ASSERT_EQ(texts, model.step(second / 60)) << "seed " << seed << " step " << step;
            rung += static_cast<int>(texts.size());
        }
    }
    EXPECT_GT(rung, 10000) << "the sequences must ring something";
}

} // namespace
} // namespace korvel
