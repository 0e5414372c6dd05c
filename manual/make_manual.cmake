# Makes the manual. CONVERTER is asciidoctor (with its extension for PDF), SOURCE holds the text,
# PICTURES those of the program, EXAMPLES the example files; VERSION is that of the program. PDF is the
# result: with a fixed date and no traces of the run, the same text gives the same bytes.
execute_process(
  COMMAND ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0 LC_ALL=C.UTF-8
    "${CONVERTER}" -r asciidoctor-pdf -b pdf --failure-level WARN --safe-mode unsafe
    -a reproducible -a "program-version=${VERSION}" -a "examples=${EXAMPLES}"
    -a "imagesdir=${PICTURES}"
    -a "pdf-themesdir=${SOURCE}" -a pdf-theme=handbuch
    -o "${PDF}" "${SOURCE}/handbuch.adoc"
  RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "${CONVERTER} ended with ${code}:\n${output}")
endif()
