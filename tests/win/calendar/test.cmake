# The exports are driven on calendar models that the tests make themselves,
# without a window, so the program links the portable core; the dialogs'
# date checks are not exported and are linked from their source with the
# frame objects they use.
target_link_libraries(${test_target} PRIVATE zkcore zkframe)
target_sources(${test_target} PRIVATE ${CMAKE_SOURCE_DIR}/src/calendar/win_date_checks.cpp)
