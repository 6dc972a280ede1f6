# The same source gives the same bytes wherever it lies: no program holds the names of the folders
# that it was built in. Dates come from SOURCE_DATE_EPOCH, which scripts/common.sh sets.
add_compile_options("-ffile-prefix-map=${CMAKE_BINARY_DIR}=build"
                    "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.")
if(WIN32)
  add_link_options(-Wl,--no-insert-timestamp)
endif()
