# Run by cmake -P: a replay fails for a folder that is missing or empty, and passes with one input.

function(expect_replay expected)
  execute_process(COMMAND "${REPLAY}" "${FOLDER}"
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_QUIET)
  if(NOT result EQUAL expected)
    message(SEND_ERROR "the replay ended with ${result} instead of ${expected}: ${output}")
  endif()
endfunction()

file(REMOVE_RECURSE "${FOLDER}")
expect_replay(1)
file(MAKE_DIRECTORY "${FOLDER}")
expect_replay(1)
file(WRITE "${FOLDER}/one" " 1 2\n")
expect_replay(0)
