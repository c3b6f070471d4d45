# SPDX-License-Identifier: MIT
# tide_accuracy prints how far the prediction is from the full harmonic one; tide_bench how long a
# day takes. Bars: dayOfValues at most 0.16 of plainSumOf37Constituents; dayOfValuesFromDisk, which
# reads the day's arguments too, at most 0.4 of plainDayOf37Constituents, which works them out.
add_library(tide_full STATIC FullPrediction.cpp)
target_link_libraries(tide_full PUBLIC tidedata_core)

add_executable(tide_accuracy TideAccuracy.cpp)
target_link_libraries(tide_accuracy PRIVATE tide_full frmTIDE_calculation)

add_executable(tide_bench navlib/TideBench.cpp)
target_link_libraries(tide_bench PRIVATE tide_full frmTIDE_calculation benchmark::benchmark)

foreach(target tide_accuracy tide_bench)
  target_compile_definitions(${target} PRIVATE KORVEL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
endforeach()
