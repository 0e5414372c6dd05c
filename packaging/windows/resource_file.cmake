# Icon, version and maker, as the program's file shows them. Written on every system, so that it can be
# checked on one that has a compiler for it.
set(KORIMO_ORIGINAL_ICON "${PROJECT_SOURCE_DIR}/resources/icons/look_and_feel/orvan.ico")
string(REPLACE "." "," KORIMO_FILE_VERSION "${PROJECT_VERSION}")
set(KORIMO_RESOURCE_FILE "${CMAKE_CURRENT_BINARY_DIR}/plot_korimo.rc")
configure_file("${CMAKE_CURRENT_LIST_DIR}/plot_korimo.rc.in" "${KORIMO_RESOURCE_FILE}" @ONLY)
