# One library target per folder, each linked only to what it may see. As shared libraries the folders of the core
# become one, which has nothing to export to itself.
set(QUILLGRID_CORE_FOLDERS base locale platform resources cells euro calendar pads grid)

# The version stands in project() alone; code and packages read it from here. Before 1.0 each minor version has a
# binary interface of its own.
set(QUILLGRID_ABI ${PROJECT_VERSION_MAJOR})
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(QUILLGRID_ABI ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
endif()
set(QUILLGRID_GENERATED ${PROJECT_BINARY_DIR}/generated)
configure_file(cmake/Version.h.in ${QUILLGRID_GENERATED}/quillgrid/base/Version.h @ONLY)
set(QUILLGRID_QT_VERSION 6.4)

find_program(QUILLGRID_CCACHE ccache)
if(QUILLGRID_CCACHE AND PROJECT_IS_TOP_LEVEL)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${QUILLGRID_CCACHE})
endif()

function(quillgrid_options target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF POSITION_INDEPENDENT_CODE ON
                                          CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    # It calls what the standard library of g++ does inside stable_sort deprecated.
    target_compile_options(${target} PRIVATE -Wno-deprecated-declarations)
  endif()
  if(QUILLGRID_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(BUILD_SHARED_LIBS)
    target_compile_options(${target} PRIVATE -fno-semantic-interposition)
    target_compile_definitions(${target} PUBLIC QUILLGRID_SHARED)
  endif()
  if(QUILLGRID_SANITIZE)
    target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-sanitize-recover=all
                                            -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  endif()
endfunction()

# What becomes a library file of its own: its name and its versions.
function(quillgrid_packaged target name)
  set_target_properties(${target} PROPERTIES OUTPUT_NAME quillgrid-${name} VERSION ${PROJECT_VERSION}
                                             SOVERSION ${QUILLGRID_ABI})
  if(BUILD_SHARED_LIBS)
    target_link_options(${target} PRIVATE -Wl,--no-undefined
                                          -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
  endif()
endfunction()

# quillgrid_library(base SOURCES a.cpp b.cpp DEPENDS locale ...) makes the target quillgrid_base.
function(quillgrid_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  set(target quillgrid_${name})
  if(ARG_SOURCES)
    set(kind STATIC)
    if(BUILD_SHARED_LIBS AND name IN_LIST QUILLGRID_CORE_FOLDERS)
      set(kind OBJECT)
    endif()
    add_library(${target} ${kind} ${ARG_SOURCES})
    set_target_properties(${target} PROPERTIES OUTPUT_NAME quillgrid-${name})
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
    quillgrid_options(${target})
    set(scope PUBLIC)
  else()
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
    set(scope INTERFACE)
  endif()
  foreach(dependency IN LISTS ARG_DEPENDS)
    target_link_libraries(${target} ${scope} quillgrid_${dependency})
  endforeach()
endfunction()

# quillgrid_test(name SOURCES ... DEPENDS ...) makes a GoogleTest program and registers it with ctest.
function(quillgrid_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;LIBRARIES" ${ARGN})
  set(target test_${name})
  add_executable(${target} ${ARG_SOURCES})
  quillgrid_options(${target})
  foreach(dependency IN LISTS ARG_DEPENDS)
    target_link_libraries(${target} PRIVATE quillgrid_${dependency})
  endforeach()
  target_link_libraries(${target} PRIVATE ${ARG_LIBRARIES} GTest::gtest GTest::gtest_main)
  add_test(NAME ${name} COMMAND ${target})
endfunction()
