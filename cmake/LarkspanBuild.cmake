# The build settings of every target of the project; targets get them by linking larkspan_build.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

# The files that moc reads are in the tree, so it need not wait for the libraries; ./dev lint builds only the files that
# it writes.
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

find_program(LARKSPAN_CCACHE ccache)
if(LARKSPAN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # A precompiled header contains timestamps, which would make every compilation a cache miss.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
        "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" "CCACHE_NOHASHDIR=1" ${LARKSPAN_CCACHE})
endif()

add_library(larkspan_build INTERFACE)
target_compile_options(larkspan_build INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    # g++ 12 reports overlapping copies in the concatenation of strings where there are none (GCC bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(LARKSPAN_WERROR)
    target_compile_options(larkspan_build INTERFACE -Werror)
endif()
if(LARKSPAN_SANITIZE)
    target_compile_options(larkspan_build INTERFACE -fsanitize=${LARKSPAN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(larkspan_build INTERFACE -fsanitize=${LARKSPAN_SANITIZE})
endif()

include(Hardening)

find_package(Threads REQUIRED)
