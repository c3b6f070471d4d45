# SPDX-License-Identifier: MIT
# Sun and Moon: timings against their peers, and the accuracy measurement.
find_library(ERFA_LIBRARY erfa REQUIRED)
find_library(LIBNOVA_LIBRARY nova REQUIRED)

add_executable(ephemeris_bench ${CMAKE_CURRENT_LIST_DIR}/navlib/EphemerisBench.cpp)
target_link_libraries(ephemeris_bench PRIVATE navlib benchmark::benchmark ${ERFA_LIBRARY}
                      ${LIBNOVA_LIBRARY})

# Sun, Moon, planets and 96 stars at one instant, against one Sun place of ERFA.
add_executable(almanac_bench ${CMAKE_CURRENT_LIST_DIR}/navlib/AlmanacBench.cpp)
target_link_libraries(almanac_bench PRIVATE almanac benchmark::benchmark ${ERFA_LIBRARY})

# Prints the figures stated in navlib/ephemeris.h, navlib/rise_set.h and docs/manual/frmSunMoon.md.
add_executable(ephemeris_accuracy
  ${CMAKE_CURRENT_LIST_DIR}/EphemerisAccuracy.cpp
  ${CMAKE_SOURCE_DIR}/tests/navlib/accuracy/ErfaReference.cpp)
target_link_libraries(ephemeris_accuracy PRIVATE app_reading ${ERFA_LIBRARY})

# A change of date with sixteen rows filled, its one save included: at most 40 times the bare box.
add_executable(sunmoon_bench ${CMAKE_CURRENT_LIST_DIR}/ui/SunMoonBench.cpp)
target_link_libraries(sunmoon_bench PRIVATE ui_bench frmSunMoon)
