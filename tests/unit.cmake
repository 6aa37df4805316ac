# The suites that need GoogleTest.
if(CMAKE_CROSSCOMPILING)
  # Debian has GoogleTest compiled for the machine itself only; its sources serve every other.
  add_subdirectory(/usr/src/googletest googletest EXCLUDE_FROM_ALL)
else()
  find_package(GTest REQUIRED)
endif()
find_package(Threads REQUIRED)
include(GoogleTest)

# What the suites' programs have in common. The library is built as it ships; the suites themselves
# gain nothing from optimisation but a long build.
add_library(test_options INTERFACE)
target_include_directories(test_options INTERFACE ${CMAKE_CURRENT_SOURCE_DIR})
target_compile_options(test_options INTERFACE
  -Wall -Wextra -Wshadow -Werror -O0 -U_FORTIFY_SOURCE)
target_link_libraries(test_options INTERFACE
  tavik::tavik GTest::gtest GTest::gmock Threads::Threads stdc++ m)
target_precompile_headers(test_options INTERFACE
  <gtest/gtest.h> <filesystem> <fstream> <map> <sstream> <string> <vector>)

# The unit suite: one program, so that it can be run whole under valgrind.
file(GLOB unit_sources CONFIGURE_DEPENDS
  support/*.cpp request/*_test.cpp output/*_test.cpp items/*_test.cpp fields/*_test.cpp
  auth/*_test.cpp net/*_test.cpp shell/*_test.cpp data/*_test.cpp docs/*_test.cpp)
add_executable(unit ${unit_sources})
add_dependencies(unit ${pages_targets} ${guide_targets})
list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " emulator)
target_compile_definitions(unit PRIVATE
  TEST_PAGES="${CMAKE_CURRENT_BINARY_DIR}/pages" TEST_EMULATOR="${emulator}"
  TEST_GUIDE="${guide}" TEST_SOURCES="${CMAKE_CURRENT_SOURCE_DIR}")
target_link_libraries(unit PRIVATE test_options tavik::harness)
gtest_discover_tests(unit DISCOVERY_MODE PRE_TEST)

# Every call of whole flows fails once. The program brings a malloc() of its own, which the address
# sanitizer does not allow.
if(NOT TAVIK_SANITIZE)
  file(GLOB torture_sources CONFIGURE_DEPENDS torture/*.cpp)
  add_executable(torture support/main.cpp support/scripted_ioctl.cpp ${torture_sources})
  target_link_libraries(torture PRIVATE test_options)
  gtest_discover_tests(torture DISCOVERY_MODE PRE_TEST)
endif()

# The test of a page that the guide shows.
add_executable(guide_host_test ${CMAKE_CURRENT_BINARY_DIR}/guide/host_test.cpp)
target_link_libraries(guide_host_test PRIVATE tavik::harness tavik::tavik)
if(NOT CMAKE_CROSSCOMPILING)
  add_test(NAME docs.guide_host_test COMMAND guide_host_test $<TARGET_FILE:guide_host>)
endif()

# The same items under many processes at once.
add_executable(load_items load/items.cpp)
target_link_libraries(load_items PRIVATE test_options)
add_test(NAME load.items COMMAND load_items)
