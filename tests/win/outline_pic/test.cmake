# The registries are not exported: the program compiles its own copies of
# them (and of the picture record they delete) over the portable core.
target_sources(${test_target} PRIVATE
  ${CMAKE_SOURCE_DIR}/src/outline/win/pic_record.cpp
  ${CMAKE_SOURCE_DIR}/src/outline/win/pic_registry.cpp
  ${CMAKE_SOURCE_DIR}/src/outline/win/font_registry.cpp)
target_sources(${test_target} PRIVATE ${CMAKE_SOURCE_DIR}/src/frame/propcache.cpp)
target_link_libraries(${test_target} PRIVATE zkcore)
