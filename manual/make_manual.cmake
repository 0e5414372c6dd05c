# Makes the manual. PICTURES is the program that makes its pictures, CONVERTER is asciidoctor
# (with its extension for PDF),
# SOURCE holds the text, EXAMPLES the example files; VERSION is that of the program. FOLDER is
# emptied and used for the pictures, PDF is the result.

function(run)
  execute_process(COMMAND ${ARGV} WORKING_DIRECTORY "${FOLDER}" RESULT_VARIABLE code
    OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "${ARGV}\nended with ${code}:\n${output}")
  endif()
endfunction()

file(REMOVE_RECURSE "${FOLDER}")
file(GLOB examples "${EXAMPLES}/Erlenbach*")
file(COPY ${examples} DESTINATION "${FOLDER}/Erlenbach")

# Without a screen, at twice the size of one, with a desktop of no particular look.
run(${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 QT_STYLE_OVERRIDE=Fusion
  LC_ALL=C.UTF-8 QT_LOGGING_RULES=*=false "${PICTURES}" pictures)

# A fixed date, and no traces of the run: the same text gives the same bytes.
run(${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0 LC_ALL=C.UTF-8
  "${CONVERTER}" -r asciidoctor-pdf -b pdf --failure-level WARN --safe-mode unsafe
  -a reproducible -a "program-version=${VERSION}" -a "imagesdir=${FOLDER}/pictures"
  -a "pdf-themesdir=${SOURCE}" -a pdf-theme=handbuch
  -o "${PDF}" "${SOURCE}/handbuch.adoc")
