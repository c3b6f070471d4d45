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

# The Sun and the Moon by full theory, as the accuracy tests have them.
add_library(erfa_reference STATIC
  ${CMAKE_SOURCE_DIR}/tests/navlib/accuracy/ErfaReference.cpp
  ${CMAKE_SOURCE_DIR}/tests/SourceFolder.cpp)
target_compile_definitions(erfa_reference PRIVATE KORVEL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
target_link_libraries(erfa_reference PUBLIC navlib ${ERFA_LIBRARY})

# Prints the figures stated in navlib/sky/ephemeris.h, navlib/sky/rise_set.h, forms/frmSunMoon and
# docs/manual/frmSunMoon.md.
add_executable(ephemeris_accuracy ${CMAKE_CURRENT_LIST_DIR}/EphemerisAccuracy.cpp)
target_link_libraries(ephemeris_accuracy PRIVATE frmSunMoon_calculation erfa_reference)

# Prints tests/golden/rise_set_events.csv.
add_executable(rise_set_events ${CMAKE_SOURCE_DIR}/tests/golden/independent_rise_set.cpp)
target_link_libraries(rise_set_events PRIVATE app_reading erfa_reference)

# A change of date with sixteen rows filled, its one save included: at most 40 times the bare box.
add_executable(sunmoon_bench ${CMAKE_CURRENT_LIST_DIR}/ui/SunMoonBench.cpp)
target_link_libraries(sunmoon_bench PRIVATE ui_bench frmSunMoon)
