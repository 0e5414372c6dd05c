# The Debian package, and one beside it with the debug information. Taken in behind linux/install.cmake: the
# folder `made` and GZIP are its own.
set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://orvan-wasser.example/plot_korimo")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# Pictures on a Wayland desktop need the plugin; without it the program starts under XWayland.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_PACKAGE_DESCRIPTION
"plot_korimo opens the result files of the rainfall-runoff and routing model
KORIMO: hydrographs of one model element, with precipitation or volume above
and discharges below on the same time axis, and the characteristic curves of
basins and throttles. Axes can be fixed, curves renamed, and the picture saved
for the report. User interface and manual are German.")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(documents "${CMAKE_INSTALL_DATADIR}/doc/plot-korimo")
install(FILES "${CMAKE_CURRENT_LIST_DIR}/copyright" DESTINATION "${documents}")
install(FILES "${CMAKE_CURRENT_LIST_DIR}/lintian-overrides"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides" RENAME plot-korimo)

# Two changelogs: ours, and that of the package, which has one entry for each version of ours.
add_custom_command(
  OUTPUT "${made}/changelog.gz" "${made}/changelog.Debian.gz"
  COMMAND ${CMAKE_COMMAND}
    "-DCHANGELOG=${PROJECT_SOURCE_DIR}/CHANGELOG.md"
    "-DPACKAGE=${CPACK_PACKAGE_NAME}" "-DRELEASE=${CPACK_DEBIAN_PACKAGE_RELEASE}"
    "-DCONTACT=${CPACK_PACKAGE_CONTACT}" "-DFOLDER=${made}"
    -P "${CMAKE_CURRENT_LIST_DIR}/write_changelogs.cmake"
  COMMAND ${GZIP} -9nf "${made}/changelog" "${made}/changelog.Debian"
  DEPENDS "${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${CMAKE_CURRENT_LIST_DIR}/write_changelogs.cmake"
  VERBATIM)
add_custom_target(changelogs ALL DEPENDS "${made}/changelog.gz")
install(FILES "${made}/changelog.gz" "${made}/changelog.Debian.gz" DESTINATION "${documents}")
