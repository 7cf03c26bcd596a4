# A Google Test program runs as a few ctest entries, each one process that
# takes its share of the cases (Google Test's sharding), rather than as one
# process for each case: a case costs its own run, not a start of the
# program with its libraries (Qt's and the sanitizers' runtimes weigh most).
# A failing part prints the names of its failing cases.
#
# The program's own code is built at -O1: its cases run once, so a higher
# level costs build time and buys nothing; the game's libraries it links
# keep the build's optimisation.
#
# Google Test's header, and the CABECERAS given, are compiled once for the
# whole program.
#
# teselari_pruebas_por_partes(PROGRAMA PARTES [TIMEOUT s] [ENVIRONMENT var=value...]
#                             [CABECERAS <header>...])
function(teselari_pruebas_por_partes programa partes)
  cmake_parse_arguments(ARG "" "TIMEOUT" "ENVIRONMENT;CABECERAS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 600)
  endif()
  target_compile_options(${programa} PRIVATE -O1)
  target_precompile_headers(${programa} PRIVATE <gtest/gtest.h> <string> <vector> <functional>
    ${ARG_CABECERAS})
  math(EXPR ultima "${partes} - 1")
  foreach(parte RANGE ${ultima})
    math(EXPR numero "${parte} + 1")
    set(nombre ${programa}.parte${numero}de${partes})
    add_test(NAME ${nombre} COMMAND ${programa} --gtest_brief=1)
    set(entorno GTEST_TOTAL_SHARDS=${partes} GTEST_SHARD_INDEX=${parte} ${ARG_ENVIRONMENT})
    set_tests_properties(${nombre} PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT "${entorno}")
  endforeach()
endfunction()
