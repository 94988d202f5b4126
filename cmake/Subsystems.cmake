# Each folder under src/ is one subsystem and becomes one static library
# tw_<name> built from every .cpp file in it. tarnwick_core bundles them all.
#
#   tw_subsystem(NAME base DEPS ICU::uc)
function(tw_subsystem)
  cmake_parse_arguments(ARG "" "NAME" "DEPS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    add_library(tw_${ARG_NAME} INTERFACE)
    target_include_directories(tw_${ARG_NAME} INTERFACE ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(tw_${ARG_NAME} INTERFACE ${ARG_DEPS})
    return()
  endif()
  add_library(tw_${ARG_NAME} STATIC ${sources})
  target_include_directories(tw_${ARG_NAME} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(tw_${ARG_NAME} PUBLIC ${ARG_DEPS})
endfunction()

# One test binary per subsystem from tests/<name>/*_test.cpp, registered with CTest.
#
#   tw_test(NAME base DEPS tw_base)
function(tw_test)
  cmake_parse_arguments(ARG "" "NAME" "DEPS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${ARG_NAME}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${ARG_NAME}_test ${sources})
  target_include_directories(${ARG_NAME}_test PRIVATE ${PROJECT_SOURCE_DIR}/tests
                                                      ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${ARG_NAME}_test PRIVATE ${ARG_DEPS} tw_testsupport
                                                 GTest::gmock GTest::gtest_main)
  add_test(NAME ${ARG_NAME} COMMAND ${ARG_NAME}_test --gtest_brief=1)
  set_tests_properties(${ARG_NAME} PROPERTIES
    ENVIRONMENT "TW_SOURCE_DIR=${PROJECT_SOURCE_DIR};TW_BINARY_DIR=${PROJECT_BINARY_DIR}")
endfunction()
