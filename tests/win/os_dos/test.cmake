# The temporary folders and file making are those of the file tests, the
# host array helpers those of the array tests.
target_sources(${test_target} PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../os_files/files_support.cpp)
target_include_directories(${test_target} PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../os_files
                                                  ${CMAKE_CURRENT_LIST_DIR}/../array)
