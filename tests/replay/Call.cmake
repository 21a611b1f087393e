# cmake -DPROGRAM=... -DSTATUS=0|2 -DARGUMENTS=... -P Call.cmake
execute_process(COMMAND ${PROGRAM} ${ARGUMENTS}
  OUTPUT_VARIABLE out ERROR_VARIABLE said RESULT_VARIABLE status)
if(NOT status STREQUAL STATUS)
  message(FATAL_ERROR "exit status ${status}, not ${STATUS}: ${said}")
endif()
if(STATUS EQUAL 0)
  if(out STREQUAL "" OR NOT said STREQUAL "")
    message(FATAL_ERROR "output \"${out}\", standard error \"${said}\"")
  endif()
elseif(NOT out STREQUAL "" OR NOT said MATCHES "^veerwatch-cli: [^\n]+\n$")
  message(FATAL_ERROR "output \"${out}\", standard error \"${said}\", not one line")
endif()
