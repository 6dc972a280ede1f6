# Compiler settings shared by every target, and the helpers that declare one.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(TORVIK_WERROR "Treat warnings as errors" OFF)
set(TORVIK_SANITIZE "" CACHE STRING "Sanitizers to build with, as in -fsanitize=")

include(Hardening)
include(Reproducible)

add_library(torvik_options INTERFACE)
# Contracted multiply-adds would change the last bit of computed coordinates.
target_compile_options(torvik_options INTERFACE -ffp-contract=off -Wall -Wextra -Wpedantic
                                                -Wconversion)
if(NOT CMAKE_UNITY_BUILD)
  # Compiled together, files see each other's names.
  target_compile_options(torvik_options INTERFACE -Wshadow)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlaps in std::string's operator+ that are not there.
  target_compile_options(torvik_options INTERFACE -Wno-restrict)
endif()
if(TORVIK_WERROR)
  target_compile_options(torvik_options INTERFACE -Werror)
endif()
if(TORVIK_SANITIZE)
  target_compile_options(torvik_options INTERFACE -fsanitize=${TORVIK_SANITIZE}
                                                  -fno-sanitize-recover=all
                                                  -fno-omit-frame-pointer)
  target_link_options(torvik_options INTERFACE -fsanitize=${TORVIK_SANITIZE})
endif()
target_include_directories(torvik_options INTERFACE "${CMAKE_SOURCE_DIR}")

# torvik_library(NAME SOURCES... [LINK LIBS...]): one static library of one folder.
function(torvik_library name)
  cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
  add_library(${name} STATIC ${ARG_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PUBLIC torvik_options ${ARG_LINK})
endfunction()

# torvik_program(NAME SOURCES... [ALONE] DESCRIPTION TEXT [LINK LIBS...]): one program of those that
# are handed on. They all stand in one folder, because saved answers are kept beside them. ALONE: on
# Windows it needs no other file beside it.
function(torvik_program name)
  cmake_parse_arguments(ARG "ALONE" "DESCRIPTION" "LINK" ${ARGN})
  add_executable(${name} ${ARG_UNPARSED_ARGUMENTS})
  if(WIN32)
    configure_file("${CMAKE_SOURCE_DIR}/cmake/windows/program.rc.in" ${name}.rc @ONLY)
    set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${name}.rc" PROPERTIES OBJECT_DEPENDS
      "${CMAKE_SOURCE_DIR}/cmake/windows/program.manifest;${CMAKE_SOURCE_DIR}/cmake/windows/torvik.ico")
    target_sources(${name} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${name}.rc")
    if(ARG_ALONE)
      target_link_options(${name} PRIVATE -static)
    endif()
  endif()
  target_compile_definitions(${name} PRIVATE TORVIK_VERSION="${PROJECT_VERSION}")
  target_link_libraries(${name} PRIVATE torvik_options ${ARG_LINK})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
  set_property(GLOBAL APPEND PROPERTY TORVIK_PROGRAMS ${name})
endfunction()

# torvik_test(NAME SOURCES... [LINK LIBS...]): one GoogleTest program, its cases known to CTest.
function(torvik_test name)
  cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
  add_executable(${name} ${ARG_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PRIVATE torvik_options ${ARG_LINK} GTest::gtest_main)
  if(TORVIK_SANITIZE)
    # Half of the compiler's work for the tables of cases would go into making them fast.
    target_compile_options(${name} PRIVATE -O0)
  endif()
  if(WIN32)
    # One start of Wine for all cases of a program.
    target_link_options(${name} PRIVATE -static)
    add_test(NAME ${name} COMMAND wine $<TARGET_FILE:${name}>)
    return()
  endif()
  # The user's own settings are nobody's business here.
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300 ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/no-settings")
endfunction()
