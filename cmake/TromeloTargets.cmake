# What all our targets have in common.

add_library(tromelo_options INTERFACE)
target_compile_features(tromelo_options INTERFACE cxx_std_20)
target_compile_options(tromelo_options INTERFACE -Wall -Wextra -Wpedantic -pthread)
target_compile_definitions(tromelo_options INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH TROMELO_VERSION="${PROJECT_VERSION}")
target_include_directories(tromelo_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(TROMELO_WERROR)
  target_compile_options(tromelo_options INTERFACE -Werror)
endif()
if(TROMELO_SANITIZE)
  target_compile_options(tromelo_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(tromelo_options INTERFACE -fsanitize=address,undefined)
  # The sanitizers look at our own code.
  set(TROMELO_QML_OPTIONS NO_CACHEGEN)
endif()
if(TROMELO_SANITIZE_THREADS)
  target_compile_options(tromelo_options INTERFACE -fsanitize=thread)
  target_link_options(tromelo_options INTERFACE -fsanitize=thread)
endif()

# What most sources include is read once, and sources are compiled several at a time: nine tenths of
# the time went into Qt's headers. The target all_headers_alone keeps our own headers whole.
add_library(tromelo_headers OBJECT ${PROJECT_SOURCE_DIR}/cmake/Empty.cpp)
target_link_libraries(tromelo_headers PRIVATE tromelo_options)
# Qt's own definitions differ from target to target, and the compiler takes these headers only where
# those that they were read with are the same.
target_compile_definitions(tromelo_headers PRIVATE $<$<NOT:$<CONFIG:Debug>>:QT_NO_DEBUG>)
foreach(module Core Gui Network OpenGL Qml QmlIntegration QmlMeta QmlModels QmlWorkerScript Quick)
  target_include_directories(tromelo_headers SYSTEM PRIVATE
    $<TARGET_PROPERTY:Qt6::${module},INTERFACE_INCLUDE_DIRECTORIES>)
endforeach()
set_target_properties(tromelo_headers PROPERTIES AUTOMOC OFF)
target_precompile_headers(tromelo_headers PRIVATE ${PROJECT_SOURCE_DIR}/cmake/CommonHeaders.h)

function(tromelo_builds_fast)
  if(NOT TROMELO_BUILD_FAST)
    return()
  endif()
  foreach(target ${ARGN})
    target_precompile_headers(${target} REUSE_FROM tromelo_headers)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
    # It takes every source that isn't compiled by itself for a header.
    target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
  endforeach()
endfunction()

# Every header of ours compiled with nothing before it; the ordinary build wouldn't notice what one
# lacks.
add_custom_target(all_headers_alone)
function(tromelo_headers_alone name)
  list(FILTER ARGN INCLUDE REGEX "^[A-Z].*\\.h$")
  foreach(header ${ARGN})
    set(source ${CMAKE_CURRENT_BINARY_DIR}/alone/${header}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${CMAKE_CURRENT_SOURCE_DIR}/${header}\"\n")
    list(APPEND alone ${source})
  endforeach()
  add_library(tromelo_${name}_alone OBJECT EXCLUDE_FROM_ALL ${alone})
  set_target_properties(tromelo_${name}_alone PROPERTIES AUTOMOC OFF)
  target_compile_options(tromelo_${name}_alone PRIVATE -O0 -g0)
  target_include_directories(tromelo_${name}_alone PRIVATE
    $<TARGET_PROPERTY:tromelo_${name},INCLUDE_DIRECTORIES>)
  target_link_libraries(tromelo_${name}_alone PRIVATE tromelo_${name})
  add_dependencies(all_headers_alone tromelo_${name}_alone)
endfunction()

# tromelo_library(<folder> SOURCES ... LINK ...): the static library of one folder of src/.
function(tromelo_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
  qt_add_library(tromelo_${name} STATIC ${ARG_SOURCES})
  target_link_libraries(tromelo_${name}
    PUBLIC tromelo_options ${ARG_LINK} PRIVATE ${ARG_PRIVATE_LINK})
  if(TROMELO_FUZZ)
    target_compile_options(tromelo_${name} PRIVATE -fsanitize-coverage=trace-pc)
  endif()
  if(TROMELO_BUILD_FAST)
    tromelo_headers_alone(${name} ${ARG_SOURCES})
  endif()
  tromelo_builds_fast(tromelo_${name})
endfunction()

# tromelo_qml_module(<folder> <URI> QML_FILES ... IMPORTS ...): the views of a folder, for its
# library. They are compiled to byte code, which starts the program as fast as C++ would; that took
# twelve seconds a view to build.
function(tromelo_qml_module name uri)
  cmake_parse_arguments(ARG "" "" "QML_FILES;IMPORTS;DEPENDENCIES" ${ARGN})
  set_target_properties(tromelo_${name} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
  qt_add_qml_module(tromelo_${name} URI ${uri} RESOURCE_PREFIX /qt/qml NO_PLUGIN_OPTIONAL
    QML_FILES ${ARG_QML_FILES} IMPORTS ${ARG_IMPORTS} DEPENDENCIES QtQuick ${ARG_DEPENDENCIES}
    ${TROMELO_QML_OPTIONS})
  tromelo_builds_fast(tromelo_${name}plugin tromelo_${name}plugin_init)
endfunction()

# tromelo_test(<name> SOURCES ... LINK ... [GUI | NO_MAIN] [CLIPS] [ENVIRONMENT ...] [LABELS ...]
# [TIMEOUT s]): one GoogleTest executable, each of its tests known to CTest by its own name.
#   GUI      main() makes a QApplication, as the program does, not a QCoreApplication
#   NO_MAIN  one of SOURCES has main()
#   CLIPS    the generated clips are there before a test starts
#   LABELS   "unit" or "engine" tests run under the sanitizers too
function(tromelo_test name)
  cmake_parse_arguments(ARG "GUI;NO_MAIN;CLIPS" "TIMEOUT" "SOURCES;LINK;ENVIRONMENT;LABELS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  if(ARG_NO_MAIN)
    set(main tromelo_testing)
  elseif(ARG_GUI)
    set(main tromelo_testing_gui)
  else()
    set(main tromelo_testing_core)
  endif()
  qt_add_executable(test_${name} ${ARG_SOURCES})
  target_link_libraries(test_${name} PRIVATE tromelo_options ${main} ${ARG_LINK})
  tromelo_builds_fast(test_${name})
  set(properties TIMEOUT ${ARG_TIMEOUT} LABELS "${ARG_LABELS}")
  if(ARG_CLIPS)
    list(APPEND properties FIXTURES_REQUIRED clips)
  endif()
  if(ARG_ENVIRONMENT)
    list(APPEND properties ENVIRONMENT "${ARG_ENVIRONMENT}")
  endif()
  gtest_discover_tests(test_${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
    PROPERTIES ${properties})
endfunction()
