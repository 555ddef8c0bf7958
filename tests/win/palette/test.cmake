# The form's palette is driven through the library as the host drives it;
# the pop-up has no class of the host's: it is made here from the palette's
# own code.
target_sources(${test_target} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/win_control.cpp)
target_include_directories(${test_target} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support)
