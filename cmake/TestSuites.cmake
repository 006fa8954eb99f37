# Registers the tests of a GoogleTest program with ctest, a test for each suite: with a process for each of thousands of
# tests, most of the time goes to starting processes.
#
#     larkspan_add_suites(program LABELS unit)
function(larkspan_add_suites target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "LABELS" "")
    set(suites ${CMAKE_CURRENT_BINARY_DIR}/${target}.suites.cmake)
    add_custom_command(TARGET ${target} POST_BUILD BYPRODUCTS ${suites}
        COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:${target}> -DLABELS=${arg_LABELS} -DOUTPUT=${suites}
            -P ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/ListSuites.cmake
        VERBATIM)
    set(included ${CMAKE_CURRENT_BINARY_DIR}/${target}.tests.cmake)
    file(WRITE ${included} "include(\"${suites}\" OPTIONAL RESULT_VARIABLE found)
if(NOT found)
    add_test(${target}_NOT_BUILT ${target}_NOT_BUILT)
endif()
")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${included})
endfunction()
