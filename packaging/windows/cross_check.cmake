# Run by cmake -P: compiles each source file of the program, but for what only Linux has, with the
# compiler for Windows. Qt's headers are those of this system, told apart from Windows' own by nothing but
# the compiler; so this shows what the language and the headers show, and no more.
set(compiler x86_64-w64-mingw32-g++-posix)
set(only_linux "app/open_manual.cpp|app/manual_loader.cpp|docu/manual_module.cpp")

# The headers that Qt's tools make come from a usual build.
execute_process(COMMAND ${CMAKE_COMMAND} -G Ninja -S "${SOURCE}" -B "${BUILD}" -DCMAKE_BUILD_TYPE=Release
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build "${BUILD}" --target
  korimo_viewer_autogen korimo_docu_autogen korimo_forms COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND qtpaths6 --query QT_INSTALL_HEADERS
  OUTPUT_VARIABLE qt OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS "${BUILD}/CMakeCache.txt" qwt REGEX "^Qwt_INCLUDE_DIR:")
string(REGEX REPLACE "^[^=]*=" "" qwt "${qwt}")

# The one header that Qt has for Windows only: names of Windows' own types.
file(WRITE "${BUILD}/stand_in/QtGui/qwindowdefs_win.h" "#pragma once\n#include <windef.h>\n")

set(flags -std=c++20 -fsyntax-only -Wall -Wextra -Werror -DUNICODE -D_UNICODE
  "-I${SOURCE}" "-I${BUILD}"
  -isystem "${BUILD}/stand_in" -isystem "${qwt}" -isystem "${qt}")
foreach(module IN ITEMS Core Gui Widgets Pdf PdfWidgets Svg OpenGL PrintSupport)
  list(APPEND flags -isystem "${qt}/Qt${module}")
endforeach()

file(GLOB_RECURSE sources RELATIVE "${SOURCE}"
  "${SOURCE}/app/*.cpp" "${SOURCE}/plot/*.cpp" "${SOURCE}/ui/*.cpp" "${SOURCE}/docu/*.cpp")
list(FILTER sources EXCLUDE REGEX "^(${only_linux})$")
set(count 0)
foreach(source IN LISTS sources)
  execute_process(COMMAND ${compiler} ${flags} "${SOURCE}/${source}" RESULT_VARIABLE code)
  if(code EQUAL 0)
    math(EXPR count "${count} + 1")
  else()
    message(SEND_ERROR "${source} does not compile for Windows")
  endif()
endforeach()
message(STATUS "${count} source files compile for Windows")

execute_process(COMMAND x86_64-w64-mingw32-windres
    "${BUILD}/packaging/plot_korimo.rc" "${BUILD}/plot_korimo.o"
  COMMAND_ERROR_IS_FATAL ANY)
message(STATUS "the resource file compiles for Windows")
