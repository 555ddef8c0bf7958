# The name tables are filled once per process, by the first date built: the
# test that watches that first construction runs alone, in a process of its
# own, and the others without it.
set_tests_properties(${test_target} PROPERTIES ENVIRONMENT "GTEST_FILTER=-NameTables.*")
add_test(NAME ${test_target}_names
         COMMAND ${test_target} --gtest_filter=NameTables.* --gtest_output=xml:${CMAKE_BINARY_DIR}/results/${test_target}_names.xml)
