foreach(host IN ITEMS "a b" "" ":443" "a:" "a:x" "a:0" "a:65536" "a..b" "https://a" "a/b" "user@a" "a?b" "::1" "[::1" "[x]")
    execute_process(COMMAND ${CMAKE_COMMAND} -D "LARKSPAN_SERVICE_HOST=${host}" -P ${CHECK}
        RESULT_VARIABLE result ERROR_VARIABLE words)
    string(FIND "${words}" "LARKSPAN_SERVICE_HOST is \"${host}\"," sentence)
    if(result EQUAL 0 OR sentence EQUAL -1)
        message(SEND_ERROR "\"${host}\" is not refused in a sentence: ${words}")
    endif()
endforeach()
