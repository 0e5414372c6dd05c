# Run by cmake -P: the program starts without any library of Qt PDF, the module brings them.

function(has_qt_pdf result kind file)
  file(GET_RUNTIME_DEPENDENCIES ${kind} "${file}"
    RESOLVED_DEPENDENCIES_VAR resolved UNRESOLVED_DEPENDENCIES_VAR unresolved)
  if(NOT resolved MATCHES "libQt6Widgets")
    message(SEND_ERROR "${file}: no library of Qt found among its own: ${resolved}")
  endif()
  if("${resolved};${unresolved}" MATCHES "libQt6Pdf")
    set(${result} TRUE PARENT_SCOPE)
  else()
    set(${result} FALSE PARENT_SCOPE)
  endif()
endfunction()

has_qt_pdf(in_program EXECUTABLES "${PROGRAM}")
has_qt_pdf(in_module MODULES "${MODULE}")
if(in_program)
  message(SEND_ERROR "${PROGRAM} needs Qt PDF to start")
endif()
if(NOT in_module)
  message(SEND_ERROR "${MODULE} does not need Qt PDF: this looks for the wrong library")
endif()
