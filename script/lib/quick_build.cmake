# For builds that are made for one purpose and away: the headers of the libraries are compiled once for
# all files of a target. Taken in by CMAKE_PROJECT_plot_korimo_INCLUDE.
set(CCACHE "" CACHE STRING "" FORCE)

# The tests of the window share theirs: they are compiled with the same definitions.
function(share_headers)
  target_precompile_headers(tst_layout PRIVATE <QtWidgets> <QTest>)
  get_target_property(definitions tst_layout COMPILE_DEFINITIONS)
  get_property(tests DIRECTORY "${CMAKE_SOURCE_DIR}/tests" PROPERTY BUILDSYSTEM_TARGETS)
  list(REMOVE_ITEM tests tst_layout)
  foreach(test IN LISTS tests)
    get_target_property(others ${test} COMPILE_DEFINITIONS)
    if(others STREQUAL definitions)
      target_precompile_headers(${test} REUSE_FROM tst_layout)
    endif()
  endforeach()
endfunction()

function(precompile_headers)
  target_precompile_headers(korimo_reading PRIVATE <QtCore>)
  target_precompile_headers(korimo_viewer PRIVATE <QtWidgets>)
  target_precompile_headers(korimo_docu PRIVATE <QtWidgets>)
  target_precompile_headers(korimo_test_support PRIVATE <QtWidgets> <QTest>)
  share_headers()
endfunction()
cmake_language(DEFER DIRECTORY "${CMAKE_SOURCE_DIR}" CALL precompile_headers)
