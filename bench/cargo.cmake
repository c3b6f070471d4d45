# SPDX-License-Identifier: MIT
# A key in a full position record against the barest window that answers one.
add_executable(position_record_bench ui/PositionRecordBench.cpp)
target_link_libraries(position_record_bench PRIVATE ui_bench frmPositionRecord)

# A key in a list of 200 tanks to the painted rows and totals at most 3 times one in a list of 20, the
# window opened at most 2 times.
add_executable(tanks_bench ui/TanksBench.cpp)
target_link_libraries(tanks_bench PRIVATE ui_bench frmTanks)
