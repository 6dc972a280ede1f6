# The same source gives the same bytes wherever it lies: no program holds the names of the folders
# that it was built in. Dates come from SOURCE_DATE_EPOCH, which scripts/common.sh sets.
add_compile_options("-ffile-prefix-map=${CMAKE_BINARY_DIR}=build"
                    "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.")
# The first form of resources is the one without the times of their files.
set(resourceForm --format-version 1)
set(CMAKE_AUTORCC_OPTIONS ${resourceForm})
if(WIN32)
  add_link_options(-Wl,--no-insert-timestamp)
endif()
