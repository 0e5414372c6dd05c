# Everything below the prefix, as desktops of Linux look for it.
set(here "${CMAKE_CURRENT_LIST_DIR}")
set(made "${CMAKE_CURRENT_BINARY_DIR}")
set(KORIMO_WORKING_DIR "${CMAKE_INSTALL_FULL_DATADIR}/plot_korimo")

install(TARGETS plot_korimo RUNTIME)
install(TARGETS korimo_manual LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/plot_korimo")
install(FILES "${MANUAL_PDF}" DESTINATION "${CMAKE_INSTALL_DATADIR}/plot_korimo")
install(FILES ${EXAMPLE_FILES} DESTINATION "${CMAKE_INSTALL_DATADIR}/plot_korimo/examples")

configure_file("${here}/plot_korimo.desktop.in" "${made}/plot_korimo.desktop" @ONLY)
install(FILES "${made}/plot_korimo.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
configure_file("${here}/plot_korimo.metainfo.xml.in"
  "${made}/example.orvan_wasser.plot_korimo.metainfo.xml" @ONLY)
install(FILES "${made}/example.orvan_wasser.plot_korimo.metainfo.xml"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${here}/plot_korimo.mime.xml"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages" RENAME plot_korimo.xml)

# The icon of a theme: one drawing, and pictures of it in the usual sizes.
set(icon_theme "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
install(FILES "${PROJECT_SOURCE_DIR}/resources/icons/look_and_feel/orvan.svg"
  DESTINATION "${icon_theme}/scalable/apps" RENAME plot_korimo.svg)
foreach(size IN LISTS ICON_SIZES)
  install(FILES "${ICONS_DIR}/${size}.png"
    DESTINATION "${icon_theme}/${size}x${size}/apps" RENAME plot_korimo.png)
endforeach()

# Manual pages are compressed, without the time of day so that the same text gives the same bytes.
find_program(GZIP gzip REQUIRED)
configure_file("${here}/plot_korimo.1.adoc" "${made}/plot_korimo.1.adoc" @ONLY)
add_custom_command(
  OUTPUT "${made}/plot_korimo.1.gz"
  COMMAND ${ASCIIDOCTOR} --backend manpage --failure-level WARN
    --attribute "revnumber=${PROJECT_VERSION}" --attribute reproducible
    --out-file "${made}/plot_korimo.1" "${made}/plot_korimo.1.adoc"
  COMMAND ${GZIP} -9nf "${made}/plot_korimo.1"
  DEPENDS "${made}/plot_korimo.1.adoc"
  VERBATIM)
add_custom_target(man_page ALL DEPENDS "${made}/plot_korimo.1.gz")
install(FILES "${made}/plot_korimo.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
