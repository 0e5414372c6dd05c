# Not tried on macOS yet; packaging/README.md says what was checked and what was not.
set_target_properties(plot_korimo PROPERTIES
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_GUI_IDENTIFIER example.orvan-wasser.plot-korimo
  MACOSX_BUNDLE_BUNDLE_NAME plot_korimo
  MACOSX_BUNDLE_BUNDLE_VERSION "${PROJECT_VERSION}"
  MACOSX_BUNDLE_SHORT_VERSION_STRING "${PROJECT_VERSION}"
  MACOSX_BUNDLE_COPYRIGHT "2026 ${KORIMO_VENDOR}")
install(TARGETS plot_korimo BUNDLE DESTINATION .)

# Beside the bundle, to be looked at and to be started from: the manual opens by its relative name.
install(FILES "${MANUAL_PDF}" DESTINATION .)
install(FILES ${EXAMPLE_FILES} DESTINATION examples)
install(FILES ${KORIMO_LICENSE_FILES} DESTINATION licenses)

# Brings Qt and the other libraries that the program links, Qwt among them, into the bundle.
qt_generate_deploy_app_script(TARGET plot_korimo OUTPUT_SCRIPT deploy_script)
install(SCRIPT "${deploy_script}")

set(CPACK_GENERATOR DragNDrop)
