# One target a room. A room sees src/ for includes and only the libraries that it names; which rooms it may include
# says scripts/check-layers.
#
#   orken_room(view SOURCES ViewTree.cpp ... ROOMS foundation)
#   orken_test(view_tests SOURCES DiffTest.cpp ... ROOMS view)
#
# ROOMS and LIBRARIES are handed on to whoever uses the room, PRIVATE_LIBRARIES are not.

# A room that does not exist ends the configuration, because of the two colons.
function(orken_link_rooms target scope)
  list(TRANSFORM ARGN PREPEND orken:: OUTPUT_VARIABLE rooms)
  target_link_libraries(${target} ${scope} ${rooms})
endfunction()

function(orken_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;ROOMS;LIBRARIES;PRIVATE_LIBRARIES" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  add_library(orken::${name} ALIAS ${name})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  orken_link_rooms(${name} PUBLIC ${ROOM_ROOMS})
  target_link_libraries(${name} PUBLIC ${ROOM_LIBRARIES} PRIVATE orken_flags ${ROOM_PRIVATE_LIBRARIES})
  # Rooms above the toolkit share one set of standard headers.
  target_precompile_headers(${name} PRIVATE <functional> <map> <memory> <optional> <string> <string_view> <vector>)
endfunction()

function(orken_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;ROOMS;LIBRARIES" ${ARGN})
  find_package(GTest REQUIRED)
  include(GoogleTest)
  add_executable(${name} ${TEST_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  orken_link_rooms(${name} PRIVATE ${TEST_ROOMS})
  target_link_libraries(${name} PRIVATE ${TEST_LIBRARIES} GTest::gtest_main GTest::gmock orken_flags)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 120)
endfunction()
