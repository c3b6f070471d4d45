# SPDX-License-Identifier: MIT
# A key in a full position record against the barest window that answers one.
add_executable(position_record_bench ui/PositionRecordBench.cpp)
target_link_libraries(position_record_bench PRIVATE ui_bench frmPositionRecord)
