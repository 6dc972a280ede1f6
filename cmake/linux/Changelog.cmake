# CHANGELOG.md for other readers. Its newest version must be the one that is built.
set(TORVIK_CHANGELOG "${CMAKE_SOURCE_DIR}/CHANGELOG.md")
set_property(DIRECTORY "${CMAKE_SOURCE_DIR}" APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
             "${TORVIK_CHANGELOG}" "${CMAKE_CURRENT_LIST_DIR}/changelog.awk")

# torvik_changelog(RESULT FORM [OPTIONS OF AWK...]): see changelog.awk.
function(torvik_changelog result form)
  execute_process(
    COMMAND awk -v "form=${form}" ${ARGN} -f "${CMAKE_SOURCE_DIR}/cmake/linux/changelog.awk"
            "${TORVIK_CHANGELOG}"
    OUTPUT_VARIABLE text OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

torvik_changelog(newest version)
if(NOT newest STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "CHANGELOG.md begins with version ${newest}, this is ${PROJECT_VERSION}.")
endif()
