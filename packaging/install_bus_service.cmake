# The bus starts the program by its whole path, which `cmake --install --prefix` decides as late as here. Expects
# bus_service_template, program_folder and data_folder.
cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_PREFIX NORMALIZE OUTPUT_VARIABLE prefix)
cmake_path(ABSOLUTE_PATH program_folder BASE_DIRECTORY "${prefix}" NORMALIZE)
cmake_path(ABSOLUTE_PATH data_folder BASE_DIRECTORY "${prefix}" NORMALIZE)
set(program "${program_folder}/larkspan")
set(file "${data_folder}/dbus-1/services/com.kestrune.larkspan.service")
message(STATUS "Installing: $ENV{DESTDIR}${file}")
configure_file("${bus_service_template}" "$ENV{DESTDIR}${file}" @ONLY NO_SOURCE_PERMISSIONS)
list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${file}")
