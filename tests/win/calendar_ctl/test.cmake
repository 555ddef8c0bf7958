# The form's calendar is driven through the library as the host drives it;
# the layout's sums (portable) tell the tests where the parts lie. The
# drop-down's pop-up has no class of the host's: it is made here from the
# calendar window's own sources, with the control frame beside them.
target_link_libraries(${test_target} PRIVATE zkcore zkdesigner zkframe)
target_sources(${test_target} PRIVATE ${ZK_CALENDAR_WINDOW_SOURCES})
