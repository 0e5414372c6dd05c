# For the build whose tests run under valgrind: they take many times as long. Taken in by
# CMAKE_PROJECT_plot_korimo_INCLUDE.
include("${CMAKE_CURRENT_LIST_DIR}/quick_build.cmake")

function(wait_longer)
  foreach(folder IN ITEMS tests fuzz)
    get_property(tests DIRECTORY "${CMAKE_SOURCE_DIR}/${folder}" PROPERTY TESTS)
    foreach(test IN LISTS tests)
      set_property(TEST "${test}" DIRECTORY "${CMAKE_SOURCE_DIR}/${folder}" PROPERTY TIMEOUT 20000)
    endforeach()
  endforeach()
endfunction()
cmake_language(DEFER DIRECTORY "${CMAKE_SOURCE_DIR}" CALL wait_longer)
