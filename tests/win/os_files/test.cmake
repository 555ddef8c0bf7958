# The shared file routines are not exported: the program compiles its own
# copies of them from the library's sources, over the portable core.
target_sources(${test_target} PRIVATE
  ${CMAKE_SOURCE_DIR}/src/os/file_open.cpp
  ${CMAKE_SOURCE_DIR}/src/os/path_routines.cpp
  ${CMAKE_SOURCE_DIR}/src/os/file_transfer.cpp)
target_link_libraries(${test_target} PRIVATE zkcore)
