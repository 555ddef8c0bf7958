# The control's logic runs on the model's own fakes: the reference host's
# arithmetic with a fixed clock and a window that records.
target_sources(${test_target} PRIVATE ${CMAKE_SOURCE_DIR}/tests/native/calendar/calendar_fakes.cpp)
target_include_directories(${test_target} PRIVATE ${CMAKE_SOURCE_DIR}/tests/native/calendar)
