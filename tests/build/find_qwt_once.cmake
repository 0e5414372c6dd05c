find_package(Qwt 6.2 REQUIRED)
message(STATUS "version ${Qwt_VERSION}")
