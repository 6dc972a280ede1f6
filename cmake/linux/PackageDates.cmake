# Run by cpack before it packs: what lies in the package is as old as its version, not as this build.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(
    COMMAND find "${CPACK_TEMPORARY_INSTALL_DIRECTORY}" -exec touch --no-dereference
            "--date=@$ENV{SOURCE_DATE_EPOCH}" {} +
    COMMAND_ERROR_IS_FATAL ANY)
endif()
