# The exports are driven on calendar objects that the tests make themselves,
# without a window; the dialogs' date checks are not exported.
target_sources(${test_target} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/win_control.cpp)
target_include_directories(${test_target} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support)
