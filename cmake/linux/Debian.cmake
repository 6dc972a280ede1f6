# The Debian package, which `cpack` makes of what is installed: scripts/package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME torvik)
set(CPACK_PACKAGE_CONTACT "The Torvik authors <maintainers@torvik.example>")
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/package")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/PackageDates.cmake")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS bash-completion)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "turns plotter drawings into programs for milling machines")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Torvik turns pen-plotter drawings into programs for the milling machines of a
school workshop. Each pen colour of a drawing is cut in passes, drilled or left
out, with the tools of the workshop.
.
It shows the piece as it will come out, checks the program, prints a sheet for
the machine, and writes G-code for four controls. Drawings of other programs,
SVG and DXF among them, can be prepared for it.")
include(CPack)

# A package without a packager's own revision has one changelog, in Debian's form.
torvik_changelog(changes debian -v "maintainer=${CPACK_PACKAGE_CONTACT}")
set(changelog "${CMAKE_BINARY_DIR}/debian/changelog")
file(CONFIGURE OUTPUT "${changelog}" CONTENT "${changes}\n" @ONLY)
add_custom_command(OUTPUT "${changelog}.gz"
  COMMAND gzip -9nkf "${changelog}" DEPENDS "${changelog}" VERBATIM)
add_custom_target(torvik_changelog ALL DEPENDS "${changelog}.gz")
install(FILES "${changelog}.gz" TYPE DOC)
