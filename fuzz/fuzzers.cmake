# The programs for libFuzzer. The tested sources are compiled here again, since every fuzzed line must be instrumented:
# once, into a library from which each program takes what it needs.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "The fuzzers need clang; configure with: cmake --preset fuzz")
endif()

find_package(CURL 7.88 REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui)
set(source ${CMAKE_SOURCE_DIR}/src)
set(adapters ${CMAKE_SOURCE_DIR}/desktop/adapters)

file(GLOB fuzzed_sources CONFIGURE_DEPENDS ${source}/model/*/*.cpp ${source}/messages/markdown/*.cpp)
add_library(larkspan_fuzzed STATIC Fuzzer.cpp Target.cpp ${fuzzed_sources} $<TARGET_OBJECTS:larkspan_character_tables>
    ${source}/api/APIError.cpp ${source}/api/APIKey.cpp ${source}/api/RequestURL.cpp
    ${source}/platform/BoundedMenu.cpp ${source}/presentation/text/WebAddress.cpp
    ${source}/support/FatalError.cpp ${source}/support/IgnoringCase.cpp ${source}/support/LegibleOutside.cpp
    ${source}/support/LocalizedError.cpp ${source}/support/Trimming.cpp ${source}/support/Utf8.cpp
    ${adapters}/http/Redirect.cpp ${adapters}/http/RequestOptions.cpp ${adapters}/http/ResponseHead.cpp
    ${adapters}/tray/DBusMenuModel.cpp ${adapters}/tray/DBusMenuService.cpp ${adapters}/tray/DBusMenuTypes.cpp
    ${adapters}/tray/DotImage.cpp ${adapters}/tray/MenuRowProperties.cpp)
set_target_properties(larkspan_fuzzed PROPERTIES AUTOMOC ON)
target_include_directories(larkspan_fuzzed PUBLIC ${include_directories} ${source} ${CMAKE_SOURCE_DIR}/desktop)
target_compile_options(larkspan_fuzzed PUBLIC -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
target_link_options(larkspan_fuzzed PUBLIC -fsanitize=fuzzer,address,undefined)
target_link_libraries(larkspan_fuzzed PUBLIC larkspan_build simdjson::simdjson PkgConfig::MD4C CURL::libcurl
    Qt6::Core Qt6::DBus Qt6::Gui)

add_custom_target(fuzzers)
foreach(path IN LISTS targets desktop_targets)
    get_filename_component(name ${path} NAME_WE)
    add_executable(${name}_fuzzer ${path})
    target_link_libraries(${name}_fuzzer PRIVATE larkspan_fuzzed)
    add_dependencies(fuzzers ${name}_fuzzer)
endforeach()
