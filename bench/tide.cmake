# SPDX-License-Identifier: MIT
# tide_accuracy prints how far the prediction is from the full harmonic one; tide_bench how long a
# day takes. Bars: ours/tide_day at most 0.16 of peer/tide_day (a plain sum of 37 constituents whose
# arguments are given); ours/tide_from_disk, which reads the day's arguments and the station, at most
# 0.4 of peer/tide_from_disk (a plain sum, which reads its record and works the arguments out);
# ours/tide_month at most 20 of peer/tide_month (a day of it as the window shows it).
add_executable(tide_accuracy TideAccuracy.cpp)
target_link_libraries(tide_accuracy PRIVATE frmTIDE_calculation shell_main)

add_executable(tide_bench navlib/TideBench.cpp)
target_link_libraries(tide_bench PRIVATE tidedata_sources frmTIDE_calculation shell_main benchmark::benchmark)

foreach(target tide_accuracy tide_bench)
  target_compile_definitions(${target} PRIVATE KORVEL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
endforeach()

# Choosing a station to the painted curve, against an empty repaint of the picture.
add_executable(tide_ui_bench ui/TideBench.cpp)
target_link_libraries(tide_ui_bench PRIVATE ui_bench frmTIDE)
target_compile_definitions(tide_ui_bench PRIVATE KORVEL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
