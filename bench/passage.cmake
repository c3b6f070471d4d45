# SPDX-License-Identifier: MIT
# The passage plan: a key in a plan of 500 rows at most 3 times one in a plan of 20; an RTZ file of 500
# waypoints read into a plan at most 5 times the toolkit's reader that only goes through it.
add_executable(passage_bench routes/PassageBench.cpp)
target_link_libraries(passage_bench PRIVATE routes_files frmPassage_calculation benchmark::benchmark)

# Its window with 500 rows against itself with 20: a key to the painted rows at most 3 times, the window
# opened at most 2 times, an RTZ file let go over it (work for every row, of which there are 25 times as
# many) at most 10 times.
add_executable(passage_ui_bench ui/PassageBench.cpp)
target_link_libraries(passage_ui_bench PRIVATE ui_bench frmPassage)
