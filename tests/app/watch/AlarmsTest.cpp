// SPDX-License-Identifier: MIT
#include "app/watch/Alarms.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "navlib/datetime.h"
#include "tests/app/FakeMachine.h"
#include "tests/golden/Golden.h"

#include <cmath>
#include <cstdint>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <utility>

namespace korvel
{
namespace
{

using korvel::testing::Golden;
using korvel::testing::golden;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

void setAlarm(KV_Savedvalue& saved, int n, const std::string& time, const std::string& comment)
{
    saved.setAlarmTime(n, time);
    saved.setAlarmComment(n, comment);
    saved.setAlarmEnabled(n, true);
}

/// 23:57:20. No constant: the library's own need not be there before main().
NavFunc113::DateTime lateEvening()
{
    return NavFunc113::MakeDateTime({2005, 3, 14}, 23 * 3600 + 57 * 60 + 20);
}

/// Settings as the tables write them: "alarm 2 06:25 call; off 2; on 2; signal 25".
void set(KV_Savedvalue& saved, const std::string& settings)
{
    std::istringstream each(settings);
    for (std::string setting, word, time, comment; std::getline(each, setting, ';');) {
        std::istringstream words(setting);
        int n = 0;
        words >> word >> n >> time;
        std::getline(words >> std::ws, comment);
        if (word == "alarm") setAlarm(saved, n, time, comment);
        if (word == "on" || word == "off") saved.setAlarmEnabled(n, word == "on");
        if (word == "signal") saved.setTimeSignal(true), saved.setTimeSignalMinutes(n);
    }
}

/// Alarm 2 and the time signal: "05:15 old on, signal 59 on".
std::string kept(const KV_Savedvalue& saved)
{
    const auto tick = [](bool on) { return on ? " on" : " off"; };
    return saved.alarmTime(2) + " " + saved.alarmComment(2) + tick(saved.alarmEnabled(2)) +
           ", signal " + std::to_string(saved.timeSignalMinutes()) + tick(saved.timeSignal());
}

TEST(AlarmSetUp, aMinuteIsBegunHalfASecondAfterItsStart)
{
    for (const auto& [after, due] : {std::pair{0.498, "23:58"}, {0.502, "23:59"}}) {
        const double seconds = after; // a lambda takes no part of a pair
        KV_Savedvalue saved;
        testing::FakeQuestions questions;
        questions.will("Yes; +1; ; Yes; Yes");
        setUpAlarm(
            1, saved, questions,
            [&] {
                return NavFunc113::MakeDateTime({2005, 3, 14}, 23 * 3600 + 57 * 60 + seconds);
            },
            [] {});
        EXPECT_EQ(saved.alarmTime(1), due) << seconds;
    }
}

TEST(NextAlarm, isTheNearestOfThoseThatAreOn)
{
    const struct {
        const char *settings, *next;
    } rows[] = {{"", "No alarm"},
                {"alarm 1 09:40 a; alarm 2 10:00 b", "Next alarm 10:00 b"},
                {"alarm 1 09:44 a; alarm 2 09:45 b", "Next alarm 09:44 a"}, // that of now has rung
                {"alarm 1 09:45 a", "Next alarm 09:45 a"},
                {"alarm 1 09:46 a; alarm 2 09:45 b", "Next alarm 09:46 a"},
                {"alarm 2 10:00 b; alarm 4 10:00 d", "Next alarm 10:00 b"},
                {"alarm 1 10:00 a; alarm 5 09:50 e; off 1", "Next alarm 09:50 e"},
                {"alarm 1 6.30 a", "No alarm"}};
    for (const auto& [settings, next] : rows) {
        KV_Savedvalue saved;
        set(saved, settings);
        EXPECT_EQ(nextAlarmText(saved, 38425.40625), next) << settings; // 09:45
        EXPECT_EQ(nextAlarmText(saved, HUGE_VAL), "No alarm");
    }
}

TEST(AlarmSetUp, asksAndKeeps)
{
    for (const Golden& row : golden("alarm_dialogs")) {
        SCOPED_TRACE(row);
        KV_Savedvalue saved;
        set(saved, row.text("before"));
        testing::FakeQuestions questions;
        questions.will(row.text("answers"));
        const auto entry = [&] {
            return alarmCaption(2, saved) + (saved.alarmEnabled(2) ? " ticked" : "");
        };
        std::string menu = entry();
        if (row.text("dialog") == "alarm")
            setUpAlarm(2, saved, questions, lateEvening, [&] { menu = entry(); });
        else
            setUpTimeSignal(saved, questions);
        EXPECT_EQ(menu, entry());
        EXPECT_EQ(questions.conversation.back(), row.text("last"));
        EXPECT_EQ(kept(saved), row.text("kept"));
        for (const std::string& title : questions.titles)
            EXPECT_EQ(title, programTitle);
    }
}

TEST(AlarmSetUp, asksInOrder)
{
    KV_Savedvalue saved;
    set(saved, "alarm 2 00:00 old");
    testing::FakeQuestions questions;
    questions.will("Yes; 630; OK; 6:00; wake 2/O; Yes; No; Yes; 60; OK; Esc");
    setUpAlarm(2, saved, questions, lateEvening, [] {});
    setUpTimeSignal(saved, questions);
    EXPECT_THAT(questions.conversation,
                ElementsAre("Do you want to set ALARM-2?", "Input ALARM Time( hh:mm ) <00:00>",
                            "Incorrect value.", "Input ALARM Time( hh:mm ) <00:00>",
                            "Input the comments appear when alarming. <old>",
                            "Do you set this alarm enabled？",
                            "Completed the setting of ALARM-2\rTime：06:00\rComment：wake 2/O\r"
                            "Use：Enabled\rAre you sure to use alarm in above settings？",
                            "Do you use the time signal?", HasSubstr("how many minutes"),
                            "60 is incorrect value.", HasSubstr("0 to 59) it sounds. <0>")));
    EXPECT_EQ(alarmCaption(2, saved), "Alarm&2: 06:00");
}

std::vector<std::string> check(Alarms& alarms, NavFunc113::DateTime smt)
{
    std::vector<std::string> texts;
    for (const DueAlarm& due : alarms.check(smt)) {
        texts.push_back(due.text);
        EXPECT_EQ(due.alarm, !due.text.starts_with("Time Signal")) << due.text;
    }
    return texts;
}

TEST(Alarms, fallDue)
{
    std::unique_ptr<KV_Savedvalue> saved;
    std::optional<Alarms> alarms;
    for (const Golden& row : golden("alarms_due")) {
        if (row.has("fault")) {
            saved = std::make_unique<KV_Savedvalue>();
            alarms.emplace(*saved);
        }
        set(*saved, row.text("settings"));
        const double smt = readDateTime(row.text("smt")).value();
        if (row.text("settings") == "clock changed") {
            alarms->clockChanged(smt);
            continue;
        }
        std::string rung;
        for (const std::string& text : check(*alarms, smt))
            rung += (rung.empty() ? "" : " | ") + text;
        EXPECT_EQ(rung, row.text("rung")) << row;
    }
}

TEST(Alarms, ringInTheirMinuteAndNoOtherWithEveryTD)
{
    // Two days at a month end with each TD, told once a minute as the main window's clock does:
    // most often as the minute begins, when a TD in single precision puts it just before.
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int64_t> second(-60, 59);
    for (int tenths = -120; tenths <= 120; ++tenths) {
        const double TD = double(static_cast<float>(tenths) / 10);
        KV_Savedvalue saved;
        Alarms alarms{saved};
        std::map<std::int64_t, std::vector<std::string>> due;
        for (const auto& [n, minute] : {std::pair(1, 0), {2, 1}, {3, 390}, {4, 719}, {5, 1439}}) {
            setAlarm(saved, n, Format(minute / 1440.0, "hh:mm"), "");
            due[minute] = {Format(minute / 1440.0, "hh:mm ")};
        }
        const std::int64_t first =
            NavFunc113::DaySerial({2001 + (tenths + 120) % 10, 2, 28}) * 1440;
        for (std::int64_t minute = first; minute < first + std::int64_t(2) * 1440; ++minute) {
            const double utc =
                double(minute * 60 + std::max(second(random), std::int64_t(0))) / 86400;
            const auto expected = due.find((minute + std::int64_t(tenths) * 6) % 1440);
            ASSERT_EQ(check(alarms, utc + TD / 24),
                      expected == due.end() ? std::vector<std::string>() : expected->second)
                << TD << " " << minute;
        }
    }
}

TEST(NextAlarm, isTheOneThatRingsFirst)
{
    const struct {
        const char* settings;
        const char* smt;
        const char* text;
    } cases[] = {
        {"alarm 2 06:25 call; off 2", "6:00", "No alarm"},
        {"alarm 2 06:25", "6:00", "Next alarm 06:25"},
        {"alarm 2 06:25 call; alarm 3 06:24 early", "6:23", "Next alarm 06:24 early"},
        {"alarm 2 06:25 call; alarm 3 06:25 other", "6:24", "Next alarm 06:25 call"},
        {"alarm 2 06:25 call; alarm 3 06:20 early", "6:25", "Next alarm 06:20 early"}, // it rings
        {"alarm 5 06:25 call", "6:25", "Next alarm 06:25 call"},
        {"alarm 1 23:54 last; alarm 3 00:10 next", "23:55", "Next alarm 00:10 next"},
    };
    for (const auto& each : cases) {
        KV_Savedvalue saved;
        set(saved, each.settings);
        const auto smt = readDateTime(std::string("2005/3/14 ") + each.smt).value();
        EXPECT_EQ(nextAlarmText(saved, smt), each.text) << each.settings;
    }
}

/// The rule in other words: walks over every day that a step of the clock crosses, and keeps lists
/// of what was passed and what was rung.
class Model
{
public:
    void set(int alarm, std::optional<std::int64_t> minuteOfDay)
    {
        m_time[alarm] = minuteOfDay;
        m_passed[alarm].clear();
    }

