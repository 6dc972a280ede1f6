# The tests of the Windows programs that run under Wine.

if(TORVIK_GTEST_SOURCE)
  set(BUILD_GMOCK OFF)
  set(INSTALL_GTEST OFF)
  add_subdirectory("${TORVIK_GTEST_SOURCE}" googletest EXCLUDE_FROM_ALL SYSTEM)
  foreach(folder base job prepare gcode)
    add_subdirectory(${folder})
  endforeach()
endif()
add_subdirectory(tools)
get_property(programs GLOBAL PROPERTY TORVIK_PROGRAMS)
list(TRANSFORM programs REPLACE ".+" "$<TARGET_FILE:\\0>")
add_test(NAME windows_hardening
         COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/windows/hardening_test.sh" ${programs})
