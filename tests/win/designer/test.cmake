# The control frame is tested in-process: its objects are linked beside the
# DLL, as the frame's own tests do, with classes of the tests' own.
target_link_libraries(${test_target} PRIVATE zkdesigner zkframe zkcore)
