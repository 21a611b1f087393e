# cmake -DPROGRAM=... -DPASS=decode|path -DLOG=... -P Result.cmake
#
# Two wind sentences and a speed are whole, one type is not decoded, two checksums are wrong (one of a type that is not
# decoded), a heading lacks its variation.
file(WRITE ${LOG}
  "$IIVTG,,T,100.0,M,6.0,N,,K\n"
  "$IIMWV,045,R,10.5,N,A*16\r\n"
  "$IIMWV,045,R,10.5,N,A*00\n"
  "$GPGSV,1,1,00*00\r"
  "$IIDBT,036.4,f,011.1,M,006.0,F\n"
  "$IIHDG,123.5,,,,\n"
  "$IIMWV,046,R,10.5,N,A\n")
# Decoded: 106 of the speed, 55.5 and 56.5 of the winds, 123.5 of the heading. Path: the bearings that were sent.
set(acc "341\\.5000")
if(PASS STREQUAL "path")
  set(acc "[0-9]+\\.[0-9]+")
endif()
execute_process(COMMAND ${PROGRAM} --${PASS} ${LOG} OUTPUT_VARIABLE out RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT out MATCHES
    "^RESULT name=veerwatch lines=7 parsed=3 unsupported=1 bad=3 seconds=[0-9]+\\.[0-9]+ acc=${acc}\n$")
  message(FATAL_ERROR "exit status ${status}: ${out}")
endif()
