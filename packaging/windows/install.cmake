# Not tried on Windows yet; packaging/README.md says what was checked and what was not.
#
# Everything lies in one folder: a shortcut of the installer and a click in the Explorer both start the
# program in it, and there is the manual.
target_sources(plot_korimo PRIVATE "${KORIMO_RESOURCE_FILE}")

install(TARGETS plot_korimo RUNTIME DESTINATION .)
install(FILES "${MANUAL_PDF}" DESTINATION .)
install(FILES ${EXAMPLE_FILES} DESTINATION examples)
install(FILES ${KORIMO_LICENSE_FILES} DESTINATION licenses)

get_target_property(qwt_library Qwt::Qwt IMPORTED_LOCATION)
get_filename_component(qwt_folder "${qwt_library}" DIRECTORY)
find_file(QWT_DLL NAMES qwt-qt6.dll qwt.dll HINTS "${qwt_folder}" "${qwt_folder}/../bin" REQUIRED)
install(FILES "${QWT_DLL}" DESTINATION .)

# Read when the script runs, not here. Qt's tool looks only at the libraries of Qt itself for what they
# need, so it is told of Qwt's, which needs more of Qt than the program does.
install(CODE "set(QT_DEPLOY_BIN_DIR .)")
qt_generate_deploy_script(TARGET plot_korimo OUTPUT_SCRIPT deploy_script CONTENT "
qt_deploy_runtime_dependencies(
  EXECUTABLE \"$<TARGET_FILE:plot_korimo>\"
  ADDITIONAL_LIBRARIES \"${QWT_DLL}\"
  GENERATE_QT_CONF)
")
install(SCRIPT "${deploy_script}")

set(CPACK_GENERATOR ZIP NSIS)
set(CPACK_PACKAGE_INSTALL_DIRECTORY plot_korimo)
set(CPACK_NSIS_IGNORE_LICENSE_PAGE ON) # nothing has to be agreed to
set(CPACK_NSIS_DISPLAY_NAME plot_korimo)
set(CPACK_NSIS_MUI_ICON "${KORIMO_ORIGINAL_ICON}")
set(CPACK_NSIS_EXECUTABLES_DIRECTORY .)
