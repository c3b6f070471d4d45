# SPDX-License-Identifier: MIT
# The passage plan: a key in a plan of 500 rows at most 3 times one in a plan of 20; an RTZ file of 500
# waypoints read into a plan at most 5 times the toolkit's reader that only goes through it.
add_executable(passage_bench routes/PassageBench.cpp)
target_link_libraries(passage_bench PRIVATE routes_files frmPassage_calculation benchmark::benchmark)
