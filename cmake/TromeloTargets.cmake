# What all our targets have in common.

add_library(tromelo_options INTERFACE)
target_compile_features(tromelo_options INTERFACE cxx_std_20)
target_compile_options(tromelo_options INTERFACE -Wall -Wextra -Wpedantic)
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
  # Views that are compiled to C++ cost minutes to build, and the sanitizers look at our own code.
  set(TROMELO_QML_OPTIONS NO_CACHEGEN)
endif()

# tromelo_library(<folder> SOURCES ... LINK ...): the static library of one folder of src/.
function(tromelo_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
  qt_add_library(tromelo_${name} STATIC ${ARG_SOURCES})
  target_link_libraries(tromelo_${name}
    PUBLIC tromelo_options ${ARG_LINK} PRIVATE ${ARG_PRIVATE_LINK})
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
