# What every target of the project shares: language level, warnings, Qt's strictness, sanitizers.
add_library(tockly_options INTERFACE)
target_compile_features(tockly_options INTERFACE cxx_std_20)
target_include_directories(tockly_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_definitions(tockly_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
  QT_NO_FOREACH QT_NO_KEYWORDS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(MSVC)
  target_compile_options(tockly_options INTERFACE /W4 /WX /permissive- /utf-8)
else()
  target_compile_options(tockly_options INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlapping copies in the standard library's own text concatenation.
  target_compile_options(tockly_options INTERFACE -Wno-restrict)
endif()
if(TOCKLY_SANITIZE)
  target_compile_options(tockly_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tockly_options INTERFACE -fsanitize=address,undefined)
endif()
if(TOCKLY_FUZZ)
  target_compile_options(tockly_options INTERFACE -fsanitize=fuzzer-no-link)
  # A place behind the end of a text is often in memory that belongs to it.
  target_compile_definitions(tockly_options INTERFACE QT_FORCE_ASSERTS _GLIBCXX_ASSERTIONS)
endif()

# One floor of the house: a static library of the folder's sources.
function(tockly_floor name)
  cmake_parse_arguments(FLOOR "MOC" "" "SOURCES;LINK" ${ARGN})
  add_library(tockly_${name} STATIC ${FLOOR_SOURCES})
  target_link_libraries(tockly_${name} PUBLIC tockly_options ${FLOOR_LINK})
  if(FLOOR_MOC)
    set_target_properties(tockly_${name} PROPERTIES AUTOMOC ON)
  endif()
endfunction()

# One test program of GoogleTest cases; each case is a test of ctest under the given label.
# Programs with windows link tockly_gui_test_main, the others tockly_test_main.
function(tockly_test name)
  cmake_parse_arguments(TEST "" "LABEL" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE tockly_options ${TEST_LINK} GTest::gtest GTest::gmock)
  target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  target_compile_definitions(${name} PRIVATE TOCKLY_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data")
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES LABELS "${TEST_LABEL}" TIMEOUT 300)
  if(TEST_LABEL STREQUAL "gui")
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
  endif()
endfunction()
