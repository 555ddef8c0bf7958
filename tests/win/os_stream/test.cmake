# Files are written and read whole with the file tests' helpers.
target_sources(${test_target} PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../os_files/files_support.cpp)
target_include_directories(${test_target} PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../os_files)
