# Helpers shared by every layer, test and benchmark target.

function(sandogh_warnings target)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /utf-8)
    if(SANDOGH_WERROR)
      target_compile_options(${target} PRIVATE /WX)
    endif()
  else()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow=local
                                              -Wnon-virtual-dtor -Woverloaded-virtual)
    if(SANDOGH_WERROR)
      # The flow-analysis warnings of an optimised GCC build stay warnings: they depend on
      # inlining and are known to fire on sound code (std::optional, Qt containers).
      target_compile_options(${target} PRIVATE -Werror -Wno-error=maybe-uninitialized
                                               -Wno-error=array-bounds
                                               -Wno-error=stringop-overflow)
    endif()
  endif()
endfunction()

# sandogh_layer(NAME folder DEPS target...)
# One static library per folder of src/. Sources are every .cpp/.h below the
# folder, so adding a class never means touching this file.
function(sandogh_layer name)
  cmake_parse_arguments(L "" "" "DEPS" ${ARGN})
  file(GLOB_RECURSE srcs CONFIGURE_DEPENDS
       ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  if(NOT srcs MATCHES "\\.cpp")
    # A layer whose issue has not come yet: an empty interface keeps the graph whole.
    add_library(sandogh_${name} INTERFACE)
    target_include_directories(sandogh_${name} INTERFACE ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(sandogh_${name} INTERFACE ${L_DEPS})
    return()
  endif()
  add_library(sandogh_${name} STATIC ${srcs})
  target_include_directories(sandogh_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(sandogh_${name} PUBLIC ${L_DEPS})
  sandogh_warnings(sandogh_${name})
endfunction()

# sandogh_test(NAME folder LIBS target...)
# One GoogleTest executable per folder of tests/, registered with CTest.
function(sandogh_test name)
  cmake_parse_arguments(T "" "" "LIBS" ${ARGN})
  file(GLOB_RECURSE srcs CONFIGURE_DEPENDS
       ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.h)
  if(NOT srcs)
    return()
  endif()
  add_executable(test_${name} ${srcs})
  target_link_libraries(test_${name} PRIVATE ${T_LIBS} sandogh_testsupport GTest::gtest GTest::gmock)
  sandogh_warnings(test_${name})
  gtest_discover_tests(test_${name}
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;SANDOGH_BUILD_DIR=${PROJECT_BINARY_DIR}"
               TIMEOUT 300)
endfunction()
