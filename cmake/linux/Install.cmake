# What `cmake --install` lays where, by the customs of GNU systems; share/ stands beside bin/.
include(GNUInstallDirs)
set(CMAKE_INSTALL_DOCDIR "${CMAKE_INSTALL_DATADIR}/doc/torvik")

get_property(programs GLOBAL PROPERTY TORVIK_PROGRAMS)
install(TARGETS ${programs} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

# What is there to try; the READMEs beside it are for developers.
set(readable FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
install(DIRECTORY "${CMAKE_SOURCE_DIR}/samples/" DESTINATION "${CMAKE_INSTALL_DATADIR}/torvik/samples"
        ${readable}
        FILES_MATCHING PATTERN "*.plt" PATTERN "*.plx" PATTERN "*.ini" PATTERN "*.hpgl"
                       PATTERN "*.svg" PATTERN "*.dxf")
install(FILES "${CMAKE_SOURCE_DIR}/docs/teacher.md" "${CMAKE_SOURCE_DIR}/docs/drawings.md"
              "${CMAKE_SOURCE_DIR}/docs/targets.md" "${CMAKE_SOURCE_DIR}/docs/checking.md"
              "${CMAKE_SOURCE_DIR}/docs/time.md"
        TYPE DOC)
install(DIRECTORY "${CMAKE_SOURCE_DIR}/docs/images" TYPE DOC ${readable})
install(FILES "${CMAKE_CURRENT_LIST_DIR}/copyright" TYPE DOC)
include("${CMAKE_CURRENT_LIST_DIR}/Changelog.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/Debian.cmake")
if(NOT TORVIK_QT)
  return()
endif()

install(FILES "${CMAKE_CURRENT_LIST_DIR}/torvik.desktop"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${CMAKE_CURRENT_LIST_DIR}/torvik.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
torvik_changelog(releases appstream)
list(TRANSFORM programs REPLACE ".+" "    <binary>\\0</binary>" OUTPUT_VARIABLE binaries)
list(JOIN binaries "\n" binaries)
configure_file("${CMAKE_CURRENT_LIST_DIR}/torvik.metainfo.xml.in"
               "${CMAKE_BINARY_DIR}/example.torvik.torvik.metainfo.xml" @ONLY)
install(FILES "${CMAKE_BINARY_DIR}/example.torvik.torvik.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")

# The one drawing of the icon, and pictures of it for desktops that take no drawings.
set(drawing "${CMAKE_SOURCE_DIR}/app/torvik.svg")
set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
install(FILES "${drawing}" DESTINATION "${icons}/scalable/apps")
find_program(TORVIK_RSVG_CONVERT rsvg-convert)
if(TORVIK_RSVG_CONVERT)
  foreach(size 16 22 24 32 48 64 128 256)
    set(picture "${CMAKE_BINARY_DIR}/icons/${size}/torvik.png")
    add_custom_command(OUTPUT "${picture}"
      COMMAND "${CMAKE_COMMAND}" -E make_directory "${CMAKE_BINARY_DIR}/icons/${size}"
      COMMAND "${TORVIK_RSVG_CONVERT}" -w ${size} -h ${size} -o "${picture}" "${drawing}"
      DEPENDS "${drawing}" VERBATIM)
    install(FILES "${picture}" DESTINATION "${icons}/${size}x${size}/apps")
    list(APPEND pictures "${picture}")
  endforeach()
  add_custom_target(torvik_icons ALL DEPENDS ${pictures})
endif()
