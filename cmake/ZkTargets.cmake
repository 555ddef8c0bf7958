# Helpers shared by every CMake list of the project.

function(zk_warnings target)
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wno-unused-parameter)
  endif()
endfunction()

# A DLL with the exact file name, exports from a .def written in the 32-bit
# form "Name@N == Name": undecorated exports on both targets, stdcall inside
# on i686. The .def is a head plus the entry lists in an optional folder of
# parts, joined into the build tree; for x86_64 the decorations are dropped.
function(zk_add_dll target head)
  cmake_parse_arguments(ARG "" "PARTS" "" ${ARGN})
  add_library(${target} SHARED)
  set_target_properties(${target} PROPERTIES PREFIX "" OUTPUT_NAME ${target} IMPORT_PREFIX "lib")
  set(parts "")
  if(ARG_PARTS)
    file(GLOB parts CONFIGURE_DEPENDS ${ARG_PARTS}/*.def)
  endif()
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(strip 1)
  else()
    set(strip 0)
  endif()
  set(out ${CMAKE_BINARY_DIR}/def/${target}.def)
  add_custom_command(OUTPUT ${out}
    COMMAND ${CMAKE_COMMAND} -DHEAD=${head} -DPARTS=${ARG_PARTS} -DOUT=${out} -DSTRIP=${strip}
            -P ${CMAKE_SOURCE_DIR}/cmake/def-join.cmake
    DEPENDS ${head} ${parts} ${CMAKE_SOURCE_DIR}/cmake/def-join.cmake VERBATIM)
  add_custom_target(${target}_def DEPENDS ${out})
  add_dependencies(${target} ${target}_def)
  target_link_options(${target} PRIVATE ${out})
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${out})
  zk_warnings(${target})
endfunction()


# One component of the library: src/<name>/core/*.cpp (portable, no platform
# header) join the portable core zkcore; on Windows src/<name>/win/*_exports.cpp
# (the exported functions) join the DLL, and the rest of win/ (window
# procedures, painting, the platform's side) forms the static library
# zk_<name>, which the DLL takes whole and a test program links for what it
# reaches of it. LIBS: platform libraries the component's code calls.
function(zk_component name)
  cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
  set(here ${CMAKE_CURRENT_SOURCE_DIR})
  file(GLOB core CONFIGURE_DEPENDS ${here}/core/*.cpp)
  if(core)
    target_sources(zkcore PRIVATE ${core})
  endif()
  if(NOT WIN32)
    return()
  endif()
  file(GLOB win CONFIGURE_DEPENDS ${here}/win/*.cpp)
  set(exports ${win})
  list(FILTER exports INCLUDE REGEX "_exports\\.cpp$")
  list(FILTER win EXCLUDE REGEX "_exports\\.cpp$")
  if(exports)
    target_sources(ZKLIB PRIVATE ${exports})
  endif()
  if(win)
    add_library(zk_${name} STATIC ${win})
    target_include_directories(zk_${name} PUBLIC ${CMAKE_SOURCE_DIR}/include ${CMAKE_SOURCE_DIR}/src
                                                 ${CMAKE_SOURCE_DIR}/res ${CMAKE_BINARY_DIR}/res)
    target_link_libraries(zk_${name} PUBLIC zkcore zkhost ${ARG_LIBS}
                                            user32 gdi32 kernel32 comctl32 shell32 advapi32 version)
    zk_warnings(zk_${name})
    target_link_libraries(ZKLIB PRIVATE "$<LINK_LIBRARY:WHOLE_ARCHIVE,zk_${name}>")
    set_property(GLOBAL APPEND PROPERTY ZK_COMPONENT_LIBRARIES zk_${name})
  endif()
endfunction()

# A Windows test program: GoogleTest, the harness, both DLLs; one ctest entry
# that runs it once under Wine in the build tree's prefix.
# The components' libraries come after the DLL's import library, as one group
# (they call each other), so that a test reaches the code of the library it
# names and calls every export in the DLL itself.
function(zk_win_test name)
  add_executable(${name} ${ARGN})
  get_property(components GLOBAL PROPERTY ZK_COMPONENT_LIBRARIES)
  list(JOIN components "," group)
  target_link_libraries(${name} PRIVATE zktsupport zkharness ZKLIB zkhost "$<LINK_GROUP:RESCAN,${group}>"
                                        GTest::gtest GTest::gtest_main)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/include ${CMAKE_SOURCE_DIR}/src)
  zk_warnings(${name})
  # The program runs under Wine, which reaches Unix paths through drive Z:.
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/results)
  add_test(NAME ${name} COMMAND ${name} --gtest_output=xml:Z:${CMAKE_BINARY_DIR}/results/${name}.xml)
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "ZK_WINEPREFIX=${CMAKE_BINARY_DIR}/wineprefix"
                                         TIMEOUT 300)
endfunction()

# A native test program of the portable core.
function(zk_native_test name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE zkcore GTest::gtest GTest::gtest_main)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support)
  zk_warnings(${name})
  add_test(NAME ${name} COMMAND ${name} --gtest_output=xml:${CMAKE_BINARY_DIR}/results/${name}.xml)
endfunction()
