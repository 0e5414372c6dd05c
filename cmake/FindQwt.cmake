# Finds Qwt built for Qt 6 and offers it as the target Qwt::Qwt.
#
# Distributions name headers and library differently; pkg-config's Qt6Qwt6, where it exists, is taken
# as a hint only. Result: Qwt_FOUND, Qwt_VERSION, Qwt_INCLUDE_DIR, Qwt_LIBRARY.

find_package(PkgConfig QUIET)
if(PkgConfig_FOUND)
  pkg_check_modules(QWT_HINT QUIET Qt6Qwt6)
endif()

find_path(Qwt_INCLUDE_DIR
  NAMES qwt_plot.h
  HINTS ${QWT_HINT_INCLUDE_DIRS}
  PATH_SUFFIXES
    qwt             # Debian, Arch, vcpkg
    qt6/qwt         # Fedora, Arch
    qwt-qt6 qwt6    # Fedora's and others' side-by-side installs
    lib/qwt.framework/Headers)  # Homebrew

find_library(Qwt_LIBRARY
  NAMES
    qwt-qt6         # Debian, Fedora
    qwt6-qt6
    qwt             # Arch, Homebrew, vcpkg: may be built for another Qt, see below
  HINTS ${QWT_HINT_LIBRARY_DIRS}
  PATH_SUFFIXES qt6/lib)

set(Qwt_VERSION)
if(Qwt_INCLUDE_DIR AND EXISTS "${Qwt_INCLUDE_DIR}/qwt_global.h")
  file(STRINGS "${Qwt_INCLUDE_DIR}/qwt_global.h" _qwt_version
    REGEX "^#define[ \t]+QWT_VERSION_STR[ \t]+\"[^\"]+\"")
  string(REGEX REPLACE ".*\"([^\"]+)\".*" "\\1" Qwt_VERSION "${_qwt_version}")
endif()

# Two plots linked against two Qts crash long after the build: ask the library which one it needs.
set(_qwt_other_qt)
if(Qwt_LIBRARY AND UNIX)
  file(STRINGS "${Qwt_LIBRARY}" _qwt_other_qt REGEX "libQt5?(Core|Widgets|Gui)[.]" LIMIT_COUNT 1)
endif()

set(_qwt_reason "Qwt >= 6.2 built for Qt 6 is needed (Debian: libqwt-qt6-dev and qt6-svg-dev)")
if(_qwt_other_qt)
  set(_qwt_reason "${Qwt_LIBRARY} is built for another Qt: ${_qwt_reason}")
  set(Qwt_LIBRARY Qwt_LIBRARY-NOTFOUND)
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Qwt
  REQUIRED_VARS Qwt_LIBRARY Qwt_INCLUDE_DIR
  VERSION_VAR Qwt_VERSION
  REASON_FAILURE_MESSAGE "${_qwt_reason}")

if(Qwt_FOUND AND NOT TARGET Qwt::Qwt AND NOT CMAKE_SCRIPT_MODE_FILE)
  add_library(Qwt::Qwt UNKNOWN IMPORTED GLOBAL)
  set_target_properties(Qwt::Qwt PROPERTIES
    IMPORTED_LOCATION "${Qwt_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${Qwt_INCLUDE_DIR}"
    INTERFACE_LINK_LIBRARIES Qt6::Widgets)
  if(WIN32)
    set_property(TARGET Qwt::Qwt PROPERTY INTERFACE_COMPILE_DEFINITIONS QWT_DLL)
  endif()
endif()

mark_as_advanced(Qwt_INCLUDE_DIR Qwt_LIBRARY)
