# cmake -DPROGRAM=... -DFOLDER=... -DNAME=... -DKIND=apb|texts -DOPTIONS=... -DOUT=... -P Replay.cmake
set(expected ${FOLDER}/${NAME}.${KIND})
if(KIND STREQUAL "texts")
  list(APPEND OPTIONS --trace)
endif()
execute_process(
  COMMAND ${PROGRAM} replay --profile ${FOLDER}/${NAME}.ini ${OPTIONS} ${FOLDER}/${NAME}.nmea
  OUTPUT_FILE ${OUT} ERROR_VARIABLE said RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT said STREQUAL "")
  message(FATAL_ERROR "exit status ${status}: ${said}")
endif()
if(KIND STREQUAL "texts")
  # What follows the texts are numbers. The key cannot stand in a text, where its quotes would be escaped.
  file(READ ${OUT} trace)
  string(REGEX REPLACE ",\"record\":[^\n]*\n" "}\n" trace "${trace}")
  file(WRITE ${OUT} "${trace}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUT} ${expected} RESULT_VARIABLE different)
if(different)
  message(FATAL_ERROR "${OUT} is not ${expected}")
endif()
