cmake_path(GET CHECK PARENT_PATH folder)
foreach(argument IN ITEMS -DLARKSPAN_SERVIC_HOST=a -DCMAKE_BUILD_TYPE=Debug LARKSPAN_SERVICE_HOST=a -DLARKSPAN_WEBSITE=a]==]b
        -DLARKSPAN_BUILD_NUMBER=beta)
    execute_process(COMMAND ${folder}/../tools/package/build ${argument}
        RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE words)
    if(result EQUAL 0 OR NOT words MATCHES "^package: [^\n]+\\.\n$")
        message(SEND_ERROR "\"${argument}\" is not refused in a sentence: ${words}")
    endif()
endforeach()
