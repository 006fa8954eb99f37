foreach(host IN ITEMS kestrune.example localhost:8443 status_page.internal 127.0.0.1:1 example.:65535 "[::1]" "[::1]:443")
    execute_process(COMMAND ${CMAKE_COMMAND} -D "LARKSPAN_SERVICE_HOST=${host}" -P ${CHECK}
        RESULT_VARIABLE result ERROR_VARIABLE words)
    if(NOT result EQUAL 0)
        message(SEND_ERROR "\"${host}\" is refused: ${words}")
    endif()
endforeach()
