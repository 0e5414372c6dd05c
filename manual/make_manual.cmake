# Makes the manual. PICTURES is the program that makes its pictures, CONVERTER is asciidoctor (with
# its extension for PDF), SOURCE holds the text, EXAMPLES the example files; VERSION is that of the
# program. FOLDER is emptied and used for the pictures, PDF is the result.

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

# A screen that is none, with room for every window at twice its size.
file(WRITE "${FOLDER}/screen.json" [[{"synchronousWindowSystemEvents": true, "windowFrameMargins": false,
"screens": [{"name": "screen", "x": 0, "y": 0, "width": 2560, "height": 2048}]}]])

# The page view's library leaks a thread, which is no reason to stop.
function(make_pictures)
  run(${CMAKE_COMMAND} -E env "QT_QPA_PLATFORM=offscreen:configfile=${FOLDER}/screen.json"
    QT_SCALE_FACTOR=2 QT_STYLE_OVERRIDE=Fusion LC_ALL=C.UTF-8 QT_LOGGING_RULES=*=false ASAN_OPTIONS=detect_leaks=0
    "${PICTURES}" pictures "${FOLDER}/draft.pdf")
endfunction()

# A fixed date, and no traces of the run: the same text gives the same bytes.
function(convert pdf)
  run(${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0 LC_ALL=C.UTF-8
    "${CONVERTER}" -r asciidoctor-pdf -b pdf --failure-level WARN --safe-mode unsafe
    -a reproducible -a "program-version=${VERSION}" -a "examples=${EXAMPLES}"
    -a "imagesdir=${FOLDER}/pictures"
    -a "pdf-themesdir=${SOURCE}" -a pdf-theme=handbuch
    -o "${pdf}" "${SOURCE}/handbuch.adoc")
endfunction()

# The manual has a picture of itself, so there is a draft first.
make_pictures()
convert("${FOLDER}/draft.pdf")
make_pictures()
convert("${PDF}")
