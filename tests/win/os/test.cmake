# The connection tests ask the platform's WNet functions for the errors the
# exports should pass on.
target_link_libraries(${test_target} PRIVATE mpr)
