# Read by ctest: lists the suites of `programma` as tests named PREFISSO.Suite, one process a suite. The list is kept in
# `elenco` until the program changes.
if(NOT EXISTS ${programma})
  add_test(${prefisso}.non_costruito ${programma})
  return()
endif()
if(NOT EXISTS ${elenco} OR ${programma} IS_NEWER_THAN ${elenco})
  set(ENV{QT_QPA_PLATFORM} offscreen)
  execute_process(
    COMMAND ${programma} --gtest_list_tests
    OUTPUT_VARIABLE righe
    RESULT_VARIABLE esito
    TIMEOUT 60)
  if(NOT esito EQUAL 0)
    message(FATAL_ERROR "${programma} can't list its tests: ${esito}")
  endif()
  string(REGEX MATCHALL "(^|\n)[^ \n][^ \n]*\\.( |\n)" suite "${righe}")
  set(testo)
  foreach(voce IN LISTS suite)
    string(STRIP "${voce}" voce)
    string(REGEX REPLACE "\\.$" "" voce "${voce}")
    string(APPEND testo "add_test([==[${prefisso}.${voce}]==] [==[${programma}]==] [==[--gtest_filter=${voce}.*]==] --gtest_brief=1)\n"
           "set_tests_properties([==[${prefisso}.${voce}]==] PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen TIMEOUT 300 WORKING_DIRECTORY [==[${cartella}]==])\n")
  endforeach()
  file(WRITE ${elenco} "${testo}")
endif()
include(${elenco})
