// SPDX-License-Identifier: MIT
#include "app/working/ProgramVersion.h"
#include "forms/frmPassage/PlanRoute.h"
#include "forms/frmPassage/PlanTexts.h"
#include "routes/files/Gpx.h"
#include "routes/files/RouteFiles.h"
#include "routes/files/RtzWriter.h"

#include <QSaveFile>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#endif

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <vector>

/// The passage plan without a screen: a route file as a list with courses, distances and times, or
/// in another format.
namespace
{

using namespace korvel;

constexpr std::string_view usage =
    "usage: passage [--spheroid] FILE                      the plan of an RTZ, GPX or CSV file, as "
    "CSV\n"
    "       passage [--spheroid] FILE --to FORMAT OUT      the same written as FORMAT:\n"
    "                                                      rtz, gpx or csv; rtz1.0, rtz1.1, "
    "rtz1.2\n"
    "Distances are on the sphere, a mile a minute; with --spheroid in miles of 1852 m.\n"
    "What should be known of a route goes to standard error. Status 1: a file cannot be taken.\n";

struct Order {
    PlanConditions conditions;
    std::string file;
    std::string format;
    std::string out;
};

/// What was asked for. @return nothing when it makes no sense
std::optional<Order> orderOf(std::vector<std::string> arguments)
{
    Order order;
    if (!arguments.empty() && arguments.front() == "--spheroid") {
        order.conditions.earth = NavFunc113::Earth::Spheroid;
        arguments.erase(arguments.begin());
    }
    if (arguments.size() == 4 && arguments[0] == "--to")
        std::rotate(arguments.begin(), arguments.begin() + 3, arguments.end());
    const bool converts = arguments.size() == 4 && arguments[1] == "--to";
    if (arguments.size() != 1 && !converts) return std::nullopt;
    order.file = arguments[0];
    if (order.file.empty() || order.file.starts_with("--")) return std::nullopt;
    if (!converts) return order;
    order.format = arguments[2];
    order.out = arguments[3];
    const bool isRtz = order.format.starts_with("rtz") &&
                       (order.format.size() == 3 || versionOfNumber(order.format.substr(3)));
    return isRtz || order.format == "gpx" || order.format == "csv" ? std::optional(order)
                                                                   : std::nullopt;
}

void say(const std::string& file, const std::string& sentence)
{
    std::cerr << "passage: " << file << ": " << sentence << "\n";
}

WrittenRoute written(const Order& order, const PassagePlan& plan, const PlanReckoning& reckoning)
{
    if (order.format.empty() || order.format == "csv")
        return {csvText(planList(plan, reckoning)), {}, {}};
    const RouteOfPlan route = routeOfPlan(plan, reckoning);
    if (!route.fault.empty()) return {{}, {}, route.fault};
    if (order.format == "gpx")
        return writeGpx(route.route, std::string("KORVEL2000 ") + programVersion);
    return writeRtz(route.route, versionOfNumber(order.format.substr(3)));
}

/// Puts the file whole in its place or leaves what is there. @return why not; empty when it is done
std::string saved(const std::string& name, const std::string& bytes)
{
    std::error_code error;
    // The new file takes the place of the old one by renaming, and would take a device's too.
    if (std::filesystem::exists(name, error) && !std::filesystem::is_regular_file(name, error))
        return "it is no ordinary file";
    QSaveFile file(QString::fromLocal8Bit(name.c_str()));
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly)) return file.errorString().toStdString();
    const auto size = static_cast<qint64>(bytes.size());
    // A full disk shows at the flush at the latest; commit would leave an empty file.
    if (file.write(bytes.data(), size) != size || !file.flush()) {
        std::string why = file.errorString().toStdString();
        file.cancelWriting();
        file.commit();
        return why;
    }
    return file.commit() ? std::string() : file.errorString().toStdString();
}

int carryOut(const Order& order)
{
    const ReadRoute read = readRouteFile(order.file);
    if (!read.fault.empty()) return say(order.file, read.fault), 1;
    const PlanOfRoute plan = planOfRoute(read.route, order.conditions);
    const PlanReckoning reckoning(plan.plan, order.conditions);
    const WrittenRoute result = written(order, plan.plan, reckoning);
    for (const auto* remarks : {&read.remarks, &plan.remarks, &result.remarks})
        for (const std::string& remark : *remarks)
            say(order.file, remark);
    const std::string notice = reckoning.notice();
    if (!notice.empty()) say(order.file, notice);
    if (!result.fault.empty()) return say(order.file, result.fault), 1;
    if (order.out.empty()) {
        std::cout << result.bytes << std::flush;
        return std::cout ? 0 : (say("standard output", "it cannot be written"), 1);
    }
    const std::string fault = saved(order.out, result.bytes);
    return fault.empty() ? 0 : (say(order.out, fault), 1);
}

} // namespace

int main(int argc, char** argv)
{
#ifdef _WIN32
    _setmode(_fileno(stdout), _O_BINARY); // the list has the line ends that it shall have
#endif
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() == 1 && (arguments[0] == "--help" || arguments[0] == "-h")) {
        std::cout << usage;
        return 0;
    }
    const auto order = orderOf(arguments);
    if (!order) {
        std::cerr << usage;
        return 2;
    }
    return carryOut(*order);
}
