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
