# What all targets of the project share: warnings as errors, strict Qt, sanitizers.
add_library(zarim_options INTERFACE)
target_compile_options(zarim_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Werror)
target_compile_definitions(zarim_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
  QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH QT_NO_KEYWORDS)
target_include_directories(zarim_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(ZARIM_SANITIZE)
  target_compile_options(zarim_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(zarim_options INTERFACE -fsanitize=address,undefined)
endif()

# The commonest headers of the toolkit and the standard library are read once for each kind of code (libraries, programs,
# test programs): half of a build's time. A source names what it includes all the same: clang-tidy and the compiler for
# Windows read it without them.
set(zarim_headers <algorithm> <array> <functional> <memory> <optional> <utility> <vector> <QApplication> <QByteArray>
                  <QComboBox> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QKeyEvent> <QLabel> <QLineEdit> <QList> <QPainter>
                  <QPlainTextEdit> <QProcess> <QPushButton> <QRegularExpression> <QString> <QStringList> <QTabWidget>
                  <QTemporaryDir> <QTimer> <QToolButton> <QUrl> <QVBoxLayout>)
function(zarim_precompile target owner)
  if(target STREQUAL owner)
    target_precompile_headers(${target} PRIVATE ${zarim_headers} ${ARGN})
  else()
    target_precompile_headers(${target} REUSE_FROM ${owner})
  endif()
endfunction()

# What differs between systems stands in sources x_unix.cpp and x_windows.cpp, of which a build takes one.
if(WIN32)
  set(ZARIM_OTHER_SYSTEM unix)
else()
  set(ZARIM_OTHER_SYSTEM windows)
endif()

# zarim_floor(NAME folders... LINKS libraries...): a layer of the program, a static library of all sources of the folders.
function(zarim_floor name)
  cmake_parse_arguments(ARG "" "" "FOLDERS;LINKS" ${ARGN})
  set(patterns)
  foreach(folder IN LISTS ARG_FOLDERS)
    list(APPEND patterns ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
                         ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h
                         ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.ui)
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$|_${ZARIM_OTHER_SYSTEM}\\.cpp$")
  # Made by rules of their own: CMake's would not say which headers come of a .ui file, and what includes them would be
  # compiled a build too late.
  set(made ${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/include)
  foreach(form IN LISTS sources)
    if(form MATCHES "/([^/]*)\\.ui$")
      add_custom_command(OUTPUT ${made}/ui_${CMAKE_MATCH_1}.h DEPENDS ${form}
                         COMMAND Qt6::uic -o ${made}/ui_${CMAKE_MATCH_1}.h ${form})
      list(APPEND sources ${made}/ui_${CMAKE_MATCH_1}.h)
      set_source_files_properties(${made}/ui_${CMAKE_MATCH_1}.h PROPERTIES SKIP_AUTOMOC ON)
    endif()
  endforeach()
  add_library(${name} STATIC ${sources})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE zarim_options)
  zarim_precompile(${name} zarim_platform)
  # With Ninja the moc step depends only on the files it read last time, not on the list of sources: without this a new
  # header would never be read (CMake 3.25).
  list(FILTER sources INCLUDE REGEX "\\.h$")
  if(NOT "${sources}" STREQUAL "${${name}_headers}")
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/timestamp)
    set(${name}_headers "${sources}" CACHE INTERNAL "")
  endif()
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src ${made})
endfunction()

# zarim_test(NAME folder LINKS libraries...): one test program of all sources of the folder.
function(zarim_test name folder)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
                                      ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
  list(FILTER sources EXCLUDE REGEX "_${ZARIM_OTHER_SYSTEM}\\.cpp$")
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} zarim_test_support zarim_options)
  target_compile_definitions(${name} PRIVATE ZARIM_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
                                             ZARIM_BINARY_DIR="${PROJECT_BINARY_DIR}")
  zarim_precompile(${name} test_values <gtest/gtest.h>)
  add_test(NAME ${name} COMMAND ${name} --gtest_output=xml:${PROJECT_BINARY_DIR}/results/${name}.xml)
  set_tests_properties(${name} PROPERTIES TIMEOUT 900)
endfunction()
