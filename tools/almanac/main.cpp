// SPDX-License-Identifier: MIT
#include "almanac/page_text.h"
#include "tools/almanac/instant_text.h"
#include "tools/almanac/table_input.h"
#include "tools/almanac/tables.h"

#include <filesystem>
#include <fstream>
#include <iostream>

/// Figures of the sky and of the magnetic field, for everybody to check.
namespace
{

constexpr std::string_view usage =
    "usage: almanac [FILE]              places of bodies: CSV with the columns ut and body, from "
    "a\n"
    "                                   file or standard input, 1950 to 2100\n"
    "       almanac --variation [--model COEFFICIENTS] [FILE]\n"
    "                                   magnetic variation: CSV with the columns decimal_year,\n"
    "                                   height_km, lat, lon; by the edition compiled in or by\n"
    "                                   another one's file (WMM.COF)\n"
    "       almanac --page DATE         three days from a date (2026-11-22) as an almanac has "
    "them\n"
    "       almanac --bodies            names, numbers and magnitudes of the bodies\n";

using Arguments = std::vector<std::string_view>;

/// @throws std::runtime_error when it cannot be opened, or is a folder
std::ifstream opened(std::string_view name)
{
    const std::filesystem::path path(name);
    std::ifstream file(path, std::ios::binary);
    if (!file || std::filesystem::is_directory(path))
        throw std::runtime_error(almanac::inQuotes(name) + " cannot be read");
    return file;
}

almanac::MagneticModel modelFrom(std::string_view name)
{
    std::ifstream file = opened(name);
    // One byte too many shows that there are more.
    std::string content(almanac::MagneticModel::largestFile + 1, '\0');
    file.read(content.data(), static_cast<std::streamsize>(content.size()));
    content.resize(static_cast<std::size_t>(file.gcount()));
    return almanac::MagneticModel::read(content);
}

/// Gives the work the file named, or standard input. @return exit status
template <typename Work>
int withInput(const Arguments& arguments, Work work)
{
    if (arguments.size() > 1 || (arguments.size() == 1 && arguments[0].starts_with("--"))) {
        std::cerr << usage;
        return 2;
    }
    if (arguments.empty() || arguments[0] == "-") return work(std::cin) ? 0 : 1;
    std::ifstream file = opened(arguments[0]);
    return work(file) ? 0 : 1;
}

int variations(Arguments arguments)
{
    almanac::MagneticModel model = almanac::MagneticModel::ofProgram();
    if (arguments.size() >= 2 && arguments[0] == "--model") {
        model = modelFrom(arguments[1]);
        arguments.erase(arguments.begin(), arguments.begin() + 2);
    }
    return withInput(arguments, [&](std::istream& input) {
        return almanac::writeVariations(input, model, std::cout, std::cerr);
    });
}

int page(const Arguments& arguments)
{
    if (arguments.size() != 1) {
        std::cerr << usage;
        return 2;
    }
    const auto day = almanac::readDay(arguments[0]);
    if (!day)
        throw std::runtime_error(almanac::inQuotes(arguments[0]) + " is no date like 2026-11-22");
    std::cout << almanac::pageText(almanac::makeDailyPage(*day));
    return 0;
}

int run(Arguments arguments)
{
    const std::string_view first = arguments.empty() ? "" : arguments[0];
    if (first == "--help") {
        std::cout << usage;
        return 0;
    }
    if (first == "--bodies" && arguments.size() == 1) {
        almanac::writeBodies(std::cout);
        return 0;
    }
    if (first == "--variation" || first == "--page") {
        arguments.erase(arguments.begin());
        return first == "--page" ? page(arguments) : variations(arguments);
    }
    return withInput(arguments, [](std::istream& input) {
        return almanac::writePlaces(input, std::cout, std::cerr);
    });
}

} // namespace

int main(int argc, char** argv)
try {
    std::ios::sync_with_stdio(false);
    const int status = run(Arguments(argv + 1, argv + argc));
    std::cout.flush();
    if (!std::cout) throw std::runtime_error("the output cannot be written");
    return status;
} catch (const std::exception& fault) {
    std::cout.flush();
    std::cerr << "almanac: " << fault.what() << "\n";
    return 1;
}
