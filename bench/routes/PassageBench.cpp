// SPDX-License-Identifier: MIT
#include "bench/routes/PlanOfRows.h"
#include "forms/frmPassage/PlanEdit.h"
#include "forms/frmPassage/PlanRoute.h"
#include "forms/frmPassage/PlanTexts.h"
#include "routes/files/RtzReader.h"
#include "routes/files/RtzWriter.h"

#include <QXmlStreamReader>
#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <string_view>

/// The passage plan beside a short one, and beside the toolkit's XML reader. With the arguments
/// "count NAME ROUNDS" only that work is done, that many times, for an instruction count.
namespace
{

using namespace korvel;
using korvel::bench::planOfRows;

constexpr std::size_t rowsOnScreen = 20;

/// A plan in a window, with a digit typed into a latitude of its middle and taken out again.
class KeyInPlan
{
public:
    explicit KeyInPlan(std::size_t rows)
        : m_plan(planOfRows(rows)), m_reckoning(m_plan, conditions), m_row(rows / 2)
    {
    }

    void round()
    {
        const std::string text = m_plan.rows[m_row].latitude;
        type(text + "5");
        type(text);
    }

private:
    static constexpr PlanConditions conditions{NavFunc113::Earth::Spheroid, {}};

    void type(const std::string& latitude)
    {
        PlanRow row = m_plan.rows[m_row];
        row.latitude = latitude;
        m_history.perform(m_plan, typedRow(m_plan.rows, m_row, std::move(row), "txtLat"));
        m_reckoning.takeRow(m_plan, m_row);
        for (std::size_t i = 0; i < rowsOnScreen; ++i)
            benchmark::DoNotOptimize(planRowTexts(m_reckoning, m_row + i - rowsOnScreen / 2));
        benchmark::DoNotOptimize(planTotalTexts(m_reckoning));
        benchmark::DoNotOptimize(m_reckoning.notice());
    }

    PassagePlan m_plan;
    PlanReckoning m_reckoning;
    PlanHistory m_history;
    std::size_t m_row;
};

const std::string& fileOf500()
{
    static const std::string bytes = [] {
        const PassagePlan plan = planOfRows(500);
        return writeRtz(routeOfPlan(plan, PlanReckoning(plan, {})).route).bytes;
    }();
    return bytes;
}

void keyIn500()
{
    static KeyInPlan plan(500);
    plan.round();
}

void keyIn20()
{
    static KeyInPlan plan(rowsOnScreen);
    plan.round();
}

void readIntoPlan()
{
    const ReadRoute read = readRtz(fileOf500());
    const PlanOfRoute plan = planOfRoute(read.route, {});
    benchmark::DoNotOptimize(plan.plan.rows.size());
}

void goThrough()
{
    const std::string& bytes = fileOf500();
    QXmlStreamReader reader(
        QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
    while (!reader.atEnd())
        benchmark::DoNotOptimize(reader.readNext());
}

struct Work {
    const char* name;
    void (*run)();
};

constexpr std::array works{Work{"ours/plan key", keyIn500}, Work{"peer/plan key", keyIn20},
                           Work{"ours/plan rtz", readIntoPlan}, Work{"peer/plan rtz", goThrough}};

int countOnly(std::string_view name, int rounds)
{
    for (const Work& work : works) {
        if (name != work.name) continue;
        for (int round = 0; round < rounds; ++round)
            work.run();
        return 0;
    }
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 4 && std::string_view(argv[1]) == "count")
        return countOnly(argv[2], std::atoi(argv[3]));
    for (const Work& work : works)
        benchmark::RegisterBenchmark(work.name, [&work](benchmark::State& state) {
            for (auto _ : state)
                work.run();
        });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
