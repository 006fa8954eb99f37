# usage: cmake -DPROGRAM=... -DLABELS=... -DOUTPUT=... -P ListSuites.cmake
# Writes a file for ctest with a test for each suite of a GoogleTest program.
execute_process(COMMAND ${PROGRAM} --gtest_list_tests OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY)
# A suite is at the beginning of a line and ends with a dot; behind it the type of its tests may be told.
string(REGEX MATCHALL "(^|\n)[A-Za-z0-9_/]+\\." suites "${listing}")
set(text "")
foreach(suite IN LISTS suites)
    string(REGEX MATCH "[A-Za-z0-9_/]+" suite "${suite}")
    string(APPEND text "add_test([==[${suite}]==] [==[${PROGRAM}]==] \"--gtest_filter=${suite}.*\")\n"
        "set_tests_properties([==[${suite}]==] PROPERTIES LABELS ${LABELS} TIMEOUT 300)\n")
endforeach()
file(WRITE ${OUTPUT} "${text}")
