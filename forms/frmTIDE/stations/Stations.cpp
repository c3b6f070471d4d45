// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/stations/Stations.h"

#include <algorithm>

namespace korvel
{
namespace
{

using Place = std::string_view;

// A caption is the station's file name as well, letter for letter: the spellings are deliberate.
constexpr Place sporePlaces[] = {"Berhala",      "One Fathom Bank", "Gabang",  "Port Dickson",
                                 "Cape Rachado", "Medang",          "Keling",  "Laboh",
                                 "Pisang",       "Brothers",        "Raffles", "Sultan Shoal",
                                 "Jurong",       "Horsburgh"};
constexpr Place japanPlaces[] = {
    "Otaru",        "Tomakomai",   "Muroran",   "Sendai",    "Toyama",    "Maizuru",
    "Kashima Ko",   "Chiba Light", "Tokyo",     "Kawasaki",  "Yokohama",  "Negishi",
    "Yokosuka",     "Shimizu Ko",  "Nagoya Ko", "Irago",     "Yokkaichi", "Shimotsu",
    "Tomoga Shima", "Kobe",        "Himeji",    "Mizushima", "Tokuyama",  "Ube",
    "Oita Ko",      "Hakata",      "Sasebo",    "Shibushi",  "Kiire",     "Yonakuni Shima"};
constexpr Place pgPlaces[] = {"Mina al Fahal",
                              "Little Quoin",
                              "Gasha Buoy",
                              "Mina Saud",
                              "Kharg Island",
                              "Forur Island",
                              "Lavan Island",
                              "Tonb-e Island",
                              "Khor Fakkan",
                              "Fujairah",
                              "Ras Laffan",
                              "Ras Tanura SI",
                              "Ras al Khafji",
                              "Mina al Ahmadi",
                              "Das Island",
                              "Halul Island",
                              "Mesaieed Outer Ch Ent",
                              "Mesaieed Harbour",
                              "Sirri Island",
                              "Zirku Island",
                              "Mina Saqr",
                              "Dubai"};
constexpr Place asiaPlaces[] = {"Yosu",  "Daesan Pilot", "Daesan SBM", "Inchon", "Hong Kong",
                                "Pusan", "Wonsan",       "Cebu",       "Manila", "Davao"};
constexpr Place oceaniaPlaces[] = {"Hay Point", "New Castle", "Brisbane",     "Sydney",
                                   "Melbourne", "Dampier",    "Port Walcott", "Port Headland",
                                   "Auckland",  "Welington",  "Honolulu"};
constexpr Place indiaPlaces[] = {"Karachi",      "Bombay",  "Mormugao", "Cochin",
                                 "Muttan Point", "Colombo", "Madras"};
constexpr Place africaPlaces[] = {"Cape Town",  "Port Elizabeth", "Durban",       "Richards Bay",
                                  "Port Louis", "Port Victoria",  "Dar es Salaam"};
constexpr Place americaPlaces[] = {
    "Prince Rupert",      "Victoria", "Vancouver",  "Trinidad Harbour", "San Francisco",
    "Los Angels Harbour", "San Jose", "Santa Cruz", "Valparaiso",       "St Johns",
    "Saint John NB",      "Halifax",  "Nassau"};
constexpr Place streamPlaces[] = {"Brothers",           "Philip Channel", "Buffalo Rock",
                                  "Johor Entrance",     "Berhanti",       "Horsburgh",
                                  "3' east of Berhanti"};

constexpr StationArea tideAreaTable[] = {
    {"&Singapore", "mnuSpore", sporePlaces},
    {"&Japan", "mnuJapan", japanPlaces},
    {"&PG", "mnuPG", pgPlaces},
    {"&Asia", "mnuAsia", asiaPlaces},
    {"&Oceania", "mnuOceania", oceaniaPlaces},
    {"&India", "mnuIndia", indiaPlaces},
    {"A&frica", "mnuAfrica", africaPlaces},
    {"A&merica", "mnuAmerica", americaPlaces},
};

constexpr StationArea streamAreaTable[] = {
    {"&Singapore", "mnuCuSpore", streamPlaces},
    {"&Japan", "", {}},
    {"&Other Area", "", {}},
};

bool holds(std::span<const StationArea> areas, std::string_view place)
{
    return std::ranges::any_of(areas, [place](const StationArea& area) {
        return std::ranges::find(area.places, place) != area.places.end();
    });
}

} // namespace

std::span<const StationArea> tideAreas()
{
    return tideAreaTable;
}

std::span<const StationArea> streamAreas()
{
    return streamAreaTable;
}

bool isTideStation(std::string_view place)
{
    return holds(tideAreaTable, place);
}

bool isStreamStation(std::string_view place)
{
    return holds(streamAreaTable, place);
}

} // namespace korvel
