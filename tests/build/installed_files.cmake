# Run by cmake -P: installs the build into a folder of its own, as if that were the root of a system, and
# compares what lies there with the list beside this file.
file(REMOVE_RECURSE "${ROOT}")
set(ENV{DESTDIR} "${ROOT}")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE installed RELATIVE "${ROOT}${PREFIX}" "${ROOT}/*")
list(SORT installed)
configure_file("${CMAKE_CURRENT_LIST_DIR}/installed_files.txt.in" "${ROOT}.expected" @ONLY)
file(STRINGS "${ROOT}.expected" expected)
list(SORT expected)
set(lacking ${expected})
list(REMOVE_ITEM lacking ${installed})
set(unexpected ${installed})
list(REMOVE_ITEM unexpected ${expected})
if(lacking OR unexpected)
  message(SEND_ERROR "not installed: ${lacking}; installed without being listed: ${unexpected}")
endif()

foreach(file IN LISTS installed)
  file(SIZE "${ROOT}${PREFIX}/${file}" size)
  if(size EQUAL 0)
    message(SEND_ERROR "${file} is empty")
  endif()
endforeach()

# Whoever starts the program from its entry starts it where the manual is.
file(STRINGS "${ROOT}${PREFIX}/share/applications/plot_korimo.desktop" folder REGEX "^Path=")
string(REPLACE "Path=" "" folder "${folder}")
if(NOT EXISTS "${ROOT}${folder}/01_Handbuch_KORIMO9.pdf")
  message(SEND_ERROR "the desktop entry starts the program in \"${folder}\", where no manual is")
endif()