    std::multiset<std::string> step(std::int64_t now)
    {
        std::multiset<std::string> texts;
        const std::int64_t before = m_now && now >= *m_now ? *m_now : now - 1;
        for (const auto& [alarm, time] : m_time) {
            if (!time) continue;
            for (std::int64_t day = before / 1440; day <= now / 1440; ++day)
                if (day * 1440 + *time > before && day * 1440 + *time <= now)
                    m_passed[alarm].insert(day * 1440 + *time);
            for (const std::int64_t own : m_passed[alarm])
                if (own <= now && now - own < 60 && m_rung.insert({alarm, own}).second)
                    texts.insert(std::to_string(alarm) + " " + std::to_string(*time));
        }
        m_now = now;
        return texts;
    }

private:
    std::map<int, std::optional<std::int64_t>> m_time;
    std::map<int, std::set<std::int64_t>> m_passed;
    std::set<std::pair<int, std::int64_t>> m_rung;
    std::optional<std::int64_t> m_now;
};

TEST(Alarms, thousandSequencesOfClockJumpsFollowTheRule)
{
    int rung = 0;
    for (unsigned seed = 0; seed < 1000; ++seed) {
        std::mt19937 random(seed);
        const auto draw = [&](std::int64_t low, std::int64_t high) {
            return std::uniform_int_distribution<std::int64_t>(low, high)(random);
        };
        KV_Savedvalue saved;
        Alarms alarms{saved};
        Model model;
        const auto drawAlarm = [&](int n) {
            const std::int64_t minute = draw(0, 3) ? draw(0, 1439) : draw(0, 1) * 1439;
            const std::string time = Format(double(minute) / 1440, "hh:mm");
            const bool enabled = draw(0, 4) != 0;
            if (time == saved.alarmTime(n) && enabled == saved.alarmEnabled(n)) return;
            const std::string comment = std::to_string(n) + " " + std::to_string(minute);
            setAlarm(saved, n, time, comment);
            saved.setAlarmEnabled(n, enabled);
            model.set(n, enabled ? std::optional(minute) : std::nullopt);
        };
        for (int n = 1; n <= 5; ++n)
            drawAlarm(n);
        // Near month ends, leap day and new year, at any second.
        const NavFunc113::CivilDate dates[] = {
            {2004, 2, 28}, {2005, 2, 28}, {2009, 12, 31}, {2007, 4, 30}};
        std::int64_t second = NavFunc113::DaySerial(dates[seed % 4]) * 86400 + draw(0, 86399);
        for (int step = 0; step < 150; ++step) {
            // Ticks, short naps, TD, half days, the date line, days, sleep.
            const std::int64_t jumps[] = {draw(1, 90),
                                          draw(1, 90),
                                          draw(1, 3599),
                                          draw(-3700, 3700),
                                          draw(0, 1) * 7200 - 3600,
                                          draw(-43200, 43200),
                                          draw(0, 1) * 172800 - 86400,
                                          draw(-864000, 864000),
                                          draw(3500, 40000)};
            second += jumps[draw(0, 8)];
            if (draw(0, 20) == 0) drawAlarm(static_cast<int>(draw(1, 5)));
            std::multiset<std::string> texts;
            for (const std::string& text : check(alarms, static_cast<double>(second) / 86400)) {
                const std::int64_t minute = std::stol(text.substr(8));
                ASSERT_EQ(text.substr(0, 6), Format(double(minute) / 1440, "hh:mm "));
                texts.insert(text.substr(6));
            }
            ASSERT_EQ(texts, model.step(second / 60)) << "seed " << seed << " step " << step;
            rung += static_cast<int>(texts.size());
        }
    }
    EXPECT_GT(rung, 10000) << "the sequences must ring something";
}

} // namespace
} // namespace korvel
