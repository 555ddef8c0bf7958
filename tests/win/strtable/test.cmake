# The same program once more under a double-byte system code page (Wine
# takes code page 932 from a Japanese locale), for the code page cases.
add_test(NAME ${test_target}_dbcs
         COMMAND ${test_target} --gtest_output=xml:Z:${CMAKE_BINARY_DIR}/results/${test_target}_dbcs.xml)
set_tests_properties(${test_target}_dbcs PROPERTIES
  ENVIRONMENT "ZK_WINEPREFIX=${CMAKE_BINARY_DIR}/wineprefix;LANG=ja_JP.UTF-8"
  TIMEOUT 300)
# The tables are written into the file tests' fresh folder.
target_sources(${test_target} PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../os_files/files_support.cpp)
target_include_directories(${test_target} PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../os_files)
