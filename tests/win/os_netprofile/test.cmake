# The connection tests ask the platform's WNet functions for the errors the
# exports should pass on; the folder fixture is that of the file tests.
target_link_libraries(${test_target} PRIVATE mpr)
target_sources(${test_target} PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../os_files/files_support.cpp)
target_include_directories(${test_target} PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../os_files)
