# The symbols of the overall status as icons for the desktop's theme, in the folders of a theme.
include(${CMAKE_SOURCE_DIR}/desktop/qml/symbols.cmake)

set(LARKSPAN_STATUS_ICONS
    "operational  checkmark.circle.fill"
    "degraded     exclamationmark.triangle.fill"
    "down         xmark.circle.fill"
    "maintenance  wrench.and.screwdriver.fill"
    "stale        exclamationmark.icloud.fill"
    "unknown      questionmark.circle"
)
set(status_icons_folder ${CMAKE_BINARY_DIR}/icons/hicolor/symbolic/apps)
set(status_icon_files)
foreach(row IN LISTS LARKSPAN_STATUS_ICONS)
    string(REGEX MATCH "^([^ ]+) +([^ ]+)$" _ ${row})
    set(status ${CMAKE_MATCH_1})
    string(REPLACE "." "\\." symbol ${CMAKE_MATCH_2})
    set(drawing ${LARKSPAN_SYMBOLS})
    list(FILTER drawing INCLUDE REGEX "^${symbol} ")
    string(REGEX REPLACE "^[^ ]+ +" "" drawing ${drawing})
    set(drawing /usr/share/bootstrap-icons/svg/${drawing}.svg)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${drawing})

    file(READ ${drawing} svg)
    # GTK's hosts recolour every path of a symbolic icon, Plasma those with this class.
    string(REGEX REPLACE "class=\"[^\"]*\"([^>]*)>" "class=\"ColorScheme-Text\"\\1>\n  <style type=\"text/css\" \
id=\"current-color-scheme\">.ColorScheme-Text { color: #2e3436 }</style>" svg "${svg}")
    set(file ${status_icons_folder}/com.kestrune.larkspan-${status}-symbolic.svg)
    file(CONFIGURE OUTPUT ${file} CONTENT "${svg}" @ONLY)
    list(APPEND status_icon_files ${file})
endforeach()
