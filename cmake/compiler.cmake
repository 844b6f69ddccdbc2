# Warnings, sanitizers and the precompiled header, in one place for every target.

add_library(kivu_options INTERFACE)
target_include_directories(kivu_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(kivu_options INTERFACE -Wall -Wextra -Wpedantic)
# A package must build with a compiler that warns of more, and alike on every day.
if(KIVU_WERROR)
  target_compile_options(kivu_options INTERFACE -Werror)
else()
  target_compile_options(kivu_options INTERFACE -Werror=date-time)
endif()
if(NOT WIN32)
  # Of another size there, many a number would warn of what is right here.
  target_compile_options(kivu_options INTERFACE -Wconversion)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND NOT WIN32)
  # What clang does not know.
  target_compile_options(kivu_options INTERFACE -Wshadow=local -Wuseless-cast)
endif()
# At -O3 GCC 12 takes the assignment of a literal to a string for an overflow (its bugs 105329, 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  foreach(warning array-bounds restrict stringop-overflow)
    target_compile_options(kivu_options INTERFACE $<$<CONFIG:Release>:-Wno-${warning}>)
  endforeach()
endif()

if(WIN32)
  # Wide-character calls of Windows 10 and later, and no DLL of the compiler's.
  target_compile_definitions(kivu_options INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN
                                                    _WIN32_WINNT=0x0A00)
  target_link_options(kivu_options INTERFACE -static $<$<CONFIG:Release>:-s>)
endif()

if(KIVU_SANITIZE)
  target_compile_options(kivu_options INTERFACE -fsanitize=${KIVU_SANITIZE} -fno-omit-frame-pointer
                                                -fno-sanitize-recover=all)
  target_link_options(kivu_options INTERFACE -fsanitize=${KIVU_SANITIZE})
endif()

# kivu_precompile(name headers...): what all of its sources may rely on. With a precompiled header GCC's debug
# information differs from run to run (the order of its tables follows addresses), and so would a package's build id:
# there each source reads the same headers as text.
option(KIVU_PRECOMPILE "Precompile what all sources include" ON)
function(kivu_precompile name)
  if(KIVU_PRECOMPILE)
    target_precompile_headers(${name} PRIVATE ${ARGN})
    return()
  endif()
  list(TRANSFORM ARGN REPLACE "(.+)" "#include \\1\n" OUTPUT_VARIABLE lines)
  list(JOIN lines "" text)
  set(header ${PROJECT_BINARY_DIR}/common/${name}.h)
  file(CONFIGURE OUTPUT ${header} CONTENT "${text}" @ONLY)
  target_compile_options(${name} PRIVATE -include ${header})
endfunction()

# kivu_library(name folder [libraries...]): a static library of all sources in src/folder.
function(kivu_library name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp)
  if(sources)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC kivu_options ${ARGN})
    kivu_precompile(${name} <algorithm> <functional> <memory> <optional> <string> <string_view> <utility> <vector>)
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE kivu_options ${ARGN})
  endif()
endfunction()

# kivu_test_sources(variable folder patterns...): the folder's sources that hold on this host.
# tests/not_on_windows.txt lists those that don't on Windows, as a pattern and a reason a line.
function(kivu_test_sources variable folder)
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/tests/${folder}/ OUTPUT_VARIABLE patterns)
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  if(WIN32)
    set(list ${PROJECT_SOURCE_DIR}/tests/not_on_windows.txt)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list})
    file(STRINGS ${list} lines REGEX "^[^#]")
    foreach(line IN LISTS lines)
      string(REGEX MATCH "^[^ ]+" pattern "${line}")
      file(GLOB left_out ${PROJECT_SOURCE_DIR}/tests/${pattern})
      list(REMOVE_ITEM sources ${left_out})
    endforeach()
  endif()
  set(${variable} ${sources} PARENT_SCOPE)
endfunction()

# kivu_add_tests(name seconds [environment...]): the program's tests, each as a test of CTest. Where they run
# in an emulator of Windows, whose start costs more than most tests, the program is one test.
function(kivu_add_tests name seconds)
  # They take long to build and not to run.
  target_compile_options(${name} PRIVATE -O0 $<$<CONFIG:RelWithDebInfo>:-g1>)
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${name} COMMAND ${name} --gtest_output=xml:Z:${CMAKE_BINARY_DIR}/reports/${name}.xml)
    math(EXPR seconds "${seconds} * 5")
    set_tests_properties(${name} PROPERTIES TIMEOUT ${seconds} ENVIRONMENT "${ARGN}")
  else()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60
                         PROPERTIES TIMEOUT ${seconds} ENVIRONMENT "${ARGN}")
  endif()
endfunction()

# kivu_offscreen(name): a program that shows its windows nowhere. Static libraries bring no such platform by
# themselves.
function(kivu_offscreen name)
  if(WIN32)
    find_package(Qt6 REQUIRED COMPONENTS Widgets)
    find_package(Qt6QOffscreenIntegrationPlugin REQUIRED PATHS ${Qt6Gui_DIR})
    target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/testing/windows/offscreen_plugin.cpp)
    target_link_libraries(${name} PRIVATE Qt6::QOffscreenIntegrationPlugin)
  endif()
endfunction()

# kivu_test(folder [libraries...]): one GoogleTest program of all sources in tests/folder.
function(kivu_test folder)
  kivu_test_sources(sources ${folder} *_test.cpp)
  if(NOT sources)
    return()
  endif()
  string(REPLACE "/" "_" name kivu_test_${folder})
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${KIVU_TEST_INCLUDES})
  target_link_libraries(${name} PRIVATE ${ARGN} GTest::gmock GTest::gtest_main)
  target_precompile_headers(${name} PRIVATE <string> <vector> <gtest/gtest.h>)
  kivu_add_tests(${name} 120)
endfunction()
