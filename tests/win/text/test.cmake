# The same program once more under a double-byte system code page (Wine
# takes code page 932 from a Japanese locale): the double-byte cases of
# padding and string tables run there, and skip themselves elsewhere.
add_test(NAME ${test_target}_dbcs
         COMMAND ${test_target} --gtest_output=xml:Z:${CMAKE_BINARY_DIR}/results/${test_target}_dbcs.xml)
set_tests_properties(${test_target}_dbcs PROPERTIES
  ENVIRONMENT "ZK_WINEPREFIX=${CMAKE_BINARY_DIR}/wineprefix;LANG=ja_JP.UTF-8" TIMEOUT 300)
