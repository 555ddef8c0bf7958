# The row paint is not exported: the program compiles its own copies of it,
# with the record access it reads through, over the portable core, and
# paints rows of items and tree nodes that it builds itself. The exports of
# painting are tested through the library as the host calls them.
target_sources(${test_target} PRIVATE
  ${CMAKE_SOURCE_DIR}/src/outline/win/paint_draw.cpp
  ${CMAKE_SOURCE_DIR}/src/outline/win/paint_parts.cpp
  ${CMAKE_SOURCE_DIR}/src/outline/win/paint_textrect.cpp
  ${CMAKE_SOURCE_DIR}/src/outline/win/pic_record.cpp
  ${CMAKE_SOURCE_DIR}/src/outline/win/pic_readable.cpp
  ${CMAKE_SOURCE_DIR}/src/outline/win/lbx_records.cpp)
target_sources(${test_target} PRIVATE ${CMAKE_SOURCE_DIR}/src/frame/propcache.cpp)
target_link_libraries(${test_target} PRIVATE zkcore)
