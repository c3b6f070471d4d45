# SPDX-License-Identifier: MIT
# The tables of data/sky as rows of C++: they are compiled in, nothing is read at the start.

set(sky_tables ${CMAKE_CURRENT_BINARY_DIR}/tables)

# make_table(NAME PATTERN ROW) writes NAME.inc, a row for each of data/sky/NAME.csv but the first,
# which names the columns. A row that is not of the pattern stops the build.
function(make_table name pattern row)
  set(source ${CMAKE_SOURCE_DIR}/data/sky/${name}.csv)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
  file(STRINGS ${source} rows)
  list(REMOVE_AT rows 0)
  foreach(each IN LISTS rows)
    if(NOT each MATCHES "^${pattern}$")
      message(FATAL_ERROR "${source}: ${each}")
    endif()
  endforeach()
  list(TRANSFORM rows REPLACE "^${pattern}$" "${row}")
  list(JOIN rows "\n" text)
  file(CONFIGURE OUTPUT ${sky_tables}/${name}.inc CONTENT "${text}\n" @ONLY)
endfunction()

set(number "-?[0-9.]+(e[-+][0-9]+)?")
make_table(planets "([A-Z][a-z]+,[LBR],[0-9],${number},${number},${number})" [[{\1},]])
make_table(moon "([LBR],[0-9],${number},${number},${number},${number})" [[{\1},]])
make_table(wmm2025 "([0-9]+,[0-9]+,${number},${number},${number},${number})" [[{\1},]])
make_table(stars "([0-9]+),([^,\"]+),([^,\"]+),([0-9]+),([-0-9.,]+),[NPX]"
           [[{\1,\4,"\2","\3",\5},]])
