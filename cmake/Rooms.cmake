# One target per room. A room sees src/ for includes and only the libraries in its LINK list.
#
#   orken_room(view SOURCES ViewTree.cpp ... LINK foundation)
#   orken_test(view_tests SOURCES DiffTest.cpp ... LINK view)

function(orken_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ROOM_LINK} PRIVATE orken_flags ${ROOM_PRIVATE_LINK})
  # Rooms above the toolkit share one set of standard headers.
  target_precompile_headers(${name} PRIVATE <functional> <map> <memory> <optional> <string> <string_view> <vector>)
endfunction()

function(orken_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINK" ${ARGN})
  find_package(GTest REQUIRED)
  include(GoogleTest)
  add_executable(${name} ${TEST_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${TEST_LINK} GTest::gtest_main GTest::gmock orken_flags)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 120)
endfunction()
