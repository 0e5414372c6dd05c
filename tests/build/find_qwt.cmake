# Run by cmake -P: FindQwt takes a library of the right Qt and version, and refuses any other.

set(folder "${CMAKE_CURRENT_BINARY_DIR}/find_qwt")

function(try_qwt trait version library_text expected_found expected_message)
  set(Qwt_INCLUDE_DIR "${folder}/${trait}")
  set(Qwt_LIBRARY "${folder}/${trait}/libqwt.so")
  file(WRITE "${Qwt_INCLUDE_DIR}/qwt_global.h" "#define QWT_VERSION_STR     \"${version}\"\n")
  file(WRITE "${Qwt_INCLUDE_DIR}/qwt_plot.h" "")
  file(WRITE "${Qwt_LIBRARY}" "${library_text}")
  execute_process(
    COMMAND "${CMAKE_COMMAND}" "-DCMAKE_MODULE_PATH=${MODULES}" "-DQwt_LIBRARY=${Qwt_LIBRARY}"
      "-DQwt_INCLUDE_DIR=${Qwt_INCLUDE_DIR}" -P "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/find_qwt_once.cmake"
    OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
  string(REGEX REPLACE "[ \n]+" " " output "${output}")
  set(found FALSE)
  if(result EQUAL 0)
    set(found TRUE)
  endif()
  if(NOT found STREQUAL expected_found)
    message(SEND_ERROR "${trait}: found is not ${expected_found}: ${output}")
  endif()
  string(FIND "${output}" "${expected_message}" place)
  if(place LESS 0)
    message(SEND_ERROR "${trait}: no \"${expected_message}\" in: ${output}")
  endif()
endfunction()

try_qwt(right "6.3.0" "libQt6Core.so.6 libQt6Widgets.so.6" TRUE "version 6.3.0")
try_qwt(newer "7.1.0" "libQt6Core.so.6" TRUE "version 7.1.0")
try_qwt(too_old "6.1.6" "libQt6Core.so.6" FALSE "6.1.6")
try_qwt(for_qt_5 "6.3.0" "libQt5Core.so.5 libQt5Widgets.so.5" FALSE "is built for another Qt")
try_qwt(for_qt_4 "6.3.0" "libQtCore.so.4" FALSE "is built for another Qt")
