# korimo_build_options: what every target of ours is compiled with.

option(KORIMO_WARNINGS_ARE_ERRORS "Stop at the first compiler warning" OFF)
option(KORIMO_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(KORIMO_FUZZERS "Build the fuzzers, with the same sanitizers (needs clang)" OFF)

add_library(korimo_build_options INTERFACE)
target_compile_definitions(korimo_build_options INTERFACE
  QT_NO_FOREACH
  QT_DEPRECATED_WARNINGS_SINCE=0x060600)

if(MSVC)
  target_compile_options(korimo_build_options INTERFACE
    /W4 /utf-8 /permissive- $<$<BOOL:${KORIMO_WARNINGS_ARE_ERRORS}>:/WX>)
else()
  target_compile_options(korimo_build_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${KORIMO_WARNINGS_ARE_ERRORS}>:-Werror>)
endif()

if(KORIMO_SANITIZE OR KORIMO_FUZZERS)
  set(_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(korimo_build_options INTERFACE ${_sanitizers})
  target_link_options(korimo_build_options INTERFACE ${_sanitizers})
  # They make unoptimized code far too slow for the tests.
  target_compile_options(korimo_build_options INTERFACE $<$<CONFIG:Debug>:-O1>)
endif()

# Counts how often each place in the code is reached; only a fuzzer has the function that looks.
if(KORIMO_FUZZERS)
  target_compile_options(korimo_build_options INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(korimo_build_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
