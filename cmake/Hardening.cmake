# What a distribution hardens its own packages with, so that a build from source is no weaker; and the build's folders
# replaced in what is compiled, so that two builds make the same program. A debugger needs the folders, and sanitizers
# have stricter checks of their own.
include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckPIESupported)

if(CMAKE_BUILD_TYPE STREQUAL "Debug" OR LARKSPAN_SANITIZE OR LARKSPAN_FUZZ)
    return()
endif()

set(CMAKE_POSITION_INDEPENDENT_CODE ON)
check_pie_supported()

add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=./build)
add_compile_options(-fstack-protector-strong)
# The last two are control-flow integrity on Intel's processors and on Arm's.
foreach(flag fstack-clash-protection fcf-protection mbranch-protection=standard)
    check_cxx_compiler_flag(-${flag} LARKSPAN_HAS_${flag})
    if(LARKSPAN_HAS_${flag})
        add_compile_options(-${flag})
    endif()
endforeach()
add_link_options(-Wl,-z,relro -Wl,-z,now)

# It needs optimisation, which a package's build without a type decides with its own flags, and some compilers define
# it themselves: a second definition would be a warning.
if(NOT CMAKE_BUILD_TYPE STREQUAL "None")
    set(CMAKE_REQUIRED_FLAGS -O2)
    check_cxx_source_compiles("#ifndef _FORTIFY_SOURCE\n#error\n#endif\nint main() {}" LARKSPAN_IS_FORTIFIED)
    unset(CMAKE_REQUIRED_FLAGS)
    if(NOT LARKSPAN_IS_FORTIFIED)
        add_compile_options(-D_FORTIFY_SOURCE=2)
    endif()
endif()
