# Warnings, sanitizers and the precompiled header, in one place for every target.

add_library(kivu_options INTERFACE)
target_include_directories(kivu_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(kivu_options INTERFACE -Wall -Wextra -Wpedantic -Werror)
# At -O3 GCC 12 takes the assignment of a literal to a string for an overflow (its bugs 105329, 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  foreach(warning array-bounds restrict stringop-overflow)
    target_compile_options(kivu_options INTERFACE $<$<CONFIG:Release>:-Wno-${warning}>)
  endforeach()
endif()

if(KIVU_SANITIZE)
  target_compile_options(kivu_options INTERFACE -fsanitize=${KIVU_SANITIZE} -fno-omit-frame-pointer
                                                -fno-sanitize-recover=all)
  target_link_options(kivu_options INTERFACE -fsanitize=${KIVU_SANITIZE})
endif()

# kivu_library(name folder [libraries...]): a static library of all sources in src/folder.
function(kivu_library name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp)
  if(sources)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC kivu_options ${ARGN})
    target_precompile_headers(${name} PRIVATE <algorithm> <functional> <memory> <optional> <string>
                              <string_view> <utility> <vector>)
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE kivu_options ${ARGN})
  endif()
endfunction()

# kivu_test(folder [libraries...]): one GoogleTest program of all sources in tests/folder.
function(kivu_test folder)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*_test.cpp)
  if(NOT sources)
    return()
  endif()
  string(REPLACE "/" "_" name kivu_test_${folder})
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${ARGN} GTest::gmock GTest::gtest_main)
  target_precompile_headers(${name} PRIVATE <string> <vector> <gtest/gtest.h>)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
endfunction()
