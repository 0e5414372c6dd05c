# Makes the manual once more and compares it with the one of the build, byte by byte.
execute_process(COMMAND ${CMAKE_COMMAND} -DPICTURES=${PICTURES} -DCONVERTER=${CONVERTER}
  -DSOURCE=${SOURCE} -DEXAMPLES=${EXAMPLES} -DVERSION=${VERSION} -DPDF=${AGAIN} -P "${SOURCE}/make_manual.cmake" RESULT_VARIABLE made)
if(NOT made EQUAL 0)
  message(FATAL_ERROR "the manual could not be made again")
endif()
file(SHA256 "${AGAIN}" again)
file(SHA256 "${PDF}" first)
message(STATUS "${first} and ${again}")
if(NOT again STREQUAL first)
  message(FATAL_ERROR "two runs gave different manuals")
endif()
