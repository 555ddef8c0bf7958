# The exports are driven on calendar objects that the tests make themselves,
# without a window, so the program links the portable core and the calendar
# window's code with the control frame; the dialogs' date checks are not
# exported and are linked from their source with the frame objects they use.
target_link_libraries(${test_target} PRIVATE zkcore zkdesigner zkframe)
target_sources(${test_target} PRIVATE ${CMAKE_SOURCE_DIR}/src/calendar/win_date_checks.cpp
                                      ${ZK_CALENDAR_WINDOW_SOURCES})
