# Run by cmake -P: CHANGELOG.md as it is, and the list of versions in the form that Debian's tools read.
file(MAKE_DIRECTORY "${FOLDER}")
configure_file("${CHANGELOG}" "${FOLDER}/changelog" COPYONLY)

set(entries)
file(STRINGS "${CHANGELOG}" headings REGEX "^## ")
list(REMOVE_ITEM headings "## Unreleased")
foreach(heading IN LISTS headings)
  if(NOT heading MATCHES "^## ([0-9.]+) \\(([0-9-]+)\\)$")
    message(FATAL_ERROR "no version and date in \"${heading}\"")
  endif()
  set(version "${CMAKE_MATCH_1}")
  execute_process(COMMAND date --utc --rfc-email "--date=${CMAKE_MATCH_2}"
    OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  string(APPEND entries
    "${PACKAGE} (${version}-${RELEASE}) unstable; urgency=medium\n\n"
    "  * Version ${version}; changelog.gz tells what is new in it.\n\n"
    " -- ${CONTACT}  ${date}\n\n")
endforeach()
file(WRITE "${FOLDER}/changelog.Debian" "${entries}")
