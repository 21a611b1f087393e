# What every target of the project shares.
add_library(veerwatch_common INTERFACE)
target_include_directories(veerwatch_common INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_features(veerwatch_common INTERFACE cxx_std_20)
target_compile_options(veerwatch_common INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wdouble-promotion -Wshadow
  $<$<BOOL:${VEERWATCH_WERROR}>:-Werror>)
# A product and a sum keep their two roundings, so that every processor comes to the same figures. x86_64's compilers
# fuse nothing unless they are told of a newer processor.
if(NOT CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
  target_compile_options(veerwatch_common INTERFACE -ffp-contract=off)
endif()
# What guards against damaged memory in what the wire and the files bring. The sanitizers do more, and FORTIFY needs
# the optimiser.
if(NOT VEERWATCH_SANITIZE AND CMAKE_BUILD_TYPE STREQUAL "Release" AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
  target_compile_options(veerwatch_common INTERFACE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  target_link_options(veerwatch_common INTERFACE -Wl,-z,relro,-z,now)
endif()
if(VEERWATCH_SANITIZE)
  target_compile_options(veerwatch_common INTERFACE
    -fsanitize=address,undefined,float-cast-overflow,float-divide-by-zero -fno-sanitize-recover=all)
  target_link_options(veerwatch_common INTERFACE
    -fsanitize=address,undefined,float-cast-overflow,float-divide-by-zero)
endif()

# veerwatch_add_library(NAME SOURCES... ): the Qt-free library of one folder.
function(veerwatch_add_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC veerwatch_common)
endfunction()

# veerwatch_add_windows(SOURCES...): the Qt files of one folder, in the library that all windows share.
function(veerwatch_add_windows)
  if(VEERWATCH_QT)
    target_sources(veerwatch_ui PRIVATE ${ARGN})
  endif()
endfunction()

# veerwatch_add_program(NAME SOURCES...): an executable beside the others, directly in the build folder.
function(veerwatch_add_program name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE veerwatch_common)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
endfunction()
